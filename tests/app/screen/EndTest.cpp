#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSessionManager>

#include "app/desk/UnfinishedText.h"
#include "app/program/SessionEnd.h"
#include "tests/app/screen/WindowTest.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>

// What the window does when the program has to end, and at the start after that.
namespace brivane::app {
namespace {

class EndTest : public WindowTest {
 protected:
  void TearDown() override {
    for (const auto& kept : UnfinishedText::All()) UnfinishedText::Forget(kept.name);
  }

  /// Types into the description without leaving it.
  void TypeInDescription(const char* text) {
    Screen().Kolom().FocusOmschrijving();
    Type(text);
  }
  /// Types what no amount box takes.
  void TypeNoAmount() {
    ASSERT_TRUE(Screen().GoTo({0, 2}));
    TypeInto("TxtBd", "vijf");
  }
  /// Types into a box of the editor in place of what stands there, without leaving it.
  void TypeInto(const char* name, const char* text) {
    qt::EntryBox* found = nullptr;
    for (QLineEdit* line : Screen().Kolom().Editor().findChildren<QLineEdit*>()) {
      auto* box = dynamic_cast<qt::EntryBox*>(line);
      for (const QWidget* named = box; named != nullptr && found == nullptr; named = named->parentWidget()) {
        if (named->objectName() == QLatin1String(name)) found = box;
      }
    }
    ASSERT_NE(found, nullptr);
    found->setFocus();
    found->selectAll();
    Type(text);
  }
  /// Opens the year form of column 1 and changes a row and a box of it.
  void ChangeRowsThen(const std::function<void()>& then) {
    Open();
    ASSERT_TRUE(Screen().GoTo({0, 1}));
    bool done = false;
    dialogs_.Expect([&](QWidget&) {
      TabTo("Bedrag jaar 2");
      Type("777");
      PressKey(Qt::Key_Return);
      Type("88");  // not handed over
      then();
      done = true;
    });
    PressKey(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return done && !QApplication::activeModalWidget(); }, 10000));
  }
  void End() {
    window_->EndInOrder();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Screen() == nullptr; }));
  }
  /// What the session manager of a desktop asks before it ends the session.
  void AskToCommit() {
    const SessionEnd end(*window_);
    auto* manager = qApp->findChild<QSessionManager*>();
    ASSERT_NE(manager, nullptr);
    emit qApp->commitDataRequest(*manager);
  }
  /// The one file, without what stands beside it.
  [[nodiscard]] QJsonObject ReadAlone() {
    const QString copy = folder_.filePath("alleen.dossier");
    EXPECT_TRUE(QFile::copy(file_, copy));
    return ReadInSecondProcess(copy);
  }
  /// Starts anew and presses a button where the text is offered.
  void AnswerOffer(const QString& text, const QString& button) {
    NewWindow();
    dialogs_.Expect([=](QWidget& dialog) {
      const auto* shown = dialog.findChild<QPlainTextEdit*>();
      ASSERT_NE(shown, nullptr) << dialog.windowTitle().toStdString();
      EXPECT_TRUE(shown->toPlainText().contains(text)) << shown->toPlainText().toStdString();
      for (QAbstractButton* one : dialog.findChildren<QAbstractButton*>()) {
        if (one->text() == button) return one->click();
      }
      ADD_FAILURE() << "no button " << button.toStdString();
    });
    window_->OfferUnfinished();
  }
  [[nodiscard]] static std::size_t Kept() { return UnfinishedText::All().size(); }
};

TEST_F(EndTest, WhatIsTypedIsHandedOver) {
  Open();
  TypeInDescription("Oppas");
  End();
  EXPECT_EQ(ReadInSecondProcess(file_)["0/1/omschrijving"].toString(), "Oppas");
  EXPECT_FALSE(QFile::exists(file_ + "-wal"));
  EXPECT_EQ(Kept(), 0u);
}

