#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include <brivane/controls/entry/KeysUnderWay.h>
#include <brivane/controls/life/Life.h>
#include <brivane/frame/Texts.h>
#include <brivane/host/controls/Desktop.h>
#include <brivane/toolkits/web/Page.h>
#include <brivane/toolkits/web/Turns.h>

namespace brivane::web {

/// The browser as the controls see it: message boxes are dialogs of the page, the application is the document.
///
/// A message box is answered on purpose, as with the other toolkits: "Nee" is the default of a question, and a key
/// counts only after a pause in the typing. Where nothing can be shown, or nothing may wait, a question is answered
/// "Nee" and all else OK.
class Desktop final : public host::Desktop {
 public:
  Desktop(Page& page, std::shared_ptr<controls::Life> life) : page_(page), life_(std::move(life)) {}

  /// What is added to the controls is said in these. They outlive the controls.
  const frame::Texts* texts = &frame::Texts::In(frame::Language::Dutch);
  /// Answered in place of the browser, when set.
  std::optional<host::Date> today;
  std::optional<std::string> title;
  std::optional<std::string> groupSeparator;
  float twipsPerPixelX = host::kTwipsPerPixel;
  float twipsPerPixelY = host::kTwipsPerPixel;
  std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle style)>
      answer;
  /// Runs in place of the page when the logic lets pending events run, when set.
  std::function<void()> pending;
  /// What the host adds below a question of the controls, such as what "Ja" will remove; empty for nothing.
  std::function<std::string(const std::string& title, const std::string& text)> details;
  /// A message box takes no key before a pause in the typing.
  std::chrono::milliseconds pause = controls::KeysUnderWay::kPause;

  /// A message box of the toolkit's own: as MessageBox, and the host is asked nothing, and nobody abandoned.
  [[nodiscard]] host::MessageAnswer Ask(const std::string& boxTitle, const std::string& text, host::MessageStyle style);
  /// A person answered a box; nothing where it is open no more.
  void Answered(int box, host::MessageAnswer given);
  /// Whether a key in an open box is meant for it: one that is heard of now, and went down this long ago.
  [[nodiscard]] bool IsMeant(int box, controls::KeysUnderWay::Press press, std::chrono::milliseconds ago);
  /// The page has done what it had to do.
  void CameBack(int waiting);

  [[nodiscard]] std::string ApplicationTitle() const override { return title ? *title : Page::Title(); }
  host::MessageAnswer MessageBox(const std::string& boxTitle, const std::string& text,
                                 host::MessageStyle style) override;
  [[nodiscard]] float TwipsPerPixelX() const override { return twipsPerPixelX; }
  [[nodiscard]] float TwipsPerPixelY() const override { return twipsPerPixelY; }
  /// The controls change no pointer.
  void ResetMousePointer() override {}
  [[nodiscard]] host::Date Today() const override { return today ? *today : Page::Today(); }
  void DoPendingEvents() override;
  [[nodiscard]] std::string FormatWhole(double number) const override;

 private:
  struct Box {
    controls::KeysUnderWay keys;
    host::MessageAnswer given;
    Waiting waiting = {};
  };

  [[nodiscard]] host::MessageAnswer Show(Says who, const std::string& boxTitle, const std::string& text,
                                         host::MessageStyle style);

  Page& page_;
  std::shared_ptr<controls::Life> life_;
  std::map<int, Box*> boxes_;
  std::map<int, Waiting*> pauses_;
  int last_ = 0;
};

}  // namespace brivane::web
