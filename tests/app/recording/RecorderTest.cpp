// Recording without a screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "controls/Form.h"
#include "controls/Surface.h"
#include "frame/Calendar.h"
#include "replay/play/Session.h"
#include "tests/app/recording/RecordedSession.h"
#include "vrijekolom/Ontwerp.h"

namespace brivane::dossier {
namespace {

using controls::Enter;
using controls::Outcome;
using controls::Select;
using testing::Contains;

/// Those lines that begin so.
std::vector<std::string> Van(const std::vector<std::string>& regels, const std::vector<std::string>& begin) {
  std::vector<std::string> gevonden;
  for (const std::string& regel : regels)
    for (const std::string& naam : begin)
      if (regel.starts_with("{\"" + naam + '"')) gevonden.push_back(regel);
  return gevonden;
}

std::vector<std::string> SchrijvenEnGebeurtenissen(const std::vector<std::string>& regels) {
  return Van(regels, {"set", "event", "focus", "pending", "opened", "closed"});
}

class ZonderScherm final : public Opnamesessie {
 public:
  ZonderScherm() {
    memory::Desktop& machine = toolkit_.Desktop();
    machine.today = frame::MakeDate({2026, 11, 21});
    machine.answer = [this](const std::string& titel, const std::string& tekst, host::MessageStyle stijl) {
      const host::MessageAnswer antwoord = Antwoord(titel, tekst, stijl);
      Opname().Beantwoord(antwoord);
      return antwoord;
    };
    machine.pending = [this] {
      transcript_.Pending();
      if (wachtend_) std::exchange(wachtend_, nullptr)();
    };
    toolkit_.modal = [this](controls::Form& formulier) { std::exchange(werk_, nullptr)(formulier); };
    NeemOp(controls::Surface::Of(*vlak_));
    subscriptions_ +=
        editor_.RefreshTopDisplay.Connect([this](const std::string& tekst) { transcript_.RefreshTopDisplay(tekst); });
    subscriptions_ += editor_.HeightChanged.Connect([this] { transcript_.Event("HeightChanged"); });
    Volg(editor_);
  }
  ~ZonderScherm() override { LaatLos(); }

  [[nodiscard]] brivane::VrijeKolom& Editor() { return editor_; }
  [[nodiscard]] controls::Surface& Vlak() { return controls::Surface::Of(*vlak_); }

