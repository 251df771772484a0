#pragma once

#include <cstdint>
#include <span>

namespace brivane::fuzz {

enum class Outcome { Refused, Opened };

/// Opens the bytes as a loan file; bytes after its last page are the log beside it. What is refused is left to the
/// byte, with nothing new beside it. What opens is whole by SQLite's full check, constraints included, opens again
/// with the same contents, and keeps an edit. Aborts where that is not so.
Outcome OpenAsLoanFile(std::span<const std::uint8_t> bytes);

}  // namespace brivane::fuzz
