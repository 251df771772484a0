#include "app/office/TrialClients.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <string>

#include "dossier/model/SampleCase.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>

namespace brivane::app {
namespace {

using namespace host::codes;

/// The same numbers on every machine.
class Draw {
 public:
  explicit Draw(int seed) : state_(static_cast<std::uint64_t>(seed) * 0x9e3779b97f4a7c15U + 1) {}

  /// 0 up to, not including, `count`.
  int Below(int count) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<int>((state_ >> 33U) % static_cast<std::uint64_t>(count));
  }
  template <class Table> const auto& Of(const Table& table) {
    return table[static_cast<std::size_t>(Below(static_cast<int>(std::size(table))))];
  }

 private:
  std::uint64_t state_;
};

struct Surname {
  const char* before;
  const char* name;
};

constexpr Surname kSurnames[] = {
    {"de", "Jong"},        {"", "Jansen"},      {"de", "Vries"},      {"van den", "Berg"}, {"van", "Dijk"},
    {"", "Bakker"},        {"", "Janssen"},     {"", "Visser"},       {"", "Smit"},        {"", "Meijer"},
    {"de", "Boer"},        {"", "Mulder"},      {"de", "Groot"},      {"", "Bos"},         {"", "Vos"},
    {"", "Peters"},        {"", "Hendriks"},    {"van", "Leeuwen"},   {"", "Dekker"},      {"", "Brouwer"},
    {"de", "Wit"},         {"", "Dijkstra"},    {"", "Smits"},        {"de", "Graaf"},     {"van der", "Meer"},
    {"van der", "Linden"}, {"", "Kok"},         {"", "Jacobs"},       {"de", "Haan"},      {"", "Vermeulen"},
    {"van den", "Heuvel"}, {"van der", "Veen"}, {"van den", "Broek"}, {"", "Schouten"},    {"van", "Beek"},
    {"", "Willems"},       {"", "Hoekstra"},    {"", "Koster"},       {"", "Prins"},       {"", "Postma"},
    {"", "Öztürk"},        {"el", "Idrissi"}};

constexpr char kInitials[] = "ABCDEFGHIJKLMNPRSTW";

struct Kind {
  const char* text;
  int least;  ///< euros
  int most;
  std::int16_t last;
  std::int16_t fiscaal;
  bool contract;
};

constexpr Kind kKinds[] = {{"Kinderopvang", 180, 1150, kLast, kFiscaalNeutraal, false},
                           {"Alimentatie kinderen", 150, 900, kLast, kFiscaalNeutraal, false},
                           {"Partneralimentatie", 300, 1800, kLast, kAftrekpost, false},
                           {"Lijfrentepremie", 50, 400, kLast, kAftrekpost, false},
                           {"Onderhoud van het huis", 60, 350, kLast, kFiscaalNeutraal, false},
                           {"Private lease", 220, 560, kLast, kFiscaalNeutraal, false},
                           {"Studieschuld", 40, 260, kLast, kFiscaalNeutraal, false},
                           {"Muzieklessen aan huis", 90, 420, kBijdrage, kBijtelling, false},
                           {"Verhuur van een kamer", 250, 700, kBijdrage, kFiscaalNeutraal, false},
                           {"Dagblad", 22, 48, kLast, kFiscaalNeutraal, true},
                           {"Tennisclub", 18, 45, kLast, kFiscaalNeutraal, true},
                           {"Vakantiehuisje", 120, 480, kLast, kFiscaalNeutraal, false}};

dossier::PersoonGegevens Person(Draw& draw) {
  const std::string initials =
      std::string(1, kInitials[draw.Below(static_cast<int>(std::size(kInitials)) - 1)]) + "." +
      (draw.Below(2) == 0 ? std::string()
                          : std::string(1, kInitials[draw.Below(static_cast<int>(std::size(kInitials)) - 1)]) + ".");
  const Surname& name = draw.Of(kSurnames);
  const host::Date born =
      frame::MakeDate({.year = 1951 + draw.Below(50), .month = 1 + draw.Below(12), .day = 1 + draw.Below(28)});
  return {{initials, name.before, name.name}, born};
}

dossier::KolomGegevens Column(Draw& draw, std::int16_t Vrij_Id, const std::vector<dossier::Code>& companies) {
  const Kind& kind = draw.Of(kKinds);
  dossier::KolomGegevens kolom;
  kolom.Id = Vrij_Id;
  kolom.Omschrijving = kind.text;
  kolom.Bedrag.Naam = kind.text;
  kolom.CorrectieLast = kind.last;
  kolom.CorrectieFiscaal = kind.fiscaal;
  kolom.DatumAanvang = frame::MakeDate({.year = 2019 + draw.Below(8), .month = 1 + draw.Below(12), .day = 1});
  // Whole quarters of a euro.
  kolom.Bedrag.Bedrag = kind.least + draw.Below(4 * (kind.most - kind.least)) / 4.0;
  if (kind.contract) {
    // The last is the one that is none of the list.
    const dossier::Code& company =
        companies[static_cast<std::size_t>(draw.Below(static_cast<int>(companies.size()) - 1))];
    kolom.IsProduct = true;
    kolom.Maatschappij = company.code;
    kolom.MaatschappijNaam = company.tekst;
    kolom.Productsoort = kKrant;
    kolom.ProductsoortOmschrijving = WordsFor(kKrant, kProductsoorten);
    kolom.Looptijd = kLooptijdProduct;
    kolom.Contractvervaldatum = frame::MakeDate({.year = 2027 + draw.Below(4), .month = 12, .day = 31});
  } else {
    kolom.Looptijd = 12 * (1 + draw.Below(20));
  }
  return kolom;
}

}  // namespace

dossier::DossierGegevens TrialClient(int number) {
  Draw draw(number);
  dossier::DossierGegevens gegevens = dossier::LeegDossier();
  gegevens.Personen = {Person(draw)};
  if (draw.Below(5) < 3) gegevens.Personen.push_back(Person(draw));
  gegevens.Leeftijd = static_cast<std::int16_t>(65 + draw.Below(4));
  const int columns = 2 + draw.Below(5);
  for (int column = 1; column <= columns; ++column)
    gegevens.HuidigeLening.VrijeKolommen.push_back(
        Column(draw, static_cast<std::int16_t>(column), gegevens.MaatschappijType));
  return gegevens;
}

}  // namespace brivane::app
