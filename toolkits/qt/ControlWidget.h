#pragma once

#include <QColor>
#include <QWidget>
#include <memory>

#include "host/model/HostFactories.h"
#include "toolkits/qt/Toolkit.h"

namespace brivane::qt {

/// What the two embeddable controls have in common as widgets: an own toolkit, the surface made from a
/// design, its size and its background.
///
/// The size hint is the control's own size. Sizing the widget lays the control out; its height is its own.
class ControlWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor)

 public:
  ~ControlWidget() override;

  /// The factories of the host's own classes; to be set before the first binding.
  void SetHostFactories(host::HostFactories factories) { factories_ = std::move(factories); }
  /// Where a failure goes that no procedure of the control handled. Without one a message box tells it.
  void SetFailureListener(Toolkit::FailureListener listener) { toolkit_.SetFailureListener(std::move(listener)); }

  /// Hands over the box that is being edited, if any; false where it was refused and keeps the focus.
  /// A host calls it before it leaves the column, saves or closes.
  bool CommitPending();

  /// The background; the palette's until it is set.
  [[nodiscard]] QColor backColor() const;
  virtual void setBackColor(const QColor& color) = 0;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

  [[nodiscard]] host::Surface& Surface() { return *surface_; }
  [[nodiscard]] qt::Toolkit& Toolkit() { return toolkit_; }

 signals:
  /// The control was laid out: its height may have changed.
  void heightChanged();

 protected:
  ControlWidget(const frame::Design& design, QWidget* parent);

  /// Factories that ask the host's at the moment that they are used.
  [[nodiscard]] host::HostFactories LateFactories();
  /// Lays the control out for the first time, when the subclass has made it.
  void LayOut();
  void resizeEvent(QResizeEvent* event) override;

 private:
  host::HostFactories factories_;
  qt::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
};

}  // namespace brivane::qt
