#include "tests/toolkits/conformance/Conformance.h"

/// Toggles, check boxes, options and buttons: which event a person and code set off.
namespace brivane::test {

using controls::CheckBox;
using controls::DumpValue;
using controls::JaNee;
using controls::OptionButton;
using controls::Press;
using controls::Select;
using controls::Tick;
using controls::Toggle;

TEST_P(Conformance, AToggleRaisesChangeWhenAPersonChangesIt) {
  auto& toggle = Get<JaNee>("jnDiep");
  subscriptions += toggle.Change.Connect([&] { log.push_back("Change " + std::to_string(toggle.Value())); });
  Act(toggle, Toggle{host::kJa});
  EXPECT_EQ(Shown("jnDiep").value, DumpValue(2));
  Act(toggle, Toggle{host::kJa});
  Act(toggle, Toggle{host::kNee});
  EXPECT_EQ(Shown("jnDiep").value, DumpValue(1));
  EXPECT_EQ(log, (std::vector<std::string>{"Change 2", "Change 1"}));
}

TEST_P(Conformance, AToggleRaisesChangeAtOnceWhenCodeChangesIt) {
  auto& toggle = Get<JaNee>("jnDiep");
  subscriptions += toggle.Change.Connect([&] { log.emplace_back("Change"); });
  toggle.SetValue(host::kNee);
  log.emplace_back("set to the same");
  toggle.SetValue(host::kJa);
  log.emplace_back("set to another");
  EXPECT_EQ(log, (std::vector<std::string>{"set to the same", "Change", "set to another"}));
  EXPECT_EQ(Shown("jnDiep").value, DumpValue(2));
}

TEST_P(Conformance, ACheckBoxRaisesClickWhenAPersonChangesIt) {
  auto& box = Get<CheckBox>("chkVinkje");
  subscriptions += box.Click.Connect([&] { log.push_back("Click " + std::to_string(box.Value())); });
  Act(box, Tick{host::kTicked});
  EXPECT_EQ(Shown("chkVinkje").value, DumpValue(1));
  Act(box, Tick{host::kTicked});
  Act(box, Tick{host::kUnticked});
  EXPECT_EQ(log, (std::vector<std::string>{"Click 1", "Click 0"}));
}

TEST_P(Conformance, ACheckBoxRaisesClickAtOnceWhenCodeChangesIt) {
  auto& box = Get<CheckBox>("chkVinkje");
  subscriptions += box.Click.Connect([&] { log.emplace_back("Click"); });
  box.SetValue(host::kUnticked);
  log.emplace_back("set to the same");
  box.SetValue(host::kTicked);
  log.emplace_back("set to another");
  EXPECT_EQ(log, (std::vector<std::string>{"set to the same", "Click", "set to another"}));
  EXPECT_EQ(Shown("chkVinkje").value, DumpValue(1));
}

TEST_P(Conformance, AnOptionRaisesClickWhenAPersonSelectsItAndNotAgain) {
  for (int i = 1; i <= 3; ++i)
    subscriptions +=
        Get<OptionButton>("optSoort", i).Click.Connect([&, i] { log.push_back("Click " + std::to_string(i)); });
  Act(Get<OptionButton>("optSoort", 2), Select{});
  Act(Get<OptionButton>("optSoort", 2), Select{});
  Act(Get<OptionButton>("optSoort", 3), Select{});
  EXPECT_EQ(log, (std::vector<std::string>{"Click 2", "Click 3"}));
  EXPECT_EQ(Shown("optSoort(1)").value, DumpValue(false));
  EXPECT_EQ(Shown("optSoort(2)").value, DumpValue(false));
  EXPECT_EQ(Shown("optSoort(3)").value, DumpValue(true));
}

TEST_P(Conformance, AnOptionRaisesClickAtOnceWhenCodeSelectsItAndNotAgain) {
  for (int i = 1; i <= 3; ++i)
    subscriptions +=
        Get<OptionButton>("optSoort", i).Click.Connect([&, i] { log.push_back("Click " + std::to_string(i)); });
  Get<OptionButton>("optSoort", 1).SetValue(true);
  log.emplace_back("selected");
  Get<OptionButton>("optSoort", 1).SetValue(true);
  log.emplace_back("again");
  Get<OptionButton>("optSoort", 3).SetValue(true);
  EXPECT_EQ(log, (std::vector<std::string>{"Click 1", "selected", "again", "Click 3"}));
  EXPECT_FALSE(Get<OptionButton>("optSoort", 1).Value());
  EXPECT_EQ(Shown("optSoort(3)").value, DumpValue(true));
}

TEST_P(Conformance, TheOthersAreDeselectedBeforeTheClickIsRaised) {
  Get<OptionButton>("optSoort", 1).SetValue(true);
  subscriptions += Get<OptionButton>("optSoort", 2).Click.Connect([&] {
    EXPECT_FALSE(Get<OptionButton>("optSoort", 1).Value());
    EXPECT_TRUE(Get<OptionButton>("optSoort", 2).Value());
    log.emplace_back("Click");
  });
  Act(Get<OptionButton>("optSoort", 2), Select{});
  EXPECT_EQ(log, std::vector<std::string>{"Click"});
}

TEST_P(Conformance, DeselectingByCodeRaisesNothingAndLeavesNoneSelected) {
  auto& option = Get<OptionButton>("optSoort", 2);
  option.SetValue(true);
  for (int i = 1; i <= 3; ++i)
    subscriptions += Get<OptionButton>("optSoort", i).Click.Connect([&] { log.emplace_back("Click"); });
  option.SetValue(false);
  subject->Settle();
  EXPECT_EQ(log, std::vector<std::string>{});
  for (const char* name : {"optSoort(1)", "optSoort(2)", "optSoort(3)"})
    EXPECT_EQ(Shown(name).value, DumpValue(false)) << name;
}

TEST_P(Conformance, GroupsInOneFrameAreApart) {
  Act(Get<OptionButton>("optSoort", 1), Select{});
  Act(Get<OptionButton>("optAnder", 2), Select{});
  EXPECT_EQ(Shown("optSoort(1)").value, DumpValue(true));
  EXPECT_EQ(Shown("optAnder(2)").value, DumpValue(true));
  Act(Get<OptionButton>("optAnder", 1), Select{});
  EXPECT_EQ(Shown("optSoort(1)").value, DumpValue(true));
  EXPECT_EQ(Shown("optAnder(1)").value, DumpValue(true));
  EXPECT_EQ(Shown("optAnder(2)").value, DumpValue(false));
}

TEST_P(Conformance, AButtonRaisesClickEachTimeItIsPressed) {
  auto& button = Get<controls::Button>("cmdDoen");
  subscriptions += button.Click.Connect([&] { log.emplace_back("Click"); });
  Act(button, Press{});
  Act(button, Press{});
  EXPECT_EQ(log, (std::vector<std::string>{"Click", "Click"}));
}

TEST_P(Conformance, AnEventSetOffInAHandlerIsDeliveredInsideIt) {
  auto& toggle = Get<JaNee>("jnDiep");
  auto& box = Get<CheckBox>("chkVinkje");
  subscriptions += box.Click.Connect([&] { log.emplace_back("Click"); });
  subscriptions += toggle.Change.Connect([&] {
    log.emplace_back("Change begins");
    box.SetValue(host::kTicked);
    log.emplace_back("Change ends");
  });
  Act(toggle, Toggle{host::kJa});
  EXPECT_EQ(log, (std::vector<std::string>{"Change begins", "Click", "Change ends"}));
}

TEST_P(Conformance, AHandlerMayTurnTheControlBack) {
  auto& toggle = Get<JaNee>("jnDiep");
  subscriptions += toggle.Change.Connect([&] {
    log.push_back("Change " + std::to_string(toggle.Value()));
    toggle.SetValue(host::kNee);
  });
  Act(toggle, Toggle{host::kJa});
  EXPECT_EQ(log, (std::vector<std::string>{"Change 2", "Change 1"}));
  EXPECT_EQ(Shown("jnDiep").value, DumpValue(1));
}

TEST_P(Conformance, CaptionEnabledVisibleAndPlaceRaiseNothing) {
  auto& toggle = Get<JaNee>("jnDiep");
  auto& box = Get<CheckBox>("chkVinkje");
  subscriptions += toggle.Change.Connect([&] { log.emplace_back("Change"); });
  subscriptions += box.Click.Connect([&] { log.emplace_back("Click"); });
  box.SetCaption("Anders");
  box.SetEnabled(false);
  box.SetVisible(false);
  box.Write(host::Measure::FontSize, 12);
  toggle.SetVisible(false);
  toggle.Move({{15}, {15}, {900}, {300}});
  subject->Settle();
  EXPECT_EQ(log, std::vector<std::string>{});
  EXPECT_EQ(Shown("chkVinkje").caption, "Anders");
  EXPECT_FALSE(Shown("chkVinkje").enabled);
  EXPECT_FALSE(Shown("chkVinkje").visible);
  EXPECT_EQ(Shown("jnDiep").place, (host::Place{{15}, {15}, {900}, {300}}));
}

}  // namespace brivane::test
