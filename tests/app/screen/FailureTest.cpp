#include <sys/resource.h>

#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <csignal>

#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Ontwerp.h>

// A write that fails reaches the adviser once, and the screen then shows what is stored.
namespace brivane::app {
namespace {

/// Until there is room again the log of a loan file cannot grow, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(const QString& file) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &limit_);
    rlimit full = limit_;
    full.rlim_cur = static_cast<rlim_t>(QFileInfo(file + "-wal").size());
    setrlimit(RLIMIT_FSIZE, &full);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    MakeRoom();
    std::signal(SIGXFSZ, before_);
  }
  void MakeRoom() { setrlimit(RLIMIT_FSIZE, &limit_); }

 private:
  rlimit limit_{};
  void (*before_)(int);
};

class FailureTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    Open();
  }

  /// Runs a body on a full disk.
  template <class Body> void OnFullDisk(Body&& body) {
    const FullDisk disk(file_);
    body();
  }
  /// Opens a dialog on a full disk, types into the box that has the focus and confirms. What was typed stays, with the
  /// message above it, until there is room and it is confirmed again.
  void StaysUntilStored(QAction& asks, const char* typed) {
    FullDisk disk(file_);
    QPointer<QWidget> dialog;
    dialogs_.Expect([&, typed](QWidget& window) {
      dialog = &window;
      auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      ASSERT_TRUE(box);
      box->selectAll();
      Type(typed);
      PressKey(Qt::Key_Return);
    });
    dialogs_.ExpectMessage("Er is een fout opgetreden.", [&](QWidget& box) {
      EXPECT_EQ(box.parentWidget(), dialog);
      const QString text = static_cast<QMessageBox&>(box).informativeText();
      EXPECT_TRUE(text.contains("het bestand kan niet worden beschreven")) << qPrintable(text);
      EXPECT_TRUE(text.contains("Wat u invulde, staat nog in het venster.")) << qPrintable(text);
      EXPECT_FALSE(text.contains("Het scherm toont weer")) << qPrintable(text);
      Pressing(Qt::Key_Return)(box);
    });
    dialogs_.Expect([&, typed](QWidget& window) {
      EXPECT_EQ(&window, dialog);
      const auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      ASSERT_TRUE(box);
      EXPECT_EQ(box->text(), typed);
      disk.MakeRoom();
      PressKey(Qt::Key_Return);
      EXPECT_FALSE(window.isVisible());
    });
    asks.trigger();
    EXPECT_FALSE(dialog);
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

TEST_F(FailureTest, ClientDataStayInTheirDialogUntilTheyAreStored) {
  StaysUntilStored(*window_->Actions().client, "Q.");
  ASSERT_TRUE(window_->CloseDossier());
  Open();
  EXPECT_EQ(Screen().Dossier().Personen()[0].Naam[0], "Q.");
}

TEST_F(FailureTest, TheNameOfALoanStaysInItsDialogUntilItIsStored) {
  ASSERT_TRUE(Screen().GoTo({1, std::nullopt}));
  StaysUntilStored(*window_->Actions().renameLening, "Verhuur");
  EXPECT_EQ(Screen().Dossier().FindLening(1)->Naam(), "Verhuur");
  EXPECT_TRUE(window_->CloseDossier());
}

TEST_F(FailureTest, ANewLoanIsAskedForUntilItIsStored) {
  StaysUntilStored(*window_->Actions().addLening, "Verhuur");
  EXPECT_EQ(Screen().Shown(), (Place{3, std::nullopt}));
  EXPECT_EQ(Screen().Dossier().AantalLeningen(), 3);
}

TEST_F(FailureTest, EscapeLeavesADialogWhoseContentsAreNotStored) {
  FullDisk disk(file_);
  dialogs_.Expect([](QWidget&) {
    Type("Q.");
    PressKey(Qt::Key_Return);
  });
  dialogs_.ExpectMessage("Er is een fout opgetreden.", Pressing(Qt::Key_Return));
  dialogs_.Expect(Pressing(Qt::Key_Escape));
  PressKey(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  disk.MakeRoom();
  EXPECT_NE(Screen().Dossier().Personen()[0].Naam[0], "Q.");
  // The editor shows what is stored as soon as the dialog is gone.
  QTest::qWait(100);
  // The work goes on.
  ASSERT_TRUE(Screen().GoTo({0, 2}));
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Avondkrant");
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(ReadAfterClosing()["0/2/omschrijving"].toString(), "Avondkrant");
}

/// What has to be mended first is told before a name is typed.
TEST_F(FailureTest, NoNameOfALoanIsAskedForWhereTheColumnHasToBeMended) {
  ASSERT_TRUE(Screen().AddKolom());
  dialogs_.Expect(Pressing(Qt::Key_Return));
  window_->Actions().addLening->trigger();
  EXPECT_EQ(Screen().Dossier().AantalLeningen(), 2);
  Screen().RemoveKolom();
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
