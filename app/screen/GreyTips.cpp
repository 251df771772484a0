#include "app/screen/GreyTips.h"

#include <QEvent>
#include <QWidget>

#include "app/screen/HelpTexts.h"

namespace brivane::app {
namespace {

void Tell(QWidget& field) { field.setToolTip(field.isEnabled() ? QString() : WhyGrey(field.objectName())); }

}  // namespace

GreyTips::GreyTips(QWidget& editor) : QObject(&editor) {
  for (QWidget* field : editor.findChildren<QWidget*>()) {
    if (WhyGrey(field->objectName()).isEmpty()) continue;
    field->installEventFilter(this);
    Tell(*field);
  }
}

bool GreyTips::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::EnabledChange) Tell(static_cast<QWidget&>(*watched));
  return QObject::eventFilter(watched, event);
}

}  // namespace brivane::app
