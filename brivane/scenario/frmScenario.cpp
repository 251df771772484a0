#include <string>

#include <brivane/frame/Conversions.h>
#include <brivane/frame/ErrorReport.h>
#include <brivane/frame/LayoutHelpers.h>
#include <brivane/host/Error.h>
#include <brivane/scenario/Groei.h>
#include <brivane/scenario/Laden.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/scenario/Opnamecontrole.h>
#include <brivane/scenario/Opslag.h>
#include <brivane/scenario/Scenariolijst.h>
#include <brivane/scenario/Teksten.h>
#include <brivane/scenario/frmScenario.h>

namespace brivane {

using namespace scenario;

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
