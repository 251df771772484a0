#pragma once

#include <memory>
#include <string>

#include "component/automation/HostSession.h"
#include "component/objects/Companion.h"
#include <brivane/frame/Texts.h>
#include <brivane/host/model/HostFactories.h>

namespace brivane::component {

/// ProgIDs of the host classes that a control makes itself; empty for the library's own plain ones.
struct HostClasses {
  std::string procedureTrace;
  std::string dossierControle;
};

/// The classes that the host registered for the controls of a class: values `ProcedureTrace` and `DossierControle` of
/// the key `HostClasses` below the class's own.
[[nodiscard]] HostClasses RegisteredHostClasses(const CLSID& control);

/// The texts of the language that the host registered for the controls of a class: `Language` of that key, "nl" or
/// "en".
[[nodiscard]] const frame::Texts& RegisteredTexts(const CLSID& control);

/// Makes the host's tracer and check for the logic: what the companion makes, else one of the class. All three must
/// outlive the control.
///
/// A class that cannot be made fails with error 429.
[[nodiscard]] host::HostFactories FactoriesFor(HostSession& session, const HostClasses& classes, Companion& companion);

}  // namespace brivane::component
