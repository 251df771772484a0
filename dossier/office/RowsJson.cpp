#include "dossier/office/RowsJson.h"

#include <charconv>
#include <cmath>

#include "dossier/office/OfficeText.h"

namespace brivane::dossier {
namespace {

constexpr char kDigits[] = "0123456789abcdef";

std::string Digits(auto value) {
  char digits[32];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), value);
  return {static_cast<const char*>(digits), static_cast<const char*>(end.ptr)};
}

}  // namespace

std::string NumberText(std::int64_t number) { return Digits(number); }
std::string NumberText(double number) { return Digits(number); }

void PutHex(std::string& text, std::string_view bytes) {
  for (const char byte : bytes) {
    const auto bits = static_cast<unsigned char>(byte);
    text += kDigits[bits >> 4U];
    text += kDigits[bits & 0xFU];
  }
}

std::string JsonText(std::string_view bytes) {
  std::string text = "\"";
  for (const char letter : ToOffice(bytes)) {
    if (letter == '"' || letter == '\\') {
      text += '\\';
      text += letter;
    } else if (static_cast<unsigned char>(letter) < 0x20) {
      text += "\\u00";
      PutHex(text, {&letter, 1});
    } else {
      text += letter;
    }
  }
  return text + '"';
}

std::string JsonValue(const Stored& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return NumberText(*whole);
  if (const auto* broken = std::get_if<double>(&value)) {
    // What is no number in JSON is one to the server.
    return std::isfinite(*broken) ? NumberText(*broken) : '"' + NumberText(*broken) + '"';
  }
  if (const auto* text = std::get_if<std::string>(&value)) return JsonText(*text);
  return "null";
}

std::string JsonBytes(std::string_view bytes) {
  std::string text = "\"\\\\x";
  PutHex(text, bytes);
  return text + '"';
}

std::string JsonRow(std::span<const TableColumn> columns, const Row& row) {
  std::string text = "{";
  for (std::size_t place = 0; place < row.size(); ++place) {
    if (place > 0) text += ',';
    text += '"';
    text += columns[place].name;
    text += "\":";
    text += JsonValue(row[place]);
  }
  return text + '}';
}

}  // namespace brivane::dossier
