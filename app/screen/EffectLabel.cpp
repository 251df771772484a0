#include "app/screen/EffectLabel.h"

namespace brivane::app {

EffectLabel::EffectLabel(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("effectzin"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setFocusPolicy(Qt::NoFocus);
}

void EffectLabel::Show(const QString& sentence) {
  setText(sentence);
  setAccessibleName(sentence);
  setVisible(!sentence.isEmpty());
}

}  // namespace brivane::app
