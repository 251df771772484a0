#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "dossier/model/Gegevens.h"
#include "dossier/sums/Aandeel.h"
#include "dossier/sums/Effect.h"
#include "dossier/sums/Jaarbedragen.h"
#include "dossier/sums/Looptijd.h"
#include "dossier/sums/Samenstelling.h"

/// What the columns of a situation add up to on one day.
namespace brivane::sums {

/// What is looked at: a day, and what happens to the persons.
struct Uitgangspunt {
  host::Date peildatum;
  Levensscenario scenario = Levensscenario::ZoalsNu;
  Tarieven tarieven;
};

/// The rates that were entered for the persons of a case.
[[nodiscard]] Tarieven TarievenVan(std::span<const dossier::PersoonGegevens> personen);

/// Whether a column counts, and if not why. The first that holds, in this order.
enum class Stand : std::uint8_t {
  Telt,
  GeenAanvang,    ///< it has no start date
  GeenTermijn,    ///< its term is none of the five
  NogNiet,        ///< it starts after the day; a one-off amount: in a later year
  Afgelopen,      ///< it ended on the day or before; a one-off amount: in an earlier year
  Percentage,     ///< it is a percentage of something that the case does not hold
  NietInScenario  ///< the scenario leaves it out, or what it passed on has ended
};

/// One column on the day. Amounts are in euros, to the cent.
struct Post {
  std::int16_t Len_Id = 0;
  std::int16_t Vrij_Id = 0;
  std::string naam;   ///< the words that its header text begins with
  double bedrag = 0;  ///< as its amount box has it: in euros, or in percent
  Eenheid eenheid = Eenheid::Euro;
  std::int16_t termijn = 0;
  Looptijd looptijd;         ///< of a one-off amount the start is its day
  std::int16_t persoon = 0;  ///< whose income it counts in, by the scenario
  Stand stand = Stand::Telt;
  double waarde = 0;            ///< what its year-by-year form has for the day; the amount itself where it does not run
  double perMaand = 0;          ///< what counts of it each month; 0 of one that does not count, and of a one-off amount
  Effect effect = kGeenEffect;  ///< on burden per month, on income and tax per year; of a one-off amount once
  [[nodiscard]] bool Eenmalig() const;
};

[[nodiscard]] Post PostVan(const dossier::KolomGegevens& kolom, std::int16_t Len_Id,
                           std::span<const dossier::PersoonGegevens> personen, const Uitgangspunt& uitgangspunt);

/// What columns add up to. `inkomen` is that of the effect by person, applicant first.
struct Totaal {
  Effect effect = kGeenEffect;
  std::array<double, 2> inkomen{};
  friend bool operator==(const Totaal&, const Totaal&) = default;
};
[[nodiscard]] Totaal Verschil(const Totaal& huidig, const Totaal& nieuw);

/// Recurring columns, per month and per year, and apart from them the one-off amounts of the year that the day is in.
struct Totalen {
  Totaal doorlopend;
  Totaal eenmalig;
  friend bool operator==(const Totalen&, const Totalen&) = default;
};
[[nodiscard]] Totalen Verschil(const Totalen& huidig, const Totalen& nieuw);

/// Every situation of a case on one day: 0 is the current one, n the one with new loan n.
///
///     const Overzicht overzicht(dossier->Gegevens(), {.peildatum = vandaag});
///     for (const Overzicht::Regel& regel : overzicht.Regels(1)) Toon(regel.herkomst, *regel.post);
///     Toon(overzicht.TotalenVan(1), Verschil(overzicht.TotalenVan(0), overzicht.TotalenVan(1)));
class Overzicht {
 public:
  struct Regel {
    Herkomst herkomst;
    const Post* post;  ///< as long as the overview lives
  };

  Overzicht(const dossier::DossierGegevens& dossier, const Uitgangspunt& uitgangspunt);

  /// How many new loans there are.
  [[nodiscard]] std::int16_t NieuweLeningen() const;
  /// The columns of a situation in their order, one-off amounts among them.
  [[nodiscard]] std::vector<Regel> Regels(std::int16_t situatie) const;
  [[nodiscard]] Totalen TotalenVan(std::int16_t situatie) const;

 private:
  std::vector<std::vector<Post>> leningen_;
  std::vector<std::vector<std::int16_t>> nummers_;
};

}  // namespace brivane::sums
