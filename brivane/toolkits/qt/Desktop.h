#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <brivane/controls/entry/KeysUnderWay.h>
#include <brivane/controls/life/Life.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Desktop.h>

namespace brivane::qt {

/// The machine as Qt sees it: message boxes with Dutch buttons, the application's name and locale.
///
/// A message box is answered on purpose: "Nee" is the default of a question, no bare letter answers, and a key
/// counts only after a pause in the typing.
class BRIVANE_API Desktop final : public host::Desktop {
 public:
  Desktop() = default;
  /// Whoever asks it something after that life has ended is abandoned; what is open then closes.
  explicit Desktop(std::shared_ptr<controls::Life> life) : life_(std::move(life)) {}

  /// Answers today's date instead of the clock, when set.
  std::function<host::Date()> clock;
  /// Answers a message box instead of a person, when set.
  std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle style)>
      answer;
  /// Told what a message box of the controls was answered.
  std::function<void(host::MessageAnswer answer)> answered;

  /// What the host adds below a question of the controls, such as what "Ja" will remove; empty for nothing.
  std::function<std::string(const std::string& title, const std::string& text)> details;
  /// A button that the host puts beside OK in a message of the controls, and what it does when the box was closed by
  /// it. The controls go on as after OK.
  struct Offer {
    std::string button;           ///< its caption in UTF-8
    std::function<void()> taken;  ///< runs after the box was closed, before the controls go on
  };
  /// Asked at each message; nothing for none.
  std::function<std::optional<Offer>(const std::string& title, const std::string& text)> offer;
  /// A message box takes no key before a pause in the typing, so that what was under way does not answer it.
  std::chrono::milliseconds pause = controls::KeysUnderWay::kPause;

  /// A message box of the toolkit's own: as MessageBox, and the host is told and asked nothing, and nobody abandoned.
  /// Where the life has ended, or the box goes with the window that it belongs to, it answers "Nee".
  [[nodiscard]] host::MessageAnswer Ask(const std::string& title, const std::string& text, host::MessageStyle style);

  [[nodiscard]] std::string ApplicationTitle() const override;
  host::MessageAnswer MessageBox(const std::string& title, const std::string& text, host::MessageStyle style) override;
  [[nodiscard]] float TwipsPerPixelX() const override;
  [[nodiscard]] float TwipsPerPixelY() const override;
  void ResetMousePointer() override;
  [[nodiscard]] host::Date Today() const override;
  void DoPendingEvents() override;
  [[nodiscard]] std::string FormatWhole(double number) const override;

 private:
  /// What the host adds to a message box.
  struct Additions {
    std::string below;
    std::optional<Offer> offer;
  };
  [[nodiscard]] Additions Added(const std::string& title, const std::string& text, host::MessageStyle style) const;
  [[nodiscard]] host::MessageAnswer Show(const std::string& title, const std::string& text, const Additions& added,
                                         host::MessageStyle style) const;

  std::shared_ptr<controls::Life> life_ = std::make_shared<controls::Life>();
};

}  // namespace brivane::qt
