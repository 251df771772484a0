// What a burden option does to the fiscal options.

#include "vrijekolom/Ontwerp.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane {

using namespace vrijekolom;

void VrijeKolom::Check_FraFiscaal() {
  tracing_.Handled("Check_FraFiscaal", [this] {
    const auto gekozen = [this](std::int16_t last) { return controls_(optLast, last).Value(); };
    // A cost can only be deductible, a contribution only a taxable addition, and a column with a neutral
    // burden must have a fiscal effect.
    controls_(optFiscaal, kAftrekpost).SetEnabled(gekozen(kLast) || gekozen(kLastNeutraal));
    controls_(optFiscaal, kBijtelling).SetEnabled(gekozen(kBijdrage) || gekozen(kLastNeutraal));
    controls_(optFiscaal, kFiscaalNeutraal).SetEnabled(!gekozen(kLastNeutraal));
    if (Filling_) return;
    controls_(optFiscaal, gekozen(kLast) || gekozen(kLastNeutraal) ? kAftrekpost : kBijtelling).SetValue(true);
    controls_[jnInkUitArbeid].SetEnabled(gekozen(kBijdrage) && controls_(optFiscaal, kBijtelling).Value());
    if (!controls_[jnInkUitArbeid].Enabled()) controls_[jnInkUitArbeid].SetValue(host::kNee);
  });
}

}  // namespace brivane
