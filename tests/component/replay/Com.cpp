#include "tests/component/replay/Com.h"

namespace brivane::latebound {

std::wstring ToWide(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string ToUtf8(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int size = static_cast<int>(wide.size());
  std::string utf8(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
  return utf8;
}

std::string ToUtf8(BSTR text) {
  return text == nullptr ? std::string() : ToUtf8(std::wstring_view(text, SysStringLen(text)));
}

BSTR ToBstr(std::string_view utf8) {
  const std::wstring wide = ToWide(utf8);
  return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

bool SameObject(IUnknown* one, IUnknown* other) {
  if (one == nullptr || other == nullptr) return one == other;
  Ptr<IUnknown> first;
  Ptr<IUnknown> second;
  one->QueryInterface(IID_IUnknown, first.OutVoid());
  other->QueryInterface(IID_IUnknown, second.OutVoid());
  return first.get() == second.get();
}

}  // namespace brivane::latebound
