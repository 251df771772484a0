#include "dossier/office/RowText.h"

#include "dossier/office/OfficeText.h"
#include "dossier/office/RowsJson.h"

namespace brivane::dossier {
namespace {

/// Appends to a text. Where a row stands within a list, both of its quotes and strokes are marked once more.
class Writing {
 public:
  Writing(std::string& text, bool within) : text_(text), within_(within) {}

  void Put(const ClientTable& table, const Row& row) {
    text_ += '(';
    for (std::size_t place = 0; place < row.size(); ++place) {
      if (place > 0) text_ += ',';
      // Behind the columns stand values of any kind, as their bytes.
      const bool any = place >= table.columns.size() && !std::holds_alternative<std::monostate>(row[place]);
      if (any)
        PutBytes(Pack({row[place]}));
      else
        PutValue(row[place]);
    }
    text_ += ')';
  }

 private:
  void PutValue(const Stored& value) {
    // What stands between two commas is nothing where that is empty.
    if (const auto* text = std::get_if<std::string>(&value)) return PutText(*text);
    if (const auto* whole = std::get_if<std::int64_t>(&value)) text_ += NumberText(*whole);
    if (const auto* broken = std::get_if<double>(&value)) text_ += NumberText(*broken);
  }
  void PutText(const std::string& bytes) {
    PutMark('"');
    for (const char letter : ToOffice(bytes)) {
      if (letter == '"' || letter == '\\') PutMark('\\');
      PutMark(letter);
    }
    PutMark('"');
  }
  void PutBytes(const std::string& bytes) {
    PutMark('"');
    PutMark('\\');
    PutMark('\\');
    text_ += 'x';
    PutHex(text_, bytes);
    PutMark('"');
  }
  void PutMark(char letter) {
    if (within_ && (letter == '"' || letter == '\\')) text_ += '\\';
    text_ += letter;
  }

  std::string& text_;
  bool within_;
};

}  // namespace

std::string RowText(const ClientTable& table, const Row& row) {
  std::string text;
  Writing(text, false).Put(table, row);
  return text;
}

void ListText::Add(const ClientTable& table, const Row& row) {
  text_ += text_.empty() ? "\"" : ",\"";
  Writing(text_, true).Put(table, row);
  text_ += '"';
}

void ListText::Add(std::int64_t number) {
  if (!text_.empty()) text_ += ',';
  text_ += NumberText(number);
}

}  // namespace brivane::dossier
