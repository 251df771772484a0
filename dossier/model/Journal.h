#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <variant>
#include <vector>

#include "dossier/model/Gegevens.h"

namespace brivane::dossier {

/// The fields of a free column that can be written, the base amount included.
enum class KolomVeld : std::uint8_t {
  CorrectieLast,
  CorrectieFiscaal,
  HeffingBij,
  Omschrijving,
  Termijn,
  InkomenUitArbeid,
  InDagloon,
  DatumAanvang,
  Looptijd,
  Contractvervaldatum,
  IsProduct,
  Maatschappij,
  MaatschappijNaam,
  Productsoort,
  ProductsoortOmschrijving,
  Productnaam,
  UwBemiddeling,
  Voorstel1,
  Voorstel2,
  Voorstel3,
  UitsluitenAO,
  UitsluitenWW,
  UitsluitenLangleven,
  ScenarioOverlijden,
  PercentageOvergang,
  EinddatumOvergang,
  EindleeftijdOvergang,
  Bedrag
};
inline constexpr int kKolomVelden = static_cast<int>(KolomVeld::Bedrag) + 1;

enum class PeriodeVeld : std::uint8_t { Maand, Bedrag, Percentage, Korting, Eenmalig };
inline constexpr int kPeriodeVelden = static_cast<int>(PeriodeVeld::Eenmalig) + 1;

/// A field's new value: whole numbers, flags (0 and 1) and dates (days) as integer.
using Waarde = std::variant<std::int64_t, double, std::string_view>;

/// Whether a free column is ended in a proposal.
enum class Membership : bool { No, Yes };

/// Told of every change of a case before the memory changes. An implementation that cannot keep a
/// change throws host::Error, and the memory then stays as it was.
///
/// This one keeps nothing: a case that lives in memory alone.
class Journal {
 public:
  virtual ~Journal() = default;

  virtual void SetField(Sleutel kolom, KolomVeld veld, const Waarde& waarde);
  /// Appends an empty entry to a column's amount.
  virtual Sleutel AddPeriod(Sleutel kolom);
  virtual void SetField(Sleutel periode, PeriodeVeld veld, const Waarde& waarde);
  virtual void RemovePeriod(Sleutel periode);

  /// Appends a column with its periods to a loan, and fills in the keys given to them.
  virtual void AddColumn(Sleutel lening, KolomGegevens& kolom);
  virtual void RemoveColumn(Sleutel kolom);
  /// Takes a column out of its loan and appends it to another, under a given identifier.
  virtual void MoveColumn(Sleutel kolom, Sleutel lening, std::int16_t Id);

  /// Appends a loan without columns to the new situation, and fills in the key given to it.
  virtual void AddLoan(LeningGegevens& lening);
  /// Replaces the applicant and, if there is one, the partner.
  virtual void SetPersons(const std::vector<PersoonGegevens>& personen);
  virtual void SetAgeLimit(std::int16_t leeftijd);

  virtual void SetProposal(std::int16_t voorstel, std::int16_t Vrij_Id, Membership lidmaatschap);

  /// Runs a body whose changes belong together: all are kept or none.
  virtual void InOneEdit(const std::function<void()>& body);

 private:
  Sleutel laatste_ = 0;
};

}  // namespace brivane::dossier
