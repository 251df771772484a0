#include "app/report/Pages.h"

#include <algorithm>

#include "app/report/Lines.h"
#include "app/report/TableLayout.h"

namespace brivane::app::report {
namespace {

constexpr double kAboveHeading = 14;
constexpr double kBelowHeading = 5;
constexpr double kBelowParagraph = 6;
constexpr double kFactNames = 90;    ///< room for the names of facts
constexpr double kRowPadding = 2.5;  ///< above and below the lines of a row
constexpr double kDetailPadding = 1;
constexpr double kHeadRoom = 20;         ///< from the running title to what follows
constexpr double kFootGap = 12;          ///< between what stands left and right in the foot
constexpr double kFootRoom = 22;         ///< from what stands above to the foot
constexpr double kKeptWithHeading = 60;  ///< a heading does not stand alone at the bottom

/// Details stand close together.
double PaddingOf(const BrokenRow& row) { return row.kind == RowKind::Detail ? kDetailPadding : kRowPadding; }

class Composer {
 public:
  Composer(const Report& report, const Ruler& ruler, const Sheet& sheet)
      : report_(report), ruler_(ruler), sheet_(sheet), width_(sheet.width - 2 * sheet.margin) {}

  std::vector<Page> Compose() {
    pages_.emplace_back();
    y_ = sheet_.margin;
    Write(report_.title, Letters::Title);
    y_ += kBelowHeading;
    for (const Block& block : report_.blocks) {
      std::visit([this](const auto& one) { Add(one); }, block);
    }
    AddFeet();
    return std::move(pages_);
  }

 private:
  [[nodiscard]] double Bottom() const {
    return sheet_.height - sheet_.margin - ruler_.LineHeight(Letters::Note) - kFootRoom;
  }
  /// Where a page after the first begins below its running title.
  [[nodiscard]] double Top() const { return sheet_.margin + ruler_.LineHeight(Letters::Note) + kHeadRoom; }
  [[nodiscard]] Page& Here() { return pages_.back(); }

  void Put(double x, double top, Align align, Letters letters, std::string text, double scale = 1) {
    Here().lines.push_back({x, top, align, letters, scale, std::move(text)});
  }

  void NextPage() {
    pages_.emplace_back();
    const std::string running = report_.client.empty() ? report_.title : report_.title + " · " + report_.client;
    const auto lines = BreakLines(running, width_, Letters::Note, ruler_);
    if (!lines.empty()) Put(sheet_.margin, sheet_.margin, Align::Left, Letters::Note, lines.front());
    y_ = sheet_.margin + ruler_.LineHeight(Letters::Note) + 3;
    Here().strokes.push_back({sheet_.margin, y_, width_});
    y_ = Top();
  }

  void Reserve(double height) {
    if (y_ + height > Bottom() && y_ > Top()) NextPage();
  }

  /// Lines that go on to the next page where they must.
  void Write(const std::string& text, Letters letters) {
    for (std::string& line : BreakLines(text, width_, letters, ruler_)) {
      Reserve(ruler_.LineHeight(letters));
      Put(sheet_.margin, y_, Align::Left, letters, std::move(line));
      y_ += ruler_.LineHeight(letters);
    }
  }

  void Add(const Heading& heading) {
    Reserve(kAboveHeading + ruler_.LineHeight(Letters::Heading) + kBelowHeading + kKeptWithHeading);
    if (y_ > Top()) y_ += kAboveHeading;
    Write(heading.text, Letters::Heading);
    y_ += kBelowHeading;
  }

  void Add(const Paragraph& paragraph) {
    Write(paragraph.text, Letters::Text);
    y_ += kBelowParagraph;
  }

  void Add(const Facts& facts) {
    for (const auto& [name, value] : facts.lines) {
      const double height = ruler_.LineHeight(Letters::Text);
      Reserve(height);
      Put(sheet_.margin, y_, Align::Left, Letters::Text, name);
      const auto lines = BreakLines(value, width_ - kFactNames, Letters::Text, ruler_);
      if (lines.empty()) y_ += height;
      for (const std::string& line : lines) {
        Reserve(height);
        Put(sheet_.margin + kFactNames, y_, Align::Left, Letters::Text, line);
        y_ += height;
      }
    }
    y_ += kBelowParagraph;
  }

