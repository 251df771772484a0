#include <algorithm>

#include "tests/component/control/ControlTest.h"

namespace brivane::component::test {
namespace {

TEST_F(ControlTest, ClosingTakesItOffTheScreenAndLetsGoOfTheHost) {
  Activate();
  EXPECT_EQ(container.Object().Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_THAT(container.calls,
              ElementsAre("SetActiveObject none", "OnFocus lost", "OnUIDeactivate", "OnInPlaceDeactivate"));
  EXPECT_EQ(Frame(), nullptr);
  EXPECT_EQ(dummy->letGo, 1);
}

TEST_F(ControlTest, HandsOverWhatIsBeingTypedBeforeItLetsGoOfTheHost) {
  Activate();
  dummy->onHandOver = [&] {
    EXPECT_EQ(dummy->letGo, 0);
    EXPECT_EQ(::GetFocus(), dummy->first);
  };
  container.Object().Close(OLECLOSE_NOSAVE);
  EXPECT_EQ(dummy->handedOver, 1);
  EXPECT_EQ(::GetFocus(), container.Window());
}

TEST_F(ControlTest, HasNothingToHandOverWhenTheFocusIsElsewhere) {
  Activate();
  ::SetFocus(container.Window());
  container.Object().Close(OLECLOSE_NOSAVE);
  EXPECT_EQ(dummy->handedOver, 0);
}

TEST_F(ControlTest, MayBeClosedAgainByWhatHandingOverSetsOff) {
  Activate();
  dummy->onHandOver = [&] {
    dummy->onHandOver = nullptr;
    container.Object().Close(OLECLOSE_NOSAVE);
  };
  container.Object().Close(OLECLOSE_NOSAVE);
  EXPECT_EQ(Frame(), nullptr);
  EXPECT_EQ(std::count(container.calls.begin(), container.calls.end(), "OnInPlaceDeactivate"), 1);
}

TEST_F(ControlTest, ClosingAsksForSavingWhereSomethingChanged) {
  container.Object().Close(OLECLOSE_SAVEIFDIRTY);
  EXPECT_THAT(container.calls, IsEmpty());
  dummy->Control().PutBackColor({0x0000FF});
  container.Object().Close(OLECLOSE_SAVEIFDIRTY);
  EXPECT_THAT(container.calls, ElementsAre("SaveObject"));
  container.calls.clear();
  container.Object().Close(OLECLOSE_NOSAVE);
  EXPECT_THAT(container.calls, IsEmpty());
}

TEST_F(ControlTest, ClosingAsksAPersonWhetherToSaveWhereTheContainerWantsThat) {
  container.Object().Close(OLECLOSE_PROMPTSAVE);
  EXPECT_EQ(dummy->asked, 0) << "nothing changed";
  dummy->Control().PutBackColor({0x0000FF});
  dummy->wantsToKeep = false;
  container.Object().Close(OLECLOSE_PROMPTSAVE);
  EXPECT_EQ(dummy->asked, 1);
  EXPECT_THAT(container.calls, IsEmpty());
  dummy->wantsToKeep = true;
  container.Object().Close(OLECLOSE_PROMPTSAVE);
  EXPECT_EQ(dummy->asked, 2);
  EXPECT_THAT(container.calls, ElementsAre("SaveObject"));
  container.Object().Close(OLECLOSE_SAVEIFDIRTY);
  EXPECT_EQ(dummy->asked, 2);
}

TEST_F(ControlTest, TellsThoseWhoAskedThatItCloses) {
  DWORD cookie = 0;
  EXPECT_EQ(container.Object().Advise(&container, &cookie), S_OK);
  container.Object().Close(OLECLOSE_NOSAVE);
  EXPECT_THAT(container.calls, ElementsAre("OnClose"));
  EXPECT_EQ(container.Object().Unadvise(cookie), S_OK);
}

TEST_F(ControlTest, CanBeActivatedAgainAfterItWasClosed) {
  Activate();
  container.Object().Close(OLECLOSE_NOSAVE);
  EXPECT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_EQ(::GetFocus(), dummy->first);
}

TEST_F(ControlTest, TellsTheFrameOfAFormOrAQuestionThatIsUp) {
  Activate();
  dummy->Control().Modal(true);
  EXPECT_THAT(container.calls, ElementsAre("EnableModeless no"));
  dummy->Control().Modal(true);
  dummy->Control().Modal(false);
  dummy->Control().Modal(false);
  EXPECT_THAT(container.calls,
              ElementsAre("EnableModeless no", "EnableModeless no", "EnableModeless", "EnableModeless"));
}

TEST_F(ControlTest, TellsTheFrameThatItHasGoneAlsoWhereTheControlWasClosedMeanwhile) {
  Activate();
  dummy->Control().Modal(true);
  container.Object().Close(OLECLOSE_NOSAVE);
  EXPECT_EQ(dummy->abandoned, 1);
  container.calls.clear();
  dummy->Control().Modal(false);
  EXPECT_THAT(container.calls, ElementsAre("EnableModeless"));
  dummy->Control().Modal(true);
  dummy->Control().Modal(false);
  EXPECT_THAT(container.calls, ElementsAre("EnableModeless")) << "it stands in no frame";
}

TEST_F(ControlTest, WhatWasGoingOnEndsWithTheContainersWindow) {
  Activate();
  ::DestroyWindow(container.Window());
  EXPECT_EQ(dummy->abandoned, 1);
}

TEST_F(ControlTest, OutlivesTheContainersWindow) {
  Activate();
  ::DestroyWindow(container.Window());
  EXPECT_EQ(Frame(), nullptr);
  EXPECT_TRUE(::IsWindow(dummy->first));
  EXPECT_THAT(container.calls,
              ElementsAre("SetActiveObject none", "OnFocus lost", "OnUIDeactivate", "OnInPlaceDeactivate"));
}

TEST_F(ControlTest, GoesWithItsLastReferenceWithoutHavingBeenClosed) {
  Activate();
  const HWND frame = Frame();
  container.calls.clear();
  dummy.Reset();
  container.Forget();
  EXPECT_EQ(Dummy::Live(), 0);
  EXPECT_FALSE(::IsWindow(frame));
  EXPECT_THAT(container.calls, IsEmpty());
}

/// The container closes the control from inside each of the calls that activating it makes.
class ClosingInside : public ControlTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(ClosingInside, ActivatingStopsThere) {
  container.place = {20, 30, 320, 400};
  container.on = [&](const std::string& call) {
    if (call == GetParam()) {
      container.on = nullptr;
      container.Object().Close(OLECLOSE_NOSAVE);
    }
  };
  container.Do(OLEIVERB_UIACTIVATE);
  EXPECT_EQ(container.on, nullptr) << "was never called";
  EXPECT_EQ(Frame(), nullptr);
  EXPECT_FALSE(::IsWindowVisible(dummy->first));
  EXPECT_FALSE(container.Active());
  EXPECT_EQ(container.calls.back(), "OnInPlaceDeactivate");
}

INSTANTIATE_TEST_SUITE_P(AnyCall, ClosingInside,
                         ::testing::Values("OnInPlaceActivate", "OnPosRectChange 300x100", "ShowObject", "OnUIActivate",
                                           "SetActiveObject", "OnFocus"));

/// The container closes the control and lets go of it altogether, which nobody else holds.
class LettingGoInside : public ControlTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(LettingGoInside, TheObjectGoesAfterTheCall) {
  container.place = {20, 30, 320, 400};
  dummy.Reset();
  container.on = [&](const std::string& call) {
    if (call == GetParam()) {
      container.on = nullptr;
      container.Remove();
    }
  };
  const auto object = &container.Object();
  object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &container, 0, container.Window(), &container.place);
  EXPECT_EQ(Dummy::Live(), 0);
}

INSTANTIATE_TEST_SUITE_P(AnyCall, LettingGoInside,
                         ::testing::Values("OnInPlaceActivate", "OnPosRectChange 300x100", "ShowObject", "OnUIActivate",
                                           "SetActiveObject", "OnFocus"));

TEST_F(ControlTest, TheObjectGoesAfterAKeyByWhichTheContainerLetGoOfIt) {
  Activate();
  dummy.Reset();
  container.on = [&](const std::string& call) {
    if (call == "key 27") container.Remove();
  };
  container.Key(WM_KEYDOWN, VK_ESCAPE);
  EXPECT_EQ(Dummy::Live(), 0);
}

}  // namespace
}  // namespace brivane::component::test
