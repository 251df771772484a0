// The fields of a free column, one check each, and what is left when the case is opened again.

#include <brivane/host/model/VrijeKolomFields.h>
#include <brivane/hostkit/Suite.h>
#include <brivane/hostkit/Values.h>

namespace brivane::hostkit {

namespace {

using host::VrijeKolomItem;
using host::VrijeKolomValues;

/// The column that is written, and one beside it.
constexpr std::int16_t kWritten = 1;
constexpr std::int16_t kBeside = 2;

template <class T> constexpr bool kIsNumbered = false;
template <class Record, class Values, class T, class Given, std::size_t count>
constexpr bool kIsNumbered<host::NumberedField<Record, Values, T, Given, count>> = true;
template <class T> constexpr bool kIsReadOnly = false;
template <class Record, class Values, class T>
constexpr bool kIsReadOnly<host::ReadOnlyField<Record, Values, T>> = true;

template <class Field> std::string MemberOf(const Field& field) { return "VrijeKolomItem." + std::string(field.name); }

VrijeKolomValues ReadAll(const VrijeKolomItem& kolom) {
  VrijeKolomValues values;
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) { values.*field.value = field.Read(kolom); });
  return values;
}

/// No other field of the column, and none of the one beside it, may have changed. The header texts follow the others.
void CheckOthers(Bench& bench, std::string_view written, std::int16_t id, const VrijeKolomValues& before) {
  if (!bench.Tries("other fields")) return;
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    if (field.name == "Weergave" || field.name == "Kopregel") return;
    if (id == kWritten && field.name == written) return;
    bench.Same(
        {MemberOf(field),
         "VrijeKolomItem." + std::string(written) + " of column " + Show(kWritten) + "; looked at column " + Show(id),
         "writing a field changes no other field and no other column", "two fields share one place"},
        before.*field.value, [&] { return field.Read(*bench.Kolom(id)); });
  });
}

template <class Field, class Read, class Write>
void CheckValues(Bench& bench, const Field& field, const Read& read, const Write& write, const std::string& where) {
  using T = std::invoke_result_t<Read, const VrijeKolomItem&>;
  const std::vector<Value<T>> values = [&] {
    if constexpr (kIsNumbered<Field>)
      return Memberships();
    else
      return ValuesOf<T>(field.name, bench.Asked());
  }();
  const Told told = ToldOf<T>();
  for (const Value<T>& value : values) {
    if (!bench.Tries(value.name)) continue;
    const auto kolom = bench.Kolom(kWritten);
    const Question question{MemberOf(field), where + Show(value.value) + " (" + std::string(value.name) + ")",
                            told.contract, told.hint};
    if (!bench.Done(question, [&] { write(*kolom, value.value); })) continue;
    bench.Same(question, value.value, [&] { return read(*kolom); });
    bench.Same(question, value.value, [&] { return read(*bench.Kolom(kWritten)); });
  }
}

template <class Field> void CheckField(Bench& bench, const Field& field) {
  if constexpr (kIsReadOnly<Field>) {
    using T = typename Field::Value;
    if constexpr (std::is_same_v<T, std::string>) {
      const auto kolom = bench.Kolom(kWritten);
      bench.Same({MemberOf(field), "asked for it", "the text is whole UTF-8"}, true,
                 [&] { return IsUtf8(field.Read(*kolom)); });
      bench.Same({MemberOf(field), "asked twice, with nothing written between", "the text follows from the record"},
                 field.Read(*kolom), [&] { return field.Read(*kolom); });
    }
    return;
  } else {
    const VrijeKolomValues before = ReadAll(*bench.Kolom(kWritten));
    const VrijeKolomValues beside = ReadAll(*bench.Kolom(kBeside));
    if constexpr (kIsNumbered<Field>) {
      for (std::int16_t number = 1; number <= static_cast<std::int16_t>(std::tuple_size_v<typename Field::Value>);
           ++number)
        CheckValues(
            bench, field, [&](const VrijeKolomItem& kolom) { return (kolom.*field.get)(number); },
            [&](VrijeKolomItem& kolom, const std::string& value) { (kolom.*field.set)(number, value); },
            "number " + Show(number) + ": ");
      const typename Field::Value each{"J", "N", ""};
      const auto kolom = bench.Kolom(kWritten);
      bench.Same({MemberOf(field), Show(each), "each number has a text of its own"}, each, [&] {
        for (std::size_t i = 0; i < each.size(); ++i)
          (kolom.get()->*field.set)(static_cast<std::int16_t>(i + 1), each[i]);
        return field.Read(*kolom);
      });
    } else {
      CheckValues(
          bench, field, [&](const VrijeKolomItem& kolom) { return field.Read(kolom); },
          [&](VrijeKolomItem& kolom, const typename Field::Value& value) { (kolom.*field.set)(value); }, "");
    }
    CheckOthers(bench, field.name, kWritten, before);
    CheckOthers(bench, field.name, kBeside, beside);
  }
}

