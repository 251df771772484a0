#include "tests/scenario/Formulier.h"

namespace brivane::tests {
namespace {

/// Places to the twip, from the sizes of the templates: row label 240 (narrow), amount 1470, tick 255, help 255,
/// percentage and discount 780, "%" 180, headers 420, 1440 and 780, "Vervolgjaren..." from 435 to 3675.
class Rooster : public Formulier {
 protected:
  [[nodiscard]] std::vector<float> Plaats(std::string_view naam, int index = frame::kNoIndex) {
    const host::Place plaats = Control(naam, index).Place();
    return {plaats.left.value, plaats.top.value, plaats.width.value, plaats.height.value};
  }
  [[nodiscard]] float Links(std::string_view naam, int index) { return Control(naam, index).Place().left.value; }
  [[nodiscard]] float Top(std::string_view naam, int index) { return Control(naam, index).Place().top.value; }
};

using Maten = std::vector<float>;

TEST_F(Rooster, AmountsOfSevenRows) {
  Open(1, 7);
  EXPECT_EQ(Plaats("lblJaar", 1), (Maten{135, 1070, 240, 225}));
  EXPECT_EQ(Plaats("txtBedrag", 1), (Maten{435, 1020, 1470, 315}));
  EXPECT_EQ(Plaats("chkEenmalig", 1), (Maten{1965, 1020, 255, 315}));
  EXPECT_EQ(Plaats("Hint", 1), (Maten{2280, 1020, 255, 315}));
  EXPECT_EQ(Plaats("lblRente", 1), (Maten{435, 810, 1440, 195}));
  // A column is 240 + 60 + 1470 + 120 + 255 + 60 + 255 = 2460 wide.
  EXPECT_EQ(Plaats("lblJaar", 4), (Maten{2595, 1070, 240, 225}));
  EXPECT_EQ(Plaats("txtBedrag", 6), (Maten{2895, 1740, 1470, 315}));
  EXPECT_EQ(Plaats("chkEenmalig", 7), (Maten{6885, 1020, 255, 315}));
  EXPECT_EQ(Plaats("Hint", 7), (Maten{7200, 1020, 255, 315}));
  EXPECT_EQ(Links("lblRente", 3), 5355);
  // Help stands beside the first row of a column alone.
  for (const int rij : {2, 3, 5, 6}) EXPECT_FALSE(Bestaat("Hint", rij)) << rij;
  EXPECT_TRUE(Bestaat("Hint", 4));
  // 7455 + 135; 1790 + 370.
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 7590, 2160}));
  EXPECT_EQ(Plaats("cmdOK"), (Maten{6495, 2400, 1215, 375}));
  // 6495 + 1215 + 120 and 2400 + 375 + 120, with the window's frame of 240 and 585.
  EXPECT_EQ(form->Form().Place().width.value, 8070);
  EXPECT_EQ(form->Form().Place().height.value, 3480);
  EXPECT_EQ(form->Form().ScaleWidth().value, 7830);
  EXPECT_EQ(form->Form().ScaleHeight().value, 2895);
  EXPECT_EQ(Plaats("fraTotaal"), (Maten{120, 2400, 2130, 375}));
}

TEST_F(Rooster, AmountsOfOneThirtyThirtyOneAndEightyRows) {
  // The help of the last column reaches to its left + 2400.
  const struct {
    int rijen;
    Maten kader;
    int laatsteVanKolomEen;
    Maten kolommen;
  } gevallen[] = {{1, {120, 120, 2670, 1440}, 1, {135}},
                  {30, {120, 120, 7590, 4680}, 10, {135, 2595, 5055}},
                  {31, {120, 120, 10050, 3960}, 8, {135, 2595, 5055, 7515}},
                  {80, {120, 120, 10050, 8280}, 20, {135, 2595, 5055, 7515}}};
  for (const auto& geval : gevallen) {
    Nieuw();
    Open(1, geval.rijen);
    EXPECT_EQ(Plaats("fraScenario"), geval.kader) << geval.rijen;
    EXPECT_EQ(Top("lblJaar", geval.laatsteVanKolomEen), 1070 + 360 * static_cast<float>(geval.laatsteVanKolomEen - 1));
    EXPECT_EQ(Links("lblJaar", geval.laatsteVanKolomEen), 135);
    for (std::size_t kolom = 0; kolom < geval.kolommen.size(); ++kolom) {
      const int eerste = static_cast<int>(kolom) * geval.laatsteVanKolomEen + 1;
      EXPECT_EQ(Links("lblJaar", eerste), geval.kolommen[kolom]) << geval.rijen;
      EXPECT_EQ(Top("lblJaar", eerste), 1070);
      EXPECT_EQ(Links("lblRente", static_cast<int>(kolom) + 1), geval.kolommen[kolom] + 300);
    }
    EXPECT_TRUE(Bestaat("lblJaar", geval.rijen));
    EXPECT_FALSE(Bestaat("lblJaar", geval.rijen + 1));
    EXPECT_FALSE(Bestaat("lblRente", static_cast<int>(geval.kolommen.size()) + 1));
  }
}

