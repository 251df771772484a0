#include "dossier/office/Office.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QUuid>
#include <algorithm>
#include <iterator>

#include "dossier/office/FoundBy.h"
#include "dossier/office/OfficeConnection.h"
#include "dossier/office/OfficeDamage.h"
#include "dossier/office/OfficeTables.h"
#include "dossier/store/Database.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/FileCheck.h"
#include "dossier/store/Schema.h"
#include "dossier/store/Writer.h"

namespace brivane::dossier {
namespace {

using Patience = OfficeConnection::Patience;

/// Rows of the history that go in one statement.
constexpr std::size_t kPart = 2000;

/// An array as the server reads one.
QString ArrayOf(const QStringList& words) {
  QStringList quoted;
  for (QString word : words) {
    word.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    quoted << u'"' + word + u'"';
  }
  return u'{' + quoted.join(u',') + u'}';
}

std::vector<std::string> AllRows(Database& tables, const ClientTable& table) {
  QSqlQuery query = tables.Prepare(Reading(table));
  Database::Run(query);
  std::vector<std::string> rows;
  while (query.next()) rows.push_back(JsonOf(table, ReadRow(query, table)));
  if (query.lastError().isValid()) throw DatabaseError(query.lastError());
  return rows;
}

/// Sends the rows of a table of the history in parts of a bearable size.
void SendHistory(OfficeConnection& office, int client, Database& tables, const ClientTable& table) {
  std::vector<std::string> rows = AllRows(tables, table);
  for (std::size_t from = 0; from < rows.size(); from += kPart) {
    const std::size_t to = std::min(rows.size(), from + kPart);
    const std::vector<std::string> part(std::make_move_iterator(rows.begin() + static_cast<std::ptrdiff_t>(from)),
                                        std::make_move_iterator(rows.begin() + static_cast<std::ptrdiff_t>(to)));
    const std::string payload = "{\"" + std::string(table.name) + "\":" + JsonList(part) + '}';
    office.Run(QStringLiteral("SELECT kantoor.vul_geschiedenis(?::integer, ?::json)"),
               {client, QString::fromStdString(payload)});
  }
}

/// Begins a transaction, and adds the client in it.
int AddInTransaction(OfficeConnection& office, int team, Database& tables, const QString& mark) {
  std::string payload = "{";
  for (const ClientTable& table : CaseParts())
    payload += '"' + std::string(table.name) + "\":" + JsonList(AllRows(tables, table)) + ',';
  payload += "\"zoek\":" + JsonOf(FoundByOf(tables)) + '}';
  office.RunScript(QStringLiteral("BEGIN"), Patience::Long);
  try {
    // Who manages brings clients into every team: a member of it until the transaction ends, which nobody else sees.
    const bool guest =
        office.User().manages &&
        office
            .Run(QStringLiteral("INSERT INTO kantoor.lid VALUES (session_user, ?::integer) ON CONFLICT DO NOTHING "
                                "RETURNING team"),
                 {team})
            .isValid();
    const int client = office
                           .Run(QStringLiteral("SELECT kantoor.nieuw(?::integer, ?::uuid, ?::json)"),
                                {team, mark, QString::fromStdString(payload)})
                           .value(0)
                           .toInt();
    for (const ClientTable& table : {Names(), Steps(), Entries()}) SendHistory(office, client, tables, table);
    if (guest)
      office.Run(QStringLiteral("DELETE FROM kantoor.lid WHERE gebruiker = session_user AND team = ?::integer"),
                 {team});
    return client;
  } catch (...) {
    if (!office.IsBroken()) office.RunScript(QStringLiteral("ROLLBACK"), Patience::Long);
    throw;
  }
}

int AddTables(OfficeConnection& office, int team, Database& tables) {
  const QString mark = QUuid::createUuid().toString(QUuid::WithoutBraces);
  const int client = AddInTransaction(office, team, tables, mark);
  try {
    office.RunScript(QStringLiteral("COMMIT"), Patience::Long);
    return client;
  } catch (const OfficeError& error) {
    if (error.Problem() != OfficeProblem::Unreachable) throw;
  }
  // It may be there: that is looked up, and nothing is added again.
  bool added = false;
  try {
    office.OpenOffice(Patience::Short);
    added = !office.Run(QStringLiteral("SELECT kantoor.toegevoegd(?::uuid)"), {mark}).isNull(0);
  } catch (const OfficeError&) {
    throw OfficeError(OfficeProblem::Unknown, "The answer to an addition was lost");
  }
  if (!added) throw OfficeError(OfficeProblem::Unreachable, "");
  return client;
}

}  // namespace

std::vector<ClientLine> SearchClients(OfficeConnection& office, const QString& typed, int most) {
  OfficeRows row = office.Run(
      QStringLiteral("SELECT nummer, naam, geboortedatum, team, gewijzigd, gewijzigd_door, eigen, bewerker, sinds FROM "
                     "kantoor.zoek_clienten(?::text[], ?::integer)"),
      {ArrayOf(WordsTyped(typed)), most});
  std::vector<ClientLine> lines;
  for (; row.isValid(); row.next()) {
    lines.push_back({.nummer = row.value(0).toInt(),
                     .naam = row.value(1).toString(),
                     .geboortedatum = row.value(2).toLongLong(),
                     .team = row.value(3).toString(),
                     .gewijzigd = row.value(4).toDateTime(),
                     .gewijzigd_door = row.value(5).toString(),
                     .eigen = row.value(6).toBool(),
                     .bewerker = row.value(7).toString(),
                     .bewerkt_sinds = row.value(8).toDateTime()});
  }
  return lines;
}

std::vector<Team> TeamsFor(OfficeConnection& office) {
  OfficeRows row = office.Run(
      QStringLiteral("SELECT t.nummer, t.naam, l.team IS NOT NULL AS eigen FROM kantoor.team t LEFT JOIN kantoor.lid l "
                     "ON l.team = t.nummer AND l.gebruiker = session_user WHERE l.team IS NOT NULL OR "
                     "pg_has_role(session_user, 'kantoor_beheerder', 'MEMBER') ORDER BY eigen DESC, lower(t.naam)"));
  std::vector<Team> teams;
  for (; row.isValid(); row.next())
    teams.push_back({.nummer = row.value(0).toInt(), .naam = row.value(1).toString(), .eigen = row.value(2).toBool()});
  return teams;
}

int AddClient(OfficeConnection& office, int team, const DossierGegevens& contents) {
  CheckPossible(contents, QStringLiteral("cliënt"));
  Database tables(QStringLiteral(":memory:"), Access::ReadWrite);
  Migrate(tables, 0);
  Writer(tables, 1).WriteDossier(contents);
  return AddTables(office, team, tables);
}

int AddClient(OfficeConnection& office, int team, const DossierFile& file) {
  try {
    return AddTables(office, team, file.Tabellen());
  } catch (const DatabaseError& error) {
    throw DamageInFile(error);
  }
}

}  // namespace brivane::dossier
