#pragma once

#include <QWidget>
#include <memory>

#include <brivane/controls/DrawnToolkit.h>
#include <brivane/host/Export.h>
#include <brivane/toolkits/qt/Desktop.h>
#include <brivane/toolkits/qt/Edge.h>

namespace brivane::qt {

/// Shows design tables as Qt widgets. What a control does stands in the controls in memory; each has a peer
/// here that shows it and hands over what a person does.
///
/// Must outlive the surfaces and forms that it made.
class BRIVANE_API Toolkit : public controls::DrawnToolkit {
 public:
  /// For the thread of the QApplication, which there is by then.
  Toolkit();

  /// The machine: texts and buttons of the host's own go there.
  [[nodiscard]] qt::Desktop& Desktop() override { return desktop_; }
  [[nodiscard]] const frame::Texts& Texts() const override;
  [[nodiscard]] host::MessageAnswer Ask(const std::string& caption, const std::string& text,
                                        host::MessageStyle style) override;

  /// A person acts on a control through its widget. A box that is being edited or a choice that is under way
  /// elsewhere in the window is handed over first; where that is refused, the action is not done. False where it was
  /// not done and there is still a widget to show that.
  bool Act(controls::AnyControl& control, const controls::Action& action, const QWidget& widget);

  /// The scale of what is shown.
  [[nodiscard]] const qt::Edge& Edge() const { return edge_; }
  /// What is shown later has this scale; what is shown already is to be shown anew.
  void SetEdge(const qt::Edge& edge) { edge_ = edge; }

  [[nodiscard]] host::Twips MeasureText(const frame::Design& design, std::string_view text, bool bold) const override;

  /// The widget of a surface that this toolkit made. Without a parent it is a hidden window.
  [[nodiscard]] static QWidget& WidgetOf(host::Surface& surface);

 protected:
  [[nodiscard]] std::unique_ptr<controls::Peer> MakePeer(controls::AnyControl& control) override;
  [[nodiscard]] std::unique_ptr<controls::FormPeer> MakeFormPeer(controls::Form& form) override;

 private:
  qt::Desktop desktop_{Life()};
  qt::Edge edge_;
};

}  // namespace brivane::qt
