#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dossier/store/CaseRows.h"
#include "dossier/store/Database.h"
#include "dossier/store/EditKeeper.h"
#include "dossier/store/EditedRows.h"
#include "dossier/store/Edits.h"
#include "dossier/store/History.h"
#include "dossier/store/HistoryTables.h"

namespace brivane::dossier {

/// Writes the history of a loan file: each stored edit is one step, in the transaction of the edit itself.
///
/// Whoever changes a row says so (EditedRows); what differs to the bit when the edit ends is written. An edit that
/// changed nothing leaves no step. See docs/decisions/history-as-rows-before-and-after.md.
class ChangeLog {
 public:
  explicit ChangeLog(Database& database) : database_(database) {}

  /// A row is about to be changed or removed, or added under that key. `field`: what is written, where it is one field.
  void Touch(Tabel tabel, Sleutel key, int field = 0) { edited_.Touch(tabel, key, field); }
  /// A column and its periods are about to be removed or were added.
  void TouchColumn(Sleutel kolom) { edited_.TouchColumn(kolom); }
  void Added(Tabel tabel, Sleutel key) { edited_.Added(tabel, key); }

  /// Writes the step, as a part of the transaction. `highest`: the highest key that was given out. Answers what was
  /// written, until the transaction ends; nothing where the edit changed nothing.
  [[nodiscard]] std::optional<KeptEdit> Store(Sleutel highest, Maker maker);
  /// The transaction was committed, or rolled back.
  void Committed();
  void RolledBack();
  /// The tables were filled anew: nothing that was known of them counts.
  void Forget() {
    last_.reset();
    RolledBack();
  }

  /// Who works in the file; UTF-8.
  void SetAuthor(std::string name) { author_ = std::move(name); }

  /// The next to be undone or redone: the number of its step, 0 for none.
  [[nodiscard]] std::int64_t Next(StepKind kind);
  /// The edit that is taken back or made again next: the number of its step, 0 for none.
  [[nodiscard]] std::int64_t Step(StepKind kind);
  /// What a step did, in the order of its entries. Throws DatabaseError, with code Corrupt where the history is not
  /// whole.
  [[nodiscard]] std::vector<Entry> EntriesOf(std::int64_t step) { return history_.EntriesOf(step); }
  /// Takes the next step back, or makes it again, as a part of a transaction that Store ends. Every row must be as the
  /// step left it; throws DatabaseError where it is not.
  Done Apply(StepKind kind);
  /// The highest key that was ever given out, 0 where that is not known.
  [[nodiscard]] Sleutel HighestKey();
  /// How much the bytes of the case grow by the edit that is under way; known once it was stored.
  [[nodiscard]] std::int64_t Growth() const { return edited_.Growth(); }

  /// Frees the prepared statements, so that the connection can be closed.
  void Close() { rows_.Close(); }

 private:
  [[nodiscard]] const HistoryState& Last();
  const HistoryRows& Write(const std::vector<Entry>& entries, StepKind kind, Sleutel highest);

  Database& database_;
  CaseRows rows_{database_};
  EditedRows edited_{rows_};
  HistoryTables history_{database_};
  std::optional<HistoryState> last_;
  std::optional<HistoryState> pending_;
  /// Set while a step is being undone or redone.
  StepKind kind_ = StepKind::Edit;
  std::int64_t of_ = 0;
  std::string author_;
};

}  // namespace brivane::dossier
