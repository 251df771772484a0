#include "dossier/office/OfficeTables.h"

#include <QStringList>

#include "dossier/office/RowsJson.h"

namespace brivane::dossier {
namespace {

using enum Opslag;

constexpr TableColumn kMaatschappij[] = {{"volgorde", Integer}, {"code", Text}, {"tekst", Text}};
constexpr TableColumn kNaam[] = {{"nummer", Integer}, {"tekst", Text}};
constexpr TableColumn kStap[] = {{"nummer", Integer},  {"tijd", Integer},   {"medewerker", Integer},
                                 {"soort", Integer},   {"van", Integer},    {"terug", Integer},
                                 {"opnieuw", Integer}, {"eerste", Integer}, {"hoogste", Integer}};
constexpr TableColumn kWijziging[] = {{"nummer", Integer},  {"stap", Integer},       {"tabel", Integer},
                                      {"sleutel", Integer}, {"lening", Integer},     {"lening_naam", Integer},
                                      {"kolom", Integer},   {"kolom_naam", Integer}, {"veld", Integer}};
constexpr TableColumn kZoek[] = {{"naam", Text}, {"geboortedatum", Integer}, {"tekst", Text}};
/// The values behind the columns of an entry.
constexpr const char* kValues[] = {"oud", "nieuw"};

const ClientTable kNames{"naam", kNaam};
const ClientTable kSteps{"stap", kStap};
const ClientTable kFoundBy{"zoek", kZoek};
const ClientTable kEntries{"wijziging", kWijziging, static_cast<int>(std::size(kValues))};

/// By how the file keeps it.
Stored Take(const QVariant& value) {
  if (value.isNull()) return {};
  switch (value.typeId()) {
    case QMetaType::Double: return value.toDouble();
    case QMetaType::QByteArray: return value.toByteArray().toStdString();
    default: return std::int64_t{value.toLongLong()};
  }
}

}  // namespace

std::span<const ClientTable> CaseParts() {
  static const std::vector<ClientTable> parts = [] {
    std::vector<ClientTable> all;
    all.reserve(std::size(kTabellen) + 1);
    for (const Tabel tabel : kTabellen) all.push_back({TableOf(tabel).name, TableOf(tabel).columns});
    all.push_back({"maatschappij_type", kMaatschappij});
    return all;
  }();
  return parts;
}

const ClientTable& Names() { return kNames; }
const ClientTable& Steps() { return kSteps; }
const ClientTable& Entries() { return kEntries; }
const ClientTable& FoundByParts() { return kFoundBy; }

QString ColumnsOf(const ClientTable& table) {
  QStringList names;
  for (const TableColumn& column : table.columns) names << Latin(column.name);
  for (int n = 0; n < table.values; ++n) names << QLatin1String(kValues[n]);
  return names.join(QStringLiteral(", "));
}

QString Reading(const ClientTable& table) {
  QStringList names;
  for (const TableColumn& column : table.columns) {
    names << (column.kind == Text ? QStringLiteral("CAST(%1 AS BLOB)") : QStringLiteral("%1")).arg(Latin(column.name));
  }
  for (int n = 0; n < table.values; ++n) names << QLatin1String(kValues[n]);
  return QStringLiteral("SELECT %1 FROM %2").arg(names.join(QStringLiteral(", ")), Latin(table.name));
}

Row ReadRow(const QSqlQuery& query, const ClientTable& table) {
  Row row;
  const int count = static_cast<int>(table.columns.size()) + table.values;
  row.reserve(static_cast<std::size_t>(count));
  for (int place = 0; place < count; ++place) {
    const bool text =
        place < static_cast<int>(table.columns.size()) && table.columns[static_cast<std::size_t>(place)].kind == Text;
    // An empty text is one all the same.
    row.push_back(text ? Stored(query.value(place).toByteArray().toStdString()) : Take(query.value(place)));
  }
  return row;
}

std::string JsonOf(const ClientTable& table, const Row& row) {
  const Row fields(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(table.columns.size()));
  std::string text = JsonRow(table.columns, fields);
  text.pop_back();
  for (int n = 0; n < table.values; ++n) {
    const Stored& value = row[table.columns.size() + static_cast<std::size_t>(n)];
    text += std::string(",\"") + kValues[n] + "\":";
    text += std::holds_alternative<std::monostate>(value) ? "null" : JsonBytes(Pack({value}));
  }
  return text + '}';
}

std::string JsonList(const std::vector<std::string>& objects) {
  std::string text = "[";
  for (const std::string& one : objects) {
    if (text.size() > 1) text += ',';
    text += one;
  }
  return text + ']';
}

}  // namespace brivane::dossier
