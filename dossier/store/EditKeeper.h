#pragma once

namespace brivane::dossier {

class Database;

/// Keeps each edit elsewhere before the tables that it was made in keep it: the tables are a copy then, in memory.
class EditKeeper {
 public:
  virtual ~EditKeeper() = default;

  /// An edit begins. Throws host::Error where nothing can be kept now.
  virtual void Begin() = 0;
  /// An edit ends: what it changed stands in the tables with its step in the history, and is not committed there yet.
  /// Throws host::Error where it is not kept, or where that is not known, and the edit is undone.
  virtual void Keep(Database& tables) = 0;
};

}  // namespace brivane::dossier
