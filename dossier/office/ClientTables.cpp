#include "dossier/office/ClientTables.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <algorithm>
#include <limits>
#include <map>

#include "dossier/office/OfficeTables.h"
#include "dossier/office/OfficeText.h"
#include "dossier/store/Schema.h"

namespace brivane::dossier {
namespace {

/// Every table that a client has, by the number that its rows come with.
const std::vector<ClientTable>& AllTables() {
  static const std::vector<ClientTable> all = [] {
    std::vector<ClientTable> tables(CaseParts().begin(), CaseParts().end());
    tables.insert(tables.end(), {Names(), Steps(), Entries()});
    return tables;
  }();
  return all;
}

/// Rows of several tables in one answer: the number of the table, and each value as text.
class Readings {
 public:
  Readings() {
    for (const ClientTable& table : AllTables()) widest_ = std::max(widest_, Width(table));
  }
  /// `which`: what holds of the rows, beside the client.
  void Add(std::size_t number, const QString& which = {}) {
    const ClientTable& table = AllTables()[number];
    QStringList values = {QString::number(number)};
    for (const TableColumn& column : table.columns) values << Latin(column.name) + QStringLiteral("::text");
    // Bytes as digits.
    if (table.values > 0) values << QStringLiteral("encode(oud, 'hex')") << QStringLiteral("encode(nieuw, 'hex')");
    for (std::size_t place = Width(table); place < widest_; ++place) values << QStringLiteral("NULL");
    parts_ << QStringLiteral("SELECT %1 FROM kantoor.%2 WHERE client = (SELECT c FROM k)%3")
                  .arg(values.join(u','), Latin(table.name), which);
  }
  [[nodiscard]] QString Sql() const {
    return QStringLiteral("WITH k AS (SELECT ?::integer AS c, ?::bigint AS s) ") +
           parts_.join(QStringLiteral(" UNION ALL "));
  }

 private:
  static std::size_t Width(const ClientTable& table) {
    return table.columns.size() + static_cast<std::size_t>(table.values);
  }

