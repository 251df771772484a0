// The records of a case, from JSON and to JSON.

#include "replay/document/Records.h"

#include <array>

#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>

namespace brivane::replay {

namespace {

using dossier::BedragGegevens;
using dossier::DossierGegevens;
using dossier::KolomGegevens;
using dossier::LeningGegevens;
using dossier::PeriodeGegevens;
using dossier::PersoonGegevens;

void Read(const Value& value, bool& field) { field = value.Bool(); }
void Read(const Value& value, std::int16_t& field) { field = value.Whole<std::int16_t>(); }
void Read(const Value& value, std::int32_t& field) { field = value.Whole<std::int32_t>(); }
void Read(const Value& value, float& field) { field = value.Single(); }
void Read(const Value& value, double& field) { field = value.Number(); }
void Read(const Value& value, std::string& field) { field = value.Text(); }
void Read(const Value& value, host::Date& field) { field = value.DateOrNone(); }

void Read(const Value& value, std::array<std::string, 3>& field) {
  if (value.Size() != field.size()) value.Refuse("expected three texts");
  for (std::size_t i = 0; i < field.size(); ++i) field[i] = value.Element(i).Text();
}

/// Replaces the list by what the document gives.
template <class Record> void Read(const Value& value, std::vector<Record>& records);
void Read(const Value& value, PeriodeGegevens& periode);
void Read(const Value& value, BedragGegevens& bedrag);
void Read(const Value& value, KolomGegevens& kolom);
void Read(const Value& value, LeningGegevens& lening);

template <class Scalar> Json Write(const Scalar& field) { return FieldJson(field); }
Json Write(const BedragGegevens& bedrag) { return ToJson(bedrag); }
template <class Record> Json Write(const std::vector<Record>& records);

// Each record names its fields once, in the order of the document; both directions walk that list.

template <class Periode, class Visitor> void Fields(Periode& periode, Visitor&& visit) {
  host::ForEach(host::kPeriodeFields, [&](const auto& field) { visit(field.name, periode.*field.value); });
}

template <class Bedrag, class Visitor> void AmountFields(Bedrag& bedrag, Visitor&& visit) {
  visit("Naam", bedrag.Naam);
  visit("Invoersoort", bedrag.Invoersoort);
  visit("Bedrag", bedrag.Bedrag);
  visit("Perioden", bedrag.Perioden);
}

template <class Kolom, class Visitor> void ColumnFields(Kolom& kolom, Visitor&& visit) {
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) { visit(field.name, kolom.*field.value); });
  visit("Bedrag", kolom.Bedrag);
}

template <class Lening, class Visitor> void LoanFields(Lening& lening, Visitor&& visit) {
  visit("VrijeKolommen", lening.VrijeKolommen);
}

template <class Persoon, class Visitor> void PersonFields(Persoon& persoon, Visitor&& visit) {
  visit("naam", persoon.Naam);
  visit("Geboortedatum", persoon.Geboortedatum);
}

/// Reads an object whose keys are the fields that `walk` names; a field that is left out keeps its value.
template <class Walk> void ReadFields(const Value& value, Walk&& walk) {
  std::vector<std::string_view> keys;
  walk([&](std::string_view key, const auto&) { keys.push_back(key); });
  value.Keys(keys);
  walk([&](std::string_view key, auto& field) {
    if (const std::optional<Value> member = value.Find(key)) Read(*member, field);
  });
}

void Read(const Value& value, PeriodeGegevens& periode) {
  ReadFields(value, [&](auto&& visit) { Fields(periode, visit); });
}
void Read(const Value& value, BedragGegevens& bedrag) {
  ReadFields(value, [&](auto&& visit) { AmountFields(bedrag, visit); });
}
void Read(const Value& value, KolomGegevens& kolom) {
  ReadFields(value, [&](auto&& visit) { ColumnFields(kolom, visit); });
}
void Read(const Value& value, LeningGegevens& lening) {
  ReadFields(value, [&](auto&& visit) { LoanFields(lening, visit); });
}

