#include <gtest/gtest.h>

#include <vector>

#include "tests/scenario/Rijentabel.h"
#include <brivane/scenario/Opslag.h>

namespace brivane::scenario {

void PrintTo(const Bedragpost& post, std::ostream* uit) {
  *uit << "{" << post.maand << ", " << post.bedrag << ", " << post.eenmalig << "}";
}
void PrintTo(const Rentepost& post, std::ostream* uit) {
  *uit << "{" << post.maand << ", " << post.netto << ", " << post.korting << "}";
}
void PrintTo(const Groeipost& post, std::ostream* uit) { *uit << "{" << post.maand << ", " << post.percentage << "}"; }

namespace {

using tests::Rijentabel;
using Bedragen = std::vector<Bedragpost>;
using Percentages = std::vector<Rentepost>;
using Groeiposten = std::vector<Groeipost>;

Bedragen Bewaard(const Rijentabel& rijen, std::int16_t soort, Overbrugging overbrugging = Overbrugging::Nee) {
  Bedragen posten;
  Maandbasis basis = Maandbasis::Jaar;
  BewaarBedragen(rijen, overbrugging, soort, basis, [&](const Bedragpost& post) { posten.push_back(post); });
  return posten;
}

Percentages Bewaard(const Rijentabel& rijen, Kortingkolom kolom) {
  Percentages posten;
  BewaarPercentages(rijen, kolom, [&](std::int16_t, const auto& lees) { posten.push_back(lees()); });
  return posten;
}

Groeiposten Bewaard(const Rijentabel& rijen) {
  Groeiposten posten;
  BewaarGroei(rijen, [&](const Groeipost& post) { posten.push_back(post); });
  return posten;
}

TEST(BewaarBedragen, TakesTheRowsThatDifferFromTheRowAbove) {
  const Rijentabel rijen{.bedragen = {100, 100, 200, 200, 150}, .ticks = {false, false, false, false, false}};
  EXPECT_EQ(Bewaard(rijen, 1), (Bedragen{{25, 200, false}, {49, 150, false}}));
  EXPECT_EQ(Bewaard(rijen, 2), (Bedragen{{25, 200, false}, {49, 150, false}}));
  EXPECT_EQ(Bewaard(rijen, 0), (Bedragen{{36, 200, false}, {60, 150, false}}));
  EXPECT_EQ(Bewaard(rijen, 7), (Bedragen{{36, 200, false}, {60, 150, false}}));
}

TEST(BewaarBedragen, TakesTheRowsWhoseTickDiffersToo) {
  const Rijentabel rijen{.bedragen = {100, 100, 200, 200, 150}, .ticks = {false, false, true, false, false}};
  EXPECT_EQ(Bewaard(rijen, 2), (Bedragen{{36, 200, true}, {37, 200, false}, {49, 150, false}}));
  EXPECT_EQ(Bewaard(rijen, 1), (Bedragen{{25, 200, true}, {37, 200, false}, {49, 150, false}}));
}

TEST(BewaarBedragen, NeverTakesTheFirstRow) {
  EXPECT_EQ(Bewaard({.bedragen = {100}, .ticks = {true}}, 1), Bedragen{});
  EXPECT_EQ(Bewaard({.bedragen = {100, 100}, .ticks = {true, false}}, 1), (Bedragen{{13, 100, false}}));
}

TEST(BewaarBedragen, OfABridgingLoanTakesEveryRowWithAnAmount) {
  EXPECT_EQ(Bewaard({.bedragen = {0, 500, 0}}, 1, Overbrugging::Ja), (Bedragen{{13, 500, false}}));
  EXPECT_EQ(Bewaard({.bedragen = {500, 500, -1}}, 0, Overbrugging::Ja),
            (Bedragen{{12, 500, false}, {24, 500, false}, {36, -1, false}}));
  // Without a tick box a row counts as unticked.
  EXPECT_EQ(Bewaard({.bedragen = {500}}, 2, Overbrugging::Ja), (Bedragen{{1, 500, false}}));
}

TEST(BewaarBedragen, TheBasisStaysAsTheLastEntryLeftIt) {
  const Rijentabel rijen{.bedragen = {1, 2, 3}, .ticks = {false, false, false}};
  Maandbasis basis = Maandbasis::Jaar;
  Bedragen posten;
  const auto schrijf = [&](const Bedragpost& post) { posten.push_back(post); };
  BewaarBedragen(rijen, Overbrugging::Nee, 1, basis, schrijf);
  EXPECT_EQ(basis, Maandbasis::Maand);
  posten.clear();
  BewaarBedragen(rijen, Overbrugging::Nee, 0, basis, schrijf);
  EXPECT_EQ(posten, (Bedragen{{13, 2, false}, {25, 3, false}}));
}

TEST(BewaarBedragen, HandsOutEachEntryBeforeTheNextRowIsRead) {
  const Rijentabel rijen{.bedragen = {1, 2, 3}, .ticks = {false, false, false}, .kapotBedrag = 3};
  Maandbasis basis = Maandbasis::Jaar;
  Bedragen posten;
  EXPECT_THROW(
      BewaarBedragen(rijen, Overbrugging::Nee, 1, basis, [&](const Bedragpost& post) { posten.push_back(post); }),
      host::Error);
  EXPECT_EQ(posten, (Bedragen{{13, 2, false}}));
}

TEST(BewaarPercentages, WithoutDiscountTakesTheRowsThatDifferFromTheRowAbove) {
  EXPECT_EQ(Bewaard({.percentages = {4, 4, 5, 5, 4}}, Kortingkolom::Zonder), (Percentages{{25, 5, 0}, {49, 4, 0}}));
  EXPECT_EQ(Bewaard({.percentages = {4}}, Kortingkolom::Zonder), Percentages{});
}

TEST(BewaarPercentages, WithDiscountTakesTheRowsWherePercentageOrDiscountDiffers) {
  EXPECT_EQ(Bewaard({.percentages = {4, 4, 5, 5}, .kortingen = {0, 0.5, 0.5, 0.25}}, Kortingkolom::Met),
            (Percentages{{13, 3.5, 0.5}, {25, 4.5, 0.5}, {37, 4.75, 0.25}}));
}

TEST(BewaarPercentages, AFirstRowWithADiscountIsAnEntryOfItsOwn) {
  EXPECT_EQ(Bewaard({.percentages = {4, 4}, .kortingen = {0.5, 0.5}}, Kortingkolom::Met), (Percentages{{1, 3.5, 0.5}}));
  EXPECT_EQ(Bewaard({.percentages = {4, 4}, .kortingen = {0.5, 0}}, Kortingkolom::Met),
            (Percentages{{1, 3.5, 0.5}, {13, 4, 0}}));
  EXPECT_EQ(Bewaard({.percentages = {4, 4}, .kortingen = {0, 0}}, Kortingkolom::Met), Percentages{});
}

TEST(BewaarPercentages, RowsWithTheSameNetPercentageStillDiffer) {
  EXPECT_EQ(Bewaard({.percentages = {4, 4.5}, .kortingen = {0, 0.5}}, Kortingkolom::Met), (Percentages{{13, 4, 0.5}}));
}

TEST(BewaarGroei, TakesTheRowsThatDifferFromTheRowAboveAndTheFirstFromZero) {
  EXPECT_EQ(Bewaard({.percentages = {0, 0, 5, 5, 0}}), (Groeiposten{{25, 5}, {49, 0}}));
  EXPECT_EQ(Bewaard({.percentages = {2, 2, -3}}), (Groeiposten{{1, 2}, {25, -3}}));
  EXPECT_EQ(Bewaard({.percentages = {0, 0}}), Groeiposten{});
}

TEST(Posten, BeginEmpty) {
  EXPECT_EQ(Bedragpost{}, (Bedragpost{0, 0, false}));
  EXPECT_EQ(Rentepost{}, (Rentepost{0, 0, 0}));
  EXPECT_EQ(Groeipost{}, (Groeipost{0, 0}));
}

}  // namespace
}  // namespace brivane::scenario
