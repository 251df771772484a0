#include <gtest/gtest.h>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/Dump.h>
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::controls {

TEST(Dump, ABoxShowsWhatItHoldsAlsoOfAnotherKind) {
  memory::Toolkit toolkit;
  const auto surface = toolkit.MakeSurface(test::kSurface);
  AnyControl& box = *Surface::Of(*surface).Find("txtBedrag");
  EXPECT_EQ(Dump(box).value, DumpValue(0.0));
  box.Perform(Enter{std::string("twaalf")});
  EXPECT_EQ(Dump(box).value, DumpValue(std::string("twaalf")));
  box.Perform(Enter{host::Date{45322}});
  EXPECT_EQ(Dump(box).value, DumpValue(host::Date{45322}));
}

TEST(Dump, EachKindHasItsOwnFieldsAlone) {
  memory::Toolkit toolkit;
  const auto surface = toolkit.MakeSurface(test::kSurface);
  for (const ControlDump& dump : DumpAll(Surface::Of(*surface))) {
    SCOPED_TRACE(dump.name);
    using host::Kind;
    const Kind kind = dump.kind;
    const bool valued =
        kind == Kind::TextBox || kind == Kind::JaNee || kind == Kind::OptionButton || kind == Kind::CheckBox;
    const bool captioned = kind == Kind::Frame || kind == Kind::Label || kind == Kind::OptionButton ||
                           kind == Kind::CheckBox || kind == Kind::Button;
    EXPECT_EQ(dump.value != DumpValue(), valued);
    EXPECT_EQ(dump.caption.has_value(), captioned);
    EXPECT_EQ(dump.locked.has_value(), kind == Kind::TextBox);
    EXPECT_EQ(dump.list.has_value(), kind == Kind::ListBox);
    EXPECT_EQ(dump.listView.has_value(), kind == Kind::ListView);
    EXPECT_TRUE(dump.backColor);
  }
}

TEST(Dump, AnEmbeddedSurfaceIsFollowedByWhatIsOnIt) {
  memory::Toolkit toolkit;
  const auto surface = toolkit.MakeSurface(test::kSurface);
  const std::vector<ControlDump> dumps = DumpAll(Surface::Of(*surface));
  ASSERT_GE(dumps.size(), 3U);
  EXPECT_EQ(dumps[dumps.size() - 3].name, "Binnenste");
  EXPECT_EQ(dumps[dumps.size() - 2].name, "Binnenste.fraBinnen");
  EXPECT_EQ(dumps[dumps.size() - 1].name, "Binnenste.jnBinnen");
}

}  // namespace brivane::controls
