#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "dossier/model/Gegevens.h"

/// The tables that hold a case, and their rows as plain values.
namespace brivane::dossier {

/// The numbers stand in the history: they never change.
enum class Tabel : std::uint8_t { Dossier = 1, Persoon = 2, Lening = 3, Kolom = 4, Periode = 5, Voorstel = 6 };
inline constexpr std::array kTabellen{Tabel::Dossier, Tabel::Persoon, Tabel::Lening,
                                      Tabel::Kolom,   Tabel::Periode, Tabel::Voorstel};

enum class Opslag : std::uint8_t { Integer, Real, Text };

struct TableColumn {
  std::string_view name;
  Opslag kind;
};

/// The columns in the order of the layout; the first is the key. A new column comes last: its place is its number in
/// the history.
struct CaseTable {
  Tabel tabel;
  std::string_view name;
  std::span<const TableColumn> columns;
};
[[nodiscard]] const CaseTable& TableOf(Tabel tabel);

/// The place of a column in its table. The name is one of that table's.
[[nodiscard]] int PlaceOf(Tabel tabel, std::string_view column);

/// A row of a proposal has no key of one number: this one names both parts.
[[nodiscard]] constexpr Sleutel ProposalKey(std::int16_t voorstel, std::int16_t Vrij_Id) {
  return Sleutel{voorstel} * 65536 + static_cast<std::uint16_t>(Vrij_Id);
}
[[nodiscard]] constexpr std::int16_t ProposalOf(Sleutel key) { return static_cast<std::int16_t>(key / 65536); }
[[nodiscard]] constexpr std::int16_t ItemOf(Sleutel key) { return static_cast<std::int16_t>(key % 65536); }

/// What stands in one field, as the file keeps it; a text is its UTF-8 bytes.
using Stored = std::variant<std::monostate, std::int64_t, double, std::string>;
/// The fields of a row by their place; the key among them.
using Row = std::vector<Stored>;

/// The same to the bit: -0 and 0 differ, and so do 1 and 1.0.
[[nodiscard]] bool Same(const Stored& one, const Stored& other);

/// A row as bytes, and back. What comes from a file may be no row: nothing then.
[[nodiscard]] std::string Pack(const Row& row);
[[nodiscard]] bool Unpack(std::string_view bytes, Row& row);

}  // namespace brivane::dossier
