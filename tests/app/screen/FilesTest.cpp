#include <QFile>
#include <QLineEdit>
#include <QStackedWidget>

#include "app/screen/StartPage.h"
#include "frame/Calendar.h"
#include "tests/app/screen/WindowTest.h"

// Opening and making loan files.
namespace brivane::dossier {
namespace {

class Bestanden : public Venstertest {
 protected:
  [[nodiscard]] QString Schrijf(const char* naam, const QByteArray& inhoud) {
    QFile bestand(map_.filePath(naam));
    EXPECT_TRUE(bestand.open(QIODevice::WriteOnly));
    bestand.write(inhoud);
    return bestand.fileName();
  }
  [[nodiscard]] bool OpStartpagina() {
    return dynamic_cast<Startpagina*>(venster_->findChild<QStackedWidget*>()->currentWidget()) != nullptr;
  }
};

TEST_F(Bestanden, EenAnderSoortBestandWordtInEenMeldingGeweigerd) {
  const QString brief = Schrijf("brief.dossier", "Geachte heer,\n");
  dialogen_.VerwachtMelding("Het bestand \"brief.dossier\" is geen dossier.", Druk(Qt::Key_Return));
  EXPECT_FALSE(venster_->Open(brief));
  EXPECT_TRUE(OpStartpagina());
  QFile bestand(brief);
  ASSERT_TRUE(bestand.open(QIODevice::ReadOnly));
  EXPECT_EQ(bestand.readAll(), "Geachte heer,\n");
}

TEST_F(Bestanden, EenGeweigerdBestandLaatHetOpenDossierStaan) {
  Open();
  dialogen_.VerwachtMelding("bestaat niet (meer)", Druk(Qt::Key_Return));
  EXPECT_FALSE(venster_->Open(map_.filePath("weg.dossier")));
  ASSERT_NE(venster_->Scherm(), nullptr);
  EXPECT_EQ(Scherm().Bestand().Pad(), bestand_);
}

TEST_F(Bestanden, HetzelfdeBestandBlijftOpen) {
  Open();
  EXPECT_TRUE(venster_->Open(bestand_));
}

TEST_F(Bestanden, EenDossierIsInEenVensterTegelijkOpen) {
  Open();
  Hoofdvenster tweede(logboek_);
  tweede.show();
  dialogen_.VerwachtMelding("is al geopend in een ander venster of programma", Druk(Qt::Key_Return));
  EXPECT_FALSE(tweede.Open(bestand_));
}

TEST_F(Bestanden, EenNieuwDossierVraagtDeAanvragerEnDePlaats) {
  const QString nieuw = map_.filePath("nieuw.dossier");
  dialogen_.Verwacht([](QWidget&) {
    Typ("J.");
    TabNaar("Aanvrager, Achternaam");
    Typ("Bakker");
    TabNaar("Aanvrager, Geboortedatum");
    Typ("1-4-1985");
    Toets(Qt::Key_Return);
    Toets(Qt::Key_Return);
  });
  dialogen_.Verwacht([&](QWidget& vraag) {
    const auto* naam = vraag.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_TRUE(naam && naam->text() == "Bakker.dossier");
    Typ(nieuw.toLocal8Bit().constData());
    Toets(Qt::Key_Return);
  });
  Toets(Qt::Key_N, Qt::ControlModifier);
  ASSERT_NE(venster_->Scherm(), nullptr);
  EXPECT_EQ(Scherm().Bestand().Pad(), nieuw);
  const std::vector<PersoonGegevens> personen = Scherm().Gegevens().Personen();
  ASSERT_EQ(personen.size(), 1U);
  EXPECT_EQ(personen[0].Naam[0], "J.");
  EXPECT_EQ(personen[0].Naam[2], "Bakker");
  EXPECT_EQ(personen[0].Geboortedatum, frame::MakeDate({.year = 1985, .month = 4, .day = 1}));
}

TEST_F(Bestanden, EenNieuwDossierVervangtGeenBestand) {
  dialogen_.VerwachtMelding("staat al een bestand \"test.dossier\"", Druk(Qt::Key_Return));
  EXPECT_FALSE(venster_->Maak(bestand_, LeegDossier()));
  EXPECT_EQ(LeesInTweedeProces(bestand_)["0/1/bedrag"].toDouble(), 485.5);
}

TEST_F(Bestanden, EscapeMaaktGeenNieuwDossier) {
  dialogen_.Verwacht(Druk(Qt::Key_Escape));
  Toets(Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(OpStartpagina());
}

}  // namespace
}  // namespace brivane::dossier
