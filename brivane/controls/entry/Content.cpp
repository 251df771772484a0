#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include <brivane/controls/entry/Content.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Numbers.h>

namespace brivane::controls {

namespace {

template <class Value> TypedContent FromReading(const frame::Reading<Value>& reading) {
  if (reading.IsRefused()) return {{}, reading.Why()};
  if (reading.IsEmpty()) return {};
  if constexpr (std::is_same_v<Value, std::int32_t>) {
    return {static_cast<double>(*reading), {}};
  } else {
    return {*reading, {}};
  }
}

std::string ShowNumberAs(double number, frame::Format format) {
  if (format == frame::Format::Amount) return frame::ShowAmount(number);
  const bool whole = std::trunc(number) == number && std::abs(number) <= std::numeric_limits<std::int32_t>::max();
  if (format == frame::Format::WholeNumber && whole) return frame::ShowWhole(static_cast<std::int32_t>(number));
  return frame::ShowNumber(number);
}

/// Length of the line end that a text begins with; 0 where it begins with none.
std::size_t LineEnd(std::string_view text) {
  if (text.starts_with('\r') || text.starts_with('\n')) return 1;
  return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
}

}  // namespace

std::string ShowContent(const controls::BoxValue& content, frame::Format format) {
  if (const auto* text = std::get_if<std::string>(&content)) return *text;
  if (const auto* number = std::get_if<double>(&content)) return ShowNumberAs(*number, format);
  if (const auto* date = std::get_if<host::Date>(&content)) return frame::ShowDate(*date);
  return {};
}

TypedContent ReadContent(std::string_view typed, frame::Format format) {
  switch (format) {
    case frame::Format::Amount: return FromReading(frame::ReadAmount(typed));
    case frame::Format::Number: return FromReading(frame::ReadNumber(typed));
    case frame::Format::WholeNumber: return FromReading(frame::ReadWhole(typed));
    case frame::Format::Date: return FromReading(frame::ReadDate(typed));
    case frame::Format::None:
    case frame::Format::Text: break;
  }
  std::string line = OneLine(typed);
  return line.empty() ? TypedContent{} : TypedContent{std::move(line), {}};
}

TypedContent ReadEntry(std::string_view typed, frame::Format format) {
  TypedContent content = ReadContent(typed, format);
  const bool emptied = content.refusal.empty() && std::holds_alternative<std::monostate>(content.value);
  if (emptied && format == frame::Format::Amount) content.value = 0.0;
  return content;
}

std::string OneLine(std::string_view text) {
  std::string line;
  bool ended = false;
  while (!text.empty()) {
    const std::size_t end = LineEnd(text);
    if (end == 0) line += text.front();
    if (end != 0 && !ended) line += ' ';
    ended = end != 0;
    text.remove_prefix(end != 0 ? end : 1);
  }
  return line;
}

}  // namespace brivane::controls
