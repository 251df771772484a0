#pragma once

#include <string>
#include <vector>

#include <brivane/controls/Control.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/ListView.h>

namespace brivane::controls {

/// The report list. An index or sub-item that it does not have fails with error 9.
class BRIVANE_API ListView final : public ControlOf<host::ListView> {
 public:
  /// A column.
  struct Column {
    std::string heading;  ///< UTF-8
    host::Twips width;    ///< as it was added
    friend bool operator==(const Column&, const Column&) = default;
  };
  /// What stands in a row under a column.
  struct Cell {
    std::string text;   ///< UTF-8
    bool bold = false;  ///< whether it is marked
    friend bool operator==(const Cell&, const Cell&) = default;
  };
  /// A row: its key, and a cell for its text and for each sub-item.
  struct Item {
    std::string key;          ///< shown nowhere
    std::vector<Cell> cells;  ///< the text first
    friend bool operator==(const Item&, const Item&) = default;
  };

  using ControlOf::ControlOf;

  void ClearColumns() override;
  void AddColumn(const std::string& heading, host::Twips width) override;
  void ClearItems() override;
  void AddItem(std::size_t index, const std::string& key, const std::string& text) override;
  void AddSubItem(std::size_t index, const std::string& text) override;
  [[nodiscard]] std::size_t ItemCount() const override { return items_.size(); }
  [[nodiscard]] std::size_t SubItemCount(std::size_t index) const override { return At(index).cells.size() - 1; }
  [[nodiscard]] std::string Key(std::size_t index) const override { return At(index).key; }
  [[nodiscard]] std::size_t Selected() const override { return selected_; }
  void Select(std::size_t index) override;
  [[nodiscard]] bool Bold(std::size_t index) const override { return At(index).cells.front().bold; }
  void SetBold(std::size_t index, bool bold) override;
  void SetSubItemBold(std::size_t index, std::size_t subItem, bool bold) override;

  /// All of them in their order; until the next change.
  /// @{
  [[nodiscard]] const std::vector<Column>& Columns() const { return columns_; }
  [[nodiscard]] const std::vector<Item>& Items() const { return items_; }
  /// @}

 protected:
  void CopyFrom(const AnyControl& original) override;

 private:
  [[nodiscard]] const Item& At(std::size_t index) const;
  [[nodiscard]] Item& At(std::size_t index);

  std::vector<Column> columns_;
  std::vector<Item> items_;
  std::size_t selected_ = 0;
};

}  // namespace brivane::controls
