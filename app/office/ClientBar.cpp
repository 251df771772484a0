#include "app/office/ClientBar.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/office/SpokenLabel.h"

namespace brivane::app {
namespace {

/// A group, and not a window as other frames are.
QAccessibleInterface* MakeGroup(const QString&, QObject* object) {
  auto* bar = dynamic_cast<ClientBar*>(object);
  return bar != nullptr ? new QAccessibleWidget(bar, QAccessible::Grouping) : nullptr;
}

SpokenLabel* MakeLabel(const char* name) {
  auto* label = new SpokenLabel;
  label->setObjectName(QString::fromLatin1(name));
  return label;
}

QPushButton* MakeButton(const QString& text, const std::function<void()>& task) {
  auto* button = new QPushButton(text);
  button->setAutoDefault(false);
  QObject::connect(button, &QPushButton::clicked, button, [&task] {
    if (task) task();
  });
  return button;
}

/// A button that does what an action does, and is there while that can be done.
QPushButton* ButtonFor(QAction* action) {
  auto* button = new QPushButton;
  button->setAutoDefault(false);
  const auto follow = [button, action] {
    // Its letter belongs to the menu.
    button->setText(QString(action->text()).remove(u'&'));
    button->setVisible(action->isEnabled());
  };
  QObject::connect(action, &QAction::changed, button, follow);
  QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
  follow();
  return button;
}

}  // namespace

ClientBar::ClientBar(const QList<QAction*>& actions, QWidget* parent)
    : QFrame(parent),
      state_(MakeLabel("stand")),
      notice_(MakeLabel("bericht")),
      unstored_(MakeLabel("nietOpgeslagen")) {
  static const bool installed = [] {
    QAccessible::installFactory(MakeGroup);
    return true;
  }();
  static_cast<void>(installed);
  setObjectName(QStringLiteral("kantoorbalk"));
  setAccessibleName(QStringLiteral("Kantoor"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  for (SpokenLabel* label : {state_, notice_, unstored_}) label->setForegroundRole(QPalette::ToolTipText);
  QList<QPushButton*> tasks;
  for (QAction* action : actions) tasks << ButtonFor(action);
  again_ = MakeButton(QStringLiteral("Terugzetten"), putBack);
  stateLine_ = MakeLine(state_, tasks);
  noticeLine_ = MakeLine(notice_, {MakeButton(QStringLiteral("Sluiten"), noticePutAway)});
  unstoredLine_ = MakeLine(unstored_, {again_, MakeButton(QStringLiteral("Kopiëren"), copied),
                                       MakeButton(QStringLiteral("Weggooien"), thrownAway)});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 2, 6, 2);
  layout->setSpacing(0);
  for (QWidget* line : {stateLine_, noticeLine_, unstoredLine_}) {
    line->hide();
    layout->addWidget(line);
  }
  hide();
}

QWidget* ClientBar::MakeLine(SpokenLabel* label, const QList<QPushButton*>& buttons) {
  auto* line = new QWidget;
  auto* layout = new QHBoxLayout(line);
  layout->setContentsMargins(0, 2, 0, 2);
  layout->addWidget(label, 1);
  for (QPushButton* button : buttons) layout->addWidget(button);
  return line;
}

void ClientBar::Show(SpokenLabel* label, QWidget* line, const QString& text) {
  label->Say(text);
  line->setVisible(!text.isEmpty());
  setVisible(!state_->text().isEmpty() || !notice_->text().isEmpty() || !unstored_->text().isEmpty());
}

void ClientBar::ShowState(const QString& text) { Show(state_, stateLine_, text); }
void ClientBar::ShowNotice(const QString& text) { Show(notice_, noticeLine_, text); }
void ClientBar::ShowUnstored(const QString& text, bool again) {
  again_->setEnabled(again);
  Show(unstored_, unstoredLine_, text);
}

}  // namespace brivane::app
