#pragma once

#include <cassert>

#include <brivane/controls/Control.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/JaNee.h>
#include <brivane/host/controls/OptionButton.h>

/// The controls that choose between a few values: toggle, check box and option.
namespace brivane::controls {

/// The yes/no toggle. A person sets it by Toggle.
class BRIVANE_API JaNee final : public ControlOf<host::JaNee> {
 public:
  using ControlOf::ControlOf;

  [[nodiscard]] int Value() const override { return value_; }
  void SetValue(int value) override {
    assert(value == host::kNee || value == host::kJa);
    if (Assign(value_, value, Aspect::Value)) Change.Raise();
  }

 protected:
  Outcome Act(const Action& action) override {
    const auto* toggle = std::get_if<Toggle>(&action);
    if (toggle == nullptr || (toggle->value != host::kNee && toggle->value != host::kJa)) return Outcome::Ignored;
    SetValue(toggle->value);
    return Outcome::Done;
  }
  void CopyFrom(const AnyControl& original) override {
    ControlOf::CopyFrom(original);
    value_ = static_cast<const JaNee&>(original).value_;
  }

 private:
  int value_ = host::kNee;
};

/// The check box. A person sets it by Tick.
class BRIVANE_API CheckBox final : public CaptionedOf<host::CheckBox> {
 public:
  using CaptionedOf::CaptionedOf;

  [[nodiscard]] int Value() const override { return value_; }
  void SetValue(int value) override {
    assert(value == host::kUnticked || value == host::kTicked);
    if (Assign(value_, value, Aspect::Value)) Click.Raise();
  }

 protected:
  Outcome Act(const Action& action) override {
    const auto* tick = std::get_if<Tick>(&action);
    if (tick == nullptr || (tick->value != host::kUnticked && tick->value != host::kTicked)) return Outcome::Ignored;
    SetValue(tick->value);
    return Outcome::Done;
  }
  void CopyFrom(const AnyControl& original) override {
    CaptionedOf::CopyFrom(original);
    value_ = static_cast<const CheckBox&>(original).value_;
  }

 private:
  int value_ = host::kUnticked;
};

/// An option. A person selects it by Select, and deselects it by selecting another one.
class BRIVANE_API OptionButton final : public CaptionedOf<host::OptionButton> {
 public:
  using CaptionedOf::CaptionedOf;

  [[nodiscard]] bool Value() const override { return selected_; }
  void SetValue(bool selected) override {
    if (selected == selected_) return;
    if (selected)
      for (OptionButton* other = next_; other != this; other = other->next_)
        other->Assign(other->selected_, false, Aspect::Value);
    Assign(selected_, selected, Aspect::Value);
    if (selected) Click.Raise();
  }

  /// Makes it one of the group that the other belongs to.
  void Join(OptionButton& other) {
    next_ = other.next_;
    other.next_ = this;
  }

 protected:
  Outcome Act(const Action& action) override {
    if (!std::holds_alternative<Select>(action)) return Outcome::Ignored;
    SetValue(true);
    return Outcome::Done;
  }

 private:
  bool selected_ = false;
  OptionButton* next_ = this;  ///< the options of a group stand in a ring
};

}  // namespace brivane::controls
