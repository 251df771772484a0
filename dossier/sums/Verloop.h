#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "dossier/sums/Kalenderjaren.h"
#include "dossier/sums/Overzicht.h"

/// What columns and situations amount to in each calendar year. Each month of a column counts in the calendar year that
/// it begins in, as long as the column runs when it begins.
namespace brivane::sums {

/// What a column amounts to in a year, whatever its corrections; of a percentage the one that holds when its first
/// month of that year begins, and nothing where it does not run.
struct Kolomjaar {
  double doorlopend = 0;
  double eenmalig = 0;
  std::optional<double> percentage;
  friend bool operator==(const Kolomjaar&, const Kolomjaar&) = default;
};

/// One element for each of the years, with what the scenario leaves of it.
[[nodiscard]] std::vector<Kolomjaar> KolomInJaren(const dossier::KolomGegevens& kolom,
                                                  std::span<const dossier::PersoonGegevens> personen,
                                                  Levensscenario scenario, const Jaren& jaren);

/// What a situation adds up to in a year: burden and taxable income of the whole year.
struct Situatiejaar {
  double last = 0;
  double lastEenmalig = 0;
  double inkomen = 0;
  double inkomenEenmalig = 0;
  friend bool operator==(const Situatiejaar&, const Situatiejaar&) = default;
};

/// Every situation of a case in each of the years: 0 is the current one, n the one with new loan n.
class Verloop {
 public:
  Verloop(const dossier::DossierGegevens& dossier, Levensscenario scenario, const Jaren& jaren);

  [[nodiscard]] std::vector<Situatiejaar> Situatie(std::int16_t situatie) const;

 private:
  struct Lening {
    std::vector<std::int16_t> nummers;
    std::vector<std::vector<Situatiejaar>> kolommen;
  };
  std::size_t jaren_;
  std::vector<Lening> leningen_;
};

}  // namespace brivane::sums
