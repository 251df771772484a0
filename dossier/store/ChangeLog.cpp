#include "dossier/store/ChangeLog.h"

#include <QSqlError>
#include <QStringList>
#include <algorithm>
#include <chrono>
#include <utility>

#include "dossier/store/CaseWeight.h"

namespace brivane::dossier {
namespace {

/// Bytes of a name that an entry remembers; a longer one is cut off.
constexpr std::size_t kMostName = 100;
/// What one edit may have set off: each column of a full file with its periods is far less.
constexpr std::int64_t kMostEntries = 1'000'000;
/// Stands for a number of a loan on the way to another one: no two loans may have the same in between.
constexpr std::int64_t kOutOfTheWay = 1'000'000;

[[noreturn]] void Broken() { throw DatabaseError(SqliteCode::Corrupt, "The history does not fit the file"); }

QString Latin(std::string_view text) { return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())); }

QString Reading(const TableColumn& column) {
  return column.kind == Opslag::Text ? QStringLiteral("CAST(%1 AS BLOB)").arg(Latin(column.name)) : Latin(column.name);
}

QString Writing(const TableColumn& column) {
  return column.kind == Opslag::Text ? QStringLiteral("CAST(? AS TEXT)") : QStringLiteral("?");
}

/// Which row it is.
QString Where(const CaseTable& table) {
  return table.tabel == Tabel::Voorstel ? QStringLiteral("voorstel = ? AND vrij_id = ?")
                                        : QStringLiteral("%1 = ?").arg(Latin(table.columns.front().name));
}

int BindKey(QSqlQuery& query, int place, Tabel tabel, Sleutel key) {
  if (tabel == Tabel::Voorstel) {
    query.bindValue(place++, ProposalOf(key));
    query.bindValue(place++, ItemOf(key));
  } else {
    query.bindValue(place++, static_cast<qlonglong>(key));
  }
  return place;
}

QVariant AsVariant(const Stored& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return QVariant(static_cast<qlonglong>(*whole));
  if (const auto* broken = std::get_if<double>(&value)) return QVariant(*broken);
  if (const auto* text = std::get_if<std::string>(&value)) return QVariant(AlsBytes(*text));
  return {};
}

std::string TextOf(const QVariant& value) { return value.toByteArray().toStdString(); }

Stored Take(const QSqlQuery& query, int place, Opslag kind) {
  const QVariant value = query.value(place);
  switch (kind) {
    case Opslag::Text: return TextOf(value);
    case Opslag::Real: return query.isNull(place) ? Stored() : Stored(value.toDouble());
    case Opslag::Integer: break;
  }
  return std::int64_t{value.toLongLong()};
}

Stored Take(const Rows& rows, int place, Opslag kind) {
  switch (kind) {
    case Opslag::Text: return std::string(rows.Bytes(place));
    case Opslag::Real: return rows.IsNull(place) ? Stored() : Stored(rows.Broken(place));
    case Opslag::Integer: break;
  }
  return rows.Whole(place);
}

/// The value of an entry, whose column takes all kinds.
Stored TakeAny(const QSqlQuery& query, int place, bool none, Tabel tabel, int field) {
  if (none) return {};
  return Take(query, place, field == 0 ? Opslag::Text : TableOf(tabel).columns[static_cast<std::size_t>(field)].kind);
}

std::int64_t Whole(const Row& row, int place) {
  const auto at = static_cast<std::size_t>(place);
  const auto* whole = at < row.size() ? std::get_if<std::int64_t>(&row[at]) : nullptr;
  return whole ? *whole : 0;
}

std::string TextOf(const Row& row, int place) {
  const auto at = static_cast<std::size_t>(place);
  const auto* text = at < row.size() ? std::get_if<std::string>(&row[at]) : nullptr;
  return text ? *text : std::string();
}

/// Not in the middle of a letter.
std::string Shortened(std::string name) {
  if (name.size() <= kMostName) return name;
  std::size_t end = kMostName;
  while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80U) --end;
  name.resize(end);
  return name + "…";
}

std::string NameOfLoan(const Row& row) {
  static const int nummer = PlaceOf(Tabel::Lening, "nummer");
  static const int naam = PlaceOf(Tabel::Lening, "naam");
  std::string name = TextOf(row, naam);
  if (!name.empty()) return Shortened(std::move(name));
  const std::int64_t number = Whole(row, nummer);
  return number == 0 ? "Huidige lening" : "Nieuwe lening " + std::to_string(number);
}

