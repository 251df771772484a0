#include "tests/support/RecordingScenario.h"
#include "tests/toolkits/person/Hands.h"
#include <brivane/scenario/frmScenario.h>

/// The question before the year-by-year form is closed without OK.
namespace brivane::test {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;

class LeavingTheForm : public ByHand {
 protected:
  struct Closed {
    bool answered;  ///< by the keys
    bool open;      ///< the form, afterwards
    std::string text;
  };

  /// Fills in a row of the form, presses Escape, and then keys in the box that comes up.
  Closed Close(int row, const std::vector<BoxKey>& keys, milliseconds pause = milliseconds(0)) {
    frmScenario form(hands->Toolkit());
    form.Invoeren(scenario, 3, 0, 0, false, false);
    Closed closed{};
    hands->WhileOpen([&](controls::Form& open) {
      for (int i = 1; i < row; ++i) hands->Press(Key::Down);
      hands->Type("500");
      hands->Press(Key::Enter);
      closed.answered = hands->AnswerBox(pause, keys, [&] { hands->Press(Key::Escape); });
      closed.open = !open.IsUnloaded();
    });
    form.ShowModal(nullptr);
    closed.text = hands->Read();
    return closed;
  }
  void ExpectOpenAfter(const std::vector<BoxKey>& keys) {
    const Closed closed = Close(2, keys);
    const BoxKey& key = keys.back();
    const std::string what = key.key ? "key " + std::to_string(static_cast<int>(*key.key)) : std::string(1, key.letter);
    EXPECT_TRUE(closed.answered) << what;
    EXPECT_TRUE(closed.open) << what;
  }

  std::shared_ptr<tests::RecordingScenario> scenario = std::make_shared<tests::RecordingScenario>();
};

TEST_F(LeavingTheForm, TakesMoreThanEnterOrEscape) {
  ExpectOpenAfter({{.key = Key::Enter}});
  // The first may be the one that brought the question up, still held down.
  ExpectOpenAfter({{.key = Key::Escape}, {.key = Key::Escape}});
  ExpectOpenAfter({{.key = Key::Space}});
  ExpectOpenAfter({{.letter = 'n', .alt = true}});
}

TEST_F(LeavingTheForm, TakesAltAndTheLetterOfJa) {
  const Closed closed = Close(2, {{.letter = 'j', .alt = true}});
  EXPECT_TRUE(closed.answered);
  EXPECT_FALSE(closed.open);
}

TEST_F(LeavingTheForm, IsNotDoneByKeysThatWereUnderWay) {
  const Closed closed = Close(2, {{.letter = 'j', .alt = true}, {.key = Key::Escape}}, milliseconds(2000));
  EXPECT_FALSE(closed.answered);
  EXPECT_TRUE(closed.open);
}

TEST_F(LeavingTheForm, SaysWhatStaysAndWhatIsLost) {
  const std::string lost = " worden niet bewaard als u het venster sluit zonder op OK te drukken. Wilt u het sluiten?";
  EXPECT_EQ(Close(2, {{.key = Key::Enter}}).text, "De wijzigingen in de rijen" + lost);
  EXPECT_EQ(scenario->basis, 0);
  EXPECT_EQ(
      Close(1, {{.key = Key::Enter}}).text,
      "Het bedrag van de eerste rij is bij het invullen al bewaard en blijft staan. De andere wijzigingen" + lost);
  EXPECT_EQ(scenario->basis, 500);
}

}  // namespace
}  // namespace brivane::test
