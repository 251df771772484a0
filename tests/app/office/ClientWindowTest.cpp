#include <QLineEdit>
#include <QRegularExpression>
#include <QSettings>
#include <chrono>
#include <thread>

#include "app/office/RecentOffices.h"
#include "tests/app/office/ClientWindow.h"
#include "tests/support/postgres/SocketProxy.h"

// A client of an office in the real window: anna works at it, and bert in a second window.
namespace brivane::app {
namespace {

class ClientWindowTest : public ClientWindow {};

TEST_F(ClientWindowTest, AClientOpensLikeAFile) {
  OpenAs(*window_, "anna");
  EXPECT_EQ(Bar(*window_), "");
  Describe("Avondkrant");
  EXPECT_EQ(Stored(), "Avondkrant");
  EXPECT_TRUE(window_->Actions().undo->isEnabled());
  PressKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Stored(), "Weekendabonnement");
  // The office is remembered as it was written.
  EXPECT_EQ(RecentOffices::All().value(0), office_.Words("anna"));
}

TEST_F(ClientWindowTest, ASecondAdviserReadsAlongWithFocusAndPlaceKept) {
  OpenAs(*window_, "anna");
  MainWindow second(eventLog_);
  second.show();
  OpenAs(second, "bert");
  EXPECT_TRUE(Bar(second).startsWith("Alleen lezen: Anna Aalders werkt hierin sinds ")) << qPrintable(Bar(second));
  EXPECT_TRUE(second.windowTitle().contains("(alleen lezen)"));
  EXPECT_FALSE(second.Actions().add->isEnabled());
  const QWidget* focus = second.focusWidget();
  ASSERT_TRUE(focus);

  window_->Screen()->Dossier().FindKolom(0, 2)->SetOmschrijving("Avondkrant");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(second) == "Avondkrant"; }, test::kPatience))
      << Omschrijving(second);
  EXPECT_EQ(second.Screen()->Shown(), kKrant);
  EXPECT_EQ(second.focusWidget(), focus);
}

TEST_F(ClientWindowTest, WhatAReaderTypesStandsAfterReadingAlong) {
  OpenAs(*window_, "anna");
  MainWindow second(eventLog_);
  second.show();
  OpenAs(second, "bert");
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Mijn idee");
  window_->Screen()->Dossier().FindKolom(0, 2)->SetProductnaam("Avondkrant");
  const auto* line = qobject_cast<QLineEdit*>(second.focusWidget());
  ASSERT_TRUE(line);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return second.Screen()->Dossier().FindKolom(0, 2)->Gegevens().Productnaam == "Avondkrant"; },
      test::kPatience));
  EXPECT_EQ(line->text(), "Mijn idee");
  PressKey(Qt::Key_Escape);
}

TEST_F(ClientWindowTest, AskingHandsTheClientOver) {
  OpenAs(*window_, "anna");
  MainWindow second(eventLog_);
  second.show();
  OpenAs(second, "bert");
  Click(second, "Vragen");
  EXPECT_TRUE(Bar(second).endsWith("U hebt erom gevraagd."));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Bar(*window_) == "Bert Bakker vraagt om deze cliënt."; }, test::kPatience))
      << qPrintable(Bar(*window_));
  Click(*window_, "Overdragen");
  // Who asked has it without another key.
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(second).isEmpty(); }, test::kPatience)) << qPrintable(Bar(second));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).contains("Bert Bakker werkt hierin"); }, test::kPatience))
      << qPrintable(Bar(*window_));
  EXPECT_TRUE(second.Actions().add->isEnabled());
  EXPECT_FALSE(window_->Actions().add->isEnabled());
  second.Screen()->Dossier().FindKolom(0, 2)->SetOmschrijving("Van Bert");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(*window_) == "Van Bert"; }, test::kPatience));
}

TEST_F(ClientWindowTest, TheBarIsReachedAndUsedByKeysAlone) {
  const auto anna = office_.Open(client_);
  QString asked;
  const auto asks = anna->Asked.Connect([&](const QString& who) { asked = who; });
  OpenAs(*window_, "bert");
  TabTo("Vragen");
  PressKey(Qt::Key_Space);
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked == "Bert Bakker"; }, test::kPatience));
  EXPECT_TRUE(Bar(*window_).endsWith("U hebt erom gevraagd."));
  // The button is gone with what it did; the focus is somewhere that a key can leave.
  ASSERT_TRUE(window_->focusWidget() && window_->focusWidget()->isVisible());
  anna->LetGo();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).isEmpty(); }, test::kPatience));
  anna->Ask();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).contains("vraagt om"); }, test::kPatience));
  TabTo("Overdragen");
  PressKey(Qt::Key_Space);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).startsWith("Alleen lezen"); }, test::kPatience));
}

