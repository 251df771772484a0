#include <gtest/gtest.h>

#include "tests/support/DesignSheet.h"
#include <brivane/scenario/Ontwerp.h>

/// The surface as it is drawn: what stands where, what it is called, and in what order the Tab key goes by. Places are
/// in twips, in the frame that a control stands in: left, top, width, height.
namespace brivane::scenario {
namespace {

constexpr char kSheet[] =
    "frmScenario 6240 2235 Arial 8.25 \"Scenario\"\n"
    "fraScenario: Frame 120 120 6000 1500\n"
    "hntRentescenario: Hint in fraScenario 135 255 255 255, tab 1, \"Het rentescenario vanaf jaar 2 heeft "
    "geen invloed op verzekeringspremies of spaarinleg. Alleen de waarde in jaar 1 wordt gebruikt voor de "
    "berekening van de premie of inleg gedurende de looptijd.\", called Hulp bij rentescenario\n"
    "chkAanvullen: CheckBox in fraScenario 435 255 3240 255, tab 2, \"Vervolgjaren automatisch invullen\", "
    "Alt+V\n"
    "lblMaand 0: Label in fraScenario 135 600 420 195, \"Mnd\"\n"
    "lblRente 0: Label in fraScenario 435 810 1440 195, \"Rente\"\n"
    "lblKorting 0: Label in fraScenario 1350 600 780 195, \"Korting\"\n"
    "lblJaar 0: Label in fraScenario 135 1065 420 225, \"2003\"\n"
    "txtBedrag 0: TextBox in fraScenario 615 1020 1470 315, tab 3, called Bedrag jaar, Amount\n"
    "chkEenmalig 0: CheckBox in fraScenario 2145 1020 255 315, tab 4, called Op jaarbasis jaar\n"
    "Hint 0: Hint in fraScenario 2460 1020 255 315, tab 5, \"Indien het ingevulde bedrag op jaarbasis in de "
    "berekening van het rendement meegenomen moet worden vinkt u dit aan. Standaard wordt er op maandbasis "
    "gerekend.\"\n"
    "txtPercentage 0: TextBox in fraScenario 2775 1020 780 315, tab 6, called Percentage jaar, Number\n"
    "lblPercentage 0: Label in fraScenario 3615 1065 180 225, \"%\"\n"
    "txtKorting 0: TextBox in fraScenario 3855 1020 780 315, tab 7, called Korting jaar, Number\n"
    "lblPcKorting 0: Label in fraScenario 4695 1065 180 225, \"%\"\n"
    "fraTotaal: Frame 120 1740 2130 375, without a border\n"
    "lblTotaal: Label in fraTotaal 0 75 540 225, \"Totaal\"\n"
    "txtTotaal: TextBox in fraTotaal 600 30 1530 315, tab 8, called Totaal, Amount, locked\n"
    "cmdOK: Button 4905 1740 1215 375, tab 9, \"&OK\", Alt+O";

TEST(ScenarioOntwerp, StandsAsItWasDrawn) { EXPECT_EQ(tests::Sheet(kOntwerp), kSheet); }

TEST(ScenarioOntwerp, HasNoFault) { EXPECT_EQ(frame::Check(kOntwerp), frame::Fault::None); }

}  // namespace
}  // namespace brivane::scenario
