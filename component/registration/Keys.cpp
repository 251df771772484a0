#include "component/registration/Keys.h"

#include <array>

#include "component/automation/Bstr.h"
#include "component/automation/Errors.h"
#include "component/automation/Module.h"
#include "component/control/MiscStatus.h"
#include "component/idl/Interfaces.h"
#include "component/objects/LibraryClasses.h"

namespace brivane::component {

namespace {

#ifdef _WIN64
constexpr const wchar_t* kPlatform = L"win64";
#else
constexpr const wchar_t* kPlatform = L"win32";
#endif
constexpr const wchar_t* kLibrary = L"BrivaneVrijeKolom";
/// The one verb of a control on its container's menu: its name, flags of the menu, and where it stands.
constexpr const wchar_t* kVerb = L"&Bewerken, 0, 2";
/// The category of controls.
constexpr const wchar_t* kControls = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
/// What the system carries calls of Automation between apartments with: of dual interfaces, and of the others.
constexpr const wchar_t* kDualMarshaler = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* kDispatchMarshaler = L"{00020420-0000-0000-C000-000000000046}";

std::wstring Text(const GUID& id) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

std::wstring Version() { return std::to_wstring(kMajor) + L'.' + std::to_wstring(kMinor); }
std::wstring FolderOf(const std::wstring& path) { return path.substr(0, path.find_last_of(L"\\/")); }
std::wstring ProgId(const LibraryClass& entry) { return std::wstring(kLibrary) + L'.' + entry.name; }
std::wstring VersionedProgId(const LibraryClass& entry) { return ProgId(entry) + L'.' + std::to_wstring(kMajor); }
std::wstring ClassKey(const LibraryClass& entry) { return L"CLSID\\" + Text(entry.id); }

/// What a description says of itself. It must not outlive the description.
class TypeAttributes {
 public:
  explicit TypeAttributes(ITypeInfo& info) : info_(info) { Check(info_.GetTypeAttr(&attributes_)); }
  TypeAttributes(const TypeAttributes&) = delete;
  TypeAttributes& operator=(const TypeAttributes&) = delete;
  ~TypeAttributes() { info_.ReleaseTypeAttr(attributes_); }

  const TYPEATTR* operator->() const { return attributes_; }

 private:
  ITypeInfo& info_;
  TYPEATTR* attributes_ = nullptr;
};

struct InterfaceEntry {
  IID id;
  std::wstring name;
  const wchar_t* marshaler;
};

/// The interfaces of the type library that another apartment can be handed.
std::vector<InterfaceEntry> Interfaces() {
  const ComPtr<ITypeLib> library = module::TypeLibrary(module::kOwnTypeLibrary);
  std::vector<InterfaceEntry> interfaces;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    Check(library->GetTypeInfo(i, info.Put()));
    const TypeAttributes attributes(*info.Get());
    if (attributes->typekind != TKIND_DISPATCH && attributes->typekind != TKIND_INTERFACE) continue;
    const bool isDual = attributes->wTypeFlags & TYPEFLAG_FDUAL;
    Bstr name;
    Check(library->GetDocumentation(static_cast<INT>(i), name.Put(), nullptr, nullptr, nullptr));
    interfaces.push_back({attributes->guid, std::wstring(name.View()), isDual ? kDualMarshaler : kDispatchMarshaler});
  }
  return interfaces;
}

void AddControl(std::vector<KeyValue>& values, const LibraryClass& entry, const std::wstring& path) {
  const std::wstring key = ClassKey(entry);
  values.push_back({key + L"\\Control", L"", L""});
  values.push_back({key + L"\\MiscStatus", L"", L"0"});
  values.push_back({key + L"\\MiscStatus\\" + std::to_wstring(DVASPECT_CONTENT), L"", std::to_wstring(kMiscStatus)});
  values.push_back({key + L"\\ToolboxBitmap32", L"", path + L", " + std::to_wstring(entry.bitmap)});
  values.push_back({key + L"\\Verb\\" + std::to_wstring(OLEIVERB_PRIMARY), L"", kVerb});
  values.push_back({key + L"\\Implemented Categories\\" + kControls, L"", L""});
}

void AddClass(std::vector<KeyValue>& values, const LibraryClass& entry, const std::wstring& path) {
  const std::wstring key = ClassKey(entry);
  values.push_back({key, L"", entry.description});
  values.push_back({key + L"\\InprocServer32", L"", path});
  values.push_back({key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
  values.push_back({key + L"\\ProgID", L"", VersionedProgId(entry)});
  values.push_back({key + L"\\VersionIndependentProgID", L"", ProgId(entry)});
  values.push_back({key + L"\\Programmable", L"", L""});
  values.push_back({key + L"\\TypeLib", L"", Text(LIBID_BrivaneVrijeKolom)});
  values.push_back({key + L"\\Version", L"", Version()});
  if (entry.usage == Usage::Control) AddControl(values, entry, path);

  values.push_back({ProgId(entry), L"", entry.description});
  values.push_back({ProgId(entry) + L"\\CLSID", L"", Text(entry.id)});
  values.push_back({ProgId(entry) + L"\\CurVer", L"", VersionedProgId(entry)});
  values.push_back({VersionedProgId(entry), L"", entry.description});
  values.push_back({VersionedProgId(entry) + L"\\CLSID", L"", Text(entry.id)});
}

void AddTypeLibrary(std::vector<KeyValue>& values, const std::wstring& path) {
  const std::wstring key = TypeLibraryKey() + L'\\' + Version();
  values.push_back({key, L"", L"Brivane vrije kolom"});
  values.push_back({PlatformKey(), L"", path});
  values.push_back({key + L"\\FLAGS", L"", L"0"});
  values.push_back({key + L"\\HELPDIR", L"", FolderOf(path)});
  for (const InterfaceEntry& entry : Interfaces()) {
    const std::wstring interfaceKey = L"Interface\\" + Text(entry.id);
    values.push_back({interfaceKey, L"", entry.name});
    values.push_back({interfaceKey + L"\\ProxyStubClsid32", L"", entry.marshaler});
    values.push_back({interfaceKey + L"\\TypeLib", L"", Text(LIBID_BrivaneVrijeKolom)});
    values.push_back({interfaceKey + L"\\TypeLib", L"Version", Version()});
  }
}

}  // namespace

std::wstring TypeLibraryKey() { return L"TypeLib\\" + Text(LIBID_BrivaneVrijeKolom); }

std::wstring PlatformKey() { return TypeLibraryKey() + L'\\' + Version() + L"\\0\\" + kPlatform; }

std::vector<KeyValue> ValuesFor(const std::wstring& path) {
  std::vector<KeyValue> values;
  for (const LibraryClass& entry : LibraryClasses()) AddClass(values, entry, path);
  AddTypeLibrary(values, path);
  return values;
}

std::vector<std::wstring> OwnKeys() {
  std::vector<std::wstring> keys;
  for (const LibraryClass& entry : LibraryClasses()) {
    keys.push_back(ClassKey(entry));
    keys.push_back(ProgId(entry));
    keys.push_back(VersionedProgId(entry));
  }
  for (const InterfaceEntry& entry : Interfaces()) keys.push_back(L"Interface\\" + Text(entry.id));
  return keys;
}

}  // namespace brivane::component
