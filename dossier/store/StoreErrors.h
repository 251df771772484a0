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
/// The office cannot be reached: the change is not stored.
inline constexpr std::int32_t kOfficeError = kStoreError + 500;
/// The connection broke while the office was storing the change, and it is not known yet whether it did.
inline constexpr std::int32_t kUnknownError = kStoreError + 501;
/// Somebody else edits the client: nothing of this window's is stored any more.
inline constexpr std::int32_t kLeaseError = kStoreError + 502;
/// The office refused the change.
inline constexpr std::int32_t kRefusedError = kStoreError + 503;

}  // namespace brivane::dossier
