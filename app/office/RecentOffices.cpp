#include "app/office/RecentOffices.h"

#include <QSettings>

#include "app/desk/RecentFiles.h"
#include "app/office/OfficeWords.h"

namespace brivane::app {
namespace {

constexpr char kOffices[] = "kantoren";
constexpr char kTeams[] = "kantoorteams";

}  // namespace

QStringList RecentOffices::All() { return QSettings().value(QLatin1String(kOffices)).toStringList(); }

void RecentOffices::Add(const QString& words) {
  if (FaultOf(words) != WordsFault::None) return;
  QSettings().setValue(QLatin1String(kOffices), WithFirst(All(), words.trimmed()));
}

int RecentOffices::Team(const QString& words) {
  return QSettings().value(QLatin1String(kTeams)).toMap().value(words.trimmed()).toInt();
}

void RecentOffices::SetTeam(const QString& words, int team) {
  QSettings settings;
  const QVariantMap before = settings.value(QLatin1String(kTeams)).toMap();
  QVariantMap teams;
  // No more of them than offices that are remembered.
  for (const QString& office : All())
    if (before.contains(office)) teams[office] = before[office];
  teams[words.trimmed()] = team;
  settings.setValue(QLatin1String(kTeams), teams);
}

}  // namespace brivane::app
