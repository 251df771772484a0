#include <gtest/gtest.h>

#include <cmath>

#include "dossier/model/Dossier.h"
#include "dossier/sums/Jaarbedragen.h"
#include "tests/dossier/sums/Kolommen.h"
#include <brivane/controls/Surface.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::sums {
namespace {

dossier::BedragGegevens Bedrag(std::int16_t soort, double basis, std::vector<dossier::PeriodeGegevens> perioden) {
  return {.Naam = "", .Invoersoort = soort, .Bedrag = basis, .Perioden = std::move(perioden)};
}

std::vector<double> Waarden(const dossier::BedragGegevens& bedrag, std::int32_t rijen) {
  std::vector<double> waarden;
  for (const Jaarbedrag& rij : Rijen(bedrag, rijen)) waarden.push_back(rij.waarde);
  return waarden;
}

TEST(Jaarbedragen, HoldAnAmountUntilTheNextEntry) {
  // Months 36 and 49 lie in the years 3 and 5.
  EXPECT_EQ(Waarden(Bedrag(1, 485.50, {Vanaf(36, 310), Vanaf(49, 165)}), 6),
            (std::vector<double>{485.50, 485.50, 310, 310, 165, 165}));
}

TEST(Jaarbedragen, AreOfAWholeYearInTheRowThatIsTicked) {
  const auto rijen = Rijen(Bedrag(1, 100, {Vanaf(24, 900, true)}), 3);
  EXPECT_EQ(rijen, (std::vector<Jaarbedrag>{{100, false}, {900, true}, {900, false}}));
}

TEST(Jaarbedragen, GrowFromARowToTheNext) {
  // 2 % from year 2 on: year 3 is the first that has grown. 6250 x 1.02 = 6375, x 1.02 = 6502.50.
  EXPECT_EQ(Waarden(Bedrag(3, 6250, {Procent(13, 2)}), 4), (std::vector<double>{6250, 6250, 6375, 6502.5}));
  // A row without growth of its own goes on with the last: 1000, 1100, 1210, then 5 %: 1270.50.
  EXPECT_EQ(Waarden(Bedrag(3, 1000, {Procent(1, 10), Procent(13, 0), Procent(25, 5)}), 4),
            (std::vector<double>{1000, 1100, 1210, 1270.5}));
  EXPECT_EQ(Waarden(Bedrag(3, 1000, {}), 2), (std::vector<double>{1000, 1000}));
}

TEST(Jaarbedragen, ArePercentagesLessTheirDiscount) {
  // 5 % less 0.5 in year 1, 5.25 % less 1 in year 2: the list keeps 4.5 as base, and 0 and -0.25 as differences.
  EXPECT_EQ(Waarden(Bedrag(2, 4.5, {Procent(1, 0, 0.5), Procent(13, -0.25, 1)}), 3),
            (std::vector<double>{4.5, 4.25, 4.25}));
  EXPECT_EQ(EenheidVan(Bedrag(2, 4.5, {})), Eenheid::Procent);
  EXPECT_EQ(EenheidVan(Bedrag(1, 4.5, {})), Eenheid::Euro);
  EXPECT_EQ(EenheidVan(Bedrag(3, 4.5, {})), Eenheid::Euro);
}

TEST(Jaarbedragen, OfABridgingLoanAreOfTheMonthsThatWereFilledIn) {
  dossier::BedragGegevens krediet = Bedrag(1, 999, {Vanaf(24, 500), Vanaf(48, 250)});
  krediet.Naam = "Overbruggingskrediet";
  EXPECT_TRUE(HeeftMaandrijen(krediet));
  EXPECT_EQ(Waarden(krediet, 5), (std::vector<double>{0, 500, 0, 250, 0}));
  EXPECT_EQ(RijVan(krediet, 13), 13);
}

TEST(Jaarbedragen, OfAKindThatIsNoneAreTheBaseAlone) {
  EXPECT_EQ(Waarden(Bedrag(7, 12, {Vanaf(13, 99)}), 2), (std::vector<double>{12, 12}));
}

TEST(Jaarbedragen, ThatGrowthMakesTooLargeAreNoNumber) {
  const auto waarden = Waarden(Bedrag(3, 1, {Procent(13, 1e300)}), 4);
  EXPECT_EQ(waarden[0], 1);
  EXPECT_EQ(waarden[1], 1);
  EXPECT_TRUE(std::isnan(waarden[2]));
  EXPECT_TRUE(std::isnan(waarden[3]));
}

TEST(Jaarbedragen, LieInRowsOfTwelveMonths) {
  const auto bedrag = Bedrag(1, 1, {});
  EXPECT_EQ(RijVan(bedrag, 1), 1);
  EXPECT_EQ(RijVan(bedrag, 12), 1);
  EXPECT_EQ(RijVan(bedrag, 13), 2);
}

TEST(Jaarbedragen, ComeToTheMonthByTheirTerm) {
  EXPECT_EQ(RekenOm({120, false}, 1), (Omgerekend{120, 1440}));
  EXPECT_EQ(RekenOm({120, false}, 3), (Omgerekend{40, 480}));
  EXPECT_EQ(RekenOm({120, false}, 6), (Omgerekend{20, 240}));
  EXPECT_EQ(RekenOm({120, false}, 12), (Omgerekend{10, 120}));
  // Ticked as that of a whole year the term does not matter.
  EXPECT_EQ(RekenOm({120, true}, 1), (Omgerekend{10, 120}));
}

/// What the year-by-year form shows for the same amount.
std::vector<double> InFormulier(const dossier::BedragGegevens& bedrag, std::int16_t jaren) {
  dossier::DossierGegevens gegevens;
  gegevens.Personen = Paar();
  dossier::KolomGegevens kolom = Maandlast(0);
  kolom.Bedrag = bedrag;
  gegevens.HuidigeLening.VrijeKolommen = {kolom};
  dossier::Dossier dossier(gegevens, std::make_shared<dossier::Environment>());
  memory::Toolkit toolkit;
  frmScenario formulier(toolkit);
  formulier.Invoeren(dossier.FindKolom(0, 1)->Bedrag(), jaren);
  std::vector<double> waarden;
  for (int rij = 1; rij <= jaren; ++rij) {
    controls::AnyControl* vak =
        controls::Surface::Of(formulier.Form()).Find(bedrag.Invoersoort == 2 ? "txtPercentage" : "txtBedrag", rij);
    const auto* box = vak ? dynamic_cast<const host::TextBox*>(&vak->Host()) : nullptr;
    waarden.push_back(box ? box->Number() : -1);
  }
  return waarden;
}

TEST(Jaarbedragen, AreThoseThatTheYearFormShows) {
  const dossier::BedragGegevens gevallen[] = {
      Bedrag(1, 485.50, {Vanaf(36, 310), Vanaf(49, 165)}),
      Bedrag(2, 4.5, {Procent(13, -0.25), Procent(37, 0.1)}),
      Bedrag(3, 6250, {Procent(1, 3.7), Procent(37, 1.25)}),
  };
  for (const auto& bedrag : gevallen) {
    const std::vector<double> formulier = InFormulier(bedrag, 8);
    EXPECT_EQ(Waarden(bedrag, 8), formulier) << bedrag.Invoersoort;
    EXPECT_NE(formulier[0], formulier[7]) << "the form was read";
  }
}

}  // namespace
}  // namespace brivane::sums
