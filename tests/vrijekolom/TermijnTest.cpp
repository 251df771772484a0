// The term, and what a one-off amount does without.

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

}  // namespace

}  // namespace brivane::test
