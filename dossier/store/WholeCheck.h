#pragma once

#include <QString>
#include <future>

#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Has SQLite look at all of a file whose layout is right: pages, rows and indexes, and the constraints where the
/// connection can write. A long history is passed over. Throws OpeningError where the file is damaged, and
/// DatabaseError where the disk or the memory kept it from looking.
void CheckWhole(const Database& database, int version, const QString& pad);

/// The same in a thread of its own while the caller reads the file. The file stands alone, without a log, and nobody
/// writes in it meanwhile: the caller holds it.
///
///     CheckBeside check(pad, version);
///     StoredDossier read = ReadDossier(database);
///     check.Verdict();
///
/// The check has a connection of its own that leaves no trace, and shares nothing with the reader. Such a connection
/// cannot write, and so passes over the constraints of the rows: ReadDossier keeps to those itself.
class CheckBeside {
 public:
  CheckBeside(const QString& pad, int version);
  CheckBeside(const CheckBeside&) = delete;
  CheckBeside& operator=(const CheckBeside&) = delete;
  /// Breaks off a check whose verdict nobody asked.
  ~CheckBeside();

  /// Waits for the check, and throws what it found; to be asked once.
  void Verdict();

 private:
  Database file_;
  std::future<void> check_;
};

}  // namespace brivane::dossier
