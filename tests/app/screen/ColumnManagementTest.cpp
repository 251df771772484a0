#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QStatusBar>

#include "app/screen/KolommenModel.h"
#include "frame/Handle.h"
#include "tests/app/screen/WindowTest.h"
#include "vrijekolom/Ontwerp.h"

// Columns, loans and persons: what the window does beside the editor.
namespace brivane::dossier {
namespace {

class Beheer : public Venstertest {
 protected:
  void SetUp() override {
    Venstertest::SetUp();
    Open();
  }
  [[nodiscard]] QAbstractItemView& Boom() { return *venster_->findChild<QAbstractItemView*>("kolommen"); }
  [[nodiscard]] QStringList Kolommen(int lening) {
    QStringList teksten;
    const QModelIndex boven = Boom().model()->index(lening, 0);
    for (int rij = 0; rij < Boom().model()->rowCount(boven); ++rij) {
      teksten << Boom().model()->index(rij, 0, boven).data().toString();
    }
    return teksten;
  }
};

TEST_F(Beheer, DeBoomToontDeLeningenEnHunKolommen) {
  EXPECT_EQ(Boom().model()->rowCount(), 3);
  EXPECT_EQ(Boom().model()->index(0, 0).data().toString(), "Huidige lening");
  EXPECT_EQ(Boom().model()->index(2, 0).data().toString(), "Nieuwe lening 2");
  EXPECT_EQ(Kolommen(1),
            (QStringList{"Kinderopvang · € 310,00 per maand", "Onderhoud zonnepanelen · € 95,00 per jaar"}));
  EXPECT_TRUE(Kolommen(2).isEmpty());
}

TEST_F(Beheer, DupliceertEenKolomAlsEenPostVanZichzelf) {
  ASSERT_TRUE(Scherm().GaNaar({0, 6}));
  Toets(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 8}));
  EXPECT_EQ(Focus(), "Omschrijving");
  EXPECT_EQ(Kolom(0, 8).Productnaam, "Seniorlid");
  EXPECT_EQ(Kolommen(0).size(), 7);
  EXPECT_FALSE(Scherm().Gegevens().Voorstel(1).contains(8));
  EXPECT_EQ(LeesNaSluiten()["0/8/productnaam"].toString(), "Seniorlid");
}

TEST_F(Beheer, VerwijdertEenKolomPasNaEenJa) {
  ASSERT_TRUE(Scherm().GaNaar({0, 3}));
  Toets(Qt::Key_F6);
  dialogen_.VerwachtMelding("Muzieklessen aan huis", Druk(Qt::Key_Return));
  Toets(Qt::Key_Delete);
  EXPECT_EQ(Kolommen(0).size(), 6);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 3}));

  dialogen_.VerwachtMelding("Wilt u deze vrije kolom verwijderen?", [](QWidget& venster) {
    QTest::keyClick(venster.windowHandle(), Qt::Key_V, Qt::AltModifier);
  });
  Toets(Qt::Key_Delete);
  EXPECT_EQ(Kolommen(0).size(), 5);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 4}));
  EXPECT_FALSE(LeesNaSluiten().contains("0/3/bedrag"));
}

TEST_F(Beheer, EenLetterAlleenVerwijdertGeenKolom) {
  ASSERT_TRUE(Scherm().GaNaar({0, 3}));
  Toets(Qt::Key_F6);
  dialogen_.VerwachtMelding("Wilt u deze vrije kolom verwijderen?", [](QWidget& venster) {
    QTest::keyClick(venster.windowHandle(), Qt::Key_V);
    QTest::qWait(200);  // a button that a letter presses stays down for a moment
    EXPECT_TRUE(venster.isVisible());
    if (venster.isVisible()) QTest::keyClick(venster.windowHandle(), Qt::Key_Escape);
  });
  Toets(Qt::Key_Delete);
  EXPECT_EQ(Kolommen(0).size(), 6);
}

