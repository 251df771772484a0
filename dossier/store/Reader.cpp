#include "dossier/store/Reader.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <concepts>
#include <limits>
#include <numeric>
#include <unordered_map>

#include "dossier/store/CaseWeight.h"
#include "dossier/store/Fields.h"
#include "dossier/store/Possible.h"
#include "dossier/store/Rows.h"
#include "dossier/store/Schema.h"
#include <brivane/frame/Calendar.h>

namespace brivane::dossier {
namespace {

/// A number that does not fit what it is read into: who reads it knows the place.
struct OutOfRange {};

[[noreturn]] void Damaged(const std::string& place) { throw ContentsError(ContentsError::What::Structure, place); }

/// Runs `read`, and tells a value in it that cannot be by its place.
template <class Read, class Place> void At(Place&& place, Read&& read) {
  try {
    read();
  } catch (const OutOfRange&) {
    throw ContentsError(ContentsError::What::Value, place());
  }
}
template <class Read> void At(const char* place, Read&& read) {
  At([&] { return std::string(place); }, std::forward<Read>(read));
}

/// Adds up what is read, and stops where that is more than a case may hold.
class Scale {
 public:
  explicit Scale(StoredDossier& read) : weight_(read.weight) {}
  void Add(Tabel tabel, std::size_t texts) {
    weight_ += BareWeight(tabel) + static_cast<std::int64_t>(texts);
    if (weight_ > kMostWeight) throw ContentsError(ContentsError::What::Size, {});
  }

 private:
  std::int64_t& weight_;
};

std::size_t Bytes(const auto&) { return 0; }
std::size_t Bytes(const std::string& text) { return text.size(); }

/// Keys and places start at 1, and new ones are given out after the highest.
constexpr std::int64_t kHoogsteSleutel = std::numeric_limits<std::int64_t>::max() / 2;

/// The rows that a query finds, each read from left to right.
class Rijen {
 public:
  Rijen(const Database& database, const QString& sql) : rows_(database, sql) {}

  /// Goes to the next row; false after the last.
  [[nodiscard]] bool Volgende() {
    plaats_ = 0;
    return rows_.Next();
  }
  void Lees(std::integral auto& getal) {
    using Getal = std::remove_reference_t<decltype(getal)>;
    const std::int64_t waarde = rows_.Whole(plaats_++);
    if (waarde < std::numeric_limits<Getal>::min() || waarde > std::numeric_limits<Getal>::max()) throw OutOfRange();
    getal = static_cast<Getal>(waarde);
  }
  void Lees(double& getal) { getal = rows_.Broken(plaats_++); }
  void Lees(float& getal) {
    const double waarde = rows_.Broken(plaats_++);
    if (std::isfinite(waarde) && std::fabs(waarde) > std::numeric_limits<float>::max()) throw OutOfRange();
    getal = static_cast<float>(waarde);
  }
  void Lees(std::optional<double>& getal) {
    if (rows_.IsNull(plaats_)) {
      ++plaats_;
      return;
    }
    Lees(getal.emplace());
  }
  void Lees(host::Date& datum) {
    std::int32_t dagen = 0;
    Lees(dagen);
    datum = host::Date(dagen);
    if (datum < frame::kFirstDay || datum > frame::kLastDay) throw OutOfRange();
  }
  /// A key, or a place in an order.
  void LeesSleutel(std::int64_t& sleutel) {
    Lees(sleutel);
    if (sleutel < 1 || sleutel > kHoogsteSleutel) throw OutOfRange();
  }
  /// Whether a row's number counts on from the rows before it.
  [[nodiscard]] bool HeeftNummer(std::size_t verwacht) {
    return rows_.Whole(plaats_++) == static_cast<std::int64_t>(verwacht);
  }
  void Lees(std::string& tekst) { tekst = rows_.Bytes(plaats_++); }

