#include "dossier/store/EditedRows.h"

#include <algorithm>

#include "dossier/store/CaseWeight.h"

namespace brivane::dossier {
namespace {

/// Bytes of a name that an entry remembers; a longer one is cut off.
constexpr std::size_t kMostName = 100;

std::int64_t Whole(const Row& row, int place) {
  const auto at = static_cast<std::size_t>(place);
  const auto* whole = at < row.size() ? std::get_if<std::int64_t>(&row[at]) : nullptr;
  return whole ? *whole : 0;
}

std::string TextOf(const Row& row, int place) {
  const auto at = static_cast<std::size_t>(place);
  const auto* text = at < row.size() ? std::get_if<std::string>(&row[at]) : nullptr;
  return text ? *text : std::string();
}

/// Not in the middle of a letter.
std::string Shortened(std::string name) {
  if (name.size() <= kMostName) return name;
  std::size_t end = kMostName;
  while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80U) --end;
  name.resize(end);
  return name + "…";
}

std::string NameOfLoan(const Row& row) {
  static const int nummer = PlaceOf(Tabel::Lening, "nummer");
  static const int naam = PlaceOf(Tabel::Lening, "naam");
  std::string name = TextOf(row, naam);
  if (!name.empty()) return Shortened(std::move(name));
  const std::int64_t number = Whole(row, nummer);
  return number == 0 ? "Huidige lening" : "Nieuwe lening " + std::to_string(number);
}

}  // namespace

void EditedRows::Touch(Tabel tabel, Sleutel key, int field) {
  const std::pair place(tabel, key);
  if (!first_) first_ = {place, field};
  if (places_.contains(place)) return;
  std::optional<Row> before = rows_.Read(tabel, key);
  places_.emplace(place, touched_.size());
  touched_.push_back({.tabel = tabel, .key = key, .before = std::move(before), .after = std::nullopt});
}

void EditedRows::TouchColumn(Sleutel kolom) {
  Touch(Tabel::Kolom, kolom, 0);
  for (const Sleutel periode : rows_.PeriodsOf(kolom)) Touch(Tabel::Periode, periode, 0);
}

void EditedRows::Added(Tabel tabel, Sleutel key) {
  const std::pair place(tabel, key);
  if (!first_) first_ = {place, 0};
  if (!places_.emplace(place, touched_.size()).second) return;
  touched_.push_back({.tabel = tabel, .key = key, .before = std::nullopt, .after = std::nullopt});
}

std::vector<Entry> EditedRows::Differences() {
  growth_ = 0;
  others_.clear();
  for (EditedRow& row : touched_) {
    row.after = rows_.Read(row.tabel, row.key);
    if (row.after) growth_ += WeightOf(row.tabel, *row.after);
    if (row.before) growth_ -= WeightOf(row.tabel, *row.before);
  }
  std::vector<Entry> entries;
  for (EditedRow& row : touched_) {
    const std::size_t before = entries.size();
    Compare(row, entries);
    row.differs = entries.size() > before;
  }
  // What the adviser did comes first.
  if (first_) {
    const auto is = [&](const Entry& entry) {
      return std::pair(entry.tabel, entry.key) == first_->first && (entry.field == 0 || entry.field == first_->second);
    };
    const auto reason = std::find_if(entries.begin(), entries.end(), is);
    if (reason != entries.end()) std::rotate(entries.begin(), reason, reason + 1);
  }
  return entries;
}

void EditedRows::Compare(const EditedRow& row, std::vector<Entry>& entries) {
  if (!row.before && !row.after) return;
  Entry entry;
  entry.tabel = row.tabel;
  entry.key = row.key;
  if (!row.before || !row.after) {
    Describe(entry, row.after ? *row.after : *row.before);
    if (row.before) entry.before = Pack(*row.before);
    if (row.after) entry.after = Pack(*row.after);
    entries.push_back(std::move(entry));
    return;
  }
  bool described = false;
  for (std::size_t place = 1; place < row.after->size(); ++place) {
    if (Same((*row.before)[place], (*row.after)[place])) continue;
    if (!std::exchange(described, true)) Describe(entry, *row.after);
    entry.field = static_cast<int>(place);
    entry.before = (*row.before)[place];
    entry.after = (*row.after)[place];
    entries.push_back(entry);
  }
}

const Row& EditedRows::Known(Tabel tabel, Sleutel key) {
  if (const auto place = places_.find({tabel, key}); place != places_.end()) {
    const EditedRow& row = touched_[place->second];
    if (row.after) return *row.after;
    if (row.before) return *row.before;
  }
  const auto [other, unknown] = others_.try_emplace({tabel, key});
  if (unknown) other->second = rows_.Read(tabel, key).value_or(Row());
  return other->second;
}

void EditedRows::Describe(Entry& entry, const Row& row) {
  static const int kolomVanPeriode = PlaceOf(Tabel::Periode, "kolom");
  static const int leningVanKolom = PlaceOf(Tabel::Kolom, "lening");
  static const int omschrijving = PlaceOf(Tabel::Kolom, "omschrijving");
  const Row* kolom = nullptr;
  switch (entry.tabel) {
    case Tabel::Lening: entry.lening = entry.key; break;
    case Tabel::Kolom:
      entry.kolom = entry.key;
      kolom = &row;
      break;
    case Tabel::Periode:
      entry.kolom = Whole(row, kolomVanPeriode);
      if (entry.kolom != 0) kolom = &Known(Tabel::Kolom, entry.kolom);
      break;
    case Tabel::Dossier:
    case Tabel::Persoon:
    case Tabel::Voorstel: break;
  }
  if (kolom != nullptr && entry.kolom != 0) {
    entry.kolom_naam = Shortened(TextOf(*kolom, omschrijving));
    entry.lening = Whole(*kolom, leningVanKolom);
  }
  if (entry.lening != 0) entry.lening_naam = NameOfLoan(Known(Tabel::Lening, entry.lening));
}

void EditedRows::Clear() {
  touched_.clear();
  places_.clear();
  others_.clear();
  first_.reset();
  growth_ = 0;
}

}  // namespace brivane::dossier
