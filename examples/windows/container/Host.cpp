#include "examples/windows/container/Host.h"

#include <array>
#include <memory>

namespace example {

using automation::Arguments;
using automation::ComPtr;
using automation::Date;
using automation::NewObject;
using automation::NoDate;
using automation::Object;
using automation::Value;

namespace {

/// The object at a position from 1; Nothing past the last.
Value At(const std::vector<ComPtr<IDispatch>>& objects, long position) {
  if (position < 1 || position > static_cast<long>(objects.size())) return Value(ComPtr<IDispatch>());
  return Value(objects[static_cast<std::size_t>(position) - 1]);
}

ComPtr<IDispatch> Plain(const ComPtr<Object>& object) { return {object.Get()}; }

ComPtr<IDispatch> NewPeriode() {
  const auto periode = NewObject();
  periode->Field(L"Maand", Value(0L));
  for (const wchar_t* name : {L"Bedrag", L"Percentage", L"Korting"}) periode->Field(name, Value(0.0));
  periode->Field(L"Eenmalig", Value(false));
  return Plain(periode);
}

ComPtr<IDispatch> NewBedrag(double basisbedrag) {
  const auto bedrag = NewObject();
  bedrag->Field(L"Naam", Value(L"Vrije kolom"));
  bedrag->Field(L"Invoersoort", Value(1L));
  bedrag->Field(L"Basisbedrag", Value(basisbedrag));
  bedrag->Field(L"Bedrag", Value(basisbedrag));
  const auto periodes = std::make_shared<std::vector<ComPtr<IDispatch>>>();
  bedrag->Function(L"Periode", [periodes](const Arguments& a) { return At(*periodes, a.at(0).Number()); });
  bedrag->Function(L"NieuwePeriode", [periodes](const Arguments&) {
    periodes->push_back(NewPeriode());
    return Value(static_cast<long>(periodes->size()));
  });
  bedrag->Function(L"VerwijderPeriode", [periodes](const Arguments& a) {
    periodes->erase(periodes->begin() + a.at(0).Number() - 1);
    return Value();
  });
  return Plain(bedrag);
}

ComPtr<IDispatch> NewKolom() {
  const auto kolom = NewObject();
  kolom->Field(L"Id", Value(1L));
  for (const wchar_t* code : {L"CorrectieLast", L"CorrectieFiscaal", L"HeffingBij", L"Termijn"})
    kolom->Field(code, Value(1L));
  kolom->Field(L"Omschrijving", Value(L"Vereniging"));
  kolom->Field(L"Bedrag", Value(NewBedrag(12.5)));
  kolom->Field(L"DatumAanvang", Date(2031, 4, 1));
  kolom->Field(L"Looptijd", Value(60L));
  kolom->Field(L"Contractvervaldatum", NoDate());
  kolom->Field(L"Productsoort", Value(0L));
  for (const wchar_t* text : {L"Maatschappij", L"MaatschappijNaam", L"ProductsoortOmschrijving", L"Productnaam"})
    kolom->Field(text, Value(L""));
  for (const wchar_t* truth : {L"InkomenUitArbeid", L"InDagloon", L"IsProduct", L"UwBemiddeling", L"UitsluitenAO",
                               L"UitsluitenWW", L"UitsluitenLangleven", L"ScenarioOverlijden"})
    kolom->Field(truth, Value(false));
  kolom->Fields(L"Voorstel", {Value(L"N"), Value(L"N"), Value(L"N")});
  kolom->Field(L"PercentageOvergang", Value(0.0));
  kolom->Field(L"EinddatumOvergang", NoDate());
  kolom->Field(L"EindleeftijdOvergang", Value(0L));
  // The two texts that a host makes of a column for its own lists and headers.
  Object* const self = kolom.Get();
  for (const wchar_t* shown : {L"Weergave", L"Kopregel"})
    kolom->Function(shown, [self](const Arguments&) { return self->Kept(L"Omschrijving"); });
  return Plain(kolom);
}

ComPtr<IDispatch> NewLening() {
  const auto lening = NewObject();
  const auto kolommen = std::make_shared<std::vector<ComPtr<IDispatch>>>(1, NewKolom());
  for (const wchar_t* name : {L"VrijeKolommen", L"VrijeKolom", L"VrijeKolomOp"})
    lening->Function(name, [kolommen](const Arguments& a) { return At(*kolommen, a.at(0).Number()); });
  lening->Function(L"VerwijderVrijeKolom", [kolommen](const Arguments& a) {
    kolommen->erase(kolommen->begin() + a.at(0).Number() - 1);
    return Value();
  });
  return Plain(lening);
}

ComPtr<IDispatch> NewDossier() {
  const auto aanvrager = NewObject();
  aanvrager->Field(L"Naam", automation::Texts({L"J.", L"van", L"Dam"}));
  aanvrager->Field(L"Geboortedatum", Date(1975, 12, 31));

  const auto dossier = NewObject();
  const Value lening(NewLening());
  dossier->Field(L"HuidigeLening", lening);
  dossier->Function(
      L"Lening", [lening](const Arguments& a) { return a.at(0).Number() == 0 ? lening : Value(ComPtr<IDispatch>()); });
  const std::vector<ComPtr<IDispatch>> personen{Plain(aanvrager)};
  dossier->Function(L"Persoon", [personen](const Arguments& a) { return At(personen, a.at(0).Number()); });
  for (const wchar_t* name : {L"VoegToeAanVoorstel", L"VerwijderUitVoorstel"})
    dossier->Function(name, [](const Arguments&) { return Value(); });
  return Plain(dossier);
}

struct Maatschappij {
  const wchar_t* code;
  const wchar_t* naam;
};
constexpr std::array kMaatschappijen{Maatschappij{L"AB", L"Alfa Bank"}, Maatschappij{L"ZZ", L"Anders"}};

/// Calls a method, or puts a property, of an object that is known by name.
void Send(const ComPtr<IDispatch>& object, const wchar_t* name, WORD flags, const Value& argument) {
  LPOLESTR member = const_cast<LPOLESTR>(name);
  DISPID id = DISPID_UNKNOWN;
  if (FAILED(object->GetIDsOfNames(IID_NULL, &member, 1, LOCALE_USER_DEFAULT, &id))) return;
  Value handed = argument;
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS arguments{&handed.Raw(), nullptr, 1, 0};
  if (flags == DISPATCH_PROPERTYPUT) arguments = {&handed.Raw(), &put, 1, 1};
  object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, nullptr, nullptr, nullptr);
}

/// VulCombo(bron, tabel, lijst, code, leeg, keuze): adds a table's entries to a list and selects the one of a code.
Value VulCombo(const Arguments& a) {
  const ComPtr<IDispatch> lijst = a.at(2).Object();
  const std::wstring code = a.at(3).Text();
  for (const Maatschappij& maatschappij : kMaatschappijen)
    Send(lijst, L"AddItem", DISPATCH_METHOD, Value(maatschappij.naam));
  for (std::size_t i = 0; i < kMaatschappijen.size(); ++i)
    if (kMaatschappijen[i].code == code) Send(lijst, L"ListIndex", DISPATCH_PROPERTYPUT, Value(static_cast<long>(i)));
  return {};
}

/// ZoekCode(bron, tabel, tekst): the code of the entry that shows a text.
Value ZoekCode(const Arguments& a) {
  const std::wstring tekst = a.at(2).Text();
  for (const Maatschappij& maatschappij : kMaatschappijen)
    if (maatschappij.naam == tekst) return Value(maatschappij.code);
  return Value(L"");
}

}  // namespace

