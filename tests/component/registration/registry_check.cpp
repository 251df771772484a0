// registry_check all|user|gone: compares what the registry holds of the library, for all users and for the current
// user, with what it must hold. Run from the folder of the library; ends with 0 when all is right.

#include <windows.h>

#include <cstdio>
#include <cwctype>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Values = std::map<std::wstring, std::wstring>;  // "key" or "key@name", and the value

struct ClassText {
  const wchar_t* id;
  const wchar_t* name;
  const wchar_t* description;
  const wchar_t* bitmap;  // nothing: no control
};

constexpr ClassText kClasses[]{
    {L"{9E623786-EB13-493A-A455-FD19036B8E3E}", L"VrijeKolom", L"Brivane vrije kolom", L"101"},
    {L"{D6A66BE5-9B91-482B-84E8-32A27398F8DE}", L"Toelichting", L"Brivane toelichting", L"102"},
    {L"{1F1DF8A8-6FED-4B5E-BAB9-9DEC1780F802}", L"frmScenario", L"Brivane scenario per jaar", nullptr}};

struct InterfaceText {
  const wchar_t* id;
  const wchar_t* name;
  bool dual;
};

constexpr InterfaceText kInterfaces[]{{L"{BC77270D-3D67-481D-ABF4-3DC2F2366DB0}", L"IVrijeKolom", true},
                                      {L"{D04D372A-057C-435B-9272-F24E5B182071}", L"IToelichting", true},
                                      {L"{D0F3427E-6B8F-4272-B91D-7A01A3976222}", L"IfrmScenario", true},
                                      {L"{96AD7658-EC15-4747-B2C1-A478A23E9F65}", L"DVrijeKolomEvents", false},
                                      {L"{9C9F9E0A-4DDE-47A2-ADD6-78A21D8E8DF0}", L"DToelichtingEvents", false},
                                      {L"{E69FA292-69C4-4051-86A6-F7099CB4024F}", L"IKeuzelijst", true},
                                      {L"{199125B5-D67A-4FF3-96CE-3B42DE48DD4D}", L"IProcedureTrace", true}};

const std::wstring kLibraryId = L"{9D3C9E98-DF70-481B-B98D-C42901F1DD65}";

std::wstring LibraryPath() {
  wchar_t path[MAX_PATH];
  GetFullPathNameW(L"BrivaneVrijeKolom.dll", MAX_PATH, path, nullptr);
  return path;
}

void ExpectClass(Values& values, const ClassText& text, const std::wstring& path) {
  const std::wstring key = std::wstring(L"CLSID\\") + text.id;
  const std::wstring progId = std::wstring(L"BrivaneVrijeKolom.") + text.name;
  values[key] = text.description;
  values[key + L"\\InprocServer32"] = path;
  values[key + L"\\InprocServer32@ThreadingModel"] = L"Apartment";
  values[key + L"\\ProgID"] = progId + L".1";
  values[key + L"\\VersionIndependentProgID"] = progId;
  values[key + L"\\Programmable"] = L"";
  values[key + L"\\TypeLib"] = kLibraryId;
  values[key + L"\\Version"] = L"1.0";
  if (text.bitmap) {
    values[key + L"\\Control"] = L"";
    values[key + L"\\MiscStatus"] = L"0";
    // 1 recompose on resize, 16 cannot be linked inside, 128 inside-out, 256 active when visible, 131072 site first
    values[key + L"\\MiscStatus\\1"] = L"131473";
    values[key + L"\\ToolboxBitmap32"] = path + L", " + text.bitmap;
    // Its only verb: no menu flags, on the container's menu.
    values[key + L"\\Verb\\0"] = L"&Bewerken, 0, 2";
    values[key + L"\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}"] = L"";
  }
  values[progId] = text.description;
  values[progId + L"\\CLSID"] = text.id;
  values[progId + L"\\CurVer"] = progId + L".1";
  values[progId + L".1"] = text.description;
  values[progId + L".1\\CLSID"] = text.id;
}

