#pragma once

#include <functional>
#include <memory>
#include <string>

#include <brivane/controls/life/Life.h>
#include <brivane/host/Export.h>
#include <brivane/host/Twips.h>
#include <brivane/host/controls/Desktop.h>

namespace brivane::memory {

/// A machine that answers as it is set: 96 dots per inch, a Dutch locale, the title "Dossier".
class BRIVANE_API Desktop final : public host::Desktop {
 public:
  Desktop() = default;
  /// Whoever asks it something after that life has ended is abandoned.
  explicit Desktop(std::shared_ptr<const controls::Life> life) : life_(std::move(life)) {}

  /// Today's date, when set; else the system's.
  host::Date today = host::kNoDate;
  /// What ApplicationTitle answers; UTF-8.
  std::string title = "Dossier";
  /// The resolution, for the surfaces that are made from then on.
  /// @{
  float twipsPerPixelX = host::kTwipsPerPixel;
  float twipsPerPixelY = host::kTwipsPerPixel;
  /// @}
  /// Separates groups of three digits in a whole number.
  std::string groupSeparator = ".";
  /// Answers a message box; without it, "Nee" to a question and OK to everything else.
  std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle style)>
      answer;
  /// Runs when the logic lets pending events run.
  std::function<void()> pending;
  /// How often the pointer was reset to the arrow.
  int pointerResets = 0;

  [[nodiscard]] std::string ApplicationTitle() const override { return title; }
  host::MessageAnswer MessageBox(const std::string& boxTitle, const std::string& text,
                                 host::MessageStyle style) override;
  [[nodiscard]] float TwipsPerPixelX() const override { return twipsPerPixelX; }
  [[nodiscard]] float TwipsPerPixelY() const override { return twipsPerPixelY; }
  void ResetMousePointer() override { ++pointerResets; }
  [[nodiscard]] host::Date Today() const override;
  void DoPendingEvents() override;
  [[nodiscard]] std::string FormatWhole(double number) const override;

 private:
  std::shared_ptr<const controls::Life> life_ = std::make_shared<const controls::Life>();
};

}  // namespace brivane::memory
