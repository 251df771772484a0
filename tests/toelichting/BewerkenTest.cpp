// The four toggles and the three boxes of the transition to the partner.

#include "tests/toelichting/ToelichtingTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace toelichting;

class ToelichtingEditingTest : public ToelichtingTest {};

TEST_F(ToelichtingEditingTest, StoresThreeTogglesAsExclusions) {
  Bind();
  Forget();
  struct Case {
    host::JaNee& toggle;
    const char* procedure;
    const char* field;
  };
  for (const Case& c : {Case{on_[jnAO], "jnAO_Change", "UitsluitenAO"}, Case{on_[jnWW], "jnWW_Change", "UitsluitenWW"},
                        Case{on_[jnLangleven], "jnLangleven_Change", "UitsluitenLangleven"}}) {
    for (const auto& [value, stored] : {std::pair{host::kNee, "true"}, std::pair{host::kJa, "false"}}) {
      Act(c.toggle, controls::Toggle{value});
      EXPECT_THAT(Log(),
                  ElementsAre(std::string("enter Toelichting.") + c.procedure,
                              std::string("set ") + c.field + '=' + stored, "event Changed", "leave Toelichting"));
    }
  }
}

TEST_F(ToelichtingEditingTest, WritesBackWhatTheBoxesHoldWhenDeathIsTurnedOn) {
  kolom_.velden.PercentageOvergang = 25;
  kolom_.velden.EinddatumOvergang = D(2031, 2, 28);
  kolom_.velden.EindleeftijdOvergang = 60;
  Bind();
  Forget();
  Act(on_[jnOverlijden], controls::Toggle{host::kJa});
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.jnOverlijden_Change", "set ScenarioOverlijden=true",
                                 "set PercentageOvergang=25", "set EinddatumOvergang=2031-2-28",
                                 "set EindleeftijdOvergang=60", "event Changed", "leave Toelichting"));
  EXPECT_TRUE(on_[TxtPcOvergang].Enabled());
  EXPECT_TRUE(on_[txtEinddatum].Enabled());
  EXPECT_TRUE(on_[lblSlash].Enabled());
  EXPECT_TRUE(on_[TxtEindjaar].Enabled());
}

TEST_F(ToelichtingEditingTest, ClearsTheTransitionWhenDeathIsTurnedOff) {
  BindOverlijden();
  Act(on_[jnOverlijden], controls::Toggle{host::kNee});
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.jnOverlijden_Change", "set ScenarioOverlijden=false",
                                 "set PercentageOvergang=0", "set EinddatumOvergang=0", "set EindleeftijdOvergang=0",
                                 "event Changed", "leave Toelichting"));
  EXPECT_FALSE(on_[TxtPcOvergang].Enabled());
  EXPECT_FALSE(on_[txtEinddatum].Enabled());
  EXPECT_FALSE(on_[lblSlash].Enabled());
  EXPECT_FALSE(on_[TxtEindjaar].Enabled());
  EXPECT_EQ(on_[TxtPcOvergang].Number(), 0);
  EXPECT_EQ(on_[txtEinddatum].DateValue(), host::kNoDate);
  EXPECT_EQ(on_[TxtEindjaar].Number(), 0);

  Act(on_[jnOverlijden], controls::Toggle{host::kJa});
  EXPECT_EQ(kolom_.velden.PercentageOvergang, 0);
  EXPECT_EQ(kolom_.velden.EinddatumOvergang, host::kNoDate);
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 0) << "back on, they stay empty until edited";
}

TEST_F(ToelichtingEditingTest, StopsTurningDeathOffAtTheFailingWrite) {
  BindOverlijden();
  host_.calls.Fail("EinddatumOvergang", Op::Set);
  Act(on_[jnOverlijden], controls::Toggle{host::kNee});
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.jnOverlijden_Change", "set ScenarioOverlijden=false",
                                 "set PercentageOvergang=0", "error Toelichting.jnOverlijden_Change",
                                 "report Toelichting 1004"));
  EXPECT_FALSE(on_[lblSlash].Enabled()) << "done before the write";
  EXPECT_TRUE(on_[TxtEindjaar].Enabled()) << "not reached";
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 65);
}

