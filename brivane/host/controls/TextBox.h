#pragma once

#include <cstdint>
#include <string>

#include <brivane/host/Date.h>
#include <brivane/host/controls/Control.h>

namespace brivane::host {

/// The host's text box, for text, numbers, amounts, whole numbers or dates; its design says which.
///
/// Reading content that is not of the asked kind fails with error 13. An empty box reads as "", 0 or
/// no date. Writing by code raises nothing.
class TextBox : public Control {
 public:
  /// The content as a text, a number or a date; a number box has its amount or percentage in double precision.
  /// @{
  [[nodiscard]] virtual std::string Text() const = 0;
  [[nodiscard]] virtual double Number() const = 0;
  [[nodiscard]] virtual Date DateValue() const = 0;
  /// @}

  /// Writes a text, in UTF-8.
  virtual void SetText(const std::string& text) = 0;
  /// For number boxes; 0 empties a date box.
  virtual void SetNumber(double number) = 0;
  /// For date boxes; host::kNoDate empties it.
  virtual void SetDate(Date date) = 0;

  /// Whether it is written by code alone: a person can read and copy what stands in it.
  [[nodiscard]] virtual bool Locked() const = 0;
  virtual void SetLocked(bool locked) = 0;

  /// Moves the input focus into the box.
  virtual void SetFocus() = 0;

  /// A person left the box after an edit. Setting Cancel refuses: the focus stays, the content stays as typed.
  Event<bool&> Validation;
};

}  // namespace brivane::host
