// The relay of the tests: BrivaneProef.Relais.

#include <initguid.h>

#include <vector>

#include "Relais_idl.h"
#include "component/automation/Dispatching.h"
#include "component/testdoor/Interfaces.h"
#include "tests/component/relay/EventSink.h"

namespace brivane::proef {

using namespace component;

namespace {

constexpr const wchar_t* kProgId = L"Software\\Classes\\BrivaneProef.Relais";
constexpr const wchar_t* kClass = L"Software\\Classes\\CLSID\\{6B0C2F59-3D64-4C39-9A55-0B2F0E7D8D11}";

class Relais final : public DualObject<IRelais> {
 public:
  ~Relais() override { Silence(); }

  STDMETHODIMP Deur(IDispatch* object, IDispatch** door) override {
    return Answering<IRelais>([&] {
      const auto holder = ComPtr<IDispatch>(object).As<IProefdeurHouder>();
      ComPtr<IProefdeur> opened;
      Check(holder ? holder->Proefdeur(opened.Put()) : E_NOINTERFACE);
      Check(opened.As<IDispatch>().CopyTo(door));
    });
  }
  STDMETHODIMP Luister(IDispatch* object, IDispatch* listener) override {
    return Answering<IRelais>([&] { sinks_.push_back(EventSink::Connect(object, listener)); });
  }
  STDMETHODIMP Zwijg() override {
    return Answering<IRelais>([&] { Silence(); });
  }
  STDMETHODIMP get_Geladen(VARIANT_BOOL* loaded) override {
    CoFreeUnusedLibrariesEx(0, 0);
    *loaded = GetModuleHandleW(L"BrivaneVrijeKolom.dll") ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }
  STDMETHODIMP Maak(BSTR progId, IDispatch** object) override {
    return Answering<IRelais>([&] {
      CLSID id{};
      Check(CLSIDFromProgID(progId, &id));
      Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object)));
    });
  }
  STDMETHODIMP Zelfde(IDispatch* one, IDispatch* other, VARIANT_BOOL* same) override {
    *same = ComPtr<IDispatch>(one).IsSameObject(ComPtr<IDispatch>(other)) ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }

 private:
  void Silence() {
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
    return ComPtr<Relais>::Attach(new Relais)->QueryInterface(iid, out);
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

LSTATUS Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(),
                         static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

}  // namespace

}  // namespace brivane::proef

using namespace brivane::proef;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) brivane::component::module::Attach(instance);
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, LPVOID* out) {
  static Factory factory;
  *out = nullptr;
  return id == CLSID_Relais ? factory.QueryInterface(iid, out) : CLASS_E_CLASSNOTAVAILABLE;
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
