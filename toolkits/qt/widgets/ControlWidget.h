#pragma once

#include <QColor>
#include <QWidget>
#include <memory>
#include <optional>

#include "host/model/HostFactories.h"
#include "toolkits/qt/Toolkit.h"

namespace brivane::qt {

/// What the two embeddable controls have in common as widgets: an own toolkit, the surface made from a
/// design, its size and its background.
///
/// The control keeps the typeface of its design and takes its size from the widget's font, which is the
/// application's unless the host sets another: at 9 points it is as designed, and it grows with the font.
/// The size hint is the control's own size. Sizing the widget lays the control out; its height is its own.
class ControlWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor)

 public:
  ~ControlWidget() override;

  /// The factories of the host's own classes; to be set before the first binding. The control behind the
  /// widget is made now, because making it already asks for the tracer.
  void SetHostFactories(const host::HostFactories& factories);
  /// Where a failure goes that no procedure of the control handled. Without one a message box tells it.
  void SetFailureListener(Toolkit::FailureListener listener) { toolkit_.SetFailureListener(std::move(listener)); }

  /// Hands over the box that is being edited or the choice that is under way, if any; false where it was refused
  /// and keeps the focus.
  /// A host calls it before it leaves the column, saves or closes.
  bool CommitPending();

  /// The background; the palette's until it is set.
  [[nodiscard]] QColor backColor() const;
  void setBackColor(const QColor& color);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

  [[nodiscard]] host::Surface& Surface() { return *surface_; }
  [[nodiscard]] qt::Toolkit& Toolkit() { return toolkit_; }

 signals:
  /// The control was laid out: its height may have changed.
  void heightChanged();

 protected:
  ControlWidget(const frame::Design& design, QWidget* parent);

  /// Makes the control behind the widget; it may fail, as the host's factories may.
  virtual void MakeControl(const host::HostFactories& factories) = 0;
  virtual void ColorControl(host::Color color) = 0;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FollowFont();

  std::optional<QColor> backColor_;
  qt::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
};

}  // namespace brivane::qt
