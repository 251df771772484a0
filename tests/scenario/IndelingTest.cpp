#include <gtest/gtest.h>

#include <brivane/scenario/Indeling.h>

namespace brivane::scenario {
namespace {

/// Widths that are easy to add.
constexpr Breedten kBreedten{.jaar = {240},
                             .bedrag = {1000},
                             .eenmalig = {200},
                             .hint = {300},
                             .percentage = {600},
                             .eenheid = {100},
                             .korting = {500},
                             .kortingeenheid = {90},
                             .maandkop = {250},
                             .waardekop = {700},
                             .kortingkop = {400}};

Opzet Grid(int rijen, Invoersoort soort, Overbrugging overbrugging = Overbrugging::Nee,
           Kortingkolom korting = Kortingkolom::Zonder) {
  return {.rijen = rijen, .soort = soort, .overbrugging = overbrugging, .korting = korting};
}

std::vector<float> Kolommen(const Indeling& indeling) {
  std::vector<float> links;
  for (const Rijplaats& rij : indeling.rijen)
    if (rij.eersteInKolom) links.push_back(rij.jaar.value);
  return links;
}

std::vector<int> RijenInKolommen(const Indeling& indeling) {
  std::vector<int> aantallen;
  for (const Rijplaats& rij : indeling.rijen) {
    if (rij.eersteInKolom) aantallen.push_back(0);
    ++aantallen.back();
  }
  return aantallen;
}

TEST(Rijaantal, StaysWithinOneAndEighty) {
  EXPECT_EQ(Rijaantal(-32768), 1);
  EXPECT_EQ(Rijaantal(0), 1);
  EXPECT_EQ(Rijaantal(1), 1);
  EXPECT_EQ(Rijaantal(80), 80);
  EXPECT_EQ(Rijaantal(81), 80);
  EXPECT_EQ(Rijaantal(200), 80);
}

TEST(Indeling, SpreadsTheRowsOverThreeOrFourColumns) {
  const struct {
    int rijen;
    std::vector<int> kolommen;
  } gevallen[] = {{1, {1}},       {2, {1, 1}},        {3, {1, 1, 1}},     {4, {2, 2}},
                  {7, {3, 3, 1}}, {30, {10, 10, 10}}, {31, {8, 8, 8, 7}}, {80, {20, 20, 20, 20}}};
  for (const auto& geval : gevallen) {
    const Indeling indeling = DeelIn(Grid(geval.rijen, Invoersoort::Bedrag), kBreedten);
    EXPECT_EQ(RijenInKolommen(indeling), geval.kolommen) << geval.rijen;
    EXPECT_EQ(indeling.koppen.size(), geval.kolommen.size()) << geval.rijen;
    EXPECT_EQ(static_cast<int>(indeling.rijen.size()), geval.rijen);
  }
}

TEST(Indeling, RowsAreThreeHundredAndSixtyTwipsApart) {
  const Indeling indeling = DeelIn(Grid(7, Invoersoort::Bedrag), kBreedten);
  std::vector<float> labels;
  std::vector<float> vakken;
  for (const Rijplaats& rij : indeling.rijen) {
    labels.push_back(rij.labelTop.value);
    vakken.push_back(rij.vakTop.value);
  }
  EXPECT_EQ(labels, (std::vector<float>{1070, 1430, 1790, 1070, 1430, 1790, 1070}));
  EXPECT_EQ(vakken, (std::vector<float>{1020, 1380, 1740, 1020, 1380, 1740, 1020}));
}

TEST(Indeling, TheFrameReachesBelowTheFirstColumn) {
  // Label top of the column's last row + 360 - 50 + 60.
  EXPECT_EQ(DeelIn(Grid(1, Invoersoort::Bedrag), kBreedten).kaderHoogte.value, 1440);
  EXPECT_EQ(DeelIn(Grid(7, Invoersoort::Bedrag), kBreedten).kaderHoogte.value, 2160);
  EXPECT_EQ(DeelIn(Grid(30, Invoersoort::Bedrag), kBreedten).kaderHoogte.value, 4680);
  EXPECT_EQ(DeelIn(Grid(31, Invoersoort::Bedrag), kBreedten).kaderHoogte.value, 3960);
  EXPECT_EQ(DeelIn(Grid(80, Invoersoort::Bedrag), kBreedten).kaderHoogte.value, 8280);
}

TEST(Indeling, Amounts) {
  const Indeling indeling = DeelIn(Grid(7, Invoersoort::Bedrag), kBreedten);
  // 240 + 60 + 1000 + 120 + 200 + 60 + 300 = 1980 from column to column.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 2115, 4095}));
  const Rijplaats verwacht{.eersteInKolom = true,
                           .labelTop = {1070},
                           .vakTop = {1020},
                           .jaar = {135},
                           .bedrag = {435},
                           .eenmalig = {1495},
                           .hint = {1755}};
  EXPECT_EQ(indeling.rijen[0], verwacht);
  EXPECT_EQ(indeling.koppen[1], (Kopplaats{.waarde = {2415}}));
  // 4095 + 240 + 60 + 1000 + 60 + 200 + 60 + 300.
  EXPECT_EQ(indeling.rechts.value, 6015);
}

TEST(Indeling, AmountsOfABridgingLoan) {
  const Indeling indeling = DeelIn(Grid(31, Invoersoort::Bedrag, Overbrugging::Ja), kBreedten);
  // 240 + 60 + 1000 + 120 = 1420.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 1555, 2975, 4395}));
  const Rijplaats verwacht{.labelTop = {1430}, .vakTop = {1380}, .jaar = {135}, .bedrag = {435}};
  EXPECT_EQ(indeling.rijen[1], verwacht);
  EXPECT_EQ(indeling.koppen[3], (Kopplaats{.maand = {4395}, .waarde = {4695}}));
  EXPECT_EQ(indeling.rechts.value, 5695);
}

TEST(Indeling, Percentages) {
  const Indeling indeling = DeelIn(Grid(30, Invoersoort::Percentage), kBreedten);
  // 240 + 60 + 600 + 60 + 100 + 120 = 1180.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 1315, 2495}));
  const Rijplaats verwacht{.eersteInKolom = true,
                           .labelTop = {1070},
                           .vakTop = {1020},
                           .jaar = {1315},
                           .percentage = {1615},
                           .eenheid = {2275}};
  EXPECT_EQ(indeling.rijen[10], verwacht);
  // The "%" of the last column reaches to 2495 + 240 + 60 + 600 + 60 + 100, the header to 2495 + 300 + 700.
  EXPECT_EQ(indeling.rechts.value, 3555);
}

TEST(Indeling, PercentagesWithDiscount) {
  const Indeling indeling = DeelIn(Grid(80, Invoersoort::Percentage, Overbrugging::Nee, Kortingkolom::Met), kBreedten);
  // 240 + 60 + 600 + 60 + 100 + 60 + 500 + 60 + 90 + 120 = 1890.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 2025, 3915, 5805}));
  const Rijplaats verwacht{.labelTop = {7910},
                           .vakTop = {7860},
                           .jaar = {135},
                           .percentage = {435},
                           .eenheid = {1095},
                           .korting = {1255},
                           .kortingeenheid = {1815}};
  EXPECT_EQ(indeling.rijen[19], verwacht);
  EXPECT_EQ(indeling.koppen[0], (Kopplaats{.waarde = {435}, .korting = {1350}}));
  // The "%" of the discount reaches to 5805 + 1770, the discount header to 5805 + 300 + 915 + 400.
  EXPECT_EQ(indeling.rechts.value, 7575);
}

TEST(Indeling, AmountsAndPercentages) {
  const Indeling indeling = DeelIn(Grid(7, Invoersoort::BedragEnPercentage), kBreedten);
  // 240 + 60 + 1000 + 60 + 600 + 60 + 100 + 120 = 2240.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 2375, 4615}));
  const Rijplaats verwacht{
      .labelTop = {1790}, .vakTop = {1740}, .jaar = {135}, .bedrag = {435}, .percentage = {1495}, .eenheid = {2155}};
  EXPECT_EQ(indeling.rijen[2], verwacht);
  EXPECT_EQ(indeling.rechts.value, 6735);
}

TEST(Indeling, AmountsAndPercentagesWithDiscount) {
  const Indeling indeling =
      DeelIn(Grid(31, Invoersoort::BedragEnPercentage, Overbrugging::Nee, Kortingkolom::Met), kBreedten);
  // 2240 + 60 + 500 + 60 + 90 = 2950.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 3085, 6035, 8985}));
  const Rijplaats verwacht{.eersteInKolom = true,
                           .labelTop = {1070},
                           .vakTop = {1020},
                           .jaar = {135},
                           .bedrag = {435},
                           .percentage = {1495},
                           .eenheid = {2155},
                           .korting = {2315},
                           .kortingeenheid = {2875}};
  EXPECT_EQ(indeling.rijen[0], verwacht);
  EXPECT_EQ(indeling.rechts.value, 8985 + 2830);
}

TEST(Indeling, AnUnknownKindHasLabelsAndHeadersOnly) {
  const Indeling indeling = DeelIn(Grid(4, Invoersoort::Onbekend, Overbrugging::Nee, Kortingkolom::Met), kBreedten);
  // 240 + 120 = 360.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 495}));
  const Rijplaats verwacht{.labelTop = {1430}, .vakTop = {1380}, .jaar = {495}};
  EXPECT_EQ(indeling.rijen[3], verwacht);
  EXPECT_EQ(indeling.koppen[1], (Kopplaats{.waarde = {795}, .korting = {1710}}));
  EXPECT_EQ(indeling.rechts.value, 2110);
}

TEST(Indeling, AWideHeaderIsTheRightmostControl) {
  Breedten breedten = kBreedten;
  breedten.waardekop = {5000};
  EXPECT_EQ(DeelIn(Grid(1, Invoersoort::Bedrag), breedten).rechts.value, 5435);
  breedten.maandkop = {6000};
  EXPECT_EQ(DeelIn(Grid(1, Invoersoort::Bedrag), breedten).rechts.value, 5435);
  EXPECT_EQ(DeelIn(Grid(1, Invoersoort::Bedrag, Overbrugging::Ja), breedten).rechts.value, 6135);
}

TEST(Indeling, AColumnStartsAtAWholeTwip) {
  // Templates of a screen with 12 twips to a pixel: 192.6 + 60 + 800.8 + 120 = 1173.4.
  Breedten breedten = kBreedten;
  breedten.jaar = {192.6F};
  breedten.bedrag = {800.8F};
  const Indeling indeling = DeelIn(Grid(3, Invoersoort::Bedrag, Overbrugging::Ja), breedten);
  // 135 + 1173.4 is cut to 1308, and 1308 + 1173.4 to 2481; not 135 + 2 x 1173.4 = 2481.8 by itself.
  EXPECT_EQ(Kolommen(indeling), (std::vector<float>{135, 1308, 2481}));
  EXPECT_FLOAT_EQ(indeling.rijen[0].bedrag.value, 387.6F);
}

}  // namespace
}  // namespace brivane::scenario
