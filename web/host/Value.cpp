#include "web/host/Value.h"

#include <cmath>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Conversions.h>
#include <brivane/frame/Padded.h>
#include <brivane/host/Error.h>

namespace brivane::webhost {

namespace {

constexpr std::size_t kDateLength = 10;  // "2031-04-01"

[[noreturn]] void Mismatch() { throw host::Error(host::ErrorNumber::TypeMismatch); }

double NumberOf(const Value& value) {
  if (value.type != Value::Type::Number || std::isnan(value.number)) Mismatch();
  return value.number;
}

int Digits(const std::string& text, std::size_t from, std::size_t count) {
  int number = 0;
  for (std::size_t i = from; i < from + count; ++i) {
    if (text[i] < '0' || text[i] > '9') Mismatch();
    number = number * 10 + (text[i] - '0');
  }
  return number;
}

host::Date ReadDate(const std::string& text) {
  if (text.size() != kDateLength || text[4] != '-' || text[7] != '-') Mismatch();
  const frame::YearMonthDay day{Digits(text, 0, 4), Digits(text, 5, 2), Digits(text, 8, 2)};
  if (!frame::IsCalendarDate(day)) Mismatch();
  return frame::MakeDate(day);
}

}  // namespace

Value::Value(host::Date given) : Value() {
  if (given.IsNone()) return;
  const frame::YearMonthDay day = frame::Split(given);
  type = Type::Text;
  text = frame::Padded(day.year, 4) + "-" + frame::Padded(day.month, 2) + "-" + frame::Padded(day.day, 2);
}

template <> bool As<bool>(const Value& value) {
  if (value.type != Value::Type::Boolean) Mismatch();
  return value.number != 0;
}

template <> std::int16_t As<std::int16_t>(const Value& value) { return frame::ToInteger16(NumberOf(value)); }
template <> std::int32_t As<std::int32_t>(const Value& value) { return frame::ToInteger32(NumberOf(value)); }
template <> float As<float>(const Value& value) { return frame::ToSingle(NumberOf(value)); }
template <> double As<double>(const Value& value) { return frame::Finite(NumberOf(value)); }

template <> std::string As<std::string>(const Value& value) {
  if (value.type != Value::Type::Text) Mismatch();
  return value.text;
}

template <> host::Date As<host::Date>(const Value& value) {
  switch (value.type) {
    case Value::Type::Nothing: return host::kNoDate;
    case Value::Type::Text: return ReadDate(value.text);
    case Value::Type::Number:
      if (value.number != 0) Mismatch();
      return host::kNoDate;
    case Value::Type::Date: {
      if (std::isnan(value.number)) Mismatch();
      if (!(value.number >= frame::kFirstDay.Days() && value.number <= frame::kLastDay.Days()))
        throw host::Error(host::ErrorNumber::Overflow);
      return host::Date(static_cast<std::int32_t>(value.number));
    }
    default: Mismatch();
  }
}

template <> Object As<Object>(const Value& value) {
  if (value.type == Value::Type::Nothing) return nullptr;
  if (value.type != Value::Type::Object) Mismatch();
  return value.object;
}

}  // namespace brivane::webhost
