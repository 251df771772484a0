#pragma once

#include <cstdint>
#include <string>

#include <brivane/host/Date.h>
#include <brivane/host/Event.h>

namespace brivane::host {

/// Buttons and icon of a message box: the sum of the button code (0 OK, 4 Yes/No) and the icon code
/// (32 question, 48 exclamation).
enum class MessageStyle : std::int32_t {
  YesNoQuestion = 36,  ///< "Ja" and "Nee"
  OkExclamation = 48   ///< "OK" alone
};

/// What a message box answers: the button, by its number.
enum class MessageAnswer : std::int32_t {
  Ok = 1,   ///< "OK", also by closing the box
  Yes = 6,  ///< "Ja"
  No = 7    ///< "Nee", also by closing the box
};

/// What a control needs of the machine and the running application around it.
///
/// It belongs to the toolkit and outlives what that made.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Title of the running application, in UTF-8; an error report bears it.
  [[nodiscard]] virtual std::string ApplicationTitle() const = 0;
  /// Shows a modal message box and answers the button that closed it; title and text are UTF-8, and Dutch. Events of
  /// the user interface run meanwhile, so that anything may have changed when it returns.
  virtual MessageAnswer MessageBox(const std::string& title, const std::string& text, MessageStyle style) = 0;
  /// Twips to a pixel: 15 on a screen of 96 dots per inch. Another number has every surface scaled once, as it is made.
  [[nodiscard]] virtual float TwipsPerPixelX() const = 0;
  /// The same from top to bottom.
  [[nodiscard]] virtual float TwipsPerPixelY() const = 0;
  /// Resets the mouse pointer to the default arrow, as far as the controls changed it.
  virtual void ResetMousePointer() = 0;
  /// Today's date, without time.
  [[nodiscard]] virtual Date Today() const = 0;
  /// Lets pending user-interface events run: a complete check of the explanation control and of the form begins so.
  virtual void DoPendingEvents() = 0;
  /// A number formatted as "#,##0" in the user's locale: grouped, no decimals, halves away from zero.
  [[nodiscard]] virtual std::string FormatWhole(double number) const = 0;

  /// Raised by the controls: a procedure failed, and its report to the host is about to be made. The procedure's caller
  /// does not hear of it; whoever shows the control does.
  Event<> ProcedureFailed;
};

}  // namespace brivane::host
