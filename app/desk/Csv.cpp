#include "app/desk/Csv.h"

#include <array>
#include <charconv>
#include <cmath>

namespace brivane::app {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

/// A spreadsheet looks past blanks before it decides that a cell is a formula. A tab or line end counts as one that
/// begins a formula, since some programs drop it.
bool BeginsAFormula(std::string_view text) {
  if (!text.empty() && std::string_view("\t\r\n").find(text.front()) != std::string_view::npos) return true;
  const std::size_t first = text.find_first_not_of(' ');
  return first != std::string_view::npos && std::string_view("=+-@|").find(text[first]) != std::string_view::npos;
}

std::string Decimals(double number, int decimals) {
  // "-0,00" is nothing anybody wrote.
  if (std::fabs(number) < 0.5 * std::pow(10.0, -decimals)) number = 0;
  std::array<char, 400> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, decimals);
  std::string text(digits.data(), end.ptr);
  if (const std::size_t point = text.find('.'); point != std::string::npos) text[point] = ',';
  return text;
}

}  // namespace

std::string CsvText(std::string_view text) {
  std::string content = BeginsAFormula(text) ? "'" : "";
  content += text;
  if (content.find_first_of(";\"\r\n") == std::string::npos) return content;
  std::string quoted = "\"";
  for (const char sign : content) quoted += sign == '"' ? std::string(2, '"') : std::string(1, sign);
  return quoted + '"';
}

Csv::Csv() : bytes_(kMark) {}

Csv& Csv::Text(std::string_view text) { return Cell(CsvText(text)); }

Csv& Csv::Amount(double amount) { return Cell(Decimals(amount, 2)); }

Csv& Csv::Number(double number) {
  std::string text = Decimals(number, 4);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == ',') text.pop_back();
  return Cell(text);
}

Csv& Csv::Empty() { return Cell({}); }

void Csv::EndRow() {
  bytes_ += "\r\n";
  first_ = true;
}

Csv& Csv::Cell(std::string_view content) {
  if (!first_) bytes_ += ';';
  first_ = false;
  bytes_ += content;
  return *this;
}

}  // namespace brivane::app
