#pragma once

#include <cstddef>
#include <string>

#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// The report list: column headers and keyed rows. Texts are UTF-8. It raises nothing. An index that it does not have
/// fails with error 9.
class ListView : public Control {
 public:
  /// Takes away every column header.
  virtual void ClearColumns() = 0;
  /// Adds a left-aligned column header.
  virtual void AddColumn(const std::string& heading, Twips width) = 0;
  /// Takes away every row, and with it the selection.
  virtual void ClearItems() = 0;
  /// Inserts a row at an index from 1; the key names it for who looks for it later.
  virtual void AddItem(std::size_t index, const std::string& key, const std::string& text) = 0;
  /// Adds the next sub-item to the row at an index from 1.
  virtual void AddSubItem(std::size_t index, const std::string& text) = 0;

  /// How many rows there are, and how many sub-items a row has; a row by its index from 1.
  /// @{
  [[nodiscard]] virtual std::size_t ItemCount() const = 0;
  [[nodiscard]] virtual std::size_t SubItemCount(std::size_t index) const = 0;
  /// @}
  /// The key that a row was added with.
  [[nodiscard]] virtual std::string Key(std::size_t index) const = 0;

  /// Index of the selected row from 1, or 0 for none.
  [[nodiscard]] virtual std::size_t Selected() const = 0;
  /// Selects a row, and 0 none.
  virtual void Select(std::size_t index) = 0;
  /// Whether the text of a row, without its sub-items, is bold.
  [[nodiscard]] virtual bool Bold(std::size_t index) const = 0;
  virtual void SetBold(std::size_t index, bool bold) = 0;
  /// Makes a sub-item bold, counted from 1 in a row counted from 1.
  virtual void SetSubItemBold(std::size_t index, std::size_t subItem, bool bold) = 0;
};

}  // namespace brivane::host
