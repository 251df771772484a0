#include "dossier/store/HistoryView.h"

#include <QSqlError>
#include <QStringList>
#include <unordered_map>

#include "dossier/store/Database.h"
#include "dossier/store/HistoryTables.h"
#include "dossier/store/StoreErrors.h"
#include <brivane/host/Error.h>

namespace brivane::dossier {
namespace {

/// Runs a reading; its failure is told as the host tells others.
template <class Read> auto Try(Read&& read) {
  try {
    return read();
  } catch (const DatabaseError& error) {
    throw host::Error(kStoreError + static_cast<std::int32_t>(error.Code()),
                      error.IsDamage() ? "De geschiedenis van dit dossier is beschadigd en kan niet worden getoond."
                                       : "De geschiedenis van dit dossier kan nu niet worden gelezen.",
                      "Dossier");
  }
}

/// Hands each row of a query to a function.
template <class Function> void ForEachRow(QSqlQuery& query, Function&& function) {
  Database::Run(query);
  while (query.next()) function(query);
  if (query.lastError().isValid()) throw DatabaseError(query.lastError());
}

std::string TextAt(const QSqlQuery& query, int place) { return query.value(place).toByteArray().toStdString(); }

/// What a loan is or was called last, by its key.
std::string NameOfLoan(const Database& database, const Stored& key) {
  const auto* number = std::get_if<std::int64_t>(&key);
  QSqlQuery query = database.Prepare(
      QStringLiteral("SELECT CAST(coalesce((SELECT tekst FROM naam WHERE nummer = (SELECT lening_naam FROM wijziging "
                     "WHERE lening = %1 ORDER BY nummer DESC LIMIT 1)), (SELECT naam FROM lening WHERE sleutel = %1), "
                     "'') AS BLOB)")
          .arg(number ? *number : 0));
  std::string name;
  ForEachRow(query, [&](const QSqlQuery& row) { name = TextAt(row, 0); });
  return name;
}

}  // namespace

std::vector<std::int64_t> HistoryView::Find(const HistoryFilter& filter) {
  return Try([&] {
    // A place in an order means nothing to a reader.
    QStringList conditions = {QStringLiteral("NOT (tabel = %1 AND veld = %2)")
                                  .arg(static_cast<int>(Tabel::Kolom))
                                  .arg(PlaceOf(Tabel::Kolom, "volgorde"))};
    if (filter.kolom) conditions << QStringLiteral("wijziging.kolom = :kolom");
    // The steps stand in the order of their numbers; their times need not, where a clock was set back.
    QStringList steps;
    if (filter.who) {
      steps << QStringLiteral("medewerker = (SELECT nummer FROM naam WHERE tekst = CAST(:wie AS TEXT))");
    }
    if (filter.from) steps << QStringLiteral("tijd >= :van");
    if (filter.until) steps << QStringLiteral("tijd < :tot");
    if (!steps.isEmpty()) {
      conditions
          << QStringLiteral("stap IN (SELECT nummer FROM stap WHERE %1)").arg(steps.join(QStringLiteral(" AND ")));
    }
    QSqlQuery query = database_.Prepare(QStringLiteral("SELECT nummer FROM wijziging WHERE %1 ORDER BY nummer DESC")
                                            .arg(conditions.join(QStringLiteral(" AND "))));
    if (filter.kolom) query.bindValue(QStringLiteral(":kolom"), static_cast<qlonglong>(*filter.kolom));
    if (filter.who) query.bindValue(QStringLiteral(":wie"), AlsBytes(*filter.who));
    if (filter.from) query.bindValue(QStringLiteral(":van"), static_cast<qlonglong>(*filter.from));
    if (filter.until) query.bindValue(QStringLiteral(":tot"), static_cast<qlonglong>(*filter.until));
    std::vector<std::int64_t> numbers;
    ForEachRow(query, [&](const QSqlQuery& row) { numbers.push_back(row.value(0).toLongLong()); });
    return numbers;
  });
}

std::vector<HistoryLine> HistoryView::Lines(const std::vector<std::int64_t>& numbers) {
  static const int leningVanKolom = PlaceOf(Tabel::Kolom, "lening");
  return Try([&] {
    QStringList wanted;
    for (const std::int64_t number : numbers) wanted << QString::number(number);
    QSqlQuery query = database_.Prepare(
        QStringLiteral("SELECT %1, tijd, (SELECT CAST(tekst AS BLOB) FROM naam WHERE nummer = medewerker), van "
                       "FROM wijziging JOIN stap ON stap.nummer = wijziging.stap WHERE wijziging.nummer IN (%2)")
            .arg(QLatin1String(kEntryColumns), wanted.join(u',')));
    std::unordered_map<std::int64_t, HistoryLine> found;
    ForEachRow(query, [&](const QSqlQuery& row) {
      HistoryLine line;
      line.entry = TakeEntry(row);
      if (line.entry.tabel == Tabel::Kolom && line.entry.field == leningVanKolom) {
        line.entry.before = NameOfLoan(database_, line.entry.before);
        line.entry.after = NameOfLoan(database_, line.entry.after);
      }
      line.step = {.number = line.entry.step,
                   .time = row.value(14).toLongLong(),
                   .who = TextAt(row, 15),
                   .kind = line.entry.kind,
                   .of = row.value(16).toLongLong()};
      const std::int64_t number = line.entry.number;
      found.emplace(number, std::move(line));
    });
    std::vector<HistoryLine> lines;
    for (const std::int64_t number : numbers) {
      const auto line = found.find(number);
      if (line == found.end()) throw DatabaseError(SqliteCode::Corrupt, "An entry without a step");
      lines.push_back(line->second);
    }
    return lines;
  });
}

std::vector<std::string> HistoryView::People() {
  return Try([&] {
    QSqlQuery query = database_.Prepare(
        QStringLiteral("SELECT CAST(tekst AS BLOB) FROM naam WHERE nummer IN (SELECT DISTINCT medewerker FROM stap) "
                       "ORDER BY tekst COLLATE NOCASE"));
    std::vector<std::string> people;
    ForEachRow(query, [&](const QSqlQuery& row) { people.push_back(TextAt(row, 0)); });
    return people;
  });
}

std::vector<std::pair<Sleutel, std::string>> HistoryView::Columns() {
  return Try([&] {
    QSqlQuery query = database_.Prepare(
        QStringLiteral("SELECT kolom, (SELECT CAST(tekst AS BLOB) FROM naam WHERE nummer = kolom_naam), max(nummer) "
                       "FROM wijziging WHERE kolom <> 0 GROUP BY kolom"));
    std::vector<std::pair<Sleutel, std::string>> columns;
    ForEachRow(query, [&](const QSqlQuery& row) { columns.emplace_back(row.value(0).toLongLong(), TextAt(row, 1)); });
    return columns;
  });
}

std::int64_t HistoryView::Newest() {
  return Try(
      [&] { return std::int64_t{database_.Value(QStringLiteral("SELECT max(nummer) FROM wijziging")).toLongLong()}; });
}

}  // namespace brivane::dossier
