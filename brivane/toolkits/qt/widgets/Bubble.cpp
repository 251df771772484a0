#include <QAccessible>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolTip>

#include <brivane/toolkits/qt/widgets/Bubble.h>

namespace brivane::qt {
namespace {

constexpr int kGap = 2;
constexpr int kMargin = 5;

}  // namespace

Bubble::Bubble(QWidget& box) : QLabel(box.window()), box_(&box) {
  setTextFormat(Qt::PlainText);
  setMargin(kMargin);
  setPalette(QToolTip::palette());
  setForegroundRole(QPalette::ToolTipText);
  setBackgroundRole(QPalette::ToolTipBase);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  setLayoutDirection(Qt::LeftToRight);
  QObject::connect(&box, &QObject::destroyed, this, &QObject::deleteLater);
}

Bubble& Bubble::Put(QWidget& box, const QString& text, Says says) {
  Bubble* bubble = Find(box);
  if (bubble == nullptr) bubble = new Bubble(box);
  bubble->says_ = says;
  bubble->setFont(box.font());
  bubble->setText(text);
  bubble->PutBeside();
  bubble->raise();
  bubble->show();
  box.setAccessibleDescription(text);
  return *bubble;
}

void Bubble::Show(QWidget& box, const QString& reason) {
  QAccessibleEvent alert(&Put(box, reason, Says::Reason), QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void Bubble::ShowNote(QWidget& box, const QString& note) { Put(box, note, Says::Note); }

void Bubble::Hide(QWidget& box) {
  Bubble* const bubble = Find(box);
  if (bubble == nullptr) return;
  // Not at once: the window may be going through its children.
  bubble->box_ = nullptr;
  bubble->hide();
  bubble->deleteLater();
  box.setAccessibleDescription({});
}

QString Bubble::ReasonOf(const QWidget& box) { return TextOf(box, Says::Reason); }
QString Bubble::NoteOf(const QWidget& box) { return TextOf(box, Says::Note); }

QString Bubble::TextOf(const QWidget& box, Says says) {
  const Bubble* const bubble = Find(box);
  return bubble != nullptr && bubble->says_ == says ? bubble->text() : QString();
}

Bubble* Bubble::Find(const QWidget& box) {
  for (QObject* child : box.window()->children())
    if (auto* const bubble = dynamic_cast<Bubble*>(child); bubble != nullptr && bubble->box_ == &box) return bubble;
  return nullptr;
}

void Bubble::PutBeside() {
  const QWidget* const window = parentWidget();
  const int widest = qMax(80, window->width() - 2 * kGap);
  setWordWrap(false);
  setMinimumWidth(0);
  QSize size = sizeHint();
  if (size.width() > widest) {
    setWordWrap(true);
    size = QSize(widest, heightForWidth(widest));
  }
  const QPoint under = box_->mapTo(window, QPoint(0, box_->height() + kGap));
  int top = under.y();
  if (top + size.height() > window->height()) top = under.y() - box_->height() - 2 * kGap - size.height();
  const int left = qMax(kGap, qMin(under.x(), window->width() - size.width() - kGap));
  setGeometry(left, qMax(0, top), size.width(), size.height());
}

void Bubble::paintEvent(QPaintEvent* event) {
  {
    QStylePainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
  }
  QLabel::paintEvent(event);
}

}  // namespace brivane::qt
