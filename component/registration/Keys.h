#pragma once

#include <string>
#include <vector>

/// What the library writes in the registry, as data: below the key of the classes of all users or of one.
namespace brivane::component {

/// One value. An empty name is the value of the key itself.
struct KeyValue {
  std::wstring key;
  std::wstring name;
  std::wstring value;

  friend bool operator==(const KeyValue&, const KeyValue&) = default;
};

/// Every value of a library that lies at `path`: classes and program identifiers, the type library and its interfaces.
[[nodiscard]] std::vector<KeyValue> ValuesFor(const std::wstring& path);
/// The keys that go with everything below them when the library is unregistered.
[[nodiscard]] std::vector<std::wstring> OwnKeys();

/// The key of the type library, shared with a library for the other kind of machine, and this kind's key below it.
[[nodiscard]] std::wstring TypeLibraryKey();
[[nodiscard]] std::wstring PlatformKey();

}  // namespace brivane::component
