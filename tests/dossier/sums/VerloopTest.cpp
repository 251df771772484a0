#include <gtest/gtest.h>

#include "dossier/sums/Kalenderjaren.h"
#include "dossier/sums/Verloop.h"
#include "tests/dossier/sums/Kolommen.h"

namespace brivane::sums {
namespace {

TEST(Kalenderjaren, RunToTheYearInWhichTheYoungestReachesTheAgeLimit) {
  // 1980 + 67 = 2047.
  EXPECT_EQ(JarenVan(Dag(22, 11, 2026), Paar(), 67), (Jaren{2026, 2047}));
  EXPECT_EQ(JarenVan(Dag(22, 11, 2060), Paar(), 67), (Jaren{2060, 2069})) << "ten years at least";
  EXPECT_EQ(JarenVan(Dag(22, 11, 2026), Paar(), 300), (Jaren{2026, 2105})) << "eighty years at most";
}

TEST(Kalenderjaren, OfAColumnAreThoseItLiesIn) {
  dossier::KolomGegevens kolom = Maandlast(1);
  EXPECT_EQ(JarenVan(kolom, 2047), (Jaren{2025, 2047}));
  EXPECT_EQ(JarenVan(kolom, 2020), (Jaren{2025, 2025}));
  kolom.Looptijd = 24;  // ends on 1 January 2027, so its last day is in 2026
  EXPECT_EQ(JarenVan(kolom, 2047), (Jaren{2025, 2026}));
  kolom.Termijn = 99;
  EXPECT_EQ(JarenVan(kolom, 2047), (Jaren{2025, 2025}));
  kolom.DatumAanvang = {};
  EXPECT_EQ(JarenVan(kolom, 2047).Aantal(), 0);
}

TEST(Kalenderjaren, CountAgesByYearNumber) {
  EXPECT_EQ(LeeftijdIn(2027, Dag(31, 12, 1978)), 49);
  EXPECT_EQ(LeeftijdIn(1978, Dag(31, 12, 1978)), 0);
  EXPECT_EQ(LeeftijdIn(1977, Dag(31, 12, 1978)), std::nullopt);
}

std::vector<double> Doorlopend(const dossier::KolomGegevens& kolom, const Jaren& jaren) {
  std::vector<double> bedragen;
  for (const Kolomjaar& jaar : KolomInJaren(kolom, Paar(), Levensscenario::ZoalsNu, jaren))
    bedragen.push_back(jaar.doorlopend);
  return bedragen;
}

TEST(Verloop, CountsAMonthInTheYearItBeginsIn) {
  dossier::KolomGegevens kolom = Maandlast(100);
  kolom.DatumAanvang = Dag(31, 10, 2025);  // months begin on 31 October, 30 November, 31 December, 31 January, ...
  kolom.Looptijd = 14;                     // and the last on 30 November 2026
  EXPECT_EQ(Doorlopend(kolom, {2024, 2027}), (std::vector<double>{0, 300, 1100, 0}));
}

TEST(Verloop, TakesEachMonthFromItsOwnYearOfTheColumn) {
  dossier::KolomGegevens kolom = Maandlast(120);
  kolom.Termijn = 12;
  kolom.DatumAanvang = Dag(1, 4, 2025);
  kolom.Bedrag.Perioden = {Vanaf(13, 240)};
  // 9 months of 10; then 3 of 10 and 9 of 20; then 12 of 20.
  EXPECT_EQ(Doorlopend(kolom, {2025, 2027}), (std::vector<double>{90, 210, 240}));
}

TEST(Verloop, HasNothingOfAColumnThatNeverRuns) {
  dossier::KolomGegevens kolom = Maandlast(100);
  kolom.DatumAanvang = {};
  EXPECT_EQ(Doorlopend(kolom, {2025, 2026}), (std::vector<double>{0, 0}));
  kolom = Maandlast(100);
  kolom.Productsoort = 44;
  kolom.Contractvervaldatum = Dag(1, 1, 2025);
  EXPECT_EQ(Doorlopend(kolom, {2025, 2026}), (std::vector<double>{0, 0})) << "it expires on the day it starts";
  kolom.Termijn = 4;
  EXPECT_EQ(Doorlopend(kolom, {2025, 2026}), (std::vector<double>{0, 0})) << "without a term";
  EXPECT_TRUE(Doorlopend(Maandlast(100), {2026, 2025}).empty());
}

TEST(Verloop, CountsTheMonthsOfABridgingLoan) {
  dossier::KolomGegevens kolom = Maandlast(999);
  kolom.Bedrag.Naam = "Overbruggingskrediet";
  kolom.Bedrag.Perioden = {Vanaf(24, 500), Vanaf(144, 250), Vanaf(156, 75)};
  EXPECT_EQ(Doorlopend(kolom, {2025, 2026}), (std::vector<double>{750, 75}));
}

}  // namespace
}  // namespace brivane::sums
