#pragma once

#include <string>
#include <string_view>

namespace brivane::app {

/// Rows for a spreadsheet as a Dutch one reads them: UTF-8 with a mark, semicolons between cells, CR and LF at the end
/// of a row, decimal commas.
///
///     Csv csv;
///     csv.Text("Kolom").Text("Bedrag").EndRow();
///     csv.Text(kolom.Omschrijving).Amount(kolom.Bedrag.Bedrag).EndRow();
///     file.write(csv.Bytes());
class Csv {
 public:
  Csv();

  /// A text; what a spreadsheet would take for a formula gets an apostrophe before it.
  Csv& Text(std::string_view text);
  /// A number with two decimals, or with as many as it has, four at most; no sign between thousands.
  Csv& Amount(double amount);
  Csv& Number(double number);
  /// A cell with nothing in it.
  Csv& Empty();
  void EndRow();

  [[nodiscard]] const std::string& Bytes() const { return bytes_; }

 private:
  Csv& Cell(std::string_view content);

  std::string bytes_;
  bool first_ = true;  ///< of its row
};

/// The content of a text cell, quoted where it must be.
[[nodiscard]] std::string CsvText(std::string_view text);

}  // namespace brivane::app
