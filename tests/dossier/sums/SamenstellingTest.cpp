#include <gtest/gtest.h>

#include "dossier/sums/Samenstelling.h"

namespace brivane::sums {
namespace {

using Nummers = std::vector<std::int16_t>;
constexpr Herkomst kVolgt = Herkomst::Volgt;
constexpr Herkomst kAfwijking = Herkomst::Afwijking;
constexpr Herkomst kNieuw = Herkomst::AlleenNieuw;

TEST(Samenstelling, OfTheCurrentSituationIsItsLoan) {
  EXPECT_EQ(HuidigeSituatie(2), (std::vector<Plek>{{Herkomst::Huidig, 0}, {Herkomst::Huidig, 1}}));
  EXPECT_TRUE(HuidigeSituatie(0).empty());
}

TEST(Samenstelling, OfANewSituationFollowsButForItsOwnVersions) {
  struct Geval {
    Nummers huidig, nieuw;
    std::vector<Plek> plekken;
  };
  const Geval gevallen[] = {
      {{1, 2}, {}, {{kVolgt, 0}, {kVolgt, 1}}},
      {{1, 2}, {1, 7}, {{kAfwijking, 0}, {kVolgt, 1}, {kNieuw, 1}}},
      {{1, 2, 3}, {7, 3}, {{kVolgt, 0}, {kVolgt, 1}, {kAfwijking, 1}, {kNieuw, 0}}},
      {{}, {4}, {{kNieuw, 0}}},
      // Two versions of one item both count, once.
      {{1, 1}, {1, 1}, {{kAfwijking, 0}, {kAfwijking, 1}}},
  };
  for (const Geval& geval : gevallen) EXPECT_EQ(NieuweSituatie(geval.huidig, geval.nieuw), geval.plekken);
}

}  // namespace
}  // namespace brivane::sums
