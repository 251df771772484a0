#pragma once

#include <QString>
#include <exception>
#include <string>

namespace brivane::dossier {

/// Why a loan file cannot be opened or made.
enum class OpeningProblem {
  Missing,       ///< there is no such file
  Directory,     ///< the name is a folder's
  Empty,         ///< the file holds nothing
  NotALoanFile,  ///< another kind of file
  Damaged,       ///< a loan file whose contents are not whole
  Newer,         ///< made by a newer version of the program
  ReadOnly,      ///< the file or its folder may not be written
  InUse,         ///< open in another window or program
  Unreadable,    ///< the file may not be read
  AlreadyThere,  ///< a new file would replace another one
  CannotCreate   ///< a new file cannot be written there
};

/// A loan file that cannot be opened or made. The file itself was left as it was.
class OpeningError : public std::exception {
 public:
  OpeningError(OpeningProblem problem, const QString& pad);

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
