#pragma once

#include "component/idl/Windows.h"

#include <string>

namespace brivane::component {

/// Whose classes: those of all users, or those of the current user alone.
enum class Scope { AllUsers, CurrentUser };

/// Writes the keys of a library that lies at `path`. What was written is taken back where it fails.
[[nodiscard]] HRESULT Register(Scope scope, const std::wstring& path);
/// For all users, or for the current user alone where rights are lacking.
[[nodiscard]] HRESULT Register(const std::wstring& path);

/// Takes the keys away with everything below them; without fail where there are none. The keys that a library for the
/// other kind of machine shares stay while that one is registered.
[[nodiscard]] HRESULT Unregister(Scope scope);
/// In both places.
[[nodiscard]] HRESULT Unregister();

}  // namespace brivane::component
