#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <brivane/host/model/Application.h>
#include <brivane/host/model/HostFactories.h>

/// The smallest complete host: every object of the host's model as a plain record in memory.
///
/// Copy it as the starting point of a host of your own, and put your records behind the same functions.
///
///     auto application = std::make_shared<memory_host::Application>();
///     application->dossier->huidig->kolommen.push_back(std::make_shared<memory_host::VrijeKolomItem>());
///     editor.SetApplication(application, 0, 1);
namespace memory_host {

namespace host = brivane::host;

/// The object at a position from 1; nothing past the last.
template <class T> std::shared_ptr<T> At(const std::vector<std::shared_ptr<T>>& list, std::int16_t position) {
  if (position < 1 || position > static_cast<std::int16_t>(list.size())) return nullptr;
  return list[static_cast<std::size_t>(position) - 1];
}

struct Periode final : host::Periode {
  std::int16_t maand = 0;
  double bedrag = 0, percentage = 0, korting = 0;
  bool eenmalig = false;

  std::int16_t Maand() const override { return maand; }
  void SetMaand(std::int16_t value) override { maand = value; }
  double Bedrag() const override { return bedrag; }
  void SetBedrag(double value) override { bedrag = value; }
  double Percentage() const override { return percentage; }
  void SetPercentage(double value) override { percentage = value; }
  double Korting() const override { return korting; }
  void SetKorting(double value) override { korting = value; }
  bool Eenmalig() const override { return eenmalig; }
  void SetEenmalig(bool value) override { eenmalig = value; }
};

struct BedragObject final : host::BedragObject {
  double basisbedrag = 0;
  std::int16_t invoersoort = 1;
  std::vector<std::shared_ptr<memory_host::Periode>> periodes;

  std::string Naam() const override { return "Vrije kolom"; }
  std::int16_t Invoersoort() const override { return invoersoort; }
  double Basisbedrag() const override { return basisbedrag; }
  void SetBasisbedrag(double value) override { basisbedrag = value; }
  double Bedrag() const override { return basisbedrag; }
  void SetBedrag(double value) override { basisbedrag = value; }
  std::shared_ptr<host::Periode> Periode(std::int16_t positie) override { return At(periodes, positie); }
  std::int16_t NieuwePeriode() override {
    periodes.push_back(std::make_shared<memory_host::Periode>());
    return static_cast<std::int16_t>(periodes.size());
  }
  void VerwijderPeriode(std::int16_t positie) override { periodes.erase(periodes.begin() + positie - 1); }
};

struct VrijeKolomItem final : host::VrijeKolomItem {
  std::int16_t id = 1, last = 1, fiscaal = 1, heffing = 1, termijn = 1, productsoort = 0, eindleeftijd = 0;
  std::int32_t looptijd = 0;
  bool uitArbeid = false, inDagloon = false, isProduct = false, bemiddeling = false;
  bool zonderAO = false, zonderWW = false, zonderLangleven = false, bijOverlijden = false;
  float percentage = 0;
  host::Date aanvang, vervaldatum, einddatum;
  std::string omschrijving, maatschappij, maatschappijNaam, soortOmschrijving, productnaam;
  std::array<std::string, 3> voorstel;
  std::shared_ptr<memory_host::BedragObject> bedrag = std::make_shared<memory_host::BedragObject>();

