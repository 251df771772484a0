#pragma once

#include <string>
#include <string_view>

#include "dossier/model/Journal.h"

/// What of the plain values stands in the file's tables, and under which name.
namespace brivane::dossier {

/// The column of a table that holds a field: "UitsluitenAO" stands in `uitsluiten_ao`, "Voorstel1" in `voorstel_1`.
[[nodiscard]] inline std::string ColumnName(std::string_view naam) {
  const auto klein = [](char teken) { return teken >= 'a' && teken <= 'z'; };
  const auto hoofdletter = [](char teken) { return teken >= 'A' && teken <= 'Z'; };
  std::string kolom;
  for (std::size_t plaats = 0; plaats < naam.size(); ++plaats) {
    const char teken = naam[plaats];
    if (plaats > 0 && klein(naam[plaats - 1]) && !klein(teken)) kolom += '_';
    kolom += hoofdletter(teken) ? static_cast<char>(teken - 'A' + 'a') : teken;
  }
  return kolom;
}

/// Hands a visitor what the file keeps of one field; what the host words for a column itself is not kept.
template <class Item, class Waarden, class T, class Kolom, class Visitor>
void BezoekVeld(const host::ReadOnlyField<Item, Waarden, T>&, Kolom&, Visitor&) {}
template <class Item, class Waarden, class T, class Given, class Kolom, class Visitor>
void BezoekVeld(const host::Field<Item, Waarden, T, Given>& veld, Kolom& kolom, Visitor& bezoek) {
  bezoek(veld.name, kolom.*veld.value);
}
/// Three values in three columns.
template <class Item, class Waarden, class T, class Given, class Kolom, class Visitor>
void BezoekVeld(const host::NumberedField<Item, Waarden, T, Given, 3>& veld, Kolom& kolom, Visitor& bezoek) {
  for (std::size_t plaats = 0; plaats < 3; ++plaats) bezoek(kVoorstelVelden[plaats].naam, (kolom.*veld.value)[plaats]);
}

/// Hands a visitor the name and the value of every stored field of a free column but its key.
template <class Kolom, class Visitor> void BezoekKolom(Kolom& kolom, Visitor&& bezoek) {
  bezoek(std::string_view("Id"), kolom.Id);
  host::ForEach(host::kVrijeKolomFields, [&](const auto& veld) { BezoekVeld(veld, kolom, bezoek); });
  bezoek(std::string_view("BedragNaam"), kolom.Bedrag.Naam);
  bezoek(std::string_view("Invoersoort"), kolom.Bedrag.Invoersoort);
  bezoek(kBasisbedrag.naam, kolom.Bedrag.Bedrag);
}

/// The same for a period entry.
template <class Periode, class Visitor> void BezoekPeriode(Periode& periode, Visitor&& bezoek) {
  host::ForEach(host::kPeriodeFields, [&](const auto& veld) { bezoek(veld.name, periode.*veld.value); });
}

}  // namespace brivane::dossier
