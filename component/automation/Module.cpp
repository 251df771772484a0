#include "component/automation/Module.h"

#include <array>
#include <atomic>

#include "component/automation/Errors.h"

namespace brivane::component::module {

namespace {

HINSTANCE instance_ = nullptr;
std::atomic<long> kept_ = 0;
/// By number less one. Bare, as nothing may be released while the library is being unloaded.
std::array<ITypeLib*, kMostTypeLibraries> libraries_{};

}  // namespace

void Attach(HINSTANCE instance) { instance_ = instance; }

HINSTANCE Instance() { return instance_; }

std::wstring Path() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(instance_, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

ComPtr<ITypeLib> TypeLibrary(int number) {
  ITypeLib*& known = libraries_[static_cast<std::size_t>(number) - 1];
  if (!known) {
    const std::wstring place = Path() + L'\\' + std::to_wstring(number);
    Check(LoadTypeLibEx(place.c_str(), REGKIND_NONE, &known));
  }
  return known;
}

ComPtr<ITypeInfo> TypeInfo(int library, const GUID& id) {
  ComPtr<ITypeInfo> info;
  Check(TypeLibrary(library)->GetTypeInfoOfGuid(id, info.Put()));
  return info;
}

void Keep() noexcept { ++kept_; }

void LetGo() noexcept {
  if (--kept_ > 0) return;
  for (ITypeLib*& library : libraries_)
    if (ITypeLib* const old = std::exchange(library, nullptr)) old->Release();
}

bool CanUnload() noexcept { return kept_ == 0; }

}  // namespace brivane::component::module
