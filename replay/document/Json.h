#pragma once

#include <exception>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>

/// JSON as the replay tool reads and writes it.
namespace brivane::replay {

/// A value whose objects keep the order of their keys.
using Json = nlohmann::ordered_json;

/// Input that is refused: where, and what is wrong there. `what()` is the one line a person reads,
/// `steps[3].control: no control named "TxtBedrag"`.
class BadInput : public std::exception {
 public:
  BadInput(std::string place, const std::string& problem)
      : place_(place.empty() ? "document" : std::move(place)), line_(place_ + ": " + problem) {}
  [[nodiscard]] const std::string& Place() const noexcept { return place_; }
  [[nodiscard]] const char* what() const noexcept override { return line_.c_str(); }

 private:
  std::string place_;
  std::string line_;
};

/// The place of a member or an element below another place; the empty place is the document itself.
[[nodiscard]] std::string Below(const std::string& place, std::string_view key);
[[nodiscard]] std::string Below(const std::string& place, std::size_t index);

/// How deeply arrays and objects may stand in each other.
inline constexpr std::size_t kDeepest = 100;

/// Reads one JSON value. Refuses what is not JSON (a byte that is not UTF-8, something after the value, a
/// number too large for a double), a key that stands twice in an object, and nesting deeper than kDeepest.
[[nodiscard]] Json ParseJson(std::string_view text);

/// Appends a value as one line without its end: a space after each colon and comma, texts in UTF-8.
void AppendLine(std::string& out, const Json& value);
/// The same for a number alone: the shortest form that reads back to the same double, a whole number
/// without a decimal sign. JSON has no word for what is not finite; it becomes null.
void AppendNumber(std::string& out, double number);

/// A text in quotes, escaped as in JSON; for lines that quote what a document says.
[[nodiscard]] std::string Quoted(std::string_view text);

}  // namespace brivane::replay
