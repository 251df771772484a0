#pragma once

#include <cstdint>
#include <span>

/// What the fuzzers drive. A target aborts where something is wrong; the bytes themselves can never be.
namespace brivane::fuzz {

/// Turns the bytes into a session by structure and replays it: the document must be accepted, the trace
/// lines must keep their order, and the transcript must be JSON.
void ReplaySession(std::span<const std::uint8_t> bytes);

/// Reads the bytes as a document, and replays it where it is one.
void ReadAsDocument(std::span<const std::uint8_t> bytes);

}  // namespace brivane::fuzz
