#pragma once

#include <brivane/controls/Plain.h>
#include <brivane/toolkits/qt/peers/Peers.h>

/// The peers of what stands there to be read: frame, label and help icon.
namespace brivane::qt {

class FramePeer final : public WidgetPeer {
 public:
  FramePeer(controls::Frame& frame, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;

 private:
  void Enter();

  controls::Frame& frame_;
};

class LabelPeer final : public WidgetPeer {
 public:
  LabelPeer(controls::Label& label, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;
  /// Makes the label's mnemonic go to a widget.
  void LeadTo(QWidget& widget);

 private:
  controls::Label& label_;
};

class HintPeer final : public WidgetPeer {
 public:
  HintPeer(controls::Hint& hint, qt::Toolkit& toolkit, QWidget* container);
};

}  // namespace brivane::qt
