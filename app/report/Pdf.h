#pragma once

#include <QByteArray>

#include "app/report/Report.h"

namespace brivane::app::report {

/// A report as a PDF document on A4, its text as text, with its title and language told.
[[nodiscard]] QByteArray PdfOf(const Report& report);

}  // namespace brivane::app::report
