#include <array>
#include <cstdio>

#include <brivane/frame/Calendar.h>
#include <brivane/session/document/FieldJson.h>

namespace brivane::session {

Json ToJson(host::Date date) {
  if (date.IsNone()) return 0;
  const frame::YearMonthDay parts = frame::Split(date);
  std::array<char, 32> text;
  const int size = std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", parts.year, parts.month, parts.day);
  return std::string(text.data(), static_cast<std::size_t>(size));
}

}  // namespace brivane::session
