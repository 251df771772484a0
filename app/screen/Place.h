#pragma once

#include <cstdint>
#include <optional>

namespace brivane::dossier {

/// A place in a case: a loan, or one free column of it.
struct Plek {
  std::int16_t Len_Id = 0;
  std::optional<std::int16_t> Vrij_Id;
  friend bool operator==(const Plek&, const Plek&) = default;
};

}  // namespace brivane::dossier
