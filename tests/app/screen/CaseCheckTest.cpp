#include <QTreeWidget>

#include "app/screen/CaseCheck.h"
#include "tests/app/screen/WindowTest.h"
#include <brivane/frame/Calendar.h>

// "Dossier controleren": every column, without a box and without a trace in the file.
namespace brivane::app {
namespace {

host::Date DateOf(int day, int month, int year) { return frame::MakeDate({.year = year, .month = month, .day = day}); }

dossier::KolomGegevens Kolom(std::int16_t Id, host::Date aanvang) {
  dossier::KolomGegevens kolom;
  kolom.Id = Id;
  kolom.Omschrijving = "Post";
  kolom.Bedrag.Bedrag = 10;
  kolom.DatumAanvang = aanvang;
  return kolom;
}

/// One fault in each column but the second.
dossier::DossierGegevens WithFaults() {
  dossier::DossierGegevens dossier = dossier::LeegDossier();
  dossier::KolomGegevens withoutDate = Kolom(1, host::kNoDate);
  dossier::KolomGegevens sound = Kolom(2, DateOf(1, 1, 2027));
  dossier::KolomGegevens withoutPercentage = Kolom(3, DateOf(1, 1, 2027));
  withoutPercentage.ScenarioOverlijden = true;
  withoutPercentage.EinddatumOvergang = DateOf(1, 1, 2060);
  dossier.HuidigeLening.VrijeKolommen = {withoutDate, sound, withoutPercentage};
  dossier::KolomGegevens nameless = Kolom(4, DateOf(1, 1, 2027));
  nameless.Omschrijving.clear();
  nameless.ScenarioOverlijden = true;
  nameless.PercentageOvergang = 50;
  nameless.EinddatumOvergang = DateOf(1, 1, 2020);
  dossier.Leningen[0].VrijeKolommen = {nameless};
  return dossier;
}

TEST(CaseCheckTest, FindsWhatBothControlsAndTheHostFindInTheOrderOfTheColumns) {
  const dossier::Dossier dossier(WithFaults(), std::make_shared<dossier::Environment>());
  const std::vector<dossier::Finding> findings = CheckAll(dossier, DateOf(21, 11, 2026));
  ASSERT_EQ(findings.size(), 4U);
  EXPECT_EQ(findings[0].Vrij_Id, 1);
  EXPECT_EQ(findings[0].text, "Voer s.v.p. een aanvangsdatum in.");
  EXPECT_EQ(findings[1].Vrij_Id, 3);
  EXPECT_EQ(findings[1].text, "Overgangspercentage partner van 1% t/m 100% invullen.");
  EXPECT_EQ(findings[2].Len_Id, 1);
  EXPECT_EQ(findings[2].text, "Einddatum overgang partner moet in de toekomst liggen.");
  EXPECT_EQ(findings[3].Len_Id, 1);
  EXPECT_EQ(findings[3].text, "Er is geen omschrijving ingevuld.");
}

TEST(CaseCheckTest, LeavesTheCaseAlone) {
  dossier::DossierGegevens gegevens = WithFaults();
  // Shown as a product, it would get the kind "Anders".
  gegevens.HuidigeLening.VrijeKolommen[1].IsProduct = true;
  const dossier::Dossier dossier(gegevens, std::make_shared<dossier::Environment>());
  static_cast<void>(CheckAll(dossier, DateOf(21, 11, 2026)));
  EXPECT_EQ(dossier.FindKolom(0, 2)->Productsoort(), 0);
}

/// The checks would be of the column before it, which has no start date.
TEST(CaseCheckTest, ChecksNoColumnThatCannotBeBound) {
  dossier::DossierGegevens gegevens = WithFaults();
  gegevens.HuidigeLening.VrijeKolommen[1].CorrectieLast = 77;
  const dossier::Dossier dossier(gegevens, std::make_shared<dossier::Environment>());
  std::vector<std::string> texts;
  for (const dossier::Finding& finding : CheckAll(dossier, DateOf(21, 11, 2026)))
    if (finding.Len_Id == 0 && finding.Vrij_Id == 2) texts.push_back(finding.text);
  ASSERT_FALSE(texts.empty());
  EXPECT_EQ(texts.front().find("De post kan niet worden gecontroleerd: "), 0U) << texts.front();
  for (const std::string& text : texts) EXPECT_NE(text, "Voer s.v.p. een aanvangsdatum in.");
}

class FindingsListTest : public WindowTest {};

TEST_F(FindingsListTest, F7ShowsTheFindingsAndEnterGoesToTheColumn) {
  file_ = folder_.filePath("fouten.dossier");
  dossier::DossierFile::Maak(file_, WithFaults());
  Open();
  const auto was = Screen().Dossier().Gegevens();
  PressKey(Qt::Key_F7);
  auto* list = window_->findChild<QTreeWidget*>("bevindingenlijst");
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(list->isVisible());
  // Of the column on the screen too, which is refused when it is left.
  ASSERT_GE(list->topLevelItemCount(), 4);
  EXPECT_TRUE(list->hasFocus());
  EXPECT_EQ(list->topLevelItem(0)->text(2), "Voer s.v.p. een aanvangsdatum in.");

  // The faulty column is not left for another one.
  PressKey(Qt::Key_Down);
  dialogs_.ExpectMessage("Voer s.v.p. een aanvangsdatum in.", Pressing(Qt::Key_Return));
  PressKey(Qt::Key_Return);
  EXPECT_EQ(Screen().Shown(), (Place{0, 1}));
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  Type("1-1-2027");
  list->setFocus();
  QTest::keyClick(window_->windowHandle(), Qt::Key_Return);
  EXPECT_EQ(Screen().Shown(), (Place{0, 3}));
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  EXPECT_EQ(Screen().Dossier().Gegevens().HuidigeLening.VrijeKolommen[1].Omschrijving,
            was.HuidigeLening.VrijeKolommen[1].Omschrijving);
}

TEST_F(FindingsListTest, EscapePutsTheListAway) {
  file_ = folder_.filePath("fouten.dossier");
  dossier::DossierFile::Maak(file_, WithFaults());
  Open();
  PressKey(Qt::Key_F7);
  const auto* list = window_->findChild<QTreeWidget*>("bevindingenlijst");
  ASSERT_TRUE(list && list->hasFocus());
  PressKey(Qt::Key_Escape);
  EXPECT_FALSE(list->isVisible());
}

TEST_F(FindingsListTest, FindsNothingInTheSample) {
  Open();
  const auto findings = Screen().Check();
  ASSERT_TRUE(findings);
  for (const dossier::Finding& finding : *findings) ADD_FAILURE() << finding.Vrij_Id << ": " << finding.text;
}

}  // namespace
}  // namespace brivane::app