TEST_F(ToelichtingEditingTest, StoresAPercentageInSinglePrecision) {
  BindOverlijden();
  EXPECT_FALSE(Act(on_[TxtPcOvergang], controls::Enter{0.1}));
  EXPECT_EQ(kolom_.velden.PercentageOvergang, 0.1F);
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.TxtPcOvergang_Validation", "enter Toelichting.Validation",
                                 "leave Toelichting", "set PercentageOvergang=0.10000000149011612", "event Changed",
                                 "leave Toelichting"));
}

TEST_F(ToelichtingEditingTest, WorksOutTheEndAgeFromTheEndDateByYearNumber) {
  BindOverlijden();
  // Born 31 December 1975: 64 whole years on that day, but 65 by year number.
  EXPECT_FALSE(Act(on_[txtEinddatum], controls::Enter{D(2040, 1, 1)}));
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.TxtEinddatum_Validation", "enter Toelichting.Validation",
                                 "leave Toelichting", "set EinddatumOvergang=2040-1-1", "set EindleeftijdOvergang=65",
                                 "event Changed", "leave Toelichting"));
  EXPECT_EQ(on_[TxtEindjaar].Number(), 65);
}

TEST_F(ToelichtingEditingTest, WorksOutTheEndDateFromTheEndAgeClippedToTheMonth) {
  host_.dossier.personen[0]->geboortedatum = D(1976, 2, 29);
  BindOverlijden();
  EXPECT_FALSE(Act(on_[TxtEindjaar], controls::Enter{65.0}));
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.TxtEindjaar_Validation", "enter Toelichting.Validation",
                                 "leave Toelichting", "set EindleeftijdOvergang=65", "set EinddatumOvergang=2041-2-28",
                                 "event Changed", "leave Toelichting"));
  EXPECT_EQ(on_[txtEinddatum].DateValue(), D(2041, 2, 28));
}

TEST_F(ToelichtingEditingTest, CountsFromThePersonWhoseColumnItIs) {
  kolom_.velden.HeffingBij = 2;  // born 3 February 1978
  BindOverlijden();
  EXPECT_FALSE(Act(on_[txtEinddatum], controls::Enter{D(2040, 1, 1)}));
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 62);
  EXPECT_FALSE(Act(on_[TxtEindjaar], controls::Enter{70.0}));
  EXPECT_EQ(kolom_.velden.EinddatumOvergang, D(2048, 2, 3));
}

TEST_F(ToelichtingEditingTest, FailsWithoutThePersonWhoseColumnItIs) {
  host_.dossier.personen.pop_back();
  kolom_.velden.HeffingBij = 2;
  BindOverlijden();
  EXPECT_FALSE(Act(on_[txtEinddatum], controls::Enter{D(2041, 5, 6)}));
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.TxtEinddatum_Validation", "enter Toelichting.Validation",
                                 "leave Toelichting", "set EinddatumOvergang=2041-5-6",
                                 "error Toelichting.TxtEinddatum_Validation", "report Toelichting 91"));
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 65) << "not completed";
}

TEST_F(ToelichtingEditingTest, ShowsTheEndAgeThatItCannotStore) {
  BindOverlijden();
  host_.calls.Fail("EindleeftijdOvergang", Op::Set);
  Act(on_[txtEinddatum], controls::Enter{D(2041, 5, 6)});
  EXPECT_EQ(on_[TxtEindjaar].Number(), 66);
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 65);
  EXPECT_THAT(Only(Log(), "event"), IsEmpty());
}

