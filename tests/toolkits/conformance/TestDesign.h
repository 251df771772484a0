#pragma once

#include <brivane/frame/Handle.h>

/// A surface with every kind of control, and a form with templates of run-time elements.
namespace brivane::test {

using frame::Format;
using frame::Kind;

// clang-format off
inline constexpr frame::Row kInnerRows[] = {
    {.name = "fraBinnen", .kind = Kind::Frame, .place = {0, 0, 3000, 900}, .caption = "Binnen"},
    {.name = "jnBinnen", .kind = Kind::JaNee, .place = {120, 300, 1200, 300}, .parent = "fraBinnen", .tab = 1,
     .label = "Binnen"},
};

inline constexpr frame::Design kInner{.name = "Binnenste", .rows = kInnerRows, .width = 3000, .height = 900};
// clang-format on
static_assert(frame::Check(kInner) == frame::Fault::None);

inline constexpr frame::ListEntry kTermijnen[] = {{"per maand", 1}, {"per kwartaal", 3}, {"per jaar", 12}};

// clang-format off
inline constexpr frame::Row kSurfaceRows[] = {
    {.name = "fraBoxen", .kind = Kind::Frame, .place = {0, 0, 6000, 4200}, .caption = "Boxen"},
    {.name = "lblNaam", .kind = Kind::Label, .place = {120, 300, 1500, 300}, .parent = "fraBoxen", .caption = "&Naam",
     .mnemonic = 'N'},
    {.name = "txtNaam", .kind = Kind::TextBox, .place = {1800, 300, 2400, 300}, .parent = "fraBoxen", .tab = 1,
     .label = "Naam", .format = Format::Text},
    {.name = "txtBedrag", .kind = Kind::TextBox, .place = {1800, 660, 2400, 300}, .parent = "fraBoxen", .tab = 2,
     .label = "Bedrag", .format = Format::Amount},
    {.name = "txtPercentage", .kind = Kind::TextBox, .place = {1800, 1020, 2400, 300}, .parent = "fraBoxen", .tab = 3,
     .label = "Percentage", .format = Format::Number},
    {.name = "txtJaren", .kind = Kind::TextBox, .place = {1800, 1380, 2400, 300}, .parent = "fraBoxen", .tab = 4,
     .label = "Jaren", .format = Format::WholeNumber},
    {.name = "txtDatum", .kind = Kind::TextBox, .place = {1800, 1740, 2400, 300}, .parent = "fraBoxen", .tab = 5,
     .label = "Datum", .format = Format::Date},
    {.name = "txtTotaal", .kind = Kind::TextBox, .place = {1800, 2100, 2400, 300}, .parent = "fraBoxen", .tab = 6,
     .label = "Totaal", .format = Format::Amount, .locked = true},
    {.name = "fraDiep", .kind = Kind::Frame, .place = {120, 2700, 5700, 1200}, .parent = "fraBoxen",
     .caption = "Diep"},
    {.name = "jnDiep", .kind = Kind::JaNee, .place = {120, 300, 1200, 300}, .parent = "fraDiep", .tab = 7,
     .label = "Diep"},
    {.name = "hntDiep", .kind = Kind::Hint, .place = {1500, 300, 300, 300}, .parent = "fraDiep",
     .caption = "Zo diep als het kan.", .tab = 8},
    {.name = "fraKeuze", .kind = Kind::Frame, .place = {6120, 0, 5880, 4200}, .caption = "Keuze",
     .mnemonic = 'K'},
    {.name = "optSoort", .kind = Kind::OptionButton, .place = {120, 300, 1500, 300}, .parent = "fraKeuze",
     .caption = "Een", .index = 1, .tab = 9},
    {.name = "optSoort", .kind = Kind::OptionButton, .place = {120, 660, 1500, 300}, .parent = "fraKeuze",
     .caption = "Twee", .index = 2, .tab = 10},
    {.name = "optSoort", .kind = Kind::OptionButton, .place = {120, 1020, 1500, 300}, .parent = "fraKeuze",
     .caption = "Drie", .index = 3, .tab = 11},
    {.name = "optAnder", .kind = Kind::OptionButton, .place = {1800, 300, 1500, 300}, .parent = "fraKeuze",
     .caption = "Links", .index = 1, .tab = 12},
    {.name = "optAnder", .kind = Kind::OptionButton, .place = {1800, 660, 1500, 300}, .parent = "fraKeuze",
     .caption = "Rechts", .index = 2, .tab = 13},
    {.name = "chkVinkje", .kind = Kind::CheckBox, .place = {120, 1500, 1800, 300}, .parent = "fraKeuze",
     .caption = "Vinkje", .tab = 14},
    {.name = "cboTermijn", .kind = Kind::ListBox, .place = {120, 1920, 2400, 300}, .parent = "fraKeuze", .tab = 15,
     .label = "Termijn", .entries = kTermijnen},
    {.name = "cboLeeg", .kind = Kind::ListBox, .place = {120, 2340, 2400, 300}, .parent = "fraKeuze", .tab = 16,
     .label = "Leeg"},
    {.name = "cmdDoen", .kind = Kind::Button, .place = {120, 2760, 1800, 375}, .parent = "fraKeuze",
     .caption = "&Doen", .tab = 17, .mnemonic = 'D'},
    {.name = "lvwLijst", .kind = Kind::ListView, .place = {0, 4320, 6000, 1800}, .tab = 19, .label = "Lijst"},
    {.name = "txtTot", .kind = Kind::TextBox, .place = {4320, 1740, 1500, 300}, .parent = "fraBoxen", .tab = 18,
     .label = "Tot", .format = Format::Date, .countsFrom = "txtDatum"},
    {.name = "Binnenste", .kind = Kind::Surface, .place = {6120, 4320, 3000, 900}, .tab = 20, .embedded = &kInner},
};

inline constexpr frame::Design kSurface{.name = "Proef", .rows = kSurfaceRows, .width = 12000, .height = 6300};
// clang-format on
static_assert(frame::Check(kSurface) == frame::Fault::None);

// clang-format off
inline constexpr frame::Row kFormRows[] = {
    {.name = "fraRooster", .kind = Kind::Frame, .place = {0, 0, 6000, 3000}, .caption = "Rooster"},
    {.name = "lblJaar", .kind = Kind::Label, .place = {135, 300, 480, 240}, .parent = "fraRooster", .caption = "2003",
     .index = frame::kTemplateIndex},
    {.name = "txtBedrag", .kind = Kind::TextBox, .place = {660, 300, 1200, 300}, .parent = "fraRooster",
     .index = frame::kTemplateIndex, .tab = 1, .label = "Bedrag", .format = Format::Amount},
    {.name = "chkEenmalig", .kind = Kind::CheckBox, .place = {1920, 300, 240, 300}, .parent = "fraRooster",
     .caption = "Eenmalig", .index = frame::kTemplateIndex, .tab = 2},
    {.name = "cmdOK", .kind = Kind::Button, .place = {4200, 3120, 1800, 375}, .caption = "&OK", .tab = 3,
     .mnemonic = 'O'},
};

inline constexpr frame::Design kForm{
    .name = "frmProef", .rows = kFormRows, .width = 6120, .height = 3600, .caption = "Proefformulier"};
// clang-format on
static_assert(frame::Check(kForm) == frame::Fault::None);

}  // namespace brivane::test
