#include "app/desk/UnfinishedText.h"

#include <QSettings>

namespace brivane::app {
namespace {

constexpr char kGroup[] = "onafgemaakt";

}  // namespace

void UnfinishedText::Keep() const {
  QSettings settings;
  settings.beginGroup(QLatin1String(kGroup));
  settings.setValue(QStringLiteral("bestand"), file);
  settings.setValue(QStringLiteral("lening"), lening);
  settings.setValue(QStringLiteral("kolom"), kolom);
  settings.setValue(QStringLiteral("vak"), box);
  settings.setValue(QStringLiteral("tekst"), text);
}

std::optional<UnfinishedText> UnfinishedText::Take() {
  QSettings settings;
  settings.beginGroup(QLatin1String(kGroup));
  const auto number = [&](const QString& name) { return static_cast<std::int16_t>(settings.value(name).toInt()); };
  UnfinishedText kept{.file = settings.value(QStringLiteral("bestand")).toString(),
                      .lening = number(QStringLiteral("lening")),
                      .kolom = number(QStringLiteral("kolom")),
                      .box = settings.value(QStringLiteral("vak")).toString(),
                      .text = settings.value(QStringLiteral("tekst")).toString()};
  settings.remove(QString());
  if (kept.file.isEmpty() || kept.text.isEmpty()) return std::nullopt;
  return kept;
}

}  // namespace brivane::app
