#pragma once

#include <QSqlQuery>
#include <optional>

#include "dossier/model/Gegevens.h"
#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Adds whole rows to a file: columns with their periods, and for a new file everything. Gives out the keys,
/// which are never used twice while a file is open.
class Writer {
 public:
  /// Keys are given out from `eerste` on.
  Writer(Database& database, Sleutel eerste) : database_(database), volgende_(eerste) {}

  /// Writes a case into a file without rows, in one transaction.
  void WriteDossier(DossierGegevens dossier);
  // The rest are parts of a transaction.

  /// Appends the loan of that number, without columns, and fills in its key.
  void AddLening(int nummer, LeningGegevens& lening);
  void WritePersonen(const std::vector<PersoonGegevens>& personen);
  /// Appends a column with its periods to a loan and fills in their keys.
  void AddKolom(Sleutel lening, KolomGegevens& kolom);
  /// Appends an empty period entry.
  Sleutel AddPeriode(Sleutel kolom);
  /// A key, or a place at the end of any order, that was not given out before.
  [[nodiscard]] Sleutel Volgende() { return volgende_++; }
  /// Nothing up to that key is given out any more.
  void GoOnAfter(Sleutel hoogste) {
    if (hoogste >= volgende_) volgende_ = hoogste + 1;
  }
  /// The highest key that was given out.
  [[nodiscard]] Sleutel Hoogste() const { return volgende_ - 1; }
  /// Frees the prepared statements, so that the connection can be closed.
  void Sluit();

 private:
  /// Writes a period entry and fills in its key.
  void WritePeriode(Sleutel kolom, PeriodeGegevens& periode);

  Database& database_;
  Sleutel volgende_;
  std::optional<QSqlQuery> kolom_;
};

}  // namespace brivane::dossier
