#pragma once

#include <cstdint>
#include <optional>

namespace brivane::app {

/// A place in a case: a loan, or one free column of it.
struct Place {
  std::int16_t Len_Id = 0;
  std::optional<std::int16_t> Vrij_Id;
  friend bool operator==(const Place&, const Place&) = default;
};

}  // namespace brivane::app
