#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include <brivane/host/controls/Control.h>
#include <brivane/host/controls/DrawingSurface.h>

namespace brivane::host {

/// The area of a control or form: holds the controls of one design table.
///
/// A surface is itself a control where it is embedded in another one.
class Surface : public Control, public DrawingSurface {
 public:
  /// The control of a row of the design table, counted from 0; it lives as long as the surface. A control array has a
  /// row for each designed element.
  [[nodiscard]] virtual Control& At(std::size_t row) = 0;
  /// Every control on the surface in the order of creation, those inside frames too; of an embedded
  /// surface, the surface itself and not what is on it.
  [[nodiscard]] virtual const std::vector<Control*>& Controls() const = 0;

  /// The size changed, or the container sized the surface anew.
  Event<> Resize;
  /// The background colour was set.
  Event<Color> BackColorSet;
};

}  // namespace brivane::host
