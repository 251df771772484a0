#include "bench/dossier/Sqlite.h"

#include <concepts>
#include <stdexcept>
#include <string>

#include "dossier/store/Fields.h"

namespace bench {
namespace {

using namespace brivane::dossier;

void Take(sqlite3_stmt* row, int place, std::integral auto& value) {
  value = static_cast<std::remove_reference_t<decltype(value)>>(sqlite3_column_int64(row, place));
}
void Take(sqlite3_stmt* row, int place, std::floating_point auto& value) {
  value = static_cast<std::remove_reference_t<decltype(value)>>(sqlite3_column_double(row, place));
}
void Take(sqlite3_stmt* row, int place, brivane::host::Date& date) {
  date = brivane::host::Date(sqlite3_column_int(row, place));
}
void Take(sqlite3_stmt* row, int place, std::string& text) {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(row, place));
  text.assign(bytes, static_cast<std::size_t>(sqlite3_column_bytes(row, place)));
}

}  // namespace

Connection Open(const char* pad) {
  sqlite3* database = nullptr;
  if (sqlite3_open_v2(pad, &database, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) throw std::runtime_error("open");
  Connection connection(database);
  constexpr char kAsALoanFile[] =
      "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON";
  if (sqlite3_exec(database, kAsALoanFile, nullptr, nullptr, nullptr) != SQLITE_OK) throw std::runtime_error("pragma");
  return connection;
}

Statement Prepare(const Connection& database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database.get(), sql, -1, &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database.get()));
  }
  return Statement(statement);
}

Rows ReadRows(const char* pad) {
  Rows rows;
  const Connection database = Open(pad);
  std::string sql = "SELECT sleutel";
  const KolomGegevens example;
  BezoekKolom(example, [&](std::string_view name, const auto&) { sql += ", " + brivane::dossier::ColumnName(name); });
  const Statement count = Prepare(database, "SELECT count(*) FROM vrijekolom");
  sqlite3_step(count.get());
  rows.kolommen.reserve(static_cast<std::size_t>(sqlite3_column_int64(count.get(), 0)));
  const Statement columns = Prepare(database, (sql + " FROM vrijekolom").c_str());
  while (sqlite3_step(columns.get()) == SQLITE_ROW) {
    KolomGegevens& kolom = rows.kolommen.emplace_back();
    int place = 0;
    Take(columns.get(), place++, kolom.Sleutel);
    BezoekKolom(kolom, [&](std::string_view, auto& value) { Take(columns.get(), place++, value); });
  }
  const Statement periods =
      Prepare(database, "SELECT sleutel, maand, bedrag, percentage, korting, eenmalig FROM periode");
  while (sqlite3_step(periods.get()) == SQLITE_ROW) {
    PeriodeGegevens& periode = rows.perioden.emplace_back();
    int place = 0;
    Take(periods.get(), place++, periode.Sleutel);
    BezoekPeriode(periode, [&](std::string_view, auto& value) { Take(periods.get(), place++, value); });
  }
  return rows;
}

}  // namespace bench
