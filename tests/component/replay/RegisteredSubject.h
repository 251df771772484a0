#pragma once

#include "replay/play/Subject.h"

namespace brivane::latebound {

/// The registered component, made by its ProgIDs and reached through Automation alone: the host's objects go in as
/// late-bound ones, events come through connection points, and a person acts through the component's test door. COM
/// must be initialised.
[[nodiscard]] std::unique_ptr<replay::Subject> MakeRegisteredSubject(const replay::Document& document,
                                                                     replay::InstrumentedHost& host,
                                                                     replay::Audience& audience);

}  // namespace brivane::latebound
