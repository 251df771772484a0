#include <gtest/gtest.h>

#include "dossier/sums/Looptijd.h"
#include "tests/dossier/sums/Kolommen.h"

namespace brivane::sums {
namespace {

TEST(Looptijd, RunsForItsDurationOrUntilItsContractExpires) {
  struct Geval {
    const char* wat;
    std::int16_t termijn;
    std::int32_t maanden;
    std::int16_t soort;
    host::Date vervalt;
    host::Date einde;
  };
  const Geval gevallen[] = {
      {"without a duration it has no end", 1, 0, 0, {}, {}},
      {"96 months are 8 years", 1, 96, 0, {}, Dag(31, 1, 2033)},
      {"a month that is too short ends on its last day", 1, 1, 0, {}, Dag(28, 2, 2025)},
      {"a contract goes by its own date", 1, 999, 44, Dag(31, 12, 2027), Dag(31, 12, 2027)},
      {"a contract without a date has no end", 1, 999, 42, {}, {}},
      {"another kind of product goes by its duration", 1, 12, 99, Dag(31, 12, 2027), Dag(31, 1, 2026)},
      {"a one-off amount has no end", 99, 12, 0, {}, {}},
      {"past the years of the calendar there is no end", 1, 2000000000, 0, {}, {}},
  };
  for (const Geval& geval : gevallen) {
    dossier::KolomGegevens kolom = Maandlast(1);
    kolom.DatumAanvang = Dag(31, 1, 2025);
    kolom.Termijn = geval.termijn;
    kolom.Looptijd = geval.maanden;
    kolom.Productsoort = geval.soort;
    kolom.Contractvervaldatum = geval.vervalt;
    EXPECT_EQ(LooptijdVan(kolom), (Looptijd{Dag(31, 1, 2025), geval.einde})) << geval.wat;
  }
}

TEST(Looptijd, WithoutAStartThereIsNone) {
  dossier::KolomGegevens kolom = Maandlast(1);
  kolom.DatumAanvang = host::kNoDate;
  kolom.Looptijd = 12;
  kolom.Productsoort = 44;
  kolom.Contractvervaldatum = Dag(31, 12, 2027);
  EXPECT_EQ(LooptijdVan(kolom), Looptijd{});
  EXPECT_FALSE(Loopt({}, Dag(1, 1, 2026)));
}

TEST(Looptijd, BeginsOnItsStartAndHasEndedOnItsEnd) {
  const Looptijd looptijd{Dag(1, 3, 2025), Dag(1, 3, 2026)};
  EXPECT_FALSE(Loopt(looptijd, Dag(28, 2, 2025)));
  EXPECT_TRUE(Loopt(looptijd, Dag(1, 3, 2025)));
  EXPECT_TRUE(Loopt(looptijd, Dag(28, 2, 2026)));
  EXPECT_FALSE(Loopt(looptijd, Dag(1, 3, 2026)));
  EXPECT_TRUE(Loopt({Dag(1, 3, 2025), {}}, Dag(1, 3, 2999)));
}

TEST(Looptijd, CountsMonthsFromTheDayOfItsStart) {
  struct Geval {
    host::Date aanvang;
    host::Date dag;
    std::int32_t maand;
  };
  const Geval gevallen[] = {
      {Dag(15, 1, 2025), Dag(14, 1, 2025), 0},  {Dag(15, 1, 2025), Dag(15, 1, 2025), 1},
      {Dag(15, 1, 2025), Dag(14, 2, 2025), 1},  {Dag(15, 1, 2025), Dag(15, 2, 2025), 2},
      {Dag(15, 1, 2025), Dag(15, 1, 2026), 13}, {Dag(31, 1, 2025), Dag(27, 2, 2025), 1},
      {Dag(31, 1, 2025), Dag(28, 2, 2025), 2},  {Dag(31, 1, 2025), Dag(30, 3, 2025), 2},
      {Dag(31, 1, 2025), Dag(31, 3, 2025), 3},  {host::kNoDate, Dag(31, 3, 2025), 0},
  };
  for (const Geval& geval : gevallen)
    EXPECT_EQ(MaandOp(geval.aanvang, geval.dag), geval.maand) << geval.aanvang.Days() << " " << geval.dag.Days();
}

}  // namespace
}  // namespace brivane::sums
