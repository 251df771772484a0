#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>

#include "dossier/store/CaseTables.h"
#include "dossier/store/Database.h"

struct sqlite3_stmt;

namespace brivane::dossier {

/// The rows that a query finds, one after the other. What a whole case is read with, and the history written with: each
/// value goes straight from SQLite into its place, without a copy in between.
///
///     Rows rows(database, QStringLiteral("SELECT nummer, naam FROM lening"));
///     while (rows.Next()) Use(rows.Whole(0), rows.Bytes(1));
///
/// Throws DatabaseError, as Database does, which outlives it.
class Rows {
 public:
  Rows(const Database& database, const QString& sql);

  /// Starts anew, with these numbers for the statement's parameters in order.
  void Start(std::initializer_list<std::int64_t> parameters);
  /// Runs a statement that finds none, and answers how many rows it changed, where it is one that does. A text among
  /// the values is handed over as its bytes.
  int Run(std::span<const Stored> values = {});
  /// Lets go of what the last row still holds open.
  void Stop();

  /// Goes to the next row; false after the last.
  [[nodiscard]] bool Next();

  /// The value at a place from 0 in the row; 0 where it is no number.
  [[nodiscard]] std::int64_t Whole(int place) const;
  [[nodiscard]] double Broken(int place) const;
  [[nodiscard]] bool IsNull(int place) const;
  /// As long as this row is the one that is read.
  [[nodiscard]] std::string_view Bytes(int place) const;

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

}  // namespace brivane::dossier
