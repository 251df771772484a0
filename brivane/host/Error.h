#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace brivane::host {

/// The error numbers that the component raises itself. A host failure brings its own number.
enum class ErrorNumber : std::int32_t {
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  ObjectMissing = 91,
  NoSuchElement = 340,    ///< a control array has no element of that index
  NoSuchListEntry = 381,  ///< a list has no entry at that position
  Foreign = 440,          ///< an exception that is not an Error, reported with its own text
};

/// The one error type of the component and its host: a number, a description and a source.
///
/// A host implementation throws it to report a failure of its own; number, description and source
/// then reach the host's `ReportError` unchanged.
class Error : public std::exception {
 public:
  Error(std::int32_t number, std::string description, std::string source)
      : number_(number), description_(std::move(description)), source_(std::move(source)) {}

  /// A failure of the component itself: the description follows from the number.
  explicit Error(ErrorNumber number) : number_(static_cast<std::int32_t>(number)), description_(Describe(number)) {}

  [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
  [[nodiscard]] const std::string& Description() const noexcept { return description_; }
  [[nodiscard]] const std::string& Source() const noexcept { return source_; }
  [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

 private:
  [[nodiscard]] static std::string_view Describe(ErrorNumber number) noexcept {
    switch (number) {
      case ErrorNumber::Overflow: return "Overflow";
      case ErrorNumber::SubscriptOutOfRange: return "Subscript out of range";
      case ErrorNumber::TypeMismatch: return "Type mismatch";
      case ErrorNumber::ObjectMissing: return "Object missing";
      case ErrorNumber::NoSuchElement: return "No such element of a control array";
      case ErrorNumber::NoSuchListEntry: return "No such list entry";
      case ErrorNumber::Foreign: break;
    }
    return "Unexpected failure";
  }

  std::int32_t number_;
  std::string description_;
  std::string source_ = "BrivaneVrijeKolom";
};

/// Hands back the object, or fails with error 91 where the host answered nothing.
template <class Pointer> [[nodiscard]] decltype(auto) Need(const Pointer& object) {
  if (!object) throw Error(ErrorNumber::ObjectMissing);
  return *object;
}

}  // namespace brivane::host
