#include "app/program/MessageBoxes.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

namespace brivane::app {

MessageBoxes::MessageBoxes() { QApplication::instance()->installEventFilter(this); }

bool MessageBoxes::eventFilter(QObject* object, QEvent* event) {
  auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(object) : nullptr;
  if (box != nullptr) {
    if (first_.isEmpty()) first_ = (box->text() + u' ' + box->informativeText()).simplified();
    QTimer::singleShot(0, box, &QDialog::reject);
  }
  return QObject::eventFilter(object, event);
}

}  // namespace brivane::app
