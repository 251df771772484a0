#pragma once

#include <string_view>

#include "component/automation/Variant.h"
#include <brivane/controls/Surface.h>

/// The state of controls in the form that the door hands out; the words are those of its interface.
namespace brivane::component {

[[nodiscard]] Variant AspectOf(const controls::AnyControl& control, std::string_view aspect);
[[nodiscard]] Variant DumpOf(const controls::Surface& surface);

}  // namespace brivane::component
