#include <QAction>
#include <QKeyEvent>
#include <QPainter>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/toolkits/qt/Desktop.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/widgets/CalendarPopup.h>
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

QDate DayOf(host::Date date) {
  const frame::YearMonthDay day = frame::Split(date);
  return {day.year, day.month, day.day};
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
  icon_->setText(Translated(frame::TextId::Calendar));
  icon_->setToolTip(Translated(frame::TextId::CalendarKey));
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

  const controls::TypedContent typed = Edit().Read(FromQt(text()));
  const host::Date today = Edit().Today();
  const auto* const date = std::get_if<host::Date>(&typed.value);
  const std::optional<QDate> known = today.IsNone() ? std::nullopt : std::optional(DayOf(today));
  popup_ = new CalendarPopup(*this, date != nullptr ? DayOf(*date) : known.value_or(QDate::currentDate()), known,
                             [this](QDate day) { Pick(day); });
  popup_->DropDown();
}

void DateBox::Pick(QDate date) {
  if (!popup_) return;  // a double click reports the day twice
  popup_->close();
  popup_ = nullptr;
  setFocus(Qt::OtherFocusReason);
  Edit().TypeOver(frame::ShowDate(frame::MakeDate({date.year(), date.month(), date.day()})));
  Edit().CommitAndSelect();
}

/// A step is the box's before it is a shortcut of the window's: of somebody who went to the box or types in it. Where
/// code put the focus there he means the window.
bool DateBox::event(QEvent* event) {
  const bool asked = event->type() == QEvent::ShortcutOverride && !isReadOnly() && (wentTo_ || Edit().IsPending());
  if (!asked || !StepOf(static_cast<const QKeyEvent&>(*event))) return EntryBox::event(event);
  event->accept();
  return true;
}

void DateBox::focusInEvent(QFocusEvent* event) {
  switch (event->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::MouseFocusReason:
    case Qt::ShortcutFocusReason: wentTo_ = true; break;
    case Qt::OtherFocusReason: wentTo_ = false; break;
    default: break;  // what had borrowed the focus gives it back
  }
  EntryBox::focusInEvent(event);
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
