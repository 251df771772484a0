#include "app/desk/WriteNew.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <cerrno>

#include "dossier/store/NewFile.h"

namespace brivane::app {
namespace {

QString Failure(const QString& path, const QString& reason) {
  const QFileInfo file(path);
  return QStringLiteral("Het bestand \"%1\" kan niet worden gemaakt in de map \"%2\": %3")
      .arg(file.fileName(), QDir::toNativeSeparators(file.absolutePath()), reason);
}

/// Beside the file that it becomes, so that it is given its name in one step.
QString NameMeanwhile(const QString& path) {
  return QFileInfo(path).absoluteDir().filePath(QStringLiteral(".dossier-") +
                                                QUuid::createUuid().toString(QUuid::Id128));
}

/// 0, or the system's number for what went wrong.
int WriteAll(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  errno = 0;
  if (!dossier::MakePrivateFile(path) || !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    return errno == 0 ? EIO : errno;
  }
  errno = 0;
  if (file.write(bytes) == bytes.size() && file.flush() && dossier::Synchronise(file.handle())) return 0;
  return errno == 0 ? EIO : errno;
}

}  // namespace

QString ReasonFor(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT: return QStringLiteral("de schijf is vol. Maak ruimte en probeer het opnieuw.");
    case EFBIG: return QStringLiteral("het bestand wordt groter dan daar mag staan.");
    case EACCES:
    case EPERM: return QStringLiteral("u mag in deze map niet schrijven. Kies een andere map.");
    case EROFS: return QStringLiteral("de schijf is alleen-lezen. Kies een andere map.");
    case ENOENT:
    case ENOTDIR: return QStringLiteral("de map bestaat niet (meer). Kies een andere map.");
    case ENAMETOOLONG: return QStringLiteral("de naam is te lang. Kies een kortere naam.");
    default: return QStringLiteral("de schijf meldt een fout. Controleer de schijf of de verbinding.");
  }
}

QString WriteNew(const QString& path, const QByteArray& bytes) {
  const QString meanwhile = NameMeanwhile(path);
  int error = WriteAll(meanwhile, bytes);
  if (error == 0) {
    switch (dossier::RenameToNew(meanwhile, path)) {
      case dossier::Renamed::Done: return {};
      case dossier::Renamed::Failed: error = errno; break;
      case dossier::Renamed::NameIsTaken: error = EEXIST; break;
    }
  }
  QFile::remove(meanwhile);
  return Failure(path, error == EEXIST ? QStringLiteral("er staat al een bestand met die naam. Kies een andere naam.")
                                       : ReasonFor(error));
}

QString FreeName(const QString& folder, const QString& name, const QString& suffix) {
  const QDir dir(folder);
  const auto taken = [&](const QString& tried) {
    const QFileInfo file(dir.filePath(tried + u'.' + suffix));
    return file.exists() || file.isSymLink();
  };
  QString tried = name;
  for (int number = 2; taken(tried); ++number) tried = QStringLiteral("%1 (%2)").arg(name).arg(number);
  return tried;
}

}  // namespace brivane::app
