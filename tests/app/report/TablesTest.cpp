#include <gtest/gtest.h>

#include <limits>

#include "app/report/Tables.h"
#include "tests/app/report/SampleSource.h"

namespace brivane::app::report {
namespace {

using Row = std::vector<std::string>;

/// Reads the bytes back as a spreadsheet does.
std::vector<Row> Read(const std::string& csv) {
  EXPECT_EQ(csv.substr(0, 3), "\xEF\xBB\xBF");
  std::vector<Row> rows{{""}};
  bool quoted = false;
  for (std::size_t i = 3; i < csv.size(); ++i) {
    std::string& cell = rows.back().back();
    if (quoted && csv[i] == '"' && i + 1 < csv.size() && csv[i + 1] == '"') {
      cell += csv[++i];
    } else if (csv[i] == '"') {
      quoted = !quoted;
    } else if (!quoted && csv[i] == ';') {
      rows.back().emplace_back();
    } else if (!quoted && csv.compare(i, 2, "\r\n") == 0) {
      rows.push_back({""});
      ++i;
    } else {
      cell += csv[i];
    }
  }
  EXPECT_EQ(rows.back(), Row{""});
  rows.pop_back();
  for (const Row& row : rows) EXPECT_EQ(row.size(), rows.front().size());
  return rows;
}

/// A row by its headings, empty cells left out.
std::string Named(const Row& headings, const Row& row) {
  std::string text;
  for (std::size_t i = 0; i < row.size(); ++i)
    if (!row[i].empty()) text += headings[i] + "=" + row[i] + "\n";
  return text;
}

TEST(TablesTest, EveryColumnHasARowWithAllItsFields) {
  const auto rows = Read(KolommenCsv(SampleSource()));
  ASSERT_EQ(rows.size(), 9U);  // headings, six columns of the current loan, two of the first new one
  EXPECT_EQ(rows[0].size(), 32U);
  EXPECT_EQ(Named(rows[0], rows[3]),
            "Situatie=Huidige situatie\nLening=Huidige lening\nNummer=3\nOmschrijving=Muzieklessen aan huis\n"
            "Bedrag=350,00\nEenheid=euro\nInvoer=bedragen\nTermijn=per maand\nAanvangsdatum=01-04-2025\n"
            "Einddatum=01-04-2035\nLooptijd in maanden=120\nCorrectie last=Bijdrage\nCorrectie fiscaal=Bijtelling\n"
            "Inkomen uit arbeid=Ja\nOnderdeel dagloon=Nee\nHeffing bij=S. de Wit\nProduct=Nee\nUw bemiddeling=Nee\n"
            "Beëindigen in voorstel 1=Nee\nBeëindigen in voorstel 2=Nee\nBeëindigen in voorstel 3=Nee\n"
            "Arbeidsongeschiktheid=Nee\nWerkloosheid=Ja\nLangleven=Ja\nOverlijden=Nee\n");
  EXPECT_EQ(Named(rows[0], rows[6]),
            "Situatie=Huidige situatie\nLening=Huidige lening\nNummer=6\nOmschrijving=Tennislidmaatschap\n"
            "Bedrag=240,00\nEenheid=euro\nInvoer=bedragen\nTermijn=per half jaar\nAanvangsdatum=01-07-2023\n"
            "Contractvervaldatum=30-06-2028\nCorrectie last=Last\nCorrectie fiscaal=Neutraal\nInkomen uit arbeid=Nee\n"
            "Onderdeel dagloon=Nee\nHeffing bij=S. de Wit\nProduct=Ja\nSoort product=Vereniging\n"
            "Maatschappij=TC De Baseline\nProductnaam=Seniorlid\nUw bemiddeling=Nee\nBeëindigen in voorstel 1=Ja\n"
            "Beëindigen in voorstel 2=Nee\nBeëindigen in voorstel 3=Nee\nArbeidsongeschiktheid=Ja\nWerkloosheid=Ja\n"
            "Langleven=Ja\nOverlijden=Nee\n");
  EXPECT_EQ(Named(rows[0], rows[8]).substr(0, 79),
            "Situatie=Nieuwe situatie\nLening=Nieuwe lening 1\nNummer=7\nOmschrijving=Onderhoud");
  // The transition of the annuity, and its growth.
  const std::string annuity = Named(rows[0], rows[5]);
  for (const char* text : {"Invoer=bedragen met groei", "Overlijden=Ja", "Overgang naar partner (%)=70",
                           "Einddatum overgang=12-03-2048", "Eindleeftijd overgang=70"})
    EXPECT_NE(annuity.find(text), std::string::npos) << text;
}

TEST(TablesTest, EveryYearOfAColumnWithPeriodsHasARow) {
  const auto rows = Read(PeriodenCsv(SampleSource()));
  // Childcare 8 years, the annuity 20 (of the 20 that the form shows), the childcare of the new loan 8.
  ASSERT_EQ(rows.size(), 1U + 8 + 20 + 8);
  EXPECT_EQ(rows[0], (Row{"Situatie", "Lening", "Nummer", "Omschrijving", "Jaar", "Van", "Tot en met", "Bedrag",
                          "Eenheid", "Termijn", "Op jaarbasis"}));
  EXPECT_EQ(rows[3], (Row{"Huidige situatie", "Huidige lening", "1", "Kinderopvang", "3", "01-09-2026", "31-08-2027",
                          "310,00", "euro", "per maand", "Nee"}));
  EXPECT_EQ(rows[9][7], "6250,00");
  EXPECT_EQ(rows[11][7], "6375,00");
  EXPECT_EQ(rows[31], (Row{"Nieuwe situatie", "Nieuwe lening 1", "1", "Kinderopvang", "3", "01-09-2026", "31-08-2027",
                           "165,00", "euro", "per maand", "Nee"}));
}

TEST(TablesTest, NoCellCanStartAFormulaAndANumberStaysOne) {
  for (const char* text :
       {"=HYPERLINK(\"http://x\")", "+1", "-1", "@SUM(A1)", "\t=1", "\r=1", "\n=1", "  =1", "-5 %; =1"}) {
    Source source = LargeSource(1);
    auto& kolom = source.gegevens.HuidigeLening.VrijeKolommen[0];
    kolom.Omschrijving = kolom.Productnaam = kolom.MaatschappijNaam = kolom.ProductsoortOmschrijving = text;
    kolom.IsProduct = true;
    kolom.Bedrag.Bedrag = -1234.5;
    source.leningen[0] = text;
    source.gegevens.Personen[0].Naam = {text, "", ""};
    const auto rows = Read(KolommenCsv(source));
    ASSERT_EQ(rows.size(), 2U);
    for (std::size_t i = 0; i < rows[1].size(); ++i) {
      const std::string& cell = rows[1][i];
      if (i == 4) {
        EXPECT_EQ(cell, "-1234,50");
      } else if (!cell.empty()) {
        const std::size_t first = cell.find_first_not_of(' ');
        EXPECT_EQ(std::string("=+-@\t\r\n").find(cell.at(first)), std::string::npos) << rows[0][i] << ": " << cell;
      }
    }
    EXPECT_EQ(rows[1][3], std::string("'") + text);
  }
}

TEST(TablesTest, WhatIsNoNumberIsLeftOpen) {
  Source source = LargeSource(1);
  source.gegevens.HuidigeLening.VrijeKolommen[0].Bedrag.Bedrag = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Read(KolommenCsv(source))[1][4], "");
}

TEST(TablesTest, AColumnOfPercentagesHasPercentages) {
  Source source = LargeSource(1);
  auto& kolom = source.gegevens.HuidigeLening.VrijeKolommen[0];
  kolom.Bedrag.Invoersoort = 2;
  kolom.Bedrag.Bedrag = 3.25;
  kolom.Bedrag.Perioden = {{{.Maand = 13, .Percentage = -1.5}}};
  kolom.Looptijd = 24;
  const auto kolommen = Read(KolommenCsv(source));
  EXPECT_EQ(kolommen[1][4], "3,25");
  EXPECT_EQ(kolommen[1][5], "procent");
  EXPECT_EQ(kolommen[1][6], "percentages");
  const auto perioden = Read(PeriodenCsv(source));
  ASSERT_EQ(perioden.size(), 3U);
  EXPECT_EQ(perioden[1][7], "3,25");
  EXPECT_EQ(perioden[2][7], "1,75");
}

}  // namespace
}  // namespace brivane::app::report
