#include <brivane/frame/Calendar.h>
#include <brivane/frame/Conversions.h>
#include <brivane/vrijekolom/Looptijd.h>

namespace brivane::vrijekolom {

std::int16_t LooptijdUit(double jaren, double maanden) { return frame::ToInteger16(jaren * kMaandenPerJaar + maanden); }

std::int16_t LooptijdTussen(host::Date aanvang, host::Date einde) {
  return frame::ToInteger16(frame::MonthsBetween(aanvang, einde));
}

}  // namespace brivane::vrijekolom
