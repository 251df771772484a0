#include "app/office/RecentOffices.h"

#include <QSettings>

#include "app/desk/RecentFiles.h"
#include "app/office/OfficeWords.h"

namespace brivane::app {
namespace {

constexpr char kOffices[] = "kantoren";

}  // namespace

QStringList RecentOffices::All() { return QSettings().value(QLatin1String(kOffices)).toStringList(); }

void RecentOffices::Add(const QString& words) {
  if (FaultOf(words) != WordsFault::None) return;
  QSettings().setValue(QLatin1String(kOffices), WithFirst(All(), words.trimmed()));
}

}  // namespace brivane::app
