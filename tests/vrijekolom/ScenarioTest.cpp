// The year-by-year form over the column's amount.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using namespace vrijekolom;

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
