#pragma once

#include "component/idl/Windows.h"

namespace brivane::component {

/// The miscellaneous status that is registered for the controls and told to containers: the height follows from the
/// width, so the picture is drawn anew on sizing; cannot be linked to from another document; active with a window as
/// long as it is visible; is handed its site before its state.
inline constexpr DWORD kMiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                     OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

}  // namespace brivane::component
