#include "toolkits/qt/widgets/ControlWidget.h"

#include <QEvent>
#include <QScopedValueRollback>

#include "toolkits/qt/widgets/ChoiceBox.h"
#include "toolkits/qt/widgets/SurfaceWidget.h"

namespace brivane::qt {

ControlWidget::ControlWidget(const frame::Design& design, QWidget* parent)
    : QWidget(parent), body_(std::make_shared<Body>()), toolkit_(body_->toolkit), surface_(body_->surface) {
  body_->surface = toolkit_.MakeSurface(design);
  auto& area = static_cast<SurfaceWidget&>(Toolkit::WidgetOf(*surface_));
  area.setParent(this);
  area.move(0, 0);
  area.show();
  area.sized = [this] { updateGeometry(); };
  FollowFont();
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ControlWidget::~ControlWidget() {
  const std::shared_ptr<controls::Life> life = toolkit_.Life();
  auto& area = static_cast<SurfaceWidget&>(Toolkit::WidgetOf(*surface_));
  area.sized = nullptr;
  const bool running = life->Running();
  life->End(std::move(body_));
  if (!running) return;
  // What runs on it stays a while, out of sight.
  for (QWidget* const inside : area.findChildren<QWidget*>())
    if (inside->isWindow()) inside->hide();
  area.setParent(nullptr);
}

void ControlWidget::FollowFont() {
  const qt::Edge edge = Edge::OfFont(font());
  if (edge == toolkit_.Edge()) return;
  toolkit_.SetEdge(edge);
  static_cast<SurfaceWidget&>(Toolkit::WidgetOf(*surface_)).Rescale();
  updateGeometry();
}

void ControlWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) FollowFont();
}

void ControlWidget::SetHostFactories(const host::HostFactories& factories) {
  toolkit_.Guard([&] {
    MakeControl(Host().Hold(factories));
    if (backColor_) ColorControl(FromQt(*backColor_));
    const host::Place place = surface_->Place();
    controls::Surface::Of(*surface_).Size(place.width, place.height);
  });
}

bool ControlWidget::CommitPending() {
  bool passed = true;
  Run([&, &toolkit = toolkit_, &surface = controls::Surface::Of(*surface_)] {
    if (ChoiceBox* const list = ChoiceBox::UnderWayWithin(*this)) list->HandOver();
    passed = toolkit.Pending().Commit(surface);
  });
  return passed;
}

QColor ControlWidget::backColor() const { return backColor_.value_or(palette().color(QPalette::Window)); }

void ControlWidget::setBackColor(const QColor& color) {
  backColor_ = color;
  toolkit_.Guard([&] { ColorControl(FromQt(color)); });
}

QSize ControlWidget::sizeHint() const {
  const auto width = static_cast<float>(controls::Surface::Of(*surface_).Table().width);
  return toolkit_.Edge().Pixels({width}, surface_->Place().height);
}

QSize ControlWidget::minimumSizeHint() const { return sizeHint(); }

void ControlWidget::TellHeight() {
  if (sizing_) return TellHeightLater();
  emit heightChanged();
}

void ControlWidget::TellHeightLater() {
  if (std::exchange(heightToTell_, true)) return;
  const auto tell = [this] {
    heightToTell_ = false;
    emit heightChanged();
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void ControlWidget::resizeEvent(QResizeEvent* event) {
  const QScopedValueRollback sizing(sizing_, true);
  QWidget::resizeEvent(event);
  const host::Place place = surface_->Place();
  if (size() == toolkit_.Edge().Pixels(place.width, place.height)) return;
  toolkit_.Guard([&] {
    controls::Surface::Of(*surface_).Size(toolkit_.Edge().ToTwips(width()), toolkit_.Edge().ToTwips(height()));
  });
}

}  // namespace brivane::qt