ComPtr<IDispatch> NewApplication(HWND venster) {
  const auto uitgangspunten = NewObject();
  uitgangspunten->Field(L"Leeftijd", Value(67L));

  const auto application = NewObject();
  application->Field(L"Dossier", Value(NewDossier()));
  application->Field(L"Uitgangspunten", Value(Plain(uitgangspunten)));
  application->Field(L"Codetabellen", Value(Plain(NewObject())));
  // A window handle has 32 significant bits, also in a 64-bit program.
  application->Field(L"Hoofdvenster", Value(static_cast<long>(reinterpret_cast<INT_PTR>(venster))));
  application->Function(L"VulCombo", VulCombo);
  application->Function(L"ZoekCode", ZoekCode);
  application->Function(L"ReportError", [venster](const Arguments& a) {
    const auto trace = a.at(0).Object();
    LPOLESTR member = const_cast<LPOLESTR>(L"ErrorDescription");
    DISPID id = DISPID_UNKNOWN;
    Value text;
    DISPPARAMS none{};
    if (SUCCEEDED(trace->GetIDsOfNames(IID_NULL, &member, 1, LOCALE_USER_DEFAULT, &id)))
      trace->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &text.Raw(), nullptr, nullptr);
    ::MessageBoxW(venster, text.Text().c_str(), L"Kwandero", MB_ICONEXCLAMATION);
    return Value();
  });
  return Plain(application);
}

}  // namespace example
