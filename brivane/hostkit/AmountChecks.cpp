// The amount object: its base amount under two names, and its period entries by position.

#include <brivane/host/model/PeriodeFields.h>
#include <brivane/hostkit/Suite.h>
#include <brivane/hostkit/Values.h>

namespace brivane::hostkit {

namespace {

constexpr std::int16_t kMostPeriods = 200;
/// The year-by-year form has at most so many rows.
constexpr std::int16_t kRows = 80;

void CheckBasisbedrag(Bench& bench) {
  const Told told = ToldOf<double>();
  for (const Value<double>& value : Amounts()) {
    if (!bench.Tries(value.name)) continue;
    const std::string written = Show(value.value) + " (" + std::string(value.name) + ")";
    const auto bedrag = bench.Bedrag(1);
    const Question question{"Bedrag.Basisbedrag", written, told.contract, told.hint};
    if (bench.Done(question, [&] { bedrag->SetBasisbedrag(value.value); })) {
      bench.Same(question, value.value, [&] { return bench.Bedrag(1)->Basisbedrag(); });
      bench.Same({"Scenario.Bedrag", written + " into Basisbedrag", "base amount and base value are one number"},
                 bedrag->Basisbedrag(), [&] { return bench.Bedrag(1)->Bedrag(); });
    }
    const auto scenario = bench.Bedrag(2);
    const Question other{"Scenario.Bedrag", written, told.contract, told.hint};
    if (bench.Done(other, [&] { scenario->SetBedrag(value.value); })) {
      bench.Same(other, value.value, [&] { return bench.Bedrag(2)->Bedrag(); });
      bench.Same({"Bedrag.Basisbedrag", written + " into Bedrag", "base amount and base value are one number"},
                 scenario->Bedrag(), [&] { return bench.Bedrag(2)->Basisbedrag(); });
    }
  }
  bench.Same(
      {"Bedrag.Basisbedrag", "amounts of column 1 and 2; looked at column 3", "each column has an amount of its own"},
      0.0, [&] { return bench.Bedrag(3)->Basisbedrag(); });
}

void CheckScenario(Bench& bench) {
  const auto bedrag = bench.Bedrag(1);
  bench.Same({"Scenario.Naam", "asked for it",
              "the name is whole UTF-8, and of an ordinary amount neither "
              "\"Overbruggingskrediet\" nor \"Rente\", which change the form"},
             true, [&] {
               const std::string naam = bedrag->Naam();
               return IsUtf8(naam) && naam != "Overbruggingskrediet" && naam != "Rente";
             });
  bench.Same({"Scenario.Invoersoort", "asked for it", "1 amounts, 2 percentages, 3 both; the case has 1"},
             std::int16_t{1}, [&] { return bedrag->Invoersoort(); });
  bench.Nothing({"Scenario.Periode", "asked for position 1 of a new amount", "nothing past the last entry",
                 "answer a null pointer; do not throw"},
                [&] { return bedrag->Periode(1); });
}

std::shared_ptr<host::Periode> Append(Bench& bench) {
  const auto bedrag = bench.Bedrag(1);
  std::int16_t position = 0;
  bench.Done({"Scenario.NieuwePeriode", "", "an entry can be appended"}, [&] { position = bedrag->NieuwePeriode(); });
  return bench.Object({"Scenario.Periode", "asked for position " + Show(position) + ", which NieuwePeriode answered",
                       "the entry that was appended stands at the position that was answered"},
                      [&] { return bedrag->Periode(position); });
}

template <class Field> void CheckPeriodeField(Bench& bench, const Field& field) {
  using T = typename Field::Value;
  const std::string member = "Periode." + std::string(field.name);
  const auto periode = Append(bench);
  Append(bench);
  const host::PeriodeValues empty;
  bench.Same({member, "a new entry", "an entry is empty when it is appended"}, empty.*field.value,
             [&] { return field.Read(*periode); });
  const Told told = ToldOf<T>();
  for (const Value<T>& value : ValuesOf<T>(field.name, bench.Asked())) {
    if (!bench.Tries(value.name)) continue;
    const Question question{member, Show(value.value) + " (" + std::string(value.name) + ")", told.contract, told.hint};
    if (!bench.Done(question, [&] { (periode.get()->*field.set)(value.value); })) continue;
    bench.Same(question, value.value, [&] { return field.Read(*bench.Bedrag(1)->Periode(1)); });
  }
  host::ForEach(host::kPeriodeFields, [&](const auto& other) {
    const std::string name = "Periode." + std::string(other.name);
    const std::string contract = "writing a field changes no other field and no other entry";
    if (other.name != field.name)
      bench.Same({name, member + " of entry 1; looked at entry 1", contract, "two fields share one place"},
                 empty.*other.value, [&] { return other.Read(*bench.Bedrag(1)->Periode(1)); });
    bench.Same({name, member + " of entry 1; looked at entry 2", contract, "two entries share one place"},
               empty.*other.value, [&] { return other.Read(*bench.Bedrag(1)->Periode(2)); });
  });
}

/// The months of the entries by position.
std::vector<std::int16_t> Maanden(host::BedragObject& bedrag) {
  std::vector<std::int16_t> maanden;
  for (std::int16_t position = 1; position <= kMostPeriods; ++position) {
    const auto periode = bedrag.Periode(position);
    if (!periode) break;
    maanden.push_back(periode->Maand());
  }
  return maanden;
}

void Fill(Bench& bench, host::BedragObject& bedrag, std::int16_t count) {
  for (std::int16_t i = 1; i <= count; ++i) {
    std::int16_t position = 0;
    bench.Same({"Scenario.NieuwePeriode", "appended entry " + Show(i), "it appends and answers the position, from 1"},
               i, [&] { return position = bedrag.NieuwePeriode(); });
    const auto periode =
        bench.Object({"Scenario.Periode", "asked for position " + Show(position), "the entry that was appended"},
                     [&] { return bedrag.Periode(position); });
    periode->SetMaand(static_cast<std::int16_t>(12 * i));
  }
}

void CheckPeriodes(Bench& bench) {
  const auto bedrag = bench.Bedrag(1);
  Fill(bench, *bedrag, kRows);
  std::vector<std::int16_t> wanted;
  for (std::int16_t i = 1; i <= kRows; ++i) wanted.push_back(static_cast<std::int16_t>(12 * i));
  bench.Same({"Scenario.Periode", "walked 80 entries with months 12, 24, 36 to 960",
              "entries stand in the order in which they were appended; positions count from 1, nothing past the last",
              "append at the end, and do not sort"},
             wanted, [&] { return Maanden(*bench.Bedrag(1)); });
}

void CheckVerwijderPeriode(Bench& bench) {
  const auto bedrag = bench.Bedrag(1);
  Fill(bench, *bedrag, 4);
  struct Removal {
    std::int16_t position;
    std::vector<std::int16_t> left;
  };
  for (const Removal& removal : {Removal{2, {12, 36, 48}}, Removal{3, {12, 36}}, Removal{1, {36}}, Removal{1, {}}})
    bench.Same({"Scenario.VerwijderPeriode", "removed position " + Show(removal.position),
                "the entry at that position, counted from 1, goes; the next ones move up",
                "in a list that counts from 0 it is the one before"},
               removal.left, [&] {
                 bedrag->VerwijderPeriode(removal.position);
                 return Maanden(*bedrag);
               });
  Fill(bench, *bedrag, 1);
}

}  // namespace

void AddAmountChecks(std::vector<NamedCheck>& checks) {
  checks.push_back({"Bedrag.Basisbedrag", CheckBasisbedrag});
  checks.push_back({"Scenario.Invoersoort", CheckScenario});
  host::ForEach(host::kPeriodeFields, [&](const auto& field) {
    checks.push_back(
        {"Periode." + std::string(field.name), [&field](Bench& bench) { CheckPeriodeField(bench, field); }});
  });
  checks.push_back({"Scenario.Periode", CheckPeriodes});
  checks.push_back({"Scenario.VerwijderPeriode", CheckVerwijderPeriode});
}

}  // namespace brivane::hostkit
