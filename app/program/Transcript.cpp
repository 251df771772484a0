#include "app/program/Transcript.h"

#include <QJsonDocument>
#include <type_traits>

#include "app/program/JsonFields.h"

namespace brivane::dossier {
namespace {

/// The action in words, and the value that goes with it.
struct Actiewoorden {
  QJsonObject& regel;

  void operator()(const controls::Press&) const { regel.insert(u"action", u"press"_qs); }
  void operator()(const controls::Select&) const { regel.insert(u"action", u"select"_qs); }
  void operator()(const controls::Close&) const { regel.insert(u"action", u"close"_qs); }
  void operator()(const controls::Tick& tick) const { Zet(u"tick"_qs, tick.value); }
  void operator()(const controls::Toggle& toggle) const { Zet(u"toggle"_qs, toggle.value); }
  void operator()(const controls::Choose& keuze) const { Zet(u"choose"_qs, keuze.index); }
  void operator()(const controls::Enter& invoer) const {
    Zet(u"enter"_qs, std::visit(
                         [](const auto& waarde) -> QJsonValue {
                           if constexpr (std::is_same_v<std::decay_t<decltype(waarde)>, std::monostate>) {
                             return QJsonValue::Null;
                           } else {
                             return AlsJson(waarde);
                           }
                         },
                         invoer.value));
  }

 private:
  void Zet(const QString& actie, const QJsonValue& waarde) const {
    regel.insert(u"action", actie);
    regel.insert(u"value", waarde);
  }
};

QString Uitkomst(std::optional<controls::Outcome> uitkomst) {
  if (!uitkomst) return u"failed"_qs;
  switch (*uitkomst) {
    case controls::Outcome::Done: return u"done"_qs;
    case controls::Outcome::Ignored: return u"ignored"_qs;
    case controls::Outcome::Refused: return u"refused"_qs;
  }
  return {};
}

}  // namespace

Transcript::Transcript(const QString& bestand, const Dossier& dossier)
    : bestand_(bestand), dossier_(dossier), velden_(Jsonvelden(dossier)) {
  bestand_.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void Transcript::Schrijf(const QJsonObject& regel) {
  bestand_.write(QJsonDocument(regel).toJson(QJsonDocument::Compact) + '\n');
  bestand_.flush();
}

void Transcript::After(controls::AnyControl& control, const controls::Action& action,
                       std::optional<controls::Outcome> outcome) {
  QJsonObject regel{{u"control"_qs, QString::fromStdString(control.ElementName())}, {u"outcome"_qs, Uitkomst(outcome)}};
  std::visit(Actiewoorden{regel}, action);
  Schrijf(regel);
}

void Transcript::Opgeslagen() {
  const QJsonObject nu = Jsonvelden(dossier_);
  QJsonObject anders;
  for (auto veld = nu.begin(); veld != nu.end(); ++veld) {
    if (velden_.value(veld.key()) != veld.value()) anders.insert(veld.key(), veld.value());
  }
  for (auto veld = velden_.begin(); veld != velden_.end(); ++veld) {
    if (!nu.contains(veld.key())) anders.insert(veld.key(), QJsonValue::Null);
  }
  velden_ = nu;
  if (!anders.isEmpty()) Schrijf({{u"written"_qs, anders}});
}

}  // namespace brivane::dossier
