#include <gtest/gtest.h>

#include <algorithm>

#include "app/report/Contents.h"
#include "tests/app/report/SampleSource.h"

namespace brivane::app::report {
namespace {

using Texts = std::vector<std::string>;

Texts HeadingsOf(const Report& report) {
  Texts texts;
  for (const Block& block : report.blocks)
    if (const auto* heading = std::get_if<Heading>(&block)) texts.push_back(heading->text);
  return texts;
}

/// The nth table of a report, from 0.
Table TableOf(const Report& report, int number) {
  for (const Block& block : report.blocks)
    if (const auto* table = std::get_if<Table>(&block); table && number-- == 0) return *table;
  ADD_FAILURE() << "no such table";
  return {};
}

/// The texts of a row without their notes.
Texts TextsOf(const TableRow& row) {
  Texts texts;
  for (const Cell& cell : row.cells) texts.push_back(cell.text);
  return texts;
}

Texts NotesOf(const TableRow& row, std::size_t column) { return row.cells.at(column).notes; }

const TableRow& RowOf(const Table& table, const std::string& name) {
  const auto found = std::find_if(table.rows.begin(), table.rows.end(),
                                  [&](const TableRow& row) { return row.cells[0].text == name; });
  EXPECT_NE(found, table.rows.end()) << name;
  return *found;
}

TEST(ContentsTest, TheClientIsTold) {
  const Report report = ReportOf(SampleSource());
  EXPECT_EQ(report.client, "M.C. van den Heuvel en S. de Wit");
  EXPECT_EQ(report.adviser, "Jan de Vries");
  EXPECT_EQ(report.date, "22-11-2026");
  EXPECT_EQ(std::get<Facts>(report.blocks.at(0)), (Facts{{{"Aanvrager", "M.C. van den Heuvel, geboren 12-03-1978"},
                                                          {"Partner", "S. de Wit, geboren 29-02-1980"},
                                                          {"Leeftijdsgrens", "67 jaar"},
                                                          {"Datum", "22-11-2026"},
                                                          {"Adviseur", "Jan de Vries"}}}));
  EXPECT_EQ(HeadingsOf(report), (Texts{"Totalen", "Huidige situatie: Huidige lening",
                                       "Nieuwe situatie: Nieuwe lening 1", "Nieuwe situatie: Nieuwe lening 2"}));
}

TEST(ContentsTest, TheTotalsAreThoseOfTheDay) {
  const Report report = ReportOf(SampleSource());
  // Childcare in its third year 310, newspaper 32,50, lessons -350, tennis 240 / 6 = 40: together 32,50. The lessons
  // add 4.200 a year to the partner's income. In the first new loan childcare is 165: 145 less.
  const Table recurring = TableOf(report, 0);
  ASSERT_EQ(recurring.rows.size(), 5U);
  EXPECT_EQ(TextsOf(recurring.rows[0]), (Texts{"Huidige situatie: Huidige lening", "€ 32,50", "€ 4.200,00"}));
  EXPECT_EQ(NotesOf(recurring.rows[0], 2), (Texts{"partner € 4.200,00"}));
  EXPECT_EQ(TextsOf(recurring.rows[1]), (Texts{"Nieuwe situatie: Nieuwe lening 1", "€ -112,50", "€ 4.200,00"}));
  EXPECT_EQ(recurring.rows[2].kind, RowKind::Detail);
  EXPECT_EQ(recurring.rows[2].cells[1].text, "€ -145,00");
  EXPECT_EQ(recurring.rows[2].cells[2].text, "€ 0,00");
  EXPECT_EQ(recurring.rows[3].cells[1].text, "€ 32,50");
  EXPECT_EQ(recurring.rows[4].cells[1].text, "€ 0,00");
  // The gift of December 2026 stands apart: a burden and a deduction of 1.500.
  const Table once = TableOf(report, 1);
  EXPECT_EQ(TextsOf(once.rows[0]), (Texts{"Huidige situatie: Huidige lening", "€ 1.500,00", "€ -1.500,00"}));
}

TEST(ContentsTest, WithARateOfTaxTheTaxIsTold) {
  Source source = SampleSource();
  source.uitgangspunt.tarieven = {37.0, 50.0};
  const Report report = ReportOf(source);
  // Half of 4.200, and 37 % of -1.500.
  EXPECT_EQ(TableOf(report, 0).rows[0].cells[3].text, "€ 2.100,00");
  EXPECT_EQ(TableOf(report, 1).rows[0].cells[3].text, "€ -555,00");
  // The rate of the one whose income it is is not known.
  source.uitgangspunt.tarieven[1].reset();
  EXPECT_EQ(TableOf(ReportOf(source), 0).rows[0].cells[3].text, "tarief onbekend");
}

TEST(ContentsTest, AColumnIsToldAsTheEditorShowsIt) {
  const Table current = TableOf(ReportOf(SampleSource()), 2);
  struct {
    const char* name;
    Texts texts;
    Texts notes;
    Texts term_and_end;
  } const cases[] = {
      {"Kinderopvang",
       {"Kinderopvang", "Last", "€ 485,50", "van 01-09-2024", "M.C. van den Heuvel", "€ 310,00", "€ 0,00"},
       {},
       {"per maand", "tot 01-09-2032"}},
      {"Weekendabonnement",
       {"Weekendabonnement", "Last", "€ 32,50", "van 01-01-2026", "M.C. van den Heuvel", "€ 32,50", "€ 0,00"},
       {"Krant, Dagblad De Maasbode, De Maasbode op zaterdag, uw bemiddeling"},
       {"per maand", "tot 31-12-2027"}},
      {"Muzieklessen aan huis",
       {"Muzieklessen aan huis", "Bijdrage", "€ 350,00", "van 01-04-2025", "S. de Wit", "€ -350,00", "€ 4.200,00"},
       {"Inkomen uit arbeid", "Telt niet mee bij arbeidsongeschiktheid"},
       {"per maand", "tot 01-04-2035"}},
      {"Lijfrente-uitkering",
       {"Lijfrente-uitkering", "Bijdrage", "€ 6.250,00", "van 31-01-2028", "M.C. van den Heuvel", "–", "–"},
       {"Bij overlijden 70 % naar partner, tot 12-03-2048 / 70 jaar"},
       {"per jaar", "tot 31-01-2048"}},
      {"Tennislidmaatschap",
       {"Tennislidmaatschap", "Last", "€ 240,00", "van 01-07-2023", "S. de Wit", "€ 40,00", "€ 0,00"},
       {"Vereniging, TC De Baseline, Seniorlid", "Wordt beëindigd in voorstel 1"},
       {"per half jaar", "tot 30-06-2028"}},
  };
  for (const auto& one : cases) {
    const TableRow& row = RowOf(current, one.name);
    EXPECT_EQ(TextsOf(row), one.texts);
    EXPECT_EQ(row.cells[0].notes, one.notes);
    EXPECT_EQ(row.cells[2].notes, (Texts{one.term_and_end[0]}));
    EXPECT_EQ(row.cells[3].notes, (Texts{one.term_and_end[1]}));
  }
  const TableRow& gift = RowOf(current, "Gift nieuwbouw kinderhoek");
  EXPECT_EQ(gift.cells[3], (Cell{"15-12-2026", {}}));
  EXPECT_EQ(gift.cells[5], (Cell{"€ 1.500,00", {"eenmalig"}}));
  EXPECT_EQ(NotesOf(RowOf(current, "Lijfrente-uitkering"), 5), (Texts{"nog niet"}));
}

TEST(ContentsTest, TheYearsOfAColumnStandBelowIt) {
  const Table current = TableOf(ReportOf(SampleSource()), 2);
  struct {
    const char* when;
    const char* amount;
  } const years[] = {{"jaar 1 t/m 2: 01-09-2024 t/m 31-08-2026", "€ 485,50"},
                     {"jaar 3 t/m 4: 01-09-2026 t/m 31-08-2028", "€ 310,00"},
                     {"jaar 5 t/m 8: 01-09-2028 t/m 31-08-2032", "€ 165,00"}};
  ASSERT_EQ(current.rows[0].cells[0].text, "Kinderopvang");
  for (std::size_t i = 0; i < 3; ++i) {
    const TableRow& row = current.rows[i + 1];
    EXPECT_EQ(row.kind, RowKind::Detail);
    EXPECT_EQ(row.cells[0].text, years[i].when);
    EXPECT_EQ(row.cells[2].text, years[i].amount);
  }
  EXPECT_EQ(current.rows[4].cells[0].text, "Weekendabonnement");
}

TEST(ContentsTest, ASituationTellsWhatDiffersAndWhatFollows) {
  const Table first = TableOf(ReportOf(SampleSource()), 3);
  EXPECT_EQ(NotesOf(RowOf(first, "Kinderopvang"), 0), (Texts{"Afwijking van de huidige situatie"}));
  EXPECT_EQ(NotesOf(RowOf(first, "Weekendabonnement"), 0), (Texts{"Volgt de huidige situatie"}));
  EXPECT_EQ(NotesOf(RowOf(first, "Onderhoud zonnepanelen"), 0), (Texts{"Alleen in de nieuwe situatie"}));
  // Of what follows the years are told in the current situation.
  const Table second = TableOf(ReportOf(SampleSource()), 4);
  EXPECT_EQ(second.rows.size(), 6U);
}

TEST(ContentsTest, AnEmptyCaseSaysSo) {
  Source source = SampleSource();
  source.gegevens = dossier::LeegDossier();
  source.leningen = {"Huidige lening", "Nieuwe lening 1"};
  source.adviser.clear();
  const Report report = ReportOf(source);
  EXPECT_EQ(report.client, "Aanvrager");
  EXPECT_EQ(std::count(report.blocks.begin(), report.blocks.end(), Block(Paragraph{"Er zijn geen vrije kolommen."})),
            2);
  for (const auto& [name, value] : std::get<Facts>(report.blocks.at(0)).lines) {
    EXPECT_NE(name, "Partner");
    EXPECT_NE(name, "Adviseur");
  }
  EXPECT_EQ(TextsOf(TableOf(report, 0).rows[0]), (Texts{"Huidige situatie: Huidige lening", "€ 0,00", "€ 0,00"}));
}

}  // namespace
}  // namespace brivane::app::report