 private:
  Rows rows_;
  int plaats_ = 0;
};

/// A loan while its parts are being put together.
struct Opbouw {
  LeningGegevens lening;
  /// The place of each column in the loan's order.
  std::vector<std::int64_t> volgorde;
};

/// The loans in order of their number, 0 first and none left out.
std::vector<Opbouw> LeesLeningen(Database& database, Scale& scale) {
  std::vector<Opbouw> leningen;
  Rijen rij(database, QStringLiteral("SELECT nummer, sleutel, naam FROM lening ORDER BY nummer"));
  while (rij.Volgende()) {
    const std::size_t nummer = leningen.size();
    if (!rij.HeeftNummer(nummer)) Damaged(LoanInWords(nummer) + " ontbreekt");
    // Looking up the loan of each column would take ever longer.
    if (nummer > kMostLoans) throw ContentsError(ContentsError::What::Value, TooManyLoans());
    Opbouw& opbouw = leningen.emplace_back();
    At([&] { return LoanInWords(nummer) + ", sleutel"; },
       [&] {
         rij.LeesSleutel(opbouw.lening.Sleutel);
         rij.Lees(opbouw.lening.Naam);
       });
    scale.Add(Tabel::Lening, opbouw.lening.Naam.size());
  }
  if (leningen.empty()) Damaged(LoanInWords(0) + " ontbreekt");
  return leningen;
}

/// Makes room for the columns of each loan, for no more than a case may hold.
void MaakPlaats(Database& database, std::vector<Opbouw>& leningen) {
  Rows rows(database, QStringLiteral("SELECT count(*) FROM vrijekolom WHERE lening = ?"));
  const std::int64_t meeste = kMostWeight / BareWeight(Tabel::Kolom);
  for (Opbouw& opbouw : leningen) {
    rows.Start({opbouw.lening.Sleutel});
    const auto aantal = static_cast<std::size_t>(rows.Next() ? std::min(rows.Whole(0), meeste) : 0);
    opbouw.lening.VrijeKolommen.reserve(aantal);
    opbouw.volgorde.reserve(aantal);
  }
}

/// Gives the loans their columns, in the order of the columns' keys.
void LeesKolommen(Database& database, std::vector<Opbouw>& leningen, Scale& scale) {
  MaakPlaats(database, leningen);
  QStringList namen = {QStringLiteral("lening"), QStringLiteral("volgorde"), QStringLiteral("sleutel")};
  const KolomGegevens voorbeeld;
  BezoekKolom(voorbeeld,
              [&](std::string_view naam, const auto&) { namen << QString::fromStdString(ColumnName(naam)); });
  const QString sql = QStringLiteral("SELECT %1 FROM vrijekolom").arg(namen.join(QStringLiteral(", ")));
  Rijen rij(database, sql);
  while (rij.Volgende()) {
    Sleutel sleutel = 0;
    rij.Lees(sleutel);
    const auto opbouw = std::find_if(leningen.begin(), leningen.end(),
                                     [&](const Opbouw& kandidaat) { return kandidaat.lening.Sleutel == sleutel; });
    if (opbouw == leningen.end()) Damaged("een kolom hoort bij geen lening");
    KolomGegevens& kolom = opbouw->lening.VrijeKolommen.emplace_back();
    kolom.Id = 0;
    std::string_view veld = "volgorde";
    At(
        [&] {
          const auto lening = static_cast<std::size_t>(opbouw - leningen.begin());
          // Its own number is the first of its fields.
          const std::string welke =
              kolom.Id == 0 ? "een kolom van " + LoanInWords(lening) : ColumnInWords(kolom.Id, lening);
          return welke + ", " + KolomFieldInWords(veld);
        },
        [&] {
          rij.LeesSleutel(opbouw->volgorde.emplace_back());
          veld = "sleutel";
          rij.LeesSleutel(kolom.Sleutel);
          std::size_t texts = 0;
          BezoekKolom(kolom, [&](std::string_view naam, auto& waarde) {
            veld = naam;
            rij.Lees(waarde);
            texts += Bytes(waarde);
          });
          scale.Add(Tabel::Kolom, texts);
        });
  }
}

/// A column in words, by its key.
std::string PlaceOf(const std::vector<Opbouw>& leningen, Sleutel sleutel) {
  for (std::size_t nummer = 0; nummer < leningen.size(); ++nummer) {
    for (const KolomGegevens& kolom : leningen[nummer].lening.VrijeKolommen) {
      if (kolom.Sleutel == sleutel) return ColumnInWords(kolom.Id, nummer);
    }
  }
  return "een kolom";
}

/// Gives the columns their periods, and answers the highest key.
Sleutel LeesPerioden(Database& database, std::vector<Opbouw>& leningen, Scale& scale) {
  Sleutel hoogste = 0;
  QStringList namen = {QStringLiteral("kolom"), QStringLiteral("sleutel")};
  const PeriodeGegevens voorbeeld;
  BezoekPeriode(voorbeeld,
                [&](std::string_view naam, const auto&) { namen << QString::fromStdString(ColumnName(naam)); });
  std::unordered_map<Sleutel, std::vector<PeriodeGegevens>*> perioden;
  const auto aantal = [](std::size_t som, const Opbouw& opbouw) { return som + opbouw.volgorde.size(); };
  perioden.reserve(std::accumulate(leningen.begin(), leningen.end(), std::size_t{0}, aantal));
  const QString sql = QStringLiteral("SELECT %1 FROM periode ORDER BY sleutel").arg(namen.join(QStringLiteral(", ")));
  Rijen rij(database, sql);
  while (rij.Volgende()) {
    if (perioden.empty()) {
      for (Opbouw& opbouw : leningen) {
        for (KolomGegevens& kolom : opbouw.lening.VrijeKolommen) {
          perioden.emplace(kolom.Sleutel, &kolom.Bedrag.Perioden);
        }
      }
    }
    Sleutel kolom = 0;
    rij.Lees(kolom);
    const auto eigenaar = perioden.find(kolom);
    if (eigenaar == perioden.end()) Damaged("een periode hoort bij geen kolom");
    PeriodeGegevens& periode = eigenaar->second->emplace_back();
    std::string_view veld = "sleutel";
    At(
        [&] {
          return PlaceOf(leningen, kolom) + ", " + PeriodeInWords(eigenaar->second->size()) + ", " +
                 PeriodeFieldInWords(veld);
        },
        [&] {
          rij.LeesSleutel(periode.Sleutel);
          BezoekPeriode(periode, [&](std::string_view naam, auto& waarde) {
            veld = naam;
            rij.Lees(waarde);
          });
        });
    scale.Add(Tabel::Periode, 0);
    hoogste = periode.Sleutel;
  }
  return hoogste;
}

/// Puts a loan's columns in their order, which is that of their keys unless one was moved.
void Orden(Opbouw& opbouw) {
  if (std::is_sorted(opbouw.volgorde.begin(), opbouw.volgorde.end())) return;
  std::vector<std::size_t> plaatsen(opbouw.volgorde.size());
  std::iota(plaatsen.begin(), plaatsen.end(), std::size_t{0});
  std::stable_sort(plaatsen.begin(), plaatsen.end(),
                   [&](std::size_t a, std::size_t b) { return opbouw.volgorde[a] < opbouw.volgorde[b]; });
  std::vector<KolomGegevens> geordend;
  geordend.reserve(plaatsen.size());
  for (const std::size_t plaats : plaatsen) geordend.push_back(std::move(opbouw.lening.VrijeKolommen[plaats]));
  opbouw.lening.VrijeKolommen = std::move(geordend);
}

/// Files of the versions before the rates open too, and are read before they are brought up to date.
bool HeeftTarieven(Database& database) {
  return database.Value(QStringLiteral("PRAGMA user_version")).toInt() >= kVersionWithRates;
}

void LeesInhoud(Database& database, StoredDossier& gelezen, Scale& scale) {
  std::vector<Opbouw> leningen = LeesLeningen(database, scale);
  LeesKolommen(database, leningen, scale);
  gelezen.hoogste = LeesPerioden(database, leningen, scale);
  for (Opbouw& opbouw : leningen) {
    gelezen.hoogste = std::max(gelezen.hoogste, opbouw.lening.Sleutel);
    for (const std::int64_t plaats : opbouw.volgorde) gelezen.hoogste = std::max(gelezen.hoogste, plaats);
    for (const KolomGegevens& kolom : opbouw.lening.VrijeKolommen) {
      gelezen.hoogste = std::max(gelezen.hoogste, kolom.Sleutel);
    }
    Orden(opbouw);
    gelezen.gegevens.Leningen.push_back(std::move(opbouw.lening));
  }
  gelezen.gegevens.HuidigeLening = std::move(gelezen.gegevens.Leningen.front());
  gelezen.gegevens.Leningen.erase(gelezen.gegevens.Leningen.begin());
}

void LeesUitgangspunten(Database& database, DossierGegevens& dossier) {
  std::size_t dossiers = 0;
  Rijen rij(database, QStringLiteral("SELECT enig, leeftijd FROM dossier"));
  while (rij.Volgende()) {
    if (!rij.HeeftNummer(++dossiers)) Damaged("uitgangspunten");
    At("leeftijdsgrens", [&] { rij.Lees(dossier.Leeftijd); });
  }
  if (dossiers != 1) Damaged("de uitgangspunten ontbreken");
}

void LeesPersonen(Database& database, DossierGegevens& dossier, Scale& scale) {
  Rijen rij(database,
            QStringLiteral("SELECT nummer, naam_1, naam_2, naam_3, geboortedatum, %1 FROM persoon ORDER BY nummer")
                .arg(QLatin1String(HeeftTarieven(database) ? "belastingtarief" : "NULL")));
  while (rij.Volgende()) {
    const std::size_t plaats = dossier.Personen.size();
    if (!rij.HeeftNummer(plaats + 1)) Damaged(PersonInWords(plaats) + " ontbreekt");
    PersoonGegevens& persoon = dossier.Personen.emplace_back();
    std::size_t texts = 0;
    for (std::string& naam : persoon.Naam) {
      rij.Lees(naam);
      texts += naam.size();
    }
    At([&] { return PersonInWords(plaats) + ", geboortedatum"; }, [&] { rij.Lees(persoon.Geboortedatum); });
    rij.Lees(persoon.Belastingtarief);
    scale.Add(Tabel::Persoon, texts);
  }
  if (dossier.Personen.empty()) Damaged(PersonInWords(0) + " ontbreekt");
  if (dossier.Personen.size() > 2) Damaged("meer dan twee personen");
}

void LeesMaatschappijen(Database& database, DossierGegevens& dossier, Scale& scale) {
  Rijen rij(database, QStringLiteral("SELECT code, tekst FROM maatschappij_type ORDER BY volgorde"));
  while (rij.Volgende()) {
    Code& code = dossier.MaatschappijType.emplace_back();
    rij.Lees(code.code);
    rij.Lees(code.tekst);
    scale.Add(Tabel::Dossier, code.code.size() + code.tekst.size());
  }
}

void LeesVoorstellen(Database& database, DossierGegevens& dossier, Scale& scale) {
  Rijen rij(database, QStringLiteral("SELECT voorstel, vrij_id FROM voorstel"));
  while (rij.Volgende()) {
    std::int16_t voorstel = 0;
    std::int16_t Vrij_Id = 0;
    At("voorstel", [&] { rij.Lees(voorstel); });
    if (voorstel < 1 || voorstel > 3) Damaged("voorstel " + std::to_string(voorstel));
    At([&] { return "voorstel " + std::to_string(voorstel); }, [&] { rij.Lees(Vrij_Id); });
    dossier.Voorstellen[static_cast<std::size_t>(voorstel - 1)].insert(Vrij_Id);
    scale.Add(Tabel::Voorstel, 0);
  }
}

}  // namespace

StoredDossier ReadDossier(Database& database) {
  StoredDossier gelezen;
  Scale scale(gelezen);
  LeesUitgangspunten(database, gelezen.gegevens);
  LeesPersonen(database, gelezen.gegevens, scale);
  LeesMaatschappijen(database, gelezen.gegevens, scale);
  LeesInhoud(database, gelezen, scale);
  LeesVoorstellen(database, gelezen.gegevens, scale);
  return gelezen;
}

}  // namespace brivane::dossier
