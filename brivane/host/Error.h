#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace brivane::host {

/// The error numbers that the component raises itself. A host failure brings its own number.
enum class ErrorNumber : std::int32_t {
  Overflow = 6,             ///< a number that its field cannot hold, or a date outside the years 100 to 9999
  SubscriptOutOfRange = 9,  ///< an index that the thing it was given to does not have
  TypeMismatch = 13,        ///< the content of a box is not of the kind that is asked of it
  ObjectMissing = 91,       ///< the host answered nothing where an object is needed, or the control is not bound
  NoSuchElement = 340,      ///< a control array has no element of that index
  NoSuchListEntry = 381,    ///< a list has no entry at that position
  Foreign = 440,            ///< an exception that is not an Error, reported with its own text
};

/// The one error type of the component and its host: a number, a description and a source.
///
/// A host implementation throws it to report a failure of its own; number, description and source then reach the host's
/// `ReportError` unchanged. Which failures reach whom is told in \ref failures.
class Error : public std::exception {
 public:
  /// A failure of the host: any number, and texts in UTF-8 that its own ReportError will be told.
  Error(std::int32_t number, std::string description, std::string source)
      : number_(number), description_(std::move(description)), source_(std::move(source)) {}

  /// A failure of the component itself: the description follows from the number.
  explicit Error(ErrorNumber number) : number_(static_cast<std::int32_t>(number)), description_(Describe(number)) {}

  /// One of ErrorNumber, or the host's own.
  [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
  /// What went wrong, in UTF-8; in English where the component raised it.
  [[nodiscard]] const std::string& Description() const noexcept { return description_; }
  /// Who raised it: "BrivaneVrijeKolom" for the component itself.
  [[nodiscard]] const std::string& Source() const noexcept { return source_; }
  /// The description; it lives as long as the error.
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
