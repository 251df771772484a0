#pragma once

#include <string>

#include <brivane/controls/Control.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Button.h>
#include <brivane/host/controls/Frame.h>
#include <brivane/host/controls/Hint.h>
#include <brivane/host/controls/Label.h>

/// The controls without a value: frame, label, help icon and button.
namespace brivane::controls {

/// The frame. Nothing is done to it.
class BRIVANE_API Frame final : public CaptionedOf<host::Frame> {
 public:
  using CaptionedOf::CaptionedOf;
};

/// The label. Nothing is done to it.
class BRIVANE_API Label final : public CaptionedOf<host::Label> {
 public:
  using CaptionedOf::CaptionedOf;
};

/// The help icon. Nothing is done to it; what shows it shows its text.
class BRIVANE_API Hint final : public ControlOf<host::Hint> {
 public:
  using ControlOf::ControlOf;
  [[nodiscard]] std::string HelpText() const override { return std::string(Row().caption); }
};

/// The button. A person presses it by Press.
class BRIVANE_API Button final : public CaptionedOf<host::Button> {
 public:
  using CaptionedOf::CaptionedOf;

 protected:
  Outcome Act(const Action& action) override {
    if (!std::holds_alternative<Press>(action)) return Outcome::Ignored;
    Click.Raise();
    return Outcome::Done;
  }
};

}  // namespace brivane::controls
