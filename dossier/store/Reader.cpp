#include "dossier/store/Reader.h"

#include <QSqlError>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <concepts>
#include <limits>
#include <unordered_map>

#include "dossier/store/Velden.h"

namespace brivane::dossier {
namespace {

[[noreturn]] void Beschadigd() {
  throw DatabaseError(QSqlError({}, QStringLiteral("The file holds impossible values"), QSqlError::UnknownError,
                                QString::number(static_cast<int>(SqliteCode::Corrupt))));
}

/// Reads the values of a row from left to right.
class Rij {
 public:
  explicit Rij(const QSqlQuery& query) : query_(query) {}

  void Lees(std::integral auto& getal) {
    using Getal = std::remove_reference_t<decltype(getal)>;
    const qlonglong waarde = query_.value(plaats_++).toLongLong();
    if (waarde < std::numeric_limits<Getal>::min() || waarde > std::numeric_limits<Getal>::max()) Beschadigd();
    getal = static_cast<Getal>(waarde);
  }
  void Lees(double& getal) { getal = query_.value(plaats_++).toDouble(); }
  void Lees(float& getal) {
    const double waarde = query_.value(plaats_++).toDouble();
    if (std::isfinite(waarde) && std::fabs(waarde) > std::numeric_limits<float>::max()) Beschadigd();
    getal = static_cast<float>(waarde);
  }
  void Lees(host::Date& datum) {
    std::int32_t dagen = 0;
    Lees(dagen);
    datum = host::Date(dagen);
  }
  void Lees(std::string& tekst) {
    const QByteArray bytes = query_.value(plaats_++).toByteArray();
    tekst.assign(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  }

 private:
  const QSqlQuery& query_;
  int plaats_ = 0;
};

template <class Value> QString Uitdrukking(const char* naam, const Value&) {
  const QString kolom = QString::fromLatin1(naam);
  return std::same_as<Value, std::string> ? QStringLiteral("CAST(%1 AS BLOB)").arg(kolom) : kolom;
}

/// Runs a query and hands each row to a function.
template <class Function> void VoorElkeRij(Database& database, const QString& sql, Function&& functie) {
  QSqlQuery query = database.Prepare(sql);
  Database::Run(query);
  while (query.next()) {
    Rij rij(query);
    functie(rij);
  }
  if (query.lastError().isValid()) throw DatabaseError(query.lastError());
}

/// A row's place while the parts of the file are still being put together.
struct Kolomrij {
  Sleutel lening = 0;
  std::int64_t volgorde = 0;
  KolomGegevens gegevens;
};

std::vector<Kolomrij> LeesKolommen(Database& database) {
  QStringList namen = {QStringLiteral("sleutel"), QStringLiteral("lening"), QStringLiteral("volgorde")};
  const KolomGegevens voorbeeld;
  BezoekKolom(voorbeeld, [&](const char* naam, const auto& waarde) { namen << Uitdrukking(naam, waarde); });
  std::vector<Kolomrij> kolommen;
  const QString sql = QStringLiteral("SELECT %1 FROM vrijekolom").arg(namen.join(QStringLiteral(", ")));
  VoorElkeRij(database, sql, [&](Rij& rij) {
    Kolomrij& kolom = kolommen.emplace_back();
    rij.Lees(kolom.gegevens.Sleutel);
    rij.Lees(kolom.lening);
    rij.Lees(kolom.volgorde);
    BezoekKolom(kolom.gegevens, [&](const char*, auto& waarde) { rij.Lees(waarde); });
  });
  return kolommen;
}

/// Answers the highest key.
Sleutel LeesPerioden(Database& database, std::vector<Kolomrij>& kolommen) {
  Sleutel hoogste = 0;
  QStringList namen = {QStringLiteral("kolom"), QStringLiteral("sleutel")};
  const PeriodeGegevens voorbeeld;
  BezoekPeriode(voorbeeld, [&](const char* naam, const auto& waarde) { namen << Uitdrukking(naam, waarde); });
  std::unordered_map<Sleutel, std::vector<PeriodeGegevens>*> perioden;
  const QString sql = QStringLiteral("SELECT %1 FROM periode ORDER BY sleutel").arg(namen.join(QStringLiteral(", ")));
  VoorElkeRij(database, sql, [&](Rij& rij) {
    if (perioden.empty()) {
      for (Kolomrij& kolom : kolommen) perioden.emplace(kolom.gegevens.Sleutel, &kolom.gegevens.Bedrag.Perioden);
    }
    Sleutel kolom = 0;
    rij.Lees(kolom);
    const auto eigenaar = perioden.find(kolom);
    if (eigenaar == perioden.end()) Beschadigd();
    PeriodeGegevens& periode = eigenaar->second->emplace_back();
    rij.Lees(periode.Sleutel);
    BezoekPeriode(periode, [&](const char*, auto& waarde) { rij.Lees(waarde); });
    hoogste = periode.Sleutel;
  });
  return hoogste;
}

/// The loans in order of their number, 0 first and none left out, each with its columns in their order.
void LeesLeningen(Database& database, GelezenDossier& gelezen) {
  std::vector<LeningGegevens> leningen;
  VoorElkeRij(database, QStringLiteral("SELECT nummer, sleutel, CAST(naam AS BLOB) FROM lening ORDER BY nummer"),
              [&](Rij& rij) {
                std::int16_t nummer = 0;
                rij.Lees(nummer);
                if (static_cast<std::size_t>(nummer) != leningen.size()) Beschadigd();
                LeningGegevens& lening = leningen.emplace_back();
                rij.Lees(lening.Sleutel);
                rij.Lees(lening.Naam);
                gelezen.hoogste = std::max(gelezen.hoogste, lening.Sleutel);
              });
  if (leningen.empty()) Beschadigd();

  std::vector<Kolomrij> kolommen = LeesKolommen(database);
  gelezen.hoogste = std::max(gelezen.hoogste, LeesPerioden(database, kolommen));
  const auto eerder = [](const Kolomrij& a, const Kolomrij& b) { return a.volgorde < b.volgorde; };
  if (!std::is_sorted(kolommen.begin(), kolommen.end(), eerder)) {
    std::stable_sort(kolommen.begin(), kolommen.end(), eerder);
  }
  for (Kolomrij& kolom : kolommen) {
    gelezen.hoogste = std::max({gelezen.hoogste, kolom.gegevens.Sleutel, kolom.volgorde});
    const auto lening = std::find_if(leningen.begin(), leningen.end(),
                                     [&](const LeningGegevens& kandidaat) { return kandidaat.Sleutel == kolom.lening; });
    if (lening == leningen.end()) Beschadigd();
    lening->VrijeKolommen.push_back(std::move(kolom.gegevens));
  }
  gelezen.gegevens.HuidigeLening = std::move(leningen.front());
  gelezen.gegevens.Leningen.assign(std::make_move_iterator(leningen.begin() + 1), std::make_move_iterator(leningen.end()));
}

}  // namespace

GelezenDossier LeesDossier(Database& database) {
  GelezenDossier gelezen;
  DossierGegevens& dossier = gelezen.gegevens;
  int dossiers = 0;
  VoorElkeRij(database, QStringLiteral("SELECT leeftijd FROM dossier"), [&](Rij& rij) {
    rij.Lees(dossier.Leeftijd);
    ++dossiers;
  });
  VoorElkeRij(database,
              QStringLiteral("SELECT CAST(naam_1 AS BLOB), CAST(naam_2 AS BLOB), CAST(naam_3 AS BLOB), geboortedatum "
                             "FROM persoon ORDER BY nummer"),
              [&](Rij& rij) {
                PersoonGegevens& persoon = dossier.Personen.emplace_back();
                for (std::string& naam : persoon.Naam) rij.Lees(naam);
                rij.Lees(persoon.Geboortedatum);
              });
  if (dossiers != 1 || dossier.Personen.empty()) Beschadigd();
  VoorElkeRij(database,
              QStringLiteral("SELECT CAST(code AS BLOB), CAST(tekst AS BLOB) FROM maatschappij_type ORDER BY volgorde"),
              [&](Rij& rij) {
                Code& code = dossier.MaatschappijType.emplace_back();
                rij.Lees(code.code);
                rij.Lees(code.tekst);
              });
  LeesLeningen(database, gelezen);
  VoorElkeRij(database, QStringLiteral("SELECT voorstel, vrij_id FROM voorstel"), [&](Rij& rij) {
    std::int16_t voorstel = 0;
    std::int16_t Vrij_Id = 0;
    rij.Lees(voorstel);
    rij.Lees(Vrij_Id);
    if (voorstel < 1 || voorstel > 3) Beschadigd();
    dossier.Voorstellen[static_cast<std::size_t>(voorstel - 1)].insert(Vrij_Id);
  });
  return gelezen;
}

}  // namespace brivane::dossier
