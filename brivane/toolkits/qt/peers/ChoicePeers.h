#pragma once

#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/Plain.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/widgets/JaNeeToggle.h>

class QCheckBox;
class QPushButton;

/// The peers of what a person chooses with: toggle, option, check box, list and button.
namespace brivane::qt {

class ChoiceBox;

class TogglePeer final : public WidgetPeer {
 public:
  TogglePeer(controls::JaNee& toggle, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;

 private:
  controls::JaNee& toggle_;
};

class OptionPeer final : public WidgetPeer {
 public:
  OptionPeer(controls::OptionButton& option, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;

 private:
  void ShowGroup();
  controls::OptionButton& option_;
};

class CheckPeer final : public WidgetPeer {
 public:
  CheckPeer(controls::CheckBox& check, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;

 private:
  controls::CheckBox& check_;
};

class ComboPeer final : public WidgetPeer {
 public:
  ComboPeer(controls::ListBox& list, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;

 private:
  [[nodiscard]] ChoiceBox& Box() const;
  controls::ListBox& list_;
};

class ButtonPeer final : public WidgetPeer {
 public:
  ButtonPeer(controls::Button& button, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;

 private:
  controls::Button& button_;
};

}  // namespace brivane::qt
