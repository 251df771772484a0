#include "dossier/store/WayBack.h"

#include <algorithm>

#include "dossier/store/HistoryTables.h"

namespace brivane::dossier {
namespace {

/// Stands for a number of a loan on the way to another one: no two loans may have the same in between.
constexpr std::int64_t kOutOfTheWay = 1'000'000;

void Must(bool done) {
  if (!done) HistoryIsBroken();
}

void Remove(CaseRows& rows, const Entry& entry) {
  const std::optional<Row> row = rows.Read(entry.tabel, entry.key);
  const auto* bytes = std::get_if<std::string>(&entry.before);
  Must(row && bytes && Pack(*row) == *bytes && rows.Remove(entry.tabel, entry.key));
}

void Add(CaseRows& rows, const Entry& entry) {
  Row row;
  const auto* bytes = std::get_if<std::string>(&entry.after);
  Must(bytes && Unpack(*bytes, row) && rows.Insert(entry.tabel, row));
}

void Update(CaseRows& rows, const Entry& entry, const Stored& from, const Stored& to) {
  Must(rows.Update(entry.tabel, entry.key, entry.field, from, to));
}

bool Renumbers(const Entry& entry) {
  static const int nummer = PlaceOf(Tabel::Lening, "nummer");
  return entry.tabel == Tabel::Lening && entry.field == nummer;
}

Stored OutOfTheWay(const Entry& entry) {
  const auto* number = std::get_if<std::int64_t>(&entry.after);
  Must(number && *number >= 0 && *number < kOutOfTheWay);
  return *number + kOutOfTheWay;
}

}  // namespace

void BringOver(CaseRows& rows, std::vector<Entry> entries) {
  // A row that another one belongs to is removed after it, and added before it.
  std::stable_sort(entries.begin(), entries.end(),
                   [](const Entry& one, const Entry& other) { return one.tabel < other.tabel; });
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
    if (entry->Removed()) Remove(rows, *entry);
  }
  for (const Entry& entry : entries) {
    if (entry.field != 0) Update(rows, entry, entry.before, Renumbers(entry) ? OutOfTheWay(entry) : entry.after);
  }
  for (const Entry& entry : entries) {
    if (Renumbers(entry)) Update(rows, entry, OutOfTheWay(entry), entry.after);
  }
  for (const Entry& entry : entries) {
    if (entry.Added()) Add(rows, entry);
  }
}

}  // namespace brivane::dossier
