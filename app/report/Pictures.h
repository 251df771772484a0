#pragma once

#include "app/report/Contents.h"

namespace brivane::app::report {

/// Adds to a report how a situation goes through the years, a new one beside the current: its burden, and its taxable
/// income, each where there is any. None for a situation that follows the current one in everything.
void AddPictures(Report& report, const Source& source, std::int16_t situatie);

}  // namespace brivane::app::report