std::int64_t Now() {
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

/// A row that another one belongs to is removed after it, and added before it.
bool IsBefore(const Entry& one, const Entry& other) { return one.tabel < other.tabel; }

}  // namespace

void ChangeLog::Touch(Tabel tabel, Sleutel key, int field) {
  const std::pair place(tabel, key);
  if (!first_) first_ = {place, field};
  if (places_.contains(place)) return;
  std::optional<Row> before = ReadRow(tabel, key);
  places_.emplace(place, touched_.size());
  touched_.push_back({.tabel = tabel, .key = key, .before = std::move(before), .after = std::nullopt});
}

void ChangeLog::TouchColumn(Sleutel kolom) {
  Touch(Tabel::Kolom, kolom);
  for (const Sleutel periode : PeriodsOf(kolom)) Touch(Tabel::Periode, periode);
}

void ChangeLog::Added(Tabel tabel, Sleutel key) {
  const std::pair place(tabel, key);
  if (!first_) first_ = {place, 0};
  if (!places_.emplace(place, touched_.size()).second) return;
  touched_.push_back({.tabel = tabel, .key = key, .before = std::nullopt, .after = std::nullopt});
}

void ChangeLog::Store(Sleutel highest) {
  growth_ = 0;
  for (Touched& row : touched_) {
    row.after = ReadRow(row.tabel, row.key);
    if (row.after) growth_ += WeightOf(row.tabel, *row.after);
    if (row.before) growth_ -= WeightOf(row.tabel, *row.before);
  }
  const std::vector<Entry> entries = Differences();
  if (!entries.empty()) Write(entries, highest);
}

void ChangeLog::Committed() {
  if (pending_) last_ = std::exchange(pending_, std::nullopt);
  touched_.clear();
  places_.clear();
  first_.reset();
  kind_ = StepKind::Edit;
}

void ChangeLog::RolledBack() {
  pending_.reset();
  // What was added to the names is gone.
  names_.clear();
  Committed();
}

void ChangeLog::Close() {
  statements_.clear();
  rows_.clear();
}

std::int64_t ChangeLog::Next(StepKind kind) {
  Load();
  return kind == StepKind::Undo ? last_->undo : last_->redo;
}

Sleutel ChangeLog::HighestKey() {
  Load();
  return last_->highest;
}

