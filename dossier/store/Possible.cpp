#include "dossier/store/Possible.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <span>
#include <unordered_set>

#include "dossier/store/Fields.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>

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
  return text && (text->empty() || *text == host::codes::kInVoorstel || *text == host::codes::kUitVoorstel);
}

bool IsEntry(const Waarde& value, std::span<const host::ListEntry> entries) {
  return std::any_of(entries.begin(), entries.end(),
                     [&](const host::ListEntry& entry) { return Between(value, entry.itemData, entry.itemData); });
}

bool IsDay(const Waarde& value) { return Between(value, frame::kFirstDay.Days(), frame::kLastDay.Days()); }

bool IsIdentifier(const Waarde& value) { return Between(value, 1, std::numeric_limits<std::int16_t>::max()); }

bool IsBurdenCorrection(const Waarde& value) { return Between(value, host::codes::kLast, host::codes::kLastNeutraal); }

bool IsFiscalCorrection(const Waarde& value) {
  return Between(value, host::codes::kAftrekpost, host::codes::kFiscaalNeutraal);
}

bool IsPerson(const Waarde& value) { return Between(value, host::codes::kAanvrager, host::codes::kPartner); }

bool IsTerm(const Waarde& value) { return IsEntry(value, host::codes::kTermijnen); }

bool IsKindOfProduct(const Waarde& value) {
  return Between(value, host::codes::kGeenSoort, host::codes::kGeenSoort) ||
         IsEntry(value, host::codes::kProductsoorten);
}

bool IsShare(const Waarde& value) { return Within(value, 0, 100); }

bool IsEntryKind(const Waarde& value) { return Between(value, kFirstKind, kLastKind); }

bool IsMonth(const Waarde& value) { return Between(value, 0, kMostMonths); }

/// What a field may hold, and what it is called where it is refused.
struct Rule {
  std::string_view field;
  const char* name;
  bool (*possible)(const Waarde& value);
};

/// Every field of a column that a file keeps, by the names that BezoekKolom gives them.
constexpr Rule kKolomRules[] = {{"Id", "nummer", IsIdentifier},
                                {"CorrectieLast", "correctie maandlast", IsBurdenCorrection},
                                {"CorrectieFiscaal", "correctie fiscaal", IsFiscalCorrection},
                                {"Omschrijving", "omschrijving", IsText},
                                {"Termijn", "termijn", IsTerm},
                                {"InkomenUitArbeid", "inkomen uit arbeid", IsFlag},
                                {"InDagloon", "in dagloon", IsFlag},
                                {"HeffingBij", "heffing bij", IsPerson},
                                {"Productsoort", "soort product", IsKindOfProduct},
                                {"ProductsoortOmschrijving", "omschrijving van het product", IsText},
                                {"Productnaam", "productnaam", IsText},
                                {"IsProduct", "product", IsFlag},
                                {"Maatschappij", "maatschappij", IsText},
                                {"MaatschappijNaam", "naam van de maatschappij", IsText},
                                {"UwBemiddeling", "uw bemiddeling", IsFlag},
                                {"DatumAanvang", "aanvangsdatum", IsDay},
                                {"Looptijd", "looptijd", IsShort},
                                {"Contractvervaldatum", "contractvervaldatum", IsDay},
                                {"Voorstel1", "voorstel 1", IsMark},
                                {"Voorstel2", "voorstel 2", IsMark},
                                {"Voorstel3", "voorstel 3", IsMark},
                                {"UitsluitenAO", "uitsluiten bij arbeidsongeschiktheid", IsFlag},
                                {"UitsluitenWW", "uitsluiten bij werkloosheid", IsFlag},
                                {"UitsluitenLangleven", "uitsluiten bij lang leven", IsFlag},
                                {"ScenarioOverlijden", "scenario overlijden", IsFlag},
                                {"PercentageOvergang", "overgangspercentage", IsShare},
                                {"EinddatumOvergang", "einddatum overgang", IsDay},
                                {"EindleeftijdOvergang", "eindleeftijd overgang", IsShort},
                                {"BedragNaam", "naam van het bedrag", IsText},
                                {"Invoersoort", "invoersoort", IsEntryKind},
                                {"Bedrag", "bedrag", IsAmount}};

constexpr Rule kPeriodeRules[] = {{"Maand", "maand", IsMonth},
                                  {"Bedrag", "bedrag", IsAmount},
                                  {"Percentage", "percentage", IsPercentage},
                                  {"Korting", "korting", IsPercentage},
                                  {"Eenmalig", "eenmalig", IsFlag}};

/// Nothing for a field without a rule.
const Rule* RuleOf(std::span<const Rule> rules, std::string_view field) {
  const auto rule = std::find_if(rules.begin(), rules.end(), [&](const Rule& one) { return one.field == field; });
  return rule == rules.end() ? nullptr : &*rule;
}

/// A field without a rule may hold nothing: a new field is told here before it is stored.
bool MayHold(const Rule* rule, const Waarde& value) { return rule != nullptr && rule->possible(value); }

