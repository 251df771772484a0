#include <gtest/gtest.h>

#include "dossier/sums/Aandeel.h"
#include "tests/dossier/sums/Kolommen.h"

namespace brivane::sums {
namespace {

constexpr Levensscenario kAlle[] = {
    Levensscenario::ZoalsNu,   Levensscenario::Arbeidsongeschikt,   Levensscenario::Werkloos,
    Levensscenario::Langleven, Levensscenario::OverlijdenAanvrager, Levensscenario::OverlijdenPartner};

TEST(Aandeel, IsWholeAsThingsAreAndLeftOutOfWhatExcludesIt) {
  struct Geval {
    bool ao, ww, langleven;
    std::array<double, 4> procent;  // as now, disability, unemployment, longevity
  };
  const Geval gevallen[] = {
      {false, false, false, {100, 100, 100, 100}},
      {true, false, false, {100, 0, 100, 100}},
      {false, true, false, {100, 100, 0, 100}},
      {false, false, true, {100, 100, 100, 0}},
  };
  for (const Geval& geval : gevallen) {
    dossier::KolomGegevens kolom = Maandlast(1);
    kolom.HeffingBij = 2;
    kolom.UitsluitenAO = geval.ao;
    kolom.UitsluitenWW = geval.ww;
    kolom.UitsluitenLangleven = geval.langleven;
    for (std::size_t i = 0; i < geval.procent.size(); ++i)
      EXPECT_EQ(AandeelIn(kolom, kAlle[i], Paar()), (Aandeel{geval.procent[i], 2, {}})) << i;
  }
}

TEST(Aandeel, PassesOnOnTheDeathOfItsHolder) {
  dossier::KolomGegevens kolom = Maandlast(1);
  kolom.HeffingBij = 1;
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 60;
  // Neither end: it passes on for good.
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenAanvrager, Paar()), (Aandeel{60, 2, {}}));
  // By age alone: the applicant is 70 on 12 March 2048.
  kolom.EindleeftijdOvergang = 70;
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenAanvrager, Paar()), (Aandeel{60, 2, Dag(12, 3, 2048)}));
  // The date counts where there is one.
  kolom.EinddatumOvergang = Dag(1, 6, 2040);
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenAanvrager, Paar()), (Aandeel{60, 2, Dag(1, 6, 2040)}));
  // Before 1900 it is none.
  kolom.EinddatumOvergang = Dag(1, 6, 1850);
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenAanvrager, Paar()), (Aandeel{60, 2, Dag(12, 3, 2048)}));
  // The other's death leaves it whole where it is.
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenPartner, Paar()), (Aandeel{100, 1, {}}));
}

TEST(Aandeel, OfThePartnerPassesToTheApplicantByThePartnersAge) {
  dossier::KolomGegevens kolom = Maandlast(1);
  kolom.HeffingBij = 2;
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 33.3F;
  kolom.EindleeftijdOvergang = 65;
  // 29 February 1980 and 65 years: 2045 has no such day. The percentage is the one that was typed.
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenPartner, Paar()), (Aandeel{33.3, 1, Dag(28, 2, 2045)}));
}

TEST(Aandeel, IsLeftOutWhereNothingPassesOn) {
  dossier::KolomGegevens kolom = Maandlast(1);
  kolom.PercentageOvergang = 60;
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenAanvrager, Paar()).procent, 0) << "not in the death scenario";
  kolom.ScenarioOverlijden = true;
  const std::vector<dossier::PersoonGegevens> alleen{Paar().front()};
  EXPECT_EQ(AandeelIn(kolom, Levensscenario::OverlijdenAanvrager, alleen).procent, 0) << "nobody to pass it to";
}

}  // namespace
}  // namespace brivane::sums
