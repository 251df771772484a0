#include "tests/toolkits/person/Hands.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>

/// A surface that stands for nothing: whatever a person does there, nothing comes of it.
namespace brivane::test {
namespace {

using testing::IsEmpty;

class Veil : public ByHand {
 protected:
  Veil() {
    subscriptions += Get<controls::Button>("cmdDoen").Click.Connect([this] { log.emplace_back("cmdDoen"); });
    subscriptions +=
        Get<controls::TextBox>("txtNaam").Validation.Connect([this](bool&) { log.emplace_back("txtNaam"); });
    subscriptions += Get<controls::JaNee>("jnDiep").Change.Connect([this] { log.emplace_back("jnDiep"); });
    subscriptions += Get<controls::CheckBox>("chkVinkje").Click.Connect([this] { log.emplace_back("chkVinkje"); });
    subscriptions += Get<controls::ListBox>("cboTermijn").Click.Connect([this] { log.emplace_back("cboTermijn"); });
    subscriptions +=
        Get<controls::OptionButton>("optSoort", 2).Click.Connect([this] { log.emplace_back("optSoort(2)"); });
    Get<controls::TextBox>("txtNaam").SetText("Krant");
  }
  void LayVeil(bool veiled) { controls::Surface::Of(hands->Surface()).SetVeiled(veiled); }
  /// Everything that a person can do to every control there.
  void TryEverything() {
    for (const char* name : {"txtNaam", "jnDiep", "chkVinkje", "cboTermijn", "cmdDoen"}) {
      hands->Click(Control(name));
      hands->GiveFocus(Control(name));
      for (const Key key : {Key::Space, Key::Down, Key::End, Key::Enter, Key::Tab}) hands->Press(key);
      hands->Type("jx");
      hands->TurnWheel(Control(name), 2);
    }
    hands->Click(Control("optSoort", 2));
    for (const char letter : {'n', 'd'}) hands->PressAlt(letter);
    hands->Type("x");
  }
};

TEST_F(Veil, KeepsEverythingFromAPerson) {
  hands->Click(Control("txtNaam"));
  LayVeil(true);
  TryEverything();
  EXPECT_TRUE(hands->CommitPending());
  EXPECT_THAT(log, IsEmpty());
  EXPECT_EQ(Get<controls::TextBox>("txtNaam").Text(), "Krant");
}

TEST_F(Veil, IsLiftedAndEverythingWorksAgain) {
  LayVeil(true);
  LayVeil(false);
  hands->Click(Control("cmdDoen"));
  hands->Click(Control("txtNaam"));
  hands->Type("s");
  hands->Press(Key::Tab);
  EXPECT_THAT(log, testing::ElementsAre("cmdDoen", "txtNaam"));
}

TEST_F(Veil, HidesAlsoWhatCodeShowsBelowIt) {
  controls::AnyControl& button = Control("cmdDoen");
  button.Host().SetVisible(false);
  LayVeil(true);
  button.Host().SetVisible(true);
  hands->Click(button);
  hands->PressAlt('d');
  EXPECT_THAT(log, IsEmpty());
  EXPECT_TRUE(button.Host().Visible());
  LayVeil(false);
  hands->Click(button);
  EXPECT_THAT(log, testing::ElementsAre("cmdDoen"));
}

}  // namespace
}  // namespace brivane::test
