#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include <brivane/session/document/BadInput.h>

/// JSON as documents and transcripts are written in it.
namespace brivane::session {

/// A value whose objects keep the order of their keys.
using Json = nlohmann::ordered_json;

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

}  // namespace brivane::session
