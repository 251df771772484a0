#pragma once

#include <QString>
#include <stdexcept>
#include <string>

class QSqlError;

namespace brivane::dossier {

/// What went wrong with an office, as far as it makes a difference.
enum class OfficeProblem {
  Unreachable,  ///< there is no connection, or it broke: what was under way may have been done
  NotAdmitted,  ///< the server lets this account not in
  NoOffice,     ///< the database holds no office
  Older,        ///< the office is of an earlier version: its manager brings it up to date
  Newer,        ///< the office is of a later version than this program
  NotAllowed,   ///< this account may not do so
  NoClient,     ///< there is no such client, or none that this account may see
  LeaseLost,    ///< somebody else took the client up
  Stale,        ///< another step was stored meanwhile
  DiskFull,     ///< the server has no room
  Unknown,      ///< the connection broke while a client was added, and it is not known whether it was
  Damaged,      ///< what was read is none that a client can be: what() is the reason in Dutch
  Refused       ///< anything else that the server refuses
};

/// A statement that the server refused, or that did not reach it.
class OfficeError : public std::runtime_error {
 public:
  explicit OfficeError(const QSqlError& error);
  OfficeError(OfficeProblem problem, const char* what) : std::runtime_error(what), problem_(problem) {}

  [[nodiscard]] OfficeProblem Problem() const noexcept { return problem_; }
  /// Whether a server lets nobody in without a password, or not with the one that it was handed.
  [[nodiscard]] bool WantsPassword() const;
  /// What the server itself said where it did not let one in, without what the network says; empty where it said
  /// nothing.
  [[nodiscard]] QString SaidByServer() const;
  /// The reason in Dutch, as the end of a sentence: "de verbinding met het kantoor is verbroken".
  [[nodiscard]] std::string Oorzaak() const;
  /// One message for the adviser.
  [[nodiscard]] QString Melding() const;

 private:
  OfficeProblem problem_;
};

/// What a state code of SQL means; an empty one is a connection that is gone.
[[nodiscard]] OfficeProblem ProblemOf(const std::string& sqlstate);

}  // namespace brivane::dossier
