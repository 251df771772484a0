#include "dossier/store/Database.h"

#include <sqlite3.h>

#include <QSqlDriver>
#include <QSqlError>
#include <QUrl>
#include <atomic>

#include "dossier/store/Rows.h"

namespace brivane::dossier {
namespace {

/// Connections have names, unique in the process.
QString NieuweNaam() {
  static std::atomic<int> teller = 0;
  return QStringLiteral("brivane-dossier-%1").arg(++teller);
}

QString Address(const QString& pad, const char* parameters) {
  return QString::fromLatin1(QUrl::fromLocalFile(pad).toEncoded(QUrl::FullyEncoded)) + u'?' + QLatin1String(parameters);
}

constexpr char kInMemory[] = ":memory:";

}  // namespace

QString Database::Untouched(const QString& pad) { return Address(pad, "immutable=1"); }

DatabaseError::DatabaseError(const QSqlError& error)
    : std::runtime_error(error.databaseText().toStdString()),
      // The low byte of an extended result code is the primary one.
      code_(static_cast<SqliteCode>(error.nativeErrorCode().toInt() & 0xff)) {}

bool DatabaseError::IsDamage() const noexcept {
  // 1: a statement that fits the layout fails only where the file has another.
  return code_ == SqliteCode::Corrupt || code_ == SqliteCode::NotADatabase || code_ == SqliteCode{1};
}

Database::Database(const QString& pad, Access access)
    : naam_(NieuweNaam()), database_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), naam_)) {
  // Whoever has the file open keeps it open: waiting would not help.
  QString opties = QStringLiteral("QSQLITE_BUSY_TIMEOUT=0");
  QString naam = pad;
  if (access == Access::Immutable || access == Access::ReadOnly) opties += QStringLiteral(";QSQLITE_OPEN_READONLY");
  if (access == Access::Immutable) naam = Address(pad, "immutable=1");
  if (access == Access::Held) naam = Address(pad, "vfs=unix-none&mode=rw");
  // What is in memory may look at a file by its address.
  if (naam != pad || pad == QLatin1String(kInMemory)) opties += QStringLiteral(";QSQLITE_OPEN_URI");
  database_.setConnectOptions(opties);
  database_.setDatabaseName(naam);
  if (database_.open()) return;
  const QSqlError error = database_.lastError();
  database_ = {};
  QSqlDatabase::removeDatabase(naam_);
  throw DatabaseError(error);
}

Database::~Database() {
  often_.clear();
  rows_.clear();
  database_.close();
  database_ = {};
  QSqlDatabase::removeDatabase(naam_);
}

void Database::Run(const QString& sql) {
  QSqlQuery query(database_);
  if (!query.exec(sql)) throw DatabaseError(query.lastError());
}

void Database::RunAgain(const QString& sql) { RowsAgain(sql).Run(); }

QSqlQuery& Database::Again(const QString& sql) {
  const auto known = often_.find(sql);
  return known != often_.end() ? known->second : often_.emplace(sql, Prepare(sql)).first->second;
}

Rows& Database::RowsAgain(const QString& sql) {
  std::unique_ptr<Rows>& rows = rows_[sql];
  if (!rows) rows = std::make_unique<Rows>(*this, sql);
  return *rows;
}

QVariant Database::Value(const QString& sql) {
  QSqlQuery query(database_);
  query.setForwardOnly(true);
  if (!query.exec(sql) || !query.next()) throw DatabaseError(query.lastError());
  return query.value(0);
}

QSqlQuery Database::Prepare(const QString& sql) const {
  QSqlQuery query(database_);
  query.setForwardOnly(true);
  if (!query.prepare(sql)) throw DatabaseError(query.lastError());
  return query;
}

void Database::Run(QSqlQuery& query) {
  if (!query.exec()) throw DatabaseError(query.lastError());
}

void Database::PassOverTriggers() {
  if (sqlite3_db_config(Handle(), SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr) != SQLITE_OK)
    throw DatabaseError(SqliteCode::CannotOpen, "The triggers cannot be passed over");
}

sqlite3* Database::Handle() const {
  // Qt's driver stands on the same library.
  const QVariant handle = database_.driver()->handle();
  if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0)
    throw DatabaseError(SqliteCode::CannotOpen, "The connection has no handle");
  return *static_cast<sqlite3* const*>(handle.constData());
}

QByteArray AlsBytes(std::string_view tekst) {
  return tekst.empty() ? QByteArray("") : QByteArray(tekst.data(), static_cast<qsizetype>(tekst.size()));
}

}  // namespace brivane::dossier
