#include <QAction>
#include <QCalendarWidget>
#include <QFrame>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/toolkits/qt/Desktop.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>

namespace brivane::qt {
namespace {

constexpr int kIconSize = 16;

/// A sheet of a calendar in the colour of the text.
QIcon CalendarIcon(const QColor& color, qreal ratio) {
  QPixmap pixmap(QSize(kIconSize, kIconSize) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setPen(color);
  painter.drawRect(2, 3, 11, 10);
  painter.fillRect(2, 3, 12, 3, color);
  for (int row = 0; row < 2; ++row)
    for (int day = 0; day < 3; ++day) painter.fillRect(4 + 3 * day, 8 + 3 * row, 2, 2, color);
  return pixmap;
}

/// The step that Page Up and Page Down make, as in the calendar.
std::optional<controls::DateStep> StepOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers with = key.modifiers() & ~Qt::KeypadModifier;
  const bool back = key.key() == Qt::Key_PageUp;
  if (!back && key.key() != Qt::Key_PageDown) return std::nullopt;
  if (with == Qt::NoModifier) return back ? controls::DateStep::MonthBack : controls::DateStep::Month;
  if (with == Qt::ControlModifier) return back ? controls::DateStep::YearBack : controls::DateStep::Year;
  return std::nullopt;
}

}  // namespace

DateBox::DateBox(QWidget* parent) : EntryBox(parent), icon_(new QAction(this)) {
  Edit().Tie(frame::Format::Date, nullptr, [] { return Desktop().Today(); });
  setInputMethodHints(Qt::ImhDate);
  icon_->setText("Kalender");
  icon_->setToolTip("Kalender (F4)");
  addAction(icon_, QLineEdit::TrailingPosition);
  DrawIcon();
  QObject::connect(icon_, &QAction::triggered, this, [this] { OpenCalendar(); });
}

void DateBox::DrawIcon() { icon_->setIcon(CalendarIcon(palette().color(QPalette::Text), devicePixelRatioF())); }

void DateBox::changeEvent(QEvent* event) {
  EntryBox::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) DrawIcon();
}

QWidget* DateBox::Calendar() const { return popup_; }

void DateBox::OpenCalendar() {
  if (!isEnabled() || isReadOnly() || popup_) return;
  setFocus(Qt::OtherFocusReason);
  if (!hasFocus() && window()->isActiveWindow()) return;  // another box kept the focus

  popup_ = new QFrame(this, Qt::Popup);
  popup_->setAttribute(Qt::WA_DeleteOnClose);
  popup_->setFrameStyle(QFrame::StyledPanel);
  auto* const layout = new QVBoxLayout(popup_);
  layout->setContentsMargins(1, 1, 1, 1);
  auto* const calendar = new QCalendarWidget(popup_);
  layout->addWidget(calendar);
  calendar->setLocale(QLocale(QLocale::Dutch, QLocale::Netherlands));
  calendar->setFirstDayOfWeek(Qt::Monday);
  calendar->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
  // A date is typed in the box, by its rules. The calendar's own way of typing also keeps memory where it closes
  // meanwhile.
  calendar->setDateEditEnabled(false);
  calendar->setMinimumDate(QDate(frame::kFirstYear, 1, 1));
  const controls::TypedContent typed = Edit().Read(FromQt(text()));
  if (const auto* date = std::get_if<host::Date>(&typed.value)) {
    const frame::YearMonthDay day = frame::Split(*date);
    calendar->setSelectedDate(QDate(day.year, day.month, day.day));
  }
  QObject::connect(calendar, &QCalendarWidget::clicked, this, [this](QDate date) { Pick(date); });
  QObject::connect(calendar, &QCalendarWidget::activated, this, [this](QDate date) { Pick(date); });

  popup_->adjustSize();
  const QRect screen = this->screen()->availableGeometry();
  QPoint place = mapToGlobal(QPoint(0, height()));
  if (place.y() + popup_->height() > screen.bottom()) place.setY(place.y() - height() - popup_->height());
  place.setX(qMax(screen.left(), qMin(place.x(), screen.right() - popup_->width())));
  popup_->move(place);
  popup_->show();
  calendar->setFocus(Qt::PopupFocusReason);
}

void DateBox::Pick(QDate date) {
  if (!popup_) return;  // a double click reports the day twice
  popup_->close();
  popup_ = nullptr;
  setFocus(Qt::OtherFocusReason);
  Edit().TypeOver(frame::ShowDate(frame::MakeDate({date.year(), date.month(), date.day()})));
  Edit().CommitAndSelect();
}

/// A step is the box's before it is a shortcut of the window's.
bool DateBox::event(QEvent* event) {
  const bool asked = event->type() == QEvent::ShortcutOverride && !isReadOnly();
  if (!asked || !StepOf(static_cast<const QKeyEvent&>(*event))) return EntryBox::event(event);
  event->accept();
  return true;
}

void DateBox::keyPressEvent(QKeyEvent* event) {
  const bool altDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
  if (event->key() == Qt::Key_F4 || altDown) {
    OpenCalendar();
    event->accept();
    return;
  }
  const std::optional<controls::DateStep> step = StepOf(*event);
  const QString typed = event->text();
  const bool sign = typed == "+" || typed == "-";
  if ((step && Edit().Step(*step)) || (sign && Edit().StepBySign(typed.front().toLatin1()))) return event->accept();
  EntryBox::keyPressEvent(event);
}

}  // namespace brivane::qt
