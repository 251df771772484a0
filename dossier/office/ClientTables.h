#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "dossier/office/OfficeConnection.h"
#include "dossier/store/CaseTables.h"
#include "dossier/store/Database.h"

namespace brivane::dossier {

/// A client of an office as the tables of a loan file, in memory: what an adviser works in, reads along in, or makes a
/// file of. The tables of a case are whole; of the history the names and the last step, and the rest once it is asked
/// for.
class ClientTables {
 public:
  ClientTables(OfficeConnection& office, int client);

  /// The tables, until they are handed over.
  [[nodiscard]] Database& Tables() { return *tables_; }
  /// For a journal to work in; they outlive this object then.
  [[nodiscard]] std::unique_ptr<Database> Release() { return std::move(released_); }

  /// Reads everything anew, in one round trip. Throws OfficeError, with NoClient where nothing of it is there, and
  /// DatabaseError.
  void Fill();
  /// The same with what Reading() answered, given the client and 0.
  void FillWith(OfficeRows rows);
  [[nodiscard]] static const QString& Reading();
  /// Reads the rest of the history, where it is not there yet. Throws the same.
  void FillHistory();
  /// The last step of the history that stands in the tables, or did when they were filled; 0 for none.
  [[nodiscard]] std::int64_t LastStep() const { return last_; }
  void StepStored(std::int64_t step) { last_ = step; }

 private:
  void Insert(OfficeRows& from);

  OfficeConnection& office_;
  int client_;
  std::unique_ptr<Database> released_;
  Database* tables_;
  std::int64_t last_ = 0;
  bool whole_ = false;
};

}  // namespace brivane::dossier
