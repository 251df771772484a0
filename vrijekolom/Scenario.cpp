// The term, the proposals and the year-by-year form.

#include <array>
#include <string>

#include "frame/Calendar.h"
#include "frame/Conversions.h"
#include "scenario/frmScenario.h"
#include "vrijekolom/Ontwerp.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane {

using namespace vrijekolom;

void VrijeKolom::CboTermijn_Click() {
  const host::ListBox& lijst = controls_[cboTermijn];
  if (Filling_ || lijst.ListIndex() < 0) return;
  tracing_.Handled("CboTermijn_Click", [&] {
    Record().SetTermijn(frame::ToInteger16(lijst.ItemData(lijst.ListIndex())));
    const host::Date aanvang = Record().DatumAanvang();
    const std::int16_t termijn = Record().Termijn();
    controls_[TxtDtEind].SetEnabled(!aanvang.IsNone() && termijn != kEenmalig);
    controls_[TxtAnJaar].SetEnabled(termijn != kEenmalig);
    controls_[TxtAnMaand].SetEnabled(termijn != kEenmalig);
    controls_[cmdScenario].SetEnabled(termijn != kEenmalig);
    if (termijn == kEenmalig) {
      Record().SetLooptijd(0);
      controls_[TxtDtEind].SetDate(host::kNoDate);
      controls_[TxtAnJaar].SetNumber(0);
      controls_[TxtAnMaand].SetNumber(0);
      LeegScenario();
    }
    MeldWeergave();
    Gewijzigd_ = true;
  });
}

void VrijeKolom::LeegScenario() {
  const std::shared_ptr<host::BedragObject> bedrag = Record().Bedrag();
  while (host::Need(bedrag).Periode(1)) bedrag->VerwijderPeriode(1);
}

void VrijeKolom::ChkVoorstel_Click(std::int16_t Index) {
  if (Filling_) return;
  tracing_.Handled("ChkVoorstel_Click", [&] {
    std::array<std::string, kVoorstellen> oud;
    for (std::int16_t v = 1; v <= kVoorstellen; ++v) oud[static_cast<std::size_t>(v - 1)] = Record().Voorstel(v);
    const bool aangevinkt = controls_(ChkVoorstel, Index).Value() == host::kTicked;
    Record().SetVoorstel(Index, std::string(aangevinkt ? kInVoorstel : kUitVoorstel));
    // Every proposal marked is registered, not only the one clicked: the host accepts a repetition.
    for (std::int16_t v = 1; v <= kVoorstellen; ++v)
      if (Record().Voorstel(v) == kInVoorstel) host::Need(Dossier_).VoegToeAanVoorstel(v, Vrij_Id_);
    for (std::int16_t v = 1; v <= kVoorstellen; ++v)
      if (Record().Voorstel(v) != oud[static_cast<std::size_t>(v - 1)] && Record().Voorstel(v) == kUitVoorstel)
        host::Need(Dossier_).VerwijderUitVoorstel(v, Vrij_Id_, 0);
  });
}

void VrijeKolom::cmdScenario_Click() {
  tracing_.Handled("cmdScenario_Click", [this] {
    const std::int16_t aantalJaar = JarenTotLeeftijdsgrens();
    frmScenario formulier(toolkit_);
    formulier.SetBackColor(BackColor());
    formulier.Invoeren(Record().Bedrag(), aantalJaar);
    ScenarioGeopend.Raise(formulier);
    formulier.ShowModal(host::Need(Application_).Hoofdvenster().get());
    ToonBedrag();
    MeldWeergave();
    Gewijzigd_ = true;
  });
}

// Counted by year number, not by whole elapsed years: up to and including the year of the age limit.
std::int16_t VrijeKolom::JarenTotLeeftijdsgrens() {
  const host::Date vandaag = desktop_.Today();
  const std::int16_t leeftijd = host::Need(host::Need(Application_).Uitgangspunten()).Leeftijd();
  const std::int16_t persoon = Record().HeffingBij();
  const host::Date geboren = host::Need(host::Need(Dossier_).Persoon(persoon)).Geboortedatum();
  return frame::ToInteger16(frame::YearsBetween(vandaag, frame::AddYears(geboren, leeftijd + 1)));
}

}  // namespace brivane