TEST_F(EndTest, WhatStandsInFrontIsLeftUnanswered) {
  Open();
  TypeInDescription("Oppas");
  dialogs_.Expect([&](QWidget&) { window_->EndInOrder(); });
  window_->Actions().about->trigger();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Screen() == nullptr; }));
  EXPECT_EQ(ReadInSecondProcess(file_)["0/1/omschrijving"].toString(), "Oppas");
}

TEST_F(EndTest, WhatCannotBeStoredIsOfferedAtTheNextStart) {
  Open();
  TypeNoAmount();
  End();
  AnswerOffer("vijf", "&Verdergaan");
  ASSERT_NE(window_->Screen(), nullptr);
  EXPECT_EQ(Screen().Shown(), (Place{0, 2}));
  const qt::EntryBox* pending = qt::EntryBox::PendingWithin(Screen().Kolom().Editor());
  ASSERT_NE(pending, nullptr);
  EXPECT_EQ(pending->text(), "vijf");
  EXPECT_EQ(Kept(), 0u);
  PressKey(Qt::Key_Escape);
}

TEST_F(EndTest, WhatIsOfferedIsKeptUntilItIsAnswered) {
  Open();
  TypeNoAmount();
  End();
  AnswerOffer("vijf", "&Later");
  EXPECT_EQ(Kept(), 1u);
  // A file that is away just now.
  ASSERT_TRUE(QFile::rename(file_, file_ + ".weg"));
  dialogs_.Expect([&](QWidget& dialog) {
    dialogs_.ExpectMessage("bestaat niet", Pressing(Qt::Key_Return));
    dialog.findChildren<QAbstractButton*>().front()->click();
  });
  window_->OfferUnfinished();
  EXPECT_EQ(Kept(), 1u);
  AnswerOffer("vijf", "&Weggooien");
  EXPECT_EQ(Kept(), 0u);
}

/// An end before the start: the editor refuses it in a box of its own.
TEST_F(EndTest, WhatTheHandingOverAsksIsLeftUnanswered) {
  for (const bool logOut : {true, false}) {
    SCOPED_TRACE(logOut);
    NewWindow();
    Open();
    ASSERT_TRUE(Screen().GoTo({0, 1}));
    TypeInto("TxtDtEind", "01012000");
    QElapsedTimer time;
    time.start();
    dialogs_.LookAway();
    if (logOut)
      AskToCommit();
    else
      End();
    EXPECT_LT(time.elapsed(), 5000);
    ASSERT_EQ(Kept(), 1u);
    EXPECT_EQ(UnfinishedText::All().front().what.box, "TxtDtEind");
    if (logOut) {
      PressKey(Qt::Key_Escape);
      EXPECT_TRUE(window_->CloseDossier());
    }
    UnfinishedText::Forget(UnfinishedText::All().front().name);
    dialogs_.LookOn();
  }
}

TEST_F(EndTest, RowsOfAnOpenFormAreOfferedAsText) {
  ChangeRowsThen([&] { window_->EndInOrder(); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Screen() == nullptr; }));
  EXPECT_FALSE(QFile::exists(file_ + "-wal"));
  ASSERT_EQ(Kept(), 1u);
  const UnfinishedText kept = UnfinishedText::All().front().what;
  EXPECT_EQ(kept.file, file_);
  EXPECT_EQ(kept.lening, 0);
  EXPECT_EQ(kept.kolom, 1);
  const QStringList lines = kept.text.split('\n');
  EXPECT_TRUE(lines[0].startsWith("Jaar\tBedrag\t")) << lines[0].toStdString();
  EXPECT_TRUE(lines[2].startsWith("2\t777,00\t")) << lines[2].toStdString();
  EXPECT_TRUE(lines[3].startsWith("3\t88\t")) << lines[3].toStdString();
  AnswerOffer("777,00", "&Kopiëren en verdergaan");
  EXPECT_EQ(Screen().Shown(), (Place{0, 1}));
  EXPECT_EQ(QApplication::clipboard()->text(), kept.text);
  EXPECT_EQ(Kept(), 0u);
}

TEST_F(EndTest, AnOpenFormWithoutAChangeLeavesNothing) {
  Open();
  bool done = false;
  dialogs_.Expect([&](QWidget&) {
    window_->EndInOrder();
    done = true;
  });
  PressKey(Qt::Key_S, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return done && window_->Screen() == nullptr; }));
  EXPECT_EQ(Kept(), 0u);
}