TEST_F(Rooster, PercentagesWithoutDiscount) {
  Open(2, 7);
  EXPECT_EQ(Plaats("txtPercentage", 2), (Maten{435, 1380, 780, 315}));
  EXPECT_EQ(Plaats("lblPercentage", 2), (Maten{1275, 1430, 180, 225}));
  // A column is 240 + 60 + 780 + 60 + 180 + 120 = 1440 wide.
  EXPECT_EQ(Links("lblJaar", 7), 3015);
  // The header of the last column reaches to 3015 + 300 + 1440 = 4755.
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 4890, 2160}));
  for (const auto* naam : {"txtBedrag", "chkEenmalig", "Hint", "txtKorting", "lblPcKorting", "lblKorting", "lblMaand"})
    EXPECT_FALSE(Bestaat(naam, 1)) << naam;
}

TEST_F(Rooster, TheTickForFillingFitsInANarrowGrid) {
  Open(2, 2);
  // Two columns reach to 1575 + 300 + 1440 = 3315, the tick to 3675.
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 3810, 1440}));
  Nieuw();
  Open(2, 1);
  // It is not shown over one row, which reaches to 435 + 1440.
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 2010, 1440}));
}

TEST_F(Rooster, PercentagesWithDiscount) {
  Open(2, 80, {.korting = true});
  EXPECT_EQ(Plaats("txtKorting", 1), (Maten{1515, 1020, 780, 315}));
  EXPECT_EQ(Plaats("lblPcKorting", 1), (Maten{2355, 1070, 180, 225}));
  EXPECT_EQ(Plaats("lblKorting", 1), (Maten{1350, 600, 780, 195}));
  // A column is 1440 + 60 + 780 + 60 + 180 = 2520 wide.
  EXPECT_EQ(Links("lblJaar", 61), 7695);
  EXPECT_EQ(Links("txtKorting", 80), 9075);
  EXPECT_EQ(Top("txtKorting", 80), 7860);
  EXPECT_EQ(Links("lblKorting", 4), 8910);
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 10230, 8280}));
}

TEST_F(Rooster, AmountsAndPercentages) {
  Open(3, 31);
  EXPECT_EQ(Plaats("txtBedrag", 1), (Maten{435, 1020, 1470, 315}));
  EXPECT_EQ(Plaats("txtPercentage", 1), (Maten{1965, 1020, 780, 315}));
  EXPECT_EQ(Plaats("lblPercentage", 1), (Maten{2805, 1070, 180, 225}));
  // Over both boxes: 1470 + 60 + 780.
  EXPECT_EQ(Plaats("lblRente", 1), (Maten{435, 810, 2310, 195}));
  // A column is 240 + 60 + 1470 + 60 + 780 + 60 + 180 + 120 = 2970 wide.
  EXPECT_EQ(Links("lblJaar", 25), 9045);
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 12030, 3960}));
  EXPECT_FALSE(Bestaat("chkEenmalig", 1));
  EXPECT_FALSE(Bestaat("Hint", 1));
}

TEST_F(Rooster, AmountsAndPercentagesWithDiscount) {
  Open(3, 80, {.korting = true});
  EXPECT_EQ(Plaats("txtKorting", 1), (Maten{3045, 1020, 780, 315}));
  EXPECT_EQ(Plaats("lblPcKorting", 1), (Maten{3885, 1070, 180, 225}));
  // A column is 2970 + 60 + 780 + 60 + 180 = 4050 wide.
  EXPECT_EQ(Links("lblJaar", 61), 12285);
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 16350, 8280}));
}

