#pragma once

#include <QString>
#include <exception>
#include <string>

namespace brivane::dossier {

/// Why a loan file cannot be opened or made.
enum class OpeningProblem {
  Missing,           ///< there is no such file
  Directory,         ///< the name is a folder's
  Empty,             ///< the file holds nothing
  NotALoanFile,      ///< another kind of file
  Impossible,        ///< a loan file with a value that no edit writes
  TooLarge,          ///< larger than any case
  Damaged,           ///< a loan file whose contents are not whole
  Newer,             ///< made by a newer version of the program
  ReadOnly,          ///< the file or its folder turned out not to be written
  InUse,             ///< open in another window or program
  Unreadable,        ///< the file may not be read
  SecondName,        ///< the file has another name on the disk: a hard link
  StrangeLog,        ///< a log or journal beside it that is not proved to be its own
  NoLocks,           ///< the file system keeps no locks
  DiskFull,          ///< there is no room
  DiskError,         ///< reading or writing failed
  NoMemory,          ///< the machine has no memory for it
  NoEarlierVersion,  ///< no copy can be kept of a file before it is brought up to date
  CannotCopy,        ///< a file with a log cannot be looked at, as no copy of it can be made
  AlreadyThere,      ///< a new file would replace another one
  LogThere,          ///< a new file would stand beside the log of an earlier one
  CannotCreate       ///< a new file cannot be written there
};

/// A loan file that cannot be opened or made. The file itself was left as it was.
class OpeningError : public std::exception {
 public:
  /// `plaats`: where in the case it lies, in Dutch: for Impossible, and for Damaged where that is known.
  OpeningError(OpeningProblem problem, const QString& pad, const QString& plaats = {});

  [[nodiscard]] OpeningProblem Problem() const noexcept { return problem_; }
  /// One message in Dutch for the adviser, with the file's name.
  [[nodiscard]] const QString& Melding() const noexcept { return melding_; }
  [[nodiscard]] const char* what() const noexcept override { return bytes_.c_str(); }

 private:
  OpeningProblem problem_;
  QString melding_;
  std::string bytes_;
};

}  // namespace brivane::dossier
