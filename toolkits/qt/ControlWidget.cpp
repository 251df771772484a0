#include "toolkits/qt/ControlWidget.h"

#include "toolkits/qt/EntryBox.h"
#include "toolkits/qt/SurfaceWidget.h"

namespace brivane::qt {

ControlWidget::ControlWidget(const frame::Design& design, QWidget* parent)
    : QWidget(parent), surface_(toolkit_.MakeSurface(design)) {
  auto& area = static_cast<SurfaceWidget&>(Toolkit::WidgetOf(*surface_));
  area.setParent(this);
  area.move(0, 0);
  area.show();
  area.sized = [this] { updateGeometry(); };
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ControlWidget::~ControlWidget() = default;

host::HostFactories ControlWidget::LateFactories() {
  return {.MaakProcedureTrace = [this](std::string_view control) -> std::shared_ptr<host::ProcedureTrace> {
            return factories_.MaakProcedureTrace ? factories_.MaakProcedureTrace(control) : nullptr;
          },
          .MaakDossierControle = [this](std::string_view control) -> std::shared_ptr<host::DossierControle> {
            return factories_.MaakDossierControle ? factories_.MaakDossierControle(control) : nullptr;
          }};
}

bool ControlWidget::CommitPending() {
  EntryBox* const box = EntryBox::PendingWithin(*this);
  return box == nullptr || box->CommitPending();
}

QColor ControlWidget::backColor() const {
  const std::optional<host::Color> color = surface_->BackColor();
  return (color ? ToQt(*color) : std::nullopt).value_or(palette().color(QPalette::Window));
}

QSize ControlWidget::sizeHint() const {
  const auto width = static_cast<float>(headless::Surface::Of(*surface_).Table().width);
  return toolkit_.Edge().Pixels({width}, surface_->Place().height);
}

QSize ControlWidget::minimumSizeHint() const {
  return sizeHint();
}

void ControlWidget::LayOut() {
  const host::Place place = surface_->Place();
  toolkit_.Guard([&] { headless::Surface::Of(*surface_).Size(place.width, place.height); });
  resize(sizeHint());
}

void ControlWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const host::Place place = surface_->Place();
  if (size() == toolkit_.Edge().Pixels(place.width, place.height)) return;
  toolkit_.Guard([&] {
    headless::Surface::Of(*surface_).Size(toolkit_.Edge().ToTwips(width()), toolkit_.Edge().ToTwips(height()));
  });
}

}  // namespace brivane::qt
