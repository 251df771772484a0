#include <gtest/gtest.h>

#include <brivane/frame/Design.h>
#include <brivane/frame/Handle.h>

/// What the check of a design table finds. Each surface is checked while it compiles; here the check itself runs.
namespace brivane::frame {

namespace {

constexpr Design kEmbedded{.name = "Binnenste", .rows = {}, .width = 300, .height = 300};

template <std::size_t N> constexpr Fault CheckRows(const Row (&rows)[N]) {
  return Check(Design{.name = "Proef", .rows = rows, .width = 6000, .height = 3000});
}

constexpr DesignPlace kPlace{0, 0, 900, 300};

constexpr Row kRows[] = {
    {.name = "lblA", .kind = Kind::Label, .place = kPlace},
    {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 1, .tab = 1},
    {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 2, .tab = 2},
    {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 3, .tab = 3},
    {.name = "cmdC", .kind = Kind::Button, .place = kPlace, .tab = 4},
};
constexpr Design kDesign{.name = "Proef", .rows = kRows, .width = 6000, .height = 3000};

}  // namespace

TEST(Design, ATableInOrderHasNoFault) {
  EXPECT_EQ(
      CheckRows({{.name = "fraA", .place = {0, 0, 3000, 1500}},
                 {.name = "txtA",
                  .kind = Kind::TextBox,
                  .place = kPlace,
                  .parent = "fraA",
                  .tab = 1,
                  .label = "A",
                  .format = Format::Text},
                 {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 1, .tab = 3},
                 {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 2, .tab = 2},
                 {.name = "Binnenste", .kind = Kind::Surface, .place = kPlace, .tab = 4, .embedded = &kEmbedded}}),
      Fault::None);
  EXPECT_EQ(Check(kEmbedded), Fault::None);
}

TEST(Design, EveryRowHasAName) {
  EXPECT_EQ(CheckRows({{.name = "", .kind = Kind::Label, .place = kPlace}}), Fault::NoName);
}

TEST(Design, ANameStandsOnceAndTheElementsOfAnArrayInTheirOrder) {
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace},
                       {.name = "lblA", .kind = Kind::Label, .place = kPlace}}),
            Fault::NameTwice);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2},
                       {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2}}),
            Fault::NameTwice);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2},
                       {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 1}}),
            Fault::NameTwice);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = kTemplateIndex},
                       {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 1}}),
            Fault::None);
}

TEST(Design, AControlOutsideAnArraySharesItsNameWithNoElement) {
  for (const int index : {kTemplateIndex, 1}) {
    EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace},
                         {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = index}}),
              Fault::NameTwice)
        << index;
    EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = index},
                         {.name = "lblA", .kind = Kind::Label, .place = kPlace}}),
              Fault::NameTwice)
        << index;
  }
}

TEST(Design, TheElementsOfAnArrayStandTogether) {
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 1},
                       {.name = "lblB", .kind = Kind::Label, .place = kPlace},
                       {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2}}),
            Fault::ArrayScattered);
}

TEST(Design, AParentStandsBeforeItsChildren) {
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .parent = "fraA"}}),
            Fault::ParentMissing);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .parent = "fraA"},
                       {.name = "fraA", .place = {0, 0, 3000, 1500}}}),
            Fault::ParentMissing);
  EXPECT_EQ(CheckRows({{.name = "fraA", .place = kPlace, .parent = "fraA"}}), Fault::ParentMissing);
}

TEST(Design, AParentIsAFrame) {
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace},
                       {.name = "lblB", .kind = Kind::Label, .place = kPlace, .parent = "lblA"}}),
            Fault::ParentNotAFrame);
}

TEST(Design, AControlStandsInsideItsParent) {
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {5101, 0, 900, 300}}}), Fault::OutsideParent);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {5100, 2700, 900, 300}}}), Fault::None);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {0, 2701, 900, 300}}}), Fault::OutsideParent);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {-1, 0, 900, 300}}}), Fault::OutsideParent);
  EXPECT_EQ(CheckRows({{.name = "fraA", .place = {0, 0, 3000, 1500}},
                       {.name = "lblA", .kind = Kind::Label, .place = {2200, 0, 900, 300}, .parent = "fraA"}}),
            Fault::OutsideParent);
}

