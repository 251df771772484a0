#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <brivane/host/Date.h>

/// A value of a script as it goes over to the controls and back.
namespace brivane::webhost {

/// A reference to a value that the script keeps for this side, until the last of them goes.
class Kept {
 public:
  Kept(int page, int number) : page_(page), number_(number) {}
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;
  ~Kept();

  [[nodiscard]] int Page() const { return page_; }
  /// The same for the same object, as long as it is kept.
  [[nodiscard]] int Number() const { return number_; }

 private:
  int page_;
  int number_;
};

using Object = std::shared_ptr<const Kept>;

struct Value {
  enum class Type : std::int32_t {
    Nothing,  ///< undefined and null
    Boolean,
    Number,
    Text,
    Date,    ///< days in `number`; not a number for a date that is none
    Object,  ///< an object, a function, and what else there is
    Other,
  };

  Type type = Type::Nothing;
  double number = 0;
  std::string text;
  Object object;

  Value() = default;
  explicit Value(bool given) : type(Type::Boolean), number(given ? 1 : 0) {}
  explicit Value(double given) : type(Type::Number), number(given) {}
  explicit Value(float given) : Value(static_cast<double>(given)) {}
  explicit Value(std::int16_t given) : Value(static_cast<double>(given)) {}
  explicit Value(std::int32_t given) : Value(static_cast<double>(given)) {}
  explicit Value(std::string given) : type(Type::Text), text(std::move(given)) {}
  /// "2031-04-01", or nothing for no date.
  explicit Value(host::Date given);
  explicit Value(Object given) : type(given ? Type::Object : Type::Nothing), object(std::move(given)) {}
};

/// The value as a type of the model. What is of another type, or no number where one is needed, fails with error 13, a
/// number that is too large with error 6. Nothing is guessed: a text is no number and a number no text.
template <class T> [[nodiscard]] T As(const Value& value);
template <> bool As<bool>(const Value& value);
template <> std::int16_t As<std::int16_t>(const Value& value);
template <> std::int32_t As<std::int32_t>(const Value& value);
template <> float As<float>(const Value& value);
template <> double As<double>(const Value& value);
template <> std::string As<std::string>(const Value& value);
/// A text "2031-04-01" or a date of the script, of which the day counts; nothing and 0 are no date.
template <> host::Date As<host::Date>(const Value& value);
/// Nothing for nothing.
template <> Object As<Object>(const Value& value);

}  // namespace brivane::webhost