/// The columns are as the case has them; the texts of the header are the host's own.
void CheckCase(Bench& bench) {
  const VrijeKolomValues wanted;
  for (const std::int16_t id : kHuidigeLening) {
    const auto kolom = bench.Kolom(id);
    host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
      if (field.name == "Weergave" || field.name == "Kopregel") return;
      const std::string written = "column " + Show(id) + " of a new case";
      const std::string contract = "a column of the case begins as brivane/hostkit/Case.h says";
      if constexpr (std::is_same_v<typename std::remove_cvref_t<decltype(field)>::Value, std::int16_t>) {
        bench.Same({MemberOf(field), written, contract}, field.name == "Id" ? id : wanted.*field.value,
                   [&] { return field.Read(*kolom); });
      } else {
        bench.Same({MemberOf(field), written, contract}, wanted.*field.value, [&] { return field.Read(*kolom); });
      }
    });
  }
}

/// A value of each field that no other field of its kind has, as far as there are so many.
VrijeKolomValues Distinct() {
  VrijeKolomValues values;
  values.CorrectieLast = 2;
  values.CorrectieFiscaal = 3;
  values.Omschrijving = "Krant – één";
  values.Termijn = 12;
  values.InkomenUitArbeid = true;
  values.HeffingBij = 2;
  values.Productsoort = 44;
  values.ProductsoortOmschrijving = "Krant 🗞";
  values.Productnaam = "  De Ochtend ";
  values.IsProduct = true;
  values.MaatschappijNaam = "Zoë & Zn";
  values.UwBemiddeling = true;
  values.DatumAanvang = frame::MakeDate({2024, 2, 29});
  values.Looptijd = 999;
  values.Contractvervaldatum = frame::MakeDate({2031, 12, 31});
  values.Voorstel = {"J", "N", ""};
  values.UitsluitenWW = true;
  values.ScenarioOverlijden = true;
  values.PercentageOvergang = 100.0F / 3;
  values.EinddatumOvergang = frame::MakeDate({2042, 12, 31});
  values.EindleeftijdOvergang = 67;
  return values;
}

void CheckReopened(Bench& bench) {
  const auto& reopen = bench.Host().reopen;
  if (!reopen) return bench.LeaveOut("the host does not say how its case is read anew (Host::reopen)");
  VrijeKolomValues wanted = Distinct();
  wanted.Maatschappij = bench.Asked().company.code;
  const auto kolom = bench.Kolom(kWritten);
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    if constexpr (kIsNumbered<Field>) {
      const auto& values = wanted.*field.value;
      for (std::size_t i = 0; i < values.size(); ++i)
        (kolom.get()->*field.set)(static_cast<std::int16_t>(i + 1), values[i]);
    } else if constexpr (!kIsReadOnly<Field>) {
      (kolom.get()->*field.set)(wanted.*field.value);
    }
  });
  const auto bedrag = bench.Bedrag(kWritten);
  bedrag->SetBasisbedrag(1234567.89);
  const std::int16_t position = bedrag->NieuwePeriode();
  bedrag->Periode(position)->SetMaand(25);
  bedrag->Periode(position)->SetBedrag(0.1);

  const std::string contract =
      "what was written is stored: the controls write each accepted edit at once, and only then";
  const auto application = bench.Object({"the host's reopen", "", "it answers the same case"}, reopen);
  const auto again =
      bench.Object({"Lening.VrijeKolommen", "asked for column 1 of the case that was read anew", contract},
                   [&] { return application->Dossier()->HuidigeLening()->VrijeKolommen(kWritten); });
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    if (field.name == "Weergave" || field.name == "Kopregel") return;
    bench.Same({MemberOf(field), Show(wanted.*field.value) + ", and read the case anew", contract}, wanted.*field.value,
               [&] { return field.Read(*again); });
  });
  const auto stored = again->Bedrag();
  bench.Same({"Bedrag.Basisbedrag", "1234567.89, and read the case anew", contract}, 1234567.89,
             [&] { return stored->Basisbedrag(); });
  const auto periode = bench.Object({"Scenario.Periode", "a new entry, and read the case anew", contract},
                                    [&] { return stored->Periode(1); });
  bench.Same({"Periode.Maand", "25, and read the case anew", contract}, std::int16_t{25},
             [&] { return periode->Maand(); });
  bench.Same({"Periode.Bedrag", "0.1, and read the case anew", contract}, 0.1, [&] { return periode->Bedrag(); });
}

}  // namespace

void AddFieldChecks(std::vector<NamedCheck>& checks) {
  checks.push_back({"the columns of the case", CheckCase});
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    if (field.name == "Id") return;  // the look-ups are held to it
    checks.push_back({MemberOf(field), [&field](Bench& bench) { CheckField(bench, field); }});
  });
  checks.push_back({"stored and read anew", CheckReopened});
}

}  // namespace brivane::hostkit
