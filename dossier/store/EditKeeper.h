#pragma once

#include <span>

#include "dossier/store/EditedRows.h"
#include "dossier/store/History.h"

namespace brivane::dossier {

class Database;

/// What an edit changed.
struct KeptEdit {
  const HistoryRows& history;
  /// The rows of the case, with some that are as they were.
  std::span<const EditedRow> rows;
};

/// Keeps each edit elsewhere before the tables that it was made in keep it: the tables are a copy then, in memory.
class EditKeeper {
 public:
  virtual ~EditKeeper() = default;

  /// An edit begins, in a modal form or not. Throws host::Error where nothing can be kept now.
  virtual void Begin(bool in_form) = 0;
  /// An edit ends: what it changed stands in the tables with its step in the history, and is not committed there yet.
  /// Throws host::Error where it is not kept, or where that is not known, and the edit is undone.
  virtual void Keep(Database& tables, const KeptEdit& edit) = 0;
};

}  // namespace brivane::dossier
