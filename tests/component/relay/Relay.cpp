// The relay of the tests: BrivaneTest.Relay.

#include <initguid.h>

#include <vector>

#include "Relay_idl.h"
#include "component/automation/Dispatching.h"
#include "component/testdoor/Interfaces.h"
#include "tests/component/relay/EventSink.h"

namespace brivane::relay {

using namespace component;

namespace {

constexpr const wchar_t* kProgId = L"Software\\Classes\\BrivaneTest.Relay";
constexpr const wchar_t* kClass = L"Software\\Classes\\CLSID\\{6B0C2F59-3D64-4C39-9A55-0B2F0E7D8D11}";

class Relay final : public DualObject<IRelay> {
 public:
  ~Relay() override { EndAll(); }

  STDMETHODIMP Door(IDispatch* object, IDispatch** door) override {
    return Answering<IRelay>([&] {
      const auto holder = ComPtr<IDispatch>(object).As<ITestDoorHolder>();
      ComPtr<ITestDoor> opened;
      Check(holder ? holder->TestDoor(opened.Put()) : E_NOINTERFACE);
      Check(opened.As<IDispatch>().CopyTo(door));
    });
  }
  STDMETHODIMP Listen(IDispatch* object, IDispatch* listener) override {
    return Answering<IRelay>([&] { sinks_.push_back(EventSink::Connect(object, listener)); });
  }
  STDMETHODIMP Silence() override {
    return Answering<IRelay>([&] { EndAll(); });
  }
  STDMETHODIMP get_Loaded(VARIANT_BOOL* loaded) override {
    CoFreeUnusedLibrariesEx(0, 0);
    *loaded = GetModuleHandleW(L"BrivaneVrijeKolomTest.dll") ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }
  STDMETHODIMP Make(BSTR progId, IDispatch** object) override {
    return Answering<IRelay>([&] {
      CLSID id{};
      Check(CLSIDFromProgID(progId, &id));
      Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object)));
    });
  }
  STDMETHODIMP Same(IDispatch* one, IDispatch* other, VARIANT_BOOL* same) override {
    *same = ComPtr<IDispatch>(one).IsSameObject(ComPtr<IDispatch>(other)) ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }

 private:
  void EndAll() {
    for (const auto& sink : std::exchange(sinks_, {})) sink->Disconnect();
  }

  std::vector<ComPtr<EventSink>> sinks_;
};

class Factory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
    *out = static_cast<IClassFactory*>(this);
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
    *out = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    return ComPtr<Relay>::Attach(new Relay)->QueryInterface(iid, out);
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

LSTATUS Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(),
                         static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

}  // namespace

}  // namespace brivane::relay

using namespace brivane::relay;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) brivane::component::module::Attach(instance);
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, LPVOID* out) {
  static Factory factory;
  *out = nullptr;
  return id == CLSID_Relay ? factory.QueryInterface(iid, out) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() { return S_FALSE; }

STDAPI DllRegisterServer() {
  const std::wstring key = kClass;
  const bool done =
      Write(std::wstring(kProgId) + L"\\CLSID", nullptr, L"{6B0C2F59-3D64-4C39-9A55-0B2F0E7D8D11}") == 0 &&
      Write(key + L"\\InprocServer32", nullptr, brivane::component::module::Path()) == 0 &&
      Write(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment") == 0;
  return done ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProgId);
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kClass);
  return S_OK;
}