  void Add(const Table& table) {
    const TableLayout layout = LayOut(table, width_, ruler_);
    const BrokenRow headings = BreakHeadings(table, layout, ruler_);
    std::vector<BrokenRow> rows;
    rows.reserve(table.rows.size());
    for (const TableRow& row : table.rows) rows.push_back(Break(row, layout, ruler_));
    const auto height = [&](const BrokenRow& row) { return HeightOf(row, layout, ruler_) + 2 * PaddingOf(row); };
    const auto kept = [&](std::size_t i) {
      const bool with_next =
          i + 1 < rows.size() && rows[i + 1].kind != RowKind::Plain && rows[i].kind != RowKind::Detail;
      const bool before_total = i + 1 < rows.size() && rows[i + 1].kind == RowKind::Total;
      return height(rows[i]) + (with_next || before_total ? height(rows[i + 1]) : 0);
    };

    if (!rows.empty()) Reserve(height(headings) + kept(0));
    PutRow(headings, layout);
    const double room = Bottom() - Top() - height(headings);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const double asks = kept(i) <= room ? kept(i) : height(rows[i]);
      const auto next_page = [&] {
        NextPage();
        PutRow(headings, layout);
      };
      if (y_ + asks > Bottom() && asks <= room) next_page();
      // A row that no page holds goes on to the next ones.
      while (asks > room && y_ + height(rows[i]) > Bottom()) {
        PutRow(TakeFitting(rows[i], Bottom() - y_ - 2 * PaddingOf(rows[i]), layout, ruler_), layout);
        next_page();
      }
      PutRow(rows[i], layout);
    }
    y_ += kBelowParagraph;
  }

  void PutRow(const BrokenRow& row, const TableLayout& layout) {
    const double height = HeightOf(row, layout, ruler_) + 2 * PaddingOf(row);
    if (row.kind == RowKind::Total) Here().bands.push_back({sheet_.margin, y_, width_, height});
    if (row.kind == RowKind::Plain) Here().strokes.push_back({sheet_.margin, y_, width_});
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const ColumnPlace& place = layout.columns[i];
      double top = y_ + PaddingOf(row);
      for (const CellLine& line : row.cells[i]) {
        const bool right = place.align == Align::Right;
        Put(sheet_.margin + place.left + (right ? place.width : 0), top, place.align, line.letters, line.text,
            layout.scale);
        top += ruler_.LineHeight(line.letters) * layout.scale;
      }
    }
    y_ += height;
  }

  void AddFeet() {
    const double top = sheet_.height - sheet_.margin - ruler_.LineHeight(Letters::Note);
    const std::string maker = report_.adviser.empty() ? report_.date : report_.adviser + " · " + report_.date;
    for (std::size_t i = 0; i < pages_.size(); ++i) {
      Page& page = pages_[i];
      page.strokes.push_back({sheet_.margin, top - 4, width_});
      const std::string number = "Pagina " + std::to_string(i + 1) + " van " + std::to_string(pages_.size());
      const double room = width_ - ruler_.Width(number, Letters::Note) - kFootGap;
      const auto lines = BreakLines(maker, room, Letters::Note, ruler_);
      if (!lines.empty()) page.lines.push_back({sheet_.margin, top, Align::Left, Letters::Note, 1, lines.front()});
      page.lines.push_back({sheet_.margin + width_, top, Align::Right, Letters::Note, 1, number});
    }
  }

  const Report& report_;
  const Ruler& ruler_;
  const Sheet& sheet_;
  double width_;
  double y_ = 0;
  std::vector<Page> pages_;
};

}  // namespace

std::vector<Page> Paginate(const Report& report, const Ruler& ruler, const Sheet& sheet) {
  return Composer(report, ruler, sheet).Compose();
}

}  // namespace brivane::app::report
