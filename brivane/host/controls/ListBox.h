#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <brivane/host/controls/Control.h>

namespace brivane::host {

inline constexpr int kNoSelection = -1;

/// An entry that is known beforehand: what the list shows, and its item data.
struct ListEntry {
  std::string_view text;
  std::int32_t itemData = 0;
};

/// A drop-down list to choose one entry from.
class ListBox : public Control {
 public:
  /// Removes the entries and selects none; raises nothing.
  virtual void Clear() = 0;
  /// Adds an entry at the end; raises nothing.
  virtual void Add(const std::string& text, std::int32_t itemData = 0) = 0;
  [[nodiscard]] virtual int ListCount() const = 0;

  /// Position of the selected entry from 0, or kNoSelection.
  [[nodiscard]] virtual int ListIndex() const = 0;
  /// Fails with error 381 past the last entry and below kNoSelection.
  virtual void SetListIndex(int index) = 0;
  /// Both fail with error 381 where there is no such entry.
  [[nodiscard]] virtual std::int32_t ItemData(int index) const = 0;
  [[nodiscard]] virtual std::string List(int index) const = 0;
  /// Text of the selected entry; fails with error 381 without a selection.
  [[nodiscard]] std::string Text() const { return List(ListIndex()); }

  /// The list index changed, by a person or by code, to kNoSelection too.
  Event<> Click;
};

}  // namespace brivane::host
