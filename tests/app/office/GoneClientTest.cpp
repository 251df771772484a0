#include <QAction>
#include <QStatusBar>

#include "tests/app/office/ClientWindow.h"
#include "tests/support/postgres/SocketProxy.h"

// A client that is removed, or given to another team, while it is open in the real window.
namespace brivane::app {
namespace {

using test::SocketProxy;

constexpr char kGone[] = "Deze cliënt is niet meer in het kantoor, of niet meer voor uw team.";

class GoneClientTest : public ClientWindow {
 protected:
  /// Tries until it is not refused: the server has to notice first that a line was cut.
  void Remove() {
    bool failed = true;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          office_.Psql("postgres", QString("SELECT kantoor.verwijder(%1)").arg(client_), &failed);
          return !failed;
        },
        test::kPatience));
  }
  void GiveToTeam(int team) {
    bool failed = false;
    office_.Psql("mia", QString("SELECT kantoor.geef_aan_team(%1, %2)").arg(client_).arg(team), &failed);
    EXPECT_FALSE(failed);
  }
  [[nodiscard]] bool IsTold() {
    return QTest::qWaitFor([&] { return Bar(*window_).startsWith(kGone); }, test::kPatience);
  }
  [[nodiscard]] int TimesInLog() { return eventLog_.Read().count(kGone); }
  void ExpectNothingIsOffered() {
    const OfficeActions& office = window_->Actions().office;
    for (const QAction* action :
         {office.ask, office.takeOver, office.handOver, office.reconnect, window_->Actions().add})
      EXPECT_FALSE(action->isEnabled()) << qPrintable(action->text());
    EXPECT_TRUE(window_->windowTitle().contains("(alleen lezen)")) << qPrintable(window_->windowTitle());
  }
  /// Nobody may have it: what is typed is refused.
  void ExpectRefusedAsGone(const char* text) {
    ExpectFailed({"deze cliënt is er niet (meer), of niet voor uw team"});
    Describe(text);
    // The box shows what there was once the message is gone.
    EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(*window_) != text; }, test::kPatience));
  }
};

TEST_F(GoneClientTest, AReaderIsToldOnceAndGoesOnReadingWhatThereWas) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "bert", proxy.Folder());
  window_->Actions().office.handOver->trigger();
  const QWidget* focus = window_->focusWidget();
  Remove();
  ASSERT_TRUE(IsTold()) << qPrintable(Bar(*window_));
  EXPECT_TRUE(Bar(*window_).endsWith("Wat u ziet, is wat er het laatst stond; wijzigen kan niet meer."));
  ExpectNothingIsOffered();
  EXPECT_EQ(Omschrijving(*window_), "Weekendabonnement");
  EXPECT_EQ(window_->Screen()->Shown(), kKrant);
  EXPECT_EQ(window_->focusWidget(), focus);
  // What leaving it asks for comes to an end.
  for (int before = -1; before != proxy.RoundTrips(); QTest::qWait(1000)) before = proxy.RoundTrips();
  const int asked = proxy.RoundTrips();
  // Longer than a reader waits before it looks again.
  QTest::qWait(2500);
  EXPECT_EQ(proxy.RoundTrips(), asked);
  EXPECT_EQ(TimesInLog(), 1);
  ExpectRefusedAsGone("Avondkrant");
  EXPECT_EQ(Kolom(0, 2).Omschrijving, "Weekendabonnement");
  EXPECT_TRUE(Text(*window_, "nietOpgeslagen").endsWith(": Avondkrant"));
  EXPECT_TRUE(window_->CloseDossier());
}

TEST_F(GoneClientTest, WhoTakesItUpJustThenIsToldByTheBarAlone) {
  OpenAs(*window_, "bert");
  window_->Actions().office.handOver->trigger();
  Remove();
  Click(*window_, "Overnemen");
  EXPECT_TRUE(Bar(*window_).startsWith(kGone)) << qPrintable(Bar(*window_));
  ExpectNothingIsOffered();
  EXPECT_EQ(TimesInLog(), 1);
}

TEST_F(GoneClientTest, WhoComesBackToARemovedClientKeepsWhatHeTyped) {
  SocketProxy proxy(office_.Server().Folder());
  OpenAs(*window_, "anna", proxy.Folder());
  ExpectFailed();
  Describe("Avondkrant", [&] { proxy.NextMeets(SocketProxy::Fate::DeadAfter); });
  Remove();
  proxy.Mend();
  window_->Actions().office.reconnect->trigger();
  ASSERT_TRUE(IsTold()) << qPrintable(Bar(*window_));
  EXPECT_TRUE(Bar(*window_).endsWith("Of de laatste wijziging was opgeslagen, is niet bekend."))
      << qPrintable(Bar(*window_));
  EXPECT_EQ(Text(*window_, "bericht"), "");
  ExpectNothingIsOffered();
  const QString kept = Text(*window_, "nietOpgeslagen");
  EXPECT_TRUE(kept.startsWith("Niet bekend of dit is opgeslagen") && kept.endsWith(": Avondkrant")) << qPrintable(kept);
  for (const QPushButton* button : window_->findChildren<QPushButton*>())
    EXPECT_FALSE(button->text() == "Terugzetten" && button->isEnabled());
  EXPECT_EQ(UnfinishedText::All().size(), 1U);
  // Nothing is asked: nothing comes of waiting.
  EXPECT_TRUE(window_->CloseDossier());
}

TEST_F(GoneClientTest, AClientOfAnotherTeamIsKeptAsAFileAndOpensAgainOnceItIsBack) {
  office_.Open(client_)->Dossier()->FindKolom(0, 2)->SetOmschrijving("Avondkrant");
  office_.Open(client_)->Dossier()->FindKolom(0, 2)->SetOmschrijving("Ochtendkrant");
  OpenAs(*window_, "anna");
  GiveToTeam(dossier::TrialOffice::kZuid);
  ExpectRefusedAsGone("Weekblad");
  ASSERT_TRUE(IsTold()) << qPrintable(Bar(*window_));
  EXPECT_TRUE(Text(*window_, "nietOpgeslagen").endsWith(": Weekblad"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Omschrijving(*window_) == "Ochtendkrant"; }, test::kPatience))
      << Omschrijving(*window_);
  const QString copy = folder_.filePath("bewaard.dossier");
  ExpectFileQuestion(copy);
  window_->Actions().office.toFile->trigger();
  EXPECT_TRUE(window_->statusBar()->currentMessage().contains("zonder geschiedenis"))
      << qPrintable(window_->statusBar()->currentMessage());
  EXPECT_EQ(ReadInSecondProcess(copy)["0/2/omschrijving"].toString(), "Ochtendkrant");
  GiveToTeam(dossier::TrialOffice::kNoord);
  OpenAs(*window_, "anna");
  EXPECT_EQ(Bar(*window_), "");
  Describe("Maandblad");
  EXPECT_EQ(Stored(), "Maandblad");
}

}  // namespace
}  // namespace brivane::app
