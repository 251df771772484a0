#include "dossier/store/FileJournal.h"

#include <utility>

#include "dossier/store/Fields.h"
#include "host/Error.h"

namespace brivane::dossier {
namespace {

constexpr char kBron[] = "Dossier";

std::string Oorzaak(const DatabaseError& error) {
  switch (error.Code()) {
    case SqliteCode::Full: return "de schijf is vol";
    case SqliteCode::ReadOnly: return "het bestand is alleen-lezen";
    case SqliteCode::IoError: return "het bestand kan niet worden beschreven";
    case SqliteCode::Busy: return "het bestand is in gebruik bij een ander programma";
    case SqliteCode::Corrupt:
    case SqliteCode::NotADatabase: return "het bestand is beschadigd";
    default: return error.what();
  }
}

host::Error AlsFout(const DatabaseError& error) {
  return {kStoreError + static_cast<std::int32_t>(error.Code()),
          "De wijziging is niet opgeslagen: " + Oorzaak(error) + ".", kBron};
}

QVariant AlsVariant(const Waarde& waarde) {
  if (const auto* getal = std::get_if<std::int64_t>(&waarde)) return QVariant(static_cast<qlonglong>(*getal));
  if (const auto* breuk = std::get_if<double>(&waarde)) return QVariant(*breuk);
  return QVariant(AlsBytes(std::get<std::string_view>(waarde)));
}

/// An UPDATE of one field of one row. The value's kind goes with the field.
QString Update(const char* tabel, std::string_view veld, const Waarde& waarde) {
  const bool tekst = std::holds_alternative<std::string_view>(waarde);
  return QStringLiteral("UPDATE %1 SET %2 = %3 WHERE sleutel = ?")
      .arg(QString::fromLatin1(tabel), QString::fromStdString(ColumnName(veld)),
           tekst ? QStringLiteral("CAST(? AS TEXT)") : QStringLiteral("?"));
}

}  // namespace

FileJournal::FileJournal(std::unique_ptr<Database> database, Sleutel eerste, std::function<void(Database&)> reload)
    : database_(std::move(database)), writer_(*database_, eerste), reload_(std::move(reload)) {}

FileJournal::~FileJournal() { Sluit(); }

void FileJournal::Sluit() {
  if (!database_) return;
  writer_.Sluit();
  kolomvelden_.clear();
  periodevelden_.clear();
  verwijder_periode_.reset();
  begin_.reset();
  commit_.reset();
  database_.reset();
}

Database& FileJournal::Open() {
  if (!database_) throw host::Error(kStoreError, "De wijziging is niet opgeslagen: het dossier is gesloten.", kBron);
  if (unreadable_) {
    throw host::Error(kStoreError, "De wijziging is niet opgeslagen: het dossier moet opnieuw worden geopend.", kBron);
  }
  return *database_;
}

QSqlQuery& FileJournal::Prepared(std::optional<QSqlQuery>& query, const QString& sql) {
  if (!query) query = database_->Prepare(sql);
  return *query;
}

void FileJournal::RunForOne(QSqlQuery& query) {
  Database::Run(query);
  const int rijen = query.numRowsAffected();
  query.finish();
  // A column that was removed meanwhile, held by someone who was not told.
  if (rijen != 1) throw host::Error(host::ErrorNumber::ObjectMissing);
}

template <class Change> void FileJournal::Write(Change&& change) {
  edits_.Write([&] {
    try {
      change(Open());
    } catch (const DatabaseError& error) {
      throw AlsFout(error);
    }
  });
}

void FileJournal::Begin() {
  static_cast<void>(Open());
  try {
    Database::Run(Prepared(begin_, QStringLiteral("BEGIN IMMEDIATE")));
  } catch (const DatabaseError& error) {
    throw AlsFout(error);
  }
}

void FileJournal::Commit() {
  try {
    Database::Run(Prepared(commit_, QStringLiteral("COMMIT")));
  } catch (const DatabaseError& error) {
    throw AlsFout(error);
  }
}

void FileJournal::Rollback() noexcept {
  try {
    if (database_) database_->Run(QStringLiteral("ROLLBACK"));
  } catch (const DatabaseError&) {
    // SQLite has ended the transaction itself, as it does on a full disk.
  }
}

void FileJournal::Reload() noexcept {
  try {
    if (database_) reload_(*database_);
  } catch (...) {
    // The memory may show what is not stored: nothing may be built on it any more.
    unreadable_ = true;
  }
}

void FileJournal::SetField(Sleutel kolom, KolomVeld veld, const Waarde& waarde) {
  Write([&](Database&) {
    QSqlQuery& query = Prepared(kolomvelden_[veld.naam], Update("vrijekolom", veld.naam, waarde));
    query.bindValue(0, AlsVariant(waarde));
    query.bindValue(1, static_cast<qlonglong>(kolom));
    RunForOne(query);
  });
}

Sleutel FileJournal::AddPeriod(Sleutel kolom) {
  // In an edit that has failed the entry is not stored; it gets a key of its own all the same.
  Sleutel sleutel = 0;
  Write([&](Database&) { sleutel = writer_.VoegPeriodeToe(kolom); });
  return sleutel != 0 ? sleutel : writer_.Volgende();
}

void FileJournal::SetField(Sleutel periode, PeriodeVeld veld, const Waarde& waarde) {
  Write([&](Database&) {
    QSqlQuery& query = Prepared(periodevelden_[veld.naam], Update("periode", veld.naam, waarde));
    query.bindValue(0, AlsVariant(waarde));
    query.bindValue(1, static_cast<qlonglong>(periode));
    RunForOne(query);
  });
}

void FileJournal::RemovePeriod(Sleutel periode) {
  Write([&](Database&) {
    QSqlQuery& query = Prepared(verwijder_periode_, QStringLiteral("DELETE FROM periode WHERE sleutel = ?"));
    query.bindValue(0, static_cast<qlonglong>(periode));
    RunForOne(query);
  });
}

void FileJournal::AddColumn(Sleutel lening, KolomGegevens& kolom) {
  Write([&](Database&) { writer_.VoegKolomToe(lening, kolom); });
}

void FileJournal::RemoveColumn(Sleutel kolom) {
  Write([&](Database& database) {
    QSqlQuery query = database.Prepare(QStringLiteral("DELETE FROM vrijekolom WHERE sleutel = ?"));
    query.bindValue(0, static_cast<qlonglong>(kolom));
    RunForOne(query);
  });
}

void FileJournal::MoveColumn(Sleutel kolom, Sleutel lening, std::int16_t Id) {
  Write([&](Database& database) {
    QSqlQuery query =
        database.Prepare(QStringLiteral("UPDATE vrijekolom SET lening = ?, id = ?, volgorde = ? WHERE sleutel = ?"));
    query.bindValue(0, static_cast<qlonglong>(lening));
    query.bindValue(1, static_cast<qlonglong>(Id));
    query.bindValue(2, static_cast<qlonglong>(writer_.Volgende()));
    query.bindValue(3, static_cast<qlonglong>(kolom));
    RunForOne(query);
  });
}

void FileJournal::AddLoan(LeningGegevens& lening) {
  Write([&](Database& database) {
    const int nummer = database.Value(QStringLiteral("SELECT max(nummer) + 1 FROM lening")).toInt();
    writer_.VoegLeningToe(nummer, lening);
  });
}

void FileJournal::SetPersons(const std::vector<PersoonGegevens>& personen) {
  Write([&](Database& database) {
    database.Run(QStringLiteral("DELETE FROM persoon"));
    writer_.SchrijfPersonen(personen);
  });
}

void FileJournal::SetAgeLimit(std::int16_t leeftijd) {
  Write([&](Database& database) { database.Run(QStringLiteral("UPDATE dossier SET leeftijd = %1").arg(leeftijd)); });
}

void FileJournal::SetProposal(std::int16_t voorstel, std::int16_t Vrij_Id, Membership lidmaatschap) {
  Write([&](Database& database) {
    QSqlQuery query = database.Prepare(lidmaatschap == Membership::Yes
                                           ? QStringLiteral("INSERT INTO voorstel (voorstel, vrij_id) VALUES (?, ?)")
                                           : QStringLiteral("DELETE FROM voorstel WHERE voorstel = ? AND vrij_id = ?"));
    query.bindValue(0, static_cast<qlonglong>(voorstel));
    query.bindValue(1, static_cast<qlonglong>(Vrij_Id));
    RunForOne(query);
  });
}

}  // namespace brivane::dossier
