#include "component/control/Site.h"

#include <olectl.h>

namespace brivane::component {

namespace {

/// A value that a container handed out.
struct Answered : VARIANT {
  Answered() { ::VariantInit(this); }
  Answered(const Answered&) = delete;
  Answered& operator=(const Answered&) = delete;
  ~Answered() { ::VariantClear(this); }
};

constexpr float kParts = 10000;  // of a point, in a font's size

}  // namespace

bool Site::Ambient(DISPID property, VARIANT& value) const {
  const auto container = client_.As<IDispatch>();
  if (!container) return false;
  DISPPARAMS none{};
  const HRESULT told =
      container->Invoke(property, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
  return SUCCEEDED(told);
}

std::optional<host::Color> Site::AmbientBackColor() const {
  Answered value;
  if (!Ambient(DISPID_AMBIENT_BACKCOLOR, value)) return std::nullopt;
  if (FAILED(::VariantChangeType(&value, &value, 0, VT_I4))) return std::nullopt;
  return host::Color{value.lVal};
}

std::optional<float> Site::AmbientFontSize() const {
  Answered value;
  if (!Ambient(DISPID_AMBIENT_FONT, value) || value.vt != VT_DISPATCH) return std::nullopt;
  const auto font = ComPtr<IDispatch>(value.pdispVal).As<IFont>();
  CY size{};
  if (!font || FAILED(font->get_Size(&size))) return std::nullopt;
  return static_cast<float>(size.int64) / kParts;
}

bool Site::AmbientUserMode() const {
  Answered value;
  if (!Ambient(DISPID_AMBIENT_USERMODE, value)) return true;
  return FAILED(::VariantChangeType(&value, &value, 0, VT_BOOL)) || value.boolVal != VARIANT_FALSE;
}

}  // namespace brivane::component
