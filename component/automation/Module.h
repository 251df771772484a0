#pragma once

#include <string>

#include "component/automation/ComPtr.h"

/// The library as a whole: where its code lies, its type libraries, and what keeps it in memory.
namespace brivane::component::module {

/// The type libraries that lie embedded in the library are numbered from 1; the first is the one that it registers.
inline constexpr int kOwnTypeLibrary = 1;
inline constexpr int kMostTypeLibraries = 2;

/// Once, when the library is loaded.
void Attach(HINSTANCE instance);
[[nodiscard]] HINSTANCE Instance();
/// Where the library lies on the disk.
[[nodiscard]] std::wstring Path();

/// The type library of that number, read from the library itself: it need not be registered. Throws where it cannot be
/// read.
[[nodiscard]] ComPtr<ITypeLib> TypeLibrary(int number);
/// The description of an interface or class.
[[nodiscard]] ComPtr<ITypeInfo> TypeInfo(int library, const GUID& id);

/// Counts what keeps the library in memory: objects and locks. When the last one goes, the type libraries are let go.
void Keep() noexcept;
void LetGo() noexcept;
[[nodiscard]] bool CanUnload() noexcept;

/// A base or member that counts as a live object as long as it lives.
class LiveObject {
 public:
  LiveObject() noexcept { Keep(); }
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;

 protected:
  ~LiveObject() { module::LetGo(); }
};

}  // namespace brivane::component::module
