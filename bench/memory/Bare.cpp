#include "bench/memory/Bare.h"

#include <utility>

#include <brivane/frame/Handle.h>
#include <brivane/toelichting/Effecttabel.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace bench {

namespace vk = brivane::vrijekolom;
namespace to = brivane::toelichting;
using host::Measure;
using host::Place;
using host::Twips;

EditorControls::EditorControls(host::Surface& of) : surface(of) {
  const brivane::frame::Controls controls(of);
  for (int i = 1; i <= 3; ++i) {
    last[i] = &controls(vk::optLast, i);
    fiscaal[i] = &controls(vk::optFiscaal, i);
    voorstel[i] = &controls(vk::ChkVoorstel, i);
  }
  aanvrager[1] = &controls(vk::optAanvrager, 1);
  aanvrager[2] = &controls(vk::optAanvrager, 2);
  product = &controls[vk::chkProduct];
  TxtOm = &controls[vk::TxtOm];
  TxtBd = &controls[vk::TxtBd];
  TxtDtAanvang = &controls[vk::TxtDtAanvang];
  TxtDtEind = &controls[vk::TxtDtEind];
  TxtAnJaar = &controls[vk::TxtAnJaar];
  TxtAnMaand = &controls[vk::TxtAnMaand];
  txtVervaldatum = &controls[vk::txtVervaldatum];
  txtMaatschappij = &controls[vk::txtMaatschappij];
  txtProductsoort = &controls[vk::txtProductsoort];
  txtProductnaam = &controls[vk::txtProductnaam];
  cboTermijn = &controls[vk::cboTermijn];
  cboMaatschappij = &controls[vk::cboMaatschappij];
  cboProductsoort = &controls[vk::cboProductsoort];
  jnInkUitArbeid = &controls[vk::jnInkUitArbeid];
  jnInDagloon = &controls[vk::jnInDagloon];
  jnUwBemiddeling = &controls[vk::jnUwBemiddeling];
  cmdScenario = &controls[vk::cmdScenario];
  fraLast = &controls[vk::fraLast];
  fraFiscaal = &controls[vk::fraFiscaal];
  fraAlgemeen = &controls[vk::fraAlgemeen];
  fraAanvangsdatum = &controls[vk::fraAanvangsdatum];
  fraLooptijd = &controls[vk::fraLooptijd];
  fraVervaldatum = &controls[vk::fraVervaldatum];
  fraBeeindigen = &controls[vk::fraBeeindigen];
  fraGegevens = &controls[vk::fraGegevens];
  fraHeffing = &controls[vk::fraHeffing];
  fraProduct = &controls[vk::fraProduct];
  fraMij = &controls[vk::fraMij];
  fraProductsoort = &controls[vk::fraProductsoort];
  fraProductnaam = &controls[vk::fraProductnaam];
  fraUwBemiddeling = &controls[vk::fraUwBemiddeling];
  toelichting = &controls[vk::ToelichtingVlak];

  const brivane::frame::Controls inside(*toelichting);
  lstToelichting = &inside[to::lstToelichting];
  jnAO = &inside[to::jnAO];
  jnWW = &inside[to::jnWW];
  jnLangleven = &inside[to::jnLangleven];
  jnOverlijden = &inside[to::jnOverlijden];
  TxtPcOvergang = &inside[to::TxtPcOvergang];
  txtEinddatum = &inside[to::txtEinddatum];
  TxtEindjaar = &inside[to::TxtEindjaar];
  lblSlash = &inside[to::lblSlash];
}

Bare::Bare(host::Surface& surface, std::shared_ptr<host::Application> application,
           std::shared_ptr<host::ProcedureTrace> trace, std::shared_ptr<host::DossierControle> controle,
           std::function<void(const std::string&)> refreshTopDisplay)
    : c_(surface),
      application_(std::move(application)),
      trace_(std::move(trace)),
      controle_(std::move(controle)),
      refreshTopDisplay_(std::move(refreshTopDisplay)) {
  dossier_ = application_->Dossier();
  lening_ = dossier_->HuidigeLening();
  item_ = lening_->VrijeKolommen(1);
  einde_ = host::Date{item_->DatumAanvang().Days() + 912};
  eindeOvergang_ = item_->EinddatumOvergang();
  // An editor fills its effect list once, when it is made.
  for (std::size_t rij = 1; rij <= to::kEffecten.size(); ++rij) {
    c_.lstToelichting->AddItem(rij, "KEY" + std::to_string(rij), "");
    for (std::size_t kolom = 1; kolom < to::kEffectkoppen.size(); ++kolom) c_.lstToelichting->AddSubItem(rij, "");
  }
}

