#pragma once

#include <span>

namespace brivane::dossier {

class OfficeConnection;

/// The schema that this program works with.
inline constexpr int kOfficeVersion = 1;

/// Makes the schema of an office with its roles in the database of the connection, or brings it up to date: in one
/// transaction, whole or not at all; one that is up to date is left as it is. Two that do so at once wait for each
/// other. The account owns the database and may make roles. Answers the version that was there before, 0 for none.
/// Throws OfficeError, with Newer where the office is of a later version, and Refused where the database is not one of
/// UTF-8. Nobody makes temporary tables in it from then on.
int SetUpOffice(OfficeConnection& connection);

/// What leads from one version of the schema to the next.
struct OfficeUpgrade {
  /// As the account that sets up: roles, and what only it may make.
  const char* as_account;
  /// As the owner, in order.
  std::span<const char* const> as_owner;
};

/// Those of this program, from nothing on.
[[nodiscard]] std::span<const OfficeUpgrade> OfficeUpgrades();

/// SetUpOffice by these.
int BringUpToDate(OfficeConnection& connection, std::span<const OfficeUpgrade> upgrades);

}  // namespace brivane::dossier
