#include "component/automation/Variant.h"

#include <cmath>
#include <new>
#include <utility>

#include "component/automation/Errors.h"
#include "component/automation/Text.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>

namespace brivane::component {

namespace {

/// The functions of Automation do not say that they leave their source alone.
VARIANT* Source(const VARIANT& value) { return const_cast<VARIANT*>(&value); }

Variant Changed(const VARIANT& value, VARTYPE type) {
  Variant changed;
  Check(VariantChangeType(changed.Put(), Source(value), 0, type));
  return changed;
}

bool IsNothing(const VARIANT& value) {
  switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL: return true;
    case VT_DISPATCH:
    case VT_UNKNOWN: return value.punkVal == nullptr;
    default: return false;
  }
}

}  // namespace

Variant::Variant(bool value) : Variant() {
  value_.vt = VT_BOOL;
  value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}
Variant::Variant(std::int16_t value) : Variant() {
  value_.vt = VT_I2;
  value_.iVal = value;
}
Variant::Variant(std::int32_t value) : Variant() {
  value_.vt = VT_I4;
  value_.lVal = value;
}
Variant::Variant(float value) : Variant() {
  value_.vt = VT_R4;
  value_.fltVal = value;
}
Variant::Variant(double value) : Variant() {
  value_.vt = VT_R8;
  value_.dblVal = value;
}
Variant::Variant(host::Date value) : Variant() {
  value_.vt = VT_DATE;
  value_.date = value.Days();
}
Variant::Variant(std::string_view text) : Variant() {
  value_.bstrVal = NewBstr(text);
  value_.vt = VT_BSTR;
}
Variant::Variant(IDispatch* object) : Variant() {
  value_.vt = VT_DISPATCH;
  value_.pdispVal = object;
  if (object) object->AddRef();
}

Variant::Variant(std::span<const Variant> values) : Variant() {
  SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(values.size()));
  if (!array) throw std::bad_alloc();
  value_.vt = VT_ARRAY | VT_VARIANT;
  value_.parray = array;
  for (LONG i = 0; const Variant& value : values) {
    Check(SafeArrayPutElement(array, &i, Source(value.Raw())));
    ++i;
  }
}

Variant Variant::Missing() {
  Variant missing;
  missing.value_.vt = VT_ERROR;
  missing.value_.scode = DISP_E_PARAMNOTFOUND;
  return missing;
}

Variant Variant::CopyOf(const VARIANT& value) {
  Variant copy;
  Check(VariantCopyInd(&copy.value_, Source(value)));
  return copy;
}

Variant::Variant(const Variant& other) : Variant() { Check(VariantCopy(&value_, Source(other.value_))); }

Variant::Variant(Variant&& other) noexcept : Variant() { std::swap(value_, other.value_); }

Variant& Variant::operator=(Variant other) noexcept {
  std::swap(value_, other.value_);
  return *this;
}

VARIANT* Variant::Put() {
  VariantClear(&value_);
  return &value_;
}

void Variant::MoveTo(VARIANT* out) noexcept {
  *out = value_;
  VariantInit(&value_);
}

template <> bool As<bool>(const VARIANT& value) { return Changed(value, VT_BOOL).Raw().boolVal != VARIANT_FALSE; }

template <> std::int16_t As<std::int16_t>(const VARIANT& value) { return Changed(value, VT_I2).Raw().iVal; }

template <> std::int32_t As<std::int32_t>(const VARIANT& value) { return Changed(value, VT_I4).Raw().lVal; }

template <> float As<float>(const VARIANT& value) { return Changed(value, VT_R4).Raw().fltVal; }

template <> double As<double>(const VARIANT& value) { return Changed(value, VT_R8).Raw().dblVal; }

template <> std::string As<std::string>(const VARIANT& value) {
  return FromBstr(Changed(value, VT_BSTR).Raw().bstrVal);
}

template <> host::Date As<host::Date>(const VARIANT& value) {
  const double days = std::trunc(Changed(value, VT_DATE).Raw().date);
  if (!(days >= frame::kFirstDay.Days() && days <= frame::kLastDay.Days()))
    throw host::Error(host::ErrorNumber::Overflow);
  return host::Date(static_cast<std::int32_t>(days));
}

template <> ComPtr<IDispatch> As<ComPtr<IDispatch>>(const VARIANT& value) {
  const Variant plain = Variant::CopyOf(value);
  if (IsNothing(plain.Raw())) return {};
  if (plain.Type() != VT_DISPATCH && plain.Type() != VT_UNKNOWN) throw host::Error(host::ErrorNumber::TypeMismatch);
  ComPtr<IDispatch> object = ComPtr<IUnknown>(plain.Raw().punkVal).As<IDispatch>();
  if (!object) throw host::Error(host::ErrorNumber::TypeMismatch);
  return object;
}

template <> std::vector<Variant> As<std::vector<Variant>>(const VARIANT& value) {
  const Variant plain = Variant::CopyOf(value);
  if (!(plain.Type() & VT_ARRAY) || SafeArrayGetDim(plain.Raw().parray) != 1)
    throw host::Error(host::ErrorNumber::TypeMismatch);
  SAFEARRAY* const array = plain.Raw().parray;
  const auto type = static_cast<VARTYPE>(plain.Type() & VT_TYPEMASK);
  LONG first = 0;
  LONG last = -1;
  Check(SafeArrayGetLBound(array, 1, &first));
  Check(SafeArrayGetUBound(array, 1, &last));
  std::vector<Variant> elements;
  for (LONG i = first; i <= last; ++i) {
    Variant element;
    if (type == VT_VARIANT) {
      Check(SafeArrayGetElement(array, &i, &element.Raw()));
    } else {
      // The types of one element all lie at the same place of a variant.
      Check(SafeArrayGetElement(array, &i, &element.Raw().byref));
      element.Raw().vt = type;
    }
    elements.push_back(std::move(element));
  }
  return elements;
}

bool IsMissing(const VARIANT& value) { return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND; }

}  // namespace brivane::component
