#include "examples/windows/container/Events.h"

namespace example {

namespace {

// Of the dispinterface DVrijeKolomEvents.
constexpr DISPID kRefreshTopDisplay = 1;
constexpr DISPID kHeightChanged = 2;

}  // namespace

HRESULT Events::Connect(IUnknown& editor) {
  const auto points = brivane::component::ComPtr<IUnknown>(&editor).As<IConnectionPointContainer>();
  const HRESULT found = points->FindConnectionPoint(DIID_DVrijeKolomEvents, point_.Put());
  return SUCCEEDED(found) ? point_->Advise(this, &cookie_) : found;
}

void Events::Disconnect() {
  if (point_) point_->Unadvise(cookie_);
  point_.Reset();
}

STDMETHODIMP Events::QueryInterface(REFIID iid, void** out) {
  *out = iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID_DVrijeKolomEvents ? this : nullptr;
  if (!*out) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Events::Release() {
  const ULONG left = --count_;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP Events::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP Events::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) {
  if (event == kRefreshTopDisplay && refreshTopDisplay && arguments->cArgs == 1 && arguments->rgvarg[0].vt == VT_BSTR)
    refreshTopDisplay(arguments->rgvarg[0].bstrVal ? arguments->rgvarg[0].bstrVal : L"");
  if (event == kHeightChanged && heightChanged) heightChanged();
  return S_OK;
}

}  // namespace example
