#include <gtest/gtest.h>

#include <brivane/scenario/Invoersoort.h>
#include <brivane/scenario/Maanden.h>

namespace brivane::scenario {
namespace {

TEST(Maanden, ARowStandsForTwelveMonths) {
  const struct {
    int maand;
    int rijen;
    std::optional<int> rij;
  } gevallen[] = {
      {1, 5, 1},     {12, 5, 1},    {13, 5, 2},      {24, 5, 2},       {25, 5, 3},   {49, 5, 5},
      {60, 5, 5},    {61, 5, {}},   {0, 5, {}},      {-1, 5, {}},      {-12, 5, {}}, {960, 80, 80},
      {949, 80, 80}, {961, 80, {}}, {32767, 80, {}}, {-32768, 80, {}},
  };
  for (const auto& geval : gevallen) EXPECT_EQ(RijVan(geval.maand, geval.rijen), geval.rij) << geval.maand;
}

TEST(Maanden, AStoredRowFallsInItsFirstMonthOrItsLast) {
  EXPECT_EQ(MaandVan(1, Maandbasis::Maand), 1);
  EXPECT_EQ(MaandVan(3, Maandbasis::Maand), 25);
  EXPECT_EQ(MaandVan(80, Maandbasis::Maand), 949);
  EXPECT_EQ(MaandVan(1, Maandbasis::Jaar), 12);
  EXPECT_EQ(MaandVan(3, Maandbasis::Jaar), 36);
  EXPECT_EQ(MaandVan(80, Maandbasis::Jaar), 960);
}

TEST(Maanden, EveryRowComesBackFromItsMonth) {
  for (int rij = 1; rij <= 80; ++rij)
    for (const Maandbasis basis : {Maandbasis::Maand, Maandbasis::Jaar})
      EXPECT_EQ(RijVan(MaandVan(rij, basis), 80), rij);
}

TEST(Maanden, TheBasisFollowsTheKindOfScenarioAndTheTick) {
  const struct {
    std::int16_t soort;
    bool eenmalig;
    Maandbasis vorige;
    Maandbasis nieuw;
  } gevallen[] = {
      {1, false, Maandbasis::Jaar, Maandbasis::Maand},  {1, true, Maandbasis::Jaar, Maandbasis::Maand},
      {2, false, Maandbasis::Jaar, Maandbasis::Maand},  {2, true, Maandbasis::Maand, Maandbasis::Jaar},
      {0, false, Maandbasis::Jaar, Maandbasis::Jaar},   {0, true, Maandbasis::Maand, Maandbasis::Maand},
      {3, false, Maandbasis::Maand, Maandbasis::Maand}, {-1, false, Maandbasis::Jaar, Maandbasis::Jaar},
  };
  for (const auto& geval : gevallen)
    EXPECT_EQ(BasisVoor(geval.soort, geval.eenmalig, geval.vorige), geval.nieuw) << geval.soort << geval.eenmalig;
}

TEST(Invoersoort, KnowsThreeCodes) {
  EXPECT_EQ(SoortVan(1), Invoersoort::Bedrag);
  EXPECT_EQ(SoortVan(2), Invoersoort::Percentage);
  EXPECT_EQ(SoortVan(3), Invoersoort::BedragEnPercentage);
  for (const std::int16_t code : {std::int16_t{0}, std::int16_t{4}, std::int16_t{-1}})
    EXPECT_EQ(SoortVan(code), Invoersoort::Onbekend) << code;
}

}  // namespace
}  // namespace brivane::scenario
