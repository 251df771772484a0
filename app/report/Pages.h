#pragma once

#include <string>
#include <vector>

#include "app/report/Report.h"
#include "app/report/Ruler.h"

/// A report laid out on pages. All measures are points (1/72 inch) from the upper left corner of the sheet.
namespace brivane::app::report {

struct Sheet {
  double width = 595.28;  ///< A4, upright
  double height = 841.89;
  double margin = 45;
};

/// A line of text. `x` is its left edge, or its right edge where it is aligned right.
struct Line {
  double x = 0;
  double top = 0;
  Align align = Align::Left;
  Letters letters = Letters::Text;
  double scale = 1;  ///< of the letters: a table that is too wide is set smaller
  std::string text;

  friend bool operator==(const Line&, const Line&) = default;
};

/// A grey band behind headings and totals.
struct Band {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

/// A thin horizontal line.
struct Stroke {
  double left = 0;
  double top = 0;
  double width = 0;
};

struct Page {
  std::vector<Line> lines;
  std::vector<Band> bands;
  std::vector<Stroke> strokes;
};

/// The pages of a report, one at least, each with its foot: who made it and when, and "Pagina 1 van 3"; from the second
/// on with the report's title and client above.
[[nodiscard]] std::vector<Page> Paginate(const Report& report, const Ruler& ruler, const Sheet& sheet = {});

}  // namespace brivane::app::report
