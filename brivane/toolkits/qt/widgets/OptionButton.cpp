#include <QButtonGroup>
#include <QFocusEvent>
#include <QScopedValueRollback>

#include <brivane/toolkits/qt/widgets/OptionButton.h>

namespace brivane::qt {

namespace {

class OptionGroup final : public QButtonGroup {
 public:
  using QButtonGroup::QButtonGroup;
  bool moving = false;  ///< an arrow key moves the focus within it
};

OptionGroup& GroupOf(QWidget& container, const QString& array) {
  auto* group = static_cast<OptionGroup*>(container.findChild<QButtonGroup*>(array, Qt::FindDirectChildrenOnly));
  if (group == nullptr) {
    group = new OptionGroup(&container);
    group->setObjectName(array);
  }
  return *group;
}

OptionGroup& GroupOf(const QAbstractButton& option) { return static_cast<OptionGroup&>(*option.group()); }

bool CanGoTo(const QAbstractButton& option) { return option.isEnabled() && option.isVisible(); }

}  // namespace

OptionButton::OptionButton(const QString& array, int tab, QWidget* container) : QRadioButton(container) {
  GroupOf(*container, array).addButton(this, tab);
}

void OptionButton::Show(bool chosen) {
  // Qt lets no one deselect the selected button of an exclusive group.
  group()->setExclusive(chosen);
  setChecked(chosen);
  group()->setExclusive(true);
}

QAbstractButton* OptionButton::Entrance() const {
  QAbstractButton* const chosen = group()->checkedButton();
  if (chosen != nullptr && CanGoTo(*chosen)) return chosen;
  QAbstractButton* first = nullptr;
  for (QAbstractButton* option : group()->buttons())
    if (CanGoTo(*option) && (first == nullptr || group()->id(option) < group()->id(first))) first = option;
  return first;
}

void OptionButton::focusInEvent(QFocusEvent* event) {
  const bool tab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  QAbstractButton* const entrance = tab && !GroupOf(*this).moving ? Entrance() : nullptr;
  if (entrance != nullptr && entrance != this) return entrance->setFocus(event->reason());
  // The base makes this the only one of the group that Tab visits.
  QRadioButton::focusInEvent(event);
}

void OptionButton::focusOutEvent(QFocusEvent* event) {
  QRadioButton::focusOutEvent(event);
  // Which one is the way in depends on what is chosen and enabled when somebody comes.
  for (QAbstractButton* option : group()->buttons()) option->setFocusPolicy(Qt::StrongFocus);
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback moving(GroupOf(*this).moving, true);
  QRadioButton::keyPressEvent(event);
}

}  // namespace brivane::qt
