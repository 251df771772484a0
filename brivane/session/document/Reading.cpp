#include <algorithm>
#include <cmath>

#include <brivane/frame/Calendar.h>
#include <brivane/session/document/Reading.h>

namespace brivane::session {

namespace {

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int ToInt(std::string_view digits) {
  int number = 0;
  for (const char digit : digits) number = number * 10 + (digit - '0');
  return number;
}

std::optional<host::Date> ParseDate(const std::string& text) {
  const std::string_view date = text;
  if (date.size() != 10 || date[4] != '-' || date[7] != '-') return std::nullopt;
  const std::string_view year = date.substr(0, 4);
  const std::string_view month = date.substr(5, 2);
  const std::string_view day = date.substr(8, 2);
  if (!AllDigits(year) || !AllDigits(month) || !AllDigits(day)) return std::nullopt;
  const frame::YearMonthDay parts{ToInt(year), ToInt(month), ToInt(day)};
  if (!frame::IsCalendarDate(parts)) return std::nullopt;
  return frame::MakeDate(parts);
}

}  // namespace

bool Value::Bool() const {
  if (!json_->is_boolean()) Refuse("expected true or false");
  return json_->get<bool>();
}

std::string Value::Text() const {
  if (!json_->is_string()) Refuse("expected a text");
  return json_->get<std::string>();
}

double Value::Number() const {
  if (!json_->is_number()) Refuse("expected a number");
  return json_->get<double>();
}

float Value::Single() const {
  const double number = Number();
  if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
    Refuse("too large for single precision");
  return static_cast<float>(number);
}

std::int64_t Value::WholeWithin(std::int64_t low, std::int64_t high) const {
  const auto refuse = [&] {
    Refuse("expected a whole number from " + std::to_string(low) + " to " + std::to_string(high));
  };
  if (!json_->is_number()) refuse();
  // Every range asked for is exact in a double; 5.0 is the whole number 5.
  const double number = json_->get<double>();
  if (number != std::trunc(number) || number < static_cast<double>(low) || number > static_cast<double>(high)) refuse();
  return static_cast<std::int64_t>(number);
}

host::Date Value::CalendarDate() const {
  if (json_->is_string())
    if (const std::optional<host::Date> date = ParseDate(json_->get<std::string>())) return *date;
  Refuse("expected a date \"YYYY-MM-DD\"");
}

host::Date Value::DateOrNone() const {
  if (json_->is_number() && json_->get<double>() == 0) return host::kNoDate;
  if (json_->is_string())
    if (const std::optional<host::Date> date = ParseDate(json_->get<std::string>())) return *date;
  Refuse("expected a date \"YYYY-MM-DD\", or 0 for none");
}

std::size_t Value::Size() const {
  if (!json_->is_array()) Refuse("expected a list");
  return json_->size();
}

Value Value::Element(std::size_t index) const { return {(*json_)[index], Below(place_, index)}; }

const Value& Value::Keys(std::initializer_list<std::string_view> keys) const {
  return Keys(std::span(keys.begin(), keys.size()));
}

const Value& Value::Keys(std::span<const std::string_view> keys) const {
  if (!json_->is_object()) Refuse("expected an object");
  for (const auto& [key, member] : json_->items())
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) throw BadInput(Below(place_, key), "no such key here");
  return *this;
}

std::optional<Value> Value::Find(std::string_view key) const {
  if (!json_->is_object()) Refuse("expected an object");
  const auto found = json_->find(std::string(key));
  if (found == json_->end()) return std::nullopt;
  return Value(*found, Below(place_, key));
}

Value Value::Member(std::string_view key) const {
  std::optional<Value> member = Find(key);
  if (!member) throw BadInput(Below(place_, key), "is required");
  return *member;
}

}  // namespace brivane::session
