#pragma once

#include <exception>
#include <string>
#include <utility>

namespace brivane::session {

/// Input that is refused: where, and what is wrong there. `what()` is the one line a person reads,
/// `steps[3].control: no control named "TxtBedrag"`.
class BadInput : public std::exception {
 public:
  /// The empty place is the document itself.
  BadInput(std::string place, const std::string& problem)
      : place_(place.empty() ? "document" : std::move(place)), line_(place_ + ": " + problem) {}
  /// Where in the document: "steps[3].control".
  [[nodiscard]] const std::string& Place() const noexcept { return place_; }
  /// The place and what is wrong there, in English.
  [[nodiscard]] const char* what() const noexcept override { return line_.c_str(); }

 private:
  std::string place_;
  std::string line_;
};

}  // namespace brivane::session
