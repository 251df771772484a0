#pragma once

#include <vector>

#include <brivane/controls/Dump.h>
#include <brivane/host/model/BedragObject.h>
#include <brivane/host/model/VrijeKolomItem.h>
#include <brivane/session/document/Json.h>

/// The state of controls and records as the dumps of a transcript show it.
namespace brivane::session {

/// Every control on a surface, by name.
[[nodiscard]] Json DumpControls(const controls::Surface& surface);
[[nodiscard]] Json DumpControls(const std::vector<controls::ControlDump>& dump);
/// A free column of any host, as in a document.
[[nodiscard]] Json DumpRecord(host::VrijeKolomItem& kolom);
/// An amount object of any host.
[[nodiscard]] Json DumpRecord(host::BedragObject& bedrag);

}  // namespace brivane::session
