// How the form is built and laid out for the scenario that it is opened on.

#include <string>
#include <string_view>

#include <brivane/frame/LayoutHelpers.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/scenario/Scenariolijst.h>
#include <brivane/scenario/Teksten.h>
#include <brivane/scenario/frmScenario.h>

namespace brivane {

using namespace scenario;
using host::Twips;

namespace {

constexpr std::size_t kAlle = std::string_view::npos;

std::string Vervang(std::string tekst, std::string_view van, std::string_view naar) {
  for (std::size_t plek = tekst.find(van); plek != kAlle; plek = tekst.find(van, plek + naar.size()))
    tekst.replace(plek, van.size(), naar);
  return tekst;
}

std::string_view Kop(Invoersoort soort) {
  switch (soort) {
    case Invoersoort::Percentage: return kKopPercentage;
    case Invoersoort::Bedrag: return kKopBedrag;
    default: return kKopBeide;
  }
}

}  // namespace

void frmScenario::BouwRooster(std::int16_t AantalJaar, std::int32_t Labeltype, bool In_RenteKorting) {
  aantalJaar_ = AantalJaar;
  opzet_.rijen = Rijaantal(AantalJaar);
  opzet_.korting = In_RenteKorting ? Kortingkolom::Met : Kortingkolom::Zonder;
  opzet_.overbrugging = Bron().Naam() == kOverbruggingskrediet ? Overbrugging::Ja : Overbrugging::Nee;
  host::CheckBox& aanvullen = controls_[chkAanvullen];
  if (IsOverbrugging()) aanvullen.SetCaption(Vervang(aanvullen.Caption(), kVervolgjaren, kVervolgmaanden));
  opzet_.soort = SoortVan(Bron().Invoersoort());
  host::Label& kop = controls_[lblRente];
  kop.SetCaption(std::string(Kop(opzet_.soort)));
  // It stands over two boxes then, and is too long for the narrowest column with larger text.
  if (opzet_.MetBedrag() && opzet_.MetPercentage())
    kop.Write(host::Measure::Width,
              (controls_[txtBedrag].Place().width + kTussen + controls_[txtPercentage].Place().width).value);
  if (Labeltype == 0) controls_[lblJaar].Write(host::Measure::Width, kSmalLabel.value);

  const Indeling indeling = DeelIn(opzet_, rooster_.Templates());
  rooster_.Bouw(opzet_, indeling,
                [this](int rij) { return rij > kVergrendelbaar || !vergrendeld_[static_cast<std::size_t>(rij - 1)]; });
  SchikFormulier(indeling);
}

void frmScenario::SchikFormulier(const Indeling& indeling) {
  const bool meerRijen = opzet_.rijen > 1;
  host::CheckBox& aanvullen = controls_[chkAanvullen];
  const Twips rechts = meerRijen ? frame::Larger(indeling.rechts, aanvullen.Place().Right()) : indeling.rechts;
  host::Frame& kader = controls_[fraScenario];
  kader.Move({kader.Place().left, kader.Place().top, rechts + kMarge, indeling.kaderHoogte});

  aanvullen.SetEnabled(meerRijen);
  aanvullen.SetVisible(meerRijen);

  host::Button& knop = controls_[cmdOK];
  const host::Place was = knop.Place();
  knop.Move({kader.Place().Right() - was.width, kader.Place().Bottom() + kOmKnop, was.width, was.height});

  const host::Place venster = form_->Place();
  const Twips rand = venster.width - form_->ScaleWidth();
  const Twips titel = venster.height - form_->ScaleHeight();
  const host::Place onder = knop.Place();
  form_->Move({venster.left, venster.top, onder.Right() + kOmKnop + rand, onder.Bottom() + kOmKnop + titel});

  host::Frame& totaal = controls_[fraTotaal];
  const host::Place totaalplaats = totaal.Place();
  totaal.Move({totaalplaats.left, onder.top, totaalplaats.width, totaalplaats.height});
  totaal.SetVisible(IsOverbrugging());
  controls_[hntRentescenario].SetVisible(Bron().Naam() == kRente);
}

}  // namespace brivane
