#include "app/desk/UnfinishedText.h"

#include <QDateTime>
#include <QSettings>
#include <QUuid>
#include <algorithm>
#include <tuple>

namespace brivane::app {
namespace {

constexpr char kGroup[] = "onafgemaakt";

}  // namespace

QString UnfinishedText::Keep() const {
  // In order of time, and of no other program's.
  QString name = QString::number(QDateTime::currentMSecsSinceEpoch()).rightJustified(15, u'0') + u'-' +
                 QUuid::createUuid().toString(QUuid::Id128);
  KeepAs(name);
  return name;
}

void UnfinishedText::KeepAs(const QString& name) const {
  QSettings settings;
  settings.beginGroup(QLatin1String(kGroup));
  settings.beginGroup(name);
  settings.setValue(QStringLiteral("bestand"), file);
  settings.setValue(QStringLiteral("lening"), lening);
  settings.setValue(QStringLiteral("kolom"), kolom);
  settings.setValue(QStringLiteral("vak"), box);
  settings.setValue(QStringLiteral("titel"), title);
  settings.setValue(QStringLiteral("tekst"), text);
  settings.setValue(QStringLiteral("onbekend"), unknown);
}

void UnfinishedText::Forget(const QString& name) {
  QSettings settings;
  settings.beginGroup(QLatin1String(kGroup));
  settings.remove(name);
}

bool UnfinishedText::IsKept() const {
  const std::vector<Kept> all = All();
  return std::any_of(all.begin(), all.end(), [this](const Kept& kept) {
    const UnfinishedText& other = kept.what;
    return std::tie(file, lening, kolom, box, title, text) ==
           std::tie(other.file, other.lening, other.kolom, other.box, other.title, other.text);
  });
}

std::vector<UnfinishedText::Kept> UnfinishedText::All() {
  QSettings settings;
  settings.beginGroup(QLatin1String(kGroup));
  std::vector<Kept> all;
  for (const QString& name : settings.childGroups()) {
    settings.beginGroup(name);
    const auto text = [&](const char* key) { return settings.value(QLatin1String(key)).toString(); };
    const auto number = [&](const char* key) {
      return static_cast<std::int16_t>(settings.value(QLatin1String(key)).toInt());
    };
    all.push_back({name,
                   {.file = text("bestand"),
                    .lening = number("lening"),
                    .kolom = number("kolom"),
                    .box = text("vak"),
                    .title = text("titel"),
                    .text = text("tekst"),
                    .unknown = settings.value(QStringLiteral("onbekend")).toBool()}});
    settings.endGroup();
  }
  return all;
}

}  // namespace brivane::app
