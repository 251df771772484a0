#pragma once

#include <cstdint>

#include <brivane/host/Date.h>
#include <brivane/host/model/VrijeKolomFields.h>

/// From when until when a free column runs.
namespace brivane::sums {

struct Looptijd {
  host::Date aanvang;  ///< its first day; no date where none was entered, and then it does not run
  host::Date einde;    ///< the first day on which it runs no longer; no date where it has no end
  friend bool operator==(const Looptijd&, const Looptijd&) = default;
};

/// A kind of product with a contract runs until its expiry date, all else for its duration. A one-off amount has no
/// end, nor has a duration past the years of the calendar.
[[nodiscard]] Looptijd LooptijdVan(const host::VrijeKolomValues& kolom);

/// Whether it runs on a day.
[[nodiscard]] bool Loopt(const Looptijd& looptijd, host::Date dag);

/// Which of its months a day lies in, from 1; 0 before its start. Month m begins m - 1 calendar months after the start,
/// on the last day of a month that is too short.
[[nodiscard]] std::int32_t MaandOp(host::Date aanvang, host::Date dag);

}  // namespace brivane::sums
