// What the explanation control refuses.

#include "tests/toelichting/ToelichtingTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace toelichting;

constexpr const char* kPercentage = "message Onjuiste invoer|Overgangspercentage partner van 1% t/m 100% invullen.|48";
constexpr const char* kEinddatum = "message Onjuiste invoer|Einddatum overgang partner moet in de toekomst liggen.|48";
constexpr const char* kEindleeftijd =
    "message Onjuiste invoer|Eindleeftijd overgang partner moet in de toekomst liggen.|48";

class ToelichtingChecksTest : public ToelichtingTest {
 protected:
  /// The boxes hold what each of the three checks refuses.
  void BindWrong() {
    BindOverlijden();
    on_[TxtPcOvergang].SetNumber(0);
    on_[txtEinddatum].SetDate(D(2020, 1, 1));
    on_[TxtEindjaar].SetNumber(10);
    Forget();
  }
};

TEST_F(ToelichtingChecksTest, AcceptsAPercentageAboveZeroAndAtMostOneHundred) {
  BindOverlijden();
  struct Case {
    double percentage;
    bool refused;
  };
  for (const Case& c : {Case{0.5, false}, Case{0.0001, false}, Case{1, false}, Case{100, false}, Case{0, true},
                        Case{-1, true}, Case{100.01, true}}) {
    on_[TxtPcOvergang].SetNumber(c.percentage);
    EXPECT_EQ(Validate(3), c.refused) << c.percentage;
  }
}

TEST_F(ToelichtingChecksTest, AcceptsAnEndDateFromTomorrow) {
  BindOverlijden();
  struct Case {
    host::Date date;
    bool refused;
  };
  for (const Case& c : {Case{D(2026, 11, 20), true}, Case{D(2026, 11, 21), true}, Case{D(2026, 11, 22), false},
                        Case{host::kNoDate, true}}) {
    on_[txtEinddatum].SetDate(c.date);
    EXPECT_EQ(Validate(4), c.refused) << Show(c.date);
  }
}

TEST_F(ToelichtingChecksTest, AcceptsAnEndAgeThatIsReachedAfterToday) {
  host_.dossier.personen[0]->geboortedatum = D(1976, 11, 21);
  BindOverlijden();
  struct Case {
    double age;
    bool refused;
  };
  // The fiftieth birthday is today.
  for (const Case& c : {Case{49, true}, Case{50, true}, Case{51, false}}) {
    on_[TxtEindjaar].SetNumber(c.age);
    EXPECT_EQ(Validate(5), c.refused) << c.age;
  }
}

TEST_F(ToelichtingChecksTest, RunsTheChecksOfItsNumberAlone) {
  struct Case {
    std::int32_t nummer;
    Lines messages;
  };
  for (const Case& c : {Case{3, {kPercentage}}, Case{4, {kEinddatum}}, Case{5, {kEindleeftijd}}, Case{1, {}},
                        Case{6, {}}, Case{-1, {}}}) {
    BindWrong();
    EXPECT_EQ(Validate(c.nummer), !c.messages.empty()) << c.nummer;
    EXPECT_EQ(Only(Log(), "message"), c.messages) << c.nummer;
  }
}

TEST_F(ToelichtingChecksTest, RefusesTheFirstFaultAloneInACompleteCheck) {
  BindWrong();
  EXPECT_TRUE(Validate(0));
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.Validation", "pending", kPercentage, "leave Toelichting"));
  on_[TxtPcOvergang].SetNumber(50);
  EXPECT_TRUE(Validate(0));
  EXPECT_THAT(Only(Log(), "message"), ElementsAre(kEinddatum));
}

TEST_F(ToelichtingChecksTest, LeavesTheEndAgeOutOfACompleteCheck) {
  BindWrong();
  on_[TxtPcOvergang].SetNumber(50);
  on_[txtEinddatum].SetDate(D(2040, 1, 1));
  bool cancel = false;
  control_->Validation(cancel);
  EXPECT_FALSE(cancel);
  EXPECT_THAT(Only(Log(), "message"), IsEmpty());
  EXPECT_TRUE(Validate(5));
}

TEST_F(ToelichtingChecksTest, ChecksNothingWithCancelSetButStillLetsEventsRun) {
  BindWrong();
  for (const std::int32_t nummer : {3, 4, 5}) {
    EXPECT_TRUE(Validate(nummer, true));
    EXPECT_THAT(Log(), ElementsAre("enter Toelichting.Validation", "leave Toelichting"));
  }
  EXPECT_TRUE(Validate(0, true));
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.Validation", "pending", "leave Toelichting"));
}

TEST_F(ToelichtingChecksTest, ChecksNothingWithDeathTurnedOff) {
  BindWrong();
  on_[jnOverlijden].SetValue(host::kNee);
  on_[TxtPcOvergang].SetNumber(-5);
  on_[txtEinddatum].SetDate(D(2020, 1, 1));
  on_[TxtEindjaar].SetNumber(1);
  Forget();
  for (const std::int32_t nummer : {0, 3, 4, 5}) EXPECT_FALSE(Validate(nummer));
  EXPECT_THAT(Only(Log(), "message"), IsEmpty());
}

TEST_F(ToelichtingChecksTest, TakesAWaitingEditIntoACompleteCheck) {
  BindOverlijden();
  pending_ = [this] { Act(on_[TxtPcOvergang], controls::Enter{120.0}); };
  EXPECT_TRUE(Validate(0));
  // Once refused as an edit, once by the complete check that finds it still there.
  EXPECT_THAT(Log(),
              ElementsAre("enter Toelichting.Validation", "pending", "enter Toelichting.TxtPcOvergang_Validation",
                          "enter Toelichting.Validation", kPercentage, "leave Toelichting", "leave Toelichting",
                          kPercentage, "leave Toelichting"));
}

TEST_F(ToelichtingChecksTest, TakesAWaitingToggleIntoACompleteCheck) {
  BindWrong();
  pending_ = [this] { Act(on_[jnOverlijden], controls::Toggle{host::kNee}); };
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Only(Log(), "message"), IsEmpty());
}

TEST_F(ToelichtingChecksTest, RefusesNothingBeforeTheFirstBinding) {
  EXPECT_FALSE(Validate(0));
  EXPECT_FALSE(Validate(5));
  EXPECT_THAT(Only(Log(), "error"), IsEmpty());
}

TEST_F(ToelichtingChecksTest, ReportsAPersonWhoIsMissing) {
  kolom_.velden.HeffingBij = 2;
  host_.dossier.personen.pop_back();
  BindOverlijden();
  EXPECT_FALSE(Validate(5));
  EXPECT_THAT(Log(),
              ElementsAre("enter Toelichting.Validation", "error Toelichting.Validation", "report Toelichting 91"));
}

}  // namespace

}  // namespace brivane::test
