#pragma once

#include <QVariant>
#include <map>
#include <optional>
#include <vector>

#include "dossier/store/CaseTables.h"
#include "dossier/store/Database.h"
#include "dossier/store/Rows.h"

namespace brivane::dossier {

/// What a field holds, as a statement takes it.
[[nodiscard]] QVariant AsVariant(const Stored& value);

/// The rows of a case in its tables, one at a time by their keys. Throws DatabaseError.
class CaseRows {
 public:
  explicit CaseRows(Database& database) : database_(database) {}

  /// Nothing where there is no such row.
  [[nodiscard]] std::optional<Row> Read(Tabel tabel, Sleutel key);
  /// The keys of a column's periods, in order.
  [[nodiscard]] std::vector<Sleutel> PeriodsOf(Sleutel kolom);

  // Each answers false, and has done nothing, where the table is not as the call takes it to be.

  /// The row has its key, and no more fields than its table; a table with more leaves those at nothing.
  [[nodiscard]] bool Insert(Tabel tabel, const Row& row);
  /// The row is there.
  [[nodiscard]] bool Remove(Tabel tabel, Sleutel key);
  /// The row is there, and that field of it holds `from`.
  [[nodiscard]] bool Update(Tabel tabel, Sleutel key, int field, const Stored& from, const Stored& to);

  /// Frees the prepared statements, so that the connection can be closed.
  void Close();

 private:
  Database& database_;
  std::map<Tabel, Rows> rows_;
  std::optional<Rows> periods_;
};

}  // namespace brivane::dossier
