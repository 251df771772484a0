#include <string>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Conversions.h>
#include <brivane/toelichting/Controlenummers.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Teksten.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane {

using namespace toelichting;

void Toelichting::Validation(bool& Cancel, std::int32_t ControleNr) {
  tracing_.Handled("Validation", [&] {
    bool volledig = false;
    if (ControleNr == kControleVolledig) {
      // A box that was left but whose own check still waits is dealt with first.
      desktop_.DoPendingEvents();
      volledig = true;
    }
    if (OverlijdenJa() && (ControleNr == kControlePercentage || volledig) && !Cancel) {
      const double percentage = controls_[TxtPcOvergang].Number();
      if (percentage <= 0 || percentage > 100) Weiger(Cancel, kPercentageFout);
    }
    if (OverlijdenJa() && (ControleNr == kControleEinddatum || volledig) && !Cancel) {
      if (controls_[txtEinddatum].DateValue() <= desktop_.Today()) Weiger(Cancel, kEinddatumFout);
    }
    // The end age is left out of the complete check: it is the end date seen another way.
    if (OverlijdenJa() && ControleNr == kControleEindleeftijd && !Cancel) {
      const host::Date geboren = Geboortedatum();
      const std::int32_t jaren = frame::ToInteger32(controls_[TxtEindjaar].Number());
      if (frame::AddYears(geboren, jaren) <= desktop_.Today()) Weiger(Cancel, kEindleeftijdFout);
    }
  });
}

void Toelichting::Weiger(bool& Cancel, std::string_view melding) {
  Cancel = desktop_.MessageBox(std::string(kOnjuisteInvoer), std::string(melding), host::MessageStyle::OkExclamation) ==
           host::MessageAnswer::Ok;
}

}  // namespace brivane
