// What the system calls of the library by name.

#include <string_view>

#include "component/automation/Errors.h"
#include "component/automation/Module.h"
#include "component/objects/ClassFactory.h"
#include "component/registration/Registration.h"

namespace component = brivane::component;

namespace {

/// Answers the result of a body, or that of its failure.
template <class Body> HRESULT Outcome(Body&& body) noexcept {
  HRESULT result = E_UNEXPECTED;
  const HRESULT failure = component::Answering<IUnknown>([&] { result = body(); });
  return FAILED(failure) ? failure : result;
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, LPVOID* out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  const component::LibraryClass* const entry = component::FindClass(id);
  if (!entry) return CLASS_E_CLASSNOTAVAILABLE;
  return Outcome([&] {
    const auto factory = component::ComPtr<IClassFactory>::Attach(component::NewClassFactory(*entry));
    return factory->QueryInterface(iid, out);
  });
}

STDAPI DllCanUnloadNow() { return component::module::CanUnload() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() {
  return Outcome([] { return component::Register(component::module::Path()); });
}

STDAPI DllUnregisterServer() {
  return Outcome([] { return component::Unregister(); });
}

/// `regsvr32 /n /i:user` registers for the current user alone, whatever the rights; with /u that is taken away.
STDAPI DllInstall(BOOL install, LPCWSTR whom) {
  return Outcome([&] {
    const bool userAlone = whom && std::wstring_view(whom) == L"user";
    if (!userAlone) return install ? component::Register(component::module::Path()) : component::Unregister();
    return install ? component::Register(component::Scope::CurrentUser, component::module::Path())
                   : component::Unregister(component::Scope::CurrentUser);
  });
}
