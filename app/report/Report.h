#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

/// What stands in a report, as plain values: nothing here knows of paper, fonts or a printer.
///
///     const Report report = ReportOf(source);                 // Contents.h
///     const std::vector<Page> pages = Paginate(report, ruler); // Pages.h
namespace brivane::app::report {

enum class Align { Left, Right };

/// What a cell of a table says, and in smaller letters below it what belongs to that.
struct Cell {
  std::string text;
  std::vector<std::string> notes;

  friend bool operator==(const Cell&, const Cell&) = default;
};

/// How wide a column of a table is: as its contents ask without a break, up to a limit, or what the others leave.
enum class Width { Contents, Rest };

struct TableColumn {
  std::string heading;
  Align align = Align::Left;
  Width width = Width::Contents;

  friend bool operator==(const TableColumn&, const TableColumn&) = default;
};

/// A row that tells a detail or a total stays on the page of the row before it.
enum class RowKind { Plain, Detail, Total };

struct TableRow {
  RowKind kind = RowKind::Plain;
  std::vector<Cell> cells;  ///< one for each column

  friend bool operator==(const TableRow&, const TableRow&) = default;
};

struct Heading {
  std::string text;
  friend bool operator==(const Heading&, const Heading&) = default;
};

struct Paragraph {
  std::string text;
  friend bool operator==(const Paragraph&, const Paragraph&) = default;
};

/// Names with their values: "Datum: 22-11-2026".
struct Facts {
  std::vector<std::pair<std::string, std::string>> lines;
  friend bool operator==(const Facts&, const Facts&) = default;
};

/// Its headings stand again on every page that it goes on to; a row that fits on a page is not cut in two.
struct Table {
  std::vector<TableColumn> columns;
  std::vector<TableRow> rows;
  friend bool operator==(const Table&, const Table&) = default;
};

using Block = std::variant<Heading, Paragraph, Facts, Table>;

struct Report {
  std::string title;
  std::string client;   ///< whom it is about, in one line
  std::string adviser;  ///< who made it
  std::string date;     ///< the day on which it was made: "22-11-2026"
  std::vector<Block> blocks;

  friend bool operator==(const Report&, const Report&) = default;
};

}  // namespace brivane::app::report