TEST(Design, ABoxIsLabelled) {
  EXPECT_EQ(CheckRows({{.name = "txtA", .kind = Kind::TextBox, .place = kPlace, .tab = 1, .format = Format::Text}}),
            Fault::BoxWithoutLabel);
  EXPECT_EQ(CheckRows({{.name = "jnA", .kind = Kind::JaNee, .place = kPlace, .tab = 1}}), Fault::BoxWithoutLabel);
  EXPECT_EQ(CheckRows({{.name = "cboA", .kind = Kind::ListBox, .place = kPlace, .tab = 1}}), Fault::BoxWithoutLabel);
}

TEST(Design, ATextBoxHasAFormatAndNothingElseHas) {
  EXPECT_EQ(CheckRows({{.name = "txtA", .kind = Kind::TextBox, .place = kPlace, .tab = 1, .label = "A"}}),
            Fault::BoxWithoutFormat);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .format = Format::Date}}),
            Fault::BoxWithoutFormat);
}

TEST(Design, TheTabOrderIsComplete) {
  EXPECT_EQ(CheckRows({{.name = "cmdA", .kind = Kind::Button, .place = kPlace, .tab = 1},
                       {.name = "cmdB", .kind = Kind::Button, .place = kPlace, .tab = 1}}),
            Fault::TabTwice);
  EXPECT_EQ(CheckRows({{.name = "cmdA", .kind = Kind::Button, .place = kPlace, .tab = 1},
                       {.name = "cmdB", .kind = Kind::Button, .place = kPlace, .tab = 3}}),
            Fault::TabGap);
  EXPECT_EQ(CheckRows({{.name = "cmdA", .kind = Kind::Button, .place = kPlace}}), Fault::TabMissing);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .tab = 1}}), Fault::TabOnPassive);
  EXPECT_EQ(CheckRows({{.name = "fraA", .place = kPlace, .tab = 1}}), Fault::TabOnPassive);
}

TEST(Design, ASurfaceHasADesignAndNothingElseHas) {
  EXPECT_EQ(CheckRows({{.name = "Binnenste", .kind = Kind::Surface, .place = kPlace, .tab = 1}}),
            Fault::SurfaceWithoutDesign);
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .embedded = &kEmbedded}}),
            Fault::SurfaceWithoutDesign);
}

TEST(Design, APlaceMayTouchEachEdgeOfItsParentAndPassNone) {
  const auto inSurface = [](DesignPlace place) {
    return CheckRows({{.name = "lblA", .kind = Kind::Label, .place = place}});
  };
  EXPECT_EQ(inSurface({0, 0, 6000, 3000}), Fault::None);
  EXPECT_EQ(inSurface({-1, 0, 900, 300}), Fault::OutsideParent);
  EXPECT_EQ(inSurface({0, -1, 900, 300}), Fault::OutsideParent);
  EXPECT_EQ(inSurface({1, 0, 6000, 300}), Fault::OutsideParent);
  EXPECT_EQ(inSurface({0, 1, 900, 3000}), Fault::OutsideParent);
  const auto inFrame = [](DesignPlace place) {
    return CheckRows({{.name = "lblB", .kind = Kind::Label, .place = kPlace},
                      {.name = "fraA", .place = {600, 600, 1500, 1200}},
                      {.name = "lblA", .kind = Kind::Label, .place = place, .parent = "fraA"}});
  };
  EXPECT_EQ(inFrame({0, 0, 1500, 1200}), Fault::None);
  EXPECT_EQ(inFrame({1, 0, 1500, 300}), Fault::OutsideParent);
  EXPECT_EQ(inFrame({0, 1, 900, 1200}), Fault::OutsideParent);
}

TEST(Design, EachKindTakesTheFocusOrNot) {
  for (const Kind kind : {Kind::TextBox, Kind::JaNee, Kind::OptionButton, Kind::CheckBox, Kind::ListBox, Kind::Button,
                          Kind::Hint, Kind::ListView, Kind::Surface})
    EXPECT_EQ(CheckRows({{.name = "A", .kind = kind, .place = kPlace}}), Fault::TabMissing) << static_cast<int>(kind);
  for (const Kind kind : {Kind::Frame, Kind::Label})
    EXPECT_EQ(CheckRows({{.name = "A", .kind = kind, .place = kPlace}}), Fault::None) << static_cast<int>(kind);
  for (const Kind kind : {Kind::TextBox, Kind::JaNee, Kind::ListBox, Kind::ListView})
    EXPECT_EQ(CheckRows({{.name = "A", .kind = kind, .place = kPlace, .tab = 1}}), Fault::BoxWithoutLabel)
        << static_cast<int>(kind);
  for (const Kind kind : {Kind::OptionButton, Kind::CheckBox, Kind::Button, Kind::Hint})
    EXPECT_EQ(CheckRows({{.name = "A", .kind = kind, .place = kPlace, .tab = 1}}), Fault::None)
        << static_cast<int>(kind);
}

