#pragma once

#include <QString>
#include <exception>

namespace brivane::dossier {

/// What a lock is for: to work in a file alone, or to read it while nobody works in it.
enum class LockKind { Exclusive, Shared };

/// A file that cannot be locked.
class LockError : public std::exception {
 public:
  enum class Cause {
    InUse,        ///< somebody else has it
    Unsupported,  ///< its file system keeps no locks
    Failed        ///< it cannot be opened, or locking it failed
  };
  explicit LockError(Cause cause) : cause_(cause) {}
  /// What an error number of the system says of a lock that was not given.
  [[nodiscard]] static Cause CauseOf(int error) noexcept;
  [[nodiscard]] Cause Why() const noexcept { return cause_; }
  [[nodiscard]] const char* what() const noexcept override { return "the file cannot be locked"; }

 private:
  Cause cause_;
};

/// A lock on a file, from the making of this object to its end.
///
/// It belongs to the open file description that this object made, so that no other opening and closing of the file in
/// this process lets go of it, and a second lock in this process is refused as one in another process is. It lies on
/// the bytes that SQLite locks: every program that opens the file by SQLite is kept out too. The kernel lets go of it
/// when the process ends, however it ends.
class FileLock {
 public:
  /// Throws LockError.
  FileLock(const QString& path, LockKind kind);
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

  /// Whether the name still stands for the file that is locked.
  [[nodiscard]] bool Holds(const QString& path) const;

 private:
  int file_ = -1;
};

}  // namespace brivane::dossier
