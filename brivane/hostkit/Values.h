#pragma once

#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <brivane/frame/Calendar.h>
#include <brivane/host/Date.h>
#include <brivane/hostkit/Host.h>

/// What the kit writes into a field: ordinary and extreme values that the controls can write, each with a name.
namespace brivane::hostkit {

template <class T> struct Value {
  std::string_view name;
  T value;
};

inline std::vector<Value<bool>> Flags() { return {{"yes", true}, {"no", false}, {"yes again", true}}; }

/// The codes that the controls write into a field, by the field's name.
inline std::vector<Value<std::int16_t>> Codes(std::string_view field) {
  if (field == "CorrectieLast" || field == "CorrectieFiscaal") return {{"2", 2}, {"3", 3}, {"1", 1}};
  if (field == "Termijn") return {{"3", 3}, {"6", 6}, {"12", 12}, {"99", 99}, {"1", 1}};
  if (field == "HeffingBij") return {{"partner", 2}, {"applicant", 1}};
  if (field == "Productsoort") return {{"42", 42}, {"43", 43}, {"44", 44}, {"45", 45}, {"99", 99}, {"0", 0}};
  constexpr std::int16_t kLargest = std::numeric_limits<std::int16_t>::max();
  if (field == "Maand") return {{"first", 1}, {"of row 3", 25}, {"of row 80", 960}, {"largest", kLargest}};
  return {{"ordinary", 67}, {"largest", kLargest}, {"none", 0}};
}

inline std::vector<Value<std::int32_t>> Months() {
  return {{"ordinary", 14},
          {"of a product", 999},
          {"largest that is typed", 32767},
          {"smallest that is typed", -32768},
          {"beyond 16 bits", 100000},
          {"none", 0}};
}

inline std::vector<Value<host::Date>> Dates() {
  return {{"ordinary", frame::MakeDate({2026, 11, 21})},
          {"leap day", frame::MakeDate({2024, 2, 29})},
          {"end of summer time", frame::MakeDate({2026, 10, 25})},
          {"day after the zero date", host::Date(1)},
          {"day before the zero date", host::Date(-1)},
          {"first of the calendar", frame::kFirstDay},
          {"last of the calendar", frame::kLastDay},
          {"no date", host::kNoDate}};
}

inline std::vector<Value<double>> Amounts() {
  return {{"ordinary", 32.5},
          {"a tenth", 0.1},
          {"more digits than single precision", 1234567.89},
          {"negative", -0.01},
          {"a third", 1.0 / 3},
          {"a cent more than a million million", 1e12 + 0.01},
          {"largest", std::numeric_limits<double>::max()},
          {"smallest", std::numeric_limits<double>::min()},
          {"none", 0}};
}

inline std::vector<Value<float>> Percentages() {
  return {{"ordinary", 70},
          {"a tenth", 0.1F},
          {"a third", 100.0F / 3},
          {"just below a hundred", 99.99999F},
          {"a hundred", 100},
          {"smallest", std::numeric_limits<float>::min()},
          {"none", 0}};
}

/// UTF-8. The empty one comes after others, so that a text that stays behind is seen.
inline std::vector<Value<std::string>> Texts() {
  std::string lang;
  for (int i = 0; i < 250; ++i) lang += "één ";
  return {{"ordinary", "Krant"},
          {"accents and signs", "Café 't Zoë – € 12,50"},
          {"quotation marks", "O'Brien \"& Zn\"; -- %s \\n"},
          {"four bytes a character", "huis 🏠🏡 en tuin 🌷"},
          {"an accent of its own", "e\xCC\x81\x65n"},
          {"blanks at both ends", "  twee  "},
          {"long text", lang + "!"},
          {"empty", ""}};
}

inline std::vector<Value<std::string>> CompanyCodes(const Options& options) {
  return {{"a company", options.company.code}, {"named in text", options.other.code}, {"none", ""}};
}

inline std::vector<Value<std::string>> Memberships() { return {{"in", "J"}, {"out", "N"}, {"never set", ""}}; }

/// The values of a field by its kind.
template <class T> std::vector<Value<T>> ValuesOf(std::string_view field, const Options& options) {
  if constexpr (std::is_same_v<T, bool>)
    return Flags();
  else if constexpr (std::is_same_v<T, std::int16_t>)
    return Codes(field);
  else if constexpr (std::is_same_v<T, std::int32_t>)
    return Months();
  else if constexpr (std::is_same_v<T, float>)
    return Percentages();
  else if constexpr (std::is_same_v<T, double>)
    return Amounts();
  else if constexpr (std::is_same_v<T, host::Date>)
    return Dates();
  else
    return field == "Maatschappij" ? CompanyCodes(options) : Texts();
}

/// What the contract says of a value of that kind, and where a host that does otherwise is to look.
struct Told {
  const char* contract;
  const char* hint;
};
template <class T> constexpr Told ToldOf() {
  if constexpr (std::is_same_v<T, bool>)
    return {"a flag is kept", "each of the flags has a place of its own; three exclude and one includes"};
  else if constexpr (std::is_same_v<T, std::int16_t>)
    return {"a code is kept, in 16 bits", "store the number itself, not a place in a list"};
  else if constexpr (std::is_same_v<T, std::int32_t>)
    return {"a number of months is kept, in 32 bits, whatever it is",
            "what is out of bounds for you is not for the record to change"};
  else if constexpr (std::is_same_v<T, float>)
    return {"a percentage is kept in single precision, exactly",
            "store it as a number, with all its digits: no rounding, no text of a few decimals"};
  else if constexpr (std::is_same_v<T, double>)
    return {"an amount is kept in double precision, exactly", "store it as a double: single precision holds 7 digits"};
  else if constexpr (std::is_same_v<T, host::Date>)
    return {"a date is kept as a count of days from 30 December 1899, without time or zone; 0 is no date",
            "do not go by way of a local time, nor of days from 1 January 1900"};
  else
    return {"a text is kept byte for byte, in UTF-8, the empty one as well",
            "limit characters, not bytes; do not take an empty text for none, nor trim or normalise"};
}

}  // namespace brivane::hostkit
