#pragma once

#include "tests/component/replay/LateBound.h"
#include <brivane/host/controls/ListBox.h>

namespace brivane::latebound {

/// A list that the component hands to the host to fill, as the host's own code knows lists.
class ForeignList final : public host::ListBox {
 public:
  explicit ForeignList(Ptr<IDispatch> list) : list_(std::move(list)) {}

  void Clear() override { (void)Call(*list_.get(), L"Clear"); }
  void Add(const std::string& text, std::int32_t itemData) override {
    (void)Call(*list_.get(), L"AddItem", {ToVariant(text), ToVariant(itemData)});
  }
  [[nodiscard]] int ListCount() const override { return Number(L"ListCount"); }
  [[nodiscard]] int ListIndex() const override { return Number(L"ListIndex"); }
  void SetListIndex(int index) override { Put(*list_.get(), L"ListIndex", {ToVariant(index)}); }
  [[nodiscard]] std::int32_t ItemData(int index) const override {
    return FromVariant<std::int32_t>(Get(*list_.get(), L"ItemData", {ToVariant(index)}).get());
  }
  [[nodiscard]] std::string List(int index) const override {
    return FromVariant<std::string>(Get(*list_.get(), L"List", {ToVariant(index)}).get());
  }

  // What a host that fills a list has no business with.
  [[nodiscard]] std::string_view Name() const override { Refuse(); }
  [[nodiscard]] host::Kind Kind() const override { return host::Kind::ListBox; }
  [[nodiscard]] bool Enabled() const override { Refuse(); }
  void SetEnabled(bool) override { Refuse(); }
  [[nodiscard]] bool Visible() const override { Refuse(); }
  void SetVisible(bool) override { Refuse(); }
  [[nodiscard]] host::Place Place() const override { Refuse(); }
  void Move(const host::Place&) override { Refuse(); }
  [[nodiscard]] std::optional<float> Read(host::Measure) const override { Refuse(); }
  void Write(host::Measure, float) override { Refuse(); }
  [[nodiscard]] std::optional<host::Color> BackColor() const override { Refuse(); }
  void SetBackColor(host::Color) override { Refuse(); }

 private:
  [[noreturn]] static void Refuse() { throw host::Error(host::ErrorNumber::Foreign); }
  [[nodiscard]] std::int32_t Number(const wchar_t* member) const {
    return FromVariant<std::int32_t>(Get(*list_.get(), member).get());
  }

  Ptr<IDispatch> list_;
};

}  // namespace brivane::latebound