void Bare::SetApplication() {
  Traced("SetApplication", [this] {
    dossier_ = application_->Dossier();
    const auto huidig = dossier_->HuidigeLening();
    const auto genummerd = dossier_->Lening(0);
    lening_ = huidig;
    item_ = lening_->VrijeKolommen(1);
    Fill_Controls();
    Resize();
  });
}

void Bare::Fill_Controls() {
  Traced("Fill_Controls", [this] {
    c_.last[item_->CorrectieLast()]->SetValue(true);
    c_.fiscaal[item_->CorrectieFiscaal()]->SetValue(true);
    Check_FraFiscaal(true);
    Fill_fraAlgemeen();
    c_.TxtOm->SetText(item_->Omschrijving());
    c_.TxtBd->SetNumber(item_->Bedrag()->Basisbedrag());
    c_.cmdScenario->SetEnabled(item_->Termijn() != 99);
    KiesTermijn();
    c_.jnInkUitArbeid->SetEnabled(item_->CorrectieFiscaal() == 2 && item_->CorrectieLast() == 2);
    c_.jnInkUitArbeid->SetValue(item_->InkomenUitArbeid() ? 2 : 1);
    c_.jnInDagloon->SetEnabled(c_.jnInkUitArbeid->Enabled());
    c_.jnInDagloon->SetValue(item_->InDagloon() ? 2 : 1);
    VulHeffing();
    Fill_Product();
    BindToelichting();
  });
}

void Bare::Fill_fraAlgemeen() {
  Traced("Fill_fraAlgemeen", [this] {
    const bool contract = item_->Productsoort() == 44;
    c_.TxtDtAanvang->SetDate(item_->DatumAanvang());
    const bool heeftEinde = item_->Looptijd() != 0 && !item_->DatumAanvang().IsNone();
    const host::Date vanaf = heeftEinde ? item_->DatumAanvang() : host::kNoDate;
    const std::int32_t maanden = item_->Looptijd();
    c_.TxtDtEind->SetDate(maanden != 0 ? einde_ : vanaf);
    c_.TxtDtEind->SetEnabled(item_->Termijn() != 99 && !item_->DatumAanvang().IsNone());
    c_.TxtAnJaar->SetNumber(item_->Looptijd());
    c_.TxtAnJaar->SetEnabled(item_->Termijn() != 99);
    c_.TxtAnMaand->SetNumber(item_->Looptijd());
    c_.TxtAnMaand->SetEnabled(item_->Termijn() != 99);
    c_.fraLooptijd->SetVisible(!contract);
    c_.fraVervaldatum->SetVisible(contract);
    for (std::int16_t v = 1; v <= 3; ++v) c_.voorstel[v]->SetValue(item_->Voorstel(v) == "J" ? 1 : 0);
    c_.fraBeeindigen->SetVisible(false);
  });
}

void Bare::KiesTermijn() {
  c_.cboTermijn->SetListIndex(-1);
  for (int i = 0; i < c_.cboTermijn->ListCount(); ++i)
    if (c_.cboTermijn->ItemData(i) == item_->Termijn()) {
      c_.cboTermijn->SetListIndex(i);
      break;
    }
}

std::string Bare::FittedName(std::int16_t persoon) {
  const auto naam = dossier_->Persoon(persoon)->Naam();
  std::string tekst = naam[0] + " " + naam[1] + " " + naam[2];
  const Twips breedte = c_.aanvrager[1]->Place().width;
  const bool vet = c_.surface.FontBold();
  c_.surface.SetFontBold(false);
  if (c_.surface.TextWidth(tekst) > breedte) tekst.clear();
  c_.surface.SetFontBold(vet);
  return tekst;
}