TEST_F(Rooster, ABridgingLoan) {
  scenario->naam = "Overbruggingskrediet";
  Open(1, 7);
  EXPECT_EQ(Bijschrift("chkAanvullen"), "Vervolgmaanden automatisch invullen");
  EXPECT_EQ(Plaats("lblMaand", 1), (Maten{135, 600, 420, 195}));
  // A column is 240 + 60 + 1470 + 120 = 1890 wide.
  EXPECT_EQ(Links("lblMaand", 3), 3915);
  EXPECT_TRUE(Control("lblMaand", 2).Visible());
  EXPECT_TRUE(Control("fraTotaal").Visible());
  EXPECT_FALSE(Bestaat("chkEenmalig", 1));
  EXPECT_FALSE(Bestaat("Hint", 1));
  EXPECT_EQ(Plaats("fraScenario"), (Maten{120, 120, 5820, 2160}));
  EXPECT_EQ(Plaats("fraTotaal"), (Maten{120, 2400, 2130, 375}));
  EXPECT_TRUE(Vak("txtTotaal").Locked());
}

TEST_F(Rooster, OnlyTheExactNameIsABridgingLoan) {
  for (const auto* naam : {"overbruggingskrediet", "Overbruggingskrediet ", "Rente", ""}) {
    Nieuw();
    scenario->naam = naam;
    Open(1, 2);
    EXPECT_EQ(Bijschrift("chkAanvullen"), "Vervolgjaren automatisch invullen") << naam;
    EXPECT_FALSE(Control("fraTotaal").Visible()) << naam;
    EXPECT_FALSE(Bestaat("lblMaand", 1)) << naam;
    EXPECT_EQ(Control("hntRentescenario").Visible(), std::string(naam) == "Rente");
  }
}

TEST_F(Rooster, TheHeaderNamesWhatIsEntered) {
  const struct {
    std::int16_t soort;
    const char* kop;
  } gevallen[] = {{1, "Bedrag"}, {2, "Percentage"}, {3, "Bedrag/Percentage"}, {0, "Bedrag/Percentage"}};
  for (const auto& geval : gevallen) {
    Nieuw();
    Open(geval.soort, 3);
    EXPECT_EQ(Bijschrift("lblRente", 1), geval.kop);
    EXPECT_EQ(Bijschrift("lblRente", 3), geval.kop);
  }
}

TEST_F(Rooster, AnUnknownKindShowsLabelsAndHeadersAndNoBoxes) {
  scenario->VoegToe({.maand = 13, .bedrag = 5});
  Open(4, 2, {.korting = true});
  EXPECT_TRUE(Control("lblJaar", 2).Visible());
  EXPECT_TRUE(Control("lblRente", 2).Visible());
  EXPECT_TRUE(Control("lblKorting", 2).Visible());
  for (const auto* naam :
       {"txtBedrag", "chkEenmalig", "Hint", "txtPercentage", "lblPercentage", "txtKorting", "lblPcKorting"})
    EXPECT_FALSE(Bestaat(naam, 1)) << naam;
}

TEST_F(Rooster, RowLabelsCountFromOneWhetherTheTermIsExtendedOrNot) {
  for (const bool extra : {false, true}) {
    Nieuw();
    Open(1, 4, {.looptijdExtra = extra});
    for (int rij = 1; rij <= 4; ++rij) EXPECT_EQ(Bijschrift("lblJaar", rij), std::to_string(rij));
  }
}

TEST_F(Rooster, AnyOtherLabelTypeKeepsTheWideRowLabel) {
  for (const std::int32_t type : {1, -1}) {
    Nieuw();
    Open(2, 3, {.labeltype = type});
    EXPECT_EQ(Plaats("lblJaar", 1), (Maten{135, 1070, 420, 225}));
    EXPECT_EQ(Links("txtPercentage", 1), 615);
    // 420 + 60 + 780 + 60 + 180 + 120 = 1620.
    EXPECT_EQ(Links("lblJaar", 2), 1755);
  }
}

TEST_F(Rooster, OneRowNeedsNoFilling) {
  Open(1, 0);
  EXPECT_EQ(Waarden("txtBedrag").size(), 1U);
  EXPECT_FALSE(Control("chkAanvullen").Visible());
  EXPECT_FALSE(Control("chkAanvullen").Enabled());
  Nieuw();
  Open(1, 2);
  EXPECT_TRUE(Control("chkAanvullen").Visible());
  EXPECT_TRUE(Control("chkAanvullen").Enabled());
}

