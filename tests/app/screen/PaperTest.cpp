#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

#include "tests/app/screen/WindowTest.h"

// What leaves the window on paper and for other programs, by keyboard.
namespace brivane::app {
namespace {

class PaperTest : public WindowTest {
 protected:
  /// Presses a key, and counts it with those that are held down with it.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    keys_ += 1 + (modifiers.testFlag(Qt::ControlModifier) ? 1 : 0) + (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
             (modifiers.testFlag(Qt::AltModifier) ? 1 : 0);
    PressKey(key, modifiers);
  }

  /// The dialog comes and proposes that name; Enter takes it.
  void ExpectProposal(const QString& name) {
    dialogs_.Expect([this, name](QWidget& question) {
      const auto* box = question.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->text(), name);
      Press(Qt::Key_Return);
    });
  }

  [[nodiscard]] QByteArray Contents(const char* name) const {
    QFile file(folder_.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
  }
  [[nodiscard]] QString TextOf(const char* pdf) const {
    QProcess process;
    process.start(QStringLiteral("pdftotext"),
                  {"-layout", "-enc", "UTF-8", folder_.filePath(QString::fromUtf8(pdf)), "-"});
    EXPECT_TRUE(process.waitForFinished(30000));
    return QString::fromUtf8(process.readAllStandardOutput());
  }
  [[nodiscard]] QStringList Exports() const { return QDir(folder_.path()).entryList({"*.pdf", "*.csv"}, QDir::Files); }

  int keys_ = 0;
};

TEST_F(PaperTest, APdfTakesFewerThanSixKeys) {
  Open();
  ExpectProposal("test.pdf");
  Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  // Ctrl, Shift, P and Enter.
  EXPECT_LT(keys_, 6);
  EXPECT_EQ(keys_, 4);
  const QString text = TextOf("test.pdf");
  for (const char* part : {"M.C. van den Heuvel", "Kinderopvang", "Onderhoud zonnepanelen"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part;
  EXPECT_EQ(QFile::permissions(folder_.filePath("test.pdf")) & (QFile::ReadGroup | QFile::ReadOther),
            QFile::Permissions());
}

TEST_F(PaperTest, NothingIsWrittenOver) {
  Open();
  ExpectProposal("test.pdf");
  Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  const QByteArray first = Contents("test.pdf");
  ExpectProposal("test (2).pdf");
  Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Exports(), (QStringList{"test (2).pdf", "test.pdf"}));
  // A name that is taken is refused, and the question stays.
  dialogs_.Expect([this](QWidget& question) {
    dialogs_.ExpectMessage("staat al een bestand \"test.pdf\"", Pressing(Qt::Key_Return));
    Type("test.pdf");
    PressKey(Qt::Key_Return);
    EXPECT_TRUE(question.isVisible());
    QTest::qWait(10);
    QTest::keyClick(question.windowHandle(), Qt::Key_Escape);
  });
  Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Contents("test.pdf"), first);
  EXPECT_EQ(Exports().size(), 2);
}

TEST_F(PaperTest, WhatCannotBeWrittenIsToldAndAskedAgain) {
  Open();
  dialogs_.Expect([this](QWidget&) {
    Type(folder_.filePath("weg/rapport.pdf").toLocal8Bit().constData());
    PressKey(Qt::Key_Return);
  });
  dialogs_.ExpectMessage("de map bestaat niet (meer)", Pressing(Qt::Key_Return));
  ExpectProposal("test.pdf");
  Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Exports(), QStringList{"test.pdf"});
}

TEST_F(PaperTest, WhatIsBeingTypedIsInItAndWhatIsRefusedIsNot) {
  Open();
  PressKey(Qt::Key_B, Qt::AltModifier);
  Type("612,34");
  ExpectProposal("test.pdf");
  Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(TextOf("test.pdf").contains(QStringLiteral("€ 612,34")));
  PressKey(Qt::Key_A, Qt::AltModifier);
  Type("31-2-2027");
  // No question comes: the box says what is wrong.
  Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  EXPECT_EQ(Exports().size(), 1);
  PressKey(Qt::Key_Escape);
}

TEST_F(PaperTest, ColumnsAndPeriodsGoToASpreadsheetByTheMenu) {
  Open();
  ExpectProposal("test - kolommen.csv");
  Press(Qt::Key_T, Qt::AltModifier);
  Press(Qt::Key_X);
  Press(Qt::Key_K);
  ExpectProposal("test - perioden.csv");
  Press(Qt::Key_T, Qt::AltModifier);
  Press(Qt::Key_X);
  Press(Qt::Key_P);
  const QString kolommen = QString::fromUtf8(Contents("test - kolommen.csv"));
  EXPECT_TRUE(Contents("test - kolommen.csv").startsWith("\xEF\xBB\xBF"));
  EXPECT_EQ(kolommen.count("\r\n"), 9);
  EXPECT_TRUE(kolommen.contains(
      "\r\nHuidige situatie;Huidige lening;1;Kinderopvang;485,50;euro;bedragen;per maand;01-09-2024;"));
  EXPECT_TRUE(QString::fromUtf8(Contents("test - perioden.csv"))
                  .contains("\r\nNieuwe situatie;Nieuwe lening "
                            "1;1;Kinderopvang;8;01-09-2031;31-08-2032;165,00;euro;per maand;Nee\r\n"));
}

TEST_F(PaperTest, ThePreviewIsLookedThroughAndClosedByKeyboard) {
  Open();
  dialogs_.Expect([](QWidget& preview) {
    EXPECT_EQ(preview.objectName(), "afdrukvoorbeeld");
    const auto shows = [&](const QString& text) {
      for (const QLabel* label : preview.findChildren<QLabel*>())
        if (label->text() == text) return true;
      return false;
    };
    EXPECT_TRUE(shows("Pagina 1 van 2"));
    PressKey(Qt::Key_PageDown);
    EXPECT_TRUE(shows("Pagina 2 van 2"));
    PressKey(Qt::Key_Home);
    EXPECT_TRUE(shows("Pagina 1 van 2"));
    EXPECT_EQ(Focus(), "Afdrukken");
    PressKey(Qt::Key_Escape);
    EXPECT_FALSE(preview.isVisible());
  });
  PressKey(Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(PaperTest, WithoutAFileThereIsNothingToPrint) {
  const app::Actions& actions = window_->Actions();
  for (const QAction* action : {actions.print, actions.pdf, actions.exportKolommen, actions.exportPerioden})
    EXPECT_FALSE(action->isEnabled()) << qPrintable(action->text());
}

}  // namespace
}  // namespace brivane::app
