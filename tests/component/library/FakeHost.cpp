#include "tests/component/library/FakeHost.h"

#include <array>

namespace brivane::component {

FakeHost::FakeHost() {
  const Variant nothing(static_cast<IDispatch*>(nullptr));
  for (const wchar_t* name : {L"CorrectieLast", L"CorrectieFiscaal", L"HeffingBij", L"Termijn", L"Id"})
    kolom->Answers(name, Variant(std::int16_t{1}));
  for (const wchar_t* name : {L"Productsoort", L"EindleeftijdOvergang"}) kolom->Answers(name, Variant(std::int16_t{0}));
  for (const wchar_t* name : {L"InkomenUitArbeid", L"InDagloon", L"IsProduct", L"UwBemiddeling", L"UitsluitenAO",
                              L"UitsluitenWW", L"UitsluitenLangleven", L"ScenarioOverlijden"})
    kolom->Answers(name, Variant(false));
  for (const wchar_t* name : {L"DatumAanvang", L"Contractvervaldatum", L"EinddatumOvergang"})
    kolom->Answers(name, Variant(host::kNoDate));
  for (const wchar_t* name : {L"Maatschappij", L"MaatschappijNaam", L"ProductsoortOmschrijving", L"Productnaam"})
    kolom->Answers(name, Variant(""));
  kolom->Answers(L"Omschrijving", Variant("Krant"));
  kolom->Answers(L"Weergave", Variant("Krant"));
  kolom->Answers(L"Kopregel", Variant("Krant"));
  kolom->Answers(L"Voorstel", Variant("N"));
  kolom->Answers(L"Looptijd", Variant(std::int32_t{0}));
  kolom->Answers(L"PercentageOvergang", Variant(0.0F));
  kolom->Answers(L"Bedrag", Variant(bedrag.Get()));
  bedrag->Answers(L"Basisbedrag", Variant(0.0));
  bedrag->Answers(L"Bedrag", Variant(0.0));
  bedrag->Answers(L"Naam", Variant("Vrije kolom"));
  bedrag->Answers(L"Invoersoort", Variant(std::int16_t{1}));
  bedrag->Answers(L"Periode", nothing);

  const auto record = [kolom = kolom, nothing](const std::vector<Variant>& arguments) {
    return As<std::int16_t>(arguments.at(0)) == 1 ? Variant(kolom.Get()) : nothing;
  };
  lening->members[L"VrijeKolommen"] = record;
  lening->members[L"VrijeKolom"] = record;
  lening->members[L"VrijeKolomOp"] = record;
  dossier->Answers(L"HuidigeLening", Variant(lening.Get()));
  dossier->members[L"Lening"] = [lening = lening, nothing](const std::vector<Variant>& arguments) {
    return As<std::int16_t>(arguments.at(0)) == 0 ? Variant(lening.Get()) : nothing;
  };
  dossier->members[L"Persoon"] = [persoon = persoon, nothing](const std::vector<Variant>& arguments) {
    return As<std::int16_t>(arguments.at(0)) == 1 ? Variant(persoon.Get()) : nothing;
  };
  const std::array names{Variant("J."), Variant("van"), Variant("Dam")};
  persoon->Answers(L"Naam", Variant(std::span<const Variant>(names)));
  persoon->Answers(L"Geboortedatum", Variant(host::Date(27759)));
  application->Answers(L"Dossier", Variant(dossier.Get()));
  application->members[L"ReportError"] = [this](const auto&) {
    ++reports;
    return Variant();
  };
}

}  // namespace brivane::component
