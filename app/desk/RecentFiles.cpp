#include "app/desk/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace brivane::app {
namespace {

constexpr char kKey[] = "recent";

void Keep(const QStringList& files) {
  if (files.isEmpty())
    QSettings().remove(QLatin1String(kKey));
  else
    QSettings().setValue(QLatin1String(kKey), files);
}

}  // namespace

QStringList WithFirst(const QStringList& files, const QString& file) {
  QStringList list = files;
  list.removeAll(file);
  list.prepend(file);
  return list.mid(0, kMostRecentFiles);
}

QStringList RecentFiles::All() {
  return QSettings().value(QLatin1String(kKey)).toStringList().mid(0, kMostRecentFiles);
}
void RecentFiles::Add(const QString& file) { Keep(WithFirst(All(), file)); }

void RecentFiles::Remove(const QString& file) {
  QStringList files = All();
  files.removeAll(file);
  Keep(files);
}

void RecentFiles::Clear() { Keep({}); }

QString NameOfFile(const QString& file) { return QFileInfo(file).completeBaseName(); }
bool IsThere(const QString& file) { return QFileInfo::exists(file); }

}  // namespace brivane::app
