#include <gtest/gtest.h>

#include "dossier/sums/Zin.h"
#include "tests/dossier/sums/Kolommen.h"

namespace brivane::sums {
namespace {

constexpr Tarieven kGeen{};
constexpr Tarieven kBeide{37.0, 49.5};
const host::Date kVandaag = Dag(15, 6, 2027);

std::string Alleen(const dossier::KolomGegevens& kolom, const Tarieven& tarieven = kGeen) {
  return Zin(kolom, Partner::Zonder, tarieven, kVandaag);
}

dossier::KolomGegevens Kolom(std::int16_t last, std::int16_t fiscaal) {
  dossier::KolomGegevens kolom = Maandlast(512.75);
  kolom.CorrectieLast = last;
  kolom.CorrectieFiscaal = fiscaal;
  kolom.DatumAanvang = Dag(1, 11, 2025);
  kolom.Looptijd = 120;
  return kolom;
}

TEST(Zin, TellsWhatEachPairOfCorrectionsDoes) {
  struct Geval {
    std::int16_t last, fiscaal;
    const char* zonder;
    const char* met;  // 12 x 512.75 = 6153, of which 37 % is 2276.61
  };
  const Geval gevallen[] = {
      {1, 3, "Verhoogt de maandlast met € 512,75 tot 1 november 2035; geen invloed op de inkomstenbelasting.",
       "Verhoogt de maandlast met € 512,75 tot 1 november 2035; geen invloed op de inkomstenbelasting."},
      {1, 1,
       "Verhoogt de maandlast met € 512,75 tot 1 november 2035; verlaagt het belastbaar inkomen met € 6.153,00 per "
       "jaar.",
       "Verhoogt de maandlast met € 512,75 tot 1 november 2035; verlaagt de inkomstenbelasting met € 2.276,61 per "
       "jaar."},
      {2, 2,
       "Verlaagt de maandlast met € 512,75 tot 1 november 2035; verhoogt het belastbaar inkomen met € 6.153,00 per "
       "jaar.",
       "Verlaagt de maandlast met € 512,75 tot 1 november 2035; verhoogt de inkomstenbelasting met € 2.276,61 per "
       "jaar."},
      {2, 3, "Verlaagt de maandlast met € 512,75 tot 1 november 2035; geen invloed op de inkomstenbelasting.",
       "Verlaagt de maandlast met € 512,75 tot 1 november 2035; geen invloed op de inkomstenbelasting."},
      {3, 1,
       "Geen invloed op de maandlast; verlaagt het belastbaar inkomen met € 6.153,00 per jaar tot 1 november 2035.",
       "Geen invloed op de maandlast; verlaagt de inkomstenbelasting met € 2.276,61 per jaar tot 1 november 2035."},
      {3, 2,
       "Geen invloed op de maandlast; verhoogt het belastbaar inkomen met € 6.153,00 per jaar tot 1 november 2035.",
       "Geen invloed op de maandlast; verhoogt de inkomstenbelasting met € 2.276,61 per jaar tot 1 november 2035."},
      {3, 3, "Geen invloed op de maandlast; geen invloed op de inkomstenbelasting.",
       "Geen invloed op de maandlast; geen invloed op de inkomstenbelasting."},
  };
  for (const Geval& geval : gevallen) {
    EXPECT_EQ(Alleen(Kolom(geval.last, geval.fiscaal)), geval.zonder);
    EXPECT_EQ(Alleen(Kolom(geval.last, geval.fiscaal), kBeide), geval.met);
  }
}

TEST(Zin, SaysWhoseIncomeItIsWhereThereAreTwo) {
  dossier::KolomGegevens kolom = Kolom(1, 1);
  EXPECT_EQ(
      Zin(kolom, Partner::Met, {std::nullopt, 49.5}, kVandaag),
      "Verhoogt de maandlast met € 512,75 tot 1 november 2035; verlaagt het belastbaar inkomen van de aanvrager met "
      "€ 6.153,00 per jaar.");
  kolom.HeffingBij = 2;
  // 49.5 % of 6153 is 3045.735.
  EXPECT_EQ(Zin(kolom, Partner::Met, {std::nullopt, 49.5}, kVandaag),
            "Verhoogt de maandlast met € 512,75 tot 1 november 2035; verlaagt de inkomstenbelasting van de partner met "
            "€ 3.045,74 per jaar.");
}

TEST(Zin, TellsWhenItBeginsAndEnds) {
  struct Geval {
    void (*maak)(dossier::KolomGegevens&);
    const char* zin;
  };
  const Geval gevallen[] = {
      {[](auto& kolom) { kolom.Looptijd = 0; },
       "Verhoogt de maandlast met € 512,75 zonder einddatum; geen invloed op de inkomstenbelasting."},
      {[](auto& kolom) { kolom.DatumAanvang = Dag(1, 3, 2028); },
       "Verhoogt de maandlast met € 512,75 vanaf 1 maart 2028 tot 1 maart 2038; geen invloed op de "
       "inkomstenbelasting."},
      {[](auto& kolom) {
         kolom.DatumAanvang = Dag(1, 3, 2028);
         kolom.Looptijd = 0;
       },
       "Verhoogt de maandlast met € 512,75 vanaf 1 maart 2028 zonder einddatum; geen invloed op de "
       "inkomstenbelasting."},
      {[](auto& kolom) { kolom.Looptijd = 12; }, "Telt niet meer mee: liep tot 1 november 2026."},
      {[](auto& kolom) {
         kolom.Productsoort = 44;
         kolom.Contractvervaldatum = Dag(31, 12, 2027);
       },
       "Verhoogt de maandlast met € 512,75 tot 31 december 2027; geen invloed op de inkomstenbelasting."},
      {[](auto& kolom) {
         kolom.Productsoort = 44;
         kolom.Contractvervaldatum = Dag(1, 1, 2025);
       },
       "Telt niet mee: het einde ligt niet na de aanvangsdatum."},
      {[](auto& kolom) { kolom.DatumAanvang = {}; }, "Telt nog niet mee: er is geen aanvangsdatum ingevuld."},
      {[](auto& kolom) { kolom.Termijn = 2; }, "Telt nog niet mee: er is geen termijn gekozen."},
      {[](auto& kolom) { kolom.Bedrag.Bedrag = 0; }, "Telt nog niet mee: er is geen bedrag ingevuld."},
      {[](auto& kolom) { kolom.Termijn = 3; },
       "Verhoogt de maandlast met € 170,92 tot 1 november 2035; geen invloed op de inkomstenbelasting."},
  };
  for (const Geval& geval : gevallen) {
    dossier::KolomGegevens kolom = Kolom(1, 3);
    geval.maak(kolom);
    EXPECT_EQ(Alleen(kolom), geval.zin);
  }
}

TEST(Zin, OfAOneOffAmountNamesItsDayAndItsYear) {
  dossier::KolomGegevens kolom = Kolom(1, 1);
  kolom.Termijn = 99;
  kolom.Bedrag.Bedrag = 1500;
  kolom.DatumAanvang = Dag(15, 12, 2027);
  EXPECT_EQ(
      Alleen(kolom),
      "Verhoogt de lasten eenmalig met € 1.500,00 op 15 december 2027; verlaagt het belastbaar inkomen over 2027 met "
      "€ 1.500,00.");
  EXPECT_EQ(
      Alleen(kolom, kBeide),
      "Verhoogt de lasten eenmalig met € 1.500,00 op 15 december 2027; verlaagt de inkomstenbelasting over 2027 met "
      "€ 555,00.");
  kolom.DatumAanvang = Dag(1, 2, 2030);
  kolom.CorrectieLast = 3;
  EXPECT_EQ(
      Alleen(kolom),
      "Geen invloed op de maandlast; verlaagt het belastbaar inkomen over 2030 met € 1.500,00 op 1 februari 2030.");
  kolom.DatumAanvang = Dag(31, 12, 2026);
  EXPECT_EQ(Alleen(kolom), "Telt niet meer mee: eenmalig op 31 december 2026.");
}

TEST(Zin, TellsTheAmountOfThisYearAndThatItDiffers) {
  dossier::KolomGegevens kolom = Kolom(1, 3);
  kolom.Bedrag.Perioden = {Vanaf(13, 310), Vanaf(25, 165)};  // 15 June 2027 is in its second year
  EXPECT_EQ(Alleen(kolom),
            "Verhoogt de maandlast met € 310,00 (verschilt per jaar) tot 1 november 2035; geen invloed op de "
            "inkomstenbelasting.");
  kolom.Bedrag.Perioden = {Vanaf(13, 310)};  // nothing differs from now on
  EXPECT_EQ(Alleen(kolom),
            "Verhoogt de maandlast met € 310,00 tot 1 november 2035; geen invloed op de inkomstenbelasting.");
  kolom.Bedrag.Perioden = {Vanaf(121, 310)};  // after its end
  EXPECT_EQ(Alleen(kolom),
            "Verhoogt de maandlast met € 512,75 tot 1 november 2035; geen invloed op de inkomstenbelasting.");
  kolom.Bedrag.Naam = "Overbruggingskrediet";
  kolom.Bedrag.Perioden = {Vanaf(240, 500)};  // month 20, which 15 June 2027 is in
  EXPECT_EQ(Alleen(kolom),
            "Verhoogt de maandlast met € 500,00 (verschilt per maand) tot 1 november 2035; geen invloed op de "
            "inkomstenbelasting.");
}

TEST(Zin, OfAPercentageTellsThePercentage) {
  dossier::KolomGegevens kolom = Kolom(3, 1);
  kolom.Bedrag.Invoersoort = 2;
  kolom.Bedrag.Bedrag = 4;
  kolom.Bedrag.Perioden = {Procent(13, 0.25)};
  EXPECT_EQ(Alleen(kolom), "Telt niet mee in euro's: het is een percentage, nu 4,25 %.");
}

TEST(Zin, TurnsRoundForAnAmountBelowZero) {
  dossier::KolomGegevens kolom = Kolom(1, 1);
  kolom.Bedrag.Bedrag = -10;
  EXPECT_EQ(
      Alleen(kolom),
      "Verlaagt de maandlast met € 10,00 tot 1 november 2035; verhoogt het belastbaar inkomen met € 120,00 per jaar.");
}

TEST(Zin, HasNoNumberForWhatIsNone) {
  dossier::KolomGegevens kolom = Kolom(1, 3);
  kolom.Bedrag.Bedrag = 1e308 * 10;
  EXPECT_EQ(Alleen(kolom), "Verhoogt de maandlast met € ? tot 1 november 2035; geen invloed op de inkomstenbelasting.");
}

}  // namespace
}  // namespace brivane::sums
