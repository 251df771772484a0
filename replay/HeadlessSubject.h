#pragma once

#include <memory>

#include "replay/Subject.h"

namespace brivane::replay {

/// The real controls on the headless toolkit.
[[nodiscard]] std::unique_ptr<Subject> MakeHeadlessSubject(const Document& document, InstrumentedHost& host,
                                                           Audience& audience);

}  // namespace brivane::replay
