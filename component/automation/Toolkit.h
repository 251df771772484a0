#pragma once

#include "component/automation/Module.h"
#include "toolkits/headless/Toolkit.h"

namespace brivane::component {

/// The toolkit whose controls the library shows, and a window of the host as it knows it.
using Toolkit = headless::Toolkit;
class Venster : public host::Hoofdvenster {
 public:
  explicit Venster(HWND handle) : handle_(handle) {}
  [[nodiscard]] HWND Handle() const { return handle_; }

 private:
  HWND handle_;
};

[[nodiscard]] inline std::unique_ptr<Toolkit> MakeToolkit() { return std::make_unique<Toolkit>(); }

}  // namespace brivane::component
