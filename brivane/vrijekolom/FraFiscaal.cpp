// What a burden option does to the fiscal options.

#include <brivane/vrijekolom/FiscaleOpties.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

namespace {

/// Code of the option that is selected, 0 where none is.
std::int16_t Gekozen(const frame::Controls& controls, frame::ArrayHandle<host::Kind::OptionButton> opties) {
  for (int code = opties.first; code <= opties.last; ++code)
    if (controls(opties, code).Value()) return static_cast<std::int16_t>(code);
  return 0;
}

}  // namespace

void VrijeKolom::Check_FraFiscaal() {
  tracing_.Handled("Check_FraFiscaal", [this] {
    const FiscaleOpties opties = OptiesBij(GekozenLast());
    controls_(optFiscaal, kAftrekpost).SetEnabled(opties.aftrekpost);
    controls_(optFiscaal, kBijtelling).SetEnabled(opties.bijtelling);
    controls_(optFiscaal, kFiscaalNeutraal).SetEnabled(opties.neutraal);
    if (Filling_) return;
    controls_(optFiscaal, FiscaalBij(GekozenLast())).SetValue(true);
    // The options are asked anew: choosing one ran its handler.
    controls_[jnInkUitArbeid].SetEnabled(KanInkomenUitArbeidZijn(GekozenLast(), GekozenFiscaal()));
    if (!controls_[jnInkUitArbeid].Enabled()) controls_[jnInkUitArbeid].SetValue(host::kNee);
  });
}

std::int16_t VrijeKolom::GekozenLast() const { return Gekozen(controls_, optLast); }

std::int16_t VrijeKolom::GekozenFiscaal() const { return Gekozen(controls_, optFiscaal); }

}  // namespace brivane
