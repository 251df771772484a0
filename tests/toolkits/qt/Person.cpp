#include "tests/toolkits/qt/Person.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>

#include <brivane/controls/Choices.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::test {

namespace {

Stroke PlainStroke(Key key) {
  switch (key) {
    case Key::Tab: return {Qt::Key_Tab};
    case Key::Enter: return {Qt::Key_Return};
    case Key::KeypadEnter: return {Qt::Key_Enter, Qt::KeypadModifier};
    case Key::Escape: return {Qt::Key_Escape};
    case Key::Space: return {Qt::Key_Space};
    case Key::Delete: return {Qt::Key_Delete};
    case Key::Left: return {Qt::Key_Left};
    case Key::Right: return {Qt::Key_Right};
    case Key::Up: return {Qt::Key_Up};
    case Key::Down: return {Qt::Key_Down};
    case Key::Home: return {Qt::Key_Home};
    case Key::End: return {Qt::Key_End};
    case Key::PageUp: return {Qt::Key_PageUp};
    case Key::PageDown: return {Qt::Key_PageDown};
    case Key::F4: return {Qt::Key_F4};
    case Key::KeypadPoint: return {Qt::Key_Period, Qt::KeypadModifier};
    case Key::KeypadComma: return {Qt::Key_Comma, Qt::KeypadModifier};
  }
  return {Qt::Key_unknown};
}

}  // namespace

Qt::KeyboardModifiers ModifierOf(With with) {
  switch (with) {
    case With::Shift: return Qt::ShiftModifier;
    case With::Control: return Qt::ControlModifier;
    case With::Alt: return Qt::AltModifier;
    case With::None: break;
  }
  return Qt::NoModifier;
}

Stroke StrokeOf(Key key, With with) {
  // Qt knows Tab backwards as a key of its own.
  if (key == Key::Tab && with == With::Shift) return {Qt::Key_Backtab, Qt::ShiftModifier};
  const Stroke plain = PlainStroke(key);
  return {plain.key, plain.modifiers | ModifierOf(with)};
}

void ShowActive(QWidget& widget) {
  widget.show();
  widget.activateWindow();
  if (!QTest::qWaitForWindowActive(&widget)) qFatal("the window did not become active");
}

void Click(QWidget& widget, QPoint at) {
  QWidget* const window = widget.window();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, widget.mapTo(window, at));
}

void Click(QWidget& widget) { Click(widget, widget.rect().center()); }

void Press(int key, Qt::KeyboardModifiers modifiers) {
  QWindow* const window = QGuiApplication::focusWindow();
  if (window == nullptr) qFatal("no window has the focus");
  QTest::keyClick(window, static_cast<Qt::Key>(key), modifiers);
}

void Press(Key key, With with) {
  const Stroke stroke = StrokeOf(key, with);
  Press(stroke.key, stroke.modifiers);
}

void Type(const QString& text) {
  for (const QChar character : text) QTest::keyClick(QGuiApplication::focusWindow(), character.toLatin1());
}

void TypeOver(const QString& text) {
  Press(Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty())
    Press(Qt::Key_Delete);
  else
    Type(text);
}

QWidget* WidgetFor(controls::AnyControl& control) {
  if (const auto* cell = dynamic_cast<const qt::CellPeer*>(control.GetPeer()))
    return qt::RowCanvas::Of(*qt::ContainerWidget(cell->Control()));
  return dynamic_cast<qt::AreaHolder&>(*control.GetPeer()).Area();
}

QRect PlaceOn(controls::AnyControl& control) {
  if (const auto* cell = dynamic_cast<const qt::CellPeer*>(control.GetPeer())) return cell->Place();
  return WidgetFor(control)->rect();
}

namespace {

class Doer {
 public:
  explicit Doer(controls::AnyControl& control)
      : control_(control), widget_(*WidgetFor(control)), place_(PlaceOn(control)) {}

  void operator()(const controls::Press&) const { Click(widget_, place_.center()); }
  void operator()(const controls::Select&) const { Click(widget_, LeftEnd()); }
  void operator()(const controls::Tick& tick) const {
    if (static_cast<const controls::CheckBox&>(control_).Value() != tick.value) Click(widget_, LeftEnd());
  }
  void operator()(const controls::Toggle& toggle) const {
    const int quarter = place_.width() / 4;
    Click(widget_, QPoint(toggle.value == host::kJa ? quarter : 3 * quarter, place_.center().y()));
  }
  void operator()(const controls::Choose& choose) const {
    Click(widget_, place_.center());
    if (QApplication::activePopupWidget() == nullptr) return;
    Press(Qt::Key_Home);
    for (int i = 0; i < choose.index; ++i) Press(Qt::Key_Down);
    Press(Qt::Key_Return);
  }
  void operator()(const controls::Enter& enter) const {
    Click(widget_, place_.center());
    if (QApplication::focusWidget() == nullptr || !Focused()) return;
    const auto format = static_cast<const controls::TextBox&>(control_).Format();
    TypeOver(qt::ToQt(controls::ShowContent(enter.value, format)));
    Press(Qt::Key_Tab);
  }
  void operator()(const controls::Close&) const { widget_.window()->close(); }

 private:
  [[nodiscard]] QPoint LeftEnd() const { return {place_.left() + 8, place_.center().y()}; }
  [[nodiscard]] bool Focused() const {
    const QWidget* const focus = QApplication::focusWidget();
    return focus == &widget_ || widget_.isAncestorOf(focus);
  }

  controls::AnyControl& control_;
  QWidget& widget_;
  QRect place_;
};

}  // namespace

void Do(controls::AnyControl& control, const controls::Action& action) { std::visit(Doer(control), action); }

}  // namespace brivane::test
