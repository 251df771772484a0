#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTreeWidget>

#include "app/office/ClientListDialog.h"
#include "app/office/RecentOffices.h"
#include "dossier/office/Aside.h"
#include "tests/app/screen/WindowTest.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"

// The list of an office's clients, with the keys of a person.
namespace brivane::app {
namespace {

dossier::DossierGegevens Named(const char* surname, const char* company = "") {
  dossier::DossierGegevens gegevens = dossier::VoorbeeldDossier();
  gegevens.Personen = {{{"A.", "de", surname}, gegevens.Personen.front().Geboortedatum}};
  if (*company != '\0') gegevens.HuidigeLening.VrijeKolommen[1].MaatschappijNaam = company;
  return gegevens;
}

class ClientListTest : public testing::Test {
 protected:
  void SetUp() override {
    boer_ = office_.Add(Named("Boer"));
    bakker_ = office_.Add(Named("Bakker", "Courant van Zeeland"));
    entrance_ = {office_.Words("bert"), {}, office_.Enter("bert")};
  }

  void TearDown() override {
    list_.reset();
    // Nobody waits for its session but this test.
    EXPECT_TRUE(dossier::Aside::AllEnd(std::chrono::milliseconds(test::kPatience)));
  }

  void Show() {
    list_ = std::make_unique<ClientListDialog>(entrance_, nullptr);
    list_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(list_.get(), test::kPatience));
    lines_ = list_->findChild<QTreeWidget*>("clienten");
    box_ = list_->findChild<QLineEdit*>("zoeken");
    told_ = list_->findChild<QLabel*>("gevonden");
  }
  /// In whatever has the focus.
  void Type(const char* text) {
    for (; *text != '\0'; ++text) QTest::keyClick(list_->windowHandle(), *text);
  }
  [[nodiscard]] bool Lists(const QStringList& names) {
    return QTest::qWaitFor([&] { return Names() == names; }, test::kPatience);
  }
  [[nodiscard]] QStringList Names() const {
    QStringList names;
    for (int row = 0; row < lines_->topLevelItemCount(); ++row) names << lines_->topLevelItem(row)->text(0);
    return names;
  }

  dossier::TrialOffice office_;
  int boer_ = 0;
  int bakker_ = 0;
  Entrance entrance_;
  std::unique_ptr<ClientListDialog> list_;
  QTreeWidget* lines_ = nullptr;
  QLineEdit* box_ = nullptr;
  QLabel* told_ = nullptr;
};

TEST_F(ClientListTest, FindsWhileTypingAndOpensWithEnter) {
  Show();
  ASSERT_TRUE(Lists({"A. de Bakker", "A. de Boer"})) << qPrintable(Names().join(", "));
  EXPECT_EQ(told_->text(), "2 cliënten");
  EXPECT_TRUE(box_->hasFocus());
  Type("boe");
  ASSERT_TRUE(Lists({"A. de Boer"})) << qPrintable(Names().join(", "));
  EXPECT_EQ(told_->text(), "1 cliënt");
  EXPECT_EQ(box_->accessibleDescription(), "1 cliënt");
  box_->selectAll();
  // A company, from the middle of a text.
  Type("zeeland");
  ASSERT_TRUE(Lists({"A. de Bakker"})) << qPrintable(Names().join(", "));
  box_->selectAll();
  // Enter before the office has answered: it opens once it is found.
  Type("boer");
  QTest::keyClick(list_->windowHandle(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return list_->Chosen() == boer_; }, test::kPatience));
  EXPECT_EQ(list_->result(), QDialog::Accepted);
}

TEST_F(ClientListTest, GoesThroughTheListByKeyAndBackToTheBox) {
  Show();
  ASSERT_TRUE(Lists({"A. de Bakker", "A. de Boer"}));
  QTest::keyClick(list_->windowHandle(), Qt::Key_Down);
  EXPECT_TRUE(lines_->hasFocus());
  EXPECT_EQ(lines_->currentItem()->text(0), "A. de Boer");
  QTest::keyClick(list_->windowHandle(), Qt::Key_Up);
  QTest::keyClick(list_->windowHandle(), Qt::Key_Up);
  EXPECT_TRUE(box_->hasFocus());
  QTest::keyClick(list_->windowHandle(), Qt::Key_Down);
  // What is typed in the list looks up.
  Type("niemand");
  EXPECT_EQ(box_->text(), "niemand");
  ASSERT_TRUE(Lists({}));
  EXPECT_EQ(told_->text(), "Geen cliënt gevonden.");
  QTest::keyClick(list_->windowHandle(), Qt::Key_Return);
  EXPECT_EQ(list_->Chosen(), 0);
  EXPECT_TRUE(list_->isVisible());
}

TEST_F(ClientListTest, TellsWhoWorksInWhichAndPutsOnesOwnFirst) {
  auto anna = office_.Open(boer_, "anna");
  {
    auto bert = office_.Open(bakker_, "bert");
    bert->Dossier()->SetClient(bert->Dossier()->Personen(), 70);
  }
  anna->Dossier()->SetClient(anna->Dossier()->Personen(), 70);
  Show();
  ASSERT_TRUE(Lists({"A. de Bakker", "A. de Boer"}));  // what anna changed is newer, and not bert's own
  EXPECT_TRUE(lines_->topLevelItem(0)->text(4).endsWith("door uzelf"));
  EXPECT_EQ(lines_->topLevelItem(0)->text(3), "");
  EXPECT_TRUE(lines_->topLevelItem(1)->text(3).startsWith("Anna Aalders, sinds "));
  EXPECT_TRUE(lines_->topLevelItem(1)->data(0, Qt::AccessibleTextRole).toString().contains("in bewerking bij Anna"));
  // It is looked at again by itself.
  anna.reset();
  EXPECT_TRUE(QTest::qWaitFor([&] { return lines_->topLevelItem(1)->text(3).isEmpty(); }, test::kPatience));
}

TEST_F(ClientListTest, AServerThatIsGoneIsToldAndTypingGoesOn) {
  test::PostgresServer server;
  dossier::TrialOffice office(server);
  entrance_ = {office.Words("bert"), {}, office.Enter("bert")};
  static_cast<void>(office.Add(Named("Boer")));
  Show();
  ASSERT_TRUE(Lists({"A. de Boer"}));
  server.Stop("immediate");
  Type("bo");
  EXPECT_EQ(box_->text(), "bo");
  EXPECT_TRUE(QTest::qWaitFor([&] { return told_->text().startsWith("Er is geen verbinding met het kantoor"); },
                              test::kPatience));
  server.Start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return told_->text() == "1 cliënt"; }, test::kPatience))
      << qPrintable(told_->text());
}

}  // namespace
}  // namespace brivane::app
