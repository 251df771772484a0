#include "app/program/Transcript.h"

#include <QJsonDocument>
#include <type_traits>

#include "app/program/JsonFields.h"

namespace brivane::app {
namespace {

/// The action in words, and the value that goes with it.
struct ActionWords {
  QJsonObject& line;

  void operator()(const controls::Press&) const { line.insert(u"action", u"press"_qs); }
  void operator()(const controls::Select&) const { line.insert(u"action", u"select"_qs); }
  void operator()(const controls::Close&) const { line.insert(u"action", u"close"_qs); }
  void operator()(const controls::Tick& tick) const { Put(u"tick"_qs, tick.value); }
  void operator()(const controls::Toggle& toggle) const { Put(u"toggle"_qs, toggle.value); }
  void operator()(const controls::Choose& choice) const { Put(u"choose"_qs, choice.index); }
  void operator()(const controls::Enter& entered) const {
    Put(u"enter"_qs, std::visit(
                         [](const auto& value) -> QJsonValue {
                           if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>) {
                             return QJsonValue::Null;
                           } else {
                             return AsJson(value);
                           }
                         },
                         entered.value));
  }

 private:
  void Put(const QString& action, const QJsonValue& value) const {
    line.insert(u"action", action);
    line.insert(u"value", value);
  }
};

QString OutcomeText(std::optional<controls::Outcome> outcome) {
  if (!outcome) return u"failed"_qs;
  switch (*outcome) {
    case controls::Outcome::Done: return u"done"_qs;
    case controls::Outcome::Ignored: return u"ignored"_qs;
    case controls::Outcome::Refused: return u"refused"_qs;
  }
  return {};
}

}  // namespace

Transcript::Transcript(const QString& file, const dossier::Dossier& dossier)
    : file_(file), dossier_(dossier), fields_(JsonFields(dossier)) {
  file_.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void Transcript::Write(const QJsonObject& line) {
  file_.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
  file_.flush();
}

void Transcript::After(controls::AnyControl& control, const controls::Action& action,
                       std::optional<controls::Outcome> outcome) {
  QJsonObject line{{u"control"_qs, QString::fromStdString(control.ElementName())},
                   {u"outcome"_qs, OutcomeText(outcome)}};
  std::visit(ActionWords{line}, action);
  Write(line);
}

void Transcript::Stored() {
  const QJsonObject now = JsonFields(dossier_);
  QJsonObject changed;
  for (auto field = now.begin(); field != now.end(); ++field) {
    if (fields_.value(field.key()) != field.value()) changed.insert(field.key(), field.value());
  }
  for (auto field = fields_.begin(); field != fields_.end(); ++field) {
    if (!now.contains(field.key())) changed.insert(field.key(), QJsonValue::Null);
  }
  fields_ = now;
  if (!changed.isEmpty()) Write({{u"written"_qs, changed}});
}

}  // namespace brivane::app
