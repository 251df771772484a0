#include <gtest/gtest.h>

#include <cmath>

#include "dossier/sums/Overzicht.h"
#include "tests/dossier/sums/Kolommen.h"

namespace brivane::sums {
namespace {

Post Op(const dossier::KolomGegevens& kolom, host::Date dag, Levensscenario scenario = Levensscenario::ZoalsNu) {
  return PostVan(kolom, 0, Paar(), {.peildatum = dag, .scenario = scenario, .tarieven = {}});
}

TEST(Overzicht, SaysWhyAColumnDoesNotCount) {
  struct Geval {
    const char* wat;
    void (*maak)(dossier::KolomGegevens&);
    Stand stand;
  };
  const Geval gevallen[] = {
      {"it runs", [](auto&) {}, Stand::Telt},
      {"no start", [](auto& kolom) { kolom.DatumAanvang = {}; }, Stand::GeenAanvang},
      {"no start and no term",
       [](auto& kolom) {
         kolom.DatumAanvang = {};
         kolom.Termijn = 2;
       },
       Stand::GeenAanvang},
      {"a term that is none", [](auto& kolom) { kolom.Termijn = 2; }, Stand::GeenTermijn},
      {"it starts tomorrow", [](auto& kolom) { kolom.DatumAanvang = Dag(16, 6, 2027); }, Stand::NogNiet},
      {"it starts today", [](auto& kolom) { kolom.DatumAanvang = Dag(15, 6, 2027); }, Stand::Telt},
      {"it ends today",
       [](auto& kolom) {
         kolom.DatumAanvang = Dag(15, 6, 2026);
         kolom.Looptijd = 12;
       },
       Stand::Afgelopen},
      {"it ends tomorrow",
       [](auto& kolom) {
         kolom.DatumAanvang = Dag(16, 6, 2026);
         kolom.Looptijd = 12;
       },
       Stand::Telt},
      {"a percentage", [](auto& kolom) { kolom.Bedrag.Invoersoort = 2; }, Stand::Percentage},
      {"a one-off amount of this year",
       [](auto& kolom) {
         kolom.Termijn = 99;
         kolom.DatumAanvang = Dag(31, 12, 2027);
       },
       Stand::Telt},
      {"a one-off amount of next year",
       [](auto& kolom) {
         kolom.Termijn = 99;
         kolom.DatumAanvang = Dag(1, 1, 2028);
       },
       Stand::NogNiet},
      {"a one-off amount of last year",
       [](auto& kolom) {
         kolom.Termijn = 99;
         kolom.DatumAanvang = Dag(31, 12, 2026);
       },
       Stand::Afgelopen},
  };
  for (const Geval& geval : gevallen) {
    dossier::KolomGegevens kolom = Maandlast(100);
    geval.maak(kolom);
    const Post post = Op(kolom, Dag(15, 6, 2027));
    EXPECT_EQ(post.stand, geval.stand) << geval.wat;
    EXPECT_EQ(post.effect.last, geval.stand == Stand::Telt ? 100 : 0) << geval.wat;
  }
}

TEST(Overzicht, EndsWhatPassedOnOnItsDay) {
  dossier::KolomGegevens kolom = Maandlast(100);
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 60;
  kolom.EinddatumOvergang = Dag(1, 7, 2030);
  const auto op = [&](host::Date dag) { return Op(kolom, dag, Levensscenario::OverlijdenAanvrager); };
  EXPECT_EQ(op(Dag(30, 6, 2030)).perMaand, 60);
  EXPECT_EQ(op(Dag(30, 6, 2030)).persoon, 2);
  EXPECT_EQ(op(Dag(1, 7, 2030)).stand, Stand::NietInScenario);
  EXPECT_EQ(op(Dag(1, 7, 2030)).perMaand, 0);
  // A one-off amount counts by its own day.
  kolom.Termijn = 99;
  kolom.DatumAanvang = Dag(1, 8, 2030);
  EXPECT_EQ(op(Dag(1, 1, 2030)).stand, Stand::NietInScenario);
  kolom.DatumAanvang = Dag(30, 6, 2030);
  EXPECT_EQ(op(Dag(1, 1, 2030)).effect.last, 60);
}

TEST(Overzicht, CountsABridgingLoanByItsMonths) {
  dossier::KolomGegevens kolom = Maandlast(999);
  kolom.CorrectieFiscaal = host::codes::kBijtelling;
  kolom.Bedrag.Naam = "Overbruggingskrediet";
  // Row r is month r from 1 January 2025: 500 in month 2, 250 in month 12, 75 in month 13.
  kolom.Bedrag.Perioden = {Vanaf(24, 500), Vanaf(144, 250), Vanaf(156, 75)};
  EXPECT_EQ(Op(kolom, Dag(15, 2, 2025)).effect, (Effect{500, 750, std::nullopt}));
  EXPECT_EQ(Op(kolom, Dag(15, 3, 2025)).effect, (Effect{0, 750, std::nullopt}));
  EXPECT_EQ(Op(kolom, Dag(15, 1, 2026)).effect, (Effect{75, 75, std::nullopt}));
}

TEST(Overzicht, KeepsAnAmountThatIsNoNumberOutOfNoSum) {
  dossier::DossierGegevens dossier;
  dossier.Personen = Paar();
  dossier::KolomGegevens groei = Maandlast(1);
  groei.Bedrag.Invoersoort = 3;
  groei.Bedrag.Perioden = {Procent(1, 1e300)};
  dossier.HuidigeLening.VrijeKolommen = {Maandlast(1), groei};
  const Overzicht overzicht(dossier, {.peildatum = Dag(1, 1, 2027), .tarieven = {}});
  EXPECT_TRUE(std::isnan(overzicht.TotalenVan(0).doorlopend.effect.last));
  EXPECT_EQ(overzicht.TotalenVan(0).doorlopend.effect.inkomen, 0);
}

TEST(Overzicht, AddsUpWhatItShows) {
  // Three thirds: 33.33 each, and the total is what a reader of the rows adds up: 99.99.
  dossier::DossierGegevens dossier;
  dossier.Personen = Paar();
  dossier::KolomGegevens derde = Maandlast(400);
  derde.Termijn = 12;
  dossier.HuidigeLening.VrijeKolommen = {derde, derde, derde};
  const Overzicht overzicht(dossier, {.peildatum = Dag(1, 1, 2027), .tarieven = {}});
  EXPECT_EQ(overzicht.TotalenVan(0).doorlopend.effect.last, 99.99);
}

}  // namespace
}  // namespace brivane::sums
