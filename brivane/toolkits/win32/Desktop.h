#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <brivane/controls/Pixels.h>
#include <brivane/controls/entry/KeysUnderWay.h>
#include <brivane/controls/life/Life.h>
#include <brivane/frame/Texts.h>
#include <brivane/host/controls/Desktop.h>

namespace brivane::win32 {

/// The machine as Windows sees it: message boxes with buttons of its own, the program's name and the user's
/// number format.
///
/// A message box is answered on purpose: "Nee" is the default of a question, no bare letter answers, and a key
/// counts only after a pause in the typing.
///
/// A box that is up when the life of the controls ends, or when what they were doing is abandoned, goes without an
/// answer, and whoever asked is abandoned.
class Desktop final : public host::Desktop {
 public:
  Desktop() = default;
  explicit Desktop(std::shared_ptr<controls::Life> life) : life_(std::move(life)) {}

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

  /// What is added to the controls is said in these: a host's own, or frame::Texts::In of a language. They outlive the
  /// controls; set them before these are made.
  const frame::Texts* texts = &frame::Texts::In(frame::Language::Dutch);

  /// Told that a form or a message box comes up, and that it has gone.
  std::function<void(bool up)> modal;
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

 private:
  std::shared_ptr<controls::Life> life_ = std::make_shared<controls::Life>();
};

/// While it exists, a form or a message box is up.
class ModalTime {
 public:
  explicit ModalTime(const Desktop& desktop) : told_(desktop.modal) {
    if (told_) told_(true);
  }
  ModalTime(const ModalTime&) = delete;
  ModalTime& operator=(const ModalTime&) = delete;
  ~ModalTime() {
    if (told_) told_(false);
  }

 private:
  std::function<void(bool up)> told_;
};

}  // namespace brivane::win32
