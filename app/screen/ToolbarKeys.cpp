#include "app/screen/ToolbarKeys.h"

#include <QKeyEvent>
#include <QToolBar>
#include <QToolButton>

namespace brivane::app {
namespace {

class ToolbarKeys final : public QObject {
 public:
  explicit ToolbarKeys(QToolBar& toolbar) : QObject(&toolbar), toolbar_(toolbar) {
    for (QAction* action : toolbar.actions())
      if (auto* const button = qobject_cast<QToolButton*>(toolbar.widgetForAction(action))) buttons_.append(button);
    // Where the toolbar has too little room, a last button opens a menu of the others.
    if (auto* const rest = toolbar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"))) {
      rest->setAccessibleName(QStringLiteral("Meer"));
      buttons_.append(rest);
    }
    for (QToolButton* button : buttons_) button->installEventFilter(this);
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
  /// The buttons that a person can go to.
  [[nodiscard]] QList<QToolButton*> Buttons() const {
    QList<QToolButton*> found;
    for (QToolButton* button : buttons_)
      if (button->isEnabled() && button->isVisibleTo(&toolbar_)) found.append(button);
    return found;
  }
  void ChooseEntrance() {
    const QList<QToolButton*> buttons = Buttons();
    if (!buttons.contains(entrance_)) MakeEntrance(buttons.isEmpty() ? nullptr : buttons.first());
  }
  void MakeEntrance(QToolButton* entrance) {
    entrance_ = entrance;
    for (QToolButton* button : buttons_) button->setFocusPolicy(button == entrance ? Qt::TabFocus : Qt::NoFocus);
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
  QList<QToolButton*> buttons_;
  QToolButton* entrance_ = nullptr;
};

}  // namespace

void ReachByKeys(QToolBar& toolbar) { new ToolbarKeys(toolbar); }

}  // namespace brivane::app
