#include "tests/component/control/ControlTest.h"

namespace brivane::component::test {
namespace {

TEST_F(ControlTest, StandsInTheContainersWindowAtItsPlaceWhenActivatedInPlace) {
  EXPECT_EQ(container.Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  EXPECT_THAT(container.calls, ElementsAre("OnInPlaceActivate", "ShowObject"));
  EXPECT_EQ(::GetAncestor(Frame(), GA_PARENT), container.Window());
  EXPECT_EQ(PlaceOf(Frame()), "20,30 200x100");
  EXPECT_TRUE(::IsWindowVisible(dummy->first));

  HWND told = nullptr;
  EXPECT_EQ(container.As<IOleInPlaceObject>()->GetWindow(&told), S_OK);
  EXPECT_EQ(told, Frame());
}

TEST_F(ControlTest, ActivatingInPlaceAgainTellsTheContainerNothing) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  EXPECT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_THAT(container.calls, IsEmpty());
}

TEST_F(ControlTest, TakesTheContainersAttentionAndTheFocusWhenUiActivated) {
  EXPECT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_THAT(container.calls,
              ElementsAre("OnInPlaceActivate", "ShowObject", "OnUIActivate", "SetActiveObject", "OnFocus"));
  EXPECT_EQ(::GetFocus(), dummy->first);
  EXPECT_TRUE(container.Active());
}

TEST_F(ControlTest, GivesTheAttentionBackWhenUiDeactivatedAndStaysInPlace) {
  Activate();
  EXPECT_EQ(container.As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
  EXPECT_THAT(container.calls, ElementsAre("SetActiveObject none", "OnFocus lost", "OnUIDeactivate"));
  EXPECT_FALSE(container.Active());
  EXPECT_TRUE(::IsWindowVisible(dummy->first));
}

TEST_F(ControlTest, LeavesTheContainersWindowWhenDeactivated) {
  Activate();
  const HWND frame = Frame();
  EXPECT_EQ(container.As<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
  EXPECT_THAT(container.calls,
              ElementsAre("SetActiveObject none", "OnFocus lost", "OnUIDeactivate", "OnInPlaceDeactivate"));
  EXPECT_FALSE(::IsWindow(frame));
  EXPECT_TRUE(::IsWindow(dummy->first));
  EXPECT_FALSE(::IsWindowVisible(dummy->first));
  HWND told = nullptr;
  EXPECT_EQ(container.As<IOleInPlaceObject>()->GetWindow(&told), E_FAIL);
}

TEST_F(ControlTest, ComesBackWithWhatWasTypedAfterBeingDeactivated) {
  Activate();
  container.Type(L"abc");
  container.As<IOleInPlaceObject>()->InPlaceDeactivate();
  EXPECT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_EQ(dummy->TextOf(dummy->first), L"abc");
  EXPECT_TRUE(::IsWindowVisible(dummy->first));
}

TEST_F(ControlTest, DoesNotStandWhereTheContainerDoesNotAllowIt) {
  container.allowsActivation = false;
  EXPECT_EQ(container.Do(OLEIVERB_INPLACEACTIVATE), E_FAIL);
  EXPECT_EQ(Frame(), nullptr);
  EXPECT_THAT(container.calls, IsEmpty());
}

TEST_F(ControlTest, CannotBeActivatedWithoutASite) {
  container.Object().SetClientSite(nullptr);
  EXPECT_EQ(container.Do(OLEIVERB_INPLACEACTIVATE), E_FAIL);
}

TEST_F(ControlTest, HidesAndShowsItsWindow) {
  Activate();
  EXPECT_EQ(container.Do(OLEIVERB_HIDE), S_OK);
  EXPECT_FALSE(::IsWindowVisible(dummy->first));
  EXPECT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_TRUE(::IsWindowVisible(dummy->first));
}

TEST_F(ControlTest, AVerbThatItDoesNotKnowDoesWhatTheFirstOneDoes) {
  EXPECT_EQ(container.Do(OLEIVERB_OPEN), E_NOTIMPL);
  EXPECT_EQ(container.Do(7), OLEOBJ_S_INVALIDVERB);
  EXPECT_EQ(::GetFocus(), dummy->first);
}

TEST_F(ControlTest, TakesTheAttentionWhenAPersonClicksInIt) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  ::SendMessageW(dummy->first, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(container.Window()),
                 MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
  EXPECT_THAT(container.calls, ElementsAre("OnUIActivate", "SetActiveObject", "OnFocus"));
}

TEST_F(ControlTest, TakesTheAttentionWhenItsWindowGetsTheFocus) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  ::SetFocus(Frame());
  EXPECT_THAT(container.calls, ElementsAre("OnUIActivate", "SetActiveObject", "OnFocus"));
  EXPECT_EQ(::GetFocus(), dummy->first);
}

TEST_F(ControlTest, SaysWhatItIs) {
  CLSID id{};
  EXPECT_EQ(container.Object().GetUserClassID(&id), S_OK);
  EXPECT_EQ(id, kDummyClass);
  LPOLESTR name = nullptr;
  EXPECT_EQ(container.Object().GetUserType(USERCLASSTYPE_FULL, &name), S_OK);
  EXPECT_STREQ(name, L"TestArea");
  ::CoTaskMemFree(name);
  DWORD status = 0;
  EXPECT_EQ(container.Object().GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
  EXPECT_EQ(status, 131473U);
  EXPECT_EQ(container.Object().GetMiscStatus(DVASPECT_ICON, &status), S_OK);
  EXPECT_EQ(status, 0U);
}

TEST_F(ControlTest, EveryInterfaceHasTheIdentityOfTheObject) {
  const IID* const ids[] = {&IID_IOleObject,
                            &IID_IOleWindow,
                            &IID_IOleInPlaceObject,
                            &IID_IOleControl,
                            &IID_IOleInPlaceActiveObject,
                            &IID_IViewObject,
                            &IID_IViewObject2,
                            &IID_IPersist,
                            &IID_IPersistStreamInit,
                            &IID_IPersistStorage,
                            &IID_IPersistPropertyBag};
  for (const IID* id : ids) {
    ComPtr<IUnknown> part;
    ASSERT_EQ(dummy->QueryInterface(*id, reinterpret_cast<void**>(part.Put())), S_OK);
    EXPECT_EQ(part.As<IUnknown>().Get(), &dummy->Outer());
  }
  void* none = &container;
  EXPECT_EQ(dummy->QueryInterface(IID_IMarshal, &none), E_NOINTERFACE);
  EXPECT_EQ(none, nullptr);
}

}  // namespace
}  // namespace brivane::component::test
