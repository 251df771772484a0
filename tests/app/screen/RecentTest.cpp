#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QSettings>

#include "app/desk/RecentFiles.h"
#include "tests/app/screen/WindowTest.h"

// The files that were open lately.
namespace brivane::app {
namespace {

TEST(RecentFilesTest, TheLastOneIsFirstOnceAndTheEleventhGoes) {
  EXPECT_EQ(WithFirst({}, "a"), (QStringList{"a"}));
  EXPECT_EQ(WithFirst({"a", "b", "c"}, "c"), (QStringList{"c", "a", "b"}));
  QStringList ten;
  for (int number = 1; number <= 10; ++number) ten << QString::number(number);
  EXPECT_EQ(WithFirst(ten, "0"), (QStringList{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
}

class RecentTest : public WindowTest {
 protected:
  void SetUp() override {
    RecentFiles::Clear();
    WindowTest::SetUp();
  }
  void TearDown() override { RecentFiles::Clear(); }
  [[nodiscard]] QListWidget& List() { return *window_->findChild<QListWidget*>("recent"); }
  [[nodiscard]] QStringList Menu() {
    emit window_->Actions().recent->aboutToShow();
    QStringList texts;
    for (const QAction* action : window_->Actions().recent->actions()) {
      if (!action->isSeparator()) texts << action->text();
    }
    return texts;
  }
  QString other_ = folder_.filePath("Bakker & Zn.dossier");
};

TEST_F(RecentTest, AreInTheMenuAndOnTheStartPage) {
  EXPECT_EQ(Menu(), (QStringList{"Nog geen dossier"}));
  EXPECT_FALSE(List().isVisible());
  dossier::DossierFile::Maak(other_, dossier::LeegDossier());
  Open();
  ASSERT_TRUE(window_->Open(other_));
  EXPECT_EQ(Menu(), (QStringList{"&1 Bakker && Zn", "&2 test", "Lijst &leegmaken"}));
  ASSERT_TRUE(window_->CloseDossier());
  ASSERT_TRUE(List().isVisible());
  EXPECT_EQ(List().item(1)->text(), "test\n" + QDir::toNativeSeparators(folder_.path()));

  // By keyboard alone: the second of the list.
  PressKey(Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(Focus(), "Recent geopende dossiers");
  PressKey(Qt::Key_Down);
  PressKey(Qt::Key_Return);
  ASSERT_NE(window_->Screen(), nullptr);
  EXPECT_EQ(Screen().Path(), file_);
}

TEST_F(RecentTest, OneThatIsGoneIsToldAndTakenOutOfTheList) {
  RecentFiles::Add(file_);
  RecentFiles::Add(other_);
  EXPECT_EQ(Menu(), (QStringList{"&1 Bakker && Zn (niet gevonden)", "&2 test", "Lijst &leegmaken"}));
  dialogs_.ExpectMessage("staat niet (meer) in de map", Pressing(Qt::Key_Return));
  window_->Actions().recent->actions().front()->trigger();
  EXPECT_EQ(RecentFiles::All().size(), 2);
  dialogs_.ExpectMessage("staat niet (meer) in de map", [](QWidget& window) {
    QTest::keyClick(window.windowHandle(), Qt::Key_U, Qt::AltModifier);
    QTest::qWait(200);  // a button that a letter presses stays down for a moment
  });
  window_->Actions().recent->actions().front()->trigger();
  EXPECT_EQ(RecentFiles::All(), (QStringList{file_}));
  EXPECT_EQ(window_->Screen(), nullptr);
}

TEST_F(RecentTest, DeleteTakesOneOutAndTheListCanBeEmptied) {
  RecentFiles::Add(other_);
  RecentFiles::Add(file_);
  NewWindow();
  PressKey(Qt::Key_G, Qt::AltModifier);
  PressKey(Qt::Key_Delete);
  EXPECT_EQ(RecentFiles::All(), (QStringList{other_}));
  EXPECT_TRUE(QFile::exists(file_));
  PressKey(Qt::Key_L, Qt::AltModifier);
  QTest::qWait(200);
  EXPECT_TRUE(RecentFiles::All().isEmpty());
  EXPECT_FALSE(List().isVisible());
}

TEST_F(RecentTest, NothingIsReadInThem) {
  // A folder cannot be read as a file.
  ASSERT_TRUE(QDir().mkpath(other_));
  RecentFiles::Add(other_);
  NewWindow();
  EXPECT_EQ(List().count(), 1);
  EXPECT_EQ(Menu().front(), "&1 Bakker && Zn");
}

}  // namespace
}  // namespace brivane::app
