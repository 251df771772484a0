#pragma once

#include <QSqlQuery>
#include <QString>
#include <span>
#include <string_view>
#include <vector>

#include "dossier/store/CaseTables.h"

/// All tables of a client, in the office as in a loan file.
namespace brivane::dossier {

/// A column of an entry's value stands as bytes in the office; in a file it takes all kinds.
struct ClientTable {
  std::string_view name;
  std::span<const TableColumn> columns;
  /// How many columns behind those hold a value of any kind.
  int values = 0;
};

/// The tables of the case: those of kTabellen and the companies, a row before those that belong to it.
[[nodiscard]] std::span<const ClientTable> CaseParts();
/// Those of the history: names, steps, entries.
[[nodiscard]] const ClientTable& Names();
[[nodiscard]] const ClientTable& Steps();
[[nodiscard]] const ClientTable& Entries();
/// What a client is found by, which a file has not.
[[nodiscard]] const ClientTable& FoundByParts();

/// A name of a table or column.
[[nodiscard]] inline QString Latin(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}
/// The names of the columns, separated by commas.
[[nodiscard]] QString ColumnsOf(const ClientTable& table);

/// One row of a table of a file, from the place on.
[[nodiscard]] Row ReadRow(const QSqlQuery& query, const ClientTable& table);
/// The query that reads rows of a file's table as ReadRow wants them: texts as their bytes.
[[nodiscard]] QString Reading(const ClientTable& table);
/// A row of the office as an object for the server's functions.
[[nodiscard]] std::string JsonOf(const ClientTable& table, const Row& row);
/// Objects as a list.
[[nodiscard]] std::string JsonList(const std::vector<std::string>& objects);

}  // namespace brivane::dossier
