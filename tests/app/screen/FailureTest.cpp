#include <sys/resource.h>

#include <QFileInfo>
#include <csignal>

#include "frame/Handle.h"
#include "tests/app/screen/WindowTest.h"
#include "vrijekolom/Ontwerp.h"

// A write that fails reaches the adviser once, and the screen then shows what is stored.
namespace brivane::dossier {
namespace {

class Fout : public Venstertest {
 protected:
  void SetUp() override {
    Venstertest::SetUp();
    Open();
  }

  /// Runs a body while the loan file's log cannot grow, as on a full disk.
  template <class Body> void OpVolleSchijf(Body&& body) {
    rlimit grens{};
    getrlimit(RLIMIT_FSIZE, &grens);
    const auto vorige = std::signal(SIGXFSZ, SIG_IGN);
    rlimit vol = grens;
    vol.rlim_cur = static_cast<rlim_t>(QFileInfo(bestand_ + "-wal").size());
    setrlimit(RLIMIT_FSIZE, &vol);
    body();
    setrlimit(RLIMIT_FSIZE, &grens);
    std::signal(SIGXFSZ, vorige);
  }
  [[nodiscard]] std::string Omschrijving() {
    return frame::Controls(Scherm().Kolom().Editor().Surface())[vrijekolom::TxtOm].Text();
  }
};

TEST_F(Fout, EenWijzigingDieNietIsOpgeslagenStaatErNietMeer) {
  ASSERT_TRUE(Scherm().GaNaar({0, 2}));
  QString toelichting;
  OpVolleSchijf([&] {
    Toets(Qt::Key_O, Qt::AltModifier);
    Typ("Dagkrant");
    dialogen_.VerwachtMelding("Er is een fout opgetreden.", [&](QWidget& venster) {
      EXPECT_EQ(venster.windowTitle().section(u' ', 0, 0), "Kwandero");
      toelichting = static_cast<QMessageBox&>(venster).informativeText();
      Druk(Qt::Key_Return)(venster);
    });
    Toets(Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving() == "Weekendabonnement"; }, 2000)) << Omschrijving();
  });
  EXPECT_TRUE(toelichting.contains("Vrije kolom (VrijeKolom)")) << qPrintable(toelichting);
  EXPECT_TRUE(toelichting.contains("Het scherm toont weer wat in het dossier staat.")) << qPrintable(toelichting);

  // Once there is room again the work goes on.
  Toets(Qt::Key_O, Qt::AltModifier);
  Typ("Avondkrant");
  Toets(Qt::Key_Tab);
  EXPECT_EQ(LeesNaSluiten()["0/2/omschrijving"].toString(), "Avondkrant");
}

TEST_F(Fout, EenKolomDieNietIsOpgeslagenKomtNietInDeBoom) {
  OpVolleSchijf([&] {
    dialogen_.VerwachtMelding("Er is een fout opgetreden.", Druk(Qt::Key_Return));
    Toets(Qt::Key_D, Qt::ControlModifier);
    QTest::qWait(100);
  });
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 1}));
  EXPECT_FALSE(Scherm().Gegevens().ZoekKolom(0, 8));
}

TEST_F(Fout, EenScenarioDatNietIsOpgeslagenIsErNietMeer) {
  ASSERT_TRUE(Scherm().GaNaar({0, 3}));
  bool klaar = false;
  dialogen_.Verwacht([&](QWidget& formulier) {
    TabNaar("Bedrag jaar 4");
    Typ("400");
    Toets(Qt::Key_Return);
    dialogen_.VerwachtMelding("Er is een fout opgetreden.", Druk(Qt::Key_Return));
    OpVolleSchijf([&] {
      QTest::keyClick(FocusVenster(), Qt::Key_O, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !formulier.isVisible(); }, 5000));
    });
    klaar = true;
  });
  Toets(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return klaar && !QApplication::activeModalWidget(); }, 10000));
  EXPECT_TRUE(Kolom(0, 3).Bedrag.Perioden.empty());
  EXPECT_FALSE(LeesNaSluiten().contains("0/3/periode 1/maand"));
}

TEST_F(Fout, EenFoutVanHetOnderdeelWordtEenKeerGemeld) {
  // The age limit is asked for a partner who is gone.
  std::vector<PersoonGegevens> personen = Scherm().Gegevens().Personen();
  ASSERT_TRUE(Scherm().GaNaar({0, 3}));
  personen.pop_back();
  ASSERT_TRUE(Scherm().SetClient(personen, 67));
  dialogen_.VerwachtMelding("Er is een fout opgetreden.", [](QWidget& venster) {
    const QString toelichting = static_cast<QMessageBox&>(venster).informativeText();
    EXPECT_TRUE(toelichting.contains("Foutnummer: 91")) << qPrintable(toelichting);
    EXPECT_FALSE(toelichting.contains("Het scherm toont weer"));
    Druk(Qt::Key_Return)(venster);
  });
  Toets(Qt::Key_S, Qt::AltModifier);
  // A button that is pressed by its letter goes down for a moment first.
  EXPECT_TRUE(QTest::qWaitFor([&] { return logboek_.Lees().contains("FOUT 91 in VrijeKolom"); }, 5000));
}

}  // namespace
}  // namespace brivane::dossier
