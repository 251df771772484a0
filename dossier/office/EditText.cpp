#include "dossier/office/EditText.h"

#include <QString>
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "dossier/office/OfficeTables.h"
#include "dossier/office/RowText.h"

namespace brivane::dossier {
namespace {

QVariant AsText(const std::string& text) { return QString::fromStdString(text); }
QVariant AsText(const ListText& list) { return list.IsEmpty() ? QVariant() : AsText(list.Text()); }

const ClientTable& OfficeTable(Tabel tabel) { return CaseParts()[static_cast<std::size_t>(tabel) - 1]; }

/// Lists by the name of their table, as an object.
std::string ObjectOf(const std::map<std::string_view, std::vector<std::string>>& lists, std::string text = "{") {
  for (const auto& [name, rows] : lists) {
    if (text.size() > 1) text += ',';
    text += '"' + std::string(name) + "\":" + JsonList(rows);
  }
  return text + '}';
}

ListText ListOf(const ClientTable& table, const std::vector<Row>& rows) {
  ListText list;
  for (const Row& row : rows) list.Add(table, row);
  return list;
}

/// The rows that changed, each where the function wants it.
class Dealt {
 public:
  explicit Dealt(std::span<const EditedRow> rows) {
    for (const EditedRow& row : rows) {
      if (row.differs) Deal(row);
    }
  }

  void PutInto(EditText& text) const {
    text.columns = AsText(columns_);
    text.periods = AsText(periods_);
    text.periods_added = AsText(added_);
    text.periods_removed = AsText(removed_);
    if (rest_.empty() && gone_.empty()) return;
    text.rest = AsText(gone_.empty()   ? ObjectOf(rest_)
                       : rest_.empty() ? "{\"weg\":" + ObjectOf(gone_) + '}'
                                       : ObjectOf(rest_, "{\"weg\":" + ObjectOf(gone_)));
  }

 private:
  void Deal(const EditedRow& row) {
    const ClientTable& table = OfficeTable(row.tabel);
    const bool changed = row.before && row.after;
    if (row.tabel == Tabel::Kolom && changed) return columns_.Add(table, *row.after);
    if (row.tabel == Tabel::Periode && changed) return periods_.Add(table, *row.after);
    if (row.tabel == Tabel::Periode && row.after) return added_.Add(table, *row.after);
    if (row.tabel == Tabel::Periode) return removed_.Add(row.key);
    (row.after ? rest_ : gone_)[table.name].push_back(JsonOf(table, row.after ? *row.after : *row.before));
  }

  ListText columns_;
  ListText periods_;
  ListText added_;
  ListText removed_;
  std::map<std::string_view, std::vector<std::string>> rest_;
  std::map<std::string_view, std::vector<std::string>> gone_;
};

}  // namespace

EditText TextOf(const KeptEdit& edit, const std::optional<FoundBy>& found) {
  EditText text;
  text.step = AsText(RowText(Steps(), edit.history.step));
  text.entries = AsText(ListOf(Entries(), edit.history.entries));
  text.names = AsText(ListOf(Names(), edit.history.names));
  Dealt(edit.rows).PutInto(text);
  if (found)
    text.found = AsText(RowText(
        FoundByParts(), {found->naam.toStdString(), std::int64_t{found->geboortedatum}, found->woorden.toStdString()}));
  return text;
}

bool ChangesWords(std::span<const EditedRow> rows) {
  return std::any_of(rows.begin(), rows.end(), [](const EditedRow& row) {
    if (!row.differs) return false;
    if (row.tabel == Tabel::Persoon) return true;
    if (row.tabel != Tabel::Kolom) return false;
    if (!row.before || !row.after) return true;
    const auto columns = TableOf(row.tabel).columns;
    for (std::size_t place = 0; place < columns.size(); ++place) {
      if (columns[place].kind == Opslag::Text && !Same((*row.before)[place], (*row.after)[place])) return true;
    }
    return false;
  });
}

}  // namespace brivane::dossier