TEST_F(Beheer, VerplaatstEenKolomMetHetToetsenbord) {
  ASSERT_TRUE(Scherm().GaNaar({0, 5}));
  Toets(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QTest::keyClick(menu, '2');
  EXPECT_EQ(Scherm().Getoond(), (Plek{2, 5}));
  EXPECT_EQ(Kolommen(0).size(), 5);
  EXPECT_EQ(Kolommen(2), QStringList{"Lijfrente-uitkering · € 6.250,00 per jaar"});
  // Proposals end what the client has now.
  EXPECT_FALSE(Scherm().Kolom().Editor().BeeindigenZichtbaar());
  EXPECT_EQ(LeesNaSluiten()["2/5/bedrag"].toDouble(), 6250);
}

TEST_F(Beheer, VerplaatstEenKolomDieNaarEenLeningIsGesleept) {
  auto& model = static_cast<Kolommenmodel&>(*Boom().model());
  const QModelIndex krant = model.IndexVan({0, 2});
  const std::unique_ptr<QMimeData> gesleept(model.mimeData({krant}));
  // On a column is on its loan.
  EXPECT_FALSE(model.dropMimeData(gesleept.get(), Qt::MoveAction, -1, -1, model.IndexVan({1, 7})));
  EXPECT_TRUE(Komt({1, 2}));
  EXPECT_EQ(Kolommen(1).size(), 3);
}

TEST_F(Beheer, EenAfwijkingHeeftDezelfdePostInDeNieuweSituatie) {
  ASSERT_TRUE(Scherm().GaNaar({0, 2}));
  ASSERT_EQ(venster_->Opdrachten().afwijking->actions().size(), 2);
  venster_->Opdrachten().afwijking->actions().at(1)->trigger();
  EXPECT_EQ(Scherm().Getoond(), (Plek{2, 2}));
  EXPECT_EQ(Kolom(2, 2).Productnaam, "De Maasbode op zaterdag");
  EXPECT_EQ(Kolommen(0).size(), 6);
}

TEST_F(Beheer, WijzigingenOvernemenHaaltDeAfwijkingUitDeBoom) {
  // Column 1 has a version of its own in the first new loan.
  Toets(Qt::Key_B, Qt::AltModifier);
  Typ("500");
  dialogen_.VerwachtMelding("Wilt u de wijzigingen overnemen in de nieuwe situatie?", [](QWidget& venster) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(venster).informativeText(),
              "\"Ja\" verwijdert:\n• 1 afwijkende kolom in Nieuwe lening 1: Kinderopvang, € 310,00 per maand");
    QTest::keyClick(venster.windowHandle(), Qt::Key_J, Qt::AltModifier);
  });
  Toets(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 2}));
  EXPECT_EQ(Kolommen(0).front(), "Kinderopvang · € 500,00 per maand");
  EXPECT_EQ(Kolommen(1), QStringList{"Onderhoud zonnepanelen · € 95,00 per jaar"});
}

TEST_F(Beheer, OvernemenBijEenDatumHaaltDeAfwijkingMeteenUitDeBoom) {
  Toets(Qt::Key_B, Qt::AltModifier);
  Typ("500");
  Toets(Qt::Key_A, Qt::AltModifier);
  Typ("1-1-2025");
  dialogen_.VerwachtMelding("Wilt u de wijzigingen overnemen in de nieuwe situatie?", [](QWidget& venster) {
    QTest::keyClick(venster.windowHandle(), Qt::Key_J, Qt::AltModifier);
  });
  Toets(Qt::Key_Tab);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 1}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Kolommen(1).size() == 1; }, 2000));
}

TEST_F(Beheer, DeStatusbalkZegtWatErIsOpgeslagenEnWatAandachtVraagt) {
  EXPECT_EQ(venster_->statusBar()->currentMessage(), "");
  ASSERT_TRUE(Scherm().GaNaar({0, 2}));
  const auto* punten = venster_->findChild<QLabel*>("aandachtspunten");
  ASSERT_NE(punten, nullptr);
  EXPECT_EQ(punten->text(), "");
  Toets(Qt::Key_O, Qt::AltModifier);
  Toets(Qt::Key_Delete);
  Toets(Qt::Key_Tab);
  EXPECT_EQ(venster_->statusBar()->currentMessage(), "Opgeslagen");
  Toets(Qt::Key_PageDown, Qt::ControlModifier);
  // A column without a description.
  EXPECT_EQ(punten->text(), "Aandachtspunten: 1 (F7)");
}

