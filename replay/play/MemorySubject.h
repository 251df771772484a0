#pragma once

#include <memory>

#include "replay/play/Subject.h"

namespace brivane::replay {

/// The real controls on the toolkit in memory.
[[nodiscard]] std::unique_ptr<Subject> MakeMemorySubject(const Document& document, InstrumentedHost& host,
                                                         Audience& audience);

}  // namespace brivane::replay
