#include <gtest/gtest.h>

#include "tests/support/DesignSheet.h"
#include <brivane/vrijekolom/Ontwerp.h>

/// The surface as it is drawn: what stands where, what it is called, and in what order the Tab key goes by. Places are
/// in twips, in the frame that a control stands in: left, top, width, height.
namespace brivane::vrijekolom {
namespace {

constexpr char kSheet[] =
    "VrijeKolom 12450 6915 Arial 9\n"
    "fraLast: Frame 0 0 6300 660, \"Correctie last\", Alt+l\n"
    "optLast 1: OptionButton in fraLast 4185 330 1980 255, tab 3, \"Last\"\n"
    "optLast 2: OptionButton in fraLast 2160 330 1980 255, tab 2, \"Bijdrage\"\n"
    "optLast 3: OptionButton in fraLast 135 330 1980 255, tab 1, \"Neutraal\"\n"
    "fraFiscaal: Frame 0 720 6300 660, \"Correctie fiscaal\", Alt+f\n"
    "optFiscaal 1: OptionButton in fraFiscaal 135 330 1980 255, tab 4, \"Aftrekpost\"\n"
    "optFiscaal 2: OptionButton in fraFiscaal 2160 330 1980 255, tab 5, \"Bijtelling\"\n"
    "optFiscaal 3: OptionButton in fraFiscaal 4185 330 1980 255, tab 6, \"Neutraal\"\n"
    "fraAlgemeen: Frame 0 1440 6300 1080, \"Algemeen\"\n"
    "fraAanvangsdatum: Frame in fraAlgemeen 135 300 6030 330, \"Aanvangsdatum\", without a border\n"
    "lblDtAanvang: Label in fraAanvangsdatum 0 45 1770 225, \"Aanvangsdatum\", Alt+A\n"
    "TxtDtAanvang: TextBox in fraAanvangsdatum 1800 0 1500 315, tab 7, called Aanvangsdatum, Date\n"
    "fraLooptijd: Frame in fraAlgemeen 135 660 6030 330, \"Einddatum / looptijd\", without a border\n"
    "lblDtEind: Label in fraLooptijd 0 45 1770 225, \"Einddatum / looptijd\", Alt+E\n"
    "TxtDtEind: TextBox in fraLooptijd 1800 0 1500 315, tab 8, called Einddatum, Date from TxtDtAanvang\n"
    "lblLooptijdStreep: Label in fraLooptijd 3345 45 105 225, \"/\"\n"
    "TxtAnJaar: TextBox in fraLooptijd 3480 0 600 315, tab 9, called Looptijd, jaar, WholeNumber\n"
    "lblAnJaar: Label in fraLooptijd 4110 45 480 225, \" jaar\"\n"
    "TxtAnMaand: TextBox in fraLooptijd 4590 0 600 315, tab 10, called Looptijd, maanden, WholeNumber\n"
    "lblAnMaand: Label in fraLooptijd 5220 45 810 225, \"maanden\"\n"
    "fraVervaldatum: Frame in fraAlgemeen 135 660 6030 330, \"Contractvervaldatum\", without a border\n"
    "lblVervaldatum: Label in fraVervaldatum 0 45 1770 225, \"Contractvervaldatum\", Alt+v\n"
    "txtVervaldatum: TextBox in fraVervaldatum 1800 0 1500 315, tab 11, called Contractvervaldatum, Date "
    "from TxtDtAanvang\n"
    "fraGegevens: Frame 0 2580 6300 2220, \"Gegevens\"\n"
    "lblOm: Label in fraGegevens 135 345 1770 225, \"Omschrijving\", Alt+O\n"
    "TxtOm: TextBox in fraGegevens 1935 300 4230 315, tab 12, called Omschrijving, Text\n"
    "lblBd: Label in fraGegevens 135 705 1770 225, \"Bedrag\", Alt+B\n"
    "TxtBd: TextBox in fraGegevens 1935 660 1500 315, tab 13, called Bedrag, Amount\n"
    "cboTermijn: ListBox in fraGegevens 3510 660 2655 315, tab 14, called Termijn, 1 per maand, 3 per "
    "kwartaal, 6 per half jaar, 12 per jaar, 99 eenmalig\n"
    "lblInkUitArbeid: Label in fraGegevens 135 1065 1770 225, \"Inkomen uit arbeid\", Alt+I\n"
    "jnInkUitArbeid: JaNee in fraGegevens 1935 1020 900 315, tab 15, called Inkomen uit arbeid\n"
    "lblInDagloon: Label in fraGegevens 135 1425 1770 225, \"Onderdeel dagloon\", Alt+g\n"
    "jnInDagloon: JaNee in fraGegevens 1935 1380 900 315, tab 16, called Onderdeel dagloon\n"
    "cmdScenario: Button in fraGegevens 1935 1770 1890 345, tab 17, \"Scenario invullen\", Alt+S\n"
    "fraBeeindigen: Frame in fraGegevens 4020 1020 2145 1140, \"Post beëindigen in\", without a border\n"
    "lblBeeindigen: Label in fraBeeindigen 0 45 2145 225, \"Post beëindigen in\"\n"
    "ChkVoorstel 1: CheckBox in fraBeeindigen 0 315 2145 255, tab 18, \"Voorstel 1\", Alt+1\n"
    "ChkVoorstel 2: CheckBox in fraBeeindigen 0 585 2145 255, tab 19, \"Voorstel 2\", Alt+2\n"
    "ChkVoorstel 3: CheckBox in fraBeeindigen 0 855 2145 255, tab 20, \"Voorstel 3\", Alt+3\n"
    "fraHeffing: Frame 0 4860 6300 660, \"Heffing bij\", Alt+j\n"
    "optAanvrager 1: OptionButton in fraHeffing 135 330 3000 255, tab 21, \"Aanvrager\"\n"
    "optAanvrager 2: OptionButton in fraHeffing 3165 330 3000 255, tab 22, \"Partner\"\n"
    "fraProduct: Frame 6420 0 6030 2790, \"Product\"\n"
    "chkProduct: CheckBox in fraProduct 135 330 5760 255, tab 23, \"Deze post is een product\", Alt+D\n"
    "fraMij: Frame in fraProduct 135 600 5760 690, \"Maatschappij\", without a border\n"
    "lblMij: Label in fraMij 0 45 1770 225, \"Maatschappij\", Alt+M\n"
    "cboMaatschappij: ListBox in fraMij 1800 0 3960 315, tab 24, called Maatschappij\n"
    "lblMaatschappij: Label in fraMij 0 405 1770 225, \"Anders, namelijk\"\n"
    "txtMaatschappij: TextBox in fraMij 1800 360 3960 315, tab 25, called Maatschappij, anders, namelijk, "
    "Text\n"
    "fraProductsoort: Frame in fraProduct 135 1320 5760 690, \"Soort product\", without a border\n"
    "lblSoort: Label in fraProductsoort 0 45 1770 225, \"Soort product\", Alt+p\n"
    "cboProductsoort: ListBox in fraProductsoort 1800 0 3960 315, tab 26, called Soort product\n"
    "lblProductsoort: Label in fraProductsoort 0 405 1770 225, \"Anders, namelijk\"\n"
    "txtProductsoort: TextBox in fraProductsoort 1800 360 3960 315, tab 27, called Soort product, anders, "
    "namelijk, Text\n"
    "fraProductnaam: Frame in fraProduct 135 2040 5760 330, \"Productnaam\", without a border\n"
    "lblProductnaam: Label in fraProductnaam 0 45 1770 225, \"Productnaam\", Alt+c\n"
    "txtProductnaam: TextBox in fraProductnaam 1800 0 3960 315, tab 28, called Productnaam, Text\n"
    "fraUwBemiddeling: Frame in fraProduct 135 2400 5760 330, \"Uw bemiddeling\", without a border\n"
    "lblUwBemiddeling: Label in fraUwBemiddeling 0 45 1770 225, \"Uw bemiddeling\", Alt+U\n"
    "jnUwBemiddeling: JaNee in fraUwBemiddeling 1800 0 900 315, tab 29, called Uw bemiddeling\n"
    "Toelichting: Surface 6420 2850 6030 4065, tab 30";

TEST(VrijeKolomOntwerp, StandsAsItWasDrawn) { EXPECT_EQ(tests::Sheet(kOntwerp), kSheet); }

TEST(VrijeKolomOntwerp, HasNoFault) { EXPECT_EQ(frame::Check(kOntwerp), frame::Fault::None); }

}  // namespace
}  // namespace brivane::vrijekolom