void Bare::VulHeffing() {
  c_.fraHeffing->SetCaption("Heffing bij");
  c_.aanvrager[1]->SetCaption(FittedName(1));
  c_.aanvrager[2]->SetEnabled(dossier_->Persoon(2) != nullptr);
  c_.aanvrager[2]->SetCaption(c_.aanvrager[2]->Enabled() ? FittedName(2) : std::string());
  c_.aanvrager[item_->HeffingBij()]->SetValue(true);
}

void Bare::ShowProductFrames() {
  c_.fraMij->SetVisible(c_.product->Value() == 1);
  c_.fraProductsoort->SetVisible(c_.product->Value() == 1);
  c_.fraProductnaam->SetVisible(c_.product->Value() == 1);
  c_.fraUwBemiddeling->SetVisible(c_.product->Value() == 1);
}

void Bare::Fill_Product() {
  Traced("Fill_Product", [this] {
    c_.product->SetValue(item_->IsProduct() ? 1 : 0);
    ShowProductFrames();
    if (item_->IsProduct()) {
      FillCompanies();
      FillKinds();
      c_.txtProductnaam->SetText(item_->Productnaam());
      c_.jnUwBemiddeling->SetValue(item_->UwBemiddeling() ? 2 : 1);
    }
    c_.fraProduct->SetVisible(true);
  });
}

void Bare::FillCompanies() {
  Traced("Fill_cboMaatschappij", [this] {
    c_.cboMaatschappij->Clear();
    c_.txtMaatschappij->SetText("");
    c_.txtMaatschappij->SetEnabled(false);
    application_->VulCombo(application_->Codetabellen(), "MaatschappijType", *c_.cboMaatschappij, item_->Maatschappij(),
                           "");
    c_.txtMaatschappij->SetEnabled(item_->Maatschappij() == "ZZ");
    c_.txtMaatschappij->SetText(item_->MaatschappijNaam());
  });
}

void Bare::FillKinds() {
  Traced("Fill_cboProductsoort", [this] {
    c_.cboProductsoort->Clear();
    c_.cboProductsoort->Add("Vereniging", 42);
    c_.cboProductsoort->Add("Goed doel", 43);
    c_.cboProductsoort->Add("Krant", 44);
    c_.cboProductsoort->Add("Tijdschrift", 45);
    c_.cboProductsoort->Add("Anders", 99);
    if (item_->Productsoort() == 0) item_->SetProductsoort(99);
    for (int i = 0; i < c_.cboProductsoort->ListCount(); ++i)
      if (c_.cboProductsoort->ItemData(i) == item_->Productsoort()) {
        c_.cboProductsoort->SetListIndex(i);
        // The list's own click, which shows the text box as the kind asks also while filling.
        c_.txtProductsoort->SetEnabled(c_.cboProductsoort->ItemData(c_.cboProductsoort->ListIndex()) == 99);
        break;
      }
    c_.txtProductsoort->SetEnabled(item_->Productsoort() == 99);
    c_.txtProductsoort->SetText(item_->ProductsoortOmschrijving());
  });
}

void Bare::Check_FraFiscaal(bool filling) {
  Traced("Check_FraFiscaal", [&] {
    c_.fiscaal[1]->SetEnabled(c_.last[1]->Value() || c_.last[3]->Value());
    c_.fiscaal[2]->SetEnabled(c_.last[2]->Value() || c_.last[3]->Value());
    c_.fiscaal[3]->SetEnabled(!c_.last[3]->Value());
    if (filling) return;
    c_.fiscaal[c_.last[1]->Value() || c_.last[3]->Value() ? 1 : 2]->SetValue(true);
    c_.jnInkUitArbeid->SetEnabled(c_.last[2]->Value() && c_.fiscaal[2]->Value());
    if (!c_.jnInkUitArbeid->Enabled()) c_.jnInkUitArbeid->SetValue(1);
  });
}

