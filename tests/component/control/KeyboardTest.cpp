#include "tests/component/control/ControlTest.h"

namespace brivane::component::test {
namespace {

TEST_F(ControlTest, KeysGoToTheBoxThatHasTheFocus) {
  Activate();
  container.Type(L"Vakbond");
  EXPECT_EQ(dummy->TextOf(dummy->first), L"Vakbond");
}

TEST_F(ControlTest, TabMovesInsideTheControlAndLeavesItAtItsEnd) {
  Activate();
  container.takesKeys = true;
  EXPECT_TRUE(container.Key(WM_KEYDOWN, VK_TAB));
  EXPECT_EQ(::GetFocus(), dummy->second);
  EXPECT_THAT(container.calls, IsEmpty());
  EXPECT_TRUE(container.Key(WM_KEYDOWN, VK_TAB));
  EXPECT_THAT(container.calls, ElementsAre("key 9"));
  EXPECT_THAT(container.modifiers, ElementsAre(0));
}

TEST_F(ControlTest, ShiftTabLeavesTheControlAtItsStart) {
  Activate();
  container.takesKeys = true;
  const Held shift(VK_SHIFT);
  EXPECT_TRUE(container.Key(WM_KEYDOWN, VK_TAB));
  EXPECT_THAT(container.calls, ElementsAre("key 9"));
  EXPECT_THAT(container.modifiers, ElementsAre(1));
}

TEST_F(ControlTest, AKeyThatNobodyWantsIsLeftToTheMessageLoop) {
  Activate();
  EXPECT_FALSE(container.Key(WM_KEYDOWN, VK_F5));
  EXPECT_THAT(container.calls, ElementsAre("key 116"));
}

TEST_F(ControlTest, EnterAndEscapeGoToTheContainer) {
  Activate();
  container.takesKeys = true;
  EXPECT_TRUE(container.Key(WM_KEYDOWN, VK_RETURN));
  EXPECT_TRUE(container.Key(WM_KEYDOWN, VK_ESCAPE));
  EXPECT_THAT(container.calls, ElementsAre("key 13", "key 27"));
}

TEST_F(ControlTest, EditingKeysReachTheBoxBeforeAnyUseOfTheContainers) {
  Activate();
  container.takesKeys = true;
  container.Type(L"abc");
  EXPECT_TRUE(container.Key(WM_KEYDOWN, VK_HOME));
  EXPECT_TRUE(container.Key(WM_KEYDOWN, VK_DELETE));
  EXPECT_EQ(dummy->TextOf(dummy->first), L"bc");
  EXPECT_THAT(container.calls, IsEmpty());
}

TEST_F(ControlTest, HasNoUseForKeysWhenTheFocusIsElsewhere) {
  Activate();
  const auto active = container.Active();
  ::SetFocus(container.Window());
  MSG tab{};
  tab.hwnd = container.Window();
  tab.message = WM_KEYDOWN;
  tab.wParam = VK_TAB;
  EXPECT_EQ(active->TranslateAccelerator(&tab), S_FALSE);
  EXPECT_THAT(container.calls, IsEmpty());
}

TEST_F(ControlTest, ComesInAtTheEndThatTheTabKeyComesFrom) {
  MSG tab{};
  tab.message = WM_KEYDOWN;
  tab.wParam = VK_TAB;
  EXPECT_EQ(container.Do(OLEIVERB_UIACTIVATE, &tab), S_OK);
  EXPECT_EQ(::GetFocus(), dummy->first);
  container.As<IOleInPlaceObject>()->UIDeactivate();
  ::SetFocus(container.Window());
  const Held shift(VK_SHIFT);
  EXPECT_EQ(container.Do(OLEIVERB_UIACTIVATE, &tab), S_OK);
  EXPECT_EQ(::GetFocus(), dummy->second);
}

TEST_F(ControlTest, TellsTheContainerItsLettersInBothCases) {
  CONTROLINFO info{};
  info.cb = sizeof info;
  ASSERT_EQ(container.As<IOleControl>()->GetControlInfo(&info), S_OK);
  ASSERT_EQ(info.cAccel, 4);
  ACCEL keys[4]{};
  ASSERT_EQ(::CopyAcceleratorTableW(info.hAccel, keys, 4), 4);
  EXPECT_EQ(keys[0].key, 'a');
  EXPECT_EQ(keys[1].key, 'A');
  EXPECT_EQ(keys[2].key, 'e');
  EXPECT_EQ(keys[3].key, 'E');
  for (const ACCEL& key : keys) EXPECT_EQ(key.fVirt & ~0x80, FALT);
}

TEST_F(ControlTest, AMnemonicActivatesItAndGoesToItsPart) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  MSG letter{};
  letter.hwnd = container.Window();
  letter.message = WM_SYSCHAR;
  letter.wParam = 'e';
  EXPECT_EQ(container.As<IOleControl>()->OnMnemonic(&letter), S_OK);
  EXPECT_EQ(::GetFocus(), dummy->second);
  EXPECT_TRUE(container.Active());
}

}  // namespace
}  // namespace brivane::component::test
