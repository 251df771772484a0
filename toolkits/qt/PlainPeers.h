#pragma once

#include "toolkits/headless/Plain.h"
#include "toolkits/qt/Peers.h"

/// The peers of what stands there to be read: frame, label and help icon.
namespace brivane::qt {

class FramePeer final : public WidgetPeer {
 public:
  FramePeer(headless::Frame& frame, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(headless::Aspect aspect) override;

 private:
  headless::Frame& frame_;
};

class LabelPeer final : public WidgetPeer {
 public:
  LabelPeer(headless::Label& label, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(headless::Aspect aspect) override;
  /// Makes the label's mnemonic go to a widget.
  void LeadTo(QWidget& widget);

 private:
  headless::Label& label_;
};

class HintPeer final : public WidgetPeer {
 public:
  HintPeer(headless::Hint& hint, qt::Toolkit& toolkit, QWidget* container);
};

}  // namespace brivane::qt
