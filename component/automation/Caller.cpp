#include "component/automation/Caller.h"

#include <dispex.h>

#include "component/automation/Counted.h"

namespace brivane::component {

namespace {

/// A script may hold it after the call.
class Caller final : public Counted<IServiceProvider, ICanHandleException> {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (iid == IID_IUnknown || iid == __uuidof(IServiceProvider)) *out = static_cast<IServiceProvider*>(this);
    if (iid == __uuidof(ICanHandleException)) *out = static_cast<ICanHandleException*>(this);
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  STDMETHODIMP QueryService(REFGUID service, REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    return service == __uuidof(ICanHandleException) ? QueryInterface(iid, out) : E_NOINTERFACE;
  }

  STDMETHODIMP CanHandleException(EXCEPINFO*, VARIANT*) override { return S_OK; }
};

}  // namespace

ComPtr<IServiceProvider> NewCaller() { return ComPtr<IServiceProvider>::Attach(new Caller); }

}  // namespace brivane::component
