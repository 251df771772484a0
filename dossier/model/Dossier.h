#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <vector>

#include "dossier/model/Environment.h"
#include "dossier/model/Lening.h"
#include "dossier/model/Persoon.h"
#include <brivane/host/model/Codes.h>
#include <brivane/host/model/Dossier.h>

namespace brivane::dossier {

/// What is filled in for the years of a column, as its amount object has it. It stays what it was when the column was
/// made.
enum class Invoer : std::int16_t { Bedragen = 1, Percentages = 2, BedragenMetGroei = 3 };

/// A case: persons, the loan of the current situation, the loans of the new one, and the proposals.
///
/// An identifier names one budget item in the whole case: a column of the new situation with the identifier of
/// a column of the current one is the deviating version of that item. What has no such version follows the
/// current situation. See docs/host-meaning.md.
///
///     Dossier dossier(gegevens, std::make_shared<Environment>());
///     auto kolom = dossier.NewKolom(kHuidig);
class Dossier : public host::Dossier {
 public:
  /// Number of the loan of the current situation.
  static constexpr std::int16_t kHuidig = host::codes::kHuidigeSituatie;

  Dossier(DossierGegevens gegevens, std::shared_ptr<Environment> omgeving);

  [[nodiscard]] std::shared_ptr<host::Lening> HuidigeLening() override { return huidige_; }
  [[nodiscard]] std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override { return FindLening(Len_Id); }
  [[nodiscard]] std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override;
  /// Both fail with error 9 for a proposal other than 1, 2, 3.
  void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) override;
  void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) override;

  // For the host's own screens. Each of the operations below is kept as a whole or not at all.

  /// How many loans the new situation has.
  [[nodiscard]] std::int16_t AantalLeningen() const { return static_cast<std::int16_t>(leningen_.size()); }
  /// The loan by number as `Lening` answers it, or nothing.
  [[nodiscard]] std::shared_ptr<dossier::Lening> FindLening(std::int16_t Len_Id) const;
  [[nodiscard]] std::shared_ptr<dossier::VrijeKolom> FindKolom(std::int16_t Len_Id, std::int16_t Vrij_Id) const;
  /// Identifiers of the columns that are ended in proposal 1 to 3.
  [[nodiscard]] const std::set<std::int16_t>& Voorstel(std::int16_t voorstel) const;
  /// The new situation has a version of its own of this item, in one of its loans.
  [[nodiscard]] bool HeeftAfwijking(std::int16_t Vrij_Id) const;
  /// The columns of the current situation that the new one takes over as they are.
  [[nodiscard]] std::vector<std::shared_ptr<dossier::VrijeKolom>> VolgtHuidigeSituatie() const;

  /// Adds a recurring cost of the applicant that the tax passes by, with an identifier of its own. An unknown loan or
  /// column fails with error 91.
  std::shared_ptr<dossier::VrijeKolom> NewKolom(std::int16_t Len_Id, Invoer invoer = Invoer::Bedragen);
  /// Adds a copy as an item of its own: another identifier, in no proposal. It comes in the same loan, or in another.
  std::shared_ptr<dossier::VrijeKolom> Dupliceer(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    return Dupliceer(Len_Id, Vrij_Id, Len_Id);
  }
  std::shared_ptr<dossier::VrijeKolom> Dupliceer(std::int16_t Len_Id, std::int16_t Vrij_Id, std::int16_t naarLen_Id);
  /// Removes a column. An item that is gone from the whole case leaves the proposals too.
  void Verwijder(std::int16_t Len_Id, std::int16_t Vrij_Id);
  /// Moves a column to the end of another loan and answers its identifier there: its own, or a new one where
  /// that loan already has a version of the item.
  std::int16_t Verplaats(std::int16_t Len_Id, std::int16_t Vrij_Id, std::int16_t naarLen_Id);
  /// Gives a loan of the new situation its own version of an item of the current one, equal to it at first,
  /// under the same identifier. Answers the version that is there already, if any.
  std::shared_ptr<dossier::VrijeKolom> MakeAfwijking(std::int16_t Vrij_Id, std::int16_t Len_Id);

  [[nodiscard]] const std::vector<Code>& MaatschappijType() const { return maatschappijen_; }
  /// Age limit of the assumptions, whole years.
  [[nodiscard]] std::int16_t Leeftijd() const { return leeftijd_; }
  /// The applicant and, if there is one, the partner.
  [[nodiscard]] std::vector<PersoonGegevens> Personen() const;

  /// Appends a loan without columns to the new situation and answers its number.
  std::int16_t NieuweLening(std::string naam);
  /// Gives a loan another name. An unknown loan fails with error 91.
  void HernoemLening(std::int16_t Len_Id, const std::string& naam);
  /// Removes a loan of the new situation with all its columns; the loans after it move up. Items that are gone from the
  /// whole case leave the proposals too. An unknown loan, and that of the current situation, fail with error 91.
  void VerwijderLening(std::int16_t Len_Id);
  /// Replaces the persons and the age limit. One or two persons; else it fails with error 9.
  void SetClient(std::vector<PersoonGegevens> personen, std::int16_t leeftijd);

  [[nodiscard]] DossierGegevens Gegevens() const;
  /// Takes over what is stored, telling nobody. Loans, columns and periods that are known keep their objects.
  void Herlaad(DossierGegevens gegevens);

 private:
  [[nodiscard]] std::int16_t VrijId() const;
  template <class Function> void VoorElkeKolom(Function&& functie) const;
  /// Takes an item out of the proposals when no loan has it any more.
  void LaatVoorstellenLos(std::int16_t Vrij_Id);
  void AdoptPersonen(std::vector<PersoonGegevens> personen);
  void WriteVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, Membership lidmaatschap);

  std::shared_ptr<Environment> omgeving_;
  std::vector<std::shared_ptr<dossier::Persoon>> personen_;
  std::int16_t leeftijd_;
  std::vector<Code> maatschappijen_;
  std::shared_ptr<dossier::Lening> huidige_;
  std::vector<std::shared_ptr<dossier::Lening>> leningen_;
  std::array<std::set<std::int16_t>, 3> voorstellen_;
};

}  // namespace brivane::dossier
