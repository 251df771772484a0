#include "app/office/LastTyped.h"

#include <QAccessible>
#include <QApplication>

#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::app {

QString NameOfBox(const QWidget* box) {
  while (box != nullptr && box->objectName().isEmpty()) box = box->parentWidget();
  return box ? box->objectName() : QString();
}

LastTyped::LastTyped(QWidget& editor) : editor_(editor) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Follow(now); });
  Follow(QApplication::focusWidget());
}

void LastTyped::Follow(QWidget* focus) {
  disconnect(box_);
  auto* box = dynamic_cast<qt::EntryBox*>(focus);
  if (box == nullptr || !editor_.isAncestorOf(box)) return;
  box_ = connect(box, &QLineEdit::textEdited, this, [this, box](const QString& text) {
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(box);
    typed_ = Typed{NameOfBox(box), reader ? reader->text(QAccessible::Name) : QString(), text};
  });
}

}  // namespace brivane::app
