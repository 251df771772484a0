#include "toolkits/qt/Peers.h"
#include "toolkits/qt/Text.h"

namespace brivane::qt {

using headless::Aspect;

QWidget* ContainerWidget(const headless::AnyControl& control) {
  const headless::AnyControl* const container = control.Container();
  return container != nullptr ? static_cast<WidgetPeer&>(*container->GetPeer()).Widget() : nullptr;
}

WidgetPeer::WidgetPeer(headless::AnyControl& control, qt::Toolkit& toolkit, QWidget* widget)
    : control_(control), toolkit_(toolkit), widget_(widget) {
  widget->setObjectName(ToQt(control.ElementName()));
  if (!control.AccessibleName().empty()) widget->setAccessibleName(ToQt(control.AccessibleName()));
}

WidgetPeer::~WidgetPeer() {
  delete widget_;
}

void WidgetPeer::Refresh(Aspect aspect) {
  if (!widget_) return;
  switch (aspect) {
    case Aspect::Enabled: widget_->setEnabled(control_.Host().Enabled()); break;
    case Aspect::Visible: ShowVisible(); break;
    case Aspect::Place: ShowPlace(); break;
    case Aspect::FontSize: ShowFont(); break;
    case Aspect::BackColor: ShowBackColor(); break;
    default: break;
  }
}

void WidgetPeer::TakeFocus() {
  if (widget_) widget_->setFocus(Qt::OtherFocusReason);
}

void WidgetPeer::Rescale() {
  if (!widget_) return;
  ShowFont();
  ShowPlace();
}

void WidgetPeer::ShowVisible() {
  widget_->setVisible(control_.Host().Visible());
}

void WidgetPeer::ShowPlace() {
  widget_->setGeometry(toolkit_.Edge().Pixels(control_.Host().Place()));
}

void WidgetPeer::ShowFont() {
  const headless::Surface* const owner = control_.Owner();
  const float points = control_.Host().Read(host::Measure::FontSize).value_or(0);
  // What stands on a surface takes over its font.
  if (owner == nullptr || points == owner->Table().fontSize || points <= 0) return;
  widget_->setFont(toolkit_.Edge().Font(owner->Table(), points));
}

void WidgetPeer::ShowBackColor() {
  const std::optional<host::Color> asked = control_.Host().BackColor();
  const std::optional<QColor> color = asked ? ToQt(*asked) : std::nullopt;
  if (!color) {
    widget_->setPalette({});
    widget_->setAutoFillBackground(false);
    return;
  }
  QPalette palette;
  const bool box = widget_->backgroundRole() == QPalette::Base;
  palette.setColor(box ? QPalette::Base : QPalette::Window, *color);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
    palette.setColor(group, box ? QPalette::Text : QPalette::WindowText, TextOn(*color));
  widget_->setPalette(palette);
  widget_->setAutoFillBackground(!box);
}

}  // namespace brivane::qt
