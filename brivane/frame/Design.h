#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include <brivane/host/Export.h>
#include <brivane/host/controls/Control.h>
#include <brivane/host/controls/ListBox.h>

/// The design of a surface as a table: one row a control, from which every toolkit makes it.
///
///     inline constexpr frame::Row kRijen[] = {
///         {.name = "fraLast", .kind = Kind::Frame, .place = {0, 0, 6000, 900}, .caption = "Correctie last"},
///         {.name = "optLast", .kind = Kind::OptionButton, .place = {...}, .parent = "fraLast", .caption = "Last",
///         .index = 1, .tab = 3},
///     };
///     inline constexpr frame::Design kOntwerp{.name = "VrijeKolom", .rows = kRijen, .width = 12000, .height = 6000};
///     static_assert(frame::Check(kOntwerp) == frame::Fault::None);
///     constexpr auto fraLast = frame::Find<Kind::Frame>(kOntwerp, "fraLast");
namespace brivane::frame {

using host::Kind;

/// How a text box formats and accepts its content.
enum class Format : std::uint8_t {
  None,         ///< not a box
  Text,         ///< any text
  Amount,       ///< euros, two decimals, Dutch grouping
  Number,       ///< a number with up to four decimals
  WholeNumber,  ///< a 32-bit whole number
  Date,         ///< dd-mm-jjjj, or empty
};

/// A place in whole twips; multiples of 15 keep every control on whole pixels at 96 dots per inch.
struct DesignPlace {
  int left = 0;    ///< from the left edge of the frame or surface
  int top = 0;     ///< from its top edge
  int width = 0;   ///< outside
  int height = 0;  ///< outside
};

using host::ListEntry;

inline constexpr int kNoIndex = -1;       ///< of a control that is no element of a control array
inline constexpr int kTemplateIndex = 0;  ///< of the element from which a form makes others at run time; never shown

struct Design;

/// The design of an embedded control, or none. It remembers whether one was given, because under the
/// sanitizers an address cannot be compared with null while compiling.
class BRIVANE_API EmbeddedDesign {
 public:
  constexpr EmbeddedDesign() = default;  ///< none
  /// The design, which lives as long as the program.
  constexpr EmbeddedDesign(const Design* design) : design_(design), given_(true) {}

  /// Whether there is one.
  [[nodiscard]] constexpr bool Given() const { return given_; }
  /// The design; a null pointer where there is none.
  /// @{
  constexpr operator const Design*() const { return design_; }
  constexpr const Design* operator->() const { return design_; }
  /// @}

