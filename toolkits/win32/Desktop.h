#pragma once

#include "toolkits/win32/window/WindowsApi.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "controls/Pixels.h"
#include "controls/entry/KeysUnderWay.h"
#include "host/controls/Desktop.h"

namespace brivane::win32 {

/// The machine as Windows sees it: message boxes with Dutch buttons, the program's name and the user's
/// number format.
///
/// A message box is answered on purpose: "Nee" is the default of a question, no bare letter answers, and a key
/// counts only after a pause in the typing.
class Desktop final : public host::Desktop {
 public:
  /// Answers today's date instead of the clock, when set.
  std::function<host::Date()> clock;
  /// Answers a message box instead of a person, when set.
  std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle style)>
      answer;
  /// Told what a message box of the controls was answered.
  std::function<void(host::MessageAnswer answer)> answered;
  /// Runs when the logic lets pending events run, before the waiting messages of Windows.
  std::function<void()> pending;
  /// Title of the application; empty for the name of the program.
  std::string title;
  /// Separates groups of three digits instead of what the user chose, when set.
  std::optional<std::string> groupSeparator;
  /// Twips to a pixel as the logic sees them: the windows are scaled to the screen themselves.
  float twipsPerPixelX = static_cast<float>(controls::kTwipsPerPixel);
  float twipsPerPixelY = static_cast<float>(controls::kTwipsPerPixel);

  /// What the host adds below a question of the controls, such as what "Ja" will remove; empty for nothing.
  std::function<std::string(const std::string& title, const std::string& text)> details;
  /// A message box takes no key before a pause in the typing, so that what was under way does not answer it.
  std::chrono::milliseconds pause = controls::KeysUnderWay::kPause;

  /// A message box of the toolkit's own: as MessageBox, and nobody is told or asked for details.
  [[nodiscard]] host::MessageAnswer Ask(const std::string& caption, const std::string& text, host::MessageStyle style);

  [[nodiscard]] std::string ApplicationTitle() const override;
  host::MessageAnswer MessageBox(const std::string& caption, const std::string& text,
                                 host::MessageStyle style) override;
  [[nodiscard]] float TwipsPerPixelX() const override { return twipsPerPixelX; }
  [[nodiscard]] float TwipsPerPixelY() const override { return twipsPerPixelY; }
  void ResetMousePointer() override;
  [[nodiscard]] host::Date Today() const override;
  void DoPendingEvents() override;
  [[nodiscard]] std::string FormatWhole(double number) const override;
};

}  // namespace brivane::win32
