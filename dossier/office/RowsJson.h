#pragma once

#include <span>
#include <string>
#include <string_view>

#include "dossier/store/CaseTables.h"

/// Rows as the server's functions read them: objects by the names of the columns.
namespace brivane::dossier {

/// A number to the bit.
[[nodiscard]] std::string NumberText(std::int64_t number);
[[nodiscard]] std::string NumberText(double number);
/// Appends bytes, each as two digits.
void PutHex(std::string& text, std::string_view bytes);

/// A text in quotes.
[[nodiscard]] std::string JsonText(std::string_view bytes);
/// A number to the bit, a text, or null.
[[nodiscard]] std::string JsonValue(const Stored& value);
/// The bytes as the server reads them.
[[nodiscard]] std::string JsonBytes(std::string_view bytes);
/// A row under the names of its columns; one that is shorter than the table leaves the rest out.
[[nodiscard]] std::string JsonRow(std::span<const TableColumn> columns, const Row& row);

}  // namespace brivane::dossier
