#pragma once

#include <string>
#include <string_view>

#include "component/automation/Variant.h"
#include "toolkits/headless/Surface.h"

namespace brivane::component {

/// The element of that name ("optLast(2)", "Toelichting.jnAO"), or nothing.
[[nodiscard]] headless::AnyControl* FindElement(headless::Surface& surface, std::string_view element);

/// What a person does, by its name in the interface of the door. Error 5 for another name, error 381 for an entry that
/// the list does not have.
[[nodiscard]] headless::Action ActionOf(std::string_view name, const VARIANT& value,
                                        const headless::AnyControl& control);

}  // namespace brivane::component
