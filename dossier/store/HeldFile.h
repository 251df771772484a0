#pragma once

#include <QString>
#include <optional>

#include "dossier/store/FileLock.h"

namespace brivane::dossier {

/// The name of the write-ahead log that stands beside a file.
[[nodiscard]] QString LogOf(const QString& path);
/// The name of the journal that another way of writing leaves beside a file.
[[nodiscard]] QString RollbackJournalOf(const QString& path);

/// A loan file and its log, held for one connection from before it is opened until after it is closed. Nobody else can
/// work in either of them, whatever name they are given meanwhile.
class HeldFile {
 public:
  /// Locks the file, and the log where one was left beside it. `path` has no symbolic links. Throws LockError.
  explicit HeldFile(const QString& path);

  /// Locks the log that the connection has made, or found. Throws LockError.
  void HoldLog();
  /// The file and the log stand where they stood: what is written now is found there later.
  [[nodiscard]] bool InPlace() const;
  /// What the log holds that is not worked off, in bytes.
  [[nodiscard]] qint64 LogSize() const;
  /// The connection was closed. Where the file was moved, SQLite leaves its log; an empty one is taken away.
  void RemoveEmptyLog();

 private:
  QString path_;
  QString log_name_;
  FileLock file_;
  std::optional<FileLock> log_;
};

}  // namespace brivane::dossier
