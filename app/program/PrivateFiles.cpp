#include "app/program/PrivateFiles.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>

namespace brivane::app {

void KeepPrivate() { umask(S_IRWXG | S_IRWXO); }

void MakePrivate(const QString& folder) {
  const QDir dir(folder);
  if (!dir.exists()) return;
  chmod(QFile::encodeName(folder).constData(), S_IRWXU);
  for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks)) {
    chmod(QFile::encodeName(dir.filePath(name)).constData(), S_IRUSR | S_IWUSR);
  }
}

}  // namespace brivane::app
