#pragma once

#include <QSqlQuery>
#include <string>
#include <unordered_map>
#include <vector>

#include "dossier/store/Database.h"
#include "dossier/store/History.h"

namespace brivane::dossier {

/// What the history says does not fit the file, or no program wrote it: DatabaseError with code Corrupt.
[[noreturn]] void HistoryIsBroken();

/// An entry as the columns of kEntryColumns hold it. Throws DatabaseError, with code Corrupt where no program wrote it.
[[nodiscard]] Entry TakeEntry(const QSqlQuery& query);
/// The columns of the table of entries, and the names from theirs.
inline constexpr char kEntryColumns[] =
    "wijziging.nummer, stap, tabel, sleutel, lening, (SELECT CAST(tekst AS BLOB) FROM naam WHERE nummer = "
    "lening_naam), "
    "kolom, (SELECT CAST(tekst AS BLOB) FROM naam WHERE nummer = kolom_naam), veld, oud IS NULL, nieuw IS NULL, oud, "
    "nieuw, (SELECT soort FROM stap WHERE stap.nummer = wijziging.stap)";

/// How the history stands after a step: each step names what is undone and what is redone next after it, so that the
/// way back is known at once whatever its length.
struct HistoryState {
  std::int64_t step = 0;  ///< the step itself
  std::int64_t undo = 0;  ///< the edit that is undone next, 0 for none
  std::int64_t redo = 0;  ///< the undo that is taken back next, 0 for none
  std::int64_t entry = 0;
  Sleutel highest = 0;  ///< the highest key that was given out
};

/// The tables of the history: Schema.cpp. Throws DatabaseError, with code Corrupt where they are not whole.
class HistoryTables {
 public:
  explicit HistoryTables(Database& database) : database_(database) {}

  /// After the last step; all 0 in a file without.
  [[nodiscard]] HistoryState Last();
  /// What was undone, or redone, next after a step; 0 for none, and where there is no such step.
  [[nodiscard]] std::int64_t UndoneNextAfter(std::int64_t step);
  [[nodiscard]] std::int64_t RedoneNextAfter(std::int64_t step);
  /// The edit that an undo took back.
  [[nodiscard]] std::int64_t TakenBackBy(std::int64_t undo);
  /// What a step did, in the order of its entries.
  [[nodiscard]] std::vector<Entry> EntriesOf(std::int64_t step);

  /// Adds a step with its entries. `state`: after it, but for its last entry, which is filled in. `of`: the step that
  /// is undone or redone, or its own number. `who` in UTF-8. Answers what was added, until the next time.
  const HistoryRows& Add(HistoryState& state, StepKind kind, std::int64_t of, const std::string& who,
                         const std::vector<Entry>& entries);
  /// What was added was rolled back.
  void RolledBack() { names_.clear(); }

 private:
  /// The first value of a query about one step, 0 where it finds none.
  [[nodiscard]] std::int64_t Value(const QString& sql, std::int64_t step);
  [[nodiscard]] std::int64_t NumberOf(const std::string& name);

  Database& database_;
  std::unordered_map<std::string, std::int64_t> names_;
  HistoryRows added_;
};

}  // namespace brivane::dossier