TEST_F(ToelichtingEditingTest, WritesNothingAfterARefusal) {
  BindOverlijden();
  struct Case {
    host::TextBox& box;
    controls::BoxValue value;
    const char* procedure;
    const char* message;
  };
  for (const Case& c : {Case{on_[TxtPcOvergang], 0.0, "TxtPcOvergang_Validation",
                             "message Onjuiste invoer|Overgangspercentage partner van 1% t/m 100% invullen.|48"},
                        Case{on_[txtEinddatum], D(2026, 11, 21), "TxtEinddatum_Validation",
                             "message Onjuiste invoer|Einddatum overgang partner moet in de toekomst liggen.|48"},
                        Case{on_[TxtEindjaar], 50.0, "TxtEindjaar_Validation",
                             "message Onjuiste invoer|Eindleeftijd overgang partner moet in de toekomst liggen.|48"}}) {
    EXPECT_TRUE(Act(c.box, controls::Enter{c.value})) << c.procedure;
    EXPECT_THAT(Log(), ElementsAre(std::string("enter Toelichting.") + c.procedure, "enter Toelichting.Validation",
                                   c.message, "leave Toelichting", "leave Toelichting"));
  }
  EXPECT_EQ(on_[TxtPcOvergang].Number(), 0) << "what was typed stays";
  EXPECT_EQ(kolom_.velden.PercentageOvergang, 50);
  EXPECT_EQ(kolom_.velden.EinddatumOvergang, D(2040, 1, 1));
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 65);
}

TEST_F(ToelichtingEditingTest, ReportsWhatCannotBeConverted) {
  BindOverlijden();
  struct Case {
    host::TextBox& box;
    controls::BoxValue value;
    const char* procedure;
  };
  for (const Case& c : {Case{on_[TxtPcOvergang], std::string("veel"), "TxtPcOvergang_Validation"},
                        Case{on_[txtEinddatum], std::string("morgen"), "TxtEinddatum_Validation"},
                        Case{on_[TxtEindjaar], std::string("oud"), "TxtEindjaar_Validation"}}) {
    EXPECT_FALSE(Act(c.box, controls::Enter{c.value}));
    // The check fails on the content first, and the handler on it after that.
    EXPECT_THAT(Log(), ElementsAre(std::string("enter Toelichting.") + c.procedure, "enter Toelichting.Validation",
                                   "error Toelichting.Validation", "report Toelichting 13",
                                   std::string("error Toelichting.") + c.procedure, "report Toelichting 13"));
  }
}

TEST_F(ToelichtingEditingTest, RoundsAnEndAgeHalfToEven) {
  BindOverlijden();
  Act(on_[TxtEindjaar], controls::Enter{64.5});
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 64);
  EXPECT_EQ(kolom_.velden.EinddatumOvergang, D(2039, 12, 31));
}

TEST_F(ToelichtingEditingTest, FailsOnAnEndAgePast16Bits) {
  BindOverlijden();
  // 40,000 years from 1975 is no date either: the check fails, and then the conversion.
  Act(on_[TxtEindjaar], controls::Enter{40000.0});
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report Toelichting 6", "report Toelichting 6"));
  EXPECT_EQ(kolom_.velden.EindleeftijdOvergang, 65);
}

TEST_F(ToelichtingEditingTest, LeavesTheTransitionBoxesToTheDeathToggle) {
  Bind();
  EXPECT_EQ(Try(on_[TxtPcOvergang], controls::Enter{10.0}), controls::Outcome::Ignored);
  EXPECT_EQ(Try(on_[txtEinddatum], controls::Enter{D(2040, 1, 1)}), controls::Outcome::Ignored);
  EXPECT_EQ(Try(on_[TxtEindjaar], controls::Enter{65.0}), controls::Outcome::Ignored);
}

TEST_F(ToelichtingEditingTest, ReportsAListenerThatFails) {
  Bind();
  Forget();
  subscriptions_ += control_->Changed.Connect([] { throw std::runtime_error("listener"); });
  Act(on_[jnWW], controls::Toggle{host::kNee});
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report Toelichting 440"));
}

}  // namespace

}  // namespace brivane::test
