#pragma once

#include "component/automation/Counted.h"
#include "component/automation/Errors.h"
#include "component/automation/Module.h"

namespace brivane::component {

/// The type library that describes an interface, by the number of its resource.
template <class Interface> inline constexpr int kTypeLibraryOf = module::kOwnTypeLibrary;

/// A dual interface's late-bound half, done by its type information, and the word that failures leave an error record.
template <class Interface> class Dispatching : public Interface, public ISupportErrorInfo {
 public:
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override { return iid == __uuidof(Interface) ? S_OK : S_FALSE; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
    if (!info) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return Answering<Interface>([&] { (void)Described().CopyTo(info); });
  }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    HRESULT result = E_UNEXPECTED;
    const HRESULT described = Answering<Interface>([&] { result = Described()->GetIDsOfNames(names, count, ids); });
    return FAILED(described) ? described : result;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* error,
                      UINT* argument) override {
    HRESULT answer = E_UNEXPECTED;
    const HRESULT described = Answering<Interface>([&] {
      // A record that somebody else left behind must not be taken for ours.
      SetErrorInfo(0, nullptr);
      answer = Described()->Invoke(static_cast<Interface*>(this), id, flags, arguments, result, error, argument);
      // Scripts know no numbers without a sign. A colour is the same number to them as to those who were compiled.
      if (SUCCEEDED(answer) && result && result->vt == VT_UI4) result->vt = VT_I4;
    });
    return FAILED(described) ? described : answer;
  }

 protected:
  ~Dispatching() = default;
  /// The interface with that identity, not counted, or nothing. IUnknown is that of `Interface`.
  [[nodiscard]] IUnknown* Own(REFIID iid) {
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Interface)) return static_cast<Interface*>(this);
    if (iid == IID_ISupportErrorInfo) return static_cast<ISupportErrorInfo*>(this);
    return nullptr;
  }
  [[nodiscard]] static ComPtr<ITypeInfo> Described() {
    return module::TypeInfo(kTypeLibraryOf<Interface>, __uuidof(Interface));
  }
};

/// A counted object with one dual interface that no class factory makes.
template <class Interface> class DualObject : public Counted<Dispatching<Interface>> {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = this->Own(iid);
    if (!*out) return E_NOINTERFACE;
    this->AddRef();
    return S_OK;
  }
};

}  // namespace brivane::component
