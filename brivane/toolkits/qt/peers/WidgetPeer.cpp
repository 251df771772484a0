#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/widgets/DesignFont.h>
#include <brivane/toolkits/qt/widgets/HighContrast.h>

namespace brivane::qt {

using controls::Aspect;

QWidget* ContainerWidget(const controls::AnyControl& control) {
  const controls::AnyControl* const container = control.Container();
  return container != nullptr ? dynamic_cast<const AreaHolder&>(*container->GetPeer()).Area() : nullptr;
}

namespace {

/// Whether a style draws an edge of its own around it.
bool HasAnEdge(const controls::AnyControl& control) {
  switch (control.ControlKind()) {
    case host::Kind::Label:
    case host::Kind::Hint:
    case host::Kind::JaNee:
    case host::Kind::Surface: return false;
    case host::Kind::Frame: return control.Row().bordered;
    default: return true;
  }
}

}  // namespace

WidgetPeer::WidgetPeer(controls::AnyControl& control, qt::Toolkit& toolkit, QWidget* widget)
    : control_(control), toolkit_(toolkit), widget_(widget) {
  widget->setObjectName(ToQt(control.ElementName()));
  if (HasAnEdge(control)) OutlineInHighContrast(*widget);
  if (!control.AccessibleName().empty()) widget->setAccessibleName(ToQt(control.AccessibleName()));
}

WidgetPeer::~WidgetPeer() { delete widget_; }

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

void WidgetPeer::ShowVisible() { widget_->setVisible(control_.Host().Visible()); }

void WidgetPeer::ShowPlace() { widget_->setGeometry(toolkit_.Edge().Pixels(control_.Host().Place())); }

void WidgetPeer::ShowFont() {
  const controls::Surface* const owner = control_.Owner();
  const float points = control_.Host().Read(host::Measure::FontSize).value_or(0);
  // What stands on a surface takes over its font.
  if (owner == nullptr || points == owner->Table().fontSize || points <= 0) return;
  SetDesignFont(*widget_, toolkit_.Edge().Font(owner->Table(), points));
}

void WidgetPeer::ShowBackColor() {
  const host::Kind kind = control_.ControlKind();
  // What has a face of its own keeps it: the style draws it.
  if (kind == host::Kind::Button || kind == host::Kind::JaNee) return;
  const std::optional<host::Color> asked = control_.Host().BackColor();
  const std::optional<QColor> color = asked ? ToQt(*asked) : std::nullopt;
  if (!color) {
    widget_->setPalette({});
    widget_->setAutoFillBackground(false);
    return;
  }
  const bool box = kind == host::Kind::TextBox || kind == host::Kind::ListBox || kind == host::Kind::ListView;
  QPalette palette;
  palette.setColor(box ? QPalette::Base : QPalette::Window, *color);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
    palette.setColor(group, box ? QPalette::Text : QPalette::WindowText, TextOn(*color));
  widget_->setPalette(palette);
  if (box) return;
  widget_->setBackgroundRole(QPalette::Window);
  widget_->setAutoFillBackground(true);
}

}  // namespace brivane::qt
