#include <sys/resource.h>

#include <QFileInfo>
#include <QLabel>
#include <csignal>

#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Ontwerp.h>

// A write that fails reaches the adviser once, and the screen then shows what is stored.
namespace brivane::app {
namespace {

class FailureTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Open();
  }

  /// Runs a body while the loan file's log cannot grow, as on a full disk.
  template <class Body> void OnFullDisk(Body&& body) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    rlimit full = limit;
    full.rlim_cur = static_cast<rlim_t>(QFileInfo(file_ + "-wal").size());
    setrlimit(RLIMIT_FSIZE, &full);
    body();
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, previous);
  }
  [[nodiscard]] std::string Omschrijving() {
    return frame::Controls(Screen().Kolom().Editor().Surface())[vrijekolom::TxtOm].Text();
  }
};

TEST_F(FailureTest, AChangeThatIsNotStoredStandsThereNoMore) {
  ASSERT_TRUE(Screen().GoTo({0, 2}));
  QString toelichting;
  OnFullDisk([&] {
    PressKey(Qt::Key_O, Qt::AltModifier);
    Type("Dagkrant");
    dialogs_.ExpectMessage("Er is een fout opgetreden.", [&](QWidget& window) {
      EXPECT_EQ(window.windowTitle().section(u' ', 0, 0), "Kwandero");
      toelichting = static_cast<QMessageBox&>(window).informativeText();
      Pressing(Qt::Key_Return)(window);
    });
    PressKey(Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving() == "Weekendabonnement"; }, 2000)) << Omschrijving();
  });
  EXPECT_TRUE(toelichting.contains("Vrije kolom (VrijeKolom)")) << qPrintable(toelichting);
  EXPECT_TRUE(toelichting.contains("Het scherm toont weer wat in het dossier staat.")) << qPrintable(toelichting);

  // Once there is room again the work goes on.
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Avondkrant");
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(ReadAfterClosing()["0/2/omschrijving"].toString(), "Avondkrant");
}

TEST_F(FailureTest, AColumnThatCannotBeBoundLeavesAnEmptyEditorWithoutAName) {
  ASSERT_TRUE(Screen().GoTo({0, 2}));
  KolomScreen& kolom = Screen().Kolom();
  const auto* header = kolom.findChild<QLabel*>("kopregel");
  ASSERT_TRUE(header && !header->text().isEmpty());
  dialogs_.ExpectMessage("Er is een fout opgetreden.", Pressing(Qt::Key_Return));
  kolom.Show({0, 99});
  EXPECT_EQ(header->text(), "");
  EXPECT_FALSE(kolom.Editor().IsBound());
  EXPECT_EQ(kolom.Leave(), Leaving::May);
  kolom.FocusOmschrijving();
  PressKey(Qt::Key_X);
  EXPECT_EQ(Screen().Dossier().FindKolom(0, 2)->Omschrijving(), "Weekendabonnement");
  kolom.Show({0, 1});
  EXPECT_TRUE(kolom.Editor().IsBound());
  EXPECT_NE(header->text(), "");
}

TEST_F(FailureTest, AColumnThatIsNotStoredDoesNotComeIntoTheTree) {
  OnFullDisk([&] {
    dialogs_.ExpectMessage("Er is een fout opgetreden.", Pressing(Qt::Key_Return));
    PressKey(Qt::Key_D, Qt::ControlModifier);
    QTest::qWait(100);
  });
  EXPECT_EQ(Screen().Shown(), (Place{0, 1}));
  EXPECT_FALSE(Screen().Dossier().FindKolom(0, 8));
}

TEST_F(FailureTest, AScenarioThatIsNotStoredIsThereNoMore) {
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  bool done = false;
  dialogs_.Expect([&](QWidget& form) {
    TabTo("Bedrag jaar 4");
    Type("400");
    PressKey(Qt::Key_Return);
    dialogs_.ExpectMessage("Er is een fout opgetreden.", Pressing(Qt::Key_Return));
    OnFullDisk([&] {
      QTest::keyClick(FocusWindow(), Qt::Key_O, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }, 5000));
    });
    done = true;
  });
  PressKey(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return done && !QApplication::activeModalWidget(); }, 10000));
  EXPECT_TRUE(Kolom(0, 3).Bedrag.Perioden.empty());
  EXPECT_FALSE(ReadAfterClosing().contains("0/3/periode 1/maand"));
}

TEST_F(FailureTest, AFailureOfTheControlIsToldOnce) {
  // The age limit is asked for a partner who is gone.
  std::vector<dossier::PersoonGegevens> personen = Screen().Dossier().Personen();
  ASSERT_TRUE(Screen().GoTo({0, 3}));
  personen.pop_back();
  ASSERT_TRUE(Screen().SetClient(personen, 67));
  dialogs_.ExpectMessage("Er is een fout opgetreden.", [](QWidget& window) {
    const QString toelichting = static_cast<QMessageBox&>(window).informativeText();
    EXPECT_TRUE(toelichting.contains("Foutnummer: 91")) << qPrintable(toelichting);
    EXPECT_FALSE(toelichting.contains("Het scherm toont weer"));
    Pressing(Qt::Key_Return)(window);
  });
  PressKey(Qt::Key_S, Qt::AltModifier);
  // A button that is pressed by its letter goes down for a moment first.
  EXPECT_TRUE(QTest::qWaitFor([&] { return eventLog_.Read().contains("FOUT 91 in VrijeKolom"); }, 5000));
}

}  // namespace
}  // namespace brivane::app
