#pragma once

#include <map>
#include <string>

#include "component/automation/LateBound.h"

namespace brivane::relay {

/// Listens to an object's own events and hands each on to a member of the same name of another object.
class EventSink final : public IDispatch {
 public:
  EventSink(component::ComPtr<IDispatch> source, component::ComPtr<IDispatch> listener);
  /// Counted and connected; throws where the object has no events.
  [[nodiscard]] static component::ComPtr<EventSink> Connect(component::ComPtr<IDispatch> source,
                                                            component::ComPtr<IDispatch> listener);
  void Disconnect();

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* error, UINT* argument) override;

 private:
  ~EventSink() = default;

  component::ComPtr<IDispatch> source_;
  component::LateBound listener_;
  IID events_{};
  std::map<DISPID, std::wstring> names_;
  component::ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
  ULONG count_ = 1;
};

}  // namespace brivane::relay
