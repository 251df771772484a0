#pragma once

#include <string>
#include <utility>

#include "dossier/model/Gegevens.h"
#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Everything a loan file holds, and the highest of its keys and places.
struct StoredDossier {
  DossierGegevens gegevens;
  Sleutel hoogste = 0;
  /// What the case weighs: CaseWeight.h.
  std::int64_t weight = 0;
};

/// A file holds what no program of this version wrote, in a place that is known.
class ContentsError : public DatabaseError {
 public:
  enum class What {
    Value,      ///< a value that cannot be
    Structure,  ///< a part that is missing, or that belongs to nothing
    Size        ///< more than a case may hold
  };
  /// `place` in Dutch, as Possible.h words it.
  ContentsError(What what, std::string place)
      : DatabaseError(SqliteCode::Corrupt, "The file holds impossible values"), what_(what), place_(std::move(place)) {}
  [[nodiscard]] What Which() const noexcept { return what_; }
  [[nodiscard]] const std::string& Place() const noexcept { return place_; }

 private:
  What what_;
  std::string place_;
};

/// Reads a loan file. Throws DatabaseError where the file cannot be read, and ContentsError where it holds what no
/// program of this version wrote: a number out of its range, a part that is missing, more than kMostWeight. It stops
/// reading there, however large the file.
[[nodiscard]] StoredDossier ReadDossier(Database& database);

}  // namespace brivane::dossier
