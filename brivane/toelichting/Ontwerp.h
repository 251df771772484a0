#pragma once

#include <brivane/frame/Design.h>
#include <brivane/frame/Handle.h>

/// The design of the explanation control: the effect list, the four scenario toggles and the transition
/// to the partner. Its width is given by the container, its height is its own.
namespace brivane::toelichting {

using frame::Format;
using host::Kind;

/// Where the effect list stands; its build places it there.
inline constexpr frame::DesignPlace kLijstPlaats{135, 300, 5760, 1695};
/// Width of each of its four columns.
inline constexpr int kKolomBreedte = 1425;

inline constexpr int kInhoudLinks = 135;  ///< left edge of the content frame
inline constexpr int kOnderLijst = 120;   ///< from the list to the content frame
inline constexpr int kOndermarge = 60;    ///< under the content frame

/// Top and height of the content frame, and what the whole takes, in twips.
/// @{
inline constexpr int kInhoudTop = kLijstPlaats.top + kLijstPlaats.height + kOnderLijst;
inline constexpr int kInhoudHoogte = 1890;
inline constexpr int kBreedte = 6030;
inline constexpr int kHoogte = kInhoudTop + kInhoudHoogte + kOndermarge;
/// @}

/// What the help icon beside "Langleven" says.
inline constexpr std::string_view kHintLangleven =
    "Let op! Indien u 'Nee' selecteert zal het bedrag in lasten- en NBI- overzichten bij lang leven en pensioen niet "
    "worden meegeteld.";

/// The controls of the explanation, frames before what stands in them. A label with a mnemonic goes to the box in the
/// row below it.
// clang-format off
inline constexpr frame::Row kRijen[] = {
    {.name = "fraScenarios", .kind = Kind::Frame, .place = {0, 0, kBreedte, kHoogte}, .caption = "Verrekenen",
     .mnemonic = 'n'},
    {.name = "lstToelichting", .kind = Kind::ListView, .place = kLijstPlaats, .parent = "fraScenarios", .tab = 1,
     .label = "Effect op maandlast en IB"},
    {.name = "fraContent", .kind = Kind::Frame, .place = {kInhoudLinks, kInhoudTop, 5760, kInhoudHoogte},
     .parent = "fraScenarios", .bordered = false},
    {.name = "lblInleiding", .kind = Kind::Label, .place = {0, 0, 5760, 435}, .parent = "fraContent",
     .caption = "Hieronder kunt u één of meer scenario's selecteren waarop de vrije kolom van toepassing is:",
     .multiline = true},
    {.name = "lblAO", .kind = Kind::Label, .place = {0, 525, 1980, 225}, .parent = "fraContent",
     .caption = "Arbeidsongeschiktheid"},
    {.name = "jnAO", .kind = Kind::JaNee, .place = {2040, 480, 900, 315}, .parent = "fraContent", .tab = 2,
     .label = "Arbeidsongeschiktheid"},
    {.name = "lblWW", .kind = Kind::Label, .place = {3390, 525, 1380, 225}, .parent = "fraContent",
     .caption = " Werkloosheid"},
    {.name = "jnWW", .kind = Kind::JaNee, .place = {4830, 480, 900, 315}, .parent = "fraContent", .tab = 3,
     .label = "Werkloosheid"},
    {.name = "lblLangleven", .kind = Kind::Label, .place = {0, 885, 1980, 225}, .parent = "fraContent",
     .caption = "Langleven"},
    {.name = "jnLangleven", .kind = Kind::JaNee, .place = {2040, 840, 900, 315}, .parent = "fraContent", .tab = 4,
     .label = "Langleven"},
    {.name = "HintLangleven", .kind = Kind::Hint, .place = {2985, 870, 255, 255}, .parent = "fraContent",
     .caption = kHintLangleven, .tab = 5, .label = "Hulp bij langleven"},
    {.name = "lblOverlijden", .kind = Kind::Label, .place = {3435, 885, 1335, 225}, .parent = "fraContent",
     .caption = "Overlijden"},
    {.name = "jnOverlijden", .kind = Kind::JaNee, .place = {4830, 840, 900, 315}, .parent = "fraContent", .tab = 6,
     .label = "Overlijden"},
    {.name = "lblPcOvergang", .kind = Kind::Label, .place = {0, 1245, 1980, 225}, .parent = "fraContent",
     .caption = "Overgang naar partner", .index = 1},
    {.name = "lblPcOvergang", .kind = Kind::Label, .place = {2985, 1245, 225, 225}, .parent = "fraContent",
     .caption = "%", .index = 2},
    {.name = "TxtPcOvergang", .kind = Kind::TextBox, .place = {2040, 1200, 900, 315}, .parent = "fraContent",
     .tab = 7, .label = "Overgang naar partner, percentage", .format = Format::Number},
    {.name = "LblEinddatum", .kind = Kind::Label, .place = {0, 1605, 2010, 225}, .parent = "fraContent",
     .caption = "Einddatum / eindleeftijd"},
    {.name = "txtEinddatum", .kind = Kind::TextBox, .place = {2040, 1560, 1500, 315}, .parent = "fraContent",
     .tab = 8, .label = "Einddatum overgang", .format = Format::Date, .countsFrom = "TxtDtAanvang"},
    {.name = "lblSlash", .kind = Kind::Label, .place = {3585, 1605, 105, 225}, .parent = "fraContent", .caption = "/"},
    {.name = "TxtEindjaar", .kind = Kind::TextBox, .place = {3720, 1560, 600, 315}, .parent = "fraContent", .tab = 9,
     .label = "Eindleeftijd, jaar", .format = Format::WholeNumber},
    {.name = "LblEindjaar", .kind = Kind::Label, .place = {4350, 1605, 480, 225}, .parent = "fraContent",
     .caption = " jaar"},
};

/// The design itself, which a Toelichting is made on.
inline constexpr frame::Design kOntwerp{.name = "Toelichting", .rows = kRijen, .width = kBreedte, .height = kHoogte};
// clang-format on
static_assert(frame::Check(kOntwerp) == frame::Fault::None);

/// The control of this name in kOntwerp, for frame::Controls.
/// @{
inline constexpr auto fraScenarios = frame::Find<Kind::Frame>(kOntwerp, "fraScenarios");
inline constexpr auto lstToelichting = frame::Find<Kind::ListView>(kOntwerp, "lstToelichting");
inline constexpr auto fraContent = frame::Find<Kind::Frame>(kOntwerp, "fraContent");
inline constexpr auto jnAO = frame::Find<Kind::JaNee>(kOntwerp, "jnAO");
inline constexpr auto jnWW = frame::Find<Kind::JaNee>(kOntwerp, "jnWW");
inline constexpr auto jnLangleven = frame::Find<Kind::JaNee>(kOntwerp, "jnLangleven");
inline constexpr auto jnOverlijden = frame::Find<Kind::JaNee>(kOntwerp, "jnOverlijden");
inline constexpr auto TxtPcOvergang = frame::Find<Kind::TextBox>(kOntwerp, "TxtPcOvergang");
inline constexpr auto txtEinddatum = frame::Find<Kind::TextBox>(kOntwerp, "txtEinddatum");
inline constexpr auto lblSlash = frame::Find<Kind::Label>(kOntwerp, "lblSlash");
inline constexpr auto TxtEindjaar = frame::Find<Kind::TextBox>(kOntwerp, "TxtEindjaar");
/// @}

}  // namespace brivane::toelichting
