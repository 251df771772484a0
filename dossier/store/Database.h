#pragma once

#include <QByteArray>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

struct sqlite3;

namespace brivane::dossier {

class Rows;

/// SQLite's primary result codes that the store tells apart.
enum class SqliteCode : int {
  Busy = 5,
  NoMemory = 7,
  ReadOnly = 8,
  IoError = 10,
  Corrupt = 11,
  Full = 13,
  CannotOpen = 14,
  NotADatabase = 26
};

/// A statement, or the opening of a file, that SQLite refused.
class DatabaseError : public std::runtime_error {
 public:
  explicit DatabaseError(const QSqlError& error);
  DatabaseError(SqliteCode code, const char* what) : std::runtime_error(what), code_(code) {}
  [[nodiscard]] SqliteCode Code() const noexcept { return code_; }
  /// The file does not hold what it should; nothing else that can go wrong with it is damage.
  [[nodiscard]] bool IsDamage() const noexcept;

 private:
  SqliteCode code_;
};

/// How a file is opened:
enum class Access {
  Immutable,  ///< to look at the file alone, without leaving a trace
  ReadOnly,   ///< to look at it as any program does
  ReadWrite,  ///< to write in it, or make it, as any program does
  Held        ///< to work in a file that the caller holds: SQLite takes no locks of its own
};

/// One connection to an SQLite file, closed with the object. Queries made from it must be gone before.
/// Everything throws DatabaseError on failure.
class Database {
 public:
  Database(const QString& pad, Access access);
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database();

  /// The address by which a connection in memory looks at a file without leaving a trace.
  [[nodiscard]] static QString Untouched(const QString& pad);

  /// Runs a statement without results or parameters.
  void Run(const QString& sql);
  /// The same of a statement that is run often: it is prepared once.
  void RunAgain(const QString& sql);
  /// A statement that is run often, prepared once; finished before it is asked again.
  [[nodiscard]] QSqlQuery& Again(const QString& sql);
  /// The same, to be read as Rows.
  [[nodiscard]] Rows& RowsAgain(const QString& sql);
  /// The first value of the first row.
  [[nodiscard]] QVariant Value(const QString& sql);
  /// A prepared statement whose rows are read once, in order.
  [[nodiscard]] QSqlQuery Prepare(const QString& sql) const;
  static void Run(QSqlQuery& query);
  /// No trigger runs on this connection; the file keeps them.
  void PassOverTriggers();
  /// SQLite's own handle of the connection, for what is read as Rows.
  [[nodiscard]] sqlite3* Handle() const;

 private:
  QString naam_;
  QSqlDatabase database_;
  std::map<QString, QSqlQuery> often_;
  std::map<QString, std::unique_ptr<Rows>> rows_;
};

/// Texts travel as their UTF-8 bytes, so that what is read is what was written to the byte: a parameter for a
/// text is written `CAST(? AS TEXT)`, a column read `CAST(... AS BLOB)`.
[[nodiscard]] QByteArray AlsBytes(std::string_view tekst);

}  // namespace brivane::dossier
