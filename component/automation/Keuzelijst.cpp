#include "component/automation/Keuzelijst.h"

#include "component/automation/Dispatching.h"
#include "component/automation/Text.h"
#include "component/idl/Interfaces.h"

namespace brivane::component {

class LentKeuzelijst::Keuzelijst final : public DualObject<IKeuzelijst> {
 public:
  explicit Keuzelijst(host::ListBox& lijst) : lijst_(&lijst) {}

  void TakeBack() { lijst_ = nullptr; }

  STDMETHODIMP Clear() override {
    return OnList([](host::ListBox& lijst) { lijst.Clear(); });
  }
  STDMETHODIMP AddItem(BSTR tekst, LONG itemData) override {
    return OnList([&](host::ListBox& lijst) { lijst.Add(FromBstr(tekst), itemData); });
  }
  STDMETHODIMP get_ListCount(LONG* aantal) override {
    return OfList(aantal, [&](host::ListBox& lijst) { return lijst.ListCount(); });
  }
  STDMETHODIMP get_ListIndex(LONG* index) override {
    return OfList(index, [&](host::ListBox& lijst) { return lijst.ListIndex(); });
  }
  STDMETHODIMP put_ListIndex(LONG index) override {
    return OnList([&](host::ListBox& lijst) { lijst.SetListIndex(index); });
  }
  STDMETHODIMP get_ItemData(LONG index, LONG* data) override {
    return OfList(data, [&](host::ListBox& lijst) { return lijst.ItemData(index); });
  }
  STDMETHODIMP get_List(LONG index, BSTR* tekst) override {
    return OfList(tekst, [&](host::ListBox& lijst) { return NewBstr(lijst.List(index)); });
  }
  STDMETHODIMP get_Text(BSTR* tekst) override {
    return OfList(tekst, [&](host::ListBox& lijst) { return NewBstr(lijst.Text()); });
  }

 private:
  template <class Body> HRESULT OnList(Body&& body) {
    return Answering<IKeuzelijst>([&] { body(host::Need(lijst_)); });
  }
  template <class Value, class Body> HRESULT OfList(Value* place, Body&& body) {
    return Handing<IKeuzelijst>(place, [&] { return body(host::Need(lijst_)); });
  }

  host::ListBox* lijst_;
};

LentKeuzelijst::LentKeuzelijst(host::ListBox& lijst) : object_(new Keuzelijst(lijst)) {}

LentKeuzelijst::~LentKeuzelijst() {
  object_->TakeBack();
  object_->Release();
}

IDispatch* LentKeuzelijst::Object() const { return object_; }

}  // namespace brivane::component
