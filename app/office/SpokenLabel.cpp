#include "app/office/SpokenLabel.h"

#include <QAccessibleWidget>

namespace brivane::app {
namespace {

class AccessibleSpokenLabel final : public QAccessibleWidget {
 public:
  explicit AccessibleSpokenLabel(SpokenLabel* label) : QAccessibleWidget(label, QAccessible::AlertMessage) {}

  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? static_cast<SpokenLabel*>(widget())->text() : QString();
  }
};

QAccessibleInterface* MakeSpoken(const QString&, QObject* object) {
  auto* label = dynamic_cast<SpokenLabel*>(object);
  return label != nullptr ? new AccessibleSpokenLabel(label) : nullptr;
}

}  // namespace

SpokenLabel::SpokenLabel(const QString& text) {
  static const bool installed = [] {
    QAccessible::installFactory(MakeSpoken);
    return true;
  }();
  static_cast<void>(installed);
  // A name is no mark-up.
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  // A base that is given its text is read before this is what it is.
  setText(text);
}

void SpokenLabel::Say(const QString& text) {
  if (text == this->text()) return;
  // It is said because it comes up.
  hide();
  setText(text);
  show();
}

}  // namespace brivane::app
