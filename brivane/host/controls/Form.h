#pragma once

#include <cstddef>
#include <string>

#include <brivane/host/controls/Surface.h>
#include <brivane/host/model/Hoofdvenster.h>

namespace brivane::host {

/// A form: a surface in a window of its own, whose control arrays can grow at run time.
///
/// Its place is that of the window, frame and title included; the difference to the scale measures is what frame and
/// title take. It is shown once: what was unloaded does not come back.
class Form : public Surface {
 public:
  /// Makes element `index` of the control array whose template (element 0) is the control of `row`. It copies every
  /// property of the template and starts invisible. The form keeps it.
  virtual Control& Create(std::size_t row, int index) = 0;
  /// A made element, or nothing.
  [[nodiscard]] virtual Control* Element(std::size_t row, int index) = 0;

  /// What is inside frame and title: where the controls stand.
  /// @{
  [[nodiscard]] virtual Twips ScaleWidth() const = 0;
  [[nodiscard]] virtual Twips ScaleHeight() const = 0;
  /// @}
  /// What its window is titled, in UTF-8.
  [[nodiscard]] virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;

  /// Shows the form modally over its owner, or over nothing in particular, and returns when it has been unloaded.
  /// Raises Activate first.
  virtual void ShowModal(Hoofdvenster* eigenaar) = 0;
  /// Closes the form; ShowModal returns after the running event. Raises Unloaded once.
  virtual void Unload() = 0;

  /// The form comes on the screen.
  Event<> Activate;
  /// The form was closed, by Unload or by its close box.
  Event<> Unloaded;
};

}  // namespace brivane::host
