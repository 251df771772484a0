#pragma once

#include <QSqlQuery>

#include "dossier/store/CaseTables.h"
#include "dossier/store/Database.h"

namespace brivane::dossier {

/// Every row of the case as the file keeps it, to the byte: each value with how it is stored. The history and the
/// states of the file are left out.
[[nodiscard]] inline std::string StoredRows(Database& database) {
  std::string all;
  const QStringList tables = {"dossier", "persoon", "maatschappij_type", "lening", "vrijekolom", "periode", "voorstel"};
  for (const QString& table : tables) {
    all += "\n[" + table.toStdString() + "]\n";
    QStringList values;
    QSqlQuery columns = database.Prepare("SELECT name FROM pragma_table_info('" + table + "') ORDER BY cid");
    Database::Run(columns);
    while (columns.next()) {
      const QString name = columns.value(0).toString();
      // A number in all its digits: the bytes of its double.
      values << "typeof(" + name + ") || ':' || CASE typeof(" + name + ") WHEN 'real' THEN printf('%!.17g', " + name +
                    ") WHEN 'integer' THEN " + name + " ELSE hex(" + name + ") END";
    }
    columns.finish();
    QSqlQuery rows = database.Prepare("SELECT coalesce(" + values.join(", 'null') || '|' || coalesce(") +
                                      ", 'null') FROM " + table + " ORDER BY 1");
    Database::Run(rows);
    while (rows.next()) all += rows.value(0).toString().toStdString() + "\n";
  }
  return all;
}

}  // namespace brivane::dossier
