#pragma once

#include <vector>

#include <brivane/session/document/Document.h>
#include <brivane/session/document/Reading.h>

namespace brivane::session {

/// Where a list of steps stands, which decides what may be in it.
enum class StepList : std::uint8_t {
  Session,  ///< the document's own steps
  Pending,  ///< user actions on the editor that are waiting
  Modal,    ///< while the year-by-year form is open
};

/// Reads a list of steps. Throws BadInput.
[[nodiscard]] std::vector<Step> ReadSteps(const Value& value, StepList list);

}  // namespace brivane::session
