#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include <brivane/controls/Surface.h>
#include <brivane/toolkits/qt/peers/Peers.h>

namespace brivane::qt {

class RowCanvas;

/// The area of a surface: gives what stands on it its font and its tab order. Its texts are Dutch and its places those
/// of the design, so it runs from left to right in a host that does not.
class SurfaceWidget : public QWidget {
 public:
  SurfaceWidget(controls::Surface& surface, Toolkit& toolkit, QWidget* parent);

  /// Called when code has sized the surface.
  std::function<void()> sized;
  /// Called when a veil was laid over the surface or lifted. A veiled surface is hidden; what it stands in shows the
  /// veil.
  std::function<void()> veiled;

  /// Shows places and fonts anew, after the toolkit's scale changed.
  void Rescale();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  controls::Surface& surface_;
  Toolkit& toolkit_;
  bool chained_ = false;
};

class SurfacePeer final : public WidgetPeer {
 public:
  SurfacePeer(controls::Surface& surface, qt::Toolkit& toolkit, QWidget* container);
  void Refresh(controls::Aspect aspect) override;

 protected:
  void ShowVisible() override;
  void ShowPlace() override;

 private:
  [[nodiscard]] bool IsEmbedded() const { return Control().Owner() != nullptr; }
  [[nodiscard]] bool IsVeiled() const { return static_cast<const controls::Surface&>(Control()).IsVeiled(); }
};

/// Puts what takes the focus in the tab order of the design, an embedded surface in its own place, and
/// lets the mnemonics of labels lead to their boxes. Answers the last widget of the chain.
QWidget* ChainTabOrder(const controls::Surface& surface, QWidget* previous);

/// The canvases that paint the rows of a form.
[[nodiscard]] std::vector<RowCanvas*> Canvases(const controls::Surface& surface);

}  // namespace brivane::qt
