#pragma once

#include <brivane/frame/Design.h>
#include <brivane/frame/Handle.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/vrijekolom/Codes.h>

/// The design of the editor: a left column of five frames, and a right column with the product frame and
/// the explanation control below it. The layout procedure stacks the frames; what stands inside them
/// stands here.
namespace brivane::vrijekolom {

using frame::Format;
using host::Kind;

/// \name Measures
/// In twips.
/// @{
inline constexpr int kLinksBreed = 6300;             ///< width of the left column
inline constexpr int kRijBreed = 6030;               ///< width of the row frames inside it
inline constexpr int kVakLinks = 1800;               ///< left edge of the boxes in a row frame
inline constexpr int kVakInKader = 135 + kVakLinks;  ///< and on a frame of the column itself
inline constexpr int kOptieTop = 330;                ///< halfway between a frame's title and its bottom
inline constexpr int kOptieHoog = 255;               ///< height of an option or a check box
inline constexpr int kVakHoog = 315;                 ///< height of a box, a list or a toggle
inline constexpr int kRijHoog = 330;                 ///< height of a row frame

inline constexpr int kKolomAfstand = 120;                         ///< between the two columns
inline constexpr int kKaderAfstand = 60;                          ///< between two frames of a column
inline constexpr int kRechtsLinks = kLinksBreed + kKolomAfstand;  ///< left edge of the right column
inline constexpr int kRechtsBreed = toelichting::kBreedte;        ///< width of the right column
/// @}

/// Top or height of a frame in twips, as designed with all of them shown; the layout procedure moves them from there.
/// @{
inline constexpr int kLastHoog = 660;
inline constexpr int kFiscaalTop = kLastHoog + kKaderAfstand;
inline constexpr int kAlgemeenTop = kFiscaalTop + kLastHoog + kKaderAfstand;
inline constexpr int kAlgemeenHoog = 1080;
inline constexpr int kGegevensTop = kAlgemeenTop + kAlgemeenHoog + kKaderAfstand;
inline constexpr int kGegevensHoog = 2220;
inline constexpr int kHeffingTop = kGegevensTop + kGegevensHoog + kKaderAfstand;
inline constexpr int kProductHoog = 2790;
inline constexpr int kToelichtingTop = kProductHoog + kKaderAfstand;
/// @}

/// The controls of the editor, frames before what stands in them. A label with a mnemonic goes to the box in the row
/// below it, a frame to what it holds. The host has the letters h, k, r and t for its menus.
// clang-format off
inline constexpr frame::Row kRijen[] = {
    {.name = "fraLast", .kind = Kind::Frame, .place = {0, 0, kLinksBreed, kLastHoog}, .caption = "Correctie last",
     .mnemonic = 'l'},
    // The indexes run against the order on the screen.
    {.name = "optLast", .kind = Kind::OptionButton, .place = {4185, kOptieTop, 1980, kOptieHoog}, .parent = "fraLast",
     .caption = "Last", .index = kLast, .tab = 3},
    {.name = "optLast", .kind = Kind::OptionButton, .place = {2160, kOptieTop, 1980, kOptieHoog}, .parent = "fraLast",
     .caption = "Bijdrage", .index = kBijdrage, .tab = 2},
    {.name = "optLast", .kind = Kind::OptionButton, .place = {135, kOptieTop, 1980, kOptieHoog}, .parent = "fraLast",
     .caption = "Neutraal", .index = kLastNeutraal, .tab = 1},

    {.name = "fraFiscaal", .kind = Kind::Frame, .place = {0, kFiscaalTop, kLinksBreed, kLastHoog},
     .caption = "Correctie fiscaal", .mnemonic = 'f'},
    {.name = "optFiscaal", .kind = Kind::OptionButton, .place = {135, kOptieTop, 1980, kOptieHoog}, .parent = "fraFiscaal",
     .caption = "Aftrekpost", .index = kAftrekpost, .tab = 4},
    {.name = "optFiscaal", .kind = Kind::OptionButton, .place = {2160, kOptieTop, 1980, kOptieHoog}, .parent = "fraFiscaal",
     .caption = "Bijtelling", .index = kBijtelling, .tab = 5},
    {.name = "optFiscaal", .kind = Kind::OptionButton, .place = {4185, kOptieTop, 1980, kOptieHoog}, .parent = "fraFiscaal",
     .caption = "Neutraal", .index = kFiscaalNeutraal, .tab = 6},

    {.name = "fraAlgemeen", .kind = Kind::Frame, .place = {0, kAlgemeenTop, kLinksBreed, kAlgemeenHoog},
     .caption = "Algemeen"},
    {.name = "fraAanvangsdatum", .kind = Kind::Frame, .place = {135, 300, kRijBreed, kRijHoog},
     .parent = "fraAlgemeen", .caption = "Aanvangsdatum", .bordered = false},
    {.name = "lblDtAanvang", .kind = Kind::Label, .place = {0, 45, 1770, 225}, .parent = "fraAanvangsdatum",
     .caption = "Aanvangsdatum", .mnemonic = 'A'},
    {.name = "TxtDtAanvang", .kind = Kind::TextBox, .place = {kVakLinks, 0, 1500, kVakHoog},
     .parent = "fraAanvangsdatum", .tab = 7, .label = "Aanvangsdatum", .format = Format::Date},
    {.name = "fraLooptijd", .kind = Kind::Frame, .place = {135, 660, kRijBreed, kRijHoog}, .parent = "fraAlgemeen",
     .caption = "Einddatum / looptijd", .bordered = false},
    {.name = "lblDtEind", .kind = Kind::Label, .place = {0, 45, 1770, 225}, .parent = "fraLooptijd",
     .caption = "Einddatum / looptijd", .mnemonic = 'E'},
    {.name = "TxtDtEind", .kind = Kind::TextBox, .place = {kVakLinks, 0, 1500, kVakHoog}, .parent = "fraLooptijd",
     .tab = 8, .label = "Einddatum", .format = Format::Date, .countsFrom = "TxtDtAanvang"},
    {.name = "lblLooptijdStreep", .kind = Kind::Label, .place = {3345, 45, 105, 225}, .parent = "fraLooptijd",
     .caption = "/"},
    {.name = "TxtAnJaar", .kind = Kind::TextBox, .place = {3480, 0, 600, kVakHoog}, .parent = "fraLooptijd",
     .tab = 9, .label = "Looptijd, jaar", .format = Format::WholeNumber},
    {.name = "lblAnJaar", .kind = Kind::Label, .place = {4110, 45, 480, 225}, .parent = "fraLooptijd",
     .caption = " jaar"},
    {.name = "TxtAnMaand", .kind = Kind::TextBox, .place = {4590, 0, 600, kVakHoog}, .parent = "fraLooptijd",
     .tab = 10, .label = "Looptijd, maanden", .format = Format::WholeNumber},
    {.name = "lblAnMaand", .kind = Kind::Label, .place = {5220, 45, 810, 225}, .parent = "fraLooptijd",
     .caption = "maanden"},
    {.name = "fraVervaldatum", .kind = Kind::Frame, .place = {135, 660, kRijBreed, kRijHoog}, .parent = "fraAlgemeen",
     .caption = "Contractvervaldatum", .bordered = false},
    {.name = "lblVervaldatum", .kind = Kind::Label, .place = {0, 45, 1770, 225}, .parent = "fraVervaldatum",
     .caption = "Contractvervaldatum", .mnemonic = 'v'},
    {.name = "txtVervaldatum", .kind = Kind::TextBox, .place = {kVakLinks, 0, 1500, kVakHoog},
     .parent = "fraVervaldatum", .tab = 11, .label = "Contractvervaldatum", .format = Format::Date,
     .countsFrom = "TxtDtAanvang"},

    {.name = "fraGegevens", .kind = Kind::Frame, .place = {0, kGegevensTop, kLinksBreed, kGegevensHoog},
     .caption = "Gegevens"},
    {.name = "lblOm", .kind = Kind::Label, .place = {135, 345, 1770, 225}, .parent = "fraGegevens",
     .caption = "Omschrijving", .mnemonic = 'O'},
    {.name = "TxtOm", .kind = Kind::TextBox, .place = {kVakInKader, 300, 4230, kVakHoog}, .parent = "fraGegevens",
     .tab = 12, .label = "Omschrijving", .format = Format::Text},
    {.name = "lblBd", .kind = Kind::Label, .place = {135, 705, 1770, 225}, .parent = "fraGegevens",
     .caption = "Bedrag", .mnemonic = 'B'},
    {.name = "TxtBd", .kind = Kind::TextBox, .place = {kVakInKader, 660, 1500, kVakHoog}, .parent = "fraGegevens",
     .tab = 13, .label = "Bedrag", .format = Format::Amount},
    {.name = "cboTermijn", .kind = Kind::ListBox, .place = {3510, 660, 2655, kVakHoog}, .parent = "fraGegevens",
     .tab = 14, .label = "Termijn", .entries = kTermijnen},
    {.name = "lblInkUitArbeid", .kind = Kind::Label, .place = {135, 1065, 1770, 225}, .parent = "fraGegevens",
     .caption = "Inkomen uit arbeid", .mnemonic = 'I'},
    {.name = "jnInkUitArbeid", .kind = Kind::JaNee, .place = {kVakInKader, 1020, 900, kVakHoog},
     .parent = "fraGegevens", .tab = 15, .label = "Inkomen uit arbeid"},
    {.name = "lblInDagloon", .kind = Kind::Label, .place = {135, 1425, 1770, 225}, .parent = "fraGegevens",
     .caption = "Onderdeel dagloon", .mnemonic = 'g'},
    {.name = "jnInDagloon", .kind = Kind::JaNee, .place = {kVakInKader, 1380, 900, kVakHoog}, .parent = "fraGegevens",
     .tab = 16, .label = "Onderdeel dagloon"},
    {.name = "cmdScenario", .kind = Kind::Button, .place = {kVakInKader, 1770, 1890, 345}, .parent = "fraGegevens",
     .caption = "Scenario invullen", .tab = 17, .mnemonic = 'S'},
    // Always lands at 1020; inside the general frame, whose height is fixed at 1080, it would be cut off.
    {.name = "fraBeeindigen", .kind = Kind::Frame, .place = {4020, 1020, 2145, 1140}, .parent = "fraGegevens",
     .caption = "Post beëindigen in", .bordered = false},
    {.name = "lblBeeindigen", .kind = Kind::Label, .place = {0, 45, 2145, 225}, .parent = "fraBeeindigen",
     .caption = "Post beëindigen in"},
    {.name = "ChkVoorstel", .kind = Kind::CheckBox, .place = {0, 315, 2145, kOptieHoog}, .parent = "fraBeeindigen",
     .caption = "Voorstel 1", .index = 1, .tab = 18, .mnemonic = '1'},
    {.name = "ChkVoorstel", .kind = Kind::CheckBox, .place = {0, 585, 2145, kOptieHoog}, .parent = "fraBeeindigen",
     .caption = "Voorstel 2", .index = 2, .tab = 19, .mnemonic = '2'},
    {.name = "ChkVoorstel", .kind = Kind::CheckBox, .place = {0, 855, 2145, kOptieHoog}, .parent = "fraBeeindigen",
     .caption = "Voorstel 3", .index = 3, .tab = 20, .mnemonic = '3'},

    {.name = "fraHeffing", .kind = Kind::Frame, .place = {0, kHeffingTop, kLinksBreed, kLastHoog},
     .caption = "Heffing bij", .mnemonic = 'j'},
    {.name = "optAanvrager", .kind = Kind::OptionButton, .place = {135, kOptieTop, 3000, kOptieHoog},
     .parent = "fraHeffing", .caption = "Aanvrager", .index = kAanvrager, .tab = 21},
    {.name = "optAanvrager", .kind = Kind::OptionButton, .place = {3165, kOptieTop, 3000, kOptieHoog},
     .parent = "fraHeffing", .caption = "Partner", .index = kPartner, .tab = 22},

    {.name = "fraProduct", .kind = Kind::Frame, .place = {kRechtsLinks, 0, kRechtsBreed, kProductHoog},
     .caption = "Product"},
    {.name = "chkProduct", .kind = Kind::CheckBox, .place = {135, kOptieTop, 5760, kOptieHoog}, .parent = "fraProduct",
     .caption = "Deze post is een product", .tab = 23, .mnemonic = 'D'},
    {.name = "fraMij", .kind = Kind::Frame, .place = {135, 600, 5760, 690}, .parent = "fraProduct",
     .caption = "Maatschappij", .bordered = false},
    {.name = "lblMij", .kind = Kind::Label, .place = {0, 45, 1770, 225}, .parent = "fraMij",
     .caption = "Maatschappij", .mnemonic = 'M'},
    {.name = "cboMaatschappij", .kind = Kind::ListBox, .place = {kVakLinks, 0, 3960, kVakHoog}, .parent = "fraMij",
     .tab = 24, .label = "Maatschappij"},
    {.name = "lblMaatschappij", .kind = Kind::Label, .place = {0, 405, 1770, 225}, .parent = "fraMij",
     .caption = "Anders, namelijk"},
    {.name = "txtMaatschappij", .kind = Kind::TextBox, .place = {kVakLinks, 360, 3960, kVakHoog}, .parent = "fraMij",
     .tab = 25, .label = "Maatschappij, anders, namelijk", .format = Format::Text},
    {.name = "fraProductsoort", .kind = Kind::Frame, .place = {135, 1320, 5760, 690}, .parent = "fraProduct",
     .caption = "Soort product", .bordered = false},
    {.name = "lblSoort", .kind = Kind::Label, .place = {0, 45, 1770, 225}, .parent = "fraProductsoort",
     .caption = "Soort product", .mnemonic = 'p'},
    {.name = "cboProductsoort", .kind = Kind::ListBox, .place = {kVakLinks, 0, 3960, kVakHoog},
     .parent = "fraProductsoort", .tab = 26, .label = "Soort product"},
    {.name = "lblProductsoort", .kind = Kind::Label, .place = {0, 405, 1770, 225}, .parent = "fraProductsoort",
     .caption = "Anders, namelijk"},
    {.name = "txtProductsoort", .kind = Kind::TextBox, .place = {kVakLinks, 360, 3960, kVakHoog},
     .parent = "fraProductsoort", .tab = 27, .label = "Soort product, anders, namelijk", .format = Format::Text},
    {.name = "fraProductnaam", .kind = Kind::Frame, .place = {135, 2040, 5760, kRijHoog}, .parent = "fraProduct",
     .caption = "Productnaam", .bordered = false},
    {.name = "lblProductnaam", .kind = Kind::Label, .place = {0, 45, 1770, 225}, .parent = "fraProductnaam",
     .caption = "Productnaam", .mnemonic = 'c'},
    {.name = "txtProductnaam", .kind = Kind::TextBox, .place = {kVakLinks, 0, 3960, kVakHoog},
     .parent = "fraProductnaam", .tab = 28, .label = "Productnaam", .format = Format::Text},
    {.name = "fraUwBemiddeling", .kind = Kind::Frame, .place = {135, 2400, 5760, kRijHoog}, .parent = "fraProduct",
     .caption = "Uw bemiddeling", .bordered = false},
    {.name = "lblUwBemiddeling", .kind = Kind::Label, .place = {0, 45, 1770, 225}, .parent = "fraUwBemiddeling",
     .caption = "Uw bemiddeling", .mnemonic = 'U'},
    {.name = "jnUwBemiddeling", .kind = Kind::JaNee, .place = {kVakLinks, 0, 900, kVakHoog},
     .parent = "fraUwBemiddeling", .tab = 29, .label = "Uw bemiddeling"},

    {.name = "Toelichting", .kind = Kind::Surface,
     .place = {kRechtsLinks, kToelichtingTop, kRechtsBreed, toelichting::kHoogte}, .tab = 30,
     .embedded = &toelichting::kOntwerp},
};

/// The design itself, which a VrijeKolom is made on.
inline constexpr frame::Design kOntwerp{.name = "VrijeKolom",
                                        .rows = kRijen,
                                        .width = kRechtsLinks + kRechtsBreed,
                                        .height = kToelichtingTop + toelichting::kHoogte};
// clang-format on
static_assert(frame::Check(kOntwerp) == frame::Fault::None);

/// The control of this name in kOntwerp, for frame::Controls.
/// @{
inline constexpr auto fraLast = frame::Find<Kind::Frame>(kOntwerp, "fraLast");
inline constexpr auto optLast = frame::FindArray<Kind::OptionButton>(kOntwerp, "optLast");
inline constexpr auto fraFiscaal = frame::Find<Kind::Frame>(kOntwerp, "fraFiscaal");
inline constexpr auto optFiscaal = frame::FindArray<Kind::OptionButton>(kOntwerp, "optFiscaal");
inline constexpr auto fraAlgemeen = frame::Find<Kind::Frame>(kOntwerp, "fraAlgemeen");
inline constexpr auto fraAanvangsdatum = frame::Find<Kind::Frame>(kOntwerp, "fraAanvangsdatum");
inline constexpr auto TxtDtAanvang = frame::Find<Kind::TextBox>(kOntwerp, "TxtDtAanvang");
inline constexpr auto fraLooptijd = frame::Find<Kind::Frame>(kOntwerp, "fraLooptijd");
inline constexpr auto TxtDtEind = frame::Find<Kind::TextBox>(kOntwerp, "TxtDtEind");
inline constexpr auto TxtAnJaar = frame::Find<Kind::TextBox>(kOntwerp, "TxtAnJaar");
inline constexpr auto TxtAnMaand = frame::Find<Kind::TextBox>(kOntwerp, "TxtAnMaand");
inline constexpr auto fraVervaldatum = frame::Find<Kind::Frame>(kOntwerp, "fraVervaldatum");
inline constexpr auto txtVervaldatum = frame::Find<Kind::TextBox>(kOntwerp, "txtVervaldatum");
inline constexpr auto fraGegevens = frame::Find<Kind::Frame>(kOntwerp, "fraGegevens");
inline constexpr auto TxtOm = frame::Find<Kind::TextBox>(kOntwerp, "TxtOm");
inline constexpr auto TxtBd = frame::Find<Kind::TextBox>(kOntwerp, "TxtBd");
inline constexpr auto cboTermijn = frame::Find<Kind::ListBox>(kOntwerp, "cboTermijn");
inline constexpr auto jnInkUitArbeid = frame::Find<Kind::JaNee>(kOntwerp, "jnInkUitArbeid");
inline constexpr auto jnInDagloon = frame::Find<Kind::JaNee>(kOntwerp, "jnInDagloon");
inline constexpr auto cmdScenario = frame::Find<Kind::Button>(kOntwerp, "cmdScenario");
inline constexpr auto fraBeeindigen = frame::Find<Kind::Frame>(kOntwerp, "fraBeeindigen");
inline constexpr auto ChkVoorstel = frame::FindArray<Kind::CheckBox>(kOntwerp, "ChkVoorstel");
inline constexpr auto fraHeffing = frame::Find<Kind::Frame>(kOntwerp, "fraHeffing");
inline constexpr auto optAanvrager = frame::FindArray<Kind::OptionButton>(kOntwerp, "optAanvrager");
inline constexpr auto fraProduct = frame::Find<Kind::Frame>(kOntwerp, "fraProduct");
inline constexpr auto chkProduct = frame::Find<Kind::CheckBox>(kOntwerp, "chkProduct");
inline constexpr auto fraMij = frame::Find<Kind::Frame>(kOntwerp, "fraMij");
inline constexpr auto cboMaatschappij = frame::Find<Kind::ListBox>(kOntwerp, "cboMaatschappij");
inline constexpr auto txtMaatschappij = frame::Find<Kind::TextBox>(kOntwerp, "txtMaatschappij");
inline constexpr auto fraProductsoort = frame::Find<Kind::Frame>(kOntwerp, "fraProductsoort");
inline constexpr auto cboProductsoort = frame::Find<Kind::ListBox>(kOntwerp, "cboProductsoort");
inline constexpr auto txtProductsoort = frame::Find<Kind::TextBox>(kOntwerp, "txtProductsoort");
inline constexpr auto fraProductnaam = frame::Find<Kind::Frame>(kOntwerp, "fraProductnaam");
inline constexpr auto txtProductnaam = frame::Find<Kind::TextBox>(kOntwerp, "txtProductnaam");
inline constexpr auto fraUwBemiddeling = frame::Find<Kind::Frame>(kOntwerp, "fraUwBemiddeling");
inline constexpr auto jnUwBemiddeling = frame::Find<Kind::JaNee>(kOntwerp, "jnUwBemiddeling");
inline constexpr auto ToelichtingVlak = frame::Find<Kind::Surface>(kOntwerp, "Toelichting");
/// @}

}  // namespace brivane::vrijekolom
