#pragma once

#include <span>
#include <string>

#include "dossier/office/OfficeTables.h"

/// Rows as the server reads a row type, and lists of them as it reads an array: what an edit is sent as. The types hold
/// the columns of a table in their order.
namespace brivane::dossier {

/// One row.
[[nodiscard]] std::string RowText(const ClientTable& table, const Row& row);

/// A list of rows, or of numbers.
class ListText {
 public:
  void Add(const ClientTable& table, const Row& row);
  void Add(std::int64_t number);
  [[nodiscard]] bool IsEmpty() const { return text_.empty(); }
  [[nodiscard]] std::string Text() const { return '{' + text_ + '}'; }

 private:
  std::string text_;
};

}  // namespace brivane::dossier
