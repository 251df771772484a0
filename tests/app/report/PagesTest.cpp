#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "app/report/Pages.h"
#include "app/report/TableLayout.h"
#include "tests/app/report/FixedRuler.h"

namespace brivane::app::report {
namespace {

/// 300 wide and 300 high with a margin of 20.
constexpr Sheet kSmall{.width = 300, .height = 300, .margin = 20};

Report TableReport(int rows) {
  Table table{.columns = {{.heading = "Naam", .width = Width::Rest}, {.heading = "Bedrag", .align = Align::Right}},
              .rows = {}};
  for (int i = 1; i <= rows; ++i)
    table.rows.push_back({RowKind::Plain, {{"Post" + std::to_string(i), {}}, {std::to_string(i) + ",00", {}}}});
  return {
      .title = "Titel", .client = "Cliënt", .adviser = "Adviseur", .date = "22-11-2026", .blocks = {std::move(table)}};
}

std::vector<std::string> TextsOf(const Page& page) {
  std::vector<std::string> texts;
  for (const Line& line : page.lines) texts.push_back(line.text);
  return texts;
}

int CountOf(const Page& page, const std::string& text) {
  const auto texts = TextsOf(page);
  return static_cast<int>(std::count(texts.begin(), texts.end(), text));
}

double BottomOf(const Page& page, const std::string& foot) {
  for (const Line& line : page.lines)
    if (line.text == foot) return line.top;
  return 0;
}

TEST(PagesTest, AnEmptyReportHasOnePage) {
  const auto pages = Paginate({.title = "Titel", .client = "", .adviser = "", .date = "22-11-2026", .blocks = {}},
                              FixedRuler(), kSmall);
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(TextsOf(pages[0]), (std::vector<std::string>{"Titel", "22-11-2026", "Pagina 1 van 1"}));
}

TEST(PagesTest, HeadingsAndPageNumbersStandOnEveryPage) {
  const auto pages = Paginate(TableReport(40), FixedRuler(), kSmall);
  // 15 points a row. Page 1: from 35 (title 20 to 30, 5 below it) to 248; page 2 and on from 50.
  ASSERT_EQ(pages.size(), 4U);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_EQ(CountOf(pages[i], "Naam"), 1);
    EXPECT_EQ(CountOf(pages[i], "Bedrag"), 1);
    EXPECT_EQ(CountOf(pages[i], "Pagina " + std::to_string(i + 1) + " van 4"), 1);
    EXPECT_EQ(CountOf(pages[i], "Adviseur · 22-11-2026"), 1);
    EXPECT_EQ(CountOf(pages[i], "Titel · Cliënt"), i == 0 ? 0 : 1);
  }
  // 213 points on page 1 hold the headings and 13 rows, 198 on the others the headings and 12.
  EXPECT_EQ(CountOf(pages[0], "Post13"), 1);
  EXPECT_EQ(CountOf(pages[1], "Post14"), 1);
  EXPECT_EQ(CountOf(pages[1], "Post25"), 1);
  EXPECT_EQ(CountOf(pages[2], "Post26"), 1);
  EXPECT_EQ(CountOf(pages[3], "Post40"), 1);
}

TEST(PagesTest, EveryRowStandsOnceAndAboveTheFoot) {
  const auto pages = Paginate(TableReport(40), FixedRuler(), kSmall);
  for (int i = 1; i <= 40; ++i) {
    int count = 0;
    for (const Page& page : pages) count += CountOf(page, "Post" + std::to_string(i));
    EXPECT_EQ(count, 1) << i;
  }
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const double foot = BottomOf(pages[i], "Pagina " + std::to_string(i + 1) + " van 4");
    for (const Line& line : pages[i].lines) EXPECT_TRUE(line.top == foot || line.top + 10 < foot) << line.text;
  }
}

