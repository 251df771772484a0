#include "dossier/store/FileLock.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

namespace brivane::dossier {
namespace {

// SQLite's bytes: "pending", "reserved", and the range in which its readers take theirs.
constexpr off_t kFirstLockByte = 0x40000000;
constexpr off_t kLockBytes = 2 + 510;

}  // namespace

LockError::Cause LockError::CauseOf(int error) noexcept {
  switch (error) {
    case EACCES:
    case EAGAIN: return LockError::Cause::InUse;
    case EINVAL:
    case ENOLCK:
    case ENOSYS:
    case EOPNOTSUPP: return LockError::Cause::Unsupported;
    default: return LockError::Cause::Failed;
  }
}

FileLock::FileLock(const QString& path, LockKind kind) {
  const bool exclusive = kind == LockKind::Exclusive;
  const QByteArray name = QFile::encodeName(path);
  do {
    file_ = open(name.constData(), (exclusive ? O_RDWR : O_RDONLY) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  } while (file_ < 0 && errno == EINTR);
  if (file_ < 0) throw LockError(LockError::Cause::Failed);
  struct flock range {};
  range.l_type = static_cast<short>(exclusive ? F_WRLCK : F_RDLCK);
  range.l_whence = SEEK_SET;
  range.l_start = kFirstLockByte;
  range.l_len = kLockBytes;
  if (fcntl(file_, F_OFD_SETLK, &range) == 0) return;
  const LockError::Cause cause = LockError::CauseOf(errno);
  close(file_);
  throw LockError(cause);
}

FileLock::~FileLock() { close(file_); }

bool FileLock::Holds(const QString& path) const {
  struct stat locked {};
  struct stat named {};
  return fstat(file_, &locked) == 0 && stat(QFile::encodeName(path).constData(), &named) == 0 &&
         locked.st_dev == named.st_dev && locked.st_ino == named.st_ino;
}

}  // namespace brivane::dossier
