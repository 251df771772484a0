#include "scenario/frmScenario.h"

#include <string>
#include <string_view>

#include "frame/Conversions.h"
#include "frame/ErrorReport.h"
#include "frame/LayoutHelpers.h"
#include "host/Error.h"
#include "scenario/Groei.h"
#include "scenario/Laden.h"
#include "scenario/Ontwerp.h"
#include "scenario/Opnamecontrole.h"
#include "scenario/Opslag.h"
#include "scenario/Scenariolijst.h"
#include "scenario/Teksten.h"

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

frmScenario::frmScenario(frame::Toolkit& toolkit)
    : desktop_(toolkit.Desktop()), form_(toolkit.MakeForm(kOntwerp)), controls_(*form_), rooster_(*form_) {
  rooster_.BedragBewerkt = [this](int rij) { txtBedrag_Validation(rij); };
  rooster_.PercentageBewerkt = [this](int rij) { txtPercentage_Validation(rij); };
  rooster_.KortingBewerkt = [this](int rij) { txtKorting_Validation(rij); };
  subscriptions_ += controls_[cmdOK].Click.Connect([this] { cmdOK_Click(); });
  subscriptions_ += form_->Activate.Connect([this] { Form_Activate(); });
  subscriptions_ += form_->Unloaded.Connect([this] { scenario_.reset(); });
  Form_Load();
}

frmScenario::~frmScenario() = default;

template <class Body> void frmScenario::Guarded(Body&& body) {
  try {
    body();
  } catch (...) {
    ToonFout();
  }
}

void frmScenario::ToonFout() {
  const host::Error fout = frame::CurrentError();
  desktop_.ProcedureFailed.Raise();
  std::string tekst(frame::kReportMessage);
  tekst += kRegeleinde;
  tekst += std::to_string(fout.Number()) + ": " + fout.Description();
  desktop_.MessageBox(std::string(frame::kReportCaption), tekst, host::MessageStyle::OkExclamation);
}

void frmScenario::Invoeren(const std::shared_ptr<host::BedragObject>& Scenario, std::int16_t AantalJaar,
                           std::int32_t Labeltype, std::int32_t /*Anv_Leeftijd*/, bool /*LooptijdExtra*/,
                           bool In_RenteKorting, double Bd_MaxOpname) {
  try {
    scenario_ = Scenario;
    maxOpname_ = Bd_MaxOpname;
    BouwRooster(AantalJaar, Labeltype, In_RenteKorting);
    Laad();
  } catch (...) {
    // The caller learns of it too, after the adviser has seen it.
    ToonFout();
    throw;
  }
}

void frmScenario::SetDisableJaar(std::int16_t Jr, bool NewValue) {
  if (Jr < 1 || Jr > kVergrendelbaar) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  vergrendeld_[static_cast<std::size_t>(Jr - 1)] = NewValue;
}

std::int16_t frmScenario::SoortScenario() const { return soortScenario_; }

void frmScenario::SetSoortScenario(std::int16_t soort) { soortScenario_ = soort; }

host::Color frmScenario::BackColor() const { return form_->BackColor().value_or(host::kButtonFace); }

void frmScenario::SetBackColor(host::Color New_Color) { form_->SetBackColor(New_Color); }

void frmScenario::ShowModal(host::Hoofdvenster* eigenaar) { form_->ShowModal(eigenaar); }

host::Form& frmScenario::Form() { return *form_; }

std::int16_t frmScenario::AantalJaar() const { return aantalJaar_; }

const std::shared_ptr<host::BedragObject>& frmScenario::Scenario() const { return scenario_; }

bool frmScenario::Gewijzigd() const { return gewijzigd_; }

void frmScenario::Form_Load() {
  Guarded([this] { frame::ScaleToResolution(desktop_, form_->Controls(), *form_); });
}

void frmScenario::Form_Activate() {
  Guarded([this] { frame::ReplaceColor(form_->Controls(), BackColor()); });
}

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

void frmScenario::Laad() {
  switch (opzet_.soort) {
    case Invoersoort::Bedrag: return LaadBedragen();
    case Invoersoort::Percentage: return LaadPercentages();
    case Invoersoort::BedragEnPercentage: return LaadGroei();
    case Invoersoort::Onbekend: return;
  }
}

void frmScenario::LaadBedragen() {
  // Of a bridging loan the base value is in no row but the first, which has an entry of its own.
  const double basis = IsOverbrugging() ? 0 : Bron().Bedrag();
  const auto posten = LeesBedragen(Bron(), opzet_.rijen, opzet_.overbrugging);
  int rij = 0;
  for (const Bedragrij& waarde : scenario::LaadBedragen(opzet_.rijen, opzet_.overbrugging, basis, posten)) {
    rooster_.ZetBedrag(++rij, waarde.bedrag);
    if (!IsOverbrugging()) rooster_.ZetEenmalig(rij, waarde.eenmalig);
  }
  if (IsOverbrugging()) ToonTotaal();
}

void frmScenario::LaadPercentages() {
  const double basis = Bron().Bedrag();
  const auto posten = LeesPercentages(Bron(), opzet_.rijen, opzet_.korting);
  int rij = 0;
  for (const Renterij& waarde : scenario::LaadPercentages(opzet_.rijen, opzet_.korting, basis, posten)) {
    rooster_.ZetPercentage(++rij, waarde.percentage);
    if (opzet_.MetKorting()) rooster_.ZetKorting(rij, waarde.korting);
  }
}

