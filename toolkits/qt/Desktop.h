#pragma once

#include <functional>
#include <string>

#include "host/controls/Desktop.h"

namespace brivane::qt {

/// The machine as Qt sees it: message boxes with Dutch buttons, the application's name and locale.
class Desktop final : public host::Desktop {
 public:
  /// Answers today's date instead of the clock, when set.
  std::function<host::Date()> clock;
  /// Answers a message box instead of a person, when set.
  std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle style)>
      answer;
  /// Told what a message box of the controls was answered.
  std::function<void(host::MessageAnswer answer)> answered;

  /// A message box of the toolkit's own: as MessageBox, and nobody is told.
  [[nodiscard]] host::MessageAnswer Ask(const std::string& title, const std::string& text, host::MessageStyle style);

  [[nodiscard]] std::string ApplicationTitle() const override;
  host::MessageAnswer MessageBox(const std::string& title, const std::string& text, host::MessageStyle style) override;
  [[nodiscard]] float TwipsPerPixelX() const override;
  [[nodiscard]] float TwipsPerPixelY() const override;
  void ResetMousePointer() override;
  [[nodiscard]] host::Date Today() const override;
  void DoPendingEvents() override;
  [[nodiscard]] std::string FormatWhole(double number) const override;
};

}  // namespace brivane::qt
