#include <gtest/gtest.h>

#include "app/report/Years.h"
#include "tests/app/report/SampleSource.h"

namespace brivane::app::report {
namespace {

dossier::KolomGegevens Sample(std::size_t place) {
  return SampleSource().gegevens.HuidigeLening.VrijeKolommen.at(place);
}

TEST(YearsTest, AColumnThatIsTheSameEveryYearHasNone) { EXPECT_TRUE(YearsOf(Sample(1), 20).empty()); }

TEST(YearsTest, AOneOffAmountHasNone) {
  dossier::KolomGegevens kolom = Sample(0);
  kolom.Termijn = host::codes::kEenmalig;
  EXPECT_TRUE(YearsOf(kolom, 20).empty());
}

TEST(YearsTest, TheYearsOfADurationEndWithIt) {
  // Childcare from 1 September 2024 for 96 months; from year 3 on 310, from year 5 on 165.
  const auto years = YearsOf(Sample(0), 20);
  ASSERT_EQ(years.size(), 8U);
  EXPECT_EQ(years[0], (Year{1, Day(1, 9, 2024), Day(31, 8, 2025), 485.5, false}));
  EXPECT_EQ(years[2], (Year{3, Day(1, 9, 2026), Day(31, 8, 2027), 310, false}));
  EXPECT_EQ(years[7], (Year{8, Day(1, 9, 2031), Day(31, 8, 2032), 165, false}));
}

TEST(YearsTest, YearsThatAreAlikeStandTogether) {
  const auto spans = SpansOf(YearsOf(Sample(0), 20));
  ASSERT_EQ(spans.size(), 3U);
  EXPECT_EQ(spans[0].first.number, 1);
  EXPECT_EQ(spans[0].last.number, 2);
  EXPECT_EQ(spans[0].last.to, Day(31, 8, 2026));
  EXPECT_EQ(spans[1].first.number, 3);
  EXPECT_EQ(spans[2].first.number, 5);
  EXPECT_EQ(spans[2].last.number, 8);
}

TEST(YearsTest, ThereAreNoMoreThanTheFormHas) { EXPECT_EQ(YearsOf(Sample(0), 3).size(), 3U); }

TEST(YearsTest, ALastYearThatIsNotWholeEndsWithTheColumn) {
  dossier::KolomGegevens kolom = Sample(0);
  kolom.Looptijd = 30;
  const auto years = YearsOf(kolom, 20);
  ASSERT_EQ(years.size(), 3U);
  EXPECT_EQ(years[2].to, Day(28, 2, 2027));
}

TEST(YearsTest, AColumnWithoutStartHasNumbersAlone) {
  dossier::KolomGegevens kolom = Sample(0);
  kolom.DatumAanvang = host::kNoDate;
  const auto years = YearsOf(kolom, 6);
  ASSERT_EQ(years.size(), 6U);
  EXPECT_TRUE(years[0].from.IsNone());
  EXPECT_TRUE(years[5].to.IsNone());
  EXPECT_EQ(years[5].value, 165);
}

TEST(YearsTest, AnAmountGrowsByItsPercentage) {
  // 6250 a year, from month 13 on 2 % more: the second year is the first to grow from.
  const auto years = YearsOf(Sample(4), 4);
  ASSERT_EQ(years.size(), 4U);
  EXPECT_EQ(years[0].value, 6250);
  EXPECT_EQ(years[1].value, 6250);
  EXPECT_NEAR(years[2].value, 6375, 1e-4);
  EXPECT_NEAR(years[3].value, 6502.5, 1e-3);
}

TEST(YearsTest, TheFormGoesOnToTheYearOfTheAgeLimit) {
  dossier::DossierGegevens gegevens = SampleSource().gegevens;
  dossier::KolomGegevens kolom;
  struct {
    std::int16_t persoon;
    std::int16_t leeftijd;
    int rows;
  } const cases[] = {{1, 67, 20},  // born in 1978: 2046 less 2026
                     {2, 67, 22},  // born in 1980
                     {1, 40, 1},   // past it already
                     {1, 130, 80},
                     {3, 67, 80}};  // nobody
  for (const auto& one : cases) {
    kolom.HeffingBij = one.persoon;
    gegevens.Leeftijd = one.leeftijd;
    EXPECT_EQ(RowsUntilAgeLimit(gegevens, kolom, Day(22, 11, 2026)), one.rows) << one.persoon << " " << one.leeftijd;
  }
}

}  // namespace
}  // namespace brivane::app::report