TEST_F(ClientWindowTest, OnceTheHolderIsGoneItCanBeTakenOver) {
  OpenAs(*window_, "anna");
  MainWindow second(eventLog_);
  second.show();
  OpenAs(second, "bert");
  ASSERT_TRUE(window_->CloseDossier());
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return Bar(second) == "Alleen lezen: niemand werkt hier nu in."; }, test::kPatience))
      << qPrintable(Bar(second));
  Click(second, "Overnemen");
  EXPECT_EQ(Bar(second), "");
  second.Screen()->Dossier().FindKolom(0, 2)->SetOmschrijving("Van Bert");
  EXPECT_EQ(Stored(), "Van Bert");
}

TEST_F(ClientWindowTest, AReaderByRightsIsOfferedNothing) {
  OpenAs(*window_, "rob");
  EXPECT_EQ(Bar(*window_), "Alleen lezen: u mag in dit kantoor niets wijzigen.");
  for (const QAction* action :
       {window_->Actions().office.ask, window_->Actions().office.takeOver, window_->Actions().office.handOver})
    EXPECT_FALSE(action->isEnabled());
}

TEST_F(ClientWindowTest, AHolderWhoseClientWasTakenStoresNothingAndKeepsWhatHeTyped) {
  test::SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  MainWindow second(eventLog_);
  second.show();
  OpenAs(second, "bert");
  proxy.Cut();
  // The server has noticed, and bert is quicker.
  ASSERT_TRUE(QTest::qWaitFor([&] { return second.Actions().office.takeOver->isEnabled(); }, test::kPatience));
  Click(second, "Overnemen");
  ASSERT_EQ(Bar(second), "");
  window_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get(), test::kPatience));
  proxy.Mend();
  ExpectFailed();
  Describe("Ochtendkrant");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).contains("Bert Bakker werkt hierin"); }, test::kPatience))
      << qPrintable(Bar(*window_));
  EXPECT_EQ(Stored(), "Weekendabonnement");
  EXPECT_TRUE(Text(*window_, "nietOpgeslagen").endsWith(": Ochtendkrant"))
      << qPrintable(Text(*window_, "nietOpgeslagen"));
  EXPECT_TRUE(Text(*window_, "bericht").contains("Bert Bakker")) << qPrintable(Text(*window_, "bericht"));
  // It is there at the next start too.
  ASSERT_EQ(UnfinishedText::All().size(), 1U);
  EXPECT_EQ(UnfinishedText::All().front().what.text, "Ochtendkrant");
}

TEST_F(ClientWindowTest, TheConnectionComesBackByItselfAndWhatWasTypedIsPutBack) {
  test::SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  proxy.Cut();
  ExpectFailed();
  Describe("Avondkrant");
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return Bar(*window_).startsWith("Geen verbinding met het kantoor."); }, test::kPatience));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).contains("(poging "); }, test::kPatience))
      << qPrintable(Bar(*window_));
  EXPECT_TRUE(Text(*window_, "nietOpgeslagen").endsWith(": Avondkrant"));
  proxy.Mend();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Bar(*window_).isEmpty(); }, test::kPatience)) << qPrintable(Bar(*window_));
  EXPECT_EQ(Text(*window_, "bericht").section('.', 0, 0), "De verbinding met het kantoor is er weer");
  EXPECT_EQ(Stored(), "Weekendabonnement");
  Click(*window_, "Terugzetten");
  EXPECT_EQ(Text(*window_, "nietOpgeslagen"), "");
  PressKey(Qt::Key_Tab);
  EXPECT_EQ(Stored(), "Avondkrant");
  EXPECT_TRUE(UnfinishedText::All().empty());
}

TEST_F(ClientWindowTest, AnEditWhoseAnswerWasLostIsToldAsStored) {
  test::SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  ExpectFailed();
  Describe("Avondkrant", [&] { proxy.NextMeets(test::SocketProxy::Fate::DeadAfter); });
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return Bar(*window_).contains("blijkt ook of de laatste wijziging"); }, test::kPatience))
      << qPrintable(Bar(*window_));
  proxy.Mend();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Text(*window_, "bericht").endsWith("De laatste wijziging is opgeslagen."); },
                              test::kPatience))
      << qPrintable(Text(*window_, "bericht"));
  EXPECT_EQ(Text(*window_, "nietOpgeslagen"), "");
  EXPECT_EQ(Omschrijving(*window_), "Avondkrant");
  EXPECT_EQ(Stored(), "Avondkrant");
}

