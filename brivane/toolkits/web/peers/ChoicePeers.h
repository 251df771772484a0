#pragma once

#include <brivane/controls/Choices.h>
#include <brivane/controls/Plain.h>
#include <brivane/toolkits/web/peers/NodePeer.h>

/// The peers of what a person presses: toggle, option, check box and button.
namespace brivane::web {

/// A `button` that is a switch.
class TogglePeer final : public NodePeer {
 public:
  TogglePeer(controls::JaNee& toggle, web::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  bool OnKey(const Key& key) override;
  void OnPicked(int value) override;

 private:
  controls::JaNee& toggle_;
};

/// A radio button.
class OptionPeer final : public NodePeer {
 public:
  OptionPeer(controls::OptionButton& option, web::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  void OnPicked(int) override;

 private:
  controls::OptionButton& option_;
};

class CheckPeer final : public NodePeer {
 public:
  CheckPeer(controls::CheckBox& check, web::Toolkit& toolkit);
  void Refresh(controls::Aspect aspect) override;
  void OnPicked(int value) override;

 private:
  controls::CheckBox& check_;
};

class ButtonPeer final : public NodePeer {
 public:
  using NodePeer::NodePeer;
  void OnPicked(int) override { Toolkit().Act(Control(), controls::Press{}); }
};

}  // namespace brivane::web