TEST_F(EndTest, AnswersInADialogAreOfferedAsText) {
  Open();
  dialogs_.Expect([&](QWidget&) {
    TabTo("Aanvrager, Achternaam");
    Type("Verhoeven");
    window_->EndInOrder();
  });
  window_->Actions().client->trigger();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Screen() == nullptr; }));
  ASSERT_EQ(Kept(), 1u);
  EXPECT_TRUE(UnfinishedText::All().front().what.text.contains("Aanvrager, Achternaam: Verhoeven"))
      << UnfinishedText::All().front().what.text.toStdString();
}

TEST_F(EndTest, ALogOutHandsOverWhatIsTypedAndWorksTheLogOff) {
  Open();
  TypeInDescription("Oppas");
  AskToCommit();
  EXPECT_EQ(ReadAlone()["0/1/omschrijving"].toString(), "Oppas");
  EXPECT_EQ(Kept(), 0u);
  // It may have been called off: the work goes on.
  Screen().Dossier().FindKolom(0, 1)->SetLooptijd(17);
  dialogs_.ExpectMessage("overnemen", Pressing(Qt::Key_Escape));
  EXPECT_EQ(ReadAfterClosing()["0/1/looptijd"].toInt(), 17);
}

TEST_F(EndTest, ALogOutKeepsWhatIsRefused) {
  Open();
  TypeNoAmount();
  AskToCommit();
  ASSERT_EQ(Kept(), 1u);
  // The signal that follows does not keep it a second time.
  End();
  AnswerOffer("vijf", "&Verdergaan");
  EXPECT_EQ(Kept(), 0u);
  PressKey(Qt::Key_Escape);
}

TEST_F(EndTest, ALogOutKeepsRowsAndLeavesTheirFormOpen) {
  ChangeRowsThen([&] {
    AskToCommit();
    EXPECT_NE(QApplication::activeModalWidget(), nullptr);
    ASSERT_EQ(Kept(), 1u);
    EXPECT_TRUE(UnfinishedText::All().front().what.text.contains("777,00"));
    PressKey(Qt::Key_Escape);  // what stands in the box
    QTest::keyClick(FocusWindow(), Qt::Key_O, Qt::AltModifier);
  });
  // It was called off and the person went on: nothing is unfinished.
  dialogs_.ExpectMessage("overnemen", Pressing(Qt::Key_Escape));
  window_->close();
  EXPECT_EQ(Kept(), 0u);
}

TEST_F(EndTest, WhatTwoWindowsKeepIsOfferedOneAfterTheOther) {
  for (const char* text : {"een", "twee"}) {
    UnfinishedText unfinished;
    unfinished.title = "Scenario";
    unfinished.text = text;
    static_cast<void>(unfinished.Keep());
  }
  ASSERT_EQ(Kept(), 2u);
  QStringList offered;
  for (int n = 0; n < 2; ++n) {
    dialogs_.Expect([&](QWidget& dialog) {
      offered << dialog.findChild<QPlainTextEdit*>()->toPlainText();
      PressKey(Qt::Key_W, Qt::AltModifier);
    });
  }
  window_->OfferUnfinished();
  EXPECT_EQ(offered, QStringList({"een", "twee"}));
  EXPECT_EQ(Kept(), 0u);
}

TEST_F(EndTest, WhatIsOfferedIsNoMarkUpAndEscapeKeepsIt) {
  UnfinishedText unfinished;
  unfinished.file = folder_.filePath("<b>vet.dossier");
  unfinished.title = "<i>x</i>";
  unfinished.text = "<b>vet</b>";
  static_cast<void>(unfinished.Keep());
  dialogs_.Expect([&](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QPlainTextEdit*>()->toPlainText(), "<b>vet</b>");
    EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
  });
  window_->OfferUnfinished();
  EXPECT_EQ(Kept(), 1u);
}

}  // namespace
}  // namespace brivane::app
