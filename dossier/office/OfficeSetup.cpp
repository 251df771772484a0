#include "dossier/office/OfficeSetup.h"

#include "dossier/office/OfficeConnection.h"
#include "dossier/office/SchemaSteps.h"

namespace brivane::dossier {
namespace {

struct Upgrade {
  /// As the account that sets up: roles, and what only it may make.
  const char* as_account;
  /// As the owner, in order.
  const char* const* as_owner;
  std::size_t count;
};

const char* const kOwnedV1[] = {kTablesV1, kRightsV1, kFunctionsV1, kStoringV1, kFunctionRightsV1};

/// Upgrade n leads from version n to version n + 1.
const Upgrade kUpgrades[kOfficeVersion] = {{kRolesV1, kOwnedV1, std::size(kOwnedV1)}};

int VersionOf(OfficeConnection& connection) {
  const bool is = connection.Run(QStringLiteral("SELECT to_regclass('kantoor.versie') IS NOT NULL")).value(0).toBool();
  return is ? connection.Run(QStringLiteral("SELECT max(nummer) FROM kantoor.versie")).value(0).toInt() : 0;
}

}  // namespace

int SetUpOffice(OfficeConnection& connection) {
  connection.RunScript(QStringLiteral("BEGIN"));
  try {
    // The schema may not be there yet: the lock is on a number of the office's own.
    connection.RunScript(QStringLiteral("SELECT pg_advisory_xact_lock(1262571092)"));
    const int before = VersionOf(connection);
    if (before > kOfficeVersion) throw OfficeError(OfficeProblem::Newer, "The office is of a later version");
    for (int version = before; version < kOfficeVersion; ++version) {
      const Upgrade& upgrade = kUpgrades[version];
      connection.RunScript(QString::fromUtf8(upgrade.as_account));
      connection.RunScript(QStringLiteral("SET LOCAL ROLE kantoor_eigenaar"));
      for (std::size_t n = 0; n < upgrade.count; ++n) connection.RunScript(QString::fromUtf8(upgrade.as_owner[n]));
      connection.RunScript(QStringLiteral("INSERT INTO kantoor.versie (nummer) VALUES (%1)").arg(version + 1));
      connection.RunScript(QStringLiteral("RESET ROLE"));
    }
    connection.RunScript(QStringLiteral("COMMIT"));
    return before;
  } catch (const OfficeError& error) {
    if (error.Problem() != OfficeProblem::Unreachable) connection.RunScript(QStringLiteral("ROLLBACK"));
    throw;
  }
}

}  // namespace brivane::dossier
