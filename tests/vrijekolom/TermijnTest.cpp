// The term, the proposals and the year-by-year form.

#include "scenario/Ontwerp.h"
#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace vrijekolom;

class TermTest : public EditorTest {
 protected:
  void BindRecurring() {
    kolom_.velden.DatumAanvang = D(2024, 1, 31);
    kolom_.velden.Looptijd = 14;
    kolom_.bedrag->Voeg({.Maand = 13, .Bedrag = 100});
    kolom_.bedrag->Voeg({.Maand = 25, .Bedrag = 200});
    BindUnheard();
  }
};

TEST_F(TermTest, EmptiesDurationAndScenarioOfAOneOff) {
  BindRecurring();
  Pick(on_[cboTermijn], "eenmalig");
  EXPECT_THAT(Log(),
              ElementsAre("enter CboTermijn_Click", "set Termijn=99", "set Looptijd=0", "call VerwijderPeriode(1)",
                          "call VerwijderPeriode(1)", "event RefreshTopDisplay de weergave", "leave"));
  EXPECT_EQ(on_[TxtDtEind].DateValue(), host::kNoDate);
  EXPECT_EQ(on_[TxtAnJaar].Number(), 0);
  EXPECT_EQ(on_[TxtAnMaand].Number(), 0);
  EXPECT_FALSE(on_[TxtDtEind].Enabled());
  EXPECT_FALSE(on_[TxtAnJaar].Enabled());
  EXPECT_FALSE(on_[TxtAnMaand].Enabled());
  EXPECT_FALSE(on_[cmdScenario].Enabled());
  EXPECT_TRUE(editor_->Gewijzigd());
}

TEST_F(TermTest, RestoresNothingWhenAOneOffBecomesRecurring) {
  BindRecurring();
  Pick(on_[cboTermijn], "eenmalig");
  Forget();
  Pick(on_[cboTermijn], "per jaar");
  EXPECT_THAT(Log(),
              ElementsAre("enter CboTermijn_Click", "set Termijn=12", "event RefreshTopDisplay de weergave", "leave"));
  EXPECT_TRUE(on_[TxtDtEind].Enabled());
  EXPECT_TRUE(on_[TxtAnJaar].Enabled());
  EXPECT_TRUE(on_[TxtAnMaand].Enabled());
  EXPECT_TRUE(on_[cmdScenario].Enabled());
  EXPECT_THAT(kolom_.bedrag->perioden, IsEmpty());
  EXPECT_EQ(kolom_.velden.Looptijd, 0);
}

TEST_F(TermTest, EnablesNoEndDateWithoutAStartDate) {
  kolom_.velden.Termijn = 99;
  BindUnheard();
  Pick(on_[cboTermijn], "per maand");
  EXPECT_FALSE(on_[TxtDtEind].Enabled());
  EXPECT_TRUE(on_[TxtAnJaar].Enabled());
}

TEST_F(TermTest, StoresTheCodeOfEachEntry) {
  kolom_.velden.Termijn = 99;
  BindUnheard();
  for (const auto& [text, code] :
       {std::pair{"per maand", 1}, std::pair{"per kwartaal", 3}, std::pair{"per half jaar", 6},
        std::pair{"per jaar", 12}, std::pair{"eenmalig", 99}}) {
    Pick(on_[cboTermijn], text);
    EXPECT_EQ(kolom_.velden.Termijn, code);
  }
}

TEST_F(TermTest, GoesByTheTermAsTheRecordKeepsIt) {
  BindRecurring();
  kolom_.adjust = [](KolomVelden& velden, std::string_view veld) {
    if (veld == "Termijn") velden.Termijn = 99;
  };
  Pick(on_[cboTermijn], "per jaar");
  EXPECT_EQ(kolom_.velden.Looptijd, 0);
  EXPECT_FALSE(on_[cmdScenario].Enabled());
}

TEST_F(TermTest, DoesNothingWithoutASelection) {
  BindRecurring();
  on_[cboTermijn].SetListIndex(host::kNoSelection);
  EXPECT_THAT(Log(), IsEmpty());
}

class ProposalTest : public EditorTest {
 protected:
  void BindIn(const std::array<std::string, 3>& voorstellen) {
    kolom_.velden.Voorstel = voorstellen;
    editor_->SetBeeindigenZichtbaar(true);
    BindUnheard();
  }
  void Tick(int voorstel, int value) { Act(on_(ChkVoorstel, voorstel), controls::Tick{value}); }
};

TEST_F(ProposalTest, TakesOutOneAndRegistersEveryOther) {
  BindIn({"J", "J", "J"});
  Tick(2, host::kUnticked);
  EXPECT_THAT(Log(), ElementsAre("enter ChkVoorstel_Click", "set Voorstel(2)=\"N\"", "call VoegToeAanVoorstel(1, 1)",
                                 "call VoegToeAanVoorstel(3, 1)", "call VerwijderUitVoorstel(2, 1, 0)", "leave"));
  EXPECT_FALSE(editor_->Gewijzigd()) << "and no event either";
}

