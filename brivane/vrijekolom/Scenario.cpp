// The year-by-year form over the column's amount.

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Conversions.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

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
