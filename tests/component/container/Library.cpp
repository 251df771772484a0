#include "tests/component/container/Library.h"

#include <cstring>
#include <utility>

namespace brivane::component::test {

namespace {

template <class Function> Function* Find(HMODULE module, const char* name) {
  Function* function = nullptr;
  const FARPROC found = ::GetProcAddress(module, name);
  std::memcpy(&function, &found, sizeof function);
  return function;
}

}  // namespace

Library::Library() : module_(::LoadLibraryW(BRIVANE_LIBRARY)) {
  if (module_) Reveal();
}

Library::~Library() {
  Revoke();
  if (module_) ::FreeLibrary(module_);
}

void Library::Reveal() {
  using GetClass = HRESULT WINAPI(REFCLSID, REFIID, void**);
  auto* const get = Find<GetClass>(module_, "DllGetClassObject");
  const CLSID* const classes[] = {&CLSID_VrijeKolom, &CLSID_Toelichting};
  for (int i = 0; i < 2; ++i) {
    ComPtr<IUnknown> factory;
    get(*classes[i], IID_IUnknown, reinterpret_cast<void**>(factory.Put()));
    ::CoRegisterClassObject(*classes[i], factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookies_[i]);
  }
}

void Library::Revoke() {
  for (DWORD& cookie : cookies_)
    if (const DWORD old = std::exchange(cookie, 0)) ::CoRevokeClassObject(old);
}

bool Library::CanUnload() {
  Revoke();
  using Ask = HRESULT WINAPI();
  const bool can = Find<Ask>(module_, "DllCanUnloadNow")() == S_OK;
  Reveal();
  return can;
}

bool IsLibraryInMemory() { return ::GetModuleHandleW(BRIVANE_LIBRARY) != nullptr; }

void Pump() {
  MSG message{};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

}  // namespace brivane::component::test
