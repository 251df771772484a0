#include "app/report/TableLayout.h"

#include <algorithm>
#include <cstddef>

#include "app/report/Lines.h"

namespace brivane::app::report {
namespace {

constexpr double kGap = 9;          ///< between two columns
constexpr double kWidestText = 95;  ///< what a column of words asks at most: longer ones are broken
constexpr double kLeastRest = 120;  ///< what a column that takes the rest needs
constexpr double kSmallest = 0.5;   ///< scale below which no one reads
constexpr double kSlack = 0.5;      ///< the sum of the words' widths is not the line's to a hair

Letters LettersOf(RowKind kind) {
  switch (kind) {
    case RowKind::Plain: return Letters::Text;
    case RowKind::Detail: return Letters::Note;
    case RowKind::Total: return Letters::Strong;
  }
  return Letters::Text;
}

/// What a column asks so that none of its texts is broken; words are, from a width on.
double Asked(const Table& table, std::size_t column, const Ruler& ruler) {
  const TableColumn& spec = table.columns[column];
  double widest = WidestWord(spec.heading, Letters::Strong, ruler);
  const auto ask = [&](const std::string& text, Letters letters) {
    const double width = ruler.Width(text, letters);
    widest = std::max(widest, spec.align == Align::Right ? width : std::min(width, kWidestText));
  };
  for (const TableRow& row : table.rows) {
    const Cell& cell = row.cells[column];
    ask(cell.text, LettersOf(row.kind));
    for (const std::string& note : cell.notes) ask(note, Letters::Note);
  }
  return widest + kSlack;
}

void AddLines(std::vector<CellLine>& lines, std::string_view text, double width, Letters letters, const Ruler& ruler) {
  for (std::string& line : BreakLines(text, width, letters, ruler)) lines.push_back({letters, std::move(line)});
}

}  // namespace

TableLayout LayOut(const Table& table, double width, const Ruler& ruler) {
  TableLayout layout;
  const auto rests = static_cast<double>(
      std::count_if(table.columns.begin(), table.columns.end(), [](const auto& c) { return c.width == Width::Rest; }));
  const double gaps = kGap * static_cast<double>(table.columns.size() - 1);
  double asked = 0;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const bool rest = table.columns[i].width == Width::Rest;
    layout.columns.push_back({0, rest ? 0 : Asked(table, i, ruler), table.columns[i].align});
    asked += layout.columns.back().width;
  }
  const double needed = asked + gaps + rests * kLeastRest;
  if (needed > width) layout.scale = std::max(kSmallest, width / needed);
  const double left_over = width / layout.scale - asked - gaps;
  double left = 0;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    ColumnPlace& place = layout.columns[i];
    if (table.columns[i].width == Width::Rest) place.width = left_over / rests;
    place.width *= layout.scale;
    place.left = left;
    left += place.width + kGap * layout.scale;
  }
  return layout;
}

BrokenRow Break(const TableRow& row, const TableLayout& layout, const Ruler& ruler) {
  BrokenRow broken{.kind = row.kind, .cells = {}};
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    const double width = layout.columns[i].width / layout.scale;
    std::vector<CellLine>& lines = broken.cells.emplace_back();
    AddLines(lines, row.cells[i].text, width, LettersOf(row.kind), ruler);
    for (const std::string& note : row.cells[i].notes) AddLines(lines, note, width, Letters::Note, ruler);
  }
  return broken;
}

BrokenRow BreakHeadings(const Table& table, const TableLayout& layout, const Ruler& ruler) {
  BrokenRow broken{.kind = RowKind::Total, .cells = {}};
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    AddLines(broken.cells.emplace_back(), table.columns[i].heading, layout.columns[i].width / layout.scale,
             Letters::Strong, ruler);
  }
  return broken;
}

double HeightOf(const BrokenRow& row, const TableLayout& layout, const Ruler& ruler) {
  double tallest = ruler.LineHeight(LettersOf(row.kind));
  for (const auto& cell : row.cells) {
    double height = 0;
    for (const CellLine& line : cell) height += ruler.LineHeight(line.letters);
    tallest = std::max(tallest, height);
  }
  return tallest * layout.scale;
}

BrokenRow TakeFitting(BrokenRow& row, double height, const TableLayout& layout, const Ruler& ruler) {
  BrokenRow taken{.kind = row.kind, .cells = {}};
  for (auto& cell : row.cells) {
    double used = 0;
    std::size_t count = 0;
    while (count < cell.size()) {
      used += ruler.LineHeight(cell[count].letters) * layout.scale;
      if (used > height && count > 0) break;
      ++count;
    }
    const auto end = cell.begin() + static_cast<std::ptrdiff_t>(count);
    taken.cells.emplace_back(cell.begin(), end);
    cell.erase(cell.begin(), end);
  }
  return taken;
}

}  // namespace brivane::app::report
