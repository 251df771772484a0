#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>

/// The fields of a record as a table, so that a field is told once: what stores, reads, writes or follows a record
/// walks its table.
///
///     VrijeKolomValues values;
///     ForEach(kVrijeKolomFields, [&](const auto& field) { values.*field.value = field.Read(column); });
namespace brivane::host {

/// What all fields of a kind of record have.
template <class Record> struct AnyField {
  std::string_view name;  ///< as the record's interface spells it: "Termijn"; lives as long as the program
  std::size_t place = 0;  ///< in its table, from 0
};

/// A field that is read and written. `Values` holds the fields of the record as plain values; `Given` is how the
/// setter is handed the value.
template <class Record, class Values, class T, class Given> struct Field : AnyField<Record> {
  using Value = T;  ///< what it holds

  /// Its name, its place among the values, and its two functions; the place in the table is told by FieldTable.
  constexpr Field(std::string_view name_, T Values::*value_, T (Record::*get_)() const, void (Record::*set_)(Given))
      : AnyField<Record>{name_, 0}, value(value_), get(get_), set(set_) {}

  /// Asks the record; what the record throws goes on to the caller.
  [[nodiscard]] T Read(const Record& record) const { return (record.*get)(); }

  T Values::*value;            ///< where the plain values have it
  T (Record::*get)() const;    ///< the record's getter
  void (Record::*set)(Given);  ///< the record's setter
};

/// A field that is read and never written.
template <class Record, class Values, class T> struct ReadOnlyField : AnyField<Record> {
  using Value = T;  ///< what it holds

  /// Its name, its place among the values, and its getter.
  constexpr ReadOnlyField(std::string_view name_, T Values::*value_, T (Record::*get_)() const)
      : AnyField<Record>{name_, 0}, value(value_), get(get_) {}

  /// Asks the record; what the record throws goes on to the caller.
  [[nodiscard]] T Read(const Record& record) const { return (record.*get)(); }

  T Values::*value;          ///< where the plain values have it
  T (Record::*get)() const;  ///< the record's getter
};

/// A field that has a value for each number from 1 to `count`.
template <class Record, class Values, class T, class Given, std::size_t count> struct NumberedField : AnyField<Record> {
  using Value = std::array<T, count>;  ///< that of number 1 first

  /// Its name, its place among the values, and its two functions.
  constexpr NumberedField(std::string_view name_, Value Values::*value_, T (Record::*get_)(std::int16_t) const,
                          void (Record::*set_)(std::int16_t, Given))
      : AnyField<Record>{name_, 0}, value(value_), get(get_), set(set_) {}

  /// Asks the record for each number in turn.
  [[nodiscard]] Value Read(const Record& record) const {
    Value values;
    for (std::size_t i = 0; i < count; ++i) values[i] = (record.*get)(static_cast<std::int16_t>(i + 1));
    return values;
  }

  Value Values::*value;                      ///< where the plain values have them
  T (Record::*get)(std::int16_t) const;      ///< the record's getter, given a number
  void (Record::*set)(std::int16_t, Given);  ///< the record's setter, given a number
};

/// A table of fields, each told its place.
template <class... Fields> [[nodiscard]] constexpr std::tuple<Fields...> FieldTable(Fields... fields) {
  std::size_t place = 0;
  ((fields.place = place++), ...);
  return {fields...};
}

/// Hands a visitor every field of a table, in the table's order.
template <class Fields, class Visitor> constexpr void ForEach(const Fields& table, Visitor&& visit) {
  std::apply([&](const auto&... field) { (visit(field), ...); }, table);
}

/// The place in a table of the field that holds that value; the length of the table where there is none.
template <class Fields, class Value> [[nodiscard]] constexpr std::size_t PlaceOf(const Fields& table, Value value) {
  std::size_t place = std::tuple_size_v<Fields>;
  ForEach(table, [&](const auto& field) {
    if constexpr (std::is_same_v<std::remove_const_t<decltype(field.value)>, Value>)
      if (field.value == value) place = field.place;
  });
  return place;
}

/// The field that holds a value: `kFieldOf<kVrijeKolomFields, &VrijeKolomValues::Termijn>`.
template <const auto& table, auto value> inline constexpr const auto& kFieldOf = std::get<PlaceOf(table, value)>(table);

}  // namespace brivane::host
