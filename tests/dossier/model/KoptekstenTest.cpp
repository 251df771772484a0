#include <gtest/gtest.h>

#include "dossier/model/Kopteksten.h"

namespace brivane::dossier {
namespace {

TEST(BedragTekst, GroupsByThousandsAndShowsCents) {
  EXPECT_EQ(BedragTekst(0), "0,00");
  EXPECT_EQ(BedragTekst(0.05), "0,05");
  EXPECT_EQ(BedragTekst(12.5), "12,50");
  EXPECT_EQ(BedragTekst(999.99), "999,99");
  EXPECT_EQ(BedragTekst(1000), "1.000,00");
  EXPECT_EQ(BedragTekst(1234567.891), "1.234.567,89");
}

TEST(BedragTekst, RoundsHalvesOfACentAwayFromZero) {
  EXPECT_EQ(BedragTekst(0.125), "0,13");
  EXPECT_EQ(BedragTekst(-0.125), "-0,13");
}

TEST(BedragTekst, ShowsNoMinusBeforeZero) {
  EXPECT_EQ(BedragTekst(-0.001), "0,00");
  EXPECT_EQ(BedragTekst(-1234.5), "-1.234,50");
}

TEST(BedragTekst, ShowsAQuestionMarkForWhatIsNoNumber) { EXPECT_EQ(BedragTekst(1e308 * 10), "?"); }

TEST(TermijnTekst, NamesTheFiveTermsAndNoOther) {
  EXPECT_EQ(TermijnTekst(1), "per maand");
  EXPECT_EQ(TermijnTekst(3), "per kwartaal");
  EXPECT_EQ(TermijnTekst(6), "per half jaar");
  EXPECT_EQ(TermijnTekst(12), "per jaar");
  EXPECT_EQ(TermijnTekst(99), "eenmalig");
  EXPECT_EQ(TermijnTekst(2), "");
}

KolomGegevens Product(const char* kind, const char* omschrijving, const char* productnaam) {
  KolomGegevens kolom;
  kolom.IsProduct = true;
  kolom.ProductsoortOmschrijving = kind;
  kolom.Omschrijving = omschrijving;
  kolom.Productnaam = productnaam;
  kolom.Bedrag.Bedrag = 12.5;
  return kolom;
}

TEST(BerekendeKopteksten, NameTheItemItsAmountAndItsTerm) {
  const BerekendeKopteksten kopteksten;
  KolomGegevens kolom;
  kolom.Omschrijving = "Kinderopvang";
  kolom.Bedrag.Bedrag = 1485.5;
  kolom.Termijn = 3;
  EXPECT_EQ(kopteksten.Kopregel(kolom), "Kinderopvang · € 1.485,50 per kwartaal");
  EXPECT_EQ(kopteksten.Weergave(kolom), kopteksten.Kopregel(kolom));
}

TEST(BerekendeKopteksten, NameTheKindOfAProductFirst) {
  const BerekendeKopteksten kopteksten;
  EXPECT_EQ(kopteksten.Kopregel(Product("Vereniging", "", "")), "Vereniging · € 12,50 per maand");
  EXPECT_EQ(kopteksten.Kopregel(Product("Krant", "Weekend", "De Maasbode")), "Krant · Weekend · € 12,50 per maand");
  EXPECT_EQ(kopteksten.Kopregel(Product("Krant", "", "De Maasbode")), "Krant · De Maasbode · € 12,50 per maand");
  EXPECT_EQ(kopteksten.Kopregel(Product("Krant", "Krant", "")), "Krant · € 12,50 per maand");
  EXPECT_EQ(kopteksten.Kopregel(Product("", "", "")), "Vrije kolom · € 12,50 per maand");
}

TEST(BerekendeKopteksten, LeaveAProductOutOfAnItemThatIsNone) {
  KolomGegevens kolom = Product("Krant", "Weekend", "De Maasbode");
  kolom.IsProduct = false;
  kolom.Termijn = 2;
  EXPECT_EQ(BerekendeKopteksten().Kopregel(kolom), "Weekend · € 12,50");
}

TEST(Kopteksten, AreTheColumnsOwnFieldsUnlessTheHostComputesThem) {
  KolomGegevens kolom;
  kolom.Weergave = "boven";
  kolom.Kopregel = "kop";
  EXPECT_EQ(Kopteksten().Weergave(kolom), "boven");
  EXPECT_EQ(Kopteksten().Kopregel(kolom), "kop");
}

}  // namespace
}  // namespace brivane::dossier
