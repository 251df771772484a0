#include <optional>

#include "component/automation/Variant.h"
#include "component/control/Persistence.h"

namespace brivane::component {

namespace {

constexpr wchar_t kBackColor[] = L"BackColor";
constexpr wchar_t kWidth[] = L"_ExtentX";
constexpr wchar_t kHeight[] = L"_ExtentY";

/// A whole number in a bag; nothing where it is not there or not a number.
std::optional<LONG> Read(IPropertyBag& bag, IErrorLog* log, const wchar_t* name) {
  Variant value(std::int32_t{0});  // of the type that the bag is to convert its text to
  if (FAILED(bag.Read(name, &value.Raw(), log)) || !value.Become(VT_I4)) return std::nullopt;
  return value.Raw().lVal;
}

HRESULT Write(IPropertyBag& bag, const wchar_t* name, LONG number) {
  Variant value(static_cast<std::int32_t>(number));
  return bag.Write(name, &value.Raw());
}

}  // namespace

STDMETHODIMP BagPersistence::Load(IPropertyBag* bag, IErrorLog* log) {
  if (!bag) return E_POINTER;
  return Answer([&] {
    Kept kept;
    if (const auto color = Read(*bag, log, kBackColor)) kept.backColor = host::Color{static_cast<std::int32_t>(*color)};
    kept.size.cx = Read(*bag, log, kWidth).value_or(0);
    kept.size.cy = Read(*bag, log, kHeight).value_or(0);
    TheProperties().Restore(kept);
    return S_OK;
  });
}

STDMETHODIMP BagPersistence::Save(IPropertyBag* bag, BOOL clearDirty, BOOL allProperties) {
  if (!bag) return E_POINTER;
  return Answer([&] {
    const Kept kept = TheProperties().Take();
    HRESULT hr = Write(*bag, kWidth, kept.size.cx);
    if (SUCCEEDED(hr)) hr = Write(*bag, kHeight, kept.size.cy);
    // Left out while it follows the container, unless the container wants every property.
    if (SUCCEEDED(hr) && (kept.backColor || allProperties))
      hr = Write(*bag, kBackColor, kept.backColor.value_or(TheSubject().BackColor()).value);
    if (SUCCEEDED(hr) && clearDirty) TheProperties().Clean();
    return hr;
  });
}

}  // namespace brivane::component
