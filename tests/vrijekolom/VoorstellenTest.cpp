// The proposals that end the column.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using namespace vrijekolom;

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

}  // namespace

}  // namespace brivane::test