void Bare::Show_Keuze() {
  Traced("Show_Keuze", [this] {
    const std::int16_t fiscaal = item_->CorrectieFiscaal();
    const std::string sleutel = item_->CorrectieLast() == fiscaal ? "KEY1" : "KEY3";
    host::ListView& lijst = *c_.lstToelichting;
    lijst.Select(0);
    for (std::size_t i = 1; i <= lijst.ItemCount(); ++i) {
      if (lijst.Key(i) == sleutel) lijst.Select(i);
      lijst.SetBold(i, lijst.Selected() == i);
      for (std::size_t kolom = 1; kolom <= lijst.SubItemCount(i); ++kolom)
        lijst.SetSubItemBold(i, kolom, lijst.Bold(i));
    }
  });
}

void Bare::BindToelichting() {
  Traced("SetApplication", [this] {
    dossier_ = application_->Dossier();
    item_ = lening_->VrijeKolom(1);
    Show_Keuze();
    Traced("Fill_Controls", [this] {
      c_.jnLangleven->SetValue(item_->UitsluitenLangleven() ? 1 : 2);
      c_.jnAO->SetValue(item_->UitsluitenAO() ? 1 : 2);
      c_.jnWW->SetValue(item_->UitsluitenWW() ? 1 : 2);
      c_.jnOverlijden->SetValue(item_->ScenarioOverlijden() ? 2 : 1);
      c_.TxtPcOvergang->SetEnabled(c_.jnOverlijden->Value() == 2);
      c_.TxtPcOvergang->SetNumber(static_cast<double>(item_->PercentageOvergang()));
      c_.txtEinddatum->SetEnabled(c_.jnOverlijden->Value() == 2);
      c_.txtEinddatum->SetDate(item_->EinddatumOvergang().IsNone() ? host::kNoDate : item_->EinddatumOvergang());
      c_.lblSlash->SetEnabled(c_.jnOverlijden->Value() == 2);
      c_.TxtEindjaar->SetEnabled(c_.jnOverlijden->Value() == 2);
      c_.TxtEindjaar->SetNumber(item_->EindleeftijdOvergang());
    });
  });
}

void Bare::Resize() {
  c_.fraAanvangsdatum->Write(Measure::Top, 300);
  c_.fraLooptijd->Write(Measure::Top, 660);
  c_.fraVervaldatum->Write(Measure::Top, 1020);
  c_.fraBeeindigen->Write(Measure::Top, 1020);
  c_.fraAlgemeen->Write(Measure::Height, 1080);
  const Place eerste = c_.fraLast->Place();
  c_.fraLast->Move({{0}, {0}, eerste.width, eerste.height});
  host::Frame* boven = c_.fraLast;
  for (host::Frame* kader : {c_.fraFiscaal, c_.fraAlgemeen, c_.fraGegevens, c_.fraHeffing}) {
    const Place hier = kader->Place();
    kader->Move({eerste.left, boven->Place().Bottom() + Twips{60}, eerste.width, hier.height});
    boven = kader;
  }
  const Place product = c_.fraProduct->Place();
  c_.fraProduct->Move({eerste.Right() + Twips{120}, eerste.top, product.width, product.height});
  const Place toelichting = c_.toelichting->Place();
  c_.toelichting->Move({product.left, product.Bottom() + Twips{60}, product.width, toelichting.height});
  const Twips links = boven->Place().Bottom();
  const Twips rechts = c_.toelichting->Place().Bottom();
  c_.surface.Write(Measure::Height, links > rechts ? links.value : rechts.value);
}

void Bare::Validation() {
  Traced("Validation", [this] {
    if (c_.TxtDtAanvang->DateValue().IsNone()) return;
    if (c_.TxtDtEind->Enabled() && c_.TxtDtEind->DateValue() <= c_.TxtDtAanvang->DateValue()) return;
    if (lening_ == application_->Dossier()->HuidigeLening()) {
      for (std::int16_t v = 1; v <= 3; ++v)
        if (item_->Voorstel(v).empty()) dossier_->VerwijderUitVoorstel(v, 1, 0);
    }
    controle_->Controleer(application_, 1);
  });
}

