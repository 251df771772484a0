#include "dossier/store/StateChain.h"

#include <QSqlError>

namespace brivane::dossier {
std::vector<qint64> ReadStates(Database& database) {
  std::vector<qint64> states;
  if (database.Value(QStringLiteral("SELECT count(*) FROM sqlite_schema WHERE name = 'stand'")).toInt() == 0) {
    return states;
  }
  QSqlQuery query = database.Prepare(QStringLiteral("SELECT kenmerk FROM stand ORDER BY nummer"));
  Database::Run(query);
  while (query.next()) states.push_back(query.value(0).toLongLong());
  if (query.lastError().isValid()) throw DatabaseError(query.lastError());
  if (states.empty()) throw DatabaseError(SqliteCode::Corrupt, "The file does not name its state");
  return states;
}

void AddState(Database& database, FileStandsIn before) {
  switch (before) {
    case FileStandsIn::Newest:
      database.RunAgain(QStringLiteral("DELETE FROM stand WHERE nummer < (SELECT max(nummer) FROM stand)"));
      break;
    case FileStandsIn::NewestMaybe: break;
    case FileStandsIn::Earlier:
      database.RunAgain(QStringLiteral("DELETE FROM stand WHERE nummer = (SELECT max(nummer) FROM stand)"));
      break;
  }
  database.RunAgain(QStringLiteral("INSERT INTO stand (kenmerk) VALUES (random())"));
}

}  // namespace brivane::dossier
