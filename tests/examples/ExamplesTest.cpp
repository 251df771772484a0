#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTabBar>
#include <QTemporaryDir>
#include <sstream>

#include "examples/columns/ColumnsWindow.h"
#include "examples/host/SampleCase.h"
#include "examples/script/Player.h"
#include "examples/store/FileStore.h"
#include "examples/tabs/ColumnTabs.h"
#include "examples/wizard/ColumnWizard.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/controls/Surface.h>
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>

/// What a person finds in the examples.
namespace brivane::test {
namespace {

class Examples : public testing::Test {
 protected:
  static QWidget& Box(QWidget& inside, std::string_view name) {
    for (auto* const editor : inside.findChildren<qt::VrijeKolomWidget*>())
      if (editor->isVisible()) return *WidgetFor(*controls::Surface::Of(editor->Surface()).Find(name));
    throw std::logic_error("no editor is shown");
  }
  static void TypeIn(QWidget& inside, std::string_view box, const QString& text) {
    Click(Box(inside, box));
    TypeOver(text);
  }

  std::shared_ptr<memory_host::Application> application_ = memory_host::SampleCase();
  std::vector<std::shared_ptr<memory_host::VrijeKolomItem>>& columns_ = application_->dossier->huidig->kolommen;
};

TEST_F(Examples, AnotherColumnOfTheListIsTakenUpOnlyWhereTheEarlierOnePasses) {
  ColumnsWindow window(application_);
  ShowActive(window);
  auto& list = *window.findChild<QListWidget*>();
  auto& header = *window.findChild<QLabel*>();
  const auto choose = [&](int row) {
    Click(*list.viewport(), list.visualItemRect(list.item(row)).center());
    QApplication::processEvents();
  };
  EXPECT_EQ(header.text(), "Vereniging");

  TypeIn(window, "TxtBd", "veel");
  choose(1);
  EXPECT_EQ(list.currentRow(), 0);
  EXPECT_EQ(header.text(), "Vereniging");
  EXPECT_EQ(columns_[0]->bedrag->basisbedrag, 12.5);

  TypeIn(window, "TxtBd", "15");
  TypeIn(window, "TxtOm", "Sportclub");
  choose(1);
  EXPECT_EQ(list.currentRow(), 1);
  EXPECT_EQ(header.text(), "Krant");
  EXPECT_EQ(columns_[0]->bedrag->basisbedrag, 15);
  EXPECT_EQ(list.item(0)->text(), "Sportclub");

  TypeIn(window, "TxtOm", "Blad");
  choose(0);
  EXPECT_EQ(header.text(), "Sportclub");
  EXPECT_EQ(columns_[1]->omschrijving, "Blad");
  EXPECT_EQ(list.item(1)->text(), "Blad");
}

TEST_F(Examples, ATabIsLeftOnlyWhereItsColumnPasses) {
  ColumnTabs tabs(application_);
  ShowActive(tabs);
  EXPECT_EQ(tabs.tabText(0), "Vereniging");
  EXPECT_EQ(tabs.tabText(1), "Krant");
  const auto choose = [&](int tab) { Click(*tabs.tabBar(), tabs.tabBar()->tabRect(tab).center()); };

  TypeIn(tabs, "TxtBd", "veel");
  choose(1);
  EXPECT_EQ(tabs.currentIndex(), 0);
  Press(Qt::Key_Escape);
  TypeIn(tabs, "TxtOm", "Sportclub");
  choose(1);
  EXPECT_EQ(tabs.currentIndex(), 1);
  EXPECT_EQ(tabs.tabText(0), "Sportclub");
  TypeIn(tabs, "TxtOm", "Blad");
  Press(Qt::Key_Tab);
  EXPECT_EQ(columns_[1]->omschrijving, "Blad");
  EXPECT_EQ(columns_[0]->omschrijving, "Sportclub");
  choose(0);
  EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(Examples, TheWizardGoesOnWhereTheColumnPasses) {
  ColumnWizard wizard(application_);
  ShowActive(wizard);
  QAbstractButton& next = *wizard.button(QWizard::NextButton);
  const int first = wizard.currentId();

  TypeIn(wizard, "TxtBd", "veel");
  Click(next);
  EXPECT_EQ(wizard.currentId(), first);
  TypeIn(wizard, "TxtBd", "3*5");
  Click(next);
  EXPECT_NE(wizard.currentId(), first);
  EXPECT_EQ(wizard.currentPage()->findChild<QLabel*>()->text(), "Vereniging: € 15,00 per maand");
}

TEST_F(Examples, AStoreThatCannotBeWrittenIsReported) {
  std::vector<std::string> reported;
  application_->onError = [&](const memory_host::Trace& trace) { reported.push_back(trace.number); };
  file_store::Store store("/geen/map/kolom.txt", columns_[0]);
  memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, store.Factories());
  EXPECT_EQ(editor.SetApplication(application_, 0, 1), controls::BindingResult::Bound);
  editor.Surface().Find("TxtOm")->Perform(controls::Enter{std::string("Club")});
  EXPECT_THAT(reported, testing::ElementsAre("75"));
}

TEST_F(Examples, TheStoreKeepsEveryField) {
  const QTemporaryDir folder;
  const std::string file = folder.filePath("kolom.txt").toStdString();
  auto& column = *columns_[0];
  file_store::Store store(file, columns_[0]);
  column.SetOmschrijving("\"één\"\\");
  column.SetVoorstel(2, "J");
  column.SetPercentageOvergang(0.1F);
  column.SetUwBemiddeling(true);
  column.bedrag->basisbedrag = 0.1;
  auto entry = std::make_shared<memory_host::Periode>();
  entry->maand = 13;
  entry->bedrag = 1.0 / 3;
  entry->eenmalig = true;
  column.bedrag->periodes = {entry};
  store.Save();

  const auto again = std::make_shared<memory_host::VrijeKolomItem>();
  const file_store::Store read(file, again);
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    if constexpr (requires { field.set; }) {
      EXPECT_EQ(field.Read(*again), field.Read(column)) << field.name;
    }
  });
  EXPECT_EQ(again->bedrag->basisbedrag, 0.1);
  ASSERT_EQ(again->bedrag->periodes.size(), 1U);
  EXPECT_EQ(again->bedrag->periodes[0]->maand, 13);
  EXPECT_EQ(again->bedrag->periodes[0]->bedrag, 1.0 / 3);
  EXPECT_TRUE(again->bedrag->periodes[0]->eenmalig);
}

TEST_F(Examples, AScriptStopsAtTheLineThatCannotBeDone) {
  std::istringstream lines("TxtOm type Club\n\n# niets\nTxtBd type veel\nTxtOm type Krant\n");
  std::ostringstream said;
  script::Player player(lines, said);
  memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, memory_host::Factories());
  editor.SetApplication(application_, 0, 1);
  EXPECT_FALSE(player.Play(editor.Surface(), [] { return false; }));
  EXPECT_THAT(said.str(), testing::StartsWith("line 4: "));
  EXPECT_EQ(columns_[0]->omschrijving, "Club");
}

}  // namespace
}  // namespace brivane::test