void Bare::jnInDagloon_Change() {
  Traced("jnInDagloon_Change", [this] { item_->SetInDagloon(c_.jnInDagloon->Value() == 2); });
}

void Bare::jnInkUitArbeid_Change() {
  Traced("jnInkUitArbeid_Change", [this] {
    item_->SetInkomenUitArbeid(c_.jnInkUitArbeid->Value() == 2);
    c_.jnInDagloon->SetEnabled(c_.jnInkUitArbeid->Value() == 2);
    if (c_.jnInDagloon->Value() == 2 && !c_.jnInDagloon->Enabled()) c_.jnInDagloon->SetValue(1);
  });
}

void Bare::jnUwBemiddeling_Change() {
  Traced("jnUwBemiddeling_Change", [this] { item_->SetUwBemiddeling(c_.jnUwBemiddeling->Value() == 2); });
}

void Bare::optAanvrager_Click() {
  Traced("optAanvrager_Click", [this] {
    item_->SetHeffingBij(1);
    MeldKopregel();
  });
}

void Bare::optFiscaal_Click() {
  Traced("optFiscaal_Click", [this] {
    item_->SetCorrectieFiscaal(1);
    c_.jnInkUitArbeid->SetEnabled(c_.last[2]->Value() && c_.fiscaal[2]->Value());
    if (!c_.jnInkUitArbeid->Enabled()) c_.jnInkUitArbeid->SetValue(1);
    BindToelichting();
    MeldKopregel();
  });
}

void Bare::optLast_Click() {
  Traced("optLast_Click", [this] {
    item_->SetCorrectieLast(1);
    Check_FraFiscaal(false);
    BindToelichting();
    MeldKopregel();
  });
}

void Bare::TxtBd_Validation() {
  Traced("TxtBd_Validation", [this] {
    item_->Bedrag()->SetBasisbedrag(c_.TxtBd->Number());
    MeldKopregel();
  });
}

void Bare::TxtOm_Validation() {
  Traced("TxtOm_Validation", [this] {
    item_->SetOmschrijving(c_.TxtOm->Text());
    MeldKopregel();
  });
}

void Bare::TxtAnJaar_Validation() {
  Traced("TxtAnJaar_Validation", [this] {
    item_->SetLooptijd(static_cast<std::int32_t>(c_.TxtAnJaar->Number() * 12 + c_.TxtAnMaand->Number()));
    if (item_->Looptijd() != 0 && !c_.TxtDtAanvang->DateValue().IsNone()) c_.TxtDtEind->SetDate(einde_);
    MeldKopregel();
  });
}

void Bare::TxtAnMaand_Validation() {
  Traced("TxtAnMaand_Validation", [this] {
    item_->SetLooptijd(static_cast<std::int32_t>(c_.TxtAnJaar->Number() * 12 + c_.TxtAnMaand->Number()));
    c_.TxtAnJaar->SetNumber(item_->Looptijd() / 12);
    c_.TxtAnMaand->SetNumber(item_->Looptijd() % 12);
    if (item_->Looptijd() != 0 && !c_.TxtDtAanvang->DateValue().IsNone()) c_.TxtDtEind->SetDate(einde_);
    MeldKopregel();
  });
}

void Bare::TxtDtAanvang_Validation() {
  Traced("TxtDtAanvang_Validation", [this] {
    Traced("Validation", [this] {
      if (c_.TxtDtAanvang->DateValue().IsNone()) return;
      static_cast<void>(c_.TxtDtEind->Enabled());
    });
    item_->SetDatumAanvang(c_.TxtDtAanvang->DateValue());
    if (item_->Looptijd() > 0) {
      const bool leeg = item_->DatumAanvang().IsNone() && item_->Looptijd() == 0;
      if (!leeg) c_.TxtDtEind->SetDate(einde_);
    }
    c_.TxtDtEind->SetEnabled(item_->Termijn() != 99);
    c_.TxtAnJaar->SetEnabled(item_->Termijn() != 99);
    c_.TxtAnMaand->SetEnabled(item_->Termijn() != 99);
    MeldKopregel();
  });
}

