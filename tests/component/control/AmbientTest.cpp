#include <olectl.h>

#include "tests/component/control/ControlTest.h"
#include <brivane/host/Error.h>

namespace brivane::component::test {
namespace {

constexpr COLORREF kMint = 0x00C8FFC8;
constexpr COLORREF kSand = 0x00A0D8F0;

class AmbientTest : public ControlTest {
 protected:
  void SetUp() override {
    dummy = Dummy::Make();
    container.backColor = kMint;
    container.fontPoints = 11.25F;
  }
  void Tell(DISPID property) { EXPECT_EQ(container.As<IOleControl>()->OnAmbientPropertyChange(property), S_OK); }
  [[nodiscard]] COLORREF Color() const { return static_cast<COLORREF>(dummy->BackColor().value); }
};

TEST_F(AmbientTest, TakesTheContainersColourAndFont) {
  Insert();
  EXPECT_EQ(Color(), kMint);
  EXPECT_EQ(dummy->fontPoints, 11.25F);
}

TEST_F(AmbientTest, FollowsThemWhenTheyChange) {
  Insert();
  container.backColor = kSand;
  container.fontPoints = 18.0F;
  Tell(DISPID_AMBIENT_BACKCOLOR);
  EXPECT_EQ(Color(), kSand);
  EXPECT_EQ(dummy->fontPoints, 11.25F);
  Tell(DISPID_AMBIENT_FONT);
  EXPECT_EQ(dummy->fontPoints, 18.0F);
  container.backColor = kMint;
  Tell(DISPID_UNKNOWN);
  EXPECT_EQ(Color(), kMint);
}

TEST_F(AmbientTest, AColourThatTheHostSetStays) {
  Insert();
  dummy->Control().PutBackColor({0x0000FF});
  Tell(DISPID_AMBIENT_BACKCOLOR);
  EXPECT_EQ(Color(), 0x0000FFU);
}

TEST_F(AmbientTest, IsAsDesignedInAContainerThatTellsNothing) {
  container.backColor.reset();
  container.fontPoints.reset();
  Insert();
  EXPECT_EQ(dummy->BackColor(), host::kButtonFace);
  EXPECT_EQ(dummy->fontPoints, 0);
}

TEST_F(AmbientTest, LetsTheMouseThroughWhileAFormIsDesigned) {
  container.userMode = false;
  Insert();
  Activate(OLEIVERB_INPLACEACTIVATE);
  EXPECT_FALSE(::IsWindowEnabled(Frame()));
  container.userMode = true;
  Tell(DISPID_AMBIENT_USERMODE);
  EXPECT_TRUE(::IsWindowEnabled(Frame()));
}

TEST_F(AmbientTest, TellsItsListenersOfTheColourThatTheHostSets) {
  Insert();
  dummy->changed.clear();
  dummy->Control().PutBackColor({0x0000FF});
  EXPECT_THAT(dummy->changed, ElementsAre(DISPID_BACKCOLOR));
}

TEST_F(AmbientTest, TellsItsListenersOfTheContainersColourToo) {
  Insert();
  dummy->changed.clear();
  container.backColor = kSand;
  Tell(DISPID_AMBIENT_BACKCOLOR);
  EXPECT_THAT(dummy->changed, ElementsAre(DISPID_BACKCOLOR));
  Tell(DISPID_AMBIENT_BACKCOLOR);
  EXPECT_THAT(dummy->changed, ElementsAre(DISPID_BACKCOLOR)) << "it is the same colour";
}

TEST_F(AmbientTest, TakesAFontThatIsNoMoreThanAnObject) {
  container.fontAs = VT_UNKNOWN;
  Insert();
  EXPECT_EQ(dummy->fontPoints, 11.25F);
}

TEST_F(AmbientTest, ColourStaysWhereAListenerDoesNotAgree) {
  Insert();
  dummy->agreesToChange = false;
  dummy->changed.clear();
  try {
    dummy->Control().PutBackColor({0x0000FF});
    ADD_FAILURE() << "was set all the same";
  } catch (const host::Error& refusal) {
    EXPECT_EQ(refusal.Number(), 387);
  }
  EXPECT_EQ(Color(), kMint);
  EXPECT_THAT(dummy->changed, IsEmpty());
}

TEST_F(AmbientTest, EventsAreFrozenAsOftenAsTheyAreNotThawed) {
  Insert();
  const auto face = container.As<IOleControl>();
  face->FreezeEvents(TRUE);
  face->FreezeEvents(TRUE);
  face->FreezeEvents(FALSE);
  EXPECT_TRUE(dummy->Control().EventsFrozen());
  face->FreezeEvents(FALSE);
  EXPECT_FALSE(dummy->Control().EventsFrozen());
}

}  // namespace
}  // namespace brivane::component::test
