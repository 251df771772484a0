#include "dossier/store/HistoryTables.h"

#include <QSqlError>
#include <chrono>

#include "dossier/store/CaseRows.h"
#include "dossier/store/Rows.h"

namespace brivane::dossier {
namespace {

/// What one edit may have set off: each column of a full file with its periods is far less.
constexpr std::int64_t kMostEntries = 1'000'000;

std::string TextOf(const QVariant& value) { return value.toByteArray().toStdString(); }

/// The value of an entry, whose column takes all kinds.
Stored TakeAny(const QSqlQuery& query, int place, bool none, Tabel tabel, int field) {
  if (none) return {};
  const QVariant value = query.value(place);
  switch (field == 0 ? Opslag::Text : TableOf(tabel).columns[static_cast<std::size_t>(field)].kind) {
    case Opslag::Text: return TextOf(value);
    case Opslag::Real: return value.toDouble();
    case Opslag::Integer: break;
  }
  return std::int64_t{value.toLongLong()};
}

std::int64_t Now() {
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

}  // namespace

void HistoryIsBroken() { throw DatabaseError(SqliteCode::Corrupt, "The history does not fit the file"); }

Entry TakeEntry(const QSqlQuery& query) {
  Entry entry;
  const auto number = [&](int place) { return std::int64_t{query.value(place).toLongLong()}; };
  entry.number = number(0);
  entry.step = number(1);
  const std::int64_t kind = number(13);
  if (kind < 0 || kind > static_cast<std::int64_t>(StepKind::CarryOver)) HistoryIsBroken();
  entry.kind = static_cast<StepKind>(kind);
  const std::int64_t tabel = number(2);
  if (tabel < 1 || tabel > static_cast<std::int64_t>(kTabellen.size())) HistoryIsBroken();
  entry.tabel = static_cast<Tabel>(tabel);
  entry.key = number(3);
  entry.lening = number(4);
  entry.lening_naam = TextOf(query.value(5));
  entry.kolom = number(6);
  entry.kolom_naam = TextOf(query.value(7));
  const std::int64_t field = number(8);
  if (field < 0 || field >= static_cast<std::int64_t>(TableOf(entry.tabel).columns.size())) HistoryIsBroken();
  entry.field = static_cast<int>(field);
  entry.before = TakeAny(query, 11, number(9) != 0, entry.tabel, entry.field);
  entry.after = TakeAny(query, 12, number(10) != 0, entry.tabel, entry.field);
  // A row was added or removed; a field had another value.
  const bool added = std::holds_alternative<std::monostate>(entry.before);
  const bool removed = std::holds_alternative<std::monostate>(entry.after);
  if (entry.field == 0 ? added == removed : Same(entry.before, entry.after)) HistoryIsBroken();
  return entry;
}

HistoryState HistoryTables::Last() {
  HistoryState last;
  QSqlQuery& query = database_.Again(
      QStringLiteral("SELECT nummer, terug, opnieuw, hoogste, (SELECT max(nummer) FROM wijziging) FROM stap "
                     "ORDER BY nummer DESC LIMIT 1"));
  Database::Run(query);
  if (query.next()) {
    last = {.step = query.value(0).toLongLong(),
            .undo = query.value(1).toLongLong(),
            .redo = query.value(2).toLongLong(),
            .entry = query.value(4).toLongLong(),
            .highest = query.value(3).toLongLong()};
  }
  query.finish();
  const auto fits = [&](std::int64_t step) { return step >= 0 && step <= last.step; };
  if (last.step < 0 || last.entry < 0 || !fits(last.undo) || !fits(last.redo)) HistoryIsBroken();
  return last;
}

std::int64_t HistoryTables::Value(const QString& sql, std::int64_t step) {
  QSqlQuery& query = database_.Again(sql);
  query.bindValue(0, static_cast<qlonglong>(step));
  Database::Run(query);
  const std::int64_t value = query.next() ? query.value(0).toLongLong() : 0;
  query.finish();
  return value;
}

std::int64_t HistoryTables::UndoneNextAfter(std::int64_t step) {
  return Value(QStringLiteral("SELECT terug FROM stap WHERE nummer = ?"), step);
}

std::int64_t HistoryTables::RedoneNextAfter(std::int64_t step) {
  return Value(QStringLiteral("SELECT opnieuw FROM stap WHERE nummer = ?"), step);
}

std::int64_t HistoryTables::TakenBackBy(std::int64_t undo) {
  const std::int64_t step = Value(QStringLiteral("SELECT van FROM stap WHERE nummer = ? AND soort = 1"), undo);
  if (step == 0) HistoryIsBroken();
  return step;
}

std::vector<Entry> HistoryTables::EntriesOf(std::int64_t step) {
  QSqlQuery& bounds =
      database_.Again(QStringLiteral("SELECT eerste, coalesce((SELECT eerste FROM stap WHERE nummer = one.nummer + 1), "
                                     "(SELECT max(nummer) + 1 FROM wijziging)) FROM stap AS one WHERE nummer = ?"));
  bounds.bindValue(0, static_cast<qlonglong>(step));
  Database::Run(bounds);
  const bool known = bounds.next();
  const std::int64_t from = known ? bounds.value(0).toLongLong() : 0;
  const std::int64_t to = known ? bounds.value(1).toLongLong() : 0;
  bounds.finish();
  if (from < 1 || to <= from || to - from > kMostEntries) HistoryIsBroken();

  QSqlQuery& query =
      database_.Again(QStringLiteral("SELECT %1 FROM wijziging WHERE nummer >= ? AND nummer < ? ORDER BY nummer")
                          .arg(QLatin1String(kEntryColumns)));
  query.bindValue(0, static_cast<qlonglong>(from));
  query.bindValue(1, static_cast<qlonglong>(to));
  Database::Run(query);
  std::vector<Entry> entries;
  try {
    while (query.next()) entries.push_back(TakeEntry(query));
    if (query.lastError().isValid()) throw DatabaseError(query.lastError());
  } catch (...) {
    // A statement that still reads keeps the log from being worked off.
    query.finish();
    throw;
  }
  query.finish();
  for (const Entry& entry : entries) {
    if (entry.step != step) HistoryIsBroken();
  }
  if (static_cast<std::int64_t>(entries.size()) != to - from) HistoryIsBroken();
  return entries;
}

std::int64_t HistoryTables::NumberOf(const std::string& name) {
  if (const auto known = names_.find(name); known != names_.end()) return known->second;
  QSqlQuery& find = database_.Again(QStringLiteral("SELECT nummer FROM naam WHERE tekst = CAST(? AS TEXT)"));
  find.bindValue(0, AlsBytes(name));
  Database::Run(find);
  std::int64_t number = find.next() ? find.value(0).toLongLong() : 0;
  find.finish();
  if (number == 0) {
    QSqlQuery& insert = database_.Again(QStringLiteral("INSERT INTO naam (tekst) VALUES (CAST(? AS TEXT))"));
    insert.bindValue(0, AlsBytes(name));
    Database::Run(insert);
    number = insert.lastInsertId().toLongLong();
    insert.finish();
    added_.names.push_back({number, name});
  }
  names_.emplace(name, number);
  return number;
}

const HistoryRows& HistoryTables::Add(HistoryState& state, StepKind kind, std::int64_t of, const std::string& who,
                                      const std::vector<Entry>& entries) {
  added_ = {};
  added_.step = {state.step, Now(),           NumberOf(who), static_cast<std::int64_t>(kind), of, state.undo,
                 state.redo, state.entry + 1, state.highest};
  database_
      .RowsAgain(
          QStringLiteral("INSERT INTO stap (nummer, tijd, medewerker, soort, van, terug, opnieuw, eerste, hoogste) "
                         "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"))
      .Run(added_.step);
  Rows& insert = database_.RowsAgain(
      QStringLiteral("INSERT INTO wijziging (nummer, stap, tabel, sleutel, lening, lening_naam, "
                     "kolom, kolom_naam, veld, oud, nieuw) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
  added_.entries.reserve(entries.size());
  for (const Entry& entry : entries) {
    added_.entries.push_back({++state.entry, state.step, static_cast<std::int64_t>(entry.tabel), entry.key,
                              entry.lening, NumberOf(entry.lening_naam), entry.kolom, NumberOf(entry.kolom_naam),
                              std::int64_t{entry.field}, entry.before, entry.after});
    insert.Run(added_.entries.back());
  }
  return added_;
}

}  // namespace brivane::dossier
