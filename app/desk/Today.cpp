#include "app/desk/Today.h"

#include <QDate>

#include <brivane/frame/Calendar.h>

namespace brivane::app {

host::Date Today() {
  const QDate today = QDate::currentDate();
  return frame::MakeDate({.year = today.year(), .month = today.month(), .day = today.day()});
}

}  // namespace brivane::app
