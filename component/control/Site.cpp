#include "component/control/Site.h"

#include <olectl.h>

namespace brivane::component {

namespace {

constexpr float kParts = 10000;  // of a point, in a font's size

}  // namespace

bool Site::Ambient(DISPID property, Variant& value) const {
  const auto container = client_.As<IDispatch>();
  if (!container) return false;
  DISPPARAMS none{};
  const HRESULT told = container->Invoke(property, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                         value.Put(), nullptr, nullptr);
  return SUCCEEDED(told);
}

std::optional<host::Color> Site::AmbientBackColor() const {
  Variant value;
  if (!Ambient(DISPID_AMBIENT_BACKCOLOR, value) || !value.Become(VT_I4)) return std::nullopt;
  return host::Color{value.Raw().lVal};
}

std::optional<float> Site::AmbientFontSize() const {
  Variant value;
  if (!Ambient(DISPID_AMBIENT_FONT, value)) return std::nullopt;
  ComPtr<IFont> font;
  if (value.Type() == VT_DISPATCH) font = ComPtr<IDispatch>(value.Raw().pdispVal).As<IFont>();
  if (value.Type() == VT_UNKNOWN) font = ComPtr<IUnknown>(value.Raw().punkVal).As<IFont>();
  CY size{};
  if (!font || FAILED(font->get_Size(&size))) return std::nullopt;
  return static_cast<float>(size.int64) / kParts;
}

bool Site::AmbientUserMode() const {
  Variant value;
  if (!Ambient(DISPID_AMBIENT_USERMODE, value) || !value.Become(VT_BOOL)) return true;
  return value.Raw().boolVal != VARIANT_FALSE;
}

}  // namespace brivane::component
