#include "tests/app/recording/RecordedSession.h"

#include <gtest/gtest.h>

#include <utility>

#include "controls/Form.h"
#include "controls/Surface.h"
#include "dossier/model/DossierControle.h"
#include "dossier/model/SampleCase.h"
#include "frame/Calendar.h"
#include "replay/play/Session.h"

namespace brivane::dossier {
namespace {

using controls::Choose;
using controls::Close;
using controls::Enter;
using controls::Outcome;
using controls::Press;
using controls::Select;
using controls::Tick;
using controls::Toggle;
using replay::Log;

constexpr auto kJa = host::MessageAnswer::Yes;
constexpr auto kNee = host::MessageAnswer::No;

host::Date Datum(int dag, int maand, int jaar) { return frame::MakeDate({.year = jaar, .month = maand, .day = dag}); }
Enter Tekst(const char* tekst) { return Enter{std::string(tekst)}; }

const std::set<Log> kGelogd{Log::Trace, Log::Writes, Log::Calls, Log::Events, Log::Messages};

std::shared_ptr<Dossier> Voorbeeld() {
  auto omgeving = std::make_shared<Omgeving>();
  omgeving->Kopteksten = std::make_shared<BerekendeKopteksten>();
  return std::make_shared<Dossier>(VoorbeeldDossier(), std::move(omgeving));
}

host::HostFactories Fabrieken() {
  return {[](std::string_view) { return std::make_shared<Tracer>(); },
          [](std::string_view) { return std::make_shared<DossierControle>([] { return Datum(21, 11, 2026); }); }};
}

}  // namespace

Opnamesessie::Opnamesessie()
    : dossier_(Voorbeeld()),
      transcript_([this](std::string_view regel) { live.emplace_back(regel); }, kGelogd),
      host_(std::make_shared<Application>(dossier_), Fabrieken(), transcript_) {}

void Opnamesessie::NeemOp(controls::Surface& vlak) {
  vlak_ = &vlak;
  opnemer_ = std::make_unique<Opnemer>(dossier_, vlak, "nl_NL");
  vlak.MadeBy().focusMoved = [this](controls::AnyControl& control) { transcript_.Focus(control.ElementName()); };
}

void Opnamesessie::Volg(brivane::VrijeKolom& editor) {
  editor_ = &editor;
  subscriptions_ += editor.Toelichting().Changed.Connect([this] { transcript_.Event("Toelichting.Changed"); });
  subscriptions_ += editor.ScenarioGeopend.Connect([this](frmScenario& formulier) {
    transcript_.Opened(formulier.BackColor(), formulier.AantalJaar());
    gesloten_ = formulier.Form().Unloaded.Connect([this] { transcript_.Closed(); });
  });
}

host::MessageAnswer Opnamesessie::Antwoord(const std::string& titel, const std::string& tekst,
                                           host::MessageStyle stijl) {
  host::MessageAnswer antwoord = stijl == host::MessageStyle::YesNoQuestion ? kNee : host::MessageAnswer::Ok;
  if (!antwoorden_.empty()) {
    antwoord = antwoorden_.front();
    antwoorden_.pop_front();
  }
  transcript_.Message(titel, tekst, stijl, antwoord);
  return antwoord;
}

void Opnamesessie::Bind(std::int16_t Len_Id, std::int16_t Vrij_Id) {
  const bool huidig = Len_Id == Dossier::kHuidig;
  opnemer_->Doe(replay::BeeindigenStep{huidig}, [&] { editor_->SetBeeindigenZichtbaar(huidig); });
  opnemer_->Doe(replay::BindStep{Len_Id, Vrij_Id},
                [&] { editor_->SetApplication(host_.Application(), Len_Id, Vrij_Id); });
}

bool Opnamesessie::Verlaat(std::deque<host::MessageAnswer> antwoorden) {
  antwoorden_ = std::move(antwoorden);
  bool cancel = false;
  opnemer_->Doe(replay::ValidationStep{replay::Target::Editor, 0, false}, [&] { editor_->Validation(cancel); });
  EXPECT_TRUE(antwoorden_.empty()) << "an answer that nobody asked for";
  return !cancel;
}

Outcome Opnamesessie::Doe(controls::Surface& vlak, const std::string& naam, const controls::Action& actie, int index) {
  controls::AnyControl* const control = vlak.Find(naam, index);
  if (control == nullptr) {
    ADD_FAILURE() << "no control " << naam << '(' << index << ')';
    return Outcome::Ignored;
  }
  ++acties;
  const bool opFormulier = &vlak != vlak_;
  const std::string element = opFormulier ? "frmScenario." + naam : control->ElementName();
  const Outcome uitkomst = control->Perform(actie);
  if (uitkomst != Outcome::Ignored) bediend.insert(element);
  return uitkomst;
}

Outcome Opnamesessie::Doe(const std::string& naam, const controls::Action& actie, int index,
                          std::deque<host::MessageAnswer> antwoorden) {
  antwoorden_ = std::move(antwoorden);
  const Outcome uitkomst = Doe(*vlak_, naam, actie, index);
  EXPECT_TRUE(antwoorden_.empty()) << "an answer that nobody asked for: " << naam;
  return uitkomst;
}

void Opnamesessie::Speel() {
  Bind(0, 1);
  opnemer_->Doe(replay::BackColorStep{host::Color{0xC0C0C0}}, [&] { editor_->SetBackColor(host::Color{0xC0C0C0}); });
  vlak_->Size({11000}, {5000});
  Keuzes();
  Looptijd();
  Product();
  Toelichting();
  Formulier();
}

void Opnamesessie::Keuzes() {
  for (const int last : {3, 2, 1}) Doe("optLast", Select{}, last);
  for (const int fiscaal : {1, 2, 3}) Doe("optFiscaal", Select{}, fiscaal);
  Doe("optLast", Select{}, 2);
  for (const int fiscaal : {3, 1, 2}) Doe("optFiscaal", Select{}, fiscaal);
  Doe("jnInkUitArbeid", Toggle{host::kJa});
  Doe("jnInDagloon", Toggle{host::kJa});
  Doe("jnInkUitArbeid", Toggle{host::kNee});
  for (const int persoon : {2, 1, 2}) Doe("optAanvrager", Select{}, persoon);
  Doe("TxtOm", Tekst("Buitenschoolse opvang, « naschools »"));
  Doe("TxtBd", Enter{512.755});
  for (const int termijn : {1, 2, 3, 4, 0}) Doe("cboTermijn", Choose{termijn});
  for (const int voorstel : {1, 2, 3}) Doe("ChkVoorstel", Tick{host::kTicked}, voorstel);
  Doe("ChkVoorstel", Tick{host::kUnticked}, 2);
  // Changed, and deviated from in a new loan: the check asks, and "Ja" takes the deviation out.
  EXPECT_TRUE(Verlaat({kJa}));
  EXPECT_FALSE(dossier_->HeeftAfwijking(1));
}

void Opnamesessie::Looptijd() {
  Bind(0, 3);
  Doe("TxtDtAanvang", Enter{Datum(1, 5, 2025)});
  Doe("TxtAnJaar", Enter{4.0});
  Doe("TxtAnMaand", Enter{18.0});
  Doe("TxtDtEind", Enter{Datum(1, 8, 2030)});
  EXPECT_EQ(Doe("TxtDtEind", Enter{Datum(1, 1, 2020)}), Outcome::Refused);
  EXPECT_EQ(Doe("TxtDtAanvang", Enter{}), Outcome::Refused);
  EXPECT_FALSE(Verlaat());
  Doe("TxtDtAanvang", Enter{Datum(31, 1, 2025)});
  Doe("TxtDtEind", Enter{Datum(29, 2, 2028)});
  // Past the last year that there is: the handler fails and reports.
  Doe("TxtDtAanvang", Enter{Datum(1, 12, 9999)});
  Doe("TxtDtAanvang", Enter{Datum(31, 1, 2025)});
  EXPECT_TRUE(Verlaat());
}

void Opnamesessie::Product() {
  Bind(0, 6);
  Doe("txtMaatschappij", Tekst("TC De Eerste Bal"));
  Doe("txtVervaldatum", Enter{Datum(31, 12, 2029)});
  Doe("cboMaatschappij", Choose{3});
  Doe("cboProductsoort", Choose{0});
  Doe("cboProductsoort", Choose{4});
  Doe("txtProductsoort", Tekst("Contributie"));
  Doe("txtProductnaam", Tekst("Seniorlid, zaterdag"));
  Doe("jnUwBemiddeling", Toggle{host::kJa});
  Doe("chkProduct", Tick{host::kUnticked});
  // Out of reach without a product: ignored, and no part of the document.
  EXPECT_EQ(Doe("txtProductnaam", Tekst("nergens")), Outcome::Ignored);
  Doe("chkProduct", Tick{host::kTicked});
  Doe("cboProductsoort", Choose{2});
  Verlaat();
}

void Opnamesessie::Toelichting() {
  Bind(0, 5);
  Doe("Toelichting.jnAO", Toggle{host::kJa});
  Doe("Toelichting.jnWW", Toggle{host::kJa});
  Doe("Toelichting.jnLangleven", Toggle{host::kJa});
  Doe("Toelichting.jnOverlijden", Toggle{host::kNee});
  Doe("Toelichting.jnOverlijden", Toggle{host::kJa});
  Doe("Toelichting.TxtPcOvergang", Enter{62.5});
  Doe("Toelichting.txtEinddatum", Enter{Datum(1, 3, 2049)});
  Doe("Toelichting.TxtEindjaar", Enter{71.0});
  // Out of its range, while another edit waits for the check to let it run.
  LaatWachten([this] { Doe(*vlak_, "TxtOm", Tekst("Lijfrente, na overlijden"), frame::kNoIndex); });
  bool cancel = false;
  opnemer_->Doe(replay::ValidationStep{replay::Target::Toelichting, 0, false},
                [&] { editor_->Toelichting().Validation(cancel); });
  EXPECT_EQ(dossier_->ZoekKolom(0, 5)->Omschrijving(), "Lijfrente, na overlijden");
  Doe("Toelichting.TxtPcOvergang", Enter{101.0});
  Doe("Toelichting.TxtPcOvergang", Enter{70.0});
}

void Opnamesessie::Formulier() {
  // Amounts with a growth: stored with OK.
  OpFormulier([this](controls::Surface& vlak) {
    Doe(vlak, "txtBedrag", Enter{6000.0}, 1);
    Doe(vlak, "txtPercentage", Enter{2.25}, 2);
    Doe(vlak, "txtBedrag", Enter{7000.0}, 4);
    Doe(vlak, "chkAanvullen", Tick{host::kTicked}, frame::kNoIndex);
    Doe(vlak, "txtPercentage", Enter{3.0}, 5);
    Doe(vlak, "cmdOK", Press{}, frame::kNoIndex);
    // The form is gone.
    EXPECT_EQ(Doe(vlak, "txtBedrag", Enter{1.0}, 1), Outcome::Ignored);
  });
  Doe("cmdScenario", Press{});
  EXPECT_EQ(dossier_->ZoekKolom(0, 5)->Gegevens().Bedrag.Bedrag, 6000);
  Verlaat();

  // Amounts alone, with a one-off: closed without OK, so only the first row is kept.
  Bind(1, 7);
  const std::size_t perioden = dossier_->ZoekKolom(1, 7)->Gegevens().Bedrag.Perioden.size();
  OpFormulier([this](controls::Surface& vlak) {
    Doe(vlak, "txtBedrag", Enter{120.0}, 1);
    Doe(vlak, "chkEenmalig", Tick{host::kTicked}, 3);
    Doe(vlak, "txtBedrag", Enter{130.0}, 6);
    EXPECT_EQ(vlak.Perform(Close{}), Outcome::Done);
  });
  Doe("cmdScenario", Press{});
  EXPECT_EQ(dossier_->ZoekKolom(1, 7)->Gegevens().Bedrag.Bedrag, 120);
  EXPECT_EQ(dossier_->ZoekKolom(1, 7)->Gegevens().Bedrag.Perioden.size(), perioden);
  Doe("TxtAnMaand", Enter{200.0});
  EXPECT_TRUE(Verlaat());
}

std::vector<std::string> Regels(const replay::Document& document) {
  std::vector<std::string> regels;
  replay::Document gevraagd = document;
  gevraagd.log = kGelogd;
  replay::Session sessie(gevraagd, [&](std::string_view regel) {
    if (!regel.starts_with("{\"step\"")) regels.emplace_back(regel);
  });
  sessie.Run();
  return regels;
}

}  // namespace brivane::dossier