void frmScenario::LaadGroei() {
  int rij = 0;
  for (const double percentage : scenario::LaadGroei(opzet_.rijen, LeesGroei(Bron(), opzet_.rijen)))
    rooster_.ZetPercentage(++rij, percentage);
  rooster_.ZetBedrag(1, Bron().Bedrag());
  Groei(rooster_, 1);
}

void frmScenario::txtBedrag_Validation(int Index) {
  Guarded([&] {
    if (Index == 1) {
      const double bedrag = rooster_.Bedrag(1);
      Bron().SetBedrag(bedrag);
    }
    switch (SoortVan(Bron().Invoersoort())) {
      case Invoersoort::Bedrag:
        if (Aanvullen()) VulBedragDoor(rooster_, Index);
        if (IsOverbrugging()) ToonTotaal();
        break;
      case Invoersoort::BedragEnPercentage:
        LeidPercentageAf(rooster_, Index);
        if (Aanvullen())
          VulBedragDoor(rooster_, Index);
        else
          Groei(rooster_, Index);
        break;
      default: break;
    }
    gewijzigd_ = true;
  });
}

void frmScenario::txtPercentage_Validation(int Index) {
  Guarded([&] {
    const Invoersoort soort = SoortVan(Bron().Invoersoort());
    if (soort == Invoersoort::Percentage && Index == 1) {
      const double netto = rooster_.Percentage(1) - rooster_.Korting(1);
      Bron().SetBedrag(frame::Finite(netto));
    }
    switch (soort) {
      case Invoersoort::Percentage:
        if (Aanvullen()) VulPercentageDoor(rooster_, Index);
        break;
      case Invoersoort::BedragEnPercentage:
        if (Aanvullen())
          GroeiGelijk(rooster_, Index);
        else
          Groei(rooster_, Index);
        break;
      default: break;
    }
    gewijzigd_ = true;
  });
}

void frmScenario::txtKorting_Validation(int Index) {
  Guarded([&] {
    if (SoortVan(Bron().Invoersoort()) != Invoersoort::Percentage || Index != 1) return;
    // Taken off what the scenario holds, at every edit anew; the percentage box starts over.
    const double basis = Bron().Bedrag() - rooster_.Korting(1);
    Bron().SetBedrag(frame::Finite(basis));
  });
}

void frmScenario::Validation(bool& Cancel, std::int32_t ControleNr) {
  Guarded([&] { ControleerOpname(Cancel, ControleNr); });
}

void frmScenario::ControleerOpname(bool& Cancel, std::int32_t ControleNr) {
  if (ControleNr == kControleAlles) desktop_.DoPendingEvents();
  std::string meldingen;
  if (!Cancel && (ControleNr == kControleAlles || ControleNr == kControleOpname) && maxOpname_ != 0 &&
      rooster_.Totaal() > maxOpname_) {
    VoegMeldingToe(meldingen, OpnameMelding(desktop_.FormatWhole(maxOpname_)));
    Cancel = true;
  }
  if (meldingen.empty()) return;
  std::string tekst(kOnjuisteInvoer);
  VoegMeldingToe(tekst, meldingen);
  desktop_.MessageBox(form_->Caption(), tekst, host::MessageStyle::OkExclamation);
  Cancel = true;
}

void frmScenario::cmdOK_Click() {
  Guarded([this] {
    const Invoersoort soort = SoortVan(Bron().Invoersoort());
    if (soort == Invoersoort::Bedrag && IsOverbrugging()) {
      bool Cancel = false;
      ControleerOpname(Cancel, kControleOpname);
      if (Cancel) return;
    }
    BewaarAlsGeheel(soort);
    form_->Unload();
  });
}

void frmScenario::BewaarAlsGeheel(Invoersoort soort) {
  OpslagBegint.Raise();
  try {
    Bewaar(soort);
  } catch (...) {
    OpslagEindigt.Raise();
    throw;
  }
  OpslagEindigt.Raise();
}

void frmScenario::Bewaar(Invoersoort soort) {
  host::BedragObject& bron = Bron();
  switch (soort) {
    case Invoersoort::Bedrag:
      MaakLeeg(bron);
      BewaarBedragen(rooster_, opzet_.overbrugging, soortScenario_, maandbasis_,
                     [&](const Bedragpost& post) { Schrijf(bron, post, opzet_.overbrugging); });
      return;
    case Invoersoort::Percentage: {
      MaakLeeg(bron);
      const double netto = rooster_.Percentage(1) - rooster_.Korting(1);
      bron.SetBedrag(frame::Finite(netto));
      BewaarPercentages(rooster_, opzet_.korting,
                        [&](std::int16_t maand, const auto& lees) { Schrijf(bron, maand, lees, opzet_.korting); });
      return;
    }
    case Invoersoort::BedragEnPercentage: {
      MaakLeeg(bron);
      const double bedrag = rooster_.Bedrag(1);
      bron.SetBedrag(bedrag);
      BewaarGroei(rooster_, [&](const Groeipost& post) { Schrijf(bron, post); });
      return;
    }
    case Invoersoort::Onbekend: return;
  }
}

void frmScenario::ToonTotaal() { controls_[txtTotaal].SetNumber(rooster_.Totaal()); }

host::BedragObject& frmScenario::Bron() const { return host::Need(scenario_); }

bool frmScenario::Aanvullen() const { return controls_[chkAanvullen].Value() == host::kTicked; }

}  // namespace brivane
