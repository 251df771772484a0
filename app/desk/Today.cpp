#include "app/desk/Today.h"

#include <QDate>
#include <optional>

#include <brivane/frame/Calendar.h>

namespace brivane::app {

namespace {

std::optional<host::Date>& Pinned() {
  static std::optional<host::Date> day;
  return day;
}

}  // namespace

void PinToday(host::Date day) { Pinned() = day; }

host::Date Today() {
  if (Pinned()) return *Pinned();
  const QDate today = QDate::currentDate();
  return frame::MakeDate({.year = today.year(), .month = today.month(), .day = today.day()});
}

}  // namespace brivane::app
