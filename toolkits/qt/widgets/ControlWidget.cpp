#include "toolkits/qt/widgets/ControlWidget.h"

#include <QEvent>
#include <QLabel>
#include <QPointer>

#include "toolkits/qt/Text.h"
#include "toolkits/qt/widgets/ChoiceBox.h"
#include "toolkits/qt/widgets/SurfaceWidget.h"

namespace brivane::qt {

ControlWidget::ControlWidget(const frame::Design& design, QWidget* parent)
    : QWidget(parent),
      surface_(toolkit_.MakeSurface(design)),
      binding_(*surface_),
      veil_(new QLabel(ToQt(controls::kVeil), this)) {
  veil_->setAlignment(Qt::AlignCenter);
  veil_->setWordWrap(true);
  veil_->setEnabled(false);
  veil_->hide();
  auto& area = static_cast<SurfaceWidget&>(Toolkit::WidgetOf(*surface_));
  area.setParent(this);
  area.move(0, 0);
  area.show();
  area.sized = [this] { updateGeometry(); };
  area.veiled = [this] { ShowVeil(); };
  FollowFont();
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ControlWidget::~ControlWidget() = default;

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
    MakeControl(factories);
    if (backColor_) ColorControl(FromQt(*backColor_));
    const host::Place place = surface_->Place();
    controls::Surface::Of(*surface_).Size(place.width, place.height);
  });
}

void ControlWidget::ShowVeil() {
  veil_->setGeometry(rect());
  veil_->setVisible(controls::Surface::Of(*surface_).IsVeiled());
}

controls::BindingResult ControlWidget::Bind(const std::function<void()>& bind, bool release) {
  const QPointer<ControlWidget> alive(this);
  if (State() == controls::BindingState::Never)
    PutBackPending();
  else if (!CommitPending())
    return controls::BindingResult::Refused;
  if (!alive) return controls::BindingResult::Failed;
  controls::BindingResult result{};
  try {
    result = binding_.Bind(bind);
  } catch (...) {
    if (alive) StateChanged();
    throw;
  }
  if (!alive) return controls::BindingResult::Failed;
  if (release) binding_.Unbind([this] { UnbindControl(); });
  StateChanged();
  return release ? controls::BindingResult::Failed : result;
}

void ControlWidget::Unbind() {
  const QPointer<ControlWidget> alive(this);
  if (ChoiceBox* const list = ChoiceBox::UnderWayWithin(*this)) list->HandOver();
  if (alive) toolkit_.Pending().Leave(controls::Surface::Of(*surface_));
  if (!alive) return;
  binding_.Unbind([this] { UnbindControl(); });
  StateChanged();
}

bool ControlWidget::CommitPending() {
  const QPointer<ControlWidget> alive(this);
  if (ChoiceBox* const list = ChoiceBox::UnderWayWithin(*this)) list->HandOver();
  return !alive || toolkit_.Pending().Commit(controls::Surface::Of(*surface_));
}

void ControlWidget::PutBackPending() {
  if (ChoiceBox* const list = ChoiceBox::UnderWayWithin(*this)) list->PutBack();
  toolkit_.Pending().PutBack(controls::Surface::Of(*surface_));
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

void ControlWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  veil_->setGeometry(rect());
  const host::Place place = surface_->Place();
  if (size() == toolkit_.Edge().Pixels(place.width, place.height)) return;
  toolkit_.Guard([&] {
    controls::Surface::Of(*surface_).Size(toolkit_.Edge().ToTwips(width()), toolkit_.Edge().ToTwips(height()));
  });
}

}  // namespace brivane::qt
