#include "tests/component/replay/Values.h"

#include <cmath>

namespace brivane::latebound {

namespace {

template <class Fill> Variant Made(VARTYPE type, Fill fill) {
  Variant made;
  made.get().vt = type;
  fill(made.get());
  return made;
}

[[noreturn]] void Mismatch() { throw host::Error(host::ErrorNumber::TypeMismatch); }

bool IsNumber(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_I2:
    case VT_I4:
    case VT_I8:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_UI8:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_R8: return true;
    default: return false;
  }
}

/// A number in another type, exactly: a host's property of 16 bits is no place for a half or a million.
template <class T> T Number(const VARIANT& value, VARTYPE type, T VARIANT::*member) {
  Variant plain(value);
  if (!IsNumber(plain.Type())) Mismatch();
  Variant changed;
  if (FAILED(VariantChangeType(&changed.get(), &plain.get(), 0, type))) throw host::Error(host::ErrorNumber::Overflow);
  return changed.get().*member;
}

std::int32_t NumberOf(HRESULT result) {
  return HRESULT_FACILITY(result) == FACILITY_CONTROL ? HRESULT_CODE(result) : result;
}

}  // namespace

Variant ToVariant(bool value) {
  return Made(VT_BOOL, [&](VARIANT& v) { v.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE; });
}
Variant ToVariant(std::int16_t value) {
  return Made(VT_I2, [&](VARIANT& v) { v.iVal = value; });
}
Variant ToVariant(std::int32_t value) {
  return Made(VT_I4, [&](VARIANT& v) { v.lVal = value; });
}
Variant ToVariant(float value) {
  return Made(VT_R4, [&](VARIANT& v) { v.fltVal = value; });
}
Variant ToVariant(double value) {
  return Made(VT_R8, [&](VARIANT& v) { v.dblVal = value; });
}
Variant ToVariant(const std::string& value) {
  return Made(VT_BSTR, [&](VARIANT& v) { v.bstrVal = ToBstr(value); });
}
Variant ToVariant(host::Date value) {
  return Made(VT_DATE, [&](VARIANT& v) { v.date = value.Days(); });
}
Variant ToVariant(const std::array<std::string, 3>& value) {
  return Made(VT_ARRAY | VT_BSTR, [&](VARIANT& v) {
    v.parray = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(value.size()));
    for (LONG i = 0; i < static_cast<LONG>(value.size()); ++i) {
      BSTR text = ToBstr(value[static_cast<std::size_t>(i)]);
      SafeArrayPutElement(v.parray, &i, text);
      SysFreeString(text);
    }
  });
}
Variant ToVariant(IDispatch* object) {
  return Made(VT_DISPATCH, [&](VARIANT& v) {
    v.pdispVal = object;
    if (object != nullptr) object->AddRef();
  });
}
Variant Missing() {
  return Made(VT_ERROR, [](VARIANT& v) { v.scode = DISP_E_PARAMNOTFOUND; });
}

template <> bool FromVariant<bool>(const VARIANT& value) {
  const Variant plain(value);
  if (plain.Type() != VT_BOOL) Mismatch();
  return plain.get().boolVal != VARIANT_FALSE;
}
template <> std::int16_t FromVariant<std::int16_t>(const VARIANT& value) {
  return Number(value, VT_I2, &VARIANT::iVal);
}
template <> std::int32_t FromVariant<std::int32_t>(const VARIANT& value) {
  return Number(value, VT_I4, &VARIANT::lVal);
}
template <> float FromVariant<float>(const VARIANT& value) { return Number(value, VT_R4, &VARIANT::fltVal); }
template <> double FromVariant<double>(const VARIANT& value) { return Number(value, VT_R8, &VARIANT::dblVal); }
template <> std::string FromVariant<std::string>(const VARIANT& value) {
  const Variant plain(value);
  if (plain.Type() != VT_BSTR) Mismatch();
  return ToUtf8(plain.get().bstrVal);
}
template <> host::Date FromVariant<host::Date>(const VARIANT& value) {
  const Variant plain(value);
  if (plain.Type() != VT_DATE) Mismatch();
  return host::Date(static_cast<std::int32_t>(std::floor(plain.get().date)));
}
template <> Ptr<IDispatch> FromVariant<Ptr<IDispatch>>(const VARIANT& value) {
  const Variant plain(value);
  if (plain.Type() == VT_EMPTY) return nullptr;
  if (plain.Type() != VT_DISPATCH && plain.Type() != VT_UNKNOWN) Mismatch();
  if (plain.get().punkVal == nullptr) return nullptr;
  Ptr<IDispatch> object;
  if (FAILED(plain.get().punkVal->QueryInterface(IID_IDispatch, object.OutVoid()))) Mismatch();
  return object;
}
template <> std::optional<std::int32_t> FromVariant<std::optional<std::int32_t>>(const VARIANT& value) {
  if (value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND) return std::nullopt;
  return FromVariant<std::int32_t>(value);
}

std::vector<Variant> Elements(const VARIANT& array) {
  const Variant plain(array);
  if ((plain.Type() & VT_ARRAY) == 0) Mismatch();
  SAFEARRAY* const held = plain.get().parray;
  LONG first = 0;
  LONG last = 0;
  VARTYPE type = VT_EMPTY;
  if (SafeArrayGetDim(held) != 1 || FAILED(SafeArrayGetLBound(held, 1, &first)) ||
      FAILED(SafeArrayGetUBound(held, 1, &last)) || FAILED(SafeArrayGetVartype(held, &type)))
    Mismatch();
  std::vector<Variant> elements;
  for (LONG i = first; i <= last; ++i) {
    Variant element;
    if (type == VT_VARIANT) {
      SafeArrayGetElement(held, &i, &element.get());
    } else {
      element.get().vt = type;
      SafeArrayGetElement(held, &i, &element.get().byref);
    }
    elements.push_back(std::move(element));
  }
  return elements;
}

void FillExcepInfo(const host::Error& error, EXCEPINFO& info) {
  info = {};
  const bool small_number = error.Number() >= 0 && error.Number() <= 0xFFFF;
  info.scode = small_number ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, error.Number()) : error.Number();
  info.bstrDescription = ToBstr(error.Description());
  info.bstrSource = ToBstr(error.Source());
}

host::Error ErrorFrom(HRESULT result, EXCEPINFO& info) {
  if (result == DISP_E_EXCEPTION && info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
  const std::int32_t number = info.wCode != 0 ? info.wCode : NumberOf(result == DISP_E_EXCEPTION ? info.scode : result);
  host::Error error(number, ToUtf8(info.bstrDescription), ToUtf8(info.bstrSource));
  SysFreeString(info.bstrDescription);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrHelpFile);
  return error;
}

void Check(HRESULT result, const char* what) {
  if (SUCCEEDED(result)) return;
  Ptr<IErrorInfo> record;
  if (GetErrorInfo(0, record.Out()) != S_OK) throw host::Error(NumberOf(result), what, "latebound");
  BSTR description = nullptr;
  BSTR source = nullptr;
  record->GetDescription(&description);
  record->GetSource(&source);
  const host::Error error(NumberOf(result), ToUtf8(description), ToUtf8(source));
  SysFreeString(description);
  SysFreeString(source);
  throw error;
}

}  // namespace brivane::latebound