void ChangeLog::Load() {
  if (last_) return;
  Last last;
  QSqlQuery& query =
      Prepared(QStringLiteral("SELECT nummer, terug, opnieuw, hoogste, (SELECT max(nummer) FROM wijziging) FROM stap "
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
  if (last.step < 0 || last.entry < 0 || !fits(last.undo) || !fits(last.redo)) Broken();
  last_ = last;
}

QSqlQuery& ChangeLog::Prepared(const QString& sql) {
  const auto known = statements_.find(sql);
  return known != statements_.end() ? known->second : statements_.emplace(sql, database_.Prepare(sql)).first->second;
}

std::optional<Row> ChangeLog::ReadRow(Tabel tabel, Sleutel key) {
  const CaseTable& table = TableOf(tabel);
  static const auto sql = [] {
    std::map<Tabel, QString> texts;
    for (const Tabel one : kTabellen) {
      QStringList names;
      for (const TableColumn& column : TableOf(one).columns) names << Reading(column);
      texts[one] = QStringLiteral("SELECT %1 FROM %2 WHERE %3")
                       .arg(names.join(QStringLiteral(", ")), Latin(TableOf(one).name), Where(TableOf(one)));
    }
    return texts;
  }();
  Rows& rows = rows_.try_emplace(tabel, database_, sql.at(tabel)).first->second;
  if (tabel == Tabel::Voorstel)
    rows.Start({ProposalOf(key), ItemOf(key)});
  else
    rows.Start({key});
  std::optional<Row> row;
  if (rows.Next()) {
    row.emplace();
    row->reserve(table.columns.size());
    int place = 0;
    for (const TableColumn& column : table.columns) row->push_back(Take(rows, place++, column.kind));
  }
  rows.Stop();
  return row;
}

std::vector<Sleutel> ChangeLog::PeriodsOf(Sleutel kolom) {
  QSqlQuery& query = Prepared(QStringLiteral("SELECT sleutel FROM periode WHERE kolom = ? ORDER BY sleutel"));
  query.bindValue(0, static_cast<qlonglong>(kolom));
  Database::Run(query);
  std::vector<Sleutel> keys;
  while (query.next()) keys.push_back(query.value(0).toLongLong());
  query.finish();
  return keys;
}

ChangeLog::Touched* ChangeLog::Find(Tabel tabel, Sleutel key) {
  const auto place = places_.find({tabel, key});
  return place == places_.end() ? nullptr : &touched_[place->second];
}

Row ChangeLog::Known(Tabel tabel, Sleutel key) {
  if (const Touched* row = Find(tabel, key)) {
    if (row->after) return *row->after;
    if (row->before) return *row->before;
  }
  return ReadRow(tabel, key).value_or(Row());
}

void ChangeLog::Describe(Entry& entry, const Row& row) {
  static const int kolomVanPeriode = PlaceOf(Tabel::Periode, "kolom");
  static const int leningVanKolom = PlaceOf(Tabel::Kolom, "lening");
  static const int omschrijving = PlaceOf(Tabel::Kolom, "omschrijving");
  Row kolom;
  switch (entry.tabel) {
    case Tabel::Lening: entry.lening = entry.key; break;
    case Tabel::Kolom:
      entry.kolom = entry.key;
      kolom = row;
      break;
    case Tabel::Periode:
      entry.kolom = Whole(row, kolomVanPeriode);
      kolom = Known(Tabel::Kolom, entry.kolom);
      break;
    case Tabel::Dossier:
    case Tabel::Persoon:
    case Tabel::Voorstel: break;
  }
  if (entry.kolom != 0) {
    entry.kolom_naam = Shortened(TextOf(kolom, omschrijving));
    entry.lening = Whole(kolom, leningVanKolom);
  }
  if (entry.lening != 0) entry.lening_naam = NameOfLoan(Known(Tabel::Lening, entry.lening));
}

std::vector<Entry> ChangeLog::Differences() {
  std::vector<Entry> entries;
  for (const Touched& row : touched_) {
    if (!row.before && !row.after) continue;
    Entry entry;
    entry.tabel = row.tabel;
    entry.key = row.key;
    if (!row.before || !row.after) {
      Describe(entry, row.after ? *row.after : *row.before);
      if (row.before) entry.before = Pack(*row.before);
      if (row.after) entry.after = Pack(*row.after);
      entries.push_back(std::move(entry));
      continue;
    }
    bool described = false;
    for (std::size_t place = 1; place < row.after->size(); ++place) {
      if (Same((*row.before)[place], (*row.after)[place])) continue;
      if (!std::exchange(described, true)) Describe(entry, *row.after);
      entry.field = static_cast<int>(place);
      entry.before = (*row.before)[place];
      entry.after = (*row.after)[place];
      entries.push_back(entry);
    }
  }
  // What the adviser did comes first.
  if (first_) {
    const auto is = [&](const Entry& entry) {
      return std::pair(entry.tabel, entry.key) == first_->first && (entry.field == 0 || entry.field == first_->second);
    };
    const auto reason = std::find_if(entries.begin(), entries.end(), is);
    if (reason != entries.end()) std::rotate(entries.begin(), reason, reason + 1);
  }
  return entries;
}

std::int64_t ChangeLog::NumberOf(const std::string& name) {
  if (const auto known = names_.find(name); known != names_.end()) return known->second;
  QSqlQuery& find = Prepared(QStringLiteral("SELECT nummer FROM naam WHERE tekst = CAST(? AS TEXT)"));
  find.bindValue(0, AlsBytes(name));
  Database::Run(find);
  std::int64_t number = find.next() ? find.value(0).toLongLong() : 0;
  find.finish();
  if (number == 0) {
    QSqlQuery& insert = Prepared(QStringLiteral("INSERT INTO naam (tekst) VALUES (CAST(? AS TEXT))"));
    insert.bindValue(0, AlsBytes(name));
    Database::Run(insert);
    number = insert.lastInsertId().toLongLong();
    insert.finish();
  }
  names_.emplace(name, number);
  return number;
}

void ChangeLog::Write(const std::vector<Entry>& entries, Sleutel highest) {
  Load();
  Last next = *last_;
  ++next.step;
  next.highest = std::max(highest, last_->highest);
  const std::int64_t of = kind_ == StepKind::Edit ? next.step : of_;
  switch (kind_) {
    case StepKind::Edit:
      next.undo = next.step;
      next.redo = 0;
      break;
    case StepKind::Undo: {
      // What stood to be undone before that edit was made.
      QSqlQuery& query = Prepared(QStringLiteral("SELECT terug FROM stap WHERE nummer = ?"));
      query.bindValue(0, static_cast<qlonglong>(of - 1));
      Database::Run(query);
      next.undo = query.next() ? query.value(0).toLongLong() : 0;
      query.finish();
      next.redo = next.step;
      break;
    }
    case StepKind::Redo: {
      // What stood to be redone before it was undone.
      QSqlQuery& query = Prepared(QStringLiteral("SELECT opnieuw FROM stap WHERE nummer = ?"));
      query.bindValue(0, static_cast<qlonglong>(last_->redo - 1));
      Database::Run(query);
      next.redo = query.next() ? query.value(0).toLongLong() : 0;
      query.finish();
      next.undo = of;
      break;
    }
  }
  if (next.undo >= next.step && kind_ != StepKind::Edit) Broken();

  QSqlQuery& step = Prepared(
      QStringLiteral("INSERT INTO stap (nummer, tijd, medewerker, soort, van, terug, opnieuw, eerste, hoogste) "
                     "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"));
  int place = 0;
  for (const std::int64_t number : {next.step, Now(), NumberOf(author_), static_cast<std::int64_t>(kind_), of,
                                    next.undo, next.redo, next.entry + 1, next.highest}) {
    step.bindValue(place++, static_cast<qlonglong>(number));
  }
  Database::Run(step);
  step.finish();

  QSqlQuery& insert = Prepared(
      QStringLiteral("INSERT INTO wijziging (nummer, stap, tabel, sleutel, lening, lening_naam, kolom, kolom_naam, "
                     "veld, oud, nieuw) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
  for (const Entry& entry : entries) {
    place = 0;
    for (const std::int64_t number : {++next.entry, next.step, static_cast<std::int64_t>(entry.tabel), entry.key,
                                      entry.lening, NumberOf(entry.lening_naam), entry.kolom,
                                      NumberOf(entry.kolom_naam), static_cast<std::int64_t>(entry.field)}) {
      insert.bindValue(place++, static_cast<qlonglong>(number));
    }
    insert.bindValue(place++, AsVariant(entry.before));
    insert.bindValue(place++, AsVariant(entry.after));
    Database::Run(insert);
    insert.finish();
  }
  pending_ = next;
}

std::vector<Entry> ChangeLog::EntriesOf(std::int64_t step) {
  QSqlQuery& bounds =
      Prepared(QStringLiteral("SELECT eerste, coalesce((SELECT eerste FROM stap WHERE nummer = one.nummer + 1), "
                              "(SELECT max(nummer) + 1 FROM wijziging)) FROM stap AS one WHERE nummer = ?"));
  bounds.bindValue(0, static_cast<qlonglong>(step));
  Database::Run(bounds);
  if (!bounds.next()) Broken();
  const std::int64_t from = bounds.value(0).toLongLong();
  const std::int64_t to = bounds.value(1).toLongLong();
  bounds.finish();
  if (from < 1 || to <= from || to - from > kMostEntries) Broken();

  QSqlQuery& query =
      Prepared(QStringLiteral("SELECT %1 FROM wijziging WHERE nummer >= ? AND nummer < ? ORDER BY nummer")
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
    if (entry.step != step) Broken();
  }
  if (static_cast<std::int64_t>(entries.size()) != to - from) Broken();
  return entries;
}

Entry TakeEntry(const QSqlQuery& query) {
  Entry entry;
  const auto number = [&](int place) { return std::int64_t{query.value(place).toLongLong()}; };
  entry.number = number(0);
  entry.step = number(1);
  const std::int64_t tabel = number(2);
  if (tabel < 1 || tabel > static_cast<std::int64_t>(kTabellen.size())) Broken();
  entry.tabel = static_cast<Tabel>(tabel);
  entry.key = number(3);
  entry.lening = number(4);
  entry.lening_naam = TextOf(query.value(5));
  entry.kolom = number(6);
  entry.kolom_naam = TextOf(query.value(7));
  const std::int64_t field = number(8);
  if (field < 0 || field >= static_cast<std::int64_t>(TableOf(entry.tabel).columns.size())) Broken();
  entry.field = static_cast<int>(field);
  entry.before = TakeAny(query, 11, number(9) != 0, entry.tabel, entry.field);
  entry.after = TakeAny(query, 12, number(10) != 0, entry.tabel, entry.field);
  // A row was added or removed; a field had another value.
  const bool added = std::holds_alternative<std::monostate>(entry.before);
  const bool removed = std::holds_alternative<std::monostate>(entry.after);
  if (entry.field == 0 ? added == removed : Same(entry.before, entry.after)) Broken();
  return entry;
}

std::int64_t ChangeLog::Step(StepKind kind) {
  const std::int64_t next = Next(kind);
  if (kind == StepKind::Undo || next == 0) return next;
  QSqlQuery& query = Prepared(QStringLiteral("SELECT van FROM stap WHERE nummer = ? AND soort = 1"));
  query.bindValue(0, static_cast<qlonglong>(next));
  Database::Run(query);
  const std::int64_t step = query.next() ? query.value(0).toLongLong() : 0;
  query.finish();
  if (step == 0) Broken();
  return step;
}

Done ChangeLog::Apply(StepKind kind) {
  const std::int64_t step = Step(kind);
  Done done{.kind = kind, .entries = EntriesOf(step)};
  kind_ = kind;
  of_ = step;
  std::vector<Entry> entries = done.entries;
  for (Entry& entry : entries) {
    if (kind == StepKind::Undo) std::swap(entry.before, entry.after);
    Touch(entry.tabel, entry.key, entry.field);
  }
  std::stable_sort(entries.begin(), entries.end(), IsBefore);
  // A row may come back before the one that it belongs to.
  database_.Run(QStringLiteral("PRAGMA defer_foreign_keys = ON"));
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
    if (!entry->Removed()) continue;
    const Touched* row = Find(entry->tabel, entry->key);
    const auto* bytes = std::get_if<std::string>(&entry->before);
    if (!row->before || bytes == nullptr || Pack(*row->before) != *bytes) Broken();
    Remove(entry->tabel, entry->key);
  }
  static const int nummer = PlaceOf(Tabel::Lening, "nummer");
  const auto renumbers = [](const Entry& entry) { return entry.tabel == Tabel::Lening && entry.field == nummer; };
  for (const Entry& entry : entries) {
    if (entry.field == 0) continue;
    if (!renumbers(entry)) {
      Update(entry, entry.before, entry.after);
      continue;
    }
    const auto* number = std::get_if<std::int64_t>(&entry.after);
    if (number == nullptr || *number < 0 || *number >= kOutOfTheWay) Broken();
    Update(entry, entry.before, Stored(*number + kOutOfTheWay));
  }
  for (const Entry& entry : entries) {
    if (renumbers(entry)) Update(entry, Stored(std::get<std::int64_t>(entry.after) + kOutOfTheWay), entry.after);
  }
  for (const Entry& entry : entries) {
    if (!entry.Added()) continue;
    Row row;
    const auto* bytes = std::get_if<std::string>(&entry.after);
    if (bytes == nullptr || !Unpack(*bytes, row)) Broken();
    Insert(entry.tabel, row);
  }
  return done;
}

void ChangeLog::Insert(Tabel tabel, const Row& row) {
  const CaseTable& table = TableOf(tabel);
  // A layout with more columns than the row knows leaves those at nothing.
  if (row.empty() || row.size() > table.columns.size()) Broken();
  QStringList names;
  QStringList values;
  for (std::size_t place = 0; place < row.size(); ++place) {
    names << Latin(table.columns[place].name);
    values << Writing(table.columns[place]);
  }
  QSqlQuery& query =
      Prepared(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                   .arg(Latin(table.name), names.join(QStringLiteral(", ")), values.join(QStringLiteral(", "))));
  int place = 0;
  for (const Stored& value : row) query.bindValue(place++, AsVariant(value));
  Database::Run(query);
  query.finish();
}

void ChangeLog::Remove(Tabel tabel, Sleutel key) {
  const CaseTable& table = TableOf(tabel);
  QSqlQuery& query = Prepared(QStringLiteral("DELETE FROM %1 WHERE %2").arg(Latin(table.name), Where(table)));
  BindKey(query, 0, tabel, key);
  Database::Run(query);
  if (query.numRowsAffected() != 1) Broken();
  query.finish();
}

void ChangeLog::Update(const Entry& entry, const Stored& from, const Stored& to) {
  const CaseTable& table = TableOf(entry.tabel);
  const TableColumn& column = table.columns[static_cast<std::size_t>(entry.field)];
  QSqlQuery& query =
      Prepared(QStringLiteral("UPDATE %1 SET %2 = %3 WHERE %4 AND %5 IS ?")
                   .arg(Latin(table.name), Latin(column.name), Writing(column), Where(table), Reading(column)));
  query.bindValue(0, AsVariant(to));
  const int place = BindKey(query, 1, entry.tabel, entry.key);
  query.bindValue(place, AsVariant(from));
  Database::Run(query);
  if (query.numRowsAffected() != 1) Broken();
  query.finish();
}

}  // namespace brivane::dossier
