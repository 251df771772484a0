#pragma once

#include <brivane/frame/Design.h>
#include <brivane/frame/Handle.h>
#include <brivane/scenario/Teksten.h>

/// The design of the year-by-year form. The elements with index 0 are the templates of one row and of one
/// column's headers; the rows themselves are made when the form is filled.
namespace brivane::scenario {

using frame::Format;
using host::Kind;

/// Left edge of the first column of rows, and of what stands above its boxes.
inline constexpr int kKolomLinks = 135;
inline constexpr int kVakLinks = 435;
/// Boxes are shorter than the pitch of the rows.
inline constexpr int kVakTop = 1020;
inline constexpr int kVakHoog = 315;
inline constexpr int kLabelTop = 1065;
inline constexpr int kLabelHoog = 225;
/// "-9.999.999.999,99" in the form's font.
inline constexpr int kBedragBreed = 1470;
/// "-12,3456" in the form's font.
inline constexpr int kPercentageBreed = 780;
inline constexpr int kEenheidBreed = 180;
/// The headers stand on two lines, because the discount header may begin above the value header's text.
inline constexpr int kKopBoven = 600;
inline constexpr int kKopOnder = 810;
inline constexpr int kKopHoog = 195;
/// As wide as the narrowest column, so that neighbouring headers do not cover each other.
inline constexpr int kKopBreed = 1440;

// clang-format off
inline constexpr frame::Row kRijen[] = {
    {.name = "fraScenario", .kind = Kind::Frame, .place = {120, 120, 6000, 1500}},
    {.name = "hntRentescenario", .kind = Kind::Hint, .place = {kKolomLinks, 255, 255, 255}, .parent = "fraScenario",
     .caption = kHintRentescenario, .tab = 1, .label = "Hulp bij rentescenario"},
    {.name = "chkAanvullen", .kind = Kind::CheckBox, .place = {kVakLinks, 255, 3240, 255}, .parent = "fraScenario",
     .caption = kAanvullen, .tab = 2, .mnemonic = 'V'},
    {.name = "lblMaand", .kind = Kind::Label, .place = {kKolomLinks, kKopBoven, 420, kKopHoog}, .parent = "fraScenario",
     .caption = "Mnd", .index = frame::kTemplateIndex},
    {.name = "lblRente", .kind = Kind::Label, .place = {kVakLinks, kKopOnder, kKopBreed, kKopHoog},
     .parent = "fraScenario", .caption = "Rente", .index = frame::kTemplateIndex},
    {.name = "lblKorting", .kind = Kind::Label, .place = {1350, kKopBoven, 780, kKopHoog}, .parent = "fraScenario",
     .caption = "Korting", .index = frame::kTemplateIndex},
    {.name = "lblJaar", .kind = Kind::Label, .place = {kKolomLinks, kLabelTop, 420, kLabelHoog},
     .parent = "fraScenario", .caption = "2003", .index = frame::kTemplateIndex},
    {.name = "txtBedrag", .kind = Kind::TextBox, .place = {615, kVakTop, kBedragBreed, kVakHoog},
     .parent = "fraScenario", .index = frame::kTemplateIndex, .tab = 3, .label = "Bedrag jaar",
     .format = Format::Amount},
    {.name = "chkEenmalig", .kind = Kind::CheckBox, .place = {2145, kVakTop, 255, kVakHoog}, .parent = "fraScenario",
     .index = frame::kTemplateIndex, .tab = 4, .label = "Op jaarbasis jaar"},
    {.name = "Hint", .kind = Kind::Hint, .place = {2460, kVakTop, 255, kVakHoog}, .parent = "fraScenario",
     .caption = kHintJaarbasis, .index = frame::kTemplateIndex, .tab = 5},
    {.name = "txtPercentage", .kind = Kind::TextBox, .place = {2775, kVakTop, kPercentageBreed, kVakHoog},
     .parent = "fraScenario", .index = frame::kTemplateIndex, .tab = 6, .label = "Percentage jaar",
     .format = Format::Number},
    {.name = "lblPercentage", .kind = Kind::Label, .place = {3615, kLabelTop, kEenheidBreed, kLabelHoog},
     .parent = "fraScenario", .caption = "%", .index = frame::kTemplateIndex},
    {.name = "txtKorting", .kind = Kind::TextBox, .place = {3855, kVakTop, kPercentageBreed, kVakHoog},
     .parent = "fraScenario", .index = frame::kTemplateIndex, .tab = 7, .label = "Korting jaar",
     .format = Format::Number},
    {.name = "lblPcKorting", .kind = Kind::Label, .place = {4695, kLabelTop, kEenheidBreed, kLabelHoog},
     .parent = "fraScenario", .caption = "%", .index = frame::kTemplateIndex},
    {.name = "fraTotaal", .kind = Kind::Frame, .place = {120, 1740, 2130, 375}, .bordered = false},
    {.name = "lblTotaal", .kind = Kind::Label, .place = {0, 75, 540, kLabelHoog}, .parent = "fraTotaal",
     .caption = "Totaal"},
    {.name = "txtTotaal", .kind = Kind::TextBox, .place = {600, 30, 1530, kVakHoog}, .parent = "fraTotaal", .tab = 8,
     .label = "Totaal", .format = Format::Amount, .locked = true},
    {.name = "cmdOK", .kind = Kind::Button, .place = {4905, 1740, 1215, 375}, .caption = "&OK", .tab = 9,
     .mnemonic = 'O'},
};

inline constexpr frame::Design kOntwerp{.name = kFormuliernaam, .rows = kRijen, .width = 6240, .height = 2235,
                                        .caption = kTitel, .fontSize = 8.25F};
// clang-format on
static_assert(frame::Check(kOntwerp) == frame::Fault::None);

inline constexpr auto fraScenario = frame::Find<Kind::Frame>(kOntwerp, "fraScenario");
inline constexpr auto hntRentescenario = frame::Find<Kind::Hint>(kOntwerp, "hntRentescenario");
inline constexpr auto chkAanvullen = frame::Find<Kind::CheckBox>(kOntwerp, "chkAanvullen");
inline constexpr auto lblMaand = frame::Find<Kind::Label>(kOntwerp, "lblMaand");
inline constexpr auto lblRente = frame::Find<Kind::Label>(kOntwerp, "lblRente");
inline constexpr auto lblKorting = frame::Find<Kind::Label>(kOntwerp, "lblKorting");
inline constexpr auto lblJaar = frame::Find<Kind::Label>(kOntwerp, "lblJaar");
inline constexpr auto txtBedrag = frame::Find<Kind::TextBox>(kOntwerp, "txtBedrag");
inline constexpr auto chkEenmalig = frame::Find<Kind::CheckBox>(kOntwerp, "chkEenmalig");
inline constexpr auto Hint = frame::Find<Kind::Hint>(kOntwerp, "Hint");
inline constexpr auto txtPercentage = frame::Find<Kind::TextBox>(kOntwerp, "txtPercentage");
inline constexpr auto lblPercentage = frame::Find<Kind::Label>(kOntwerp, "lblPercentage");
inline constexpr auto txtKorting = frame::Find<Kind::TextBox>(kOntwerp, "txtKorting");
inline constexpr auto lblPcKorting = frame::Find<Kind::Label>(kOntwerp, "lblPcKorting");
inline constexpr auto fraTotaal = frame::Find<Kind::Frame>(kOntwerp, "fraTotaal");
inline constexpr auto txtTotaal = frame::Find<Kind::TextBox>(kOntwerp, "txtTotaal");
inline constexpr auto cmdOK = frame::Find<Kind::Button>(kOntwerp, "cmdOK");

}  // namespace brivane::scenario