  std::int16_t Id() const override { return id; }
  std::int16_t CorrectieLast() const override { return last; }
  void SetCorrectieLast(std::int16_t value) override { last = value; }
  std::int16_t CorrectieFiscaal() const override { return fiscaal; }
  void SetCorrectieFiscaal(std::int16_t value) override { fiscaal = value; }
  std::int16_t HeffingBij() const override { return heffing; }
  void SetHeffingBij(std::int16_t value) override { heffing = value; }
  std::string Omschrijving() const override { return omschrijving; }
  void SetOmschrijving(const std::string& value) override { omschrijving = value; }
  std::shared_ptr<host::BedragObject> Bedrag() override { return bedrag; }
  std::int16_t Termijn() const override { return termijn; }
  void SetTermijn(std::int16_t value) override { termijn = value; }
  bool InkomenUitArbeid() const override { return uitArbeid; }
  void SetInkomenUitArbeid(bool value) override { uitArbeid = value; }
  bool InDagloon() const override { return inDagloon; }
  void SetInDagloon(bool value) override { inDagloon = value; }
  host::Date DatumAanvang() const override { return aanvang; }
  void SetDatumAanvang(host::Date value) override { aanvang = value; }
  std::int32_t Looptijd() const override { return looptijd; }
  void SetLooptijd(std::int32_t value) override { looptijd = value; }
  host::Date Contractvervaldatum() const override { return vervaldatum; }
  void SetContractvervaldatum(host::Date value) override { vervaldatum = value; }
  bool IsProduct() const override { return isProduct; }
  void SetIsProduct(bool value) override { isProduct = value; }
  std::string Maatschappij() const override { return maatschappij; }
  void SetMaatschappij(const std::string& value) override { maatschappij = value; }
  std::string MaatschappijNaam() const override { return maatschappijNaam; }
  void SetMaatschappijNaam(const std::string& value) override { maatschappijNaam = value; }
  std::int16_t Productsoort() const override { return productsoort; }
  void SetProductsoort(std::int16_t value) override { productsoort = value; }
  std::string ProductsoortOmschrijving() const override { return soortOmschrijving; }
  void SetProductsoortOmschrijving(const std::string& value) override { soortOmschrijving = value; }
  std::string Productnaam() const override { return productnaam; }
  void SetProductnaam(const std::string& value) override { productnaam = value; }
  bool UwBemiddeling() const override { return bemiddeling; }
  void SetUwBemiddeling(bool value) override { bemiddeling = value; }
  std::string Voorstel(std::int16_t nummer) const override { return voorstel.at(static_cast<std::size_t>(nummer - 1)); }
  void SetVoorstel(std::int16_t nummer, const std::string& value) override {
    voorstel.at(static_cast<std::size_t>(nummer - 1)) = value;
  }
  std::string Weergave() const override { return omschrijving; }
  std::string Kopregel() const override { return omschrijving; }
  bool UitsluitenAO() const override { return zonderAO; }
  void SetUitsluitenAO(bool value) override { zonderAO = value; }
  bool UitsluitenWW() const override { return zonderWW; }
  void SetUitsluitenWW(bool value) override { zonderWW = value; }
  bool UitsluitenLangleven() const override { return zonderLangleven; }
  void SetUitsluitenLangleven(bool value) override { zonderLangleven = value; }
  bool ScenarioOverlijden() const override { return bijOverlijden; }
  void SetScenarioOverlijden(bool value) override { bijOverlijden = value; }
  float PercentageOvergang() const override { return percentage; }
  void SetPercentageOvergang(float value) override { percentage = value; }
  host::Date EinddatumOvergang() const override { return einddatum; }
  void SetEinddatumOvergang(host::Date value) override { einddatum = value; }
  std::int16_t EindleeftijdOvergang() const override { return eindleeftijd; }
  void SetEindleeftijdOvergang(std::int16_t value) override { eindleeftijd = value; }
};

struct Lening final : host::Lening {
  std::vector<std::shared_ptr<memory_host::VrijeKolomItem>> kolommen;

  std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override {
    for (const auto& kolom : kolommen)
      if (kolom->id == Vrij_Id) return kolom;
    return nullptr;
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override { return VrijeKolommen(Vrij_Id); }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override { return At(kolommen, positie); }
  void VerwijderVrijeKolom(std::int16_t positie) override { kolommen.erase(kolommen.begin() + positie - 1); }
};

struct Persoon final : host::Persoon {
  std::array<std::string, 3> naam;
  host::Date geboren;

