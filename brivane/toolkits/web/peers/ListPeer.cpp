#include <vector>

#include <brivane/toolkits/web/peers/ListPeer.h>

namespace brivane::web {

using controls::Aspect;

namespace {

/// A key that types one character, which is UTF-8; the others have names of several letters.
bool IsCharacter(const std::string& key) {
  const auto first = static_cast<unsigned char>(key.front());
  return key.size() == (first < 0x80 ? 1U : first < 0xE0 ? 2U : first < 0xF0 ? 3U : 4U);
}

}  // namespace

ListPeer::ListPeer(controls::ListBox& list, web::Toolkit& toolkit) : NodePeer(list, toolkit), list_(list) {
  Refresh(Aspect::Entries);
}

ListPeer::~ListPeer() {
  if (Toolkit().UnderWay() == this) Toolkit().SetUnderWay(nullptr);
}

void ListPeer::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Entries:
      Page().Show(Node(), aspect, 0);
      for (const auto& entry : list_.Entries()) ShowText(Aspect::EntryAdded, entry.text);
      return PutBack();
    case Aspect::EntryAdded: ShowText(aspect, list_.Entries().back().text); return PutBack();
    case Aspect::ListIndex: return PutBack();
    default: return NodePeer::Refresh(aspect);
  }
}

void ListPeer::Show(int index) {
  shown_ = index;
  if (IsUnderWay())
    Toolkit().SetUnderWay(this);
  else if (Toolkit().UnderWay() == this)
    Toolkit().SetUnderWay(nullptr);
  Page().Show(Node(), Aspect::ListIndex, index);
}

void ListPeer::PutBack() {
  typed_.Forget();
  Show(list_.ListIndex());
}

bool ListPeer::GoTo(int index) {
  typed_.Forget();
  if (index >= 0 && index < list_.ListCount()) Show(index);
  return true;
}

void ListPeer::Choose(int index) {
  web::Toolkit& toolkit = Toolkit();
  const NodeId node = Node();
  const std::shared_ptr<const controls::Life> life = toolkit.Life();
  if (index == list_.ListIndex()) return PutBack();
  // Under way no more while it is handed over.
  if (toolkit.UnderWay() == this) toolkit.SetUnderWay(nullptr);
  toolkit.Act(list_, controls::Choose{index});
  if (!life->Ended() && toolkit.Find(node) == this) PutBack();
}

bool ListPeer::HandOver() {
  if (IsUnderWay()) Choose(shown_);
  return true;
}

void ListPeer::OnPicked(int index) { (void)GoTo(index); }

int ListPeer::EntryTyped(const std::string& character) {
  std::vector<std::string> entries;
  for (const auto& entry : list_.Entries()) entries.push_back(entry.text);
  return typed_.Type(entries, shown_, character, web::Page::Now());
}

bool ListPeer::OnKey(const Key& key) {
  if (!key.IsPlain() || key.name.empty()) return false;
  if (IsCharacter(key.name) && (key.name != " " || typed_.GoesOn(web::Page::Now()))) {
    Show(EntryTyped(key.name));
    return true;
  }
  if (key.name == "ArrowUp" || key.name == "PageUp") return GoTo(shown_ - 1);
  if (key.name == "ArrowDown" || key.name == "PageDown") return GoTo(shown_ + 1);
  if (key.name == "Home") return GoTo(0);
  if (key.name == "End") return GoTo(list_.ListCount() - 1);
  if (!IsUnderWay()) return false;
  if (key.name == "Enter") return HandOver();
  if (key.name != "Escape") return false;
  PutBack();
  return true;
}

}  // namespace brivane::web
