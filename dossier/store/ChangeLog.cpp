#include "dossier/store/ChangeLog.h"

#include <algorithm>
#include <utility>

#include "dossier/store/WayBack.h"

namespace brivane::dossier {

namespace {

/// A control removes a column for one reason alone: what was changed in the current situation is carried over to loans
/// that had a version of their own.
bool CarriesOver(const Entry& reason, Maker maker) {
  return maker == Maker::Control && reason.tabel == Tabel::Kolom && reason.Removed();
}

}  // namespace

std::optional<KeptEdit> ChangeLog::Store(Sleutel highest, Maker maker) {
  const std::vector<Entry> entries = edited_.Differences();
  if (entries.empty()) return {};
  const bool carriesOver = kind_ == StepKind::Edit && CarriesOver(entries.front(), maker);
  const HistoryRows& written = Write(entries, carriesOver ? StepKind::CarryOver : kind_, highest);
  return KeptEdit{.history = written, .rows = edited_.All()};
}

void ChangeLog::Committed() {
  if (pending_) last_ = std::exchange(pending_, std::nullopt);
  edited_.Clear();
  kind_ = StepKind::Edit;
}

void ChangeLog::RolledBack() {
  pending_.reset();
  history_.RolledBack();
  Committed();
}

std::int64_t ChangeLog::Next(StepKind kind) { return kind == StepKind::Undo ? Last().undo : Last().redo; }

Sleutel ChangeLog::HighestKey() { return Last().highest; }

const HistoryState& ChangeLog::Last() {
  if (!last_) last_ = history_.Last();
  return *last_;
}

const HistoryRows& ChangeLog::Write(const std::vector<Entry>& entries, StepKind kind, Sleutel highest) {
  HistoryState next = Last();
  ++next.step;
  next.highest = std::max(highest, next.highest);
  const bool edit = kind_ == StepKind::Edit;
  const std::int64_t of = edit ? next.step : of_;
  switch (kind) {
    case StepKind::Edit:
    case StepKind::CarryOver:
      next.undo = next.step;
      next.redo = 0;
      break;
    case StepKind::Undo:
      // What stood to be undone before that edit was made.
      next.undo = history_.UndoneNextAfter(of - 1);
      next.redo = next.step;
      break;
    case StepKind::Redo:
      // What stood to be redone before it was undone.
      next.redo = history_.RedoneNextAfter(Last().redo - 1);
      next.undo = of;
      break;
  }
  if (next.undo >= next.step && !edit) HistoryIsBroken();
  const HistoryRows& written = history_.Add(next, kind, of, author_, entries);
  pending_ = next;
  return written;
}

std::int64_t ChangeLog::Step(StepKind kind) {
  const std::int64_t next = Next(kind);
  return kind == StepKind::Undo || next == 0 ? next : history_.TakenBackBy(next);
}

Done ChangeLog::Apply(StepKind kind) {
  const std::int64_t step = Step(kind);
  Done done{.kind = kind, .entries = history_.EntriesOf(step)};
  kind_ = kind;
  of_ = step;
  std::vector<Entry> entries = done.entries;
  for (Entry& entry : entries) {
    if (kind == StepKind::Undo) std::swap(entry.before, entry.after);
    Touch(entry.tabel, entry.key, entry.field);
  }
  // A row may come back before the one that it belongs to.
  database_.Run(QStringLiteral("PRAGMA defer_foreign_keys = ON"));
  BringOver(rows_, std::move(entries));
  return done;
}

}  // namespace brivane::dossier
