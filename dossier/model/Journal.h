#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <string_view>
#include <variant>
#include <vector>

#include "dossier/model/Gegevens.h"

namespace brivane::dossier {

/// A field of a free column that can be written, by its name in host::kVrijeKolomFields. The name lives as long as the
/// program.
struct KolomVeld {
  std::string_view naam;
};
/// The membership of proposal 1, 2 and 3, which a file keeps apart.
inline constexpr KolomVeld kVoorstelVelden[] = {{"Voorstel1"}, {"Voorstel2"}, {"Voorstel3"}};
/// The base amount, which is the amount object's.
inline constexpr KolomVeld kBasisbedrag{"Bedrag"};

/// A field of a period entry, by its name in host::kPeriodeFields.
struct PeriodeVeld {
  std::string_view naam;
};

/// A field's new value: whole numbers, flags (0 and 1) and dates (days) as integer.
using Waarde = std::variant<std::int64_t, double, std::string_view>;

inline Waarde AlsWaarde(std::integral auto getal) { return std::int64_t{getal}; }
inline Waarde AlsWaarde(double getal) { return getal; }
inline Waarde AlsWaarde(host::Date datum) { return std::int64_t{datum.Days()}; }
inline Waarde AlsWaarde(const std::string& tekst) { return std::string_view(tekst); }

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
  virtual void RenameLoan(Sleutel lening, const std::string& naam);
  /// Removes a loan of the new situation with its columns; those after it move up.
  virtual void RemoveLoan(Sleutel lening);
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
