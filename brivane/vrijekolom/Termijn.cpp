// The payment term, and what a one-off amount does without.

#include <brivane/frame/Conversions.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

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

}  // namespace brivane
