#pragma once

#include <sqlite3.h>

#include <memory>
#include <vector>

#include "dossier/model/Gegevens.h"

/// The same work on the same file by SQLite's C interface, with nothing around it.
namespace bench {

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct CloseStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Connection = std::unique_ptr<sqlite3, CloseDatabase>;
using Statement = std::unique_ptr<sqlite3_stmt, CloseStatement>;

/// Opens a file as a loan file is opened: for this process alone, with a synchronised write-ahead log.
[[nodiscard]] Connection Open(const char* pad);
[[nodiscard]] Statement Prepare(const Connection& database, const char* sql);

/// Reads every free column and every period of a file into plain values.
struct Rows {
  std::vector<brivane::dossier::KolomGegevens> kolommen;
  std::vector<brivane::dossier::PeriodeGegevens> perioden;
};
[[nodiscard]] Rows ReadRows(const char* pad);

}  // namespace bench
