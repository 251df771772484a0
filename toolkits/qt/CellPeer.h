#pragma once

#include <QPointer>
#include <QRect>
#include <QString>

#include "toolkits/headless/Control.h"
#include "toolkits/headless/Peer.h"
#include "toolkits/qt/RowCanvas.h"

namespace brivane::qt {

/// Shows one element of a control array of a form: painted by the canvas of its container, without a
/// widget of its own, because a form may have hundreds.
class CellPeer final : public headless::Peer {
 public:
  CellPeer(headless::AnyControl& control, Toolkit& toolkit);
  ~CellPeer() override;

  void Refresh(headless::Aspect aspect) override;
  void TakeFocus() override;

  [[nodiscard]] headless::AnyControl& Control() const { return control_; }
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

  headless::AnyControl& control_;
  Toolkit& toolkit_;
  QPointer<RowCanvas> canvas_;
  QRect place_;
  mutable QString text_;
  mutable bool stale_ = true;
  bool visible_ = false;
};

}  // namespace brivane::qt