void Bare::TxtDtEind_Validation() {
  Traced("TxtDtEind_Validation", [this] {
    Traced("Validation", [this] {
      if (!c_.TxtDtEind->Enabled()) return;
      if (c_.TxtDtEind->DateValue() <= c_.TxtDtAanvang->DateValue()) return;
    });
    const bool kort = c_.TxtDtEind->DateValue() < c_.TxtDtAanvang->DateValue();
    item_->SetLooptijd(kort ? 1 : 30);
    c_.TxtAnJaar->SetNumber(item_->Looptijd() / 12);
    c_.TxtAnMaand->SetNumber(item_->Looptijd() % 12);
    const bool leeg = item_->DatumAanvang().IsNone() && item_->Looptijd() == 0;
    if (!leeg) c_.TxtDtEind->SetDate(einde_);
    MeldKopregel();
  });
}

void Bare::txtMaatschappij_Validation() {
  Traced("txtMaatschappij_Validation", [this] { item_->SetMaatschappijNaam(c_.txtMaatschappij->Text()); });
}

void Bare::txtProductsoort_Validation() {
  Traced("txtProductsoort_Validation", [this] { item_->SetProductsoortOmschrijving(c_.txtProductsoort->Text()); });
}

void Bare::txtProductnaam_Validation() {
  Traced("txtProductnaam_Validation", [this] { item_->SetProductnaam(c_.txtProductnaam->Text()); });
}

void Bare::txtVervaldatum_Validation() {
  Traced("txtVervaldatum_Validation", [this] { item_->SetContractvervaldatum(c_.txtVervaldatum->DateValue()); });
}

void Bare::chkProduct_Click() {
  ShowProductFrames();
  Traced("chkProduct_Click", [this] {
    item_->SetIsProduct(c_.product->Value() == 1);
    item_->SetUwBemiddeling(true);
    Fill_Product();
  });
}

void Bare::cboMaatschappij_Click() {
  Traced("cboMaatschappij_Click", [this] {
    const std::string tekst = c_.cboMaatschappij->Text();
    item_->SetMaatschappij(application_->ZoekCode(application_->Codetabellen(), "MaatschappijType", tekst));
    c_.txtMaatschappij->SetEnabled(item_->Maatschappij() == "ZZ");
    if (item_->Maatschappij() == "ZZ") return;
    item_->SetMaatschappijNaam(tekst);
    c_.txtMaatschappij->SetText(item_->MaatschappijNaam());
  });
}

void Bare::cboProductsoort_Click() {
  const std::int32_t code = c_.cboProductsoort->ItemData(c_.cboProductsoort->ListIndex());
  c_.txtProductsoort->SetEnabled(code == 99);
  Traced("cboProductsoort_Click", [&] {
    item_->SetProductsoort(static_cast<std::int16_t>(code));
    if (item_->Productsoort() == 99) {
      item_->SetLooptijd(0);
      item_->SetProductsoortOmschrijving("");
      c_.txtProductsoort->SetText("");
    }
    Fill_fraAlgemeen();
    Resize();
  });
}

void Bare::CboTermijn_Click() {
  if (c_.cboTermijn->ListIndex() < 0) return;
  Traced("CboTermijn_Click", [this] {
    item_->SetTermijn(static_cast<std::int16_t>(c_.cboTermijn->ItemData(c_.cboTermijn->ListIndex())));
    const host::Date aanvang = item_->DatumAanvang();
    const bool doorlopend = item_->Termijn() != 99;
    c_.TxtDtEind->SetEnabled(!aanvang.IsNone() && doorlopend);
    c_.TxtAnJaar->SetEnabled(doorlopend);
    c_.TxtAnMaand->SetEnabled(doorlopend);
    c_.cmdScenario->SetEnabled(doorlopend);
    refreshTopDisplay_(item_->Weergave());
  });
}

