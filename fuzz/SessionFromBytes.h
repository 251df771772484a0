#pragma once

#include "fuzz/Bytes.h"
#include <brivane/session/document/Json.h>

namespace brivane::fuzz {

/// A replay document made by structure: whatever the bytes, its form is right, so that every one of them is a
/// choice of what an adviser does, what the record holds, or where the host fails.
[[nodiscard]] session::Json SessionFromBytes(Bytes bytes);

}  // namespace brivane::fuzz
