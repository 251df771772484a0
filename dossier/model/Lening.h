#pragma once

#include <memory>
#include <string>
#include <vector>

#include "dossier/model/VrijeKolom.h"
#include <brivane/host/model/Lening.h>

namespace brivane::dossier {

/// A loan of a case with its free columns, in the order in which they were added.
class Lening : public host::Lening {
 public:
  Lening(std::shared_ptr<Environment> omgeving, LeningGegevens gegevens);

  /// The first column with that identifier.
  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override;
  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override;
  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override;
  /// Fails with error 9 where there is no such column.
  void VerwijderVrijeKolom(std::int16_t positie) override;

  [[nodiscard]] const std::string& Naam() const { return naam_; }
  [[nodiscard]] dossier::Sleutel Sleutel() const { return sleutel_; }
  [[nodiscard]] const std::vector<std::shared_ptr<dossier::VrijeKolom>>& Kolommen() const { return kolommen_; }
  /// The first column with that identifier, or nothing.
  [[nodiscard]] std::shared_ptr<dossier::VrijeKolom> Zoek(std::int16_t Vrij_Id) const;

  /// Appends a new column.
  std::shared_ptr<dossier::VrijeKolom> VoegToe(KolomGegevens gegevens);
  /// Moves a column of this loan to the end of another one, under a given identifier.
  void Verplaats(std::int16_t Vrij_Id, dossier::Lening& naar, std::int16_t nieuwId);

  /// Gives the loan another name.
  void Hernoem(const std::string& naam);

  [[nodiscard]] LeningGegevens Gegevens() const;
  /// Takes over what is stored, telling nobody. A column that is known keeps its object.
  void Herlaad(LeningGegevens gegevens);

 private:
  std::shared_ptr<Environment> omgeving_;
  dossier::Sleutel sleutel_ = 0;
  std::string naam_;
  std::vector<std::shared_ptr<dossier::VrijeKolom>> kolommen_;
};

}  // namespace brivane::dossier
