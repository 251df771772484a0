#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "component/automation/ComPtr.h"
#include <brivane/host/Date.h>

namespace brivane::component {

/// A value of Automation with its own lifetime.
///
///     Variant name(std::string_view("Vereniging"));
///     const auto months = As<std::int16_t>(answer);
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(bool value);
  explicit Variant(std::int16_t value);
  explicit Variant(std::int32_t value);
  explicit Variant(float value);
  explicit Variant(double value);
  explicit Variant(host::Date value);
  explicit Variant(std::string_view text);
  explicit Variant(const std::string& text) : Variant(std::string_view(text)) {}
  explicit Variant(const char* text) : Variant(std::string_view(text)) {}
  explicit Variant(IDispatch* object);
  /// An array of the values.
  explicit Variant(std::span<const Variant> values);
  /// An argument that is left out.
  [[nodiscard]] static Variant Missing();
  /// A copy of a value of somebody else's, with what it refers to in its place.
  [[nodiscard]] static Variant CopyOf(const VARIANT& value);

  Variant(const Variant& other);
  Variant(Variant&& other) noexcept;
  Variant& operator=(Variant other) noexcept;
  ~Variant() { VariantClear(&value_); }

  [[nodiscard]] const VARIANT& Raw() const { return value_; }
  [[nodiscard]] VARIANT& Raw() { return value_; }
  /// The place for a call to put a value in.
  [[nodiscard]] VARIANT* Put();
  /// Hands the value out; what remains is empty.
  void MoveTo(VARIANT* out) noexcept;

  [[nodiscard]] VARTYPE Type() const { return value_.vt; }
  /// Makes it a value of that type; false where it cannot be one.
  [[nodiscard]] bool Become(VARTYPE type) { return SUCCEEDED(VariantChangeType(&value_, &value_, 0, type)); }

 private:
  VARIANT value_;
};

/// The value as a bool, a 16- or 32-bit integer, a float, a double, a string or a date. Nothing is False, 0, "" and no
/// date; numbers round half to even; a time of day is dropped. A value that cannot be one fails with error 13, one out
/// of range with error 6.
template <class T> [[nodiscard]] T As(const VARIANT& value);
template <> bool As<bool>(const VARIANT& value);
template <> std::int16_t As<std::int16_t>(const VARIANT& value);
template <> std::int32_t As<std::int32_t>(const VARIANT& value);
template <> float As<float>(const VARIANT& value);
template <> double As<double>(const VARIANT& value);
template <> std::string As<std::string>(const VARIANT& value);
template <> host::Date As<host::Date>(const VARIANT& value);
/// The object, or nothing for Nothing, Empty and Null; error 13 for what is no object.
template <> ComPtr<IDispatch> As<ComPtr<IDispatch>>(const VARIANT& value);
/// The elements of an array of one dimension, of whatever type and from whatever bound on; error 13 for what is none.
template <> std::vector<Variant> As<std::vector<Variant>>(const VARIANT& value);

template <class T> [[nodiscard]] T As(const Variant& value) { return As<T>(value.Raw()); }

/// Whether an optional argument was left out.
[[nodiscard]] bool IsMissing(const VARIANT& value);

}  // namespace brivane::component
