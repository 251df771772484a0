// What a burden option does to the fiscal options.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using namespace vrijekolom;

class FiscalOptionsTest : public EditorTest {
 protected:
  void BindCodes(std::int16_t last, std::int16_t fiscaal) {
    kolom_.velden.CorrectieLast = last;
    kolom_.velden.CorrectieFiscaal = fiscaal;
    BindUnheard();
  }
  void ExpectAllowed(bool aftrekpost, bool bijtelling, bool neutraal) {
    EXPECT_EQ(on_(optFiscaal, 1).Enabled(), aftrekpost);
    EXPECT_EQ(on_(optFiscaal, 2).Enabled(), bijtelling);
    EXPECT_EQ(on_(optFiscaal, 3).Enabled(), neutraal);
  }
};

TEST_F(FiscalOptionsTest, FollowTheBurdenOption) {
  for (std::int16_t fiscaal = 1; fiscaal <= 3; ++fiscaal) {
    BindCodes(1, fiscaal);
    ExpectAllowed(true, false, true);
    BindCodes(2, fiscaal);
    ExpectAllowed(false, true, true);
    BindCodes(3, fiscaal);
    ExpectAllowed(true, true, false);
    EXPECT_TRUE(on_(optFiscaal, fiscaal).Value()) << "loading keeps what is stored";
    EXPECT_EQ(kolom_.velden.CorrectieFiscaal, fiscaal);
  }
}

TEST_F(FiscalOptionsTest, MakeAContributionATaxableAddition) {
  BindCodes(1, 1);
  Act(on_(optLast, 2), controls::Select{});
  EXPECT_THAT(Log(), ElementsAreArray(Join({{"enter optLast_Click", "set CorrectieLast=2", "enter Check_FraFiscaal"},
                                            {"enter optFiscaal_Click", "set CorrectieFiscaal=2"},
                                            kHerbonden,
                                            {"event RefreshTopDisplay de kopregel", "leave", "leave"},
                                            kHerbonden,
                                            {"event RefreshTopDisplay de kopregel", "leave"}})));
  ExpectAllowed(false, true, true);
  EXPECT_TRUE(on_(optFiscaal, 2).Value());
  EXPECT_TRUE(on_[jnInkUitArbeid].Enabled());
}

TEST_F(FiscalOptionsTest, TakeTheIncomeFromWorkOfACost) {
  kolom_.velden.InkomenUitArbeid = kolom_.velden.InDagloon = true;
  BindCodes(2, 2);
  Act(on_(optLast, 1), controls::Select{});
  EXPECT_THAT(Only(Log(), "set"), ElementsAre("set CorrectieLast=1", "set CorrectieFiscaal=1",
                                              "set InkomenUitArbeid=false", "set InDagloon=false"));
  ExpectAllowed(true, false, true);
  EXPECT_TRUE(on_(optFiscaal, 1).Value());
  EXPECT_FALSE(on_[jnInkUitArbeid].Enabled());
  EXPECT_EQ(on_[jnInkUitArbeid].Value(), host::kNee);
  EXPECT_EQ(on_[jnInDagloon].Value(), host::kNee);
}

TEST_F(FiscalOptionsTest, GiveANeutralBurdenADeduction) {
  BindCodes(2, 2);
  Act(on_(optLast, 3), controls::Select{});
  ExpectAllowed(true, true, false);
  EXPECT_TRUE(on_(optFiscaal, 1).Value());
  EXPECT_THAT(Only(Log(), "set"), ElementsAre("set CorrectieLast=3", "set CorrectieFiscaal=1"));
}

TEST_F(FiscalOptionsTest, AreNotWrittenAnewWhereTheRightOneIsSelected) {
  kolom_.velden.InkomenUitArbeid = true;
  BindCodes(1, 1);
  Act(on_(optLast, 3), controls::Select{});
  EXPECT_THAT(Log(),
              ElementsAreArray(Join({{"enter optLast_Click", "set CorrectieLast=3", "enter Check_FraFiscaal",
                                      "enter jnInkUitArbeid_Change", "set InkomenUitArbeid=false", "leave", "leave"},
                                     kHerbonden,
                                     {"event RefreshTopDisplay de kopregel", "leave"}})));
}

}  // namespace

}  // namespace brivane::test
