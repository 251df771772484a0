#include "tests/toolkits/person/Hands.h"
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>

/// What is typed in a box and the host fails to take: the procedure reports that to the host and goes on as if nothing
/// had happened.
namespace brivane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NotTaken : public ByHand {
 protected:
  NotTaken() {
    subscriptions += box_.Validation.Connect([this](bool&) {
      if (fails_) hands->Toolkit().Desktop().ProcedureFailed.Raise();
      log.emplace_back(fails_ ? "failed" : "taken");
    });
    subscriptions += Get<controls::Button>("cmdDoen").Click.Connect([this] { log.emplace_back("cmdDoen"); });
    box_.SetText("Krant");
    hands->Click(box_);
    hands->Press(Key::End);
    hands->Type("en");
  }

  controls::TextBox& box_ = Get<controls::TextBox>("txtNaam");
  bool fails_ = true;
};

TEST_F(NotTaken, StaysAsTypedWithTheFocusUntilItIsTaken) {
  hands->Press(Key::Tab);
  EXPECT_EQ(hands->Focused(), "txtNaam");
  EXPECT_EQ(hands->FocusedText(), "[Kranten]");
  EXPECT_FALSE(hands->CommitPending());
  fails_ = false;
  hands->Press(Key::Tab);
  EXPECT_EQ(hands->Focused(), "txtBedrag");
  EXPECT_TRUE(hands->CommitPending());
  EXPECT_THAT(log, ElementsAre("failed", "failed", "taken"));
}

TEST_F(NotTaken, KeepsAClickElsewhereFromActing) {
  hands->Click(Control("cmdDoen"));
  EXPECT_THAT(log, ElementsAre("failed"));
}

TEST_F(NotTaken, IsPutBackByEscape) {
  hands->Press(Key::Tab);
  hands->Press(Key::Escape);
  EXPECT_EQ(hands->FocusedText(), "[Krant]");
  log.clear();
  EXPECT_TRUE(hands->CommitPending());
  EXPECT_THAT(log, IsEmpty());
  EXPECT_EQ(box_.Text(), "Krant");
}

}  // namespace
}  // namespace brivane::test
