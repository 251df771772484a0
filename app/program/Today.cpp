#include "app/program/Today.h"

#include <QDate>

#include "frame/Calendar.h"

namespace brivane::dossier {

host::Date Vandaag() {
  const QDate vandaag = QDate::currentDate();
  return frame::MakeDate({.year = vandaag.year(), .month = vandaag.month(), .day = vandaag.day()});
}

}  // namespace brivane::dossier
