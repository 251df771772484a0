#include <gtest/gtest.h>

#include "tests/support/DesignSheet.h"
#include <brivane/toelichting/Ontwerp.h>

/// The surface as it is drawn: what stands where, what it is called, and in what order the Tab key goes by. Places are
/// in twips, in the frame that a control stands in: left, top, width, height.
namespace brivane::toelichting {
namespace {

constexpr char kSheet[] =
    "Toelichting 6030 4065 Arial 9\n"
    "fraScenarios: Frame 0 0 6030 4065, \"Verrekenen\", Alt+n\n"
    "lstToelichting: ListView in fraScenarios 135 300 5760 1695, tab 1, called Effect op maandlast en IB\n"
    "fraContent: Frame in fraScenarios 135 2115 5760 1890, without a border\n"
    "lblInleiding: Label in fraContent 0 0 5760 435, \"Hieronder kunt u één of meer scenario's selecteren "
    "waarop de vrije kolom van toepassing is:\", over lines\n"
    "lblAO: Label in fraContent 0 525 1980 225, \"Arbeidsongeschiktheid\"\n"
    "jnAO: JaNee in fraContent 2040 480 900 315, tab 2, called Arbeidsongeschiktheid\n"
    "lblWW: Label in fraContent 3390 525 1380 225, \" Werkloosheid\"\n"
    "jnWW: JaNee in fraContent 4830 480 900 315, tab 3, called Werkloosheid\n"
    "lblLangleven: Label in fraContent 0 885 1980 225, \"Langleven\"\n"
    "jnLangleven: JaNee in fraContent 2040 840 900 315, tab 4, called Langleven\n"
    "HintLangleven: Hint in fraContent 2985 870 255 255, tab 5, \"Let op! Indien u 'Nee' selecteert zal het "
    "bedrag in lasten- en NBI- overzichten bij lang leven en pensioen niet worden meegeteld.\", called Hulp "
    "bij langleven\n"
    "lblOverlijden: Label in fraContent 3435 885 1335 225, \"Overlijden\"\n"
    "jnOverlijden: JaNee in fraContent 4830 840 900 315, tab 6, called Overlijden\n"
    "lblPcOvergang 1: Label in fraContent 0 1245 1980 225, \"Overgang naar partner\"\n"
    "lblPcOvergang 2: Label in fraContent 2985 1245 225 225, \"%\"\n"
    "TxtPcOvergang: TextBox in fraContent 2040 1200 900 315, tab 7, called Overgang naar partner, "
    "percentage, Number\n"
    "LblEinddatum: Label in fraContent 0 1605 2010 225, \"Einddatum / eindleeftijd\"\n"
    "txtEinddatum: TextBox in fraContent 2040 1560 1500 315, tab 8, called Einddatum overgang, Date from "
    "TxtDtAanvang\n"
    "lblSlash: Label in fraContent 3585 1605 105 225, \"/\"\n"
    "TxtEindjaar: TextBox in fraContent 3720 1560 600 315, tab 9, called Eindleeftijd, jaar, WholeNumber\n"
    "LblEindjaar: Label in fraContent 4350 1605 480 225, \" jaar\"";

TEST(ToelichtingOntwerp, StandsAsItWasDrawn) { EXPECT_EQ(tests::Sheet(kOntwerp), kSheet); }

TEST(ToelichtingOntwerp, HasNoFault) { EXPECT_EQ(frame::Check(kOntwerp), frame::Fault::None); }

}  // namespace
}  // namespace brivane::toelichting
