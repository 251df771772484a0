#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <algorithm>

#include <brivane/toolkits/qt/widgets/AccessibleText.h>
#include <brivane/toolkits/qt/widgets/AccessibleWidgets.h>
#include <brivane/toolkits/qt/widgets/Bubble.h>
#include <brivane/toolkits/qt/widgets/ChoiceBox.h>
#include <brivane/toolkits/qt/widgets/ControlWidget.h>
#include <brivane/toolkits/qt/widgets/PlainFrame.h>

namespace brivane::qt {

bool PlainFrame::IsGroup() const {
  if (accessibleName().isEmpty()) return false;
  const auto inside = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  return std::count_if(inside.begin(), inside.end(),
                       [](const QWidget* widget) { return widget->focusPolicy() != Qt::NoFocus; }) > 1;
}

namespace {

/// A list that keeps its own name: Qt's takes the chosen entry for one. The entry is its text.
class AccessibleChoice final : public QAccessibleWidget, public AccessibleText {
 public:
  explicit AccessibleChoice(ChoiceBox* box) : QAccessibleWidget(box, QAccessible::ComboBox) {}

  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Value ? Box().currentText() : QAccessibleWidget::text(which);
  }
  QString text(int start, int end) const override { return AccessibleText::text(start, end); }
  QString Content() const override { return Box().currentText(); }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = Box().IsOpen();
    state.collapsed = !state.expanded;
    return state;
  }
  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(Box().view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && child->object() == Box().view() ? 0 : -1;
  }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QStringList actionNames() const override {
    return Box().isEnabled() ? QStringList{showMenuAction(), setFocusAction()} : QStringList{};
  }
  void doAction(const QString& name) override {
    if (name != showMenuAction()) return QAccessibleWidget::doAction(name);
    Box().IsOpen() ? Box().hidePopup() : Box().showPopup();
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

 private:
  [[nodiscard]] ChoiceBox& Box() const { return static_cast<ChoiceBox&>(*widget()); }
};

class AccessibleFrame final : public QAccessibleWidget {
 public:
  explicit AccessibleFrame(PlainFrame* frame) : QAccessibleWidget(frame) {}

  QAccessible::Role role() const override { return Frame().IsGroup() ? QAccessible::Grouping : QAccessible::Client; }
  QString text(QAccessible::Text which) const override {
    // Without a name Qt takes that of the frame around it.
    if (which == QAccessible::Name && !Frame().IsGroup()) return {};
    return QAccessibleWidget::text(which);
  }

 private:
  [[nodiscard]] PlainFrame& Frame() const { return static_cast<PlainFrame&>(*widget()); }
};

/// Said when it comes up, where it is a refusal.
class AccessibleBubble final : public QAccessibleWidget {
 public:
  explicit AccessibleBubble(Bubble* bubble) : QAccessibleWidget(bubble) {}

  QAccessible::Role role() const override {
    return Shown().IsAlert() ? QAccessible::AlertMessage : QAccessible::StaticText;
  }
  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? Shown().text() : QString();
  }

 private:
  [[nodiscard]] Bubble& Shown() const { return static_cast<Bubble&>(*widget()); }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  if (auto* const list = dynamic_cast<ChoiceBox*>(object)) return new AccessibleChoice(list);
  if (auto* const frame = dynamic_cast<PlainFrame*>(object)) return new AccessibleFrame(frame);
  // An embedded control is a group in its host's window.
  if (auto* const control = dynamic_cast<ControlWidget*>(object))
    return new QAccessibleWidget(control, QAccessible::Grouping);
  if (auto* const bubble = dynamic_cast<Bubble*>(object)) return new AccessibleBubble(bubble);
  return nullptr;
}

}  // namespace

void InstallAccessibleWidgets() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccessible);
    return true;
  }();
  Q_UNUSED(installed)
}

}  // namespace brivane::qt
