#pragma once

#include <string_view>
#include <vector>

#include <brivane/controls/TextBox.h>
#include <brivane/frame/Phrase.h>
#include <brivane/host/Export.h>

/// A column of values that is pasted into rows.
namespace brivane::controls {

/// What is to be entered.
struct Column {
  /// What is to be entered in one box.
  struct Entry {
    controls::TextBox* box;    ///< never nothing
    controls::BoxValue value;  ///< of the box's format
  };
  std::vector<Entry> entries = {};  ///< from above; none where all is refused
  frame::Phrase refusal = {};       ///< why nothing is entered
  frame::Phrase surplus = {};       ///< told after entering: lines that found no row
};

/// What the lines of a text enter into the boxes from `first` down its control array, one line a box. Empty
/// lines and boxes that cannot be edited are passed over; a line that is not of the box's format refuses all.
[[nodiscard]] BRIVANE_API Column ReadColumn(std::string_view text, const controls::TextBox& first);

/// Whether a text is more than one value.
[[nodiscard]] BRIVANE_API bool IsColumn(std::string_view text);

}  // namespace brivane::controls
