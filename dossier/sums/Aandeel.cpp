#include "dossier/sums/Aandeel.h"

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/host/Error.h>
#include <brivane/host/model/Codes.h>
#include <brivane/scenario/Afronding.h>

namespace brivane::sums {
namespace {

using Personen = std::span<const dossier::PersoonGegevens>;

/// The day on which what passed on ends. Both ends are one value, of which the date is the one to go by.
host::Date EindeOvergang(const host::VrijeKolomValues& kolom, const dossier::PersoonGegevens& houder) {
  if (!kolom.EinddatumOvergang.IsNone() && frame::Split(kolom.EinddatumOvergang).year >= frame::kFirstYear)
    return kolom.EinddatumOvergang;
  if (kolom.EindleeftijdOvergang == 0) return host::kNoDate;
  try {
    return frame::AddYears(houder.Geboortedatum, kolom.EindleeftijdOvergang);
  } catch (const host::Error&) {
    return host::kNoDate;
  }
}

Aandeel Overgang(const host::VrijeKolomValues& kolom, std::int16_t overledene, Personen personen) {
  if (kolom.HeffingBij != overledene) return {.persoon = kolom.HeffingBij};
  if (!kolom.ScenarioOverlijden || personen.size() < 2) return {.procent = 0, .persoon = kolom.HeffingBij};
  const bool aanvrager = overledene == host::codes::kAanvrager;
  // The box takes four decimals and the record keeps single precision.
  return {.procent = scenario::VierDecimalen(static_cast<double>(kolom.PercentageOvergang)),
          .persoon = aanvrager ? host::codes::kPartner : host::codes::kAanvrager,
          .einde = EindeOvergang(kolom, personen[aanvrager ? 0 : 1])};
}

Aandeel Tenzij(bool uitgesloten, std::int16_t persoon) {
  return {.procent = uitgesloten ? 0.0 : 100.0, .persoon = persoon};
}

}  // namespace

Aandeel AandeelIn(const host::VrijeKolomValues& kolom, Levensscenario scenario, Personen personen) {
  switch (scenario) {
    case Levensscenario::ZoalsNu: break;
    case Levensscenario::Arbeidsongeschikt: return Tenzij(kolom.UitsluitenAO, kolom.HeffingBij);
    case Levensscenario::Werkloos: return Tenzij(kolom.UitsluitenWW, kolom.HeffingBij);
    case Levensscenario::Langleven: return Tenzij(kolom.UitsluitenLangleven, kolom.HeffingBij);
    case Levensscenario::OverlijdenAanvrager: return Overgang(kolom, host::codes::kAanvrager, personen);
    case Levensscenario::OverlijdenPartner: return Overgang(kolom, host::codes::kPartner, personen);
  }
  return {.persoon = kolom.HeffingBij};
}

}  // namespace brivane::sums
