#include <gtest/gtest.h>

#include <brivane/frame/Design.h>
#include <brivane/frame/Handle.h>

/// What the check of a design table finds, while compiling.
namespace brivane::frame {

namespace {

constexpr Design kEmbedded{.name = "Binnenste", .rows = {}, .width = 300, .height = 300};

template <std::size_t N> constexpr Fault CheckRows(const Row (&rows)[N]) {
  return Check(Design{.name = "Proef", .rows = rows, .width = 6000, .height = 3000});
}

constexpr DesignPlace kPlace{0, 0, 900, 300};

static_assert(
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
               {.name = "Binnenste", .kind = Kind::Surface, .place = kPlace, .tab = 4, .embedded = &kEmbedded}}) ==
    Fault::None);
static_assert(Check(kEmbedded) == Fault::None);

static_assert(CheckRows({{.name = "", .kind = Kind::Label, .place = kPlace}}) == Fault::NoName);

static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace},
                         {.name = "lblA", .kind = Kind::Label, .place = kPlace}}) == Fault::NameTwice);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2},
                         {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2}}) == Fault::NameTwice);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2},
                         {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 1}}) == Fault::NameTwice);

static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 1},
                         {.name = "lblB", .kind = Kind::Label, .place = kPlace},
                         {.name = "lblA", .kind = Kind::Label, .place = kPlace, .index = 2}}) == Fault::ArrayScattered);

static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .parent = "fraA"}}) ==
              Fault::ParentMissing);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .parent = "fraA"},
                         {.name = "fraA", .place = {0, 0, 3000, 1500}}}) == Fault::ParentMissing);
static_assert(CheckRows({{.name = "fraA", .place = kPlace, .parent = "fraA"}}) == Fault::ParentMissing);

static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace},
                         {.name = "lblB", .kind = Kind::Label, .place = kPlace, .parent = "lblA"}}) ==
              Fault::ParentNotAFrame);

static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {5101, 0, 900, 300}}}) == Fault::OutsideParent);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {5100, 2700, 900, 300}}}) == Fault::None);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {0, 2701, 900, 300}}}) == Fault::OutsideParent);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = {-1, 0, 900, 300}}}) == Fault::OutsideParent);
static_assert(CheckRows({{.name = "fraA", .place = {0, 0, 3000, 1500}},
                         {.name = "lblA", .kind = Kind::Label, .place = {2200, 0, 900, 300}, .parent = "fraA"}}) ==
              Fault::OutsideParent);

static_assert(CheckRows({{.name = "txtA", .kind = Kind::TextBox, .place = kPlace, .tab = 1, .format = Format::Text}}) ==
              Fault::BoxWithoutLabel);
static_assert(CheckRows({{.name = "jnA", .kind = Kind::JaNee, .place = kPlace, .tab = 1}}) == Fault::BoxWithoutLabel);
static_assert(CheckRows({{.name = "cboA", .kind = Kind::ListBox, .place = kPlace, .tab = 1}}) ==
              Fault::BoxWithoutLabel);

static_assert(CheckRows({{.name = "txtA", .kind = Kind::TextBox, .place = kPlace, .tab = 1, .label = "A"}}) ==
              Fault::BoxWithoutFormat);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .format = Format::Date}}) ==
              Fault::BoxWithoutFormat);

static_assert(CheckRows({{.name = "cmdA", .kind = Kind::Button, .place = kPlace, .tab = 1},
                         {.name = "cmdB", .kind = Kind::Button, .place = kPlace, .tab = 1}}) == Fault::TabTwice);
static_assert(CheckRows({{.name = "cmdA", .kind = Kind::Button, .place = kPlace, .tab = 1},
                         {.name = "cmdB", .kind = Kind::Button, .place = kPlace, .tab = 3}}) == Fault::TabGap);
static_assert(CheckRows({{.name = "cmdA", .kind = Kind::Button, .place = kPlace}}) == Fault::TabMissing);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .tab = 1}}) == Fault::TabOnPassive);
static_assert(CheckRows({{.name = "fraA", .place = kPlace, .tab = 1}}) == Fault::TabOnPassive);

static_assert(CheckRows({{.name = "Binnenste", .kind = Kind::Surface, .place = kPlace, .tab = 1}}) ==
              Fault::SurfaceWithoutDesign);
static_assert(CheckRows({{.name = "lblA", .kind = Kind::Label, .place = kPlace, .embedded = &kEmbedded}}) ==
              Fault::SurfaceWithoutDesign);

constexpr Row kRows[] = {
    {.name = "lblA", .kind = Kind::Label, .place = kPlace},
    {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 1, .tab = 1},
    {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 2, .tab = 2},
    {.name = "optB", .kind = Kind::OptionButton, .place = kPlace, .index = 3, .tab = 3},
    {.name = "cmdC", .kind = Kind::Button, .place = kPlace, .tab = 4},
};
constexpr Design kDesign{.name = "Proef", .rows = kRows, .width = 6000, .height = 3000};

}  // namespace

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
