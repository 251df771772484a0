#include "tests/component/control/ControlTest.h"

namespace brivane::component::test {
namespace {

// 200 by 100 pixels are 3000 by 1500 twips, 5291.67 by 2645.83 himetric.

TEST_F(ControlTest, TellsItsExtentInHimetric) {
  EXPECT_EQ(Extent().cx, 5292);
  EXPECT_EQ(Extent().cy, 2646);
  SIZEL viewed{};
  EXPECT_EQ(container.As<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &viewed), S_OK);
  EXPECT_EQ(viewed.cx, 5292);
  EXPECT_EQ(container.Object().GetExtent(DVASPECT_ICON, &viewed), DV_E_DVASPECT);
}

TEST_F(ControlTest, TakesTheWidthOfTheContainerAndKeepsItsOwnHeight) {
  SIZEL wanted{8001, 9999};
  EXPECT_EQ(container.Object().SetExtent(DVASPECT_CONTENT, &wanted), S_OK);
  EXPECT_EQ(Extent().cx, 8001);  // exactly, though it is no whole number of pixels
  EXPECT_EQ(Extent().cy, 2646);
  EXPECT_EQ(container.Object().SetExtent(DVASPECT_ICON, &wanted), DV_E_DVASPECT);
  SIZEL none{0, 100};
  EXPECT_EQ(container.Object().SetExtent(DVASPECT_CONTENT, &none), E_INVALIDARG);
  EXPECT_EQ(Extent().cx, 8001);
}

TEST_F(ControlTest, AsksTheContainerForItsOwnHeightWhenActivated) {
  container.place = {20, 30, 320, 400};
  EXPECT_EQ(container.Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  EXPECT_THAT(container.calls, ElementsAre("OnInPlaceActivate", "OnPosRectChange 300x100", "ShowObject"));
  EXPECT_EQ(PlaceOf(Frame()), "20,30 300x100");
}

TEST_F(ControlTest, AsksTheContainerForAnotherHeightWhenItGrows) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  dummy->Grow(host::Twips{3000});
  EXPECT_THAT(container.calls, ElementsAre("OnPosRectChange 200x200"));
  EXPECT_EQ(PlaceOf(Frame()), "20,30 200x200");
  dummy->Grow(host::Twips{3000});
  EXPECT_THAT(container.calls, ElementsAre("OnPosRectChange 200x200"));
}

TEST_F(ControlTest, IsSizedByTheContainer) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  container.Resize(400, 100);
  EXPECT_THAT(container.calls, IsEmpty());
  EXPECT_EQ(PlaceOf(Frame()), "20,30 400x100");
  EXPECT_EQ(Extent().cx, 10583);  // 6000 twips
  container.Resize(400, 60);
  EXPECT_THAT(container.calls, ElementsAre("OnPosRectChange 400x100"));
}

TEST_F(ControlTest, IsCutOffWhereTheContainerKeepsItsHeightAndDoesNotAskTwice) {
  container.takesOwnSizes = false;
  Activate(OLEIVERB_INPLACEACTIVATE);
  dummy->Grow(host::Twips{3000});
  dummy->Grow(host::Twips{3000});
  EXPECT_THAT(container.calls, ElementsAre("OnPosRectChange 200x200"));
  EXPECT_EQ(PlaceOf(Frame()), "20,30 200x100");
  EXPECT_EQ(Extent().cy, 5292);
}

TEST_F(ControlTest, LeavesTheRoomBelowItToTheContainer) {
  container.takesOwnSizes = false;
  Activate(OLEIVERB_INPLACEACTIVATE);
  container.Resize(200, 300);
  EXPECT_EQ(PlaceOf(Frame()), "20,30 200x100");
}

TEST_F(ControlTest, ShowsItselfInsideTheClippingRectangleAlone) {
  Activate(OLEIVERB_INPLACEACTIVATE);
  container.Resize({20, 30, 220, 130}, {0, 50, 100, 480});
  EXPECT_EQ(PlaceOf(Frame()), "20,30 200x100");
  RECT shown{};
  const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
  EXPECT_EQ(::GetWindowRgn(Frame(), region), SIMPLEREGION);
  ::GetRgnBox(region, &shown);
  EXPECT_EQ(shown.left, 0);
  EXPECT_EQ(shown.top, 20);
  EXPECT_EQ(shown.right, 80);
  EXPECT_EQ(shown.bottom, 100);
  container.Resize(200, 100);
  EXPECT_EQ(::GetWindowRgn(Frame(), region), ERROR);
  ::DeleteObject(region);
}

TEST_F(ControlTest, AWidthThatIsNoWholeNumberOfPixelsStaysExactInPlace) {
  SIZEL wanted{8001, 2646};  // 4535.9 twips, 302.4 pixels
  container.Object().SetExtent(DVASPECT_CONTENT, &wanted);
  container.place = {20, 30, 322, 130};
  Activate(OLEIVERB_INPLACEACTIVATE);
  container.Resize(302, 100);
  EXPECT_EQ(Extent().cx, 8001);
}

TEST_F(ControlTest, AFailingLayoutAnswersTheContainerWithAFailure) {
  dummy->failure = "geen ruimte";
  SIZEL wanted{8001, 2646};
  EXPECT_TRUE(FAILED(container.Object().SetExtent(DVASPECT_CONTENT, &wanted)));
  EXPECT_EQ(Extent().cx, 5292);
  Activate(OLEIVERB_INPLACEACTIVATE);
  const RECT wide{0, 0, 400, 100};
  EXPECT_TRUE(FAILED(container.As<IOleInPlaceObject>()->SetObjectRects(&wide, &wide)));
}

TEST_F(ControlTest, CannotBePlacedBeforeItIsActivated) {
  const RECT somewhere{0, 0, 100, 100};
  EXPECT_EQ(container.As<IOleInPlaceObject>()->SetObjectRects(&somewhere, &somewhere), OLE_E_NOT_INPLACEACTIVE);
}

}  // namespace
}  // namespace brivane::component::test