/// What is painted, and which keys arrive, from the first to the last sight of the notice that the program waits.
class Sight final : public QObject {
 public:
  Sight() { qApp->installEventFilter(this); }
  QStringList texts;
  int keys_meanwhile = 0;
  int keys_after = 0;

  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool notice = watched->objectName() == "wacht";
    if (notice && event->type() == QEvent::Paint) {
      seen_ = true;
      texts << static_cast<QWidget*>(watched)->findChild<QLabel*>()->text();
    }
    if (notice && event->type() == QEvent::Hide) over_ = true;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->text() == "x")
      ++(seen_ && !over_ ? keys_meanwhile : keys_after);
    return false;
  }

 private:
  bool seen_ = false;
  bool over_ = false;
};

TEST_F(ClientWindowTest, AnEditThatWaitsIsSeenToWaitAndNothingIsTypedMeanwhile) {
  test::SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  PressKey(Qt::Key_O, Qt::AltModifier);
  Type("Avondkrant");
  auto* box = QApplication::focusWidget();
  using dossier::WaitingTimes;
  WaitingTimes::Set(dossier::Patient({&WaitingTimes::edit, &WaitingTimes::back, &WaitingTimes::silence}));
  proxy.Hang();
  Sight sight;
  std::thread typist([box] {
    std::this_thread::sleep_for(std::chrono::seconds(2));
    QCoreApplication::postEvent(box, new QKeyEvent(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x"));
    QCoreApplication::postEvent(box, new QKeyEvent(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, "x"));
  });
  QElapsedTimer time;
  time.start();
  dialogs_.ExpectMessage(kFailed, [&](QWidget& message) {
    EXPECT_GE(time.elapsed(), 7900);
    EXPECT_LT(time.elapsed(), test::kPatience);
    QTest::keyClick(message.windowHandle(), Qt::Key_Return);
  });
  PressKey(Qt::Key_Tab);
  typist.join();
  // Each second, but for those that a slow machine misses.
  ASSERT_GE(sight.texts.size(), 2);
  for (const QString& text : sight.texts)
    EXPECT_TRUE(QRegularExpression("^Wacht op het kantoor… \\([1-7] s\\)$").match(text).hasMatch()) << qPrintable(text);
  EXPECT_LT(sight.texts.front(), sight.texts.last());
  EXPECT_EQ(sight.keys_meanwhile, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return sight.keys_after > 0; }, test::kPatience));
  EXPECT_EQ(window_->findChild<QWidget*>("wacht"), nullptr);
  EXPECT_TRUE(Text(*window_, "nietOpgeslagen").endsWith(": Avondkrant"));
  proxy.Mend();
  // It was on its way, and the bar tells what became of it.
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return Text(*window_, "bericht").contains("De laatste wijziging is ") && Bar(*window_).isEmpty(); },
      test::kPatience))
      << qPrintable(Bar(*window_) + " / " + Text(*window_, "bericht"));
  const bool stored = !Text(*window_, "bericht").contains("niet opgeslagen");
  EXPECT_EQ(Stored(), stored ? "Avondkrant" : "Weekendabonnement");
}

TEST_F(ClientWindowTest, OnASilentLineTheWindowIsClosedSoon) {
  test::SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  using dossier::WaitingTimes;
  WaitingTimes::Set(dossier::Patient({&WaitingTimes::moment, &WaitingTimes::leaving}));
  proxy.Hang();
  QElapsedTimer time;
  time.start();
  window_.reset();
  EXPECT_LT(time.elapsed(), test::kPatience);
}

TEST_F(ClientWindowTest, AFileGoesToTheOfficeAndBack) {
  Open();
  Screen().Dossier().FindKolom(0, 2)->SetOmschrijving("Avondkrant");
  // The window is in the office already.
  OpenAs(*window_, "anna");
  Open();
  window_->Actions().office.toOffice->trigger();
  ASSERT_TRUE(window_->Screen() && window_->Screen()->Path().isEmpty());
  EXPECT_EQ(Screen().Dossier().FindKolom(0, 2)->Gegevens().Omschrijving, "Avondkrant");
  const QString copy = folder_.filePath("terug.dossier");
  ExpectFileQuestion(copy);
  window_->Actions().office.toFile->trigger();
  ASSERT_TRUE(window_->CloseDossier());
  EXPECT_EQ(ReadInSecondProcess(copy), ReadInSecondProcess(file_));
}

}  // namespace
}  // namespace brivane::app
