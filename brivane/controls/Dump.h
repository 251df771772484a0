#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <brivane/controls/ListBox.h>
#include <brivane/controls/ListView.h>
#include <brivane/controls/Surface.h>
#include <brivane/host/Color.h>
#include <brivane/host/Date.h>
#include <brivane/host/Export.h>
#include <brivane/host/Twips.h>
#include <brivane/host/controls/Control.h>

namespace brivane::controls {

/// The value of a control: an option's selection, the number of a toggle or check box, or the content of a
/// text box as it reads (an empty one by its format: "", 0 or no date). Nothing for the kinds without one.
using DumpValue = std::variant<std::monostate, bool, int, std::string, double, host::Date>;

/// The state of one control, in the words that every toolkit shares: another toolkit fills the same from
/// what it really shows. A control has those of the optional fields that its kind has.
struct ControlDump {
  /// What a list holds.
  struct ListContent {
    std::vector<ListBox::Entry> entries;  ///< in their order
    int index = host::kNoSelection;       ///< from 0
    friend bool operator==(const ListContent&, const ListContent&) = default;
  };
  /// What a report list holds.
  struct ListViewContent {
    std::vector<ListView::Column> columns;  ///< from left to right
    std::vector<ListView::Item> items;      ///< from top to bottom
    std::size_t selected = 0;               ///< from 1, or 0 for none
    friend bool operator==(const ListViewContent&, const ListViewContent&) = default;
  };

  std::string name;                         ///< "TxtBd", "optLast(2)", "Toelichting.jnAO"
  host::Kind kind = host::Kind::Frame;      ///< what it is
  bool visible = true;                      ///< its own, whatever its containers show
  bool enabled = true;                      ///< its own, whatever its containers have
  host::Place place;                        ///< in its container, in twips
  DumpValue value;                          ///< nothing for a kind without a value
  std::optional<std::string> caption;       ///< UTF-8
  std::optional<host::Color> backColor;     ///< as it is kept, a colour of the system included
  std::optional<bool> locked;               ///< of a text box
  std::optional<ListContent> list;          ///< of a list
  std::optional<ListViewContent> listView;  ///< of a report list

  friend bool operator==(const ControlDump&, const ControlDump&) = default;
};

/// The state of a control, as it is kept: it may be hidden or veiled.
[[nodiscard]] BRIVANE_API ControlDump Dump(const AnyControl& control);
/// Every control on a surface in the order of creation, each embedded surface followed by what is on it.
[[nodiscard]] BRIVANE_API std::vector<ControlDump> DumpAll(const Surface& surface);

}  // namespace brivane::controls