  std::array<std::string, 3> Naam() const override { return naam; }
  host::Date Geboortedatum() const override { return geboren; }
};

/// Keeps no proposals: their registration is accepted and forgotten.
struct Dossier final : host::Dossier {
  std::shared_ptr<memory_host::Lening> huidig = std::make_shared<memory_host::Lening>();
  std::vector<std::shared_ptr<memory_host::Lening>> nieuw;
  std::vector<std::shared_ptr<memory_host::Persoon>> personen;

  std::shared_ptr<host::Lening> HuidigeLening() override { return huidig; }
  std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override {
    return Len_Id == 0 ? huidig : At(nieuw, Len_Id);
  }
  std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override { return At(personen, nummer); }
  void VoegToeAanVoorstel(std::int16_t, std::int16_t) override {}
  void VerwijderUitVoorstel(std::int16_t, std::int16_t, std::int16_t) override {}
};

struct Uitgangspunten final : host::Uitgangspunten {
  std::int16_t Leeftijd() const override { return 67; }
};

/// Remembers the last error that a control reported.
struct Trace : host::ProcedureTrace {
  std::string number, description;

  void EnterProcedure(std::string_view) override {}
  void LeaveProcedure() override {}
  void ErrorInProcedure(std::string_view) override {}
  void SetApplicationTitle(const std::string&) override {}
  void SetObjectName(const std::string&) override {}
  void SetCaption(const std::string&) override {}
  void SetObjectDescription(const std::string&) override {}
  void SetMessage(const std::string&) override {}
  void SetErrorNumber(const std::string& tekst) override { number = tekst; }
  void SetErrorDescription(const std::string& tekst) override { description = tekst; }
  void SetErrorSource(const std::string&) override {}
};

struct DossierControle final : host::DossierControle {
  void Controleer(const std::shared_ptr<host::Application>&, std::int16_t) override {}
};

struct Application final : host::Application {
  std::shared_ptr<memory_host::Dossier> dossier = std::make_shared<memory_host::Dossier>();
  std::vector<std::pair<std::string, std::string>> maatschappijen = {{"AB", "Alfa Bank"}, {"ZZ", "Anders"}};
  std::function<void(const Trace&)> onError;

  std::shared_ptr<host::Dossier> Dossier() override { return dossier; }
  std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override { return uitgangspunten_; }
  std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override { return hoofdvenster_; }
  std::shared_ptr<host::Codetabellen> Codetabellen() override { return codetabellen_; }

  void VulCombo(const std::shared_ptr<host::Codetabellen>&, std::string_view, host::ListBox& lijst,
                const std::string& code, const std::string&, std::optional<std::int32_t>) override {
    int gekozen = host::kNoSelection;
    for (const auto& [eigenCode, naam] : maatschappijen) {
      if (eigenCode == code) gekozen = lijst.ListCount();
      lijst.Add(naam);
    }
    if (gekozen != host::kNoSelection) lijst.SetListIndex(gekozen);
  }
  std::string ZoekCode(const std::shared_ptr<host::Codetabellen>&, std::string_view,
                       const std::string& tekst) override {
    for (const auto& [code, naam] : maatschappijen)
      if (naam == tekst) return code;
    return {};
  }
  void ReportError(host::ProcedureTrace& trace) override {
    if (onError) onError(static_cast<const Trace&>(trace));
  }

 private:
  std::shared_ptr<host::Uitgangspunten> uitgangspunten_ = std::make_shared<memory_host::Uitgangspunten>();
  std::shared_ptr<host::Hoofdvenster> hoofdvenster_ = std::make_shared<host::Hoofdvenster>();
  std::shared_ptr<host::Codetabellen> codetabellen_ = std::make_shared<host::Codetabellen>();
};

/// What the controls make themselves.
inline host::HostFactories Factories() {
  return {.MaakProcedureTrace = [](std::string_view) { return std::make_shared<Trace>(); },
          .MaakDossierControle = [](std::string_view) { return std::make_shared<DossierControle>(); }};
}

}  // namespace memory_host
