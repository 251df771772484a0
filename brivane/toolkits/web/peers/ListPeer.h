#pragma once

#include <brivane/controls/ListBox.h>
#include <brivane/controls/entry/TypeAhead.h>
#include <brivane/toolkits/web/peers/NodePeer.h>

namespace brivane::web {

/// Shows a list by a `select` in which passing by is not choosing: what the keys lead to while it is closed is a choice
/// under way, handed over by Enter or when the list is left, and taken back by Escape. So is what was picked in the
/// open list: the page tells by what key that was closed.
class ListPeer final : public NodePeer {
 public:
  ListPeer(controls::ListBox& list, web::Toolkit& toolkit);
  ~ListPeer() override;

  void Refresh(controls::Aspect aspect) override;
  bool OnKey(const Key& key) override;
  void OnLeft() override { (void)HandOver(); }
  [[nodiscard]] bool MindsBeingLeft() const override { return IsUnderWay(); }
  void OnPicked(int index) override;
  bool HandOver() override;
  void PutBack();

 private:
  [[nodiscard]] bool IsUnderWay() const { return shown_ != list_.ListIndex(); }
  void Show(int index);
  bool GoTo(int index);
  void Choose(int index);
  [[nodiscard]] int EntryTyped(const std::string& character);

  controls::ListBox& list_;
  controls::TypeAhead typed_;
  int shown_ = host::kNoSelection;
};

}  // namespace brivane::web