TEST_F(ProposalTest, RegistersTheOneThatIsTicked) {
  BindIn({"", "N", "J"});
  Tick(1, host::kTicked);
  EXPECT_THAT(Log(), ElementsAre("enter ChkVoorstel_Click", "set Voorstel(1)=\"J\"", "call VoegToeAanVoorstel(1, 1)",
                                 "call VoegToeAanVoorstel(3, 1)", "leave"));
}

TEST_F(ProposalTest, RemovesNothingThatDidNotChange) {
  BindIn({"", "", ""});
  kolom_.velden.Voorstel = {"J", "N", "N"};
  Tick(1, host::kTicked);
  EXPECT_THAT(Only(Log(), "call"), ElementsAre("call VoegToeAanVoorstel(1, 1)")) << "it was \"J\" already";
  on_(ChkVoorstel, 2).SetValue(host::kTicked);
  Forget();
  kolom_.velden.Voorstel[1] = "N";
  Tick(2, host::kUnticked);
  EXPECT_THAT(Only(Log(), "call"), ElementsAre("call VoegToeAanVoorstel(1, 1)")) << "it was \"N\" already";
}

TEST_F(ProposalTest, GoesByTheMembershipAsTheRecordKeepsIt) {
  BindIn({"J", "", ""});
  kolom_.adjust = [](KolomVelden& velden, std::string_view) { velden.Voorstel = {"N", "N", "J"}; };
  Tick(1, host::kUnticked);
  EXPECT_THAT(Only(Log(), "call"), ElementsAre("call VoegToeAanVoorstel(3, 1)", "call VerwijderUitVoorstel(1, 1, 0)",
                                               "call VerwijderUitVoorstel(2, 1, 0)"));
}

TEST_F(ProposalTest, CannotBeTickedWhileItsFrameIsHidden) {
  BindUnheard();
  EXPECT_EQ(Try(on_(ChkVoorstel, 1), controls::Tick{host::kTicked}), controls::Outcome::Ignored);
}

class ScenarioLaunchTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    subscriptions_ += editor_->ScenarioGeopend.Connect([this](frmScenario& form) {
      host_.calls.Add("opened " + std::to_string(form.AantalJaar()));
      color_ = form.BackColor();
      scenario_ = form.Scenario();
    });
  }
  host::Color color_;
  std::shared_ptr<host::BedragObject> scenario_;
};

TEST_F(ScenarioLaunchTest, OpensTheFormOnTheColumnsAmount) {
  editor_->SetBackColor({0x00FF00});
  BindUnheard();
  Act(on_[cmdScenario], controls::Press{});
  EXPECT_THAT(Log(),
              ElementsAre("enter cmdScenario_Click", "opened 17", "event RefreshTopDisplay de weergave", "leave"));
  EXPECT_EQ(color_, host::Color{0x00FF00});
  EXPECT_EQ(scenario_, kolom_.bedrag);
  EXPECT_TRUE(editor_->Gewijzigd()) << "also where nothing was entered";
}

TEST_F(ScenarioLaunchTest, CountsCalendarYearsToThePersonsAgeLimit) {
  // Age limit 67, so up to the year of the 68th birthday: 2026 to 1975 + 68 and to 1978 + 68.
  struct Case {
    std::int16_t heffingBij;
    host::Date today;
    const char* opened;
  };
  for (const Case& c : {Case{1, D(2026, 11, 21), "opened 17"}, Case{1, D(2026, 1, 1), "opened 17"},
                        Case{1, D(2025, 12, 31), "opened 18"}, Case{2, D(2026, 11, 21), "opened 20"},
                        Case{1, D(2050, 1, 1), "opened -7"}}) {
    kolom_.velden.HeffingBij = c.heffingBij;
    toolkit_.Desktop().today = c.today;
    BindUnheard();
    Act(on_[cmdScenario], controls::Press{});
    EXPECT_THAT(Only(Log(), "opened"), ElementsAre(c.opened));
  }
}

TEST_F(ScenarioLaunchTest, ShowsTheAmountThatTheFormWrote) {
  kolom_.bedrag->bedrag = 100;
  BindUnheard();
  toolkit_.modal = [this](controls::Form& form) {
    (void)form.Find("txtBedrag", 1)->Perform(controls::Enter{250.0});
    EXPECT_EQ(on_[TxtBd].Number(), 100) << "not before the form closes";
  };
  Act(on_[cmdScenario], controls::Press{});
  EXPECT_EQ(on_[TxtBd].Number(), 250);
  EXPECT_THAT(Log(), ElementsAre("enter cmdScenario_Click", "opened 17", "set Scenario.Bedrag=250",
                                 "event RefreshTopDisplay de weergave", "leave"));
}

TEST_F(ScenarioLaunchTest, OpensNoFormWithoutThePerson) {
  host_.dossier.personen.pop_back();
  kolom_.velden.HeffingBij = 2;
  BindUnheard();
  Act(on_[cmdScenario], controls::Press{});
  EXPECT_THAT(Log(), ElementsAre("enter cmdScenario_Click", "error cmdScenario_Click", "report VrijeKolom 91"));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(ScenarioLaunchTest, AsksForNoOwnerBeforeTheFirstBinding) {
  Act(on_[cmdScenario], controls::Press{});
  EXPECT_THAT(Log(), ElementsAre("enter cmdScenario_Click", "error cmdScenario_Click"));
}

}  // namespace

}  // namespace brivane::test
