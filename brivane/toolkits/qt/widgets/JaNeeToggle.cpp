#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <brivane/toolkits/qt/widgets/HighContrast.h>
#include <brivane/toolkits/qt/widgets/JaNeeToggle.h>

namespace brivane::qt {
namespace {

/// A screen reader hears a check box that also says "Ja" or "Nee".
class AccessibleToggle : public QAccessibleWidget {
 public:
  explicit AccessibleToggle(JaNeeToggle* toggle) : QAccessibleWidget(toggle, QAccessible::CheckBox) {}

  QString text(QAccessible::Text which) const override {
    if (which == QAccessible::Value) return Toggle().Shown() == JaNeeToggle::Answer::Ja ? "Ja" : "Nee";
    return QAccessibleWidget::text(which);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = Toggle().Shown() == JaNeeToggle::Answer::Ja;
    return state;
  }
  QStringList actionNames() const override {
    return widget()->isEnabled() ? QStringList{toggleAction(), setFocusAction()} : QStringList{};
  }
  void doAction(const QString& name) override {
    if (name == toggleAction() || name == pressAction())
      Toggle().Pick(Other(Toggle().Shown()));
    else
      QAccessibleWidget::doAction(name);
  }

 private:
  [[nodiscard]] JaNeeToggle& Toggle() const { return static_cast<JaNeeToggle&>(*widget()); }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* const toggle = dynamic_cast<JaNeeToggle*>(object);
  return toggle != nullptr ? new AccessibleToggle(toggle) : nullptr;
}

}  // namespace

JaNeeToggle::JaNeeToggle(QWidget* parent) : QWidget(parent) {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccessible);
    return true;
  }();
  Q_UNUSED(installed)
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

void JaNeeToggle::Show(Answer answer) {
  if (answer == answer_) return;
  answer_ = answer;
  update();
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

void JaNeeToggle::Pick(Answer answer) {
  if (isEnabled() && answer != answer_ && picked_) picked_(answer);
}

QSize JaNeeToggle::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return {2 * (metrics.horizontalAdvance("Nee") + 12), metrics.height() + 6};
}

QRect JaNeeToggle::Half(Answer answer) const {
  const int middle = width() / 2;
  const bool left = (answer == Answer::Ja) == (layoutDirection() == Qt::LeftToRight);
  return left ? QRect(0, 0, middle, height()) : QRect(middle, 0, width() - middle, height());
}

void JaNeeToggle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QPalette& colors = palette();
  const bool focused = hasFocus();
  const int border = focused ? 2 : 1;
  painter.fillRect(rect(), colors.color(focused                  ? QPalette::Highlight
                                        : IsHighContrast(colors) ? QPalette::WindowText
                                                                 : QPalette::Mid));
  for (const Answer answer : {Answer::Ja, Answer::Nee}) {
    const bool chosen = answer == answer_;
    // A disabled toggle still tells its answer: its grey text turned inside out.
    const QPalette::ColorRole back = !chosen ? QPalette::Base : isEnabled() ? QPalette::Highlight : QPalette::Text;
    const QPalette::ColorRole text = !chosen       ? QPalette::Text
                                     : isEnabled() ? QPalette::HighlightedText
                                                   : QPalette::Base;
    const QRect half = Half(answer) & rect().adjusted(border, border, -border, -border);
    painter.fillRect(half, colors.color(back));
    painter.setPen(colors.color(text));
    painter.drawText(Half(answer), Qt::AlignCenter, answer == Answer::Ja ? "Ja" : "Nee");
    if (!chosen || !focused) continue;
    painter.setPen(QPen(colors.color(text), 1, Qt::DotLine));
    painter.drawRect(half.adjusted(1, 1, -2, -2));
  }
}

void JaNeeToggle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  Pick(Half(Answer::Ja).contains(event->position().toPoint()) ? Answer::Ja : Answer::Nee);
}

void JaNeeToggle::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
  if (!plain) return event->ignore();
  switch (event->key()) {
    case Qt::Key_J:
    case Qt::Key_Left:
    case Qt::Key_Up: return Pick(Answer::Ja);
    case Qt::Key_N:
    case Qt::Key_Right:
    case Qt::Key_Down: return Pick(Answer::Nee);
    case Qt::Key_Space: return Pick(Other(answer_));
    default: event->ignore();
  }
}

void JaNeeToggle::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  update();
}

}  // namespace brivane::qt
