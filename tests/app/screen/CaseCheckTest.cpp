#include <QTreeWidget>

#include "app/screen/CaseCheck.h"
#include "frame/Calendar.h"
#include "tests/app/screen/WindowTest.h"

// "Dossier controleren": every column, without a box and without a trace in the file.
namespace brivane::dossier {
namespace {

host::Date Datum(int dag, int maand, int jaar) { return frame::MakeDate({.year = jaar, .month = maand, .day = dag}); }

KolomGegevens Kolom(std::int16_t Id, host::Date aanvang) {
  KolomGegevens kolom;
  kolom.Id = Id;
  kolom.Omschrijving = "Post";
  kolom.Bedrag.Bedrag = 10;
  kolom.DatumAanvang = aanvang;
  return kolom;
}

/// One fault in each column but the second.
DossierGegevens MetFouten() {
  DossierGegevens dossier = LeegDossier();
  KolomGegevens zonderDatum = Kolom(1, host::kNoDate);
  KolomGegevens goed = Kolom(2, Datum(1, 1, 2027));
  KolomGegevens zonderPercentage = Kolom(3, Datum(1, 1, 2027));
  zonderPercentage.ScenarioOverlijden = true;
  zonderPercentage.EinddatumOvergang = Datum(1, 1, 2060);
  dossier.HuidigeLening.VrijeKolommen = {zonderDatum, goed, zonderPercentage};
  KolomGegevens naamloos = Kolom(4, Datum(1, 1, 2027));
  naamloos.Omschrijving.clear();
  naamloos.ScenarioOverlijden = true;
  naamloos.PercentageOvergang = 50;
  naamloos.EinddatumOvergang = Datum(1, 1, 2020);
  dossier.Leningen[0].VrijeKolommen = {naamloos};
  return dossier;
}

TEST(Controle, VindtWatBeideOnderdelenEnDeHostVindenOpVolgordeVanDeKolommen) {
  const Dossier dossier(MetFouten(), std::make_shared<Omgeving>());
  const std::vector<Bevinding> bevindingen = ControleerAlles(dossier, Datum(21, 11, 2026));
  ASSERT_EQ(bevindingen.size(), 4U);
  EXPECT_EQ(bevindingen[0].Vrij_Id, 1);
  EXPECT_EQ(bevindingen[0].tekst, "Voer s.v.p. een aanvangsdatum in.");
  EXPECT_EQ(bevindingen[1].Vrij_Id, 3);
  EXPECT_EQ(bevindingen[1].tekst, "Overgangspercentage partner van 1% t/m 100% invullen.");
  EXPECT_EQ(bevindingen[2].Len_Id, 1);
  EXPECT_EQ(bevindingen[2].tekst, "Einddatum overgang partner moet in de toekomst liggen.");
  EXPECT_EQ(bevindingen[3].Len_Id, 1);
  EXPECT_EQ(bevindingen[3].tekst, "Er is geen omschrijving ingevuld.");
}

TEST(Controle, RaaktHetDossierNietAan) {
  DossierGegevens gegevens = MetFouten();
  // Shown as a product, it would get the kind "Anders".
  gegevens.HuidigeLening.VrijeKolommen[1].IsProduct = true;
  const Dossier dossier(gegevens, std::make_shared<Omgeving>());
  static_cast<void>(ControleerAlles(dossier, Datum(21, 11, 2026)));
  EXPECT_EQ(dossier.ZoekKolom(0, 2)->Productsoort(), 0);
}

class Controlelijst : public Venstertest {};

TEST_F(Controlelijst, F7ToontDeBevindingenEnEnterGaatNaarDeKolom) {
  bestand_ = map_.filePath("fouten.dossier");
  DossierBestand::Maak(bestand_, MetFouten());
  Open();
  const auto was = Scherm().Gegevens().Gegevens();
  Toets(Qt::Key_F7);
  auto* lijst = venster_->findChild<QTreeWidget*>("bevindingenlijst");
  ASSERT_NE(lijst, nullptr);
  EXPECT_TRUE(lijst->isVisible());
  // Of the column on the screen too, which is refused when it is left.
  ASSERT_GE(lijst->topLevelItemCount(), 4);
  EXPECT_TRUE(lijst->hasFocus());
  EXPECT_EQ(lijst->topLevelItem(0)->text(2), "Voer s.v.p. een aanvangsdatum in.");

  // The faulty column is not left for another one.
  Toets(Qt::Key_Down);
  dialogen_.VerwachtMelding("Voer s.v.p. een aanvangsdatum in.", Druk(Qt::Key_Return));
  Toets(Qt::Key_Return);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 1}));
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  Typ("1-1-2027");
  lijst->setFocus();
  QTest::keyClick(venster_->windowHandle(), Qt::Key_Return);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 3}));
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  EXPECT_EQ(Scherm().Gegevens().Gegevens().HuidigeLening.VrijeKolommen[1].Omschrijving,
            was.HuidigeLening.VrijeKolommen[1].Omschrijving);
}

TEST_F(Controlelijst, EscapeRuimtDeLijstOp) {
  bestand_ = map_.filePath("fouten.dossier");
  DossierBestand::Maak(bestand_, MetFouten());
  Open();
  Toets(Qt::Key_F7);
  const auto* lijst = venster_->findChild<QTreeWidget*>("bevindingenlijst");
  ASSERT_TRUE(lijst && lijst->hasFocus());
  Toets(Qt::Key_Escape);
  EXPECT_FALSE(lijst->isVisible());
}

TEST_F(Controlelijst, VindtInHetVoorbeeldNiets) {
  Open();
  const auto bevindingen = Scherm().Controleer();
  ASSERT_TRUE(bevindingen);
  for (const Bevinding& bevinding : *bevindingen) ADD_FAILURE() << bevinding.Vrij_Id << ": " << bevinding.tekst;
}

}  // namespace
}  // namespace brivane::dossier