TEST_F(Beheer, BladertDoorAlleKolommenOverDeLeningenHeen) {
  const std::vector<Plek> verwacht{{0, 2}, {0, 3}, {0, 4}, {0, 5}, {0, 6}, {1, 1}, {1, 7}, {1, 7}};
  for (const Plek& plek : verwacht) {
    Toets(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Scherm().Getoond(), plek);
  }
  // From a loan itself: back to the last column before it.
  ASSERT_TRUE(Scherm().GaNaar({1, std::nullopt}));
  Toets(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 6}));
}

TEST_F(Beheer, NieuweClientgegevensStaanMeteenOpHetScherm) {
  dialogen_.Verwacht([](QWidget&) {
    TabNaar("Partner, Achternaam");
    Typ("Jansen");
    TabNaar("Partner, Geboortedatum");
    Typ("1-5-1979");
    TabNaar("Leeftijdsgrens");
    Typ("70");
    Toets(Qt::Key_Return);
  });
  Toets(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const frame::Controls vakken(Scherm().Kolom().Editor().Surface());
  EXPECT_EQ(vakken(vrijekolom::optAanvrager, 2).Caption(), "S. de Jansen");

  ASSERT_TRUE(venster_->SluitDossier());
  Open();
  const std::vector<PersoonGegevens> personen = Scherm().Gegevens().Personen();
  ASSERT_EQ(personen.size(), 2U);
  EXPECT_EQ(personen[1].Naam[2], "Jansen");
  EXPECT_EQ(Scherm().Gegevens().Leeftijd(), 70);
}

TEST_F(Beheer, EenPersoonZonderGeboortedatumWordtGeweigerd) {
  dialogen_.Verwacht([](QWidget& venster) {
    TabNaar("Aanvrager, Geboortedatum");
    Toets(Qt::Key_Delete);
    Toets(Qt::Key_Tab);
    QTest::keyClick(venster.windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(venster.isVisible());
    EXPECT_EQ(Focus(), "Aanvrager, Geboortedatum");
    Toets(Qt::Key_Escape);
    Toets(Qt::Key_Escape);
  });
  Toets(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(Scherm().Gegevens().Personen()[0].Geboortedatum.IsNone());
}

TEST_F(Beheer, EenNieuweLeningKrijgtKolommen) {
  dialogen_.Verwacht([](QWidget&) {
    Typ("Verhuur");
    Toets(Qt::Key_Return);
  });
  venster_->Opdrachten().leningToevoegen->trigger();
  EXPECT_EQ(Scherm().Getoond(), (Plek{3, std::nullopt}));
  EXPECT_EQ(Boom().model()->index(3, 0).data().toString(), "Verhuur");
  Toets(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{3, 8}));
  Toets(Qt::Key_A, Qt::AltModifier);
  Typ("1-1-2027");
  EXPECT_TRUE(LeesNaSluiten().contains("3/8/bedrag"));
}

TEST_F(Beheer, HetVensterOnthoudtZijnBestand) {
  ASSERT_TRUE(venster_->close());
  QProcess proces;
  proces.start(QStringLiteral(DOSSIER), {});
  ASSERT_TRUE(proces.waitForStarted());
  // It opens the file of last time, which nobody else then can. Trying before would keep it from opening.
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(bestand_ + "-wal"); }, 20000));
  dialogen_.VerwachtMelding("is al geopend in een ander venster of programma", Druk(Qt::Key_Return));
  NieuwVenster();
  EXPECT_FALSE(venster_->Open(bestand_));
  proces.kill();
  EXPECT_TRUE(proces.waitForFinished());
}

}  // namespace
}  // namespace brivane::dossier
