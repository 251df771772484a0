#include "app/screen/ToolbarKeys.h"

#include <QKeyEvent>
#include <QToolBar>
#include <QToolButton>

namespace brivane::app {
namespace {

class ToolbarKeys final : public QObject {
 public:
  explicit ToolbarKeys(QToolBar& toolbar) : QObject(&toolbar), toolbar_(toolbar) {
    for (const QAction* action : toolbar.actions())
      if (QToolButton* button = ButtonOf(*action)) button->installEventFilter(this);
    ChooseEntrance();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto& button = static_cast<QToolButton&>(*watched);
    switch (event->type()) {
      case QEvent::FocusIn: MakeEntrance(&button); break;
      case QEvent::EnabledChange:
      case QEvent::Show:
      case QEvent::Hide: ChooseEntrance(); break;
      case QEvent::KeyPress: return Lead(button, static_cast<const QKeyEvent&>(*event));
      default: break;
    }
    return false;
  }

 private:
  [[nodiscard]] QToolButton* ButtonOf(const QAction& action) const {
    return qobject_cast<QToolButton*>(toolbar_.widgetForAction(const_cast<QAction*>(&action)));
  }
  /// The buttons that a person can go to.
  [[nodiscard]] QList<QToolButton*> Buttons() const {
    QList<QToolButton*> found;
    for (const QAction* action : toolbar_.actions()) {
      QToolButton* const button = ButtonOf(*action);
      if (button != nullptr && button->isEnabled() && button->isVisibleTo(&toolbar_)) found.append(button);
    }
    return found;
  }
  void ChooseEntrance() {
    const QList<QToolButton*> buttons = Buttons();
    if (!buttons.contains(entrance_)) MakeEntrance(buttons.isEmpty() ? nullptr : buttons.first());
  }
  void MakeEntrance(QToolButton* entrance) {
    entrance_ = entrance;
    for (const QAction* action : toolbar_.actions())
      if (QToolButton* button = ButtonOf(*action))
        button->setFocusPolicy(button == entrance ? Qt::TabFocus : Qt::NoFocus);
  }
  bool Lead(QToolButton& from, const QKeyEvent& key) const {
    if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    const QList<QToolButton*> buttons = Buttons();
    const qsizetype here = buttons.indexOf(&from);
    if (here < 0) return false;
    qsizetype to = here;
    switch (key.key()) {
      case Qt::Key_Right: to = qMin(here + 1, buttons.size() - 1); break;
      case Qt::Key_Left: to = qMax(here - 1, qsizetype{0}); break;
      case Qt::Key_Home: to = 0; break;
      case Qt::Key_End: to = buttons.size() - 1; break;
      default: return false;
    }
    buttons[to]->setFocus(Qt::TabFocusReason);
    return true;
  }

  QToolBar& toolbar_;
  QToolButton* entrance_ = nullptr;
};

}  // namespace

void ReachByKeys(QToolBar& toolbar) { new ToolbarKeys(toolbar); }

}  // namespace brivane::app
