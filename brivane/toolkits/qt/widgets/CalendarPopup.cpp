#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include <brivane/frame/Dates.h>
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/widgets/CalendarPopup.h>

namespace brivane::qt {

using frame::TextId;

namespace {

/// Red that can be read on light and on dark paper: seven times as bright as the one or as the other.
QColor WeekendOn(const QColor& paper) {
  return paper.lightness() < 128 ? QColor(0xff, 0xa0, 0x96) : QColor(0xa8, 0x12, 0x12);
}

/// Names days and months as other texts of the box do.
QLocale NamesOfDays() { return QLocale(Translated(TextId::CalendarLocale)); }

}  // namespace

CalendarPopup::CalendarPopup(QWidget& box, QDate shown, std::optional<QDate> today, std::function<void(QDate)> picked)
    : QFrame(&box, Qt::Popup),
      box_(box),
      today_(today),
      picked_(std::move(picked)),
      calendar_(new QCalendarWidget(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setFrameStyle(QFrame::StyledPanel);
  setAccessibleName(Translated(TextId::Calendar));
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->setSpacing(1);
  layout->addWidget(calendar_);
  calendar_->setLocale(NamesOfDays());
  calendar_->setFirstDayOfWeek(Qt::Monday);
  calendar_->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
  // A date is typed in the box, by its rules. The calendar's own way of typing also keeps memory where it closes
  // meanwhile.
  calendar_->setDateEditEnabled(false);
  calendar_->setMinimumDate(QDate(frame::kFirstYear, 1, 1));
  calendar_->setSelectedDate(shown);
  ColorDays();
  QObject::connect(calendar_, &QCalendarWidget::clicked, this, [this](QDate date) { picked_(date); });
  QObject::connect(calendar_, &QCalendarWidget::activated, this, [this](QDate date) { picked_(date); });
  if (auto* const days = calendar_->findChild<QAbstractItemView*>()) days->installEventFilter(this);
  if (!today_) return;
  auto* const button = new QPushButton(Translated(TextId::Today), this);
  button->setAutoDefault(true);
  button->setToolTip(NamesOfDays().toString(*today_, QStringLiteral("dddd d MMMM yyyy")));
  layout->addWidget(button);
  QObject::connect(button, &QPushButton::clicked, this, [this] { picked_(*today_); });
}

void CalendarPopup::DropDown() {
  adjustSize();
  const QRect screen = box_.screen()->availableGeometry();
  QPoint place = box_.mapToGlobal(QPoint(0, box_.height()));
  if (place.y() + height() > screen.bottom()) place.setY(place.y() - box_.height() - height());
  place.setX(qMax(screen.left(), qMin(place.x(), screen.right() - width())));
  move(place);
  show();
  calendar_->setFocus(Qt::PopupFocusReason);
}

bool CalendarPopup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  return TakeKey(key.key(), key.modifiers() & ~Qt::KeypadModifier) || QFrame::eventFilter(watched, event);
}

/// The keys that a calendar has no meaning for, or another one.
bool CalendarPopup::TakeKey(int key, Qt::KeyboardModifiers with) {
  if (key == Qt::Key_Home && today_) {
    calendar_->setSelectedDate(*today_);
    return true;
  }
  const bool years = with == Qt::ControlModifier && (key == Qt::Key_PageUp || key == Qt::Key_PageDown);
  if (years) calendar_->setSelectedDate(calendar_->selectedDate().addYears(key == Qt::Key_PageUp ? -1 : 1));
  return years;
}

void CalendarPopup::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ColorDays();
}

/// The calendar draws the days of a weekend in a red of its own, whatever they stand on.
void CalendarPopup::ColorDays() {
  QTextCharFormat weekend;
  weekend.setForeground(WeekendOn(palette().color(QPalette::Base)));
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) calendar_->setWeekdayTextFormat(day, weekend);
}

}  // namespace brivane::qt
