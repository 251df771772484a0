#include <QLabel>
#include <QListWidget>
#include <QSettings>

#include "tests/app/screen/WindowTest.h"
#include "tests/dossier/office/TrialOffice.h"

// Which team a file is brought into.
namespace brivane::app {
namespace {

class TeamTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    dialogs_.LetPass("verbinden");
    office_.Psql("postgres", "INSERT INTO kantoor.team (naam) VALUES ('Oost'), ('achter de dijk')");
  }
  void TearDown() override { QSettings().remove("kantoorteams"); }

  /// Has the window be in the office, with the file open again.
  void EnterAs(const char* account) {
    const int client = office_.Add();
    ASSERT_TRUE(window_->OpenClient({office_.Words(account), client}));
    Open();
  }
  /// Expects the question with these teams and that one chosen, then presses the keys.
  void ExpectQuestion(const QStringList& teams, const QString& chosen, const QList<Qt::Key>& keys) {
    dialogs_.Expect([=](QWidget& window) {
      auto* list = window.findChild<QListWidget*>("teams");
      ASSERT_TRUE(list && list->hasFocus());
      QStringList shown;
      for (int row = 0; row < list->count(); ++row) shown << list->item(row)->text();
      EXPECT_EQ(shown, teams) << qPrintable(shown.join(", "));
      EXPECT_EQ(list->currentItem()->text(), chosen);
      EXPECT_EQ(window.findChild<QLabel*>()->text(), "In welk &team komt \"test\"?");
      for (const Qt::Key key : keys) QTest::keyClick(window.windowHandle(), key);
    });
  }
  /// The team of the client that came last.
  [[nodiscard]] QString TeamOfNewest() {
    return office_.Psql(
        "postgres",
        "SELECT t.naam FROM kantoor.client c JOIN kantoor.team t ON t.nummer = c.team ORDER BY c.nummer "
        "DESC LIMIT 1");
  }
  void Bring() { window_->Actions().office.toOffice->trigger(); }
  [[nodiscard]] bool InOffice() { return window_->Screen() != nullptr && Screen().Path().isEmpty(); }

  dossier::TrialOffice office_;
};

TEST_F(TeamTest, OfOneTeamNothingIsAsked) {
  EnterAs("anna");
  Bring();
  ASSERT_TRUE(InOffice());
  EXPECT_EQ(TeamOfNewest(), "Noord");
}

TEST_F(TeamTest, WhoIsInMoreChoosesAndTheLastChoiceIsOffered) {
  office_.Psql("postgres", "INSERT INTO kantoor.lid VALUES ('anna', 2), ('anna', 4)");
  EnterAs("anna");
  const QStringList teams{"achter de dijk", "Noord", "Zuid"};
  ExpectQuestion(teams, "achter de dijk", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  Bring();
  ASSERT_TRUE(InOffice());
  EXPECT_EQ(TeamOfNewest(), "Zuid");
  Open();
  ExpectQuestion(teams, "Zuid", {Qt::Key_Return});
  Bring();
  EXPECT_EQ(TeamOfNewest(), "Zuid");
  // Put away, the file stays open and nothing was added.
  Open();
  const QString before = office_.Psql("postgres", "SELECT count(*) FROM kantoor.client");
  ExpectQuestion(teams, "Zuid", {Qt::Key_Escape});
  Bring();
  EXPECT_FALSE(InOffice());
  EXPECT_EQ(office_.Psql("postgres", "SELECT count(*) FROM kantoor.client"), before);
  // Out of that team, the first is offered; a letter leads to a name.
  office_.Psql("postgres", "DELETE FROM kantoor.lid WHERE gebruiker = 'anna' AND team = 2");
  ExpectQuestion({"achter de dijk", "Noord"}, "achter de dijk", {Qt::Key_N, Qt::Key_Return});
  Bring();
  EXPECT_EQ(TeamOfNewest(), "Noord");
}

TEST_F(TeamTest, WhoManagesAndEditsBringsIntoEveryTeamWithoutStayingInIt) {
  office_.Psql("postgres", "CREATE ROLE nel LOGIN; GRANT kantoor_adviseur, kantoor_beheerder TO nel");
  const QString members = office_.Psql("postgres", "SELECT * FROM kantoor.lid ORDER BY 1, 2");
  EnterAs("nel");
  ExpectQuestion(
      {"achter de dijk (niet uw team)", "Noord (niet uw team)", "Oost (niet uw team)", "Zuid (niet uw team)"},
      "achter de dijk (niet uw team)", {Qt::Key_End, Qt::Key_Return});
  Bring();
  ASSERT_TRUE(InOffice());
  EXPECT_EQ(TeamOfNewest(), "Zuid");
  EXPECT_EQ(office_.Psql("postgres", "SELECT * FROM kantoor.lid ORDER BY 1, 2"), members);
  // His own come first, and he stays in them.
  office_.Psql("postgres", "INSERT INTO kantoor.lid VALUES ('nel', 3)");
  Open();
  ExpectQuestion({"Oost", "achter de dijk (niet uw team)", "Noord (niet uw team)", "Zuid (niet uw team)"},
                 "Zuid (niet uw team)", {Qt::Key_Home, Qt::Key_Return});
  Bring();
  EXPECT_EQ(TeamOfNewest(), "Oost");
  EXPECT_EQ(office_.Psql("postgres", "SELECT team FROM kantoor.lid WHERE gebruiker = 'nel'"), "3");
  office_.Psql("postgres", "DROP ROLE nel");
}

TEST_F(TeamTest, WhoMayNotAddAClientIsToldSo) {
  for (const char* account : {"rob", "mia"}) {
    SCOPED_TRACE(account);
    NewWindow();
    EnterAs(account);
    dialogs_.ExpectMessage("U mag in dit kantoor geen cliënten toevoegen.", Pressing(Qt::Key_Return));
    Bring();
    EXPECT_FALSE(InOffice());
  }
  office_.Psql("postgres", "DELETE FROM kantoor.lid WHERE gebruiker = 'bert'");
  NewWindow();
  Open();
  dialogs_.Expect([](QWidget& window) { QTest::keyClick(window.windowHandle(), Qt::Key_Escape); });
  window_->OpenOffice(office_.Words("bert"));
  dialogs_.ExpectMessage("in geen team", Pressing(Qt::Key_Return));
  Bring();
  EXPECT_FALSE(InOffice());
}

}  // namespace
}  // namespace brivane::app
