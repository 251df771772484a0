// The case of docs/overview-worked-out.md, where every number stands with its working.

#include <gtest/gtest.h>

#include "dossier/sums/Overzicht.h"
#include "dossier/sums/Verloop.h"
#include "tests/dossier/sums/Kolommen.h"
#include "tests/dossier/sums/WorkedOutCase.h"

namespace brivane::sums {

void PrintTo(const Effect& effect, std::ostream* uit) {
  *uit << "last " << effect.last << ", inkomen " << effect.inkomen << ", belasting ";
  effect.belasting ? *uit << *effect.belasting : *uit << "?";
}
void PrintTo(const Totaal& totaal, std::ostream* uit) {
  PrintTo(totaal.effect, uit);
  *uit << ", aanvrager " << totaal.inkomen[0] << ", partner " << totaal.inkomen[1];
}
void PrintTo(const Totalen& totalen, std::ostream* uit) {
  PrintTo(totalen.doorlopend, uit);
  *uit << " | eenmalig: ";
  PrintTo(totalen.eenmalig, uit);
}
void PrintTo(const Situatiejaar& jaar, std::ostream* uit) {
  *uit << jaar.last << " " << jaar.lastEenmalig << " " << jaar.inkomen << " " << jaar.inkomenEenmalig;
}

namespace {

constexpr Tarieven kTarieven{37.0, 49.5};
const Totaal kNiets{};
const Totaal kGift{{1500, -1500, -555.0}, {-1500, 0}};

Uitgangspunt Op(host::Date dag, Levensscenario scenario = Levensscenario::ZoalsNu,
                const Tarieven& tarieven = kTarieven) {
  return {.peildatum = dag, .scenario = scenario, .tarieven = tarieven};
}

/// What a column is on the day: its stand, the value of its year, per month, and its effect.
struct Verwacht {
  std::int16_t Vrij_Id;
  Herkomst herkomst;
  Stand stand;
  double waarde, perMaand;
  Effect effect;
};

void ExpectRegels(const std::vector<Overzicht::Regel>& regels, const std::vector<Verwacht>& verwacht) {
  ASSERT_EQ(regels.size(), verwacht.size());
  for (std::size_t i = 0; i < regels.size(); ++i) {
    const Post& post = *regels[i].post;
    SCOPED_TRACE(post.naam);
    EXPECT_EQ(post.Vrij_Id, verwacht[i].Vrij_Id);
    EXPECT_EQ(regels[i].herkomst, verwacht[i].herkomst);
    EXPECT_EQ(post.stand, verwacht[i].stand);
    EXPECT_NEAR(post.waarde, verwacht[i].waarde, 1e-9);
    EXPECT_EQ(post.perMaand, verwacht[i].perMaand);
    EXPECT_EQ(post.effect, verwacht[i].effect);
  }
}

TEST(WorkedOut, EveryColumnOn15June2027) {
  const Overzicht overzicht(WorkedOutCase(), Op(Dag(15, 6, 2027)));
  const Verwacht krant{2, Herkomst::Volgt, Stand::Telt, 32.5, 32.5, {32.5, 0, 0.0}};
  const Verwacht lijfrente{4, Herkomst::Volgt, Stand::Telt, 6502.5, 541.88, {-541.88, 6502.5, 2405.93}};
  const Verwacht tennis{5, Herkomst::Volgt, Stand::Telt, 240, 40, {40, 0, 0.0}};
  const Verwacht gift{6, Herkomst::Volgt, Stand::Telt, 1500, 0, {1500, -1500, -555.0}};
  const Verwacht rente{7, Herkomst::Volgt, Stand::Percentage, 4.25, 0, {0, 0, 0.0}};
  const Verwacht premie{8, Herkomst::Volgt, Stand::Telt, 100.05, 33.35, {0, -400.2, -148.07}};
  std::vector<Verwacht> huidig{{1, Herkomst::Volgt, Stand::Telt, 310, 310, {310, 0, 0.0}},
                               krant,
                               {3, Herkomst::Volgt, Stand::Telt, 350, 350, {-350, 4200, 2079.0}},
                               lijfrente,
                               tennis,
                               gift,
                               rente,
                               premie};
  std::vector<Verwacht> nieuw2 = huidig;
  nieuw2.push_back({10, Herkomst::AlleenNieuw, Stand::NogNiet, 150.5, 0, {0, 0, 0.0}});
  for (Verwacht& regel : huidig) regel.herkomst = Herkomst::Huidig;
  ExpectRegels(overzicht.Regels(0), huidig);
  ExpectRegels(overzicht.Regels(1), {{1, Herkomst::Afwijking, Stand::Telt, 1980, 165, {165, 0, 0.0}},
                                     krant,
                                     {3, Herkomst::Afwijking, Stand::Telt, 450, 450, {-450, 5400, 2673.0}},
                                     lijfrente,
                                     tennis,
                                     gift,
                                     rente,
                                     premie,
                                     {9, Herkomst::AlleenNieuw, Stand::Telt, 95, 7.92, {7.92, -95, -35.15}}});
  ExpectRegels(overzicht.Regels(2), nieuw2);
}

struct Situaties {
  host::Date dag;
  Levensscenario scenario;
  Totaal huidig, nieuw, verschil, eenmalig;
};

TEST(WorkedOut, TheTotalsAndTheDifferenceOfEachScenario) {
  const host::Date juni = Dag(15, 6, 2027);
  const Situaties gevallen[] = {
      {juni,
       Levensscenario::ZoalsNu,
       {{-509.38, 10302.3, 4336.86}, {6102.3, 4200}},
       {{-746.46, 11407.3, 4895.71}, {6007.3, 5400}},
       {{-237.08, 1105, 558.85}, {-95, 1200}},
       kGift},
      {juni,
       Levensscenario::Arbeidsongeschikt,
       {{-159.38, 6102.3, 2257.86}, {6102.3, 0}},
       {{-296.46, 6007.3, 2222.71}, {6007.3, 0}},
       {{-137.08, -95, -35.15}, {-95, 0}},
       kGift},
      {juni,
       Levensscenario::Werkloos,
       {{-469.38, 6102.3, 2257.86}, {6102.3, 0}},
       {{-461.46, 6007.3, 2222.71}, {6007.3, 0}},
       {{7.92, -95, -35.15}, {-95, 0}},
       kGift},
      {juni,
       Levensscenario::Langleven,
       {{-541.88, 10302.3, 4336.86}, {6102.3, 4200}},
       {{-778.96, 11407.3, 4895.71}, {6007.3, 5400}},
       {{-237.08, 1105, 558.85}, {-95, 1200}},
       kGift},
      {juni,
       Levensscenario::OverlijdenAanvrager,
       {{-689.31, 8511.63, 4213.26}, {0, 8511.63}},
       {{-789.31, 9711.63, 4807.26}, {0, 9711.63}},
       {{-100, 1200, 594.0}, {0, 1200}},
       kNiets},
      {juni,
       Levensscenario::OverlijdenPartner,
       {{-199.38, 6102.3, 2257.86}, {6102.3, 0}},
       {{-336.46, 6007.3, 2222.71}, {6007.3, 0}},
       {{-137.08, -95, -35.15}, {-95, 0}},
       kGift},
      {Dag(31, 12, 2029),
       Levensscenario::ZoalsNu,
       {{-748.77, 10565, 4434.05}, {6365, 4200}},
       {{-840.85, 11670, 4992.9}, {6270, 5400}},
       {{-92.08, 1105, 558.85}, {-95, 1200}},
       kNiets},
  };
  for (const Situaties& geval : gevallen) {
    SCOPED_TRACE(testing::Message() << "scenario " << static_cast<int>(geval.scenario) << " day " << geval.dag.Days());
    const Overzicht overzicht(WorkedOutCase(), Op(geval.dag, geval.scenario));
    EXPECT_EQ(overzicht.TotalenVan(0), (Totalen{geval.huidig, geval.eenmalig}));
    EXPECT_EQ(overzicht.TotalenVan(1), (Totalen{geval.nieuw, geval.eenmalig}));
    EXPECT_EQ(Verschil(overzicht.TotalenVan(0), overzicht.TotalenVan(1)), (Totalen{geval.verschil, kNiets}));
  }
}

TEST(WorkedOut, TheSecondNewLoanAddsItsColumnOnlyWhileItRuns) {
  const auto verschil = [](host::Date dag) {
    const Overzicht overzicht(WorkedOutCase(), Op(dag));
    return Verschil(overzicht.TotalenVan(0), overzicht.TotalenVan(2));
  };
  EXPECT_EQ(verschil(Dag(15, 6, 2027)), Totalen{});
  EXPECT_EQ(verschil(Dag(31, 12, 2029)), (Totalen{{{0, 602, 297.99}, {0, 602}}, kNiets}));
  EXPECT_EQ(verschil(Dag(1, 1, 2030)), Totalen{});
}

TEST(WorkedOut, WithoutARateTaxIsNotTold) {
  const auto totaal = [](const Tarieven& tarieven) {
    return Overzicht(WorkedOutCase(), Op(Dag(15, 6, 2027), Levensscenario::ZoalsNu, tarieven)).TotalenVan(0).doorlopend;
  };
  EXPECT_EQ(totaal({}), (Totaal{{-509.38, 10302.3, std::nullopt}, {6102.3, 4200}}));
  EXPECT_EQ(totaal({37.0, std::nullopt}).effect.belasting, std::nullopt) << "the partner's is missing";
}

TEST(WorkedOut, TheYears) {
  const Jaren jaren{2027, 2028};
  const Verloop verloop(WorkedOutCase(), Levensscenario::ZoalsNu, jaren);
  EXPECT_EQ(verloop.Situatie(0),
            (std::vector<Situatiejaar>{{-6112.5, 1500, 10302.3, -1500}, {-7452.55, 0, 10432.35, 0}}));
  EXPECT_EQ(verloop.Situatie(1).front(), (Situatiejaar{-8973.33, 1500, 11423.13, -1500}));
  EXPECT_EQ(verloop.Situatie(2),
            (std::vector<Situatiejaar>{{-6112.5, 1500, 10302.3, -1500}, {-7452.55, 0, 11034.35, 0}}));
}

TEST(WorkedOut, AColumnInTheYears) {
  const auto dossier = WorkedOutCase();
  const auto jaren = [&](std::size_t plaats, Levensscenario scenario) {
    return KolomInJaren(dossier.HuidigeLening.VrijeKolommen[plaats], dossier.Personen, scenario, {2027, 2029});
  };
  using Kolomjaren = std::vector<Kolomjaar>;
  EXPECT_EQ(jaren(0, Levensscenario::ZoalsNu), (Kolomjaren{{3720, 0, {}}, {3140, 0, {}}, {1980, 0, {}}}));
  EXPECT_EQ(jaren(5, Levensscenario::ZoalsNu), (Kolomjaren{{0, 1500, {}}, {}, {}}));
  EXPECT_EQ(jaren(6, Levensscenario::ZoalsNu), (Kolomjaren{{0, 0, 4.0}, {0, 0, 4.25}, {0, 0, 4.25}}));
  EXPECT_EQ(jaren(7, Levensscenario::OverlijdenAanvrager), (Kolomjaren{{240.12, 0, {}}, {60.03, 0, {}}, {}}));
  EXPECT_EQ(jaren(0, Levensscenario::Werkloos), (Kolomjaren{{}, {}, {}}));
}

}  // namespace
}  // namespace brivane::sums
