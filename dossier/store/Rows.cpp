#include "dossier/store/Rows.h"

#include <sqlite3.h>

namespace brivane::dossier {
namespace {

[[noreturn]] void Fail(sqlite3* connection) {
  throw DatabaseError(static_cast<SqliteCode>(sqlite3_errcode(connection) & 0xff), sqlite3_errmsg(connection));
}

}  // namespace

Rows::Rows(const Database& database, const QString& sql) {
  sqlite3* const connection = database.Handle();
  const QByteArray bytes = sql.toUtf8();
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(connection, bytes.constData(), static_cast<int>(bytes.size()), &statement, nullptr) !=
      SQLITE_OK)
    Fail(connection);
  statement_.reset(statement);
}

void Rows::Start(std::initializer_list<std::int64_t> parameters) {
  Stop();
  int place = 0;
  for (const std::int64_t parameter : parameters) {
    if (sqlite3_bind_int64(statement_.get(), ++place, parameter) != SQLITE_OK)
      Fail(sqlite3_db_handle(statement_.get()));
  }
}

int Rows::Run(std::span<const Stored> values) {
  Stop();
  sqlite3_stmt* const statement = statement_.get();
  int place = 0;
  for (const Stored& value : values) {
    int code = SQLITE_OK;
    ++place;
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
      code = sqlite3_bind_int64(statement, place, *whole);
    } else if (const auto* broken = std::get_if<double>(&value)) {
      code = sqlite3_bind_double(statement, place, *broken);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
      code = sqlite3_bind_blob64(statement, place, text->data(), text->size(), SQLITE_TRANSIENT);
    } else {
      code = sqlite3_bind_null(statement, place);
    }
    if (code != SQLITE_OK) Fail(sqlite3_db_handle(statement));
  }
  while (Next()) continue;
  const int changed = sqlite3_changes(sqlite3_db_handle(statement));
  Stop();
  return changed;
}

void Rows::Stop() { sqlite3_reset(statement_.get()); }

bool Rows::Next() {
  switch (sqlite3_step(statement_.get())) {
    case SQLITE_ROW: return true;
    case SQLITE_DONE: return false;
    default: Fail(sqlite3_db_handle(statement_.get()));
  }
}

std::int64_t Rows::Whole(int place) const { return sqlite3_column_int64(statement_.get(), place); }

double Rows::Broken(int place) const { return sqlite3_column_double(statement_.get(), place); }

bool Rows::IsNull(int place) const { return sqlite3_column_type(statement_.get(), place) == SQLITE_NULL; }

std::string_view Rows::Bytes(int place) const {
  const auto* const bytes = static_cast<const char*>(sqlite3_column_blob(statement_.get(), place));
  return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), place))};
}

void Rows::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

}  // namespace brivane::dossier
