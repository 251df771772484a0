#include <gtest/gtest.h>

#include <brivane/scenario/Laden.h>

namespace brivane::scenario {

void PrintTo(const Bedragrij& rij, std::ostream* uit) { *uit << "{" << rij.bedrag << ", " << rij.eenmalig << "}"; }
void PrintTo(const Renterij& rij, std::ostream* uit) { *uit << "{" << rij.percentage << ", " << rij.korting << "}"; }

namespace {

using Bedragen = std::vector<Bedragrij>;
using Renten = std::vector<Renterij>;
using Reeks = std::vector<double>;

Bedragen Laad(int rijen, double basis, const std::vector<Bedragpost>& posten,
              Overbrugging overbrugging = Overbrugging::Nee) {
  return LaadBedragen(rijen, overbrugging, basis, posten);
}

TEST(LaadBedragen, WithoutEntriesEveryRowHasTheBaseValue) {
  EXPECT_EQ(Laad(3, 100, {}), (Bedragen{{100, false}, {100, false}, {100, false}}));
}

TEST(LaadBedragen, AnAmountGoesOnAndATickDoesNot) {
  EXPECT_EQ(Laad(5, 100, {{25, 200, true}, {49, 150, false}}),
            (Bedragen{{100, false}, {100, false}, {200, true}, {200, false}, {150, false}}));
  // The first and the last month of a year are the same row.
  EXPECT_EQ(Laad(3, 100, {{36, 200, false}}), Laad(3, 100, {{25, 200, false}}));
}

TEST(LaadBedragen, EntriesFillInListOrder) {
  EXPECT_EQ(Laad(4, 1, {{37, 4, true}, {13, 2, false}}), (Bedragen{{1, false}, {2, false}, {2, false}, {2, true}}));
  EXPECT_EQ(Laad(2, 1, {{13, 2, true}, {24, 3, false}}), (Bedragen{{1, false}, {3, false}}));
}

TEST(LaadBedragen, PassesOverMonthsOutsideTheGrid) {
  EXPECT_EQ(Laad(2, 1, {{0, 9, true}, {-5, 9, true}, {25, 9, true}, {24, 2, false}}),
            (Bedragen{{1, false}, {2, false}}));
}

TEST(LaadBedragen, OfABridgingLoanFillOneRowEach) {
  EXPECT_EQ(Laad(4, 100, {{13, 500, true}, {37, 20, false}}, Overbrugging::Ja),
            (Bedragen{{0, false}, {500, false}, {0, false}, {20, false}}));
}

TEST(LaadPercentages, WithoutEntriesEveryRowHasTheBaseValueAndNoDiscount) {
  EXPECT_EQ(LaadPercentages(2, Kortingkolom::Met, 4.5, {}), (Renten{{4.5, 0}, {4.5, 0}}));
  // A base value that came out of a subtraction, 5.1 - 0.3, shows as it reads.
  EXPECT_EQ(LaadPercentages(1, Kortingkolom::Zonder, 5.1 - 0.3, {}), (Renten{{4.8, 0}}));
  // One with more than four decimals is not disturbed.
  EXPECT_EQ(LaadPercentages(1, Kortingkolom::Zonder, 4.123456, {}), (Renten{{4.123456, 0}}));
}

TEST(LaadPercentages, AnEntrySetsItsRowAndTheLaterOnes) {
  const std::vector<RelatievePost> posten{{13, 1, 0.5}, {37, -2, 0}};
  EXPECT_EQ(LaadPercentages(5, Kortingkolom::Met, 4, posten), (Renten{{4, 0}, {5.5, 0.5}, {5.5, 0.5}, {2, 0}, {2, 0}}));
  // Without the column the rows show what counts.
  EXPECT_EQ(LaadPercentages(5, Kortingkolom::Zonder, 4, posten), (Renten{{4, 0}, {5, 0}, {5, 0}, {2, 0}, {2, 0}}));
}

TEST(LaadPercentages, AFirstRowsDiscountIsAddedToTheBaseValue) {
  EXPECT_EQ(LaadPercentages(2, Kortingkolom::Met, 5.1 - 0.3, std::vector<RelatievePost>{{1, 0, 0.3}}),
            (Renten{{5.1, 0.3}, {5.1, 0.3}}));
}

TEST(LaadPercentages, UndoesTheRoundingOfStoring) {
  // 3.7 over a base of 4.1 is stored as -0.4 in single precision, -0.4000000059604645.
  const double opgeslagen = static_cast<double>(static_cast<float>(3.7 - 4.1));
  EXPECT_NE(4.1 + opgeslagen, 3.7);
  EXPECT_EQ(LaadPercentages(2, Kortingkolom::Zonder, 4.1, std::vector<RelatievePost>{{13, opgeslagen, 0}}),
            (Renten{{4.1, 0}, {3.7, 0}}));
}

TEST(LaadPercentages, UndoesTheRoundingOfStoringBesideADiscount) {
  // 3.7 less 0.2 over a base of 4.1 is stored as -0.6 in single precision, -0.6000000238418579.
  const double opgeslagen = static_cast<double>(static_cast<float>(3.7 - 0.2 - 4.1));
  EXPECT_NE(4.1 + opgeslagen + 0.2, 3.7);
  EXPECT_EQ(LaadPercentages(2, Kortingkolom::Met, 4.1, std::vector<RelatievePost>{{13, opgeslagen, 0.2}}),
            (Renten{{4.1, 0}, {3.7, 0.2}}));
}

TEST(LaadPercentages, LeavesWhatWasNotEnteredWithFourDecimals) {
  // 0.3333 over the base value is another number than a third.
  const double derde = static_cast<double>(1.0F / 3.0F);
  EXPECT_EQ(LaadPercentages(2, Kortingkolom::Zonder, 1, std::vector<RelatievePost>{{13, derde, 0}}),
            (Renten{{1, 0}, {1 + derde, 0}}));
}

TEST(LaadPercentages, PassesOverMonthsOutsideTheGrid) {
  EXPECT_EQ(LaadPercentages(1, Kortingkolom::Zonder, 4, std::vector<RelatievePost>{{0, 1, 0}, {13, 1, 0}}),
            (Renten{{4, 0}}));
}

TEST(LaadGroei, CarriesEachPercentageDown) {
  EXPECT_EQ(LaadGroei(5, std::vector<Groeipost>{{13, 2.5}, {37, -1}}), (Reeks{0, 2.5, 2.5, -1, -1}));
  EXPECT_EQ(LaadGroei(2, {}), (Reeks{0, 0}));
  EXPECT_EQ(LaadGroei(2, std::vector<Groeipost>{{-1, 2}, {25, 2}}), (Reeks{0, 0}));
}

TEST(LaadGroei, UndoesTheRoundingOfStoringButLeavesDerivedPercentages) {
  const double drieZeven = static_cast<double>(3.7F);
  const double derde = static_cast<double>(100.0F / 3.0F);
  EXPECT_EQ(LaadGroei(2, std::vector<Groeipost>{{1, drieZeven}, {13, derde}}), (Reeks{3.7, derde}));
}

TEST(Rijen, BeginEmpty) {
  EXPECT_EQ(Bedragrij{}, (Bedragrij{0, false}));
  EXPECT_EQ(Renterij{}, (Renterij{0, 0}));
  const RelatievePost post;
  EXPECT_EQ(post.maand, 0);
  EXPECT_EQ(post.percentage, 0);
  EXPECT_EQ(post.korting, 0);
}

}  // namespace
}  // namespace brivane::scenario
