#include <QEvent>
#include <QLabel>
#include <QScopedValueRollback>

#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/widgets/ChoiceBox.h>
#include <brivane/toolkits/qt/widgets/ControlWidget.h>
#include <brivane/toolkits/qt/widgets/SurfaceWidget.h>

namespace brivane::qt {

ControlWidget::ControlWidget(const frame::Design& design, QWidget* parent)
    : QWidget(parent),
      body_(std::make_shared<Body>()),
      toolkit_(body_->toolkit),
      surface_(body_->surface),
      veil_(new QLabel(Translated(frame::TextId::NothingOpen), this)) {
  body_->surface = toolkit_.MakeSurface(design);
  body_->binding.emplace(*surface_);
  setLayoutDirection(Qt::LeftToRight);
  veil_->setAlignment(Qt::AlignCenter);
  veil_->setWordWrap(true);
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

ControlWidget::~ControlWidget() {
  const std::shared_ptr<controls::Life> life = toolkit_.Life();
  auto& area = static_cast<SurfaceWidget&>(Toolkit::WidgetOf(*surface_));
  area.sized = nullptr;
  area.veiled = nullptr;
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

void ControlWidget::ShowVeil() {
  veil_->setGeometry(rect());
  veil_->setVisible(controls::Surface::Of(*surface_).IsVeiled());
}

controls::BindingResult ControlWidget::Bind(const std::function<void()>& bind, bool release) {
  controls::BindingResult result = controls::BindingResult::Failed;
  const bool done = Run([&, life = Life(), body = body_] {
    if (!IsBound())
      PutBackPending();
    else if (!CommitPending())
      result = controls::BindingResult::Refused;
    life->Check();
    if (result == controls::BindingResult::Refused) return;
    try {
      result = body->binding->Bind(bind);
    } catch (...) {
      life->Check();
      StateChanged();
      throw;
    }
    life->Check();
    if (release) {
      LetGo();
      result = controls::BindingResult::Failed;
    }
    Host().Rest();
    StateChanged();
  });
  return done ? result : controls::BindingResult::Failed;
}

void ControlWidget::Unbind() {
  Run([&, life = Life()] {
    if (ChoiceBox* const list = ChoiceBox::UnderWayWithin(*this)) list->HandOver();
    life->Check();
    toolkit_.Pending().Leave(controls::Surface::Of(*surface_));
    life->Check();
    LetGo();
    StateChanged();
  });
}

void ControlWidget::LetGo() {
  const auto body = body_;
  body->binding->Unbind([this] { UnbindControl(); });
  toolkit_.Life()->Check();
  body->host.LetGo();
}

void ControlWidget::Check(bool& Cancel, const std::function<void(bool& cancel)>& check) {
  bool cancel = Cancel;
  const bool done = Run([&, life = Life(), body = body_] {
    if (!cancel && !CommitPending()) cancel = true;
    life->Check();
    if (!body->binding->IsVoid()) check(cancel);
  });
  if (done) Cancel = cancel;
}

bool ControlWidget::CommitPending() {
  bool passed = true;
  Run([&, life = Life(), &toolkit = toolkit_, &surface = controls::Surface::Of(*surface_)] {
    if (ChoiceBox* const list = ChoiceBox::UnderWayWithin(*this)) list->HandOver();
    life->Check();
    passed = toolkit.Pending().Commit(surface);
  });
  return passed;
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

void ControlWidget::TellHeight() {
  if (sizing_) return TellHeightLater();
  Q_EMIT heightChanged();
}

void ControlWidget::TellHeightLater() {
  if (std::exchange(heightToTell_, true)) return;
  const auto tell = [this] {
    heightToTell_ = false;
    Q_EMIT heightChanged();
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void ControlWidget::resizeEvent(QResizeEvent* event) {
  const QScopedValueRollback sizing(sizing_, true);
  QWidget::resizeEvent(event);
  veil_->setGeometry(rect());
  const host::Place place = surface_->Place();
  if (size() == toolkit_.Edge().Pixels(place.width, place.height)) return;
  toolkit_.Guard([&] {
    controls::Surface::Of(*surface_).Size(toolkit_.Edge().ToTwips(width()), toolkit_.Edge().ToTwips(height()));
  });
}

}  // namespace brivane::qt
