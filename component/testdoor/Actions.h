#pragma once

#include <string>
#include <string_view>

#include "component/automation/Variant.h"
#include <brivane/controls/Surface.h>

namespace brivane::component {

/// The element of that name ("optLast(2)", "Toelichting.jnAO"), or nothing.
[[nodiscard]] controls::AnyControl* FindElement(controls::Surface& surface, std::string_view element);

/// What a person does, by its name in the interface of the door. Error 5 for another name, error 381 for an entry that
/// the list does not have.
[[nodiscard]] controls::Action ActionOf(std::string_view name, const VARIANT& value,
                                        const controls::AnyControl& control);

}  // namespace brivane::component
