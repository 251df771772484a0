#pragma once

#include <map>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "dossier/store/CaseRows.h"
#include "dossier/store/History.h"

namespace brivane::dossier {

/// A row as it was before an edit and is after it; nothing where there is none.
struct EditedRow {
  Tabel tabel;
  Sleutel key;
  std::optional<Row> before;
  std::optional<Row> after;
  /// It is another one after the edit; known once the differences were asked.
  bool differs = false;
};

/// The rows that one edit changes, as they were before it and are after it.
///
/// Whoever changes a row says so before (`Touch`), and of a row that is new afterwards (`Added`). At the end of the
/// edit every such row is read again.
class EditedRows {
 public:
  explicit EditedRows(CaseRows& rows) : rows_(rows) {}

  /// A row is about to be changed or removed, or added under that key. `field`: what is written, where it is one field.
  void Touch(Tabel tabel, Sleutel key, int field);
  /// A column and its periods are about to be removed or were added.
  void TouchColumn(Sleutel kolom);
  void Added(Tabel tabel, Sleutel key);

  /// What differs to the bit after the edit, the reason of all the rest first. Neither numbers nor steps are in it.
  [[nodiscard]] std::vector<Entry> Differences();
  /// All of those rows, in the order in which the edit came by them.
  [[nodiscard]] std::span<const EditedRow> All() const { return touched_; }
  /// How much the bytes of the case grow by the edit; known once its differences were asked.
  [[nodiscard]] std::int64_t Growth() const { return growth_; }
  /// Another edit begins.
  void Clear();

 private:
  /// The rows of the case as they stand after the edit, or stood before where they are gone.
  [[nodiscard]] const Row& Known(Tabel tabel, Sleutel key);
  void Describe(Entry& entry, const Row& row);
  void Compare(const EditedRow& row, std::vector<Entry>& entries);

  CaseRows& rows_;
  std::vector<EditedRow> touched_;
  std::map<std::pair<Tabel, Sleutel>, std::size_t> places_;
  /// Rows that the edit left alone, and entries tell of.
  std::map<std::pair<Tabel, Sleutel>, Row> others_;
  /// What the edit wrote first: the reason of all the rest.
  std::optional<std::pair<std::pair<Tabel, Sleutel>, int>> first_;
  std::int64_t growth_ = 0;
};

}  // namespace brivane::dossier
