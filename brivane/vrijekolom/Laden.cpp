// Binding the editor to a free column and filling it. Loading only reads, but for one field of a product
// without a kind (Product.cpp).

#include <string>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/LayoutHelpers.h>
#include <brivane/vrijekolom/FiscaleOpties.h>
#include <brivane/vrijekolom/Looptijd.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/Teksten.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane {

using namespace vrijekolom;

namespace {

/// Room beside a person's name for the option's circle.
constexpr host::Twips kOptieMarge{450};

}  // namespace

void VrijeKolom::SetApplication(const std::shared_ptr<host::Application>& Application, std::int16_t Len_Id,
                                std::int16_t Vrij_Id) {
  tracing_.Handled("SetApplication", [&] {
    Filling_ = true;
    Application_ = Application;
    Dossier_ = host::Need(Application_).Dossier();
    // Both are asked: the host must answer the look-up by identifier for the current situation too.
    const std::shared_ptr<host::Lening> huidig = host::Need(Dossier_).HuidigeLening();
    const std::shared_ptr<host::Lening> genummerd = Dossier_->Lening(Len_Id);
    Lening_ = Len_Id == kHuidigeSituatie ? huidig : genummerd;
    Item_ = host::Need(Lening_).VrijeKolommen(Vrij_Id);
    // Another column brings no changes of its own yet; the same one bound anew keeps its mark.
    if (Application != Gebonden_.lock() || Len_Id != Len_Id_ || Vrij_Id != Vrij_Id_) Gewijzigd_ = false;
    Gebonden_ = Application;
    Len_Id_ = Len_Id;
    Vrij_Id_ = Vrij_Id;
    HuidigeSituatie_ = Len_Id == kHuidigeSituatie;
    Initialised_ = true;
    Fill_Controls();
    UserControl_Resize();
    Filling_ = false;
  });
}

void VrijeKolom::Fill_Controls() {
  tracing_.Handled("Fill_Controls", [this] {
    controls_(optLast, Record().CorrectieLast()).SetValue(true);
    controls_(optFiscaal, Record().CorrectieFiscaal()).SetValue(true);
    Check_FraFiscaal();
    Fill_fraAlgemeen();
    controls_[TxtOm].SetText(Record().Omschrijving());
    ToonBedrag();
    controls_[cmdScenario].SetEnabled(Record().Termijn() != kEenmalig);
    KiesTermijn();
    // The burden correction is read only as far as it matters.
    const std::int16_t fiscaal = Record().CorrectieFiscaal();
    controls_[jnInkUitArbeid].SetEnabled(KanInkomenUitArbeidZijn(kBijdrage, fiscaal) &&
                                         KanInkomenUitArbeidZijn(Record().CorrectieLast(), fiscaal));
    controls_[jnInkUitArbeid].SetValue(Record().InkomenUitArbeid() ? host::kJa : host::kNee);
    controls_[jnInDagloon].SetEnabled(controls_[jnInkUitArbeid].Enabled());
    controls_[jnInDagloon].SetValue(Record().InDagloon() ? host::kJa : host::kNee);
    VulHeffing();
    Fill_Product();
    HerbindToelichting();
  });
}

void VrijeKolom::Fill_fraAlgemeen() {
  tracing_.Handled("Fill_fraAlgemeen", [this] {
    IsContract_ = IsContractsoort(Record().Productsoort());
    controls_[TxtDtAanvang].SetDate(Record().DatumAanvang());
    if (IsContract_) {
      controls_[txtVervaldatum].SetDate(Record().Contractvervaldatum());
    } else {
      const bool heeftEinde = Record().Looptijd() != 0 && !Record().DatumAanvang().IsNone();
      controls_[TxtDtEind].SetDate(heeftEinde ? EinddatumVanRecord() : host::kNoDate);
      controls_[TxtDtEind].SetEnabled(Record().Termijn() != kEenmalig && !Record().DatumAanvang().IsNone());
      controls_[TxtAnJaar].SetNumber(Jaren(Record().Looptijd()));
      controls_[TxtAnJaar].SetEnabled(Record().Termijn() != kEenmalig);
      controls_[TxtAnMaand].SetNumber(Restmaanden(Record().Looptijd()));
      controls_[TxtAnMaand].SetEnabled(Record().Termijn() != kEenmalig);
    }
    controls_[fraLooptijd].SetVisible(!IsContract_);
    controls_[fraVervaldatum].SetVisible(IsContract_);
    for (std::int16_t v = 1; v <= kVoorstellen; ++v)
      controls_(ChkVoorstel, v).SetValue(Record().Voorstel(v) == kInVoorstel ? host::kTicked : host::kUnticked);
    controls_[fraBeeindigen].SetVisible(false);
    if (BeeindigenZichtbaar_) controls_[fraBeeindigen].SetVisible(true);
  });
}

void VrijeKolom::ToonBedrag() {
  const std::shared_ptr<host::BedragObject> bedrag = Record().Bedrag();
  controls_[TxtBd].SetNumber(host::Need(bedrag).Basisbedrag());
}

void VrijeKolom::KiesTermijn() {
  host::ListBox& lijst = controls_[cboTermijn];
  lijst.SetListIndex(host::kNoSelection);
  for (int i = 0; i < lijst.ListCount(); ++i) {
    if (lijst.ItemData(i) != Record().Termijn()) continue;
    lijst.SetListIndex(i);
    break;
  }
}

void VrijeKolom::VulHeffing() {
  controls_[fraHeffing].SetCaption(std::string(IsContract_ ? kContractant : kHeffingBij));
  host::OptionButton& aanvrager = controls_(optAanvrager, kAanvrager);
  host::OptionButton& partner = controls_(optAanvrager, kPartner);
  // Both captions are fitted to the first option's width: the options share one.
  const auto naam = [&](std::int16_t persoon) {
    return frame::FitText(&surface_, Naam(persoon), aanvrager.Place().width - kOptieMarge);
  };
  aanvrager.SetCaption(naam(kAanvrager));
  partner.SetEnabled(host::Need(Dossier_).Persoon(kPartner) != nullptr);
  partner.SetCaption(partner.Enabled() ? naam(kPartner) : std::string());
  controls_(optAanvrager, Record().HeffingBij()).SetValue(true);
}

std::string VrijeKolom::Naam(std::int16_t persoon) {
  const std::array<std::string, 3> delen = host::Need(host::Need(Dossier_).Persoon(persoon)).Naam();
  return delen[0] + " " + delen[1] + " " + delen[2];
}

host::Date VrijeKolom::EinddatumVanRecord() {
  const host::Date aanvang = Record().DatumAanvang();
  return frame::AddMonths(aanvang, Record().Looptijd());
}

// The references are handed over as they are kept: what the callee leaves in them is kept on.
void VrijeKolom::HerbindToelichting() { Toelichting_.SetApplication(Application_, Lening_, Vrij_Id_); }

}  // namespace brivane
