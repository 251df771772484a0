#pragma once

#include <functional>
#include <string>

#include "component/automation/ComPtr.h"
#include "component/idl/Interfaces.h"

namespace example {

/// Listens to the editor's events as long as it is connected.
class Events final : public IDispatch {
 public:
  Events() = default;
  Events(const Events&) = delete;
  Events& operator=(const Events&) = delete;

  HRESULT Connect(IUnknown& editor);
  void Disconnect();

  std::function<void(const std::wstring& text)> refreshTopDisplay;
  std::function<void()> heightChanged;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override;

 private:
  ~Events() = default;

  ULONG count_ = 0;
  brivane::component::ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace example