template <class Record> void Read(const Value& value, std::vector<Record>& records) {
  const std::size_t count = value.Size();
  records.assign(count, Record{});
  for (std::size_t i = 0; i < count; ++i) Read(value.Element(i), records[i]);
}

template <class Walk> Json WriteFields(Walk&& walk) {
  Json json = Json::object();
  walk([&](std::string_view key, const auto& field) { json[std::string(key)] = Write(field); });
  return json;
}

Json Write(const PeriodeGegevens& periode) {
  return WriteFields([&](auto&& visit) { Fields(periode, visit); });
}
Json Write(const KolomGegevens& kolom) { return ToJson(kolom); }
Json Write(const LeningGegevens& lening) {
  return WriteFields([&](auto&& visit) { LoanFields(lening, visit); });
}
Json Write(const PersoonGegevens& persoon) {
  return WriteFields([&](auto&& visit) { PersonFields(persoon, visit); });
}

template <class Record> Json Write(const std::vector<Record>& records) {
  Json json = Json::array();
  for (const Record& record : records) json.push_back(Write(record));
  return json;
}

constexpr std::size_t kMostPersons = 2;

std::vector<PersoonGegevens> ReadPersons(const Value& value) {
  const std::size_t count = value.Size();
  if (count < 1 || count > kMostPersons) value.Refuse("expected one or two persons");
  std::vector<PersoonGegevens> persons{{{"J.", "van", "Dam"}, frame::MakeDate({1975, 12, 31})},
                                       {{"A.", "de", "Wit"}, frame::MakeDate({1978, 2, 3})}};
  persons.resize(count);
  for (std::size_t i = 0; i < count; ++i)
    ReadFields(value.Element(i), [&](auto&& visit) { PersonFields(persons[i], visit); });
  return persons;
}

std::vector<dossier::Code> ReadCodes(const Value& value) {
  std::vector<dossier::Code> codes;
  for (std::size_t i = 0; i < value.Size(); ++i) {
    const Value entry = value.Element(i);
    if (entry.Size() != 2) entry.Refuse("expected a code and a text");
    codes.push_back({entry.Element(0).Text(), entry.Element(1).Text()});
  }
  return codes;
}

}  // namespace

DossierGegevens ReadDossier(const Value& value) {
  value.Keys({"personen", "Uitgangspunten", "MaatschappijType", "HuidigeLening", "Leningen"});
  DossierGegevens dossier;
  dossier.MaatschappijType = {{"AB", "Alfa Bank"}, {std::string(host::codes::kAndereMaatschappij), "Anders"}};
  dossier.Leningen.resize(1);
  dossier.Personen = ReadPersons(value.Member("personen"));
  if (const auto member = value.Find("Uitgangspunten"))
    ReadFields(*member, [&](auto&& visit) { visit("Leeftijd", dossier.Leeftijd); });
  if (const auto member = value.Find("MaatschappijType")) dossier.MaatschappijType = ReadCodes(*member);
  if (const auto member = value.Find("HuidigeLening")) Read(*member, dossier.HuidigeLening);
  if (const auto member = value.Find("Leningen")) Read(*member, dossier.Leningen);
  return dossier;
}

Json ToJson(const BedragGegevens& bedrag) {
  return WriteFields([&](auto&& visit) { AmountFields(bedrag, visit); });
}

Json ToJson(const KolomGegevens& kolom) {
  return WriteFields([&](auto&& visit) { ColumnFields(kolom, visit); });
}

Json ToJson(const DossierGegevens& dossier) {
  Json codes = Json::array();
  for (const dossier::Code& code : dossier.MaatschappijType) codes.push_back(Json::array({code.code, code.tekst}));
  Json json = Json::object();
  json["personen"] = Write(dossier.Personen);
  json["Uitgangspunten"] = WriteFields([&](auto&& visit) { visit("Leeftijd", dossier.Leeftijd); });
  json["MaatschappijType"] = std::move(codes);
  json["HuidigeLening"] = Write(dossier.HuidigeLening);
  json["Leningen"] = Write(dossier.Leningen);
  return json;
}

}  // namespace brivane::replay
