#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "dossier/office/Aside.h"
#include "dossier/office/OfficeConnection.h"

namespace brivane::dossier {

/// Makes a session that is not begun yet; called on the thread that uses it.
using NewConnection = std::function<std::unique_ptr<OfficeConnection>()>;
/// Nothing where one is let in.
using KnockAnswer = std::function<void(const std::optional<OfficeError>& failure)>;

/// Finds out aside whether an office lets one in, with a session that ends at once: a session belongs to the thread
/// that began it, and one that is begun right after this does not wait.
void Knock(Aside& aside, NewConnection make, KnockAnswer answer);

}  // namespace brivane::dossier
