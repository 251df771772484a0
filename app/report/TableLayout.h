#pragma once

#include <string>
#include <vector>

#include "app/report/Report.h"
#include "app/report/Ruler.h"

namespace brivane::app::report {

/// Where a column of a table stands within the table, and how wide its texts may be.
struct ColumnPlace {
  double left = 0;
  double width = 0;
  Align align = Align::Left;
};

/// The columns of a table side by side, and the scale of its letters: below 1 where its amounts ask for more than there
/// is.
struct TableLayout {
  std::vector<ColumnPlace> columns;
  double scale = 1;
};

/// Gives each column what its contents ask, and the rest to those that take what is left. An amount is not broken.
[[nodiscard]] TableLayout LayOut(const Table& table, double width, const Ruler& ruler);

/// A line of a cell.
struct CellLine {
  Letters letters = Letters::Text;
  std::string text;
};

/// A row of a table in lines, for each column those of its cell from above.
struct BrokenRow {
  RowKind kind = RowKind::Plain;
  std::vector<std::vector<CellLine>> cells;
};

[[nodiscard]] BrokenRow Break(const TableRow& row, const TableLayout& layout, const Ruler& ruler);
[[nodiscard]] BrokenRow BreakHeadings(const Table& table, const TableLayout& layout, const Ruler& ruler);
/// Height of its tallest cell.
[[nodiscard]] double HeightOf(const BrokenRow& row, const TableLayout& layout, const Ruler& ruler);

/// Cuts off what fits in a height and answers it; one line at least.
[[nodiscard]] BrokenRow TakeFitting(BrokenRow& row, double height, const TableLayout& layout, const Ruler& ruler);

}  // namespace brivane::app::report
