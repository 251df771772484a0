#include <brivane/controls/entry/Sums.h>
#include <brivane/controls/entry/Typing.h>
#include <brivane/frame/Dates.h>

namespace brivane::controls {

namespace {

template <class Value> TypedContent ContentOf(const frame::Reading<Value>& reading) {
  if (reading.IsRefused()) return {.refusal = reading.Why()};
  return reading.IsEmpty() ? TypedContent() : TypedContent{.value = *reading};
}

bool HasDecimals(frame::Format format) { return format == frame::Format::Amount || format == frame::Format::Number; }

}  // namespace

TypedContent ReadTyped(std::string_view typed, frame::Format format, const DateOrigin& origin) {
  if (format == frame::Format::Date) return ContentOf(ReadTypedDate(typed, origin));
  TypedContent content = ReadEntry(typed, format);
  if (content.refusal.empty() || !HasDecimals(format) || !IsSum(typed)) return content;
  return ContentOf(ReadSum(typed, format));
}

frame::Phrase NoteOf(std::string_view typed, const TypedContent& content, frame::Format format) {
  if (!content.refusal.empty()) return {};
  if (const auto* date = std::get_if<host::Date>(&content.value)) return frame::DateInWords(*date);
  const bool inFigures = typed.find_first_of("0123456789") != std::string_view::npos;
  const bool reckoned = !typed.empty() && (!inFigures || !ReadContent(typed, format).refusal.empty());
  return HasDecimals(format) && reckoned ? frame::Phrase("= " + ShowContent(content.value, format)) : frame::Phrase();
}

}  // namespace brivane::controls
