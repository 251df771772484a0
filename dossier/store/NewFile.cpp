#include "dossier/store/NewFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>

namespace brivane::dossier {
namespace {

/// A file system that cannot do so has no better to offer; the file itself was synchronised.
void SynchroniseFolder(const QString& folder) {
  const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

/// Some file systems know only the older call, which gives the file a second name for a moment.
int Rename(const char* from, const char* to) {
  if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return -1;
  if (link(from, to) != 0) return -1;
  return unlink(from);
}

}  // namespace

bool MakePrivateFile(const QString& path) {
  const int descriptor =
      open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) return false;
  // A mask of the process can only take rights away, the owner's too.
  const bool own = fchmod(descriptor, S_IRUSR | S_IWUSR) == 0;
  close(descriptor);
  return own;
}

bool Synchronise(int descriptor) { return fsync(descriptor) == 0; }

Renamed RenameToNew(const QString& from, const QString& to) {
  if (Rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
    return errno == EEXIST ? Renamed::NameIsTaken : Renamed::Failed;
  }
  SynchroniseFolder(QFileInfo(to).absolutePath());
  return Renamed::Done;
}

}  // namespace brivane::dossier
