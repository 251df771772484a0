#include <utility>

#include <brivane/controls/ListBox.h>
#include <brivane/host/Error.h>

namespace brivane::controls {

ListBox::ListBox(const frame::Row& row, int index, Surface* owner, AnyControl* container, float fontSize)
    : ControlOf(row, index, owner, container, fontSize) {
  entries_.reserve(row.entries.size());
  for (const frame::ListEntry& entry : row.entries) entries_.push_back({std::string(entry.text), entry.itemData});
}

const ListBox::Entry& ListBox::At(int index) const {
  if (index < 0 || index >= ListCount()) throw host::Error(host::ErrorNumber::NoSuchListEntry);
  return entries_[static_cast<std::size_t>(index)];
}

void ListBox::Clear() {
  if (entries_.empty()) return;
  entries_.clear();
  index_ = host::kNoSelection;
  Notify(Aspect::Entries);
}

void ListBox::Add(const std::string& text, std::int32_t itemData) {
  entries_.push_back({text, itemData});
  Notify(Aspect::EntryAdded);
}

void ListBox::SetListIndex(int index) {
  if (index != host::kNoSelection) (void)At(index);
  const bool changed = std::exchange(index_, index) != index;
  // Also where it stood already: a choice that a person has under way is shown no more.
  Notify(Aspect::ListIndex);
  if (changed) Click.Raise();
}

Outcome ListBox::Act(const Action& action) {
  const auto* choose = std::get_if<Choose>(&action);
  if (choose == nullptr || choose->index < 0 || choose->index >= ListCount()) return Outcome::Ignored;
  SetListIndex(choose->index);
  return Outcome::Done;
}

void ListBox::CopyFrom(const AnyControl& original) {
  ControlOf::CopyFrom(original);
  const auto& list = static_cast<const ListBox&>(original);
  entries_ = list.entries_;
  index_ = list.index_;
}

}  // namespace brivane::controls
