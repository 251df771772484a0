// The editor from a library that nobody registered: an activation context of the manifest beside it makes its classes
// known, for as long as the editor is being created.
//
//     unregistered_example                                              the library lies beside this program
//     unregistered_example C:\elsewhere\Brivane.VrijeKolom.manifest     or elsewhere
//
// A program that has a manifest of its own names the assembly Brivane.VrijeKolom in it, and needs none of this:
// container_example.exe.manifest shows how.
#include <cstdio>
#include <string>

#include "component/idl/Interfaces.h"
#include "examples/windows/container/Events.h"
#include "examples/windows/container/Host.h"
#include "examples/windows/unregistered/ActivationContext.h"

namespace {

using brivane::component::ComPtr;

bool IsKnown() {
  CLSID id{};
  return SUCCEEDED(::CLSIDFromProgID(L"BrivaneVrijeKolom.VrijeKolom", &id));
}

ComPtr<IVrijeKolom> NewEditor(const std::wstring& manifest) {
  const example::ActivationContext context(manifest);
  const example::ActivationContext::Active known(context);
  std::printf("known in the context: %s\n", IsKnown() ? "yes" : "no");
  ComPtr<IVrijeKolom> editor;
  ::CoCreateInstance(CLSID_VrijeKolom, nullptr, CLSCTX_INPROC_SERVER, IID_IVrijeKolom,
                     reinterpret_cast<void**>(editor.Put()));
  return editor;
}

/// Binds the editor to column 1 of the current situation, has it checked and lets go of the host.
bool Use(IVrijeKolom& editor) {
  const auto events = ComPtr<example::Events>(new example::Events);
  events->heightChanged = [] { std::puts("laid out"); };
  events->Connect(editor);

  const HRESULT bound = editor.SetApplication(example::NewApplication(nullptr).Get(), 0, 1);
  std::printf("bound: %s\n", bound == S_OK ? "yes" : "no");
  automation::Value cancel(false);
  const HRESULT checked = editor.Validation(&cancel.Raw(), 0);
  std::printf("refused: %s\n", cancel.Raw().boolVal == VARIANT_FALSE ? "no" : "yes");
  const HRESULT letGo = editor.SetApplication(nullptr, 0, 0);

  events->Disconnect();
  return bound == S_OK && checked == S_OK && letGo == S_OK;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (FAILED(::OleInitialize(nullptr))) return 1;
  std::printf("known before: %s\n", IsKnown() ? "yes" : "no");
  bool used = false;
  if (const auto editor =
          NewEditor(count > 1 ? arguments[1] : example::BesideThisProgram(L"Brivane.VrijeKolom.manifest"))) {
    std::printf("known afterwards: %s\n", IsKnown() ? "yes" : "no");
    used = Use(*editor.Get());
  }
  std::printf(used ? "done\n" : "no editor\n");
  ::OleUninitialize();
  return used ? 0 : 1;
}
