#include <gtest/gtest.h>

#include "dossier/model/Kopteksten.h"

namespace brivane::dossier {
namespace {

KolomGegevens Product(const char* kind, const char* omschrijving, const char* productnaam) {
  KolomGegevens kolom;
  kolom.IsProduct = true;
  kolom.ProductsoortOmschrijving = kind;
  kolom.Omschrijving = omschrijving;
  kolom.Productnaam = productnaam;
  kolom.Bedrag.Bedrag = 12.5;
  return kolom;
}

std::string Kopregel(double bedrag, std::int16_t termijn) {
  KolomGegevens kolom;
  kolom.Bedrag.Bedrag = bedrag;
  kolom.Termijn = termijn;
  return BerekendeKopteksten().Kopregel(kolom);
}

TEST(BerekendeKopteksten, ShowAnAmountAsItsBoxShowsIt) {
  EXPECT_EQ(Kopregel(0.05, 2), "Vrije kolom · € 0,05");
  EXPECT_EQ(Kopregel(1234567.891, 2), "Vrije kolom · € 1.234.567,89");
  EXPECT_EQ(Kopregel(-1234.5, 2), "Vrije kolom · € -1.234,50");
  EXPECT_EQ(Kopregel(-0.001, 2), "Vrije kolom · € 0,00");
  EXPECT_EQ(Kopregel(-0.125, 2), "Vrije kolom · € -0,13");
  // A half as it reads, although the nearest double lies below it.
  EXPECT_EQ(Kopregel(1.005, 2), "Vrije kolom · € 1,01");
}

TEST(BerekendeKopteksten, ShowAQuestionMarkForAnAmountThatIsNoNumber) {
  EXPECT_EQ(Kopregel(1e308 * 10, 12), "Vrije kolom · € ? per jaar");
}

TEST(BerekendeKopteksten, ShowAPercentageAsOne) {
  KolomGegevens kolom;
  kolom.Omschrijving = "Opslag";
  kolom.Bedrag = {.Naam = "", .Invoersoort = 2, .Bedrag = 2.5, .Perioden = {}};
  EXPECT_EQ(BerekendeKopteksten().Kopregel(kolom), "Opslag · 2,50 % per maand");
  // With growth the amount itself is in euros.
  kolom.Bedrag.Invoersoort = 3;
  EXPECT_EQ(BerekendeKopteksten().Kopregel(kolom), "Opslag · € 2,50 per maand");
}

TEST(BerekendeKopteksten, NameTheFiveTermsAndNoOther) {
  EXPECT_EQ(Kopregel(1, 1), "Vrije kolom · € 1,00 per maand");
  EXPECT_EQ(Kopregel(1, 3), "Vrije kolom · € 1,00 per kwartaal");
  EXPECT_EQ(Kopregel(1, 6), "Vrije kolom · € 1,00 per half jaar");
  EXPECT_EQ(Kopregel(1, 12), "Vrije kolom · € 1,00 per jaar");
  EXPECT_EQ(Kopregel(1, 99), "Vrije kolom · € 1,00 eenmalig");
  EXPECT_EQ(Kopregel(1, 2), "Vrije kolom · € 1,00");
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