TEST(Design, TheFaultIsFoundWhereverItStands) {
  constexpr Row kFirst{.name = "cmdA", .kind = Kind::Button, .place = kPlace, .tab = 1};
  constexpr Row kSecond{.name = "cmdB", .kind = Kind::Button, .place = kPlace, .tab = 2};
  EXPECT_EQ(CheckRows({kFirst, kSecond, {.name = "cmdC", .kind = Kind::Button, .place = kPlace, .tab = 1}}),
            Fault::TabTwice);
  EXPECT_EQ(CheckRows({kFirst, kSecond, {.name = "cmdC", .kind = Kind::Button, .place = kPlace, .tab = 2}}),
            Fault::TabTwice);
  EXPECT_EQ(CheckRows({kFirst, kSecond, {.name = "cmdC", .kind = Kind::Button, .place = kPlace, .tab = 4}}),
            Fault::TabGap);
  EXPECT_EQ(CheckRows({kFirst, kSecond, {.name = "cmdA", .kind = Kind::Button, .place = kPlace, .tab = 3}}),
            Fault::NameTwice);
  EXPECT_EQ(CheckRows({kFirst, kSecond, {.name = "lblA", .kind = Kind::Label, .place = kPlace, .parent = "cmdB"}}),
            Fault::ParentNotAFrame);
  EXPECT_EQ(CheckRows({kFirst, kSecond, {.name = "lblA", .kind = Kind::Label, .place = kPlace, .parent = "fraA"}}),
            Fault::ParentMissing);
  // An array that is counted from 0 has its elements in order as well.
  EXPECT_EQ(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 0},
                       {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 1},
                       {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2}}),
            Fault::None);
}

TEST(Design, ARowWithoutMoreIsABorderedFrameWithoutAPlace) {
  Row row{.name = "fraA"};
  EXPECT_EQ(row.place.left, 0);
  EXPECT_EQ(row.place.top, 0);
  EXPECT_EQ(row.place.width, 0);
  EXPECT_EQ(row.place.height, 0);
  EXPECT_EQ(row.kind, Kind::Frame);
  EXPECT_EQ(row.index, kNoIndex);
  EXPECT_EQ(kNoIndex, -1);
  EXPECT_EQ(row.tab, 0);
  EXPECT_EQ(row.mnemonic, '\0');
  EXPECT_TRUE(row.bordered);
  EXPECT_FALSE(row.locked);
  EXPECT_FALSE(row.multiline);
  EXPECT_FALSE(row.embedded.Given());
  EXPECT_EQ(row.embedded, nullptr);
  row.embedded = &kEmbedded;
  EXPECT_TRUE(row.embedded.Given());

  Design design{.name = "Proef", .rows = {}};
  EXPECT_EQ(design.width, 0);
  EXPECT_EQ(design.height, 0);
  EXPECT_EQ(design.fontName, "Arial");
  EXPECT_EQ(design.fontSize, 9);
}

TEST(Design, AControlIsFoundByItsNameAndKind) {
  EXPECT_EQ(detail::FindRow<Kind::Label>(kDesign, "lblA"), 0U);
  EXPECT_EQ(detail::FindRow<Kind::Button>(kDesign, "cmdC"), 4U);
  EXPECT_THROW((void)detail::FindRow<Kind::Button>(kDesign, "lblA"), const char*);
  EXPECT_THROW((void)detail::FindRow<Kind::Button>(kDesign, "cmdD"), const char*);
}

TEST(Design, AHandleStandsForItsRow) {
  EXPECT_EQ(Find<Kind::Label>(kDesign, "lblA").row, 0U);
  EXPECT_EQ(Find<Kind::Button>(kDesign, "cmdC").row, 4U);
}

TEST(Design, AnArrayHandleStandsForAllItsElements) {
  constexpr auto optB = FindArray<Kind::OptionButton>(kDesign, "optB");
  EXPECT_EQ(optB.row, 1U);
  EXPECT_EQ(optB.first, 1);
  EXPECT_EQ(optB.last, 3);
}

}  // namespace brivane::frame
