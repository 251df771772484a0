#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include <brivane/controls/Control.h>
#include <brivane/controls/Peer.h>
#include <brivane/toolkits/qt/Toolkit.h>

namespace brivane::qt {

/// A peer with an area that other controls can stand in.
class AreaHolder {
 public:
  virtual ~AreaHolder() = default;
  [[nodiscard]] virtual QWidget* Area() const = 0;
};

/// Shows a control by a widget of its own. The widget dies with the control, or before it with its parent.
class WidgetPeer : public controls::Peer, public AreaHolder {
 public:
  ~WidgetPeer() override;

  void Refresh(controls::Aspect aspect) override;
  void TakeFocus() override;
  [[nodiscard]] QWidget* Widget() const { return widget_; }
  [[nodiscard]] QWidget* Area() const override { return widget_; }
  [[nodiscard]] controls::AnyControl& Control() const { return control_; }
  [[nodiscard]] qt::Toolkit& Toolkit() const { return toolkit_; }
  /// Shows place and font anew, after the scale changed.
  virtual void Rescale();

 protected:
  /// Takes the widget over and shows what is common to all controls.
  WidgetPeer(controls::AnyControl& control, qt::Toolkit& toolkit, QWidget* widget);

  /// Whether something is being shown and not done by a person.
  [[nodiscard]] bool Showing() const { return showing_; }
  template <class Body> void Show(const Body& body) {
    const bool before = std::exchange(showing_, true);
    body();
    showing_ = before;
  }
  virtual void ShowVisible();
  virtual void ShowPlace();
  virtual void ShowBackColor();
  void ShowFont();

 private:
  controls::AnyControl& control_;
  qt::Toolkit& toolkit_;
  QPointer<QWidget> widget_;
  bool showing_ = false;
};

/// The widget that a control's widget stands in: nothing for a surface of its own.
[[nodiscard]] QWidget* ContainerWidget(const controls::AnyControl& control);

/// The peer for a control of any kind.
[[nodiscard]] std::unique_ptr<controls::Peer> MakeWidgetPeer(controls::AnyControl& control, Toolkit& toolkit);

}  // namespace brivane::qt