TEST_F(Rooster, RowsStayWithinOneAndEighty) {
  Open(1, -7);
  EXPECT_EQ(Waarden("txtBedrag").size(), 1U);
  EXPECT_EQ(form->AantalJaar(), -7);
  Nieuw();
  Open(1, 200);
  EXPECT_EQ(Waarden("txtBedrag").size(), 80U);
  EXPECT_EQ(form->AantalJaar(), 200);
}

TEST_F(Rooster, ALockedRowIsOneRow) {
  form->SetDisableJaar(3, true);
  form->SetDisableJaar(4, true);
  form->SetDisableJaar(4, false);
  Open(1, 5);
  for (int rij = 1; rij <= 5; ++rij) {
    EXPECT_EQ(Control("txtBedrag", rij).Enabled(), rij != 3);
    EXPECT_EQ(Control("chkEenmalig", rij).Enabled(), rij != 3);
    EXPECT_TRUE(Control("lblJaar", rij).Enabled());
  }
  Nieuw();
  form->SetDisableJaar(2, true);
  Open(3, 2, {.korting = true});
  for (const auto* naam : {"txtBedrag", "txtPercentage", "txtKorting"}) {
    EXPECT_TRUE(Control(naam, 1).Enabled());
    EXPECT_FALSE(Control(naam, 2).Enabled());
  }
}

TEST_F(Rooster, RowsPastTheFiftiethCannotBeLocked) {
  for (std::int16_t jaar = 1; jaar <= 50; ++jaar) form->SetDisableJaar(jaar, true);
  Open(2, 80);
  for (int rij = 1; rij <= 80; ++rij) EXPECT_EQ(Control("txtPercentage", rij).Enabled(), rij > 50) << rij;
}

TEST_F(Rooster, ARowThatCannotBeLockedIsTheCallersMistake) {
  for (const std::int16_t jaar : {std::int16_t{0}, std::int16_t{51}, std::int16_t{-1}}) {
    try {
      form->SetDisableJaar(jaar, true);
      ADD_FAILURE() << jaar;
    } catch (const host::Error& fout) {
      EXPECT_EQ(fout.Number(), 9);
    }
  }
  EXPECT_TRUE(berichten.empty());
}

TEST_F(Rooster, EachBoxNamesItsRowAndWhatItIs) {
  Open(1, 7);
  EXPECT_EQ(Zoek("txtBedrag", 7)->AccessibleName(), "Bedrag jaar 7");
  EXPECT_EQ(Zoek("chkEenmalig", 2)->AccessibleName(), "Op jaarbasis jaar 2");
  EXPECT_EQ(Zoek("Hint", 4)->AccessibleName(), "Hulp bij op jaarbasis jaar 4");
  Nieuw();
  Open(2, 3, {.korting = true});
  EXPECT_EQ(Zoek("txtPercentage", 3)->AccessibleName(), "Percentage jaar 3");
  EXPECT_EQ(Zoek("txtKorting", 1)->AccessibleName(), "Korting jaar 1");
  Nieuw();
  scenario->naam = "Overbruggingskrediet";
  Open(1, 3);
  EXPECT_EQ(Zoek("txtBedrag", 2)->AccessibleName(), "Bedrag maand 2");
}

TEST_F(Rooster, TheTemplatesStayHidden) {
  Open(3, 3, {.korting = true});
  for (const auto* naam : {"lblJaar", "txtBedrag", "chkEenmalig", "Hint", "txtPercentage", "lblPercentage",
                           "txtKorting", "lblPcKorting", "lblMaand", "lblRente", "lblKorting"})
    EXPECT_FALSE(Control(naam, 0).Visible()) << naam;
}

TEST_F(Rooster, TheHelpExplainsTheYearlyTickAndTheInterestScenario) {
  Open(1, 1);
  EXPECT_EQ(dynamic_cast<host::Hint&>(Control("Hint", 1)).HelpText(),
            "Indien het ingevulde bedrag op jaarbasis in de berekening van het rendement meegenomen moet worden vinkt "
            "u dit aan. Standaard wordt er op maandbasis gerekend.");
  EXPECT_EQ(dynamic_cast<host::Hint&>(Control("hntRentescenario")).HelpText(),
            "Het rentescenario vanaf jaar 2 heeft geen invloed op verzekeringspremies of spaarinleg. Alleen de waarde "
            "in jaar 1 wordt gebruikt voor de berekening van de premie of inleg gedurende de looptijd.");
  EXPECT_EQ(Bijschrift("cmdOK"), "&OK");
  EXPECT_EQ(form->Form().Caption(), "Scenario");
}

}  // namespace
}  // namespace brivane::tests
