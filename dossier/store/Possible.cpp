#include "dossier/store/Possible.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <set>

#include "vrijekolom/Codes.h"

namespace brivane::dossier {
namespace {

constexpr std::int16_t kLowestAgeLimit = 1;
constexpr std::int16_t kHighestAgeLimit = 120;
// Codes of an amount's entry kind: amount, percentage, both.
constexpr std::int16_t kFirstKind = 1;
constexpr std::int16_t kLastKind = 3;

bool Between(const Waarde& value, std::int64_t lowest, std::int64_t highest) {
  const auto* number = std::get_if<std::int64_t>(&value);
  return number && *number >= lowest && *number <= highest;
}

bool IsFlag(const Waarde& value) { return Between(value, 0, 1); }

/// The controls convert it to a whole number of 16 bits.
bool IsShort(const Waarde& value) {
  return Between(value, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
}

bool Within(const Waarde& value, double lowest, double highest) {
  const auto* number = std::get_if<double>(&value);
  return number && std::isfinite(*number) && *number >= lowest && *number <= highest;
}

bool IsAmount(const Waarde& value) { return Within(value, -kMostAmount, kMostAmount); }

/// The year form stores it in single precision.
bool IsPercentage(const Waarde& value) {
  constexpr double kMost = std::numeric_limits<float>::max();
  return Within(value, -kMost, kMost);
}

bool IsText(const Waarde& value) {
  const auto* text = std::get_if<std::string_view>(&value);
  return text && IsPossibleText(*text);
}

bool IsMark(const Waarde& value) {
  const auto* text = std::get_if<std::string_view>(&value);
  return text && (text->empty() || *text == vrijekolom::kInVoorstel || *text == vrijekolom::kUitVoorstel);
}

template <class Entries> bool IsEntry(const Waarde& value, const Entries& entries) {
  return std::any_of(std::begin(entries), std::end(entries),
                     [&](const frame::ListEntry& entry) { return Between(value, entry.itemData, entry.itemData); });
}

bool IsDay(const Waarde& value) { return Between(value, kFirstDay, kLastDay); }

/// A field of a column and what it is called where it is refused.
struct Field {
  KolomVeld field;
  const char* name;
  Waarde value;
};

std::vector<Field> FieldsOf(const KolomGegevens& k) {
  const auto whole = [](auto number) { return Waarde(std::int64_t{number}); };
  const auto text = [](const std::string& words) { return Waarde(std::string_view(words)); };
  const auto day = [&](host::Date date) { return whole(date.Days()); };
  return {{KolomVeld::CorrectieLast, "correctie maandlast", whole(k.CorrectieLast)},
          {KolomVeld::CorrectieFiscaal, "correctie fiscaal", whole(k.CorrectieFiscaal)},
          {KolomVeld::HeffingBij, "heffing bij", whole(k.HeffingBij)},
          {KolomVeld::Omschrijving, "omschrijving", text(k.Omschrijving)},
          {KolomVeld::Termijn, "termijn", whole(k.Termijn)},
          {KolomVeld::DatumAanvang, "aanvangsdatum", day(k.DatumAanvang)},
          {KolomVeld::Looptijd, "looptijd", whole(k.Looptijd)},
          {KolomVeld::Contractvervaldatum, "contractvervaldatum", day(k.Contractvervaldatum)},
          {KolomVeld::Maatschappij, "maatschappij", text(k.Maatschappij)},
          {KolomVeld::MaatschappijNaam, "naam van de maatschappij", text(k.MaatschappijNaam)},
          {KolomVeld::Productsoort, "soort product", whole(k.Productsoort)},
          {KolomVeld::ProductsoortOmschrijving, "omschrijving van het product", text(k.ProductsoortOmschrijving)},
          {KolomVeld::Productnaam, "productnaam", text(k.Productnaam)},
          {KolomVeld::Voorstel1, "voorstel 1", text(k.Voorstel[0])},
          {KolomVeld::Voorstel2, "voorstel 2", text(k.Voorstel[1])},
          {KolomVeld::Voorstel3, "voorstel 3", text(k.Voorstel[2])},
          {KolomVeld::PercentageOvergang, "overgangspercentage", Waarde(double{k.PercentageOvergang})},
          {KolomVeld::EinddatumOvergang, "einddatum overgang", day(k.EinddatumOvergang)},
          {KolomVeld::EindleeftijdOvergang, "eindleeftijd overgang", whole(k.EindleeftijdOvergang)},
          {KolomVeld::Bedrag, "bedrag", Waarde(k.Bedrag.Bedrag)}};
}

std::optional<std::string> FirstImpossible(const PeriodeGegevens& period) {
  const auto bad = [](PeriodeVeld field, const Waarde& value) { return !IsPossible(field, value); };
  if (bad(PeriodeVeld::Maand, std::int64_t{period.Maand})) return "maand";
  if (bad(PeriodeVeld::Bedrag, period.Bedrag)) return "bedrag";
  if (bad(PeriodeVeld::Percentage, period.Percentage)) return "percentage";
  if (bad(PeriodeVeld::Korting, period.Korting)) return "korting";
  return std::nullopt;
}

std::string NameOf(std::size_t loan) {
  return loan == 0 ? "de huidige situatie" : "lening " + std::to_string(loan) + " van de nieuwe situatie";
}

std::optional<std::string> FirstImpossible(const LeningGegevens& loan, std::size_t number) {
  if (!IsPossibleText(loan.Naam)) return "naam van " + NameOf(number);
  std::set<std::int16_t> ids;
  for (const KolomGegevens& column : loan.VrijeKolommen) {
    const std::string place = "kolom " + std::to_string(column.Id) + " van " + NameOf(number) + ", ";
    if (!ids.insert(column.Id).second) return place + "nummer komt twee keer voor";
    if (const auto field = FirstImpossible(column)) return place + *field;
  }
  return std::nullopt;
}

}  // namespace

bool IsPossible(KolomVeld veld, const Waarde& waarde) {
  switch (veld) {
    case KolomVeld::CorrectieLast: return Between(waarde, vrijekolom::kLast, vrijekolom::kLastNeutraal);
    case KolomVeld::CorrectieFiscaal: return Between(waarde, vrijekolom::kAftrekpost, vrijekolom::kFiscaalNeutraal);
    case KolomVeld::HeffingBij: return Between(waarde, vrijekolom::kAanvrager, vrijekolom::kPartner);
    case KolomVeld::Termijn: return IsEntry(waarde, vrijekolom::kTermijnen);
    case KolomVeld::Productsoort:
      return Between(waarde, vrijekolom::kGeenSoort, vrijekolom::kGeenSoort) ||
             IsEntry(waarde, vrijekolom::kProductsoorten);
    case KolomVeld::DatumAanvang:
    case KolomVeld::Contractvervaldatum:
    case KolomVeld::EinddatumOvergang: return IsDay(waarde);
    case KolomVeld::Looptijd:
    case KolomVeld::EindleeftijdOvergang: return IsShort(waarde);
    case KolomVeld::PercentageOvergang: return Within(waarde, 0, 100);
    case KolomVeld::Bedrag: return IsAmount(waarde);
    case KolomVeld::Voorstel1:
    case KolomVeld::Voorstel2:
    case KolomVeld::Voorstel3: return IsMark(waarde);
    case KolomVeld::Omschrijving:
    case KolomVeld::Maatschappij:
    case KolomVeld::MaatschappijNaam:
    case KolomVeld::ProductsoortOmschrijving:
    case KolomVeld::Productnaam: return IsText(waarde);
    case KolomVeld::InkomenUitArbeid:
    case KolomVeld::InDagloon:
    case KolomVeld::IsProduct:
    case KolomVeld::UwBemiddeling:
    case KolomVeld::UitsluitenAO:
    case KolomVeld::UitsluitenWW:
    case KolomVeld::UitsluitenLangleven:
    case KolomVeld::ScenarioOverlijden: return IsFlag(waarde);
  }
  return false;
}

bool IsPossible(PeriodeVeld veld, const Waarde& waarde) {
  switch (veld) {
    case PeriodeVeld::Maand: return Between(waarde, 0, kMostMonths);
    case PeriodeVeld::Bedrag: return IsAmount(waarde);
    case PeriodeVeld::Percentage:
    case PeriodeVeld::Korting: return IsPercentage(waarde);
    case PeriodeVeld::Eenmalig: return IsFlag(waarde);
  }
  return false;
}

bool IsPossibleId(std::int16_t Vrij_Id) { return Vrij_Id >= 1; }

bool IsPossibleAgeLimit(std::int16_t leeftijd) { return leeftijd >= kLowestAgeLimit && leeftijd <= kHighestAgeLimit; }

bool IsPossibleText(std::string_view tekst) { return tekst.size() <= kMostText; }

std::optional<std::string> FirstImpossible(const KolomGegevens& kolom) {
  if (!IsPossibleId(kolom.Id)) return "nummer";
  for (const Field& field : FieldsOf(kolom)) {
    if (!IsPossible(field.field, field.value)) return field.name;
  }
  if (!IsPossibleText(kolom.Bedrag.Naam)) return "naam van het bedrag";
  if (kolom.Bedrag.Invoersoort < kFirstKind || kolom.Bedrag.Invoersoort > kLastKind) return "invoersoort";
  for (std::size_t n = 0; n < kolom.Bedrag.Perioden.size(); ++n) {
    if (const auto field = FirstImpossible(kolom.Bedrag.Perioden[n])) {
      return "periode " + std::to_string(n + 1) + ", " + *field;
    }
  }
  return std::nullopt;
}

std::optional<std::string> FirstImpossible(const PersoonGegevens& persoon) {
  if (!std::all_of(persoon.Naam.begin(), persoon.Naam.end(), IsPossibleText)) return "naam";
  if (!IsDay(std::int64_t{persoon.Geboortedatum.Days()})) return "geboortedatum";
  return std::nullopt;
}

std::optional<std::string> FirstImpossible(const DossierGegevens& dossier) {
  if (!IsPossibleAgeLimit(dossier.Leeftijd)) return "leeftijdsgrens";
  for (std::size_t n = 0; n < dossier.Personen.size(); ++n) {
    if (const auto field = FirstImpossible(dossier.Personen[n])) {
      return (n == 0 ? "aanvrager, " : "partner, ") + *field;
    }
  }
  for (const Code& code : dossier.MaatschappijType) {
    if (!IsPossibleText(code.code) || !IsPossibleText(code.tekst)) return "lijst van maatschappijen";
  }
  if (dossier.Leningen.size() > kMostLoans) return "meer dan " + std::to_string(kMostLoans) + " leningen";
  if (auto place = FirstImpossible(dossier.HuidigeLening, 0)) return place;
  for (std::size_t n = 0; n < dossier.Leningen.size(); ++n) {
    if (auto place = FirstImpossible(dossier.Leningen[n], n + 1)) return place;
  }
  for (std::size_t n = 0; n < dossier.Voorstellen.size(); ++n) {
    const auto& members = dossier.Voorstellen[n];
    if (!std::all_of(members.begin(), members.end(), IsPossibleId)) return "voorstel " + std::to_string(n + 1);
  }
  return std::nullopt;
}

}  // namespace brivane::dossier
