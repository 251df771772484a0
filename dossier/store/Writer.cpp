#include "dossier/store/Writer.h"

#include <QStringList>
#include <concepts>

#include "dossier/store/Fields.h"
#include "dossier/store/Rows.h"

namespace brivane::dossier {
namespace {

QVariant AlsVariant(std::integral auto getal) { return QVariant(static_cast<qlonglong>(getal)); }
QVariant AlsVariant(double getal) { return QVariant(getal); }
QVariant AlsVariant(host::Date datum) { return QVariant(static_cast<qlonglong>(datum.Days())); }
QVariant AlsVariant(std::optional<double> getal) { return getal ? QVariant(*getal) : QVariant(); }
QVariant AlsVariant(const std::string& tekst) { return QVariant(AlsBytes(tekst)); }

/// Builds an INSERT that names its columns.
class Insert {
 public:
  template <class Value> void Neem(const std::string& kolom, const Value&) {
    namen_ << QString::fromStdString(kolom);
    waarden_ << (std::same_as<Value, std::string> ? QStringLiteral("CAST(? AS TEXT)") : QStringLiteral("?"));
  }
  [[nodiscard]] QString In(const char* tabel) const {
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(QString::fromLatin1(tabel), namen_.join(QStringLiteral(", ")), waarden_.join(QStringLiteral(", ")));
  }

 private:
  QStringList namen_;
  QStringList waarden_;
};

/// One INSERT of a row that is written once.
template <class... Values>
void Schrijf(Database& database, const char* tabel, std::initializer_list<const char*> namen,
             const Values&... waarden) {
  Insert insert;
  const char* const* naam = namen.begin();
  (insert.Neem(*naam++, waarden), ...);
  QSqlQuery query = database.Prepare(insert.In(tabel));
  int plaats = 0;
  (query.bindValue(plaats++, AlsVariant(waarden)), ...);
  Database::Run(query);
}

}  // namespace

void Writer::WriteDossier(DossierGegevens dossier) {
  database_.Run(QStringLiteral("BEGIN IMMEDIATE"));
  Schrijf(database_, "dossier", {"enig", "leeftijd"}, 1, dossier.Leeftijd);
  WritePersonen(dossier.Personen);
  int volgorde = 0;
  for (const Code& code : dossier.MaatschappijType) {
    Schrijf(database_, "maatschappij_type", {"volgorde", "code", "tekst"}, ++volgorde, code.code, code.tekst);
  }
  dossier.Leningen.insert(dossier.Leningen.begin(), std::move(dossier.HuidigeLening));
  int nummer = 0;
  for (LeningGegevens& lening : dossier.Leningen) {
    AddLening(nummer++, lening);
    for (KolomGegevens& kolom : lening.VrijeKolommen) AddKolom(lening.Sleutel, kolom);
  }
  std::int16_t voorstel = 0;
  for (const auto& leden : dossier.Voorstellen) {
    ++voorstel;
    for (const std::int16_t Vrij_Id : leden) Schrijf(database_, "voorstel", {"voorstel", "vrij_id"}, voorstel, Vrij_Id);
  }
  database_.Run(QStringLiteral("COMMIT"));
}

void Writer::AddLening(int nummer, LeningGegevens& lening) {
  lening.Sleutel = Volgende();
  Schrijf(database_, "lening", {"sleutel", "nummer", "naam"}, lening.Sleutel, nummer, lening.Naam);
}

void Writer::WritePersonen(const std::vector<PersoonGegevens>& personen) {
  int nummer = 0;
  for (const PersoonGegevens& persoon : personen) {
    Schrijf(database_, "persoon", {"nummer", "naam_1", "naam_2", "naam_3", "geboortedatum", "belastingtarief"},
            ++nummer, persoon.Naam[0], persoon.Naam[1], persoon.Naam[2], persoon.Geboortedatum,
            persoon.Belastingtarief);
  }
}

void Writer::AddKolom(Sleutel lening, KolomGegevens& kolom) {
  if (!kolom_) {
    Insert insert;
    insert.Neem("sleutel", kolom.Sleutel);
    insert.Neem("lening", lening);
    insert.Neem("volgorde", lening);
    BezoekKolom(kolom, [&](std::string_view naam, const auto& waarde) { insert.Neem(ColumnName(naam), waarde); });
    kolom_ = database_.Prepare(insert.In("vrijekolom"));
  }
  kolom.Sleutel = Volgende();
  int plaats = 0;
  kolom_->bindValue(plaats++, AlsVariant(kolom.Sleutel));
  kolom_->bindValue(plaats++, AlsVariant(lening));
  kolom_->bindValue(plaats++, AlsVariant(Volgende()));
  BezoekKolom(kolom, [&](std::string_view, const auto& waarde) { kolom_->bindValue(plaats++, AlsVariant(waarde)); });
  Database::Run(*kolom_);
  for (PeriodeGegevens& periode : kolom.Bedrag.Perioden) WritePeriode(kolom.Sleutel, periode);
}

void Writer::WritePeriode(Sleutel kolom, PeriodeGegevens& periode) {
  periode.Sleutel = Volgende();
  Insert insert;
  insert.Neem("sleutel", periode.Sleutel);
  insert.Neem("kolom", kolom);
  BezoekPeriode(periode, [&](std::string_view naam, const auto& waarde) { insert.Neem(ColumnName(naam), waarde); });
  QSqlQuery query = database_.Prepare(insert.In("periode"));
  int plaats = 0;
  query.bindValue(plaats++, AlsVariant(periode.Sleutel));
  query.bindValue(plaats++, AlsVariant(kolom));
  BezoekPeriode(periode, [&](std::string_view, const auto& waarde) { query.bindValue(plaats++, AlsVariant(waarde)); });
  Database::Run(query);
}

Sleutel Writer::AddPeriode(Sleutel kolom) {
  const Sleutel sleutel = Volgende();
  database_.RowsAgain(QStringLiteral("INSERT INTO periode (sleutel, kolom) VALUES (?, ?)")).Run(Row{sleutel, kolom});
  return sleutel;
}

void Writer::Sluit() { kolom_.reset(); }

}  // namespace brivane::dossier
