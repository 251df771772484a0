#include <gtest/gtest.h>

#include <brivane/vrijekolom/FiscaleOpties.h>

namespace brivane::vrijekolom {
namespace {

// The codes as they are stored: burden 1 cost, 2 contribution, 3 neutral; fiscal 1 deductible, 2 taxable addition,
// 3 neutral.

TEST(FiscaleOpties, StandBesideABurdenCorrectionAsTheTableSays) {
  const struct {
    std::int16_t last;
    FiscaleOpties opties;
    std::int16_t gekozen;
  } gevallen[] = {
      {1, {.aftrekpost = true, .bijtelling = false, .neutraal = true}, 1},
      {2, {.aftrekpost = false, .bijtelling = true, .neutraal = true}, 2},
      {3, {.aftrekpost = true, .bijtelling = true, .neutraal = false}, 1},
      // No correction at all.
      {0, {.aftrekpost = false, .bijtelling = false, .neutraal = true}, 2},
      {4, {.aftrekpost = false, .bijtelling = false, .neutraal = true}, 2},
      {-1, {.aftrekpost = false, .bijtelling = false, .neutraal = true}, 2},
  };
  for (const auto& geval : gevallen) {
    EXPECT_EQ(OptiesBij(geval.last), geval.opties) << geval.last;
    EXPECT_EQ(FiscaalBij(geval.last), geval.gekozen) << geval.last;
  }
}

TEST(FiscaleOpties, LetATaxableContributionAloneBeIncomeFromWork) {
  for (std::int16_t last = 0; last <= 3; ++last) {
    for (std::int16_t fiscaal = 0; fiscaal <= 3; ++fiscaal)
      EXPECT_EQ(KanInkomenUitArbeidZijn(last, fiscaal), last == 2 && fiscaal == 2) << last << ", " << fiscaal;
  }
}

}  // namespace
}  // namespace brivane::vrijekolom
