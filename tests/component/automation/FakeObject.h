#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "component/automation/ComPtr.h"
#include "component/automation/Variant.h"

namespace brivane::component {

/// How a member of a fake object was reached.
struct Access {
  std::wstring member;
  WORD flags;
  std::vector<Variant> arguments;  ///< in their order; a value that is put comes last
};

/// An object of a host that was compiled: late-bound through IDispatch, each member a function. A value that is put
/// is answered from then on. It remembers how it was reached.
class FakeObject final : public IDispatch {
 public:
  using Member = std::function<Variant(const std::vector<Variant>& arguments)>;

  [[nodiscard]] static ComPtr<FakeObject> Make() { return ComPtr<FakeObject>::Attach(new FakeObject); }
  static inline int alive = 0;
  static inline int reached = 0;  ///< the members of any of them, and the names that were looked up

  std::map<std::wstring, Member> members;
  std::vector<Access> accesses;
  /// What the next call fails with, as an error record.
  std::function<HRESULT(EXCEPINFO&)> failure;
  /// Called with the raw arguments, last first, before anything else.
  std::function<void(DISPPARAMS&)> raw;

  [[nodiscard]] ComPtr<IDispatch> Dispatch() { return ComPtr<IDispatch>(this); }
  void Answers(const std::wstring& member, Variant value) {
    members[member] = [value = std::move(value)](const auto&) { return value; };
  }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    *out = iid == IID_IUnknown || iid == IID_IDispatch ? this : nullptr;
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --count_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    ++lookups;
    ++reached;
    DISPID id = 1;
    for (const auto& [name, member] : members) {
      if (name == names[0]) {
        *ids = id;
        return S_OK;
      }
      ++id;
    }
    return DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* info,
                      UINT*) override {
    ++reached;
    if (raw) raw(*arguments);
    if (failure) {
      const HRESULT failed = failure(*info);
      return failed;
    }
    auto member = std::next(members.begin(), id - 1);
    std::vector<Variant> list;
    for (UINT i = arguments->cArgs; i > 0; --i) list.push_back(Variant::CopyOf(arguments->rgvarg[i - 1]));
    accesses.push_back({member->first, flags, list});
    if (flags == DISPATCH_PROPERTYPUT && list.size() == 1) {
      Answers(member->first, list[0]);
      return S_OK;
    }
    Variant value = member->second(list);
    if (result) value.MoveTo(result);
    return S_OK;
  }

  int lookups = 0;

 private:
  FakeObject() { ++alive; }
  ~FakeObject() { --alive; }

  ULONG count_ = 1;
};

}  // namespace brivane::component
