#include "dossier/store/Schema.h"

#include <QByteArray>
#include <QList>
#include <QSqlError>
#include <iterator>

namespace brivane::dossier {
namespace {

// A statement of several lines stands in parentheses: a comma that is missing shows.

// A date is a number of days since 30 December 1899, 0 for none. A flag is 0 or 1. `nummer` 0 is the loan of
// the current situation, 1 and up those of the new one. `volgorde` orders a loan's columns; period entries
// stand in the order of their keys.
constexpr const char* kVersie1[] = {
    "CREATE TABLE dossier (enig INTEGER PRIMARY KEY CHECK (enig = 1), leeftijd INTEGER NOT NULL) STRICT",
    ("CREATE TABLE persoon (nummer INTEGER PRIMARY KEY CHECK (nummer IN (1, 2)), naam_1 TEXT NOT NULL, "
     "naam_2 TEXT NOT NULL, naam_3 TEXT NOT NULL, geboortedatum INTEGER NOT NULL) STRICT"),
    "CREATE TABLE maatschappij_type (volgorde INTEGER PRIMARY KEY, code TEXT NOT NULL, tekst TEXT NOT NULL) STRICT",
    ("CREATE TABLE lening (sleutel INTEGER PRIMARY KEY, nummer INTEGER NOT NULL UNIQUE CHECK (nummer >= 0), "
     "naam TEXT NOT NULL) STRICT"),
    ("CREATE TABLE vrijekolom (sleutel INTEGER PRIMARY KEY, lening INTEGER NOT NULL REFERENCES lening, "
     "volgorde INTEGER NOT NULL, id INTEGER NOT NULL, correctie_last INTEGER NOT NULL, "
     "correctie_fiscaal INTEGER NOT NULL, heffing_bij INTEGER NOT NULL, omschrijving TEXT NOT NULL, "
     "termijn INTEGER NOT NULL, inkomen_uit_arbeid INTEGER NOT NULL, in_dagloon INTEGER NOT NULL, "
     "datum_aanvang INTEGER NOT NULL, looptijd INTEGER NOT NULL, contractvervaldatum INTEGER NOT NULL, "
     "is_product INTEGER NOT NULL, maatschappij TEXT NOT NULL, maatschappij_naam TEXT NOT NULL, "
     "productsoort INTEGER NOT NULL, productsoort_omschrijving TEXT NOT NULL, productnaam TEXT NOT NULL, "
     "uw_bemiddeling INTEGER NOT NULL, voorstel_1 TEXT NOT NULL, voorstel_2 TEXT NOT NULL, voorstel_3 TEXT NOT NULL, "
     "uitsluiten_ao INTEGER NOT NULL, uitsluiten_ww INTEGER NOT NULL, uitsluiten_langleven INTEGER NOT NULL, "
     "scenario_overlijden INTEGER NOT NULL, percentage_overgang REAL NOT NULL, einddatum_overgang INTEGER NOT NULL, "
     "eindleeftijd_overgang INTEGER NOT NULL, bedrag_naam TEXT NOT NULL, invoersoort INTEGER NOT NULL, "
     "bedrag REAL NOT NULL) STRICT"),
    "CREATE INDEX vrijekolom_lening ON vrijekolom (lening)",
    ("CREATE TABLE periode (sleutel INTEGER PRIMARY KEY, kolom INTEGER NOT NULL REFERENCES vrijekolom ON DELETE "
     "CASCADE, "
     "maand INTEGER NOT NULL DEFAULT 0, bedrag REAL NOT NULL DEFAULT 0, percentage REAL NOT NULL DEFAULT 0, "
     "korting REAL NOT NULL DEFAULT 0, eenmalig INTEGER NOT NULL DEFAULT 0) STRICT"),
    "CREATE INDEX periode_kolom ON periode (kolom)",
    ("CREATE TABLE voorstel (voorstel INTEGER NOT NULL CHECK (voorstel IN (1, 2, 3)), vrij_id INTEGER NOT NULL, "
     "PRIMARY KEY (voorstel, vrij_id)) STRICT, WITHOUT ROWID"),
};

// The states that the file went through since its log was last worked off: StateChain.h.
constexpr const char* kVersie2[] = {
    "CREATE TABLE stand (nummer INTEGER PRIMARY KEY, kenmerk INTEGER NOT NULL) STRICT",
    "INSERT INTO stand (kenmerk) VALUES (random())",
};

// The history: History.h. Nothing of it is ever changed or removed. `soort` is a StepKind, `eerste` the number of a
// step's first entry, `van` the step that is undone or redone, `terug` and `opnieuw` what is undone and redone next, 0
// for none. An entry holds the value of one field before and after, or of a whole row where `veld` is 0: NULL where
// there was none.
constexpr const char* kVersie3[] = {
    "ALTER TABLE persoon ADD COLUMN belastingtarief REAL",
    "CREATE TABLE naam (nummer INTEGER PRIMARY KEY, tekst TEXT NOT NULL UNIQUE) STRICT",
    ("CREATE TABLE stap (nummer INTEGER PRIMARY KEY, tijd INTEGER NOT NULL, medewerker INTEGER NOT NULL, "
     "soort INTEGER NOT NULL, van INTEGER NOT NULL, terug INTEGER NOT NULL, opnieuw INTEGER NOT NULL, "
     "eerste INTEGER NOT NULL, hoogste INTEGER NOT NULL) STRICT"),
    ("CREATE TABLE wijziging (nummer INTEGER PRIMARY KEY, stap INTEGER NOT NULL, tabel INTEGER NOT NULL, "
     "sleutel INTEGER NOT NULL, lening INTEGER NOT NULL, lening_naam INTEGER NOT NULL, kolom INTEGER NOT NULL, "
     "kolom_naam INTEGER NOT NULL, veld INTEGER NOT NULL, oud ANY, nieuw ANY) STRICT"),
    "CREATE TRIGGER naam_blijft BEFORE UPDATE ON naam BEGIN SELECT raise(ABORT, 'history'); END",
    "CREATE TRIGGER naam_gaat_niet BEFORE DELETE ON naam BEGIN SELECT raise(ABORT, 'history'); END",
    "CREATE TRIGGER stap_blijft BEFORE UPDATE ON stap BEGIN SELECT raise(ABORT, 'history'); END",
    "CREATE TRIGGER stap_gaat_niet BEFORE DELETE ON stap BEGIN SELECT raise(ABORT, 'history'); END",
    "CREATE TRIGGER wijziging_blijft BEFORE UPDATE ON wijziging BEGIN SELECT raise(ABORT, 'history'); END",
    "CREATE TRIGGER wijziging_gaat_niet BEFORE DELETE ON wijziging BEGIN SELECT raise(ABORT, 'history'); END",
};

struct Stap {
  const char* const* statements;
  std::size_t aantal;
};

/// Step n leads from version n to version n + 1.
constexpr Stap kStappen[kSchemaVersion] = {
    {kVersie1, std::size(kVersie1)}, {kVersie2, std::size(kVersie2)}, {kVersie3, std::size(kVersie3)}};

void Neem(Database& database, int van, int tot) {
  for (; van < tot; ++van) {
    for (std::size_t nummer = 0; nummer < kStappen[van].aantal; ++nummer) {
      database.Run(QString::fromLatin1(kStappen[van].statements[nummer]));
    }
  }
}

/// What a file says of its own layout, to the byte. The index that SQLite makes for a constraint has no words.
QList<QByteArray> Indeling(const Database& database) {
  QSqlQuery query = database.Prepare(
      QStringLiteral("SELECT CAST(type AS BLOB), CAST(name AS BLOB), CAST(tbl_name AS BLOB), CAST(sql AS BLOB) "
                     "FROM sqlite_schema ORDER BY type, name"));
  Database::Run(query);
  QList<QByteArray> indeling;
  while (query.next()) {
    for (int plaats = 0; plaats < 4; ++plaats) indeling << query.value(plaats).toByteArray();
  }
  if (query.lastError().isValid()) throw DatabaseError(query.lastError());
  return indeling;
}

/// The layouts of version 1 and up, as SQLite words them.
QList<QList<QByteArray>> Indelingen() {
  Database voorbeeld(QStringLiteral(":memory:"), Access::ReadWrite);
  QList<QList<QByteArray>> indelingen;
  for (int van = 0; van < kSchemaVersion; ++van) {
    Neem(voorbeeld, van, van + 1);
    indelingen << Indeling(voorbeeld);
  }
  return indelingen;
}

}  // namespace

void Migrate(Database& database, int version) {
  database.Run(QStringLiteral("BEGIN IMMEDIATE"));
  Neem(database, version, kSchemaVersion);
  database.Run(QStringLiteral("PRAGMA application_id = %1").arg(kApplicationId));
  database.Run(QStringLiteral("PRAGMA user_version = %1").arg(kSchemaVersion));
  database.Run(QStringLiteral("COMMIT"));
}

bool HasSchema(const Database& database, int version) {
  static const QList<QList<QByteArray>> indelingen = Indelingen();
  return Indeling(database) == indelingen.at(version - 1);
}

}  // namespace brivane::dossier
