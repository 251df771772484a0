#include "app/desk/Settings.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace brivane::app {
namespace {

constexpr char kWindowPlace[] = "venster/plaats";
constexpr char kSplit[] = "venster/verdeling";
constexpr char kAuthor[] = "adviseur";
constexpr char kLastFile[] = "laatsteBestand";

QVariant Read(const char* key) { return QSettings().value(QLatin1String(key)); }
void Write(const char* key, const QVariant& value) { QSettings().setValue(QLatin1String(key), value); }

}  // namespace

QByteArray Settings::WindowPlace() { return Read(kWindowPlace).toByteArray(); }
void Settings::SetWindowPlace(const QByteArray& place) { Write(kWindowPlace, place); }
QByteArray Settings::Split() { return Read(kSplit).toByteArray(); }
void Settings::SetSplit(const QByteArray& split) { Write(kSplit, split); }
QString Settings::LastFile() { return Read(kLastFile).toString(); }
void Settings::SetLastFile(const QString& file) { Write(kLastFile, file); }

QString Settings::Author() {
  QString name = Read(kAuthor).toString();
  for (const char* account : {"USER", "LOGNAME", "USERNAME"}) {
    if (name.isEmpty()) name = qEnvironmentVariable(account);
  }
  return name;
}
void Settings::SetAuthor(const QString& name) { Write(kAuthor, name); }

QString Settings::Folder() {
  const QString last = LastFile();
  return last.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                        : QFileInfo(last).absolutePath();
}

}  // namespace brivane::app