 private:
  void LaatWachten(std::function<void()> daad) override { wachtend_ = std::move(daad); }
  void OpFormulier(std::function<void(controls::Surface&)> werk) override { werk_ = std::move(werk); }

  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> vlak_ = toolkit_.MakeSurface(vrijekolom::kOntwerp);
  std::function<void()> wachtend_;
  std::function<void(controls::Surface&)> werk_;
  brivane::VrijeKolom editor_{*vlak_, toolkit_, host_.Factories()};
};

/// What a person can act on, of a design and those embedded in it.
void Bedienbaar(const frame::Design& ontwerp, const std::string& voor, std::set<std::string>& namen) {
  for (const frame::Row& rij : ontwerp.rows) {
    const std::string naam = voor + std::string(rij.name);
    switch (rij.kind) {
      case host::Kind::Surface: Bedienbaar(*rij.embedded, naam + '.', namen); break;
      case host::Kind::TextBox:
      case host::Kind::JaNee:
      case host::Kind::OptionButton:
      case host::Kind::CheckBox:
      case host::Kind::ListBox:
      case host::Kind::Button:
        namen.insert(rij.index == frame::kNoIndex ? naam : naam + '(' + std::to_string(rij.index) + ')');
        break;
      default: break;
    }
  }
}

TEST(Opnemer, ASessionThroughEveryControlReplaysWithTheSameTranscript) {
  ZonderScherm sessie;
  sessie.Speel();
  ASSERT_TRUE(sessie.Opname().Loopt());
  EXPECT_GE(sessie.acties, 60);

  std::set<std::string> alle;
  Bedienbaar(vrijekolom::kOntwerp, "", alle);
  for (const char* opFormulier : {"txtBedrag", "txtPercentage", "chkEenmalig", "chkAanvullen", "cmdOK"})
    alle.insert(std::string("frmScenario.") + opFormulier);
  for (const std::string& naam : alle) EXPECT_THAT(sessie.bediend, Contains(naam));

  // By way of a file, which the program takes.
  const std::string tekst = replay::WriteDocument(sessie.Opname().Document());
  const std::string pad = testing::TempDir() + "opname-" + std::to_string(::getpid()) + ".json";
  std::ofstream(pad) << tekst;
  EXPECT_EQ(std::system(("'" REPLAY_PROGRAM "' --check '" + pad + "'").c_str()), 0);
  std::remove(pad.c_str());
  const replay::Document document = replay::ReadDocument(tekst);
  const std::vector<std::string> nagespeeld = Regels(document);
  EXPECT_EQ(SchrijvenEnGebeurtenissen(nagespeeld), SchrijvenEnGebeurtenissen(sessie.live));
  // And in full: procedures, calls, messages with their answers, reports.
  EXPECT_EQ(nagespeeld, sessie.live);
  EXPECT_GT(Van(sessie.live, {"set"}).size(), 60u);
  EXPECT_GT(Van(sessie.live, {"message"}).size(), 3u);
  EXPECT_EQ(Van(sessie.live, {"opened"}).size(), 2u);
  EXPECT_EQ(Van(sessie.live, {"report"}).size(), 1u);
}

TEST(Opnemer, TheReplayedCaseHoldsWhatTheRecordedOneHolds) {
  ZonderScherm sessie;
  sessie.Speel();
  replay::Session nagespeeld(sessie.Opname().Document(), [](std::string_view) {});
  nagespeeld.Run();
  EXPECT_EQ(replay::ToJson(nagespeeld.Case().Gegevens()), replay::ToJson(sessie.Dossier().Gegevens()));
}

TEST(Opnemer, StepsStandWhereTheyRan) {
  ZonderScherm sessie;
  sessie.Bind(0, 1);
  sessie.Doe("optLast", Select{}, 3);
  sessie.Doe("cboTermijn", controls::Choose{3});
  EXPECT_EQ(sessie.Doe("TxtDtAanvang", Enter{}), Outcome::Refused);
  const replay::Document& document = sessie.Opname().Document();
  ASSERT_EQ(document.steps.size(), 5u);
  EXPECT_TRUE(std::get<replay::BeeindigenStep>(document.steps[0].what).visible);
  EXPECT_EQ(std::get<replay::BindStep>(document.steps[1].what).Vrij_Id, 1);
  EXPECT_EQ(std::get<replay::ActStep>(document.steps[2].what).index, 3);
  EXPECT_EQ(std::get<std::string>(std::get<replay::ActStep>(document.steps[3].what).action), "per jaar");
  // The changes are not carried over to the new loan; then the date is refused.
  EXPECT_EQ(document.steps[4].answers, (std::vector{host::MessageAnswer::No, host::MessageAnswer::Ok}));
  EXPECT_EQ(document.today, frame::MakeDate({2026, 11, 21}));
  EXPECT_EQ(document.dossier.HuidigeLening.VrijeKolommen.size(), 6u);
}

TEST(Opnemer, AnIgnoredActionIsNoStep) {
  ZonderScherm sessie;
  sessie.Bind(0, 1);
  EXPECT_EQ(sessie.Doe("TxtOm", controls::Press{}), Outcome::Ignored);
  EXPECT_EQ(sessie.Doe("cboTermijn", controls::Choose{99}), Outcome::Ignored);
  EXPECT_EQ(sessie.Opname().Document().steps.size(), 2u);
}

TEST(Opnemer, AChangeOfTheCaseBetweenStepsEndsTheRecordingBeforeTheNextOne) {
  ZonderScherm sessie;
  int gebroken = 0;
  sessie.Opname().gebroken = [&] { ++gebroken; };
  sessie.Bind(0, 1);
  sessie.Doe("TxtBd", Enter{500.0});
  const replay::Document voor = sessie.Opname().Document();
  sessie.Dossier().NieuweKolom(0);
  EXPECT_TRUE(sessie.Opname().Loopt());
  sessie.Bind(0, 2);
  sessie.Doe("TxtBd", Enter{40.0});
  EXPECT_FALSE(sessie.Opname().Loopt());
  EXPECT_EQ(gebroken, 1);
  EXPECT_EQ(replay::WriteDocument(sessie.Opname().Document()), replay::WriteDocument(voor));
  EXPECT_EQ(sessie.Dossier().ZoekKolom(0, 2)->Gegevens().Bedrag.Bedrag, 40);
}

TEST(Opnemer, TheHostInTheMiddleOfAStepEndsTheRecordingBeforeThatStep) {
  ZonderScherm sessie;
  sessie.Bind(0, 1);
  const std::size_t stappen = sessie.Opname().Document().steps.size();
  const host::Subscription luistert =
      sessie.Editor().RefreshTopDisplay.Connect([&](const std::string&) { sessie.Vlak().Size({10000}, {4000}); });
  sessie.Doe("TxtOm", Enter{std::string("Opvang")});
  EXPECT_FALSE(sessie.Opname().Loopt());
  EXPECT_EQ(sessie.Opname().Document().steps.size(), stappen);
}

}  // namespace
}  // namespace brivane::dossier
