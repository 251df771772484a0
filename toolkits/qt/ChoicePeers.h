#pragma once

#include "toolkits/headless/Choices.h"
#include "toolkits/headless/ListBox.h"
#include "toolkits/headless/Plain.h"
#include "toolkits/qt/JaNeeToggle.h"
#include "toolkits/qt/Peers.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class QRadioButton;

/// The peers of what a person chooses with: toggle, option, check box, list and button.
namespace brivane::qt {

class TogglePeer final : public WidgetPeer {
 public:
  TogglePeer(headless::JaNee& toggle, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(headless::Aspect aspect) override;

 private:
  headless::JaNee& toggle_;
};

class OptionPeer final : public WidgetPeer {
 public:
  OptionPeer(headless::OptionButton& option, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(headless::Aspect aspect) override;

 private:
  void ShowGroup();
  headless::OptionButton& option_;
};

class CheckPeer final : public WidgetPeer {
 public:
  CheckPeer(headless::CheckBox& check, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(headless::Aspect aspect) override;

 private:
  headless::CheckBox& check_;
};

class ComboPeer final : public WidgetPeer {
 public:
  ComboPeer(headless::ListBox& list, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(headless::Aspect aspect) override;

 private:
  [[nodiscard]] QComboBox& Combo() const;
  headless::ListBox& list_;
};

class ButtonPeer final : public WidgetPeer {
 public:
  ButtonPeer(headless::Button& button, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(headless::Aspect aspect) override;

 private:
  headless::Button& button_;
};

}  // namespace brivane::qt
