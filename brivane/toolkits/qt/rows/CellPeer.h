#pragma once

#include <QPointer>
#include <QRect>
#include <QString>

#include <brivane/controls/Control.h>
#include <brivane/controls/Peer.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>

namespace brivane::qt {

/// Shows one element of a control array of a form: painted by the canvas of its container, without a
/// widget of its own, because a form may have hundreds.
class CellPeer final : public controls::Peer {
 public:
  CellPeer(controls::AnyControl& control, Toolkit& toolkit);
  ~CellPeer() override;

  void Refresh(controls::Aspect aspect) override;
  void TakeFocus() override;

  [[nodiscard]] controls::AnyControl& Control() const { return control_; }
  [[nodiscard]] const RowCanvas* Canvas() const { return canvas_; }
  [[nodiscard]] const QRect& Place() const { return place_; }
  [[nodiscard]] bool Visible() const { return visible_; }
  /// What the cell reads: a label's caption or a box's content.
  [[nodiscard]] const QString& Text() const;
  /// Whether a person can go to it.
  [[nodiscard]] bool IsStop() const;
  [[nodiscard]] bool Ticked() const;

 private:
  void PutPlace();

  controls::AnyControl& control_;
  Toolkit& toolkit_;
  QPointer<RowCanvas> canvas_;
  QRect place_;
  mutable QString text_;
  mutable bool stale_ = true;
  bool visible_ = false;
};

}  // namespace brivane::qt
