#pragma once

#include <memory>

#include <brivane/frame/Design.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Desktop.h>
#include <brivane/host/controls/Form.h>
#include <brivane/host/controls/Surface.h>

namespace brivane::frame {

/// Makes surfaces and forms from design tables, and stands for the machine around them.
///
/// As designed: boxes empty, toggles at "Nee", check boxes unticked, no option and no list entry
/// selected, everything enabled, and visible but for the templates of run-time elements.
class BRIVANE_API Toolkit {
 public:
  virtual ~Toolkit() = default;

  /// The machine; it lives as long as the toolkit.
  [[nodiscard]] virtual host::Desktop& Desktop() = 0;
  /// A surface of its own, or a form, with every control of the design, which lives as long as the program. The caller
  /// owns it, and the toolkit outlives it.
  /// @{
  [[nodiscard]] virtual std::unique_ptr<host::Surface> MakeSurface(const Design& design) = 0;
  [[nodiscard]] virtual std::unique_ptr<host::Form> MakeForm(const Design& design) = 0;
  /// @}
};

}  // namespace brivane::frame
