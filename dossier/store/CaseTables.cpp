#include "dossier/store/CaseTables.h"

#include <algorithm>
#include <bit>

namespace brivane::dossier {
namespace {

using enum Opslag;

constexpr TableColumn kDossier[] = {{"enig", Integer}, {"leeftijd", Integer}};
constexpr TableColumn kPersoon[] = {{"nummer", Integer}, {"naam_1", Text},           {"naam_2", Text},
                                    {"naam_3", Text},    {"geboortedatum", Integer}, {"belastingtarief", Real}};
constexpr TableColumn kLening[] = {{"sleutel", Integer}, {"nummer", Integer}, {"naam", Text}};
constexpr TableColumn kKolom[] = {{"sleutel", Integer},
                                  {"lening", Integer},
                                  {"volgorde", Integer},
                                  {"id", Integer},
                                  {"correctie_last", Integer},
                                  {"correctie_fiscaal", Integer},
                                  {"heffing_bij", Integer},
                                  {"omschrijving", Text},
                                  {"termijn", Integer},
                                  {"inkomen_uit_arbeid", Integer},
                                  {"in_dagloon", Integer},
                                  {"datum_aanvang", Integer},
                                  {"looptijd", Integer},
                                  {"contractvervaldatum", Integer},
                                  {"is_product", Integer},
                                  {"maatschappij", Text},
                                  {"maatschappij_naam", Text},
                                  {"productsoort", Integer},
                                  {"productsoort_omschrijving", Text},
                                  {"productnaam", Text},
                                  {"uw_bemiddeling", Integer},
                                  {"voorstel_1", Text},
                                  {"voorstel_2", Text},
                                  {"voorstel_3", Text},
                                  {"uitsluiten_ao", Integer},
                                  {"uitsluiten_ww", Integer},
                                  {"uitsluiten_langleven", Integer},
                                  {"scenario_overlijden", Integer},
                                  {"percentage_overgang", Real},
                                  {"einddatum_overgang", Integer},
                                  {"eindleeftijd_overgang", Integer},
                                  {"bedrag_naam", Text},
                                  {"invoersoort", Integer},
                                  {"bedrag", Real}};
constexpr TableColumn kPeriode[] = {{"sleutel", Integer}, {"kolom", Integer}, {"maand", Integer},   {"bedrag", Real},
                                    {"percentage", Real}, {"korting", Real},  {"eenmalig", Integer}};
constexpr TableColumn kVoorstel[] = {{"voorstel", Integer}, {"vrij_id", Integer}};

constexpr CaseTable kTables[] = {{Tabel::Dossier, "dossier", kDossier}, {Tabel::Persoon, "persoon", kPersoon},
                                 {Tabel::Lening, "lening", kLening},    {Tabel::Kolom, "vrijekolom", kKolom},
                                 {Tabel::Periode, "periode", kPeriode}, {Tabel::Voorstel, "voorstel", kVoorstel}};

// The bytes of a row: for each field a mark, and for all but nothing eight bytes, lowest first: a number, or how many
// bytes of text follow. Small whole numbers take one byte after a mark of their own.
constexpr char kNothing = 'n';
constexpr char kSmall = 's';
constexpr char kWhole = 'i';
constexpr char kBroken = 'r';
constexpr char kText = 't';
constexpr std::size_t kWide = 8;
constexpr std::int64_t kMostSmall = 127;

void Put(std::string& bytes, std::uint64_t bits) {
  for (std::size_t n = 0; n < kWide; ++n) bytes += static_cast<char>(static_cast<unsigned char>(bits >> (8 * n)));
}

bool Take(std::string_view& bytes, std::uint64_t& bits) {
  if (bytes.size() < kWide) return false;
  bits = 0;
  for (std::size_t n = 0; n < kWide; ++n) bits |= std::uint64_t{static_cast<unsigned char>(bytes[n])} << (8 * n);
  bytes.remove_prefix(kWide);
  return true;
}

void PutValue(std::string& bytes, const Stored& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    if (*whole >= 0 && *whole <= kMostSmall) {
      bytes += kSmall;
      bytes += static_cast<char>(*whole);
      return;
    }
    bytes += kWhole;
    Put(bytes, static_cast<std::uint64_t>(*whole));
  } else if (const auto* broken = std::get_if<double>(&value)) {
    bytes += kBroken;
    Put(bytes, std::bit_cast<std::uint64_t>(*broken));
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    bytes += kText;
    Put(bytes, text->size());
    bytes += *text;
  } else {
    bytes += kNothing;
  }
}

bool TakeValue(std::string_view& bytes, Stored& value) {
  const char mark = bytes.front();
  bytes.remove_prefix(1);
  if (mark == kNothing) {
    value = std::monostate();
    return true;
  }
  if (mark == kSmall) {
    if (bytes.empty()) return false;
    value = std::int64_t{static_cast<unsigned char>(bytes.front())};
    bytes.remove_prefix(1);
    return true;
  }
  std::uint64_t bits = 0;
  if (!Take(bytes, bits)) return false;
  switch (mark) {
    case kWhole: value = static_cast<std::int64_t>(bits); return true;
    case kBroken: value = std::bit_cast<double>(bits); return true;
    case kText:
      if (bits > bytes.size()) return false;
      value = std::string(bytes.substr(0, bits));
      bytes.remove_prefix(bits);
      return true;
    default: return false;
  }
}

}  // namespace

const CaseTable& TableOf(Tabel tabel) { return kTables[static_cast<std::size_t>(tabel) - 1]; }

int PlaceOf(Tabel tabel, std::string_view column) {
  const auto columns = TableOf(tabel).columns;
  const auto place =
      std::find_if(columns.begin(), columns.end(), [&](const TableColumn& one) { return one.name == column; });
  return static_cast<int>(place - columns.begin());
}

bool Same(const Stored& one, const Stored& other) {
  const auto* a = std::get_if<double>(&one);
  const auto* b = std::get_if<double>(&other);
  if (a && b) return std::bit_cast<std::uint64_t>(*a) == std::bit_cast<std::uint64_t>(*b);
  return one == other;
}

std::string Pack(const Row& row) {
  std::string bytes;
  for (const Stored& value : row) PutValue(bytes, value);
  return bytes;
}

bool Unpack(std::string_view bytes, Row& row) {
  row.clear();
  while (!bytes.empty()) {
    if (!TakeValue(bytes, row.emplace_back())) return false;
  }
  return true;
}

}  // namespace brivane::dossier
