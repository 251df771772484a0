#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tests/component/replay/Com.h"
#include <brivane/host/Date.h>
#include <brivane/host/Error.h>

/// Values and failures as they cross the boundary.
namespace brivane::latebound {

// Out: a value in the type that Automation has for it.
[[nodiscard]] Variant ToVariant(bool value);
[[nodiscard]] Variant ToVariant(std::int16_t value);
[[nodiscard]] Variant ToVariant(std::int32_t value);
[[nodiscard]] Variant ToVariant(float value);
[[nodiscard]] Variant ToVariant(double value);
[[nodiscard]] Variant ToVariant(const std::string& value);
[[nodiscard]] Variant ToVariant(host::Date value);
/// An array of three texts.
[[nodiscard]] Variant ToVariant(const std::array<std::string, 3>& value);
/// A reference, counted anew; nothing is an object that is nothing.
[[nodiscard]] Variant ToVariant(IDispatch* object);
/// An argument that is left out.
[[nodiscard]] Variant Missing();

/// In: the value, or error 13 where the types are not of one kind: numbers are no texts and no dates.
template <class T> [[nodiscard]] T FromVariant(const VARIANT& value);
template <> bool FromVariant<bool>(const VARIANT& value);
template <> std::int16_t FromVariant<std::int16_t>(const VARIANT& value);
template <> std::int32_t FromVariant<std::int32_t>(const VARIANT& value);
template <> float FromVariant<float>(const VARIANT& value);
template <> double FromVariant<double>(const VARIANT& value);
template <> std::string FromVariant<std::string>(const VARIANT& value);
template <> host::Date FromVariant<host::Date>(const VARIANT& value);
/// Nothing for an object that is nothing.
template <> Ptr<IDispatch> FromVariant<Ptr<IDispatch>>(const VARIANT& value);
/// Nothing for an argument that is left out.
template <> std::optional<std::int32_t> FromVariant<std::optional<std::int32_t>>(const VARIANT& value);

/// The elements of an array of any VARIANTs.
[[nodiscard]] std::vector<Variant> Elements(const VARIANT& array);

/// A failure as an EXCEPINFO, and back. Numbers from 0 to 65535 travel in the facility of controls.
void FillExcepInfo(const host::Error& error, EXCEPINFO& info);
[[nodiscard]] host::Error ErrorFrom(HRESULT result, EXCEPINFO& info);
/// Throws what a failed result means, with the thread's error record where there is one; `what` describes it where
/// there is none.
void Check(HRESULT result, const char* what);

}  // namespace brivane::latebound
