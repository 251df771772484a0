// One handler a field: the change is written into the record at once, what depends on it is worked out
// from the record as read back, and the host hears of a header text that may have changed. That some
// fields raise no event and leave no mark is meant.

#include <string>

#include <brivane/frame/Calendar.h>
#include <brivane/vrijekolom/FiscaleOpties.h>
#include <brivane/vrijekolom/Looptijd.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

void VrijeKolom::jnInDagloon_Change() {
  if (Filling_) return;
  tracing_.Handled("jnInDagloon_Change", [this] {
    Record().SetInDagloon(controls_[jnInDagloon].Value() == host::kJa);
    Gewijzigd_ = true;
  });
}

void VrijeKolom::jnInkUitArbeid_Change() {
  if (Filling_) return;
  tracing_.Handled("jnInkUitArbeid_Change", [this] {
    Record().SetInkomenUitArbeid(controls_[jnInkUitArbeid].Value() == host::kJa);
    // Only income from work can be part of the day wage.
    host::JaNee& dagloon = controls_[jnInDagloon];
    dagloon.SetEnabled(controls_[jnInkUitArbeid].Value() == host::kJa);
    if (dagloon.Value() == host::kJa && !dagloon.Enabled()) dagloon.SetValue(host::kNee);
    Gewijzigd_ = true;
  });
}

void VrijeKolom::jnUwBemiddeling_Change() {
  if (Filling_) return;
  tracing_.Handled("jnUwBemiddeling_Change",
                   [this] { Record().SetUwBemiddeling(controls_[jnUwBemiddeling].Value() == host::kJa); });
}

void VrijeKolom::optAanvrager_Click(std::int16_t Index) {
  if (Filling_) return;
  tracing_.Handled("optAanvrager_Click", [&] {
    Record().SetHeffingBij(Index);
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::optFiscaal_Click(std::int16_t Index) {
  if (Filling_) return;
  tracing_.Handled("optFiscaal_Click", [&] {
    Record().SetCorrectieFiscaal(Index);
    host::JaNee& arbeid = controls_[jnInkUitArbeid];
    arbeid.SetEnabled(KanInkomenUitArbeidZijn(GekozenLast(), GekozenFiscaal()));
    if (!arbeid.Enabled()) arbeid.SetValue(host::kNee);
    HerbindToelichting();
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::optLast_Click(std::int16_t Index) {
  if (Filling_) return;
  tracing_.Handled("optLast_Click", [&] {
    Record().SetCorrectieLast(Index);
    Check_FraFiscaal();
    HerbindToelichting();
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::TxtBd_Validation() {
  tracing_.Handled("TxtBd_Validation", [this] {
    const double bedrag = controls_[TxtBd].Number();
    host::Need(Record().Bedrag()).SetBasisbedrag(bedrag);
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::TxtOm_Validation() {
  tracing_.Handled("TxtOm_Validation", [this] {
    const std::string tekst = controls_[TxtOm].Text();
    Record().SetOmschrijving(tekst);
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::TxtAnJaar_Validation() {
  tracing_.Handled("TxtAnJaar_Validation", [this] {
    SchrijfLooptijd();
    ToonEinddatum();
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::TxtAnMaand_Validation() {
  tracing_.Handled("TxtAnMaand_Validation", [this] {
    SchrijfLooptijd();
    ToonLooptijd();
    ToonEinddatum();
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::TxtDtAanvang_Validation(bool& Cancel) {
  tracing_.Handled("TxtDtAanvang_Validation", [&] {
    Validation(Cancel, kControleAanvang);
    if (Cancel) return;
    const host::Date aanvang = controls_[TxtDtAanvang].DateValue();
    Record().SetDatumAanvang(aanvang);
    // Without a duration the end date stays as it is.
    if (Record().Looptijd() > 0) controls_[TxtDtEind].SetDate(EinddatumVanRecord());
    controls_[TxtDtEind].SetEnabled(Record().Termijn() != kEenmalig);
    controls_[TxtAnJaar].SetEnabled(Record().Termijn() != kEenmalig);
    controls_[TxtAnMaand].SetEnabled(Record().Termijn() != kEenmalig);
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::TxtDtEind_Validation(bool& Cancel) {
  tracing_.Handled("TxtDtEind_Validation", [&] {
    Validation(Cancel, kControleEinde);
    if (Cancel) return;
    const host::Date einde = controls_[TxtDtEind].DateValue();
    if (einde.IsNone()) {
      Record().SetLooptijd(0);
      controls_[TxtAnJaar].SetNumber(0);
      controls_[TxtAnMaand].SetNumber(0);
    } else {
      const std::int16_t looptijd = LooptijdTussen(controls_[TxtDtAanvang].DateValue(), einde);
      Record().SetLooptijd(looptijd);
      ToonLooptijd();
      // The end date snaps to the start date's day of the month.
      controls_[TxtDtEind].SetDate(EinddatumVanRecord());
    }
    MeldKopregel();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::txtMaatschappij_Validation() {
  tracing_.Handled("txtMaatschappij_Validation", [this] {
    const std::string naam = controls_[txtMaatschappij].Text();
    Record().SetMaatschappijNaam(naam);
  });
}

void VrijeKolom::txtProductsoort_Validation() {
  tracing_.Handled("txtProductsoort_Validation", [this] {
    const std::string tekst = controls_[txtProductsoort].Text();
    Record().SetProductsoortOmschrijving(tekst);
  });
}

void VrijeKolom::txtProductnaam_Validation() {
  tracing_.Handled("txtProductnaam_Validation", [this] {
    const std::string naam = controls_[txtProductnaam].Text();
    Record().SetProductnaam(naam);
  });
}

void VrijeKolom::txtVervaldatum_Validation() {
  tracing_.Handled("txtVervaldatum_Validation", [this] {
    const host::Date datum = controls_[txtVervaldatum].DateValue();
    Record().SetContractvervaldatum(datum);
  });
}

void VrijeKolom::txtProducttype_Validation() {
  tracing_.Handled("txtProducttype_Validation", [] {});
}

void VrijeKolom::Toelichting_Changed() { Gewijzigd_ = true; }

void VrijeKolom::SchrijfLooptijd() {
  const std::int16_t looptijd = LooptijdUit(controls_[TxtAnJaar].Number(), controls_[TxtAnMaand].Number());
  Record().SetLooptijd(looptijd);
}

void VrijeKolom::ToonLooptijd() {
  controls_[TxtAnJaar].SetNumber(Jaren(Record().Looptijd()));
  controls_[TxtAnMaand].SetNumber(Restmaanden(Record().Looptijd()));
}

// Counts from the start date as it stands in its box, not from the record.
void VrijeKolom::ToonEinddatum() {
  const std::int32_t looptijd = Record().Looptijd();
  host::TextBox& einde = controls_[TxtDtEind];
  einde.SetDate(looptijd == 0 ? host::kNoDate : frame::AddMonths(controls_[TxtDtAanvang].DateValue(), looptijd));
}

void VrijeKolom::MeldKopregel() { RefreshTopDisplay.Raise(Record().Kopregel()); }

void VrijeKolom::MeldWeergave() { RefreshTopDisplay.Raise(Record().Weergave()); }

}  // namespace brivane
