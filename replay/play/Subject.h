#pragma once

#include <functional>
#include <memory>

#include "replay/document/Document.h"
#include <brivane/session/play/Subject.h>

namespace brivane::replay {

/// Makes the component for a session, as session::MakeSubject does, and knows the case that the document starts from.
using MakeSubject =
    std::function<std::unique_ptr<Subject>(const Document& document, InstrumentedHost& host, Audience& audience)>;

}  // namespace brivane::replay
