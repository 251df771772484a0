#include "component/registration/Registration.h"

#include "component/registration/Keys.h"
#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

namespace {

using Key = win32::Owned<HKEY, &RegCloseKey>;

HKEY RootOf(Scope scope) { return scope == Scope::AllUsers ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

std::wstring Below(const std::wstring& key) { return L"Software\\Classes\\" + key; }

LSTATUS Write(HKEY root, const KeyValue& value) {
  Key key;
  const LSTATUS status =
      RegCreateKeyExW(root, Below(value.key).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, key.Put(), nullptr);
  if (status != ERROR_SUCCESS) return status;
  const auto size = static_cast<DWORD>((value.value.size() + 1) * sizeof(wchar_t));
  return RegSetValueExW(key.Get(), value.name.empty() ? nullptr : value.name.c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(value.value.c_str()), size);
}

LSTATUS Remove(HKEY root, const std::wstring& key) {
  const LSTATUS status = RegDeleteTreeW(root, Below(key).c_str());
  return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

bool HasKeys(HKEY root, const std::wstring& key) {
  Key opened;
  if (RegOpenKeyExW(root, Below(key).c_str(), 0, KEY_READ, opened.Put()) != ERROR_SUCCESS) return false;
  DWORD count = 0;
  RegQueryInfoKeyW(opened.Get(), nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr, nullptr,
                   nullptr, nullptr);
  return count != 0;
}

/// The library for the other kind of machine keeps the type library and its interfaces.
bool OtherPlatformStays(HKEY root) {
  const std::wstring platform = PlatformKey();
  return HasKeys(root, platform.substr(0, platform.find_last_of(L'\\')));
}

LSTATUS RemoveAll(HKEY root) {
  LSTATUS first = Remove(root, PlatformKey());
  const bool shared = OtherPlatformStays(root);
  const auto remove = [&](const std::wstring& key) {
    const LSTATUS status = Remove(root, key);
    if (first == ERROR_SUCCESS) first = status;
  };
  for (const std::wstring& key : OwnKeys())
    if (!shared || !key.starts_with(L"Interface\\")) remove(key);
  if (!shared) remove(TypeLibraryKey());
  return first;
}

}  // namespace

HRESULT Register(Scope scope, const std::wstring& path) {
  const HKEY root = RootOf(scope);
  for (const KeyValue& value : ValuesFor(path)) {
    const LSTATUS status = Write(root, value);
    if (status == ERROR_SUCCESS) continue;
    RemoveAll(root);
    return HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
  }
  return S_OK;
}

HRESULT Register(const std::wstring& path) {
  const HRESULT result = Register(Scope::AllUsers, path);
  return result == E_ACCESSDENIED ? Register(Scope::CurrentUser, path) : result;
}

HRESULT Unregister(Scope scope) {
  const LSTATUS status = RemoveAll(RootOf(scope));
  return status == ERROR_SUCCESS ? S_OK : HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
}

HRESULT Unregister() {
  const HRESULT own = Unregister(Scope::CurrentUser);
  const HRESULT all = Unregister(Scope::AllUsers);
  return FAILED(own) ? own : all;
}

}  // namespace brivane::component