Values Expected() {
  const std::wstring path = LibraryPath();
  Values values;
  for (const ClassText& text : kClasses) ExpectClass(values, text, path);
  const std::wstring library = L"TypeLib\\" + kLibraryId + L"\\1.0";
  values[library] = L"Brivane vrije kolom";
  values[library + L"\\0\\win64"] = path;
  values[library + L"\\FLAGS"] = L"0";
  values[library + L"\\HELPDIR"] = path.substr(0, path.find_last_of(L'\\'));
  for (const InterfaceText& text : kInterfaces) {
    const std::wstring key = std::wstring(L"Interface\\") + text.id;
    values[key] = text.name;
    values[key + L"\\ProxyStubClsid32"] =
        text.dual ? L"{00020424-0000-0000-C000-000000000046}" : L"{00020420-0000-0000-C000-000000000046}";
    values[key + L"\\TypeLib"] = kLibraryId;
    values[key + L"\\TypeLib@Version"] = L"1.0";
  }
  return values;
}

/// Every value of a key and of those below it. An empty key that holds nothing else counts as one without a value.
void Collect(HKEY root, const std::wstring& key, Values& values) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(root, (L"Software\\Classes\\" + key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
  wchar_t name[512];
  wchar_t text[2048];
  bool empty = true;
  for (DWORD i = 0;; ++i) {
    DWORD nameSize = 512;
    DWORD size = sizeof(text) - sizeof(wchar_t);
    DWORD type = 0;
    if (RegEnumValueW(opened, i, name, &nameSize, nullptr, &type, reinterpret_cast<BYTE*>(text), &size) !=
        ERROR_SUCCESS)
      break;
    text[size / sizeof(wchar_t)] = 0;
    empty = false;
    values[nameSize ? key + L'@' + name : key] = type == REG_SZ ? text : L"(not a text)";
  }
  for (DWORD i = 0;; ++i) {
    DWORD nameSize = 512;
    if (RegEnumKeyExW(opened, i, name, &nameSize, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    empty = false;
    Collect(root, key + L'\\' + name, values);
  }
  if (empty) values[key] = L"(nothing)";
  RegCloseKey(opened);
}

Values Found(HKEY root) {
  Values values;
  for (const ClassText& text : kClasses) {
    Collect(root, std::wstring(L"CLSID\\") + text.id, values);
    Collect(root, std::wstring(L"BrivaneVrijeKolom.") + text.name, values);
    Collect(root, std::wstring(L"BrivaneVrijeKolom.") + text.name + L".1", values);
  }
  Collect(root, L"TypeLib\\" + kLibraryId, values);
  for (const InterfaceText& text : kInterfaces) Collect(root, std::wstring(L"Interface\\") + text.id, values);
  return values;
}

/// Whatever else in the branches of classes speaks of the library.
void CollectStrays(HKEY root, const wchar_t* branch, Values& strays) {
  Values all;
  Collect(root, branch, all);
  for (const auto& [key, value] : all)
    if (value.find(L"BrivaneVrijeKolom.dll") != std::wstring::npos || value == kLibraryId) strays[key] = value;
}

bool Compare(const char* where, const Values& expected, const Values& found) {
  bool right = true;
  for (const auto& [key, value] : expected) {
    const auto at = found.find(key);
    if (at != found.end() && at->second == value) continue;
    std::printf("%s: %ls must be \"%ls\", and is \"%ls\"\n", where, key.c_str(), value.c_str(),
                at == found.end() ? L"(missing)" : at->second.c_str());
    right = false;
  }
  for (const auto& [key, value] : found)
    if (!expected.contains(key)) {
      std::printf("%s: %ls is \"%ls\", and must not be there\n", where, key.c_str(), value.c_str());
      right = false;
    }
  return right;
}

bool NoStrays(HKEY root) {
  Values strays;
  for (const wchar_t* branch : {L"CLSID", L"TypeLib", L"Interface"}) CollectStrays(root, branch, strays);
  return Compare("elsewhere", {}, strays);
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view mode = count == 2 ? arguments[1] : "";
  if (mode != "all" && mode != "user" && mode != "gone") {
    std::puts("usage: registry_check all|user|gone");
    return 2;
  }
  const Values none;
  const Values expected = Expected();
  bool right = Compare("all users", mode == "all" ? expected : none, Found(HKEY_LOCAL_MACHINE));
  right = Compare("current user", mode == "user" ? expected : none, Found(HKEY_CURRENT_USER)) && right;
  if (mode == "gone") right = NoStrays(HKEY_LOCAL_MACHINE) && NoStrays(HKEY_CURRENT_USER) && right;
  std::printf("%zu values %s\n", expected.size(), right ? "as they must be" : "compared");
  return right ? 0 : 1;
}
