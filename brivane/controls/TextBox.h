#pragma once

#include <string>

#include <brivane/controls/Control.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/TextBox.h>

namespace brivane::controls {

/// The host's text box. It can hold anything, of its kind or not; reading tells. A person fills it by Enter.
class BRIVANE_API TextBox final : public ControlOf<host::TextBox> {
 public:
  /// Empty.
  TextBox(const frame::Row& row, int index, Surface* owner, AnyControl* container, float fontSize)
      : ControlOf(row, index, owner, container, fontSize), locked_(row.locked) {}

  [[nodiscard]] std::string Text() const override;
  [[nodiscard]] double Number() const override;
  [[nodiscard]] host::Date DateValue() const override;
  void SetText(const std::string& text) override;
  void SetNumber(double number) override;
  void SetDate(host::Date date) override;
  [[nodiscard]] bool Locked() const override { return locked_; }
  void SetLocked(bool locked) override { Assign(locked_, locked, Aspect::Locked); }
  void SetFocus() override;

  /// What the box holds, of whatever kind.
  [[nodiscard]] const BoxValue& Content() const { return content_; }
  /// Holds something else, as code writes it: nothing is raised and nothing is checked.
  void SetContent(BoxValue value);
  /// What its design says of what it takes.
  [[nodiscard]] frame::Format Format() const { return Row().format; }
  /// A person is typing something that was not entered yet: the next value written by code is shown,
  /// also when it equals the content.
  void MarkEdited() { edited_ = true; }

 protected:
  Outcome Act(const Action& action) override;
  void CopyFrom(const AnyControl& original) override;

 private:
  BoxValue content_;
  bool locked_;
  bool edited_ = false;
};

}  // namespace brivane::controls
