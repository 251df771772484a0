#pragma once

#include <memory>

#include <brivane/session/play/Subject.h>

namespace brivane::session {

/// The real controls on the toolkit in memory.
[[nodiscard]] std::unique_ptr<Subject> MakeMemorySubject(const Document& document, InstrumentedHost& host,
                                                         Audience& audience);

}  // namespace brivane::session