std::string InWords(std::span<const Rule> rules, std::string_view field) {
  const Rule* rule = RuleOf(rules, field);
  return rule ? std::string(rule->name) : std::string(field);
}

/// Looks at the fields that it is handed, and keeps what the first one is called that breaks its rule.
class Look {
 public:
  explicit Look(std::span<const Rule> rules) : rules_(rules) {}
  void operator()(std::string_view field, const auto& value) {
    if (found) return;
    if (!MayHold(Next(field), AlsWaarde(value))) found = InWords(rules_, field);
  }
  std::optional<std::string> found;

 private:
  /// The rules stand in the order in which the fields come by; one that does not is looked for.
  const Rule* Next(std::string_view field) {
    if (next_ < rules_.size() && rules_[next_].field == field) return &rules_[next_++];
    const Rule* rule = RuleOf(rules_, field);
    if (rule) next_ = static_cast<std::size_t>(rule - rules_.data()) + 1;
    return rule;
  }

  std::span<const Rule> rules_;
  std::size_t next_ = 0;
};

std::optional<std::string> FirstImpossible(const LeningGegevens& loan, std::size_t number) {
  if (!IsPossibleText(loan.Naam)) return "naam van " + LoanInWords(number);
  std::unordered_set<std::int16_t> ids;
  ids.reserve(loan.VrijeKolommen.size());
  for (const KolomGegevens& column : loan.VrijeKolommen) {
    const auto at = [&](const std::string& what) { return ColumnInWords(column.Id, number) + ", " + what; };
    if (!ids.insert(column.Id).second) return at("nummer komt twee keer voor");
    if (const auto field = FirstImpossible(column)) return at(*field);
  }
  return std::nullopt;
}

}  // namespace

std::string LoanInWords(std::size_t loan) {
  return loan == 0 ? "de huidige situatie" : "lening " + std::to_string(loan) + " van de nieuwe situatie";
}

std::string ColumnInWords(std::int16_t Vrij_Id, std::size_t loan) {
  return "kolom " + std::to_string(Vrij_Id) + " van " + LoanInWords(loan);
}

std::string PersonInWords(std::size_t person) { return person == 0 ? "aanvrager" : "partner"; }

std::string PeriodeInWords(std::size_t periode) { return "periode " + std::to_string(periode); }

std::string KolomFieldInWords(std::string_view field) { return InWords(kKolomRules, field); }

std::string PeriodeFieldInWords(std::string_view field) { return InWords(kPeriodeRules, field); }

std::string TooManyLoans() { return "meer dan " + std::to_string(kMostLoans) + " leningen"; }

bool IsPossible(KolomVeld field, const Waarde& value) { return MayHold(RuleOf(kKolomRules, field.naam), value); }

bool IsPossible(PeriodeVeld field, const Waarde& value) { return MayHold(RuleOf(kPeriodeRules, field.naam), value); }

bool IsPossibleId(std::int16_t Vrij_Id) { return IsIdentifier(std::int64_t{Vrij_Id}); }

bool IsPossibleAgeLimit(std::int16_t leeftijd) { return leeftijd >= kLowestAgeLimit && leeftijd <= kHighestAgeLimit; }

bool IsPossibleText(std::string_view text) { return text.size() <= kMostText; }

std::optional<std::string> FirstImpossible(const KolomGegevens& kolom) {
  Look look(kKolomRules);
  BezoekKolom(kolom, look);
  if (look.found) return look.found;
  for (std::size_t n = 0; n < kolom.Bedrag.Perioden.size(); ++n) {
    Look inPeriod(kPeriodeRules);
    BezoekPeriode(kolom.Bedrag.Perioden[n], inPeriod);
    if (inPeriod.found) return PeriodeInWords(n + 1) + ", " + *inPeriod.found;
  }
  return std::nullopt;
}

std::optional<std::string> FirstImpossible(const PersoonGegevens& persoon) {
  if (!std::all_of(persoon.Naam.begin(), persoon.Naam.end(), IsPossibleText)) return "naam";
  if (!IsDay(std::int64_t{persoon.Geboortedatum.Days()})) return "geboortedatum";
  if (persoon.Belastingtarief && !IsShare(*persoon.Belastingtarief)) return "belastingtarief";
  return std::nullopt;
}

std::optional<std::string> FirstImpossible(const DossierGegevens& dossier) {
  if (!IsPossibleAgeLimit(dossier.Leeftijd)) return "leeftijdsgrens";
  for (std::size_t n = 0; n < dossier.Personen.size(); ++n) {
    if (const auto field = FirstImpossible(dossier.Personen[n])) {
      return PersonInWords(n) + ", " + *field;
    }
  }
  for (const Code& code : dossier.MaatschappijType) {
    if (!IsPossibleText(code.code) || !IsPossibleText(code.tekst)) return "lijst van maatschappijen";
  }
  if (dossier.Leningen.size() > kMostLoans) return TooManyLoans();
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
