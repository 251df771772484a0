#pragma once

#include <memory>

namespace brivane::controls {

class AnyControl;
class DrawnToolkit;
class Form;

/// Whether a person has changed rows of a form. They are stored by its button alone, so Escape and the close box ask
/// first.
class RowChanges {
 public:
  /// Of the form that a control is a row of; nothing for any other control. It outlives the form, which may be gone
  /// when an action on the row comes back.
  [[nodiscard]] static std::shared_ptr<RowChanges> Around(const AnyControl& control);

  void Mark() { changed_ = true; }
  [[nodiscard]] bool Any() const { return changed_; }

  /// A person closes the window of a form.
  static void Close(Form& form, DrawnToolkit& toolkit);

 private:
  bool changed_ = false;
};

}  // namespace brivane::controls