 private:
  const Design* design_ = nullptr;
  bool given_ = false;
};

/// One control of a design. Texts are UTF-8 and live as long as the program.
struct Row {
  std::string_view name;          ///< unique on its surface, but for the elements of one array
  Kind kind = Kind::Frame;        ///< which interface it has
  DesignPlace place = {};         ///< in its frame, or on the surface
  std::string_view parent = {};   ///< name of the containing frame; empty for the surface itself
  std::string_view caption = {};  ///< also the help text of a Hint
  int index = kNoIndex;           ///< place in a control array; kTemplateIndex is the template of run-time elements
  int tab = 0;                    ///< place in the tab order from 1; 0 for what takes no focus
  std::string_view label = {};    ///< the text that names a box, toggle, list or help icon to a screen reader
  /// Letter of the caption that, with Alt, goes to the control, to the box that it labels, or into the frame.
  char mnemonic = '\0';
  Format format = Format::None;  ///< text boxes: what it takes and how it shows it
  /// End dates: the box with the date that a typed term ("3j") counts from, on this surface or on one around it.
  std::string_view countsFrom = {};
  bool bordered = true;                     ///< frames: draws its border and caption
  bool locked = false;                      ///< text boxes: written by code alone
  bool multiline = false;                   ///< labels: wraps over lines
  std::span<const ListEntry> entries = {};  ///< lists: those that it begins with
  EmbeddedDesign embedded = {};             ///< kind Surface: the design of the embedded control
};

/// The design of a surface or a form. Check tells whether it holds together.
struct Design {
  std::string_view name;                ///< what the control is called, by scripts as well
  std::span<const Row> rows;            ///< frames before what stands in them, in the order of making
  int width = 0;                        ///< twips; of a form, its inside
  int height = 0;                       ///< the same
  std::string_view caption = {};        ///< title of a form
  std::string_view fontName = "Arial";  ///< of every control on it
  float fontSize = 9;                   ///< points
};

/// What is wrong with a table.
enum class Fault : std::uint8_t {
  None,                  ///< nothing
  NoName,                ///< a row without a name
  NameTwice,             ///< two rows with one name that are no elements of an array in the order of their indexes
  ParentMissing,         ///< no row above has the name of its parent
  ParentNotAFrame,       ///< the row above that has it is no frame
  OutsideParent,         ///< it stands outside its frame or surface, in part or whole
  BoxWithoutLabel,       ///< a screen reader would have no name for it
  BoxWithoutFormat,      ///< a text box without a format, or another kind with one
  TabTwice,              ///< two rows at one place in the tab order
  TabGap,                ///< a place past the number of those that take the focus
  TabMissing,            ///< a control that takes the focus has no place
  TabOnPassive,          ///< a control that takes no focus has one
  SurfaceWithoutDesign,  ///< an embedded control without a design, or another kind with one
  ArrayScattered         ///< the elements of an array do not stand together
};

namespace detail {

constexpr bool TakesFocus(Kind kind) {
  return kind == Kind::TextBox || kind == Kind::JaNee || kind == Kind::OptionButton || kind == Kind::CheckBox ||
         kind == Kind::ListBox || kind == Kind::Button || kind == Kind::Hint || kind == Kind::ListView ||
         kind == Kind::Surface;
}

constexpr bool NeedsLabel(Kind kind) {
  return kind == Kind::TextBox || kind == Kind::JaNee || kind == Kind::ListBox || kind == Kind::ListView;
}

constexpr std::size_t RowOf(const Design& design, std::string_view name, std::size_t before) {
  for (std::size_t i = 0; i < before; ++i)
    if (design.rows[i].name == name) return i;
  return before;
}

constexpr Fault CheckPlace(const Design& design, std::size_t i) {
  const Row& row = design.rows[i];
  int width = design.width;
  int height = design.height;
  if (!row.parent.empty()) {
    const std::size_t parent = RowOf(design, row.parent, i);
    if (parent == i) return Fault::ParentMissing;
    if (design.rows[parent].kind != Kind::Frame) return Fault::ParentNotAFrame;
    width = design.rows[parent].place.width;
    height = design.rows[parent].place.height;
  }
  if (row.place.left < 0 || row.place.top < 0 || row.place.left + row.place.width > width ||
      row.place.top + row.place.height > height)
    return Fault::OutsideParent;
  return Fault::None;
}

constexpr Fault CheckTab(const Design& design, std::size_t i, int stops) {
  const Row& row = design.rows[i];
  if (!TakesFocus(row.kind)) return row.tab == 0 ? Fault::None : Fault::TabOnPassive;
  if (row.tab == 0) return Fault::TabMissing;
  if (row.tab > stops) return Fault::TabGap;
  for (std::size_t j = 0; j < i; ++j)
    if (design.rows[j].tab == row.tab) return Fault::TabTwice;
  return Fault::None;
}

constexpr Fault CheckName(const Design& design, std::size_t i) {
  const Row& row = design.rows[i];
  if (row.name.empty()) return Fault::NoName;
  for (std::size_t j = 0; j < i; ++j) {
    if (design.rows[j].name != row.name) continue;
    if (design.rows[j].index == kNoIndex || design.rows[j].index >= row.index) return Fault::NameTwice;
    if (design.rows[i - 1].name != row.name) return Fault::ArrayScattered;
  }
  return Fault::None;
}

}  // namespace detail

/// Checks a table: unique names, array elements together and in order, parents before children and
/// frames, children inside their parents, each box labelled and formatted, the tab order complete.
constexpr Fault Check(const Design& design) {
  int stops = 0;
  for (const Row& row : design.rows) stops += detail::TakesFocus(row.kind) ? 1 : 0;
  for (std::size_t i = 0; i < design.rows.size(); ++i) {
    const Row& row = design.rows[i];
    if (const Fault fault = detail::CheckName(design, i); fault != Fault::None) return fault;
    if (const Fault fault = detail::CheckPlace(design, i); fault != Fault::None) return fault;
    if (const Fault fault = detail::CheckTab(design, i, stops); fault != Fault::None) return fault;
    if (detail::NeedsLabel(row.kind) && row.label.empty()) return Fault::BoxWithoutLabel;
    if ((row.kind == Kind::TextBox) != (row.format != Format::None)) return Fault::BoxWithoutFormat;
    if ((row.kind == Kind::Surface) != row.embedded.Given()) return Fault::SurfaceWithoutDesign;
  }
  return Fault::None;
}

}  // namespace brivane::frame
