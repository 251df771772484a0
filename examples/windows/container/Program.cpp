// The editor in a window of one's own, as a control of the component library.
//
//     regsvr32 BrivaneVrijeKolom.dll
//     container_example
//
//     container_example --library BrivaneVrijeKolom.dll    without registering it
//     container_example --quit                             shows the window and leaves, to try the build
#include <cstring>
#include <string>

#include "examples/windows/container/Host.h"
#include "examples/windows/container/MainWindow.h"

namespace {

/// Makes the editor's class known to this process alone, from a library that need not be registered.
HRESULT UseLibrary(const std::wstring& file) {
  const HMODULE library = ::LoadLibraryW(file.c_str());
  if (!library) return HRESULT_FROM_WIN32(::GetLastError());
  using GetClass = HRESULT WINAPI(REFCLSID, REFIID, void**);
  GetClass* get = nullptr;
  const FARPROC found = ::GetProcAddress(library, "DllGetClassObject");
  std::memcpy(&get, &found, sizeof get);
  if (!get) return E_FAIL;
  brivane::component::ComPtr<IUnknown> factory;
  const HRESULT hr = get(CLSID_VrijeKolom, IID_IUnknown, reinterpret_cast<void**>(factory.Put()));
  DWORD cookie = 0;
  return FAILED(hr) ? hr
                    : ::CoRegisterClassObject(CLSID_VrijeKolom, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                              &cookie);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
  if (FAILED(::OleInitialize(nullptr))) return 1;
  const std::wstring arguments = commandLine;
  const std::wstring option = L"--library ";
  HRESULT hr = S_OK;
  if (arguments.starts_with(option)) hr = UseLibrary(arguments.substr(option.size()));
  {
    example::MainWindow window;
    if (SUCCEEDED(hr)) hr = window.Open(example::NewApplication(window.Handle()).Get());
    if (SUCCEEDED(hr) && arguments == L"--quit") ::PostMessageW(window.Handle(), WM_CLOSE, 0, 0);
    if (SUCCEEDED(hr)) window.Run();
  }
  ::OleUninitialize();
  return SUCCEEDED(hr) ? 0 : 1;
}