void Bare::ChkVoorstel_Click() {
  Traced("ChkVoorstel_Click", [this] {
    const std::string oud[] = {item_->Voorstel(1), item_->Voorstel(2), item_->Voorstel(3)};
    item_->SetVoorstel(1, c_.voorstel[1]->Value() == 1 ? "J" : "N");
    for (std::int16_t v = 1; v <= 3; ++v)
      if (item_->Voorstel(v) == "J") dossier_->VoegToeAanVoorstel(v, 1);
    for (std::int16_t v = 1; v <= 3; ++v)
      if (item_->Voorstel(v) != oud[v - 1]) dossier_->VerwijderUitVoorstel(v, 1, 0);
  });
}

void Bare::jnAO_Change() {
  Traced("jnAO_Change", [this] { item_->SetUitsluitenAO(c_.jnAO->Value() == 1); });
}

void Bare::jnWW_Change() {
  Traced("jnWW_Change", [this] { item_->SetUitsluitenWW(c_.jnWW->Value() == 1); });
}

void Bare::jnLangleven_Change() {
  Traced("jnLangleven_Change", [this] { item_->SetUitsluitenLangleven(c_.jnLangleven->Value() == 1); });
}

void Bare::jnOverlijden_Change() {
  Traced("jnOverlijden_Change", [this] {
    item_->SetScenarioOverlijden(c_.jnOverlijden->Value() == 2);
    c_.TxtPcOvergang->SetEnabled(c_.jnOverlijden->Value() == 2);
    if (!c_.TxtPcOvergang->Enabled()) c_.TxtPcOvergang->SetNumber(0);
    item_->SetPercentageOvergang(static_cast<float>(c_.TxtPcOvergang->Number()));
    c_.txtEinddatum->SetEnabled(c_.jnOverlijden->Value() == 2);
    if (!c_.txtEinddatum->Enabled()) c_.txtEinddatum->SetDate(host::kNoDate);
    c_.lblSlash->SetEnabled(c_.jnOverlijden->Value() == 2);
    item_->SetEinddatumOvergang(c_.txtEinddatum->DateValue());
    c_.TxtEindjaar->SetEnabled(c_.jnOverlijden->Value() == 2);
    if (!c_.TxtEindjaar->Enabled()) c_.TxtEindjaar->SetNumber(0);
    item_->SetEindleeftijdOvergang(static_cast<std::int16_t>(c_.TxtEindjaar->Number()));
  });
}

void Bare::TxtPcOvergang_Validation() {
  Traced("TxtPcOvergang_Validation", [this] {
    Traced("Validation", [this] {
      for (int check = 3; check <= 5; ++check)
        if (c_.jnOverlijden->Value() == 2 && check == 3) static_cast<void>(c_.TxtPcOvergang->Number());
    });
    item_->SetPercentageOvergang(static_cast<float>(c_.TxtPcOvergang->Number()));
  });
}

void Bare::TxtEinddatum_Validation() {
  Traced("TxtEinddatum_Validation", [this] {
    Traced("Validation", [this] {
      for (int check = 3; check <= 5; ++check)
        if (c_.jnOverlijden->Value() == 2 && check == 4) static_cast<void>(c_.txtEinddatum->DateValue());
    });
    item_->SetEinddatumOvergang(c_.txtEinddatum->DateValue());
    static_cast<void>(dossier_->Persoon(item_->HeffingBij())->Geboortedatum());
    c_.TxtEindjaar->SetNumber(65);
    item_->SetEindleeftijdOvergang(static_cast<std::int16_t>(c_.TxtEindjaar->Number()));
  });
}

void Bare::TxtEindjaar_Validation() {
  Traced("TxtEindjaar_Validation", [this] {
    Traced("Validation", [this] {
      for (int check = 3; check <= 5; ++check)
        if (c_.jnOverlijden->Value() == 2 && check == 5) {
          static_cast<void>(dossier_->Persoon(item_->HeffingBij())->Geboortedatum());
          static_cast<void>(c_.TxtEindjaar->Number());
        }
    });
    item_->SetEindleeftijdOvergang(static_cast<std::int16_t>(c_.TxtEindjaar->Number()));
    static_cast<void>(dossier_->Persoon(item_->HeffingBij())->Geboortedatum());
    c_.txtEinddatum->SetDate(eindeOvergang_);
    item_->SetEinddatumOvergang(c_.txtEinddatum->DateValue());
  });
}

}  // namespace bench
