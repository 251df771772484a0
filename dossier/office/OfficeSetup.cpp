#include "dossier/office/OfficeSetup.h"

#include "dossier/office/OfficeConnection.h"
#include "dossier/office/SchemaSteps.h"

namespace brivane::dossier {
namespace {

const char* const kOwnedV1[] = {kTablesV1, kRightsV1, kFunctionsV1, kStoringV1, kFunctionRightsV1};

/// Upgrade n leads from version n to version n + 1.
const OfficeUpgrade kUpgrades[kOfficeVersion] = {{kRolesV1, kOwnedV1}};

/// What a name holds must be there when it is read again.
void MustBeUtf8(OfficeConnection& connection) {
  const QString encoding = connection.Run(QStringLiteral("SELECT getdatabaseencoding()")).value(0).toString();
  if (encoding == QLatin1String("UTF8")) return;
  throw OfficeError(OfficeProblem::Refused,
                    qUtf8Printable(QStringLiteral("The database has the encoding %1, and an office needs UTF8: make it "
                                                  "by createdb --encoding=UTF8 --template=template0")
                                       .arg(encoding)));
}

/// Tables of a session's own are bounded by the disk alone, and the program makes none. A dump does not hold this
/// right.
constexpr char kNoTemporaryTables[] =
    "DO $$ BEGIN EXECUTE format('REVOKE TEMPORARY ON DATABASE %I FROM PUBLIC', current_database()); END $$";

int VersionOf(OfficeConnection& connection) {
  const bool is = connection.Run(QStringLiteral("SELECT to_regclass('kantoor.versie') IS NOT NULL")).value(0).toBool();
  return is ? connection.Run(QStringLiteral("SELECT max(nummer) FROM kantoor.versie")).value(0).toInt() : 0;
}

}  // namespace

std::span<const OfficeUpgrade> OfficeUpgrades() { return kUpgrades; }

int SetUpOffice(OfficeConnection& connection) { return BringUpToDate(connection, kUpgrades); }

int BringUpToDate(OfficeConnection& connection, std::span<const OfficeUpgrade> upgrades) {
  const int newest = static_cast<int>(upgrades.size());
  MustBeUtf8(connection);
  connection.RunScript(QStringLiteral("BEGIN"));
  try {
    // The schema may not be there yet: the lock is on a number of the office's own.
    connection.RunScript(QStringLiteral("SELECT pg_advisory_xact_lock(1262571092)"));
    const int before = VersionOf(connection);
    if (before > newest) throw OfficeError(OfficeProblem::Newer, "The office is of a later version");
    connection.RunScript(QString::fromLatin1(kNoTemporaryTables));
    for (int version = before; version < newest; ++version) {
      const OfficeUpgrade& upgrade = upgrades[static_cast<std::size_t>(version)];
      connection.RunScript(QString::fromUtf8(upgrade.as_account));
      connection.RunScript(QStringLiteral("SET LOCAL ROLE kantoor_eigenaar"));
      for (const char* sql : upgrade.as_owner) connection.RunScript(QString::fromUtf8(sql));
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
