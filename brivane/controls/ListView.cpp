#include <brivane/controls/ListView.h>
#include <brivane/host/Error.h>

namespace brivane::controls {

namespace {

void RequireIndex(std::size_t index, std::size_t count) {
  if (index < 1 || index > count) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
}

}  // namespace

const ListView::Item& ListView::At(std::size_t index) const {
  RequireIndex(index, items_.size());
  return items_[index - 1];
}

ListView::Item& ListView::At(std::size_t index) {
  RequireIndex(index, items_.size());
  return items_[index - 1];
}

void ListView::ClearColumns() {
  if (columns_.empty()) return;
  columns_.clear();
  Notify(Aspect::Columns);
}

void ListView::AddColumn(const std::string& heading, host::Twips width) {
  columns_.push_back({heading, width});
  Notify(Aspect::Columns);
}

void ListView::ClearItems() {
  if (items_.empty()) return;
  items_.clear();
  selected_ = 0;
  Notify(Aspect::Rows);
}

void ListView::AddItem(std::size_t index, const std::string& key, const std::string& text) {
  RequireIndex(index, items_.size() + 1);
  items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(index - 1), Item{key, {Cell{text}}});
  if (selected_ >= index) ++selected_;  // the selection stays with its row
  Notify(Aspect::Rows);
}

void ListView::AddSubItem(std::size_t index, const std::string& text) {
  At(index).cells.push_back({text});
  Notify(Aspect::Rows);
}

void ListView::Select(std::size_t index) {
  if (index != 0) (void)At(index);
  Assign(selected_, index, Aspect::Selection);
}

void ListView::SetBold(std::size_t index, bool bold) { Assign(At(index).cells.front().bold, bold, Aspect::Rows); }

void ListView::SetSubItemBold(std::size_t index, std::size_t subItem, bool bold) {
  Item& item = At(index);
  RequireIndex(subItem, item.cells.size() - 1);
  Assign(item.cells[subItem].bold, bold, Aspect::Rows);
}

void ListView::CopyFrom(const AnyControl& original) {
  ControlOf::CopyFrom(original);
  const auto& list = static_cast<const ListView&>(original);
  columns_ = list.columns_;
  items_ = list.items_;
  selected_ = list.selected_;
}

}  // namespace brivane::controls
