#include <algorithm>

#include <brivane/toolkits/qt/peers/PlainPeers.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/DesignFont.h>
#include <brivane/toolkits/qt/widgets/SurfaceWidget.h>

namespace brivane::qt {
namespace {

QWidget* WidgetOf(const controls::AnyControl& control) {
  const auto* const peer = dynamic_cast<const WidgetPeer*>(control.GetPeer());
  return peer != nullptr ? peer->Widget() : nullptr;
}

/// A label with a mnemonic leads to the box in the row below it.
void LeadLabels(const controls::Surface& surface) {
  const auto& made = surface.Made();
  for (std::size_t i = 0; i + 1 < made.size(); ++i) {
    if (made[i]->ControlKind() != host::Kind::Label || made[i]->Row().mnemonic == '\0') continue;
    if (QWidget* const box = WidgetOf(*made[i + 1])) static_cast<LabelPeer&>(*made[i]->GetPeer()).LeadTo(*box);
  }
}

/// A screen reader goes through widgets in the order in which they lie on each other, at first that of their making;
/// options stand in another on the screen, and their tab order is as they are seen.
void OrderOptions(const controls::Surface& surface) {
  std::vector<const controls::AnyControl*> options;
  for (const auto& control : surface.Made())
    if (control->ControlKind() == host::Kind::OptionButton) options.push_back(control.get());
  std::sort(options.begin(), options.end(), [](const auto* a, const auto* b) { return a->Row().tab < b->Row().tab; });
  for (const controls::AnyControl* option : options) WidgetOf(*option)->raise();
}

}  // namespace

QWidget* ChainTabOrder(const controls::Surface& surface, QWidget* previous) {
  std::vector<const controls::AnyControl*> stops;
  for (const auto& control : surface.Made())
    if (control->Row().tab > 0 && control->Index() == control->Row().index) stops.push_back(control.get());
  std::sort(stops.begin(), stops.end(), [](const auto* a, const auto* b) { return a->Row().tab < b->Row().tab; });
  for (const controls::AnyControl* stop : stops) {
    if (stop->ControlKind() == host::Kind::Surface) {
      previous = ChainTabOrder(static_cast<const controls::Surface&>(*stop), previous);
      continue;
    }
    const bool rows = stop->Index() == frame::kTemplateIndex;
    RowCanvas* const canvas = rows ? RowCanvas::Of(*ContainerWidget(*stop)) : nullptr;
    QWidget* const widget = rows ? canvas : WidgetOf(*stop);
    if (widget == nullptr || (rows && previous == &canvas->LineEdit())) continue;
    if (previous != nullptr) QWidget::setTabOrder(previous, widget);
    previous = widget;
    if (!rows) continue;
    QWidget::setTabOrder(canvas, &canvas->LineEdit());
    previous = &canvas->LineEdit();
  }
  LeadLabels(surface);
  OrderOptions(surface);
  return previous;
}

std::vector<RowCanvas*> Canvases(const controls::Surface& surface) {
  std::vector<RowCanvas*> canvases;
  for (const auto& control : surface.Made()) {
    if (control->Index() != frame::kTemplateIndex) continue;
    RowCanvas* const canvas = RowCanvas::Of(*ContainerWidget(*control));
    if (canvas != nullptr && std::find(canvases.begin(), canvases.end(), canvas) == canvases.end())
      canvases.push_back(canvas);
  }
  return canvases;
}

SurfaceWidget::SurfaceWidget(controls::Surface& surface, Toolkit& toolkit, QWidget* parent)
    : QWidget(parent), surface_(surface), toolkit_(toolkit) {
  setLayoutDirection(Qt::LeftToRight);
  SetDesignFont(*this, toolkit.Edge().Font(surface.Table(), surface.Table().fontSize));
}

void SurfaceWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (chained_ || surface_.Owner() != nullptr) return;
  chained_ = true;
  ChainTabOrder(surface_, nullptr);
}

void SurfaceWidget::Rescale() {
  const std::function<void(const controls::Surface&)> rescale = [&](const controls::Surface& area) {
    SetDesignFont(*WidgetOf(area), toolkit_.Edge().Font(area.Table(), area.Table().fontSize));
    for (const auto& control : area.Made()) {
      static_cast<WidgetPeer&>(*control->GetPeer()).Rescale();
      if (control->ControlKind() == host::Kind::Surface) rescale(static_cast<const controls::Surface&>(*control));
    }
  };
  rescale(surface_);
  static_cast<WidgetPeer&>(*surface_.GetPeer()).Rescale();
}

SurfacePeer::SurfacePeer(controls::Surface& surface, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(surface, toolkit, new SurfaceWidget(surface, toolkit, container)) {}

void SurfacePeer::Refresh(controls::Aspect aspect) {
  if (aspect == controls::Aspect::Enabled && IsVeiled()) return;
  if (aspect != controls::Aspect::Veil) return WidgetPeer::Refresh(aspect);
  if (Widget() == nullptr) return;
  // Where there is nothing else to go to, Qt leaves the focus in what it hides; and what is hidden can be given it.
  QWidget* const focus = Widget()->window()->focusWidget();
  if (IsVeiled() && focus != nullptr && Widget()->isAncestorOf(focus)) focus->clearFocus();
  Widget()->setEnabled(!IsVeiled() && Control().Host().Enabled());
  ShowVisible();
  const auto& veiled = static_cast<SurfaceWidget*>(Widget())->veiled;
  if (veiled) veiled();
}

void SurfacePeer::ShowVisible() {
  // A surface of its own is shown by the widget that takes it in.
  if (!IsEmbedded() && Widget()->parentWidget() == nullptr) return;
  Widget()->setVisible(Control().Host().Visible() && !IsVeiled());
}

void SurfacePeer::ShowPlace() {
  if (IsEmbedded()) return WidgetPeer::ShowPlace();
  Widget()->resize(Toolkit().Edge().Pixels(Control().Host().Place().width, Control().Host().Place().height));
  const auto& sized = static_cast<SurfaceWidget*>(Widget())->sized;
  if (sized) sized();
}

}  // namespace brivane::qt
