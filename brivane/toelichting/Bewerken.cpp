#include <brivane/frame/Calendar.h>
#include <brivane/frame/Conversions.h>
#include <brivane/toelichting/Controlenummers.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane {

using namespace toelichting;

bool Toelichting::OverlijdenJa() const { return controls_[jnOverlijden].Value() == host::kJa; }

host::Date Toelichting::Geboortedatum() {
  const std::int16_t persoon = host::Need(Item_).HeffingBij();
  return host::Need(host::Need(Dossier_).Persoon(persoon)).Geboortedatum();
}

void Toelichting::jnAO_Change() {
  if (Filling_) return;
  tracing_.Handled("jnAO_Change", [this] {
    host::Need(Item_).SetUitsluitenAO(controls_[jnAO].Value() == host::kNee);
    Changed.Raise();
  });
}

void Toelichting::jnWW_Change() {
  if (Filling_) return;
  tracing_.Handled("jnWW_Change", [this] {
    host::Need(Item_).SetUitsluitenWW(controls_[jnWW].Value() == host::kNee);
    Changed.Raise();
  });
}

void Toelichting::jnLangleven_Change() {
  if (Filling_) return;
  tracing_.Handled("jnLangleven_Change", [this] {
    host::Need(Item_).SetUitsluitenLangleven(controls_[jnLangleven].Value() == host::kNee);
    Changed.Raise();
  });
}

void Toelichting::jnOverlijden_Change() {
  if (Filling_) return;
  tracing_.Handled("jnOverlijden_Change", [this] {
    host::VrijeKolomItem& item = host::Need(Item_);
    host::TextBox& percentage = controls_[TxtPcOvergang];
    host::TextBox& einddatum = controls_[txtEinddatum];
    host::TextBox& eindjaar = controls_[TxtEindjaar];
    item.SetScenarioOverlijden(OverlijdenJa());

    percentage.SetEnabled(OverlijdenJa());
    if (!percentage.Enabled()) percentage.SetNumber(0);
    item.SetPercentageOvergang(frame::ToSingle(percentage.Number()));

    einddatum.SetEnabled(OverlijdenJa());
    if (!einddatum.Enabled()) einddatum.SetDate(host::kNoDate);
    controls_[lblSlash].SetEnabled(OverlijdenJa());
    item.SetEinddatumOvergang(einddatum.DateValue());

    eindjaar.SetEnabled(OverlijdenJa());
    if (!eindjaar.Enabled()) eindjaar.SetNumber(0);
    item.SetEindleeftijdOvergang(frame::ToInteger16(eindjaar.Number()));
    Changed.Raise();
  });
}

void Toelichting::TxtPcOvergang_Validation(bool& Cancel) {
  tracing_.Handled("TxtPcOvergang_Validation", [&] {
    Validation(Cancel, kControlePercentage);
    if (Cancel) return;
    const float percentage = frame::ToSingle(controls_[TxtPcOvergang].Number());
    host::Need(Item_).SetPercentageOvergang(percentage);
    Changed.Raise();
  });
}

// End date and end age are two views of one value: each is worked out anew from the other, by the birth
// date of the person whose column it is. The last one edited wins.

void Toelichting::TxtEinddatum_Validation(bool& Cancel) {
  tracing_.Handled("TxtEinddatum_Validation", [&] {
    Validation(Cancel, kControleEinddatum);
    if (Cancel) return;
    const host::Date einddatum = controls_[txtEinddatum].DateValue();
    host::Need(Item_).SetEinddatumOvergang(einddatum);
    host::TextBox& eindjaar = controls_[TxtEindjaar];
    eindjaar.SetNumber(frame::YearsBetween(Geboortedatum(), einddatum));
    host::Need(Item_).SetEindleeftijdOvergang(frame::ToInteger16(eindjaar.Number()));
    Changed.Raise();
  });
}

void Toelichting::TxtEindjaar_Validation(bool& Cancel) {
  tracing_.Handled("TxtEindjaar_Validation", [&] {
    Validation(Cancel, kControleEindleeftijd);
    if (Cancel) return;
    const std::int16_t eindleeftijd = frame::ToInteger16(controls_[TxtEindjaar].Number());
    host::Need(Item_).SetEindleeftijdOvergang(eindleeftijd);
    host::TextBox& einddatum = controls_[txtEinddatum];
    einddatum.SetDate(frame::AddYears(Geboortedatum(), eindleeftijd));
    host::Need(Item_).SetEinddatumOvergang(einddatum.DateValue());
    Changed.Raise();
  });
}

}  // namespace brivane
