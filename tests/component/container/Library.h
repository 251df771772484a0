#pragma once

#include "component/automation/ComPtr.h"
#include "component/idl/Interfaces.h"

namespace brivane::component::test {

/// The component library, loaded and known to this process alone as long as this stands. It lies beside the test.
class Library {
 public:
  Library();
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  /// Gives the library up, so that it is unloaded when nothing of it is in use.
  ~Library();

  [[nodiscard]] bool IsLoaded() const { return module_ != nullptr; }
  /// Nothing of the library is in use but the class that is known here.
  [[nodiscard]] bool CanUnload();

 private:
  void Reveal();
  void Revoke();

  HMODULE module_ = nullptr;
  DWORD cookies_[2]{};
};

[[nodiscard]] bool IsLibraryInMemory();

/// OLE in this thread, as long as this stands.
struct Ole {
  Ole() { ::OleInitialize(nullptr); }
  ~Ole() { ::OleUninitialize(); }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;
};

/// Takes the messages that wait.
void Pump();

}  // namespace brivane::component::test
