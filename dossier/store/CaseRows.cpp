#include "dossier/store/CaseRows.h"

#include <QSqlQuery>
#include <QStringList>

namespace brivane::dossier {
namespace {

QString Latin(std::string_view text) { return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())); }

/// How a value is handed to a statement.
QString Placeholder(const TableColumn& column) {
  return column.kind == Opslag::Text ? QStringLiteral("CAST(? AS TEXT)") : QStringLiteral("?");
}

/// Which row it is.
QString Where(const CaseTable& table) {
  return table.tabel == Tabel::Voorstel ? QStringLiteral("voorstel = ? AND vrij_id = ?")
                                        : QStringLiteral("%1 = ?").arg(Latin(table.columns.front().name));
}

int BindKey(QSqlQuery& query, int place, Tabel tabel, Sleutel key) {
  if (tabel == Tabel::Voorstel) {
    query.bindValue(place++, ProposalOf(key));
    query.bindValue(place++, ItemOf(key));
  } else {
    query.bindValue(place++, static_cast<qlonglong>(key));
  }
  return place;
}

QString Selection(const CaseTable& table) {
  QStringList names;
  for (const TableColumn& column : table.columns) names << Latin(column.name);
  return QStringLiteral("SELECT %1 FROM %2 WHERE %3")
      .arg(names.join(QStringLiteral(", ")), Latin(table.name), Where(table));
}

Stored Take(const Rows& rows, int place, Opslag kind) {
  switch (kind) {
    case Opslag::Text: return std::string(rows.Bytes(place));
    case Opslag::Real: return rows.IsNull(place) ? Stored() : Stored(rows.Broken(place));
    case Opslag::Integer: break;
  }
  return rows.Whole(place);
}

/// Runs a statement that is to change exactly one row.
bool ChangesOne(QSqlQuery& query) {
  Database::Run(query);
  const bool one = query.numRowsAffected() == 1;
  query.finish();
  return one;
}

}  // namespace

QVariant AsVariant(const Stored& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return QVariant(static_cast<qlonglong>(*whole));
  if (const auto* broken = std::get_if<double>(&value)) return QVariant(*broken);
  if (const auto* text = std::get_if<std::string>(&value)) return QVariant(AlsBytes(*text));
  return {};
}

std::optional<Row> CaseRows::Read(Tabel tabel, Sleutel key) {
  const CaseTable& table = TableOf(tabel);
  auto known = rows_.find(tabel);
  if (known == rows_.end()) known = rows_.try_emplace(tabel, database_, Selection(table)).first;
  Rows& rows = known->second;
  if (tabel == Tabel::Voorstel)
    rows.Start({ProposalOf(key), ItemOf(key)});
  else
    rows.Start({key});
  std::optional<Row> row;
  if (rows.Next()) {
    row.emplace();
    row->reserve(table.columns.size());
    int place = 0;
    for (const TableColumn& column : table.columns) row->push_back(Take(rows, place++, column.kind));
  }
  rows.Stop();
  return row;
}

std::vector<Sleutel> CaseRows::PeriodsOf(Sleutel kolom) {
  if (!periods_) periods_.emplace(database_, QStringLiteral("SELECT sleutel FROM periode WHERE kolom = ? ORDER BY 1"));
  std::vector<Sleutel> keys;
  periods_->Start({kolom});
  while (periods_->Next()) keys.push_back(periods_->Whole(0));
  periods_->Stop();
  return keys;
}

bool CaseRows::Insert(Tabel tabel, const Row& row) {
  const CaseTable& table = TableOf(tabel);
  if (row.empty() || row.size() > table.columns.size()) return false;
  QStringList names;
  QStringList values;
  for (std::size_t place = 0; place < row.size(); ++place) {
    names << Latin(table.columns[place].name);
    values << Placeholder(table.columns[place]);
  }
  QSqlQuery& query =
      database_.Again(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                          .arg(Latin(table.name), names.join(QStringLiteral(", ")), values.join(QStringLiteral(", "))));
  int place = 0;
  for (const Stored& value : row) query.bindValue(place++, AsVariant(value));
  return ChangesOne(query);
}

bool CaseRows::Remove(Tabel tabel, Sleutel key) {
  const CaseTable& table = TableOf(tabel);
  QSqlQuery& query = database_.Again(QStringLiteral("DELETE FROM %1 WHERE %2").arg(Latin(table.name), Where(table)));
  BindKey(query, 0, tabel, key);
  return ChangesOne(query);
}

bool CaseRows::Update(Tabel tabel, Sleutel key, int field, const Stored& from, const Stored& to) {
  const CaseTable& table = TableOf(tabel);
  const TableColumn& column = table.columns[static_cast<std::size_t>(field)];
  QSqlQuery& query =
      database_.Again(QStringLiteral("UPDATE %1 SET %2 = %3 WHERE %4 AND %2 IS %3")
                          .arg(Latin(table.name), Latin(column.name), Placeholder(column), Where(table)));
  query.bindValue(0, AsVariant(to));
  const int place = BindKey(query, 1, tabel, key);
  query.bindValue(place, AsVariant(from));
  return ChangesOne(query);
}

void CaseRows::Close() {
  rows_.clear();
  periods_.reset();
}

}  // namespace brivane::dossier
