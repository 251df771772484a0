#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "dossier/sums/Centen.h"
#include "dossier/sums/Effect.h"
#include "tests/dossier/sums/Kolommen.h"
#include <brivane/toelichting/Effecttabel.h>

namespace brivane::sums {
namespace {

dossier::KolomGegevens MetCorrecties(std::int16_t last, std::int16_t fiscaal) {
  dossier::KolomGegevens kolom = Maandlast(1);
  kolom.CorrectieLast = last;
  kolom.CorrectieFiscaal = fiscaal;
  return kolom;
}

TEST(Effect, GoesByEachCorrectionByItself) {
  struct Geval {
    std::int16_t last, fiscaal;
    Effect effect;  // of 50 a month, 600 a year, at a rate of 37 %
  };
  // 37 % of 600 is 222.
  const Geval gevallen[] = {
      {1, 1, {50, -600, -222.0}}, {1, 2, {50, 600, 222.0}}, {1, 3, {50, 0, 0.0}},      {2, 1, {-50, -600, -222.0}},
      {2, 2, {-50, 600, 222.0}},  {2, 3, {-50, 0, 0.0}},    {3, 1, {0, -600, -222.0}}, {3, 2, {0, 600, 222.0}},
      {3, 3, {0, 0, 0.0}},        {0, 9, {0, 0, 0.0}},
  };
  for (const Geval& geval : gevallen)
    EXPECT_EQ(EffectVan(MetCorrecties(geval.last, geval.fiscaal), 50, 600, 1, {37.0, 49.5}), geval.effect)
        << geval.last << geval.fiscaal;
}

std::string Woord(double effect) { return effect == 0 ? "Geen" : effect > 0 ? "Verhoging" : "Verlaging"; }

TEST(Effect, SaysWhatTheExplanationListSays) {
  for (const toelichting::Effect& rij : toelichting::kEffecten) {
    const auto last = static_cast<std::int16_t>(rij.code[0] - '0');
    const auto fiscaal = static_cast<std::int16_t>(rij.code[1] - '0');
    const Effect effect = EffectVan(MetCorrecties(last, fiscaal), 50, 600, 1, {37.0, {}});
    EXPECT_EQ(Woord(effect.last), rij.teksten[2]) << rij.code;
    EXPECT_EQ(Woord(*effect.belasting), rij.teksten[3]) << rij.code;
  }
}

TEST(Effect, OnTaxNeedsTheRateOfThePersonAndNoOther) {
  const auto kolom = MetCorrecties(3, 2);
  EXPECT_EQ(EffectVan(kolom, 0, 100, 1, {37.0, std::nullopt}).belasting, 37.0);
  EXPECT_EQ(EffectVan(kolom, 0, 100, 2, {37.0, std::nullopt}).belasting, std::nullopt);
  EXPECT_EQ(EffectVan(kolom, 0, 100, 2, {std::nullopt, 49.5}).belasting, 49.5);
  EXPECT_EQ(EffectVan(kolom, 0, 100, 7, {37.0, 49.5}).belasting, std::nullopt);
  EXPECT_EQ(EffectVan(kolom, 0, 100, 1, {0.0, std::nullopt}).belasting, 0.0) << "a rate of nothing is a rate";
  EXPECT_EQ(EffectVan(MetCorrecties(1, 3), 50, 600, 1, {}).belasting, 0.0) << "neutral whatever the rate";
}

TEST(Effect, IsAddedUpAndComparedToTheCent) {
  EXPECT_EQ(Som({0.1, 1, 0.5}, {0.2, 2, 0.25}), (Effect{0.3, 3, 0.75}));
  EXPECT_EQ(Som({1, 1, 0.5}, {1, 1, std::nullopt}).belasting, std::nullopt);
  EXPECT_EQ(Verschil(Effect{100.1, 10, 1.0}, Effect{100.3, 4, 0.0}), (Effect{0.2, -6, -1.0}));
  EXPECT_EQ(Verschil(Effect{0, 0, std::nullopt}, Effect{0, 0, 1.0}).belasting, std::nullopt);
}

TEST(OpCenten, RoundsHalvesAwayFromZeroAsTheyAreOnPaper) {
  struct Geval {
    double euro, centen;
  };
  const Geval gevallen[] = {{8.125, 8.13},     {-8.125, -8.13}, {8.1249, 8.12},      {1.005, 1.01}, {2405.925, 2405.93},
                            {95.0 / 12, 7.92}, {-0.001, 0},     {100.05 / 6, 16.68}, {0, 0}};
  for (const Geval& geval : gevallen) EXPECT_EQ(OpCenten(geval.euro), geval.centen) << geval.euro;
  EXPECT_FALSE(std::signbit(OpCenten(-0.001)));
  EXPECT_TRUE(std::isnan(OpCenten(std::numeric_limits<double>::quiet_NaN())));
}

}  // namespace
}  // namespace brivane::sums
