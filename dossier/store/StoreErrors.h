#pragma once

#include <cstdint>

/// Numbers of the host failures by which a change is refused.
namespace brivane::dossier {

/// Number of the first host failure of the store: SQLite's result code is added to it.
inline constexpr std::int32_t kStoreError = 1000;
/// The file, or its log, is no longer where it was: nothing more is written, and what is stored can be kept elsewhere.
inline constexpr std::int32_t kMovedError = kStoreError + 300;
/// The value is none that a loan file may hold: Possible.h.
inline constexpr std::int32_t kImpossibleError = kStoreError + 400;

}  // namespace brivane::dossier
