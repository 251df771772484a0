#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// The list index of a list without a selection.
inline constexpr int kNoSelection = -1;

/// An entry that is known beforehand: what the list shows, and its item data.
struct ListEntry {
  std::string_view text;      ///< UTF-8; lives as long as the program
  std::int32_t itemData = 0;  ///< a code, such as those of host::codes
};

/// A drop-down list to choose one entry from.
class ListBox : public Control {
 public:
  /// Removes the entries and selects none; raises nothing.
  virtual void Clear() = 0;
  /// Adds an entry at the end, its text in UTF-8; raises nothing.
  virtual void Add(const std::string& text, std::int32_t itemData = 0) = 0;
  /// How many entries there are.
  [[nodiscard]] virtual int ListCount() const = 0;

  /// Position of the selected entry from 0, or kNoSelection.
  [[nodiscard]] virtual int ListIndex() const = 0;
  /// Another index than it has raises Click, before this returns. Fails with error 381 past the last entry and below
  /// kNoSelection.
  virtual void SetListIndex(int index) = 0;
  /// The number or the text that an entry was added with. Both fail with error 381 where there is no such entry.
  /// @{
  [[nodiscard]] virtual std::int32_t ItemData(int index) const = 0;
  [[nodiscard]] virtual std::string List(int index) const = 0;
  /// @}
  /// Text of the selected entry; fails with error 381 without a selection.
  [[nodiscard]] std::string Text() const { return List(ListIndex()); }

  /// The list index changed, by a person or by code, to kNoSelection too.
  Event<> Click;
};

}  // namespace brivane::host
