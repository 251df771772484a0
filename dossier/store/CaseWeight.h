#pragma once

#include <cstdint>

#include "dossier/store/CaseTables.h"

/// How large a case is, whatever its history: by one measure when it is read and when it is changed, so that what is
/// stored opens again.
namespace brivane::dossier {

/// A case weighs no more than this. A row weighs less than it takes in a file, so that a case of that many bytes fits.
inline constexpr std::int64_t kMostWeight = std::int64_t{4} << 20;

/// What a row weighs but for its texts, which weigh their bytes.
[[nodiscard]] constexpr std::int64_t BareWeight(Tabel tabel) {
  switch (tabel) {
    case Tabel::Kolom: return 40;
    case Tabel::Periode: return 8;
    case Tabel::Dossier:
    case Tabel::Persoon:
    case Tabel::Lening:
    case Tabel::Voorstel: break;
  }
  return 4;
}

[[nodiscard]] inline std::int64_t WeightOf(Tabel tabel, const Row& row) {
  std::int64_t weight = BareWeight(tabel);
  for (const Stored& value : row) {
    if (const auto* text = std::get_if<std::string>(&value)) weight += static_cast<std::int64_t>(text->size());
  }
  return weight;
}

}  // namespace brivane::dossier
