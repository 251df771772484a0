// The effect list: its fixed rows, and which of them is marked.

#include "tests/toelichting/ToelichtingTest.h"
#include <brivane/controls/ListView.h>
#include <brivane/toelichting/Effecttabel.h>

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using namespace toelichting;

class EffectListTest : public ToelichtingTest {
 protected:
  [[nodiscard]] controls::ListView& List() { return dynamic_cast<controls::ListView&>(on_[lstToelichting]); }
  /// Texts of a row from 1, the bold ones marked with a star.
  [[nodiscard]] Lines Texts(std::size_t row) {
    Lines texts;
    for (const auto& cell : List().Items().at(row - 1).cells) texts.push_back((cell.bold ? "*" : "") + cell.text);
    return texts;
  }
  void BindCodes(std::int16_t last, std::int16_t fiscaal) {
    kolom_.velden.CorrectieLast = last;
    kolom_.velden.CorrectieFiscaal = fiscaal;
    Bind();
  }
  [[nodiscard]] int BoldCells() {
    int bold = 0;
    for (const auto& item : List().Items())
      for (const auto& cell : item.cells) bold += cell.bold ? 1 : 0;
    return bold;
  }
};

TEST_F(EffectListTest, HasFourColumnsAndSixRowsFromTheStart) {
  Lines headings;
  for (const auto& column : List().Columns()) {
    headings.push_back(column.heading);
    EXPECT_EQ(column.width, host::Twips{1425});
  }
  EXPECT_THAT(headings, ElementsAre("Correctie last", "Correctie fiscaal", "Effect maandlast", "Effect IB"));
  Lines keys;
  for (const auto& item : List().Items()) keys.push_back(item.key);
  EXPECT_THAT(keys, ElementsAre("KEY1", "KEY2", "KEY3", "KEY4", "KEY5", "KEY6"));
  EXPECT_THAT(Texts(1), ElementsAre("Last", "Aftrekpost", "Verhoging", "Verlaging"));
  EXPECT_THAT(Texts(2), ElementsAre("Last", "Neutraal", "Verhoging", "Geen"));
  EXPECT_THAT(Texts(3), ElementsAre("Bijdrage", "Bijtelling", "Verlaging", "Verhoging"));
  EXPECT_THAT(Texts(4), ElementsAre("Bijdrage", "Neutraal", "Verlaging", "Geen"));
  EXPECT_THAT(Texts(5), ElementsAre("Neutraal", "Aftrekpost", "Geen", "Verlaging"));
  EXPECT_THAT(Texts(6), ElementsAre("Neutraal", "Bijtelling", "Geen", "Verhoging"));
  EXPECT_EQ(List().Selected(), 0U);
  EXPECT_EQ(List().Place(), (host::Place{{135}, {300}, {5760}, {1695}}));
}

TEST_F(EffectListTest, IsBuiltAnewByAnotherControlOnTheSameSurface) {
  Make();
  EXPECT_EQ(List().Columns().size(), 4U);
  EXPECT_EQ(List().Items().size(), 6U);
}

TEST_F(EffectListTest, TracesItsBuild) {
  control_.emplace(*surface_, toolkit_.Desktop(), host_.Factories());
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.Fill_Listview", "leave Toelichting"));
}

TEST_F(EffectListTest, MarksTheRowOfTheCorrections) {
  struct Case {
    std::int16_t last;
    std::int16_t fiscaal;
    std::size_t row;
  };
  for (const Case& c : {Case{1, 1, 1}, Case{1, 3, 2}, Case{2, 2, 3}, Case{2, 3, 4}, Case{3, 1, 5}, Case{3, 2, 6},
                        Case{1, 2, 0}, Case{2, 1, 0}, Case{3, 3, 0}, Case{0, 0, 0}, Case{4, 1, 0}, Case{1, 4, 0}}) {
    BindCodes(c.last, c.fiscaal);
    EXPECT_EQ(List().Selected(), c.row) << c.last << ' ' << c.fiscaal;
    EXPECT_EQ(BoldCells(), c.row == 0 ? 0 : 4) << c.last << ' ' << c.fiscaal;
    EXPECT_EQ(EffectRij(c.last, c.fiscaal), c.row);
  }
}

TEST_F(EffectListTest, MovesTheMarkInAllFourColumns) {
  BindCodes(1, 1);
  EXPECT_THAT(Texts(1), ElementsAre("*Last", "*Aftrekpost", "*Verhoging", "*Verlaging"));
  BindCodes(3, 2);
  EXPECT_THAT(Texts(1), ElementsAre("Last", "Aftrekpost", "Verhoging", "Verlaging"));
  EXPECT_THAT(Texts(6), ElementsAre("*Neutraal", "*Bijtelling", "*Geen", "*Verhoging"));
}

TEST_F(EffectListTest, KeepsItsMarkThroughEditsOfTheControl) {
  BindCodes(2, 2);
  Act(on_[jnAO], controls::Toggle{host::kNee});
  EXPECT_EQ(List().Selected(), 3U);
}

TEST_F(EffectListTest, LosesItsMarkWhereNoColumnIsFound) {
  BindCodes(1, 1);
  Bind(9);
  EXPECT_EQ(List().Selected(), 0U);
  EXPECT_EQ(BoldCells(), 0);
}

TEST_F(EffectListTest, FailsInTheBindingAndNotByItself) {
  host_.calls.Fail("CorrectieLast", Op::Get);
  Bind();
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.SetApplication", "enter Toelichting.Show_Keuze",
                                 "error Toelichting.SetApplication", "report Toelichting 1004"));
}

}  // namespace

}  // namespace brivane::test
