#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "dossier/store/CaseTables.h"

/// What the history of a loan file tells. A step is one stored edit with all that it set off; its entries are what each
/// row was before and after it. Nothing of it is ever changed or removed: undoing and redoing are steps too.
namespace brivane::dossier {

/// The numbers stand in the file: they never change.
enum class StepKind : std::uint8_t {
  Edit = 0,
  Undo = 1,
  Redo = 2,
  CarryOver = 3  ///< an edit that took versions out of the new situation, so that those loans follow the current one
};

/// What one row, or one field of it, was before and after a step.
struct Entry {
  std::int64_t number = 0;
  std::int64_t step = 0;
  StepKind kind = StepKind::Edit;  ///< of its step
  Tabel tabel = Tabel::Dossier;
  Sleutel key = 0;
  /// The loan and the column that the row belongs to, and what they were called then; 0 for none.
  Sleutel lening = 0;
  std::string lening_naam;
  Sleutel kolom = 0;
  std::string kolom_naam;
  /// The place of the field in its table; 0 for a whole row, whose bytes (Pack) stand in `before` or `after` as text.
  int field = 0;
  Stored before;
  Stored after;

  [[nodiscard]] bool Added() const { return field == 0 && std::holds_alternative<std::monostate>(before); }
  [[nodiscard]] bool Removed() const { return field == 0 && std::holds_alternative<std::monostate>(after); }
};

/// What a step adds to the tables of the history: rows, their fields in the order of the columns.
struct HistoryRows {
  Row step;
  std::vector<Row> entries;
  /// The names that no step before had.
  std::vector<Row> names;
};

struct Step {
  std::int64_t number = 0;
  /// Milliseconds since 1970, UTC.
  std::int64_t time = 0;
  std::string who;
  StepKind kind = StepKind::Edit;
  /// The step that was undone or redone; an edit's own number.
  std::int64_t of = 0;
};

/// What an undo or redo did: the entries of the step that it took back or made again. The first one is what the adviser
/// did, the rest what that set off.
struct Done {
  StepKind kind = StepKind::Undo;
  std::vector<Entry> entries;
};

}  // namespace brivane::dossier
