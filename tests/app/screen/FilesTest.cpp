#include <QFile>
#include <QLineEdit>
#include <QStackedWidget>

#include "app/screen/StartPage.h"
#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Calendar.h>

// Opening and making loan files.
namespace brivane::app {
namespace {

class FilesTest : public WindowTest {
 protected:
  [[nodiscard]] QString WriteFile(const char* name, const QByteArray& contents) {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    return file.fileName();
  }
  [[nodiscard]] bool OnStartPage() {
    return dynamic_cast<StartPage*>(window_->findChild<QStackedWidget*>()->currentWidget()) != nullptr;
  }
};

TEST_F(FilesTest, AnotherKindOfFileIsRefusedInOneMessage) {
  const QString letter = WriteFile("brief.dossier", "Geachte heer,\n");
  dialogs_.ExpectMessage("Het bestand \"brief.dossier\" is geen dossier.", Pressing(Qt::Key_Return));
  EXPECT_FALSE(window_->Open(letter));
  EXPECT_TRUE(OnStartPage());
  QFile file(letter);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "Geachte heer,\n");
}

TEST_F(FilesTest, ARefusedFileLeavesTheOpenCase) {
  Open();
  dialogs_.ExpectMessage("bestaat niet (meer)", Pressing(Qt::Key_Return));
  EXPECT_FALSE(window_->Open(folder_.filePath("weg.dossier")));
  ASSERT_NE(window_->Screen(), nullptr);
  EXPECT_EQ(Screen().Path(), file_);
}

TEST_F(FilesTest, TheSameFileStaysOpen) {
  Open();
  EXPECT_TRUE(window_->Open(file_));
}

TEST_F(FilesTest, ACaseIsOpenInOneWindowAtATime) {
  Open();
  MainWindow second(eventLog_);
  second.show();
  dialogs_.ExpectMessage("is al geopend in een ander venster of programma", Pressing(Qt::Key_Return));
  EXPECT_FALSE(second.Open(file_));
}

TEST_F(FilesTest, ANewCaseAsksForTheApplicantAndThePlace) {
  const QString created = folder_.filePath("nieuw.dossier");
  dialogs_.Expect([](QWidget&) {
    Type("J.");
    TabTo("Aanvrager, Achternaam");
    Type("Bakker");
    TabTo("Aanvrager, Geboortedatum");
    Type("1-4-1985");
    PressKey(Qt::Key_Return);
    PressKey(Qt::Key_Return);
  });
  dialogs_.Expect([&](QWidget& question) {
    const auto* name = question.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_TRUE(name && name->text() == "Bakker.dossier");
    Type(created.toLocal8Bit().constData());
    PressKey(Qt::Key_Return);
  });
  PressKey(Qt::Key_N, Qt::ControlModifier);
  ASSERT_NE(window_->Screen(), nullptr);
  EXPECT_EQ(Screen().Path(), created);
  const std::vector<dossier::PersoonGegevens> personen = Screen().Dossier().Personen();
  ASSERT_EQ(personen.size(), 1U);
  EXPECT_EQ(personen[0].Naam[0], "J.");
  EXPECT_EQ(personen[0].Naam[2], "Bakker");
  EXPECT_EQ(personen[0].Geboortedatum, frame::MakeDate({.year = 1985, .month = 4, .day = 1}));
}

TEST_F(FilesTest, WhoChoosesNoPlaceForANewCaseFindsWhatWasTypedAsItWas) {
  dialogs_.Expect([](QWidget&) {
    TabTo("Aanvrager, Achternaam");
    Type("Bakker");
    TabTo("Aanvrager, Geboortedatum");
    Type("1-4-1985");
    PressKey(Qt::Key_Return);
    PressKey(Qt::Key_Return);
  });
  dialogs_.Expect(Pressing(Qt::Key_Escape));
  dialogs_.Expect([](QWidget& question) {
    TabTo("Aanvrager, Achternaam");
    const auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    EXPECT_TRUE(box && box->text() == "Bakker");
    QTest::keyClick(question.windowHandle(), Qt::Key_Escape);
  });
  PressKey(Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(OnStartPage());
}

TEST_F(FilesTest, ANewCaseReplacesNoFile) {
  dialogs_.ExpectMessage("staat al een bestand \"test.dossier\"", Pressing(Qt::Key_Return));
  EXPECT_FALSE(window_->Make(file_, dossier::LeegDossier()));
  EXPECT_EQ(ReadInSecondProcess(file_)["0/1/bedrag"].toDouble(), 485.5);
}

TEST_F(FilesTest, EscapeMakesNoNewCase) {
  dialogs_.Expect(Pressing(Qt::Key_Escape));
  PressKey(Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(OnStartPage());
}

}  // namespace
}  // namespace brivane::app
