#pragma once

#include <cstdint>
#include <memory>

#include <brivane/host/Export.h>

namespace brivane::controls {

class AnyControl;
class DrawnToolkit;
class Form;

/// What a person has changed in the rows of a form. They are stored by its button alone, so Escape and the close box
/// ask first. The value of the first row is the exception: it is stored as soon as it is entered, and stays.
class BRIVANE_API RowChanges {
 public:
  /// Of the form that a control is a row of; nothing for any other control. It outlives the form, which may be gone
  /// when an action on the row comes back.
  [[nodiscard]] static std::shared_ptr<RowChanges> Around(const AnyControl& control);

  /// What closing the form leaves of an entry.
  enum class Stays : std::uint8_t {
    Nothing,  ///< nothing: OK alone stores it
    Amount,   ///< the amount of the first row, which was stored when it was entered
    Value,    ///< the value of the first row, where the rows have no amounts
  };
  /// Of one in this row element. The value of the first row is its amount, or where the rows have none, what its boxes
  /// make of it.
  [[nodiscard]] static Stays WhatStays(const AnyControl& control);

  /// A person changed a row; `stays` is what closing leaves of it.
  void Mark(Stays stays) {
    changed_ = true;
    if (stays != Stays::Nothing) stays_ = stays;
  }
  /// Whether a person changed any row.
  [[nodiscard]] bool Any() const { return changed_; }

  /// A person closes the window of a form: where a row was changed or is being typed in, a question is asked first. The
  /// form may be gone when this returns.
  static void Close(Form& form, DrawnToolkit& toolkit);

 private:
  bool changed_ = false;
  Stays stays_ = Stays::Nothing;
};

}  // namespace brivane::controls
