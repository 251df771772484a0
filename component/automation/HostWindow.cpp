#include "component/automation/HostWindow.h"

#include "component/automation/LateBound.h"
#include "component/automation/Toolkit.h"
#include <brivane/host/Error.h>

namespace brivane::component {

namespace {

HWND FromNumber(const VARIANT& number) {
  // A handle has 32 significant bits, sign and all, whatever the integer that it comes in.
  Variant wide;
  if (FAILED(VariantChangeType(wide.Put(), const_cast<VARIANT*>(&number), 0, VT_I8))) return nullptr;
  const HWND handle = reinterpret_cast<HWND>(static_cast<INT_PTR>(static_cast<std::int32_t>(wide.Raw().llVal)));
  return IsWindow(handle) ? handle : nullptr;
}

HWND FromObject(const ComPtr<IDispatch>& object) {
  HWND handle = nullptr;
  if (const auto window = object.As<IOleWindow>(); window && SUCCEEDED(window->GetWindow(&handle))) return handle;
  try {
    LateBound named(object);
    return named.Has(L"hWnd") ? FromNumber(named.Get(L"hWnd").Raw()) : nullptr;
  } catch (const host::Error&) {
    // A window that cannot be told is none: the form is shown all the same.
    return nullptr;
  }
}

}  // namespace

HWND HandleNamedBy(const VARIANT& eigenaar) {
  const Variant plain = Variant::CopyOf(eigenaar);
  switch (plain.Type()) {
    case VT_DISPATCH:
    case VT_UNKNOWN: {
      const auto object = As<ComPtr<IDispatch>>(plain);
      return object ? FromObject(object) : nullptr;
    }
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR: return nullptr;
    default: return FromNumber(plain.Raw());
  }
}

std::shared_ptr<host::Hoofdvenster> WindowNamedBy(const VARIANT& eigenaar) {
  const HWND handle = HandleNamedBy(eigenaar);
  return handle ? std::make_shared<HostWindow>(handle) : nullptr;
}

}  // namespace brivane::component
