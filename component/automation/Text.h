#pragma once

#include "component/idl/Windows.h"

#include <string>
#include <string_view>

/// The logic's texts are UTF-8, those of Windows UTF-16.
namespace brivane::component {

[[nodiscard]] std::wstring Wide(std::string_view text);
/// Half of a surrogate pair becomes U+FFFD.
[[nodiscard]] std::string Narrow(std::wstring_view text);

/// A new string of Automation, which the receiver frees.
[[nodiscard]] BSTR NewBstr(std::string_view text);
/// Nothing is the empty text.
[[nodiscard]] std::string FromBstr(BSTR text);

}  // namespace brivane::component
