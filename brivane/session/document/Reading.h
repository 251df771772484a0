#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <brivane/host/Date.h>
#include <brivane/session/document/Json.h>

namespace brivane::session {

/// One value of a document with its place in it. Asking for a type that it does not have throws BadInput.
class Value {
 public:
  Value(const Json& json, std::string place) : json_(&json), place_(std::move(place)) {}

  [[nodiscard]] const std::string& Place() const { return place_; }
  [[noreturn]] void Refuse(const std::string& problem) const { throw BadInput(place_, problem); }

  [[nodiscard]] bool Bool() const;
  [[nodiscard]] std::string Text() const;
  /// A number within doubles.
  [[nodiscard]] double Number() const;
  /// A number within single precision.
  [[nodiscard]] float Single() const;
  /// A whole number within the range of the type.
  template <std::integral T> [[nodiscard]] T Whole() const {
    return static_cast<T>(WholeWithin(std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
  }
  [[nodiscard]] std::int64_t WholeWithin(std::int64_t low, std::int64_t high) const;
  /// "YYYY-MM-DD" in the years 100 to 9999.
  [[nodiscard]] host::Date CalendarDate() const;
  /// The same, or 0 for none.
  [[nodiscard]] host::Date DateOrNone() const;

  [[nodiscard]] bool IsText() const { return json_->is_string(); }
  [[nodiscard]] bool IsNumber() const { return json_->is_number(); }
  [[nodiscard]] bool IsObject() const { return json_->is_object(); }

  /// The number of elements of an array.
  [[nodiscard]] std::size_t Size() const;
  [[nodiscard]] Value Element(std::size_t index) const;

  /// Refuses what is not an object with no other keys than these.
  const Value& Keys(std::initializer_list<std::string_view> keys) const;
  const Value& Keys(std::span<const std::string_view> keys) const;
  /// A member of an object, or nothing.
  [[nodiscard]] std::optional<Value> Find(std::string_view key) const;
  /// A member that must be there.
  [[nodiscard]] Value Member(std::string_view key) const;

 private:
  const Json* json_;
  std::string place_;
};

}  // namespace brivane::session