TEST(PagesTest, ARowIsNotCutInTwo) {
  Report report = TableReport(12);
  // Three lines in the space that is left for two.
  std::get<Table>(report.blocks[0]).rows.push_back({RowKind::Plain, {{"Lang", {"eerste", "tweede"}}, {"1,00", {}}}});
  const auto pages = Paginate(report, FixedRuler(), kSmall);
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(CountOf(pages[0], "Lang"), 0);
  for (const char* text : {"Naam", "Lang", "eerste", "tweede"}) EXPECT_EQ(CountOf(pages[1], text), 1) << text;
}

TEST(PagesTest, ADetailAndATotalStayWithTheRowBeforeThem) {
  for (const RowKind kind : {RowKind::Detail, RowKind::Total}) {
    Report report = TableReport(13);
    std::get<Table>(report.blocks[0]).rows.push_back({kind, {{"daarbij", {}}, {"1,00", {}}}});
    const auto pages = Paginate(report, FixedRuler(), kSmall);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(CountOf(pages[0], "Post12"), 1);
    EXPECT_EQ(CountOf(pages[1], "Post13"), 1);
    EXPECT_EQ(CountOf(pages[1], "daarbij"), 1);
  }
}

TEST(PagesTest, ARowThatNoPageHoldsGoesOn) {
  Report report = TableReport(1);
  std::vector<std::string> notes;
  for (int i = 1; i <= 50; ++i) notes.push_back("regel" + std::to_string(i));
  std::get<Table>(report.blocks[0]).rows.push_back({RowKind::Plain, {{"Lang", notes}, {"1,00", {}}}});
  // 51 lines, 17 on each page below the headings and the row before it.
  const auto pages = Paginate(report, FixedRuler(), kSmall);
  ASSERT_EQ(pages.size(), 3U);
  for (int i = 1; i <= 50; ++i) {
    int count = 0;
    for (const Page& page : pages) count += CountOf(page, "regel" + std::to_string(i));
    EXPECT_EQ(count, 1) << i;
  }
  for (const Page& page : pages) EXPECT_EQ(CountOf(page, "Naam"), 1);
}

TEST(PagesTest, AHeadingDoesNotStandAloneAtTheBottom) {
  Report report = TableReport(11);
  report.blocks.emplace_back(Heading{"Kop"});
  report.blocks.emplace_back(Paragraph{"Tekst"});
  const auto pages = Paginate(report, FixedRuler(), kSmall);
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(CountOf(pages[1], "Kop"), 1);
  EXPECT_EQ(CountOf(pages[1], "Tekst"), 1);
}

TEST(PagesTest, AnAmountIsNeverWiderThanItsPlace) {
  const std::string most = "-999.999.999.999,99";
  Table table{.columns = {{.heading = "Naam", .width = Width::Rest},
                          {.heading = "A", .align = Align::Right},
                          {.heading = "B", .align = Align::Right}},
              .rows = {{RowKind::Plain, {{"Een naam die over regels gaat", {}}, {most, {}}, {most, {}}}}}};
  const FixedRuler ruler;
  // Two amounts of 95.5, two gaps of 9 and 120 for the name: 329.
  const TableLayout wide = LayOut(table, 400, ruler);
  EXPECT_EQ(wide.scale, 1);
  EXPECT_DOUBLE_EQ(wide.columns[0].width, 191);
  EXPECT_DOUBLE_EQ(wide.columns[2].left, 400 - 95.5);
  const TableLayout narrow = LayOut(table, 235, ruler);
  EXPECT_DOUBLE_EQ(narrow.scale, 235.0 / 329);
  for (const TableLayout& layout : {wide, narrow}) {
    const BrokenRow row = Break(table.rows[0], layout, ruler);
    EXPECT_EQ(row.cells[1].size(), 1U);
    EXPECT_LE(ruler.Width(most, Letters::Text) * layout.scale, layout.columns[1].width);
  }
}

}  // namespace
}  // namespace brivane::app::report
