#pragma once

#include <cstdint>

namespace brivane::session {

/// What becomes of the case that a document describes, where the host brings a case of its own.
enum class DescribedCase : std::uint8_t {
  Refused,     ///< a document that describes one is bad input: its steps may be meant for that case alone
  PassedOver,  ///< it is not even read, and the steps are played on the host's own
};

}  // namespace brivane::session
