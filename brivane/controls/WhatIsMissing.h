#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <brivane/host/Export.h>
#include <brivane/host/model/Application.h>

namespace brivane::controls {

/// Why a column cannot be bound, for the engineer of the host: the first member, in the order in which the editor asks
/// them, that answers nothing, fails, or answers a code that the editor does not know. Empty where all is there.
///
/// The editor reports such a binding to the host's ReportError by number ("Object missing"); this says whose object. It
/// asks the host anew and writes nothing.
///
///     if (editor.SetApplication(application, 0, 1) != controls::BindingResult::Bound)
///       std::cerr << controls::WhatIsMissing(application, 0, 1) << '\n';
///
///     Dossier.Persoon(1) answers nothing: every case has an applicant
[[nodiscard]] BRIVANE_API std::string WhatIsMissing(const std::shared_ptr<host::Application>& application,
                                                    std::int16_t Len_Id, std::int16_t Vrij_Id);

}  // namespace brivane::controls