  std::size_t widest_ = 0;
  QStringList parts_;
};

std::size_t NumberOf(const ClientTable& table) {
  const auto& all = AllTables();
  return static_cast<std::size_t>(
      std::find_if(all.begin(), all.end(), [&](const ClientTable& one) { return one.name == table.name; }) -
      all.begin());
}

/// The case, the names, and the last step.
const QString& ReadingAll() {
  static const QString sql = [] {
    Readings readings;
    for (std::size_t number = 0; number < CaseParts().size(); ++number) readings.Add(number);
    readings.Add(NumberOf(Names()));
    const QString last = QStringLiteral("(SELECT c.laatste FROM kantoor.client c WHERE c.nummer = (SELECT c FROM k))");
    readings.Add(NumberOf(Steps()), QStringLiteral(" AND nummer = ") + last);
    readings.Add(
        NumberOf(Entries()),
        QStringLiteral(" AND nummer >= (SELECT s.eerste FROM kantoor.stap s WHERE s.client = (SELECT c FROM k) "
                       "AND s.nummer = %1)")
            .arg(last));
    return readings.Sql();
  }();
  return sql;
}

/// The history before a step.
const QString& ReadingHistory() {
  static const QString sql = [] {
    Readings readings;
    readings.Add(NumberOf(Steps()), QStringLiteral(" AND nummer < (SELECT s FROM k)"));
    readings.Add(NumberOf(Entries()),
                 QStringLiteral(" AND nummer < (SELECT s.eerste FROM kantoor.stap s WHERE s.client = (SELECT c FROM k) "
                                "AND s.nummer = (SELECT s FROM k))"));
    return readings.Sql();
  }();
  return sql;
}

/// A number that is not finite stands as a word there: no case has one, and who reads it tells where.
double NumberOf(const QString& text) {
  bool is = false;
  const double number = text.toDouble(&is);
  if (is) return number;
  return text.startsWith(u'-') ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
}

/// What the office gives as text.
QVariant ForFile(const QVariant& given, Opslag kind) {
  if (given.isNull()) return {};
  switch (kind) {
    case Opslag::Integer: return given.toString().toLongLong();
    case Opslag::Real: return NumberOf(given.toString());
    case Opslag::Text: break;
  }
  return AlsBytes(FromOffice(given.toString().toStdString()));
}

/// A value of the history, whose bytes the office gives as digits.
QVariant ValueForFile(const QVariant& given) {
  if (given.isNull()) return {};
  const QByteArray bytes = QByteArray::fromHex(given.toString().toLatin1());
  Row row;
  if (!Unpack({bytes.constData(), static_cast<std::size_t>(bytes.size())}, row) || row.size() != 1)
    throw DatabaseError(SqliteCode::Corrupt, "A value of the history is none");
  if (const auto* whole = std::get_if<std::int64_t>(&row.front())) return QVariant(static_cast<qlonglong>(*whole));
  if (const auto* broken = std::get_if<double>(&row.front())) return QVariant(*broken);
  if (const auto* text = std::get_if<std::string>(&row.front())) return QVariant(AlsBytes(*text));
  return {};
}

/// Entries are numbered on from those of the last step: without them an edit would be given numbers that are taken.
void CheckLastStep(Database& tables) {
  const bool broken =
      tables
          .Value(
              QStringLiteral("SELECT count(*) FROM stap s WHERE nummer = (SELECT max(nummer) FROM stap) AND NOT EXISTS "
                             "(SELECT 1 FROM wijziging w WHERE w.nummer = s.eerste AND w.stap = s.nummer)"))
          .toInt() != 0;
  if (broken) throw DatabaseError(SqliteCode::Corrupt, "The last step has no entries");
}

QString Insertion(const ClientTable& table) {
  QStringList values;
  for (const TableColumn& column : table.columns)
    values << (column.kind == Opslag::Text ? QStringLiteral("CAST(? AS TEXT)") : QStringLiteral("?"));
  for (int n = 0; n < table.values; ++n) values << QStringLiteral("?");
  return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
      .arg(Latin(table.name), ColumnsOf(table), values.join(QStringLiteral(", ")));
}

}  // namespace

ClientTables::ClientTables(OfficeConnection& office, int client)
    : office_(office),
      client_(client),
      released_(std::make_unique<Database>(QStringLiteral(":memory:"), Access::ReadWrite)),
      tables_(released_.get()) {
  Migrate(*tables_, 0);
  tables_->PassOverTriggers();
  tables_->Run(QStringLiteral("PRAGMA foreign_keys = ON"));
}

const QString& ClientTables::Reading() { return ReadingAll(); }

void ClientTables::Fill() { FillWith(office_.Run(Reading(), {client_, 0}, OfficeConnection::Patience::Short)); }

void ClientTables::FillWith(OfficeRows rows) {
  if (!rows.isValid()) throw OfficeError(OfficeProblem::NoClient, "There is no such client");
  tables_->Run(QStringLiteral("BEGIN"));
  try {
    tables_->Run(QStringLiteral("PRAGMA defer_foreign_keys = ON"));
    for (const ClientTable& table : AllTables()) tables_->Run(QStringLiteral("DELETE FROM ") + Latin(table.name));
    Insert(rows);
    CheckLastStep(*tables_);
    tables_->Run(QStringLiteral("COMMIT"));
  } catch (...) {
    tables_->Run(QStringLiteral("ROLLBACK"));
    throw;
  }
  last_ = tables_->Value(QStringLiteral("SELECT coalesce(max(nummer), 0) FROM stap")).toLongLong();
  whole_ = last_ <= 1;
}

void ClientTables::FillHistory() {
  if (whole_) return;
  const qint64 first = tables_->Value(QStringLiteral("SELECT min(nummer) FROM stap")).toLongLong();
  OfficeRows rows = office_.Run(ReadingHistory(), {client_, first});
  // A client that is gone has no rows either: it is told from one without earlier steps.
  if (!rows.isValid()) office_.Run(QStringLiteral("SELECT laatste FROM kantoor.wie(?::integer)"), {client_});
  tables_->Run(QStringLiteral("BEGIN"));
  try {
    Insert(rows);
    tables_->Run(QStringLiteral("COMMIT"));
  } catch (...) {
    tables_->Run(QStringLiteral("ROLLBACK"));
    throw;
  }
  whole_ = true;
}

void ClientTables::Insert(OfficeRows& from) {
  std::map<std::size_t, QSqlQuery> insertions;
  for (; from.isValid(); from.next()) {
    const auto number = static_cast<std::size_t>(from.value(0).toInt());
    const ClientTable& table = AllTables().at(number);
    auto known = insertions.find(number);
    if (known == insertions.end()) known = insertions.emplace(number, tables_->Prepare(Insertion(table))).first;
    QSqlQuery& insertion = known->second;
    int place = 0;
    for (const TableColumn& column : table.columns) {
      insertion.bindValue(place, ForFile(from.value(place + 1), column.kind));
      ++place;
    }
    for (int n = 0; n < table.values; ++n, ++place) insertion.bindValue(place, ValueForFile(from.value(place + 1)));
    Database::Run(insertion);
    insertion.finish();
  }
}

}  // namespace brivane::dossier
