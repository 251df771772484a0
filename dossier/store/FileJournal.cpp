#include "dossier/store/FileJournal.h"

#include <algorithm>
#include <utility>

#include "dossier/store/CaseWeight.h"
#include "dossier/store/Fields.h"
#include "dossier/store/Possible.h"
#include <brivane/host/Error.h>

namespace brivane::dossier {
namespace {

constexpr char kBron[] = "Dossier";
constexpr int kMostEditsInLog = 500;

std::string Oorzaak(const DatabaseError& error) {
  switch (error.Code()) {
    case SqliteCode::Full: return "de schijf is vol";
    case SqliteCode::ReadOnly: return "het bestand is alleen-lezen";
    case SqliteCode::CannotOpen:
    case SqliteCode::IoError: return "het bestand kan niet worden beschreven";
    case SqliteCode::NoMemory: return "er is te weinig geheugen";
    case SqliteCode::Busy: return "het bestand is in gebruik bij een ander programma";
    case SqliteCode::Corrupt:
    case SqliteCode::NotADatabase: return "het bestand is beschadigd";
    default: return error.what();
  }
}

host::Error AlsFout(const DatabaseError& error, const std::string& oorzaak) {
  return {kStoreError + static_cast<std::int32_t>(error.Code()), "De wijziging is niet opgeslagen: " + oorzaak + ".",
          kBron};
}

host::Error AlsFout(const DatabaseError& error) { return AlsFout(error, Oorzaak(error)); }

/// Pages that the longest texts of a column would take, and something for the tables.
constexpr qlonglong kRoomForAnEdit = 256;

/// Whether the file has as many pages as it may have: SQLite says so with the code of a full disk.
bool IsAsLargeAsItMayBe(Database& database) {
  const auto number = [&](const char* sql) { return database.Value(QLatin1String(sql)).toLongLong(); };
  try {
    return number("PRAGMA page_count") + kRoomForAnEdit >= number("PRAGMA max_page_count");
  } catch (const DatabaseError&) {
    return false;
  }
}

Stored AsStored(const Waarde& waarde) {
  if (const auto* getal = std::get_if<std::int64_t>(&waarde)) return *getal;
  if (const auto* breuk = std::get_if<double>(&waarde)) return *breuk;
  return std::string(std::get<std::string_view>(waarde));
}

/// Only what opens again is stored.
void MustBePossible(bool possible) {
  if (possible) return;
  throw host::Error(kImpossibleError,
                    "De wijziging is niet opgeslagen: de waarde is groter of anders dan een dossier kan bevatten.",
                    kBron);
}

/// An UPDATE of one field of one row. The value's kind goes with the field.
QString Update(const char* tabel, std::string_view veld, const Waarde& waarde) {
  const bool tekst = std::holds_alternative<std::string_view>(waarde);
  return QStringLiteral("UPDATE %1 SET %2 = %3 WHERE sleutel = ?")
      .arg(QString::fromLatin1(tabel), QString::fromStdString(ColumnName(veld)),
           tekst ? QStringLiteral("CAST(? AS TEXT)") : QStringLiteral("?"));
}

}  // namespace

FileJournal::FileJournal(std::unique_ptr<Database> database, const StoredDossier& stored,
                         std::function<void(DossierGegevens)> adopt, std::unique_ptr<HeldFile> held,
                         std::shared_ptr<EditKeeper> keeper)
    : held_(std::move(held)),
      keeper_(std::move(keeper)),
      database_(std::move(database)),
      log_(*database_),
      // A key of what was removed is not given out again: the history still speaks of it.
      writer_(*database_, std::max(stored.hoogste, log_.HighestKey()) + 1),
      adopt_(std::move(adopt)),
      weight_(stored.weight) {}

FileJournal::~FileJournal() { Sluit(); }

void FileJournal::Sluit() {
  if (!database_) return;
  WorkOff();
  writer_.Sluit();
  log_.Close();
  kolomvelden_.clear();
  periodevelden_.clear();
  database_.reset();
  if (held_) held_->RemoveEmptyLog();
  held_.reset();
}

void FileJournal::WorkOff() noexcept {
  // A log that holds nothing of this connection's is not touched: where the file was replaced it may be another's.
  if (!database_ || edits_in_log_ == 0) return;
  newest_may_be_in_file_ = true;
  try {
    QSqlQuery query = database_->Prepare(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    Database::Run(query);
    // The first value tells whether it was kept from finishing.
    if (query.next() && query.value(0).toInt() == 0) edits_in_log_ = 0;
  } catch (...) {
    // The log still holds what it held.
  }
}

FileStandsIn FileJournal::FileBefore() const {
  if (AtRest()) return FileStandsIn::Newest;
  return newest_may_be_in_file_ ? FileStandsIn::NewestMaybe : FileStandsIn::Earlier;
}

Database& FileJournal::Open() {
  if (!database_) throw host::Error(kStoreError, "De wijziging is niet opgeslagen: het dossier is gesloten.", kBron);
  if (unreadable_) {
    throw host::Error(kStoreError, "De wijziging is niet opgeslagen: het dossier moet opnieuw worden geopend.", kBron);
  }
  return *database_;
}

Rows& FileJournal::Prepared(std::optional<Rows>& rows, const char* tabel, std::string_view veld, const Waarde& waarde) {
  if (!rows) rows.emplace(*database_, Update(tabel, veld, waarde));
  return *rows;
}

void FileJournal::RunForOne(Rows& rows, const Row& values) {
  // A column that was removed meanwhile, held by someone who was not told.
  if (rows.Run(values) != 1) throw host::Error(host::ErrorNumber::ObjectMissing);
}

template <class Change> void FileJournal::Write(Change&& change) {
  edits_.Write([&] {
    try {
      change(Open());
    } catch (const DatabaseError& error) {
      throw StoringFailed(error);
    }
  });
}

host::Error FileJournal::StoringFailed(const DatabaseError& error) {
  const bool full =
      error.Code() == SqliteCode::Full && (weight_ + log_.Growth() > kMostWeight || IsAsLargeAsItMayBe(Open()));
  return full ? AlsFout(error, "het dossier is zo groot als een dossier kan zijn") : AlsFout(error);
}

void FileJournal::Begin() {
  static_cast<void>(Open());
  if (!InPlace()) {
    throw host::Error(kMovedError,
                      "De wijziging is niet opgeslagen: het dossier is verplaatst, vervangen of verwijderd terwijl "
                      "het open was.",
                      kBron);
  }
  if (keeper_) keeper_->Begin(edits_.HasForm());
  try {
    database_->RunAgain(QStringLiteral("BEGIN IMMEDIATE"));
  } catch (const DatabaseError& error) {
    throw AlsFout(error);
  }
}

void FileJournal::Commit() {
  try {
    const std::optional<KeptEdit> edit = log_.Store(writer_.Hoogste(), edits_.MadeBy());
    if (weight_ + log_.Growth() > kMostWeight)
      throw DatabaseError(SqliteCode::Full, "The case is as large as it may be");
    AddState(*database_, FileBefore());
    if (keeper_ && edit) keeper_->Keep(*database_, *edit);
    database_->RunAgain(QStringLiteral("COMMIT"));
  } catch (const DatabaseError& error) {
    throw StoringFailed(error);
  }
  weight_ += log_.Growth();
  log_.Committed();
  newest_may_be_in_file_ = false;
  // Where nobody works it off at rest it does not grow for ever.
  if (++edits_in_log_ >= kMostEditsInLog) WorkOff();
  if (!AtRest()) InLog.Raise();
}

void FileJournal::Rollback() noexcept {
  try {
    if (database_) database_->Run(QStringLiteral("ROLLBACK"));
  } catch (const DatabaseError&) {
    // SQLite has ended the transaction itself, as it does on a full disk.
  }
  log_.RolledBack();
}

void FileJournal::Reload() noexcept {
  try {
    if (database_) adopt_(ReadDossier(*database_).gegevens);
  } catch (...) {
    // The memory may show what is not stored: nothing may be built on it any more.
    unreadable_ = true;
  }
}

void FileJournal::Refilled() {
  log_.Forget();
  StoredDossier stored = ReadDossier(*database_);
  writer_.GoOnAfter(std::max(stored.hoogste, log_.HighestKey()));
  weight_ = stored.weight;
  adopt_(std::move(stored.gegevens));
  unreadable_ = false;
}

void FileJournal::SetField(Sleutel kolom, KolomVeld veld, const Waarde& waarde) {
  Write([&](Database&) {
    MustBePossible(IsPossible(veld, waarde));
    log_.Touch(Tabel::Kolom, kolom, PlaceOf(Tabel::Kolom, ColumnName(veld.naam)));
    RunForOne(Prepared(kolomvelden_[veld.naam], "vrijekolom", veld.naam, waarde), {AsStored(waarde), kolom});
  });
}

Sleutel FileJournal::AddPeriod(Sleutel kolom) {
  // In an edit that has failed the entry is not stored; it gets a key of its own all the same.
  Sleutel sleutel = 0;
  Write([&](Database&) {
    sleutel = writer_.AddPeriode(kolom);
    log_.Added(Tabel::Periode, sleutel);
  });
  return sleutel != 0 ? sleutel : writer_.Volgende();
}

void FileJournal::SetField(Sleutel periode, PeriodeVeld veld, const Waarde& waarde) {
  Write([&](Database&) {
    MustBePossible(IsPossible(veld, waarde));
    log_.Touch(Tabel::Periode, periode, PlaceOf(Tabel::Periode, ColumnName(veld.naam)));
    RunForOne(Prepared(periodevelden_[veld.naam], "periode", veld.naam, waarde), {AsStored(waarde), periode});
  });
}

void FileJournal::RemovePeriod(Sleutel periode) {
  Write([&](Database& database) {
    log_.Touch(Tabel::Periode, periode);
    RunForOne(database.RowsAgain(QStringLiteral("DELETE FROM periode WHERE sleutel = ?")), {periode});
  });
}

void FileJournal::AddColumn(Sleutel lening, KolomGegevens& kolom) {
  Write([&](Database&) {
    MustBePossible(!FirstImpossible(kolom));
    writer_.AddKolom(lening, kolom);
    log_.Added(Tabel::Kolom, kolom.Sleutel);
    for (const PeriodeGegevens& periode : kolom.Bedrag.Perioden) log_.Added(Tabel::Periode, periode.Sleutel);
  });
}

void FileJournal::RemoveColumn(Sleutel kolom) {
  Write([&](Database& database) {
    log_.TouchColumn(kolom);
    RunForOne(database.RowsAgain(QStringLiteral("DELETE FROM vrijekolom WHERE sleutel = ?")), {kolom});
  });
}

void FileJournal::MoveColumn(Sleutel kolom, Sleutel lening, std::int16_t Id) {
  Write([&](Database& database) {
    MustBePossible(IsPossibleId(Id));
    log_.Touch(Tabel::Kolom, kolom, PlaceOf(Tabel::Kolom, "lening"));
    RunForOne(
        database.RowsAgain(QStringLiteral("UPDATE vrijekolom SET lening = ?, id = ?, volgorde = ? WHERE sleutel = ?")),
        {lening, std::int64_t{Id}, writer_.Volgende(), kolom});
  });
}

void FileJournal::AddLoan(LeningGegevens& lening) {
  Write([&](Database& database) {
    const int nummer = database.Value(QStringLiteral("SELECT max(nummer) + 1 FROM lening")).toInt();
    MustBePossible(IsPossibleText(lening.Naam) && static_cast<std::size_t>(nummer) <= kMostLoans);
    writer_.AddLening(nummer, lening);
    log_.Added(Tabel::Lening, lening.Sleutel);
  });
}

void FileJournal::RenameLoan(Sleutel lening, const std::string& naam) {
  Write([&](Database& database) {
    MustBePossible(IsPossibleText(naam));
    log_.Touch(Tabel::Lening, lening, PlaceOf(Tabel::Lening, "naam"));
    RunForOne(database.RowsAgain(QStringLiteral("UPDATE lening SET naam = CAST(? AS TEXT) WHERE sleutel = ?")),
              {naam, lening});
  });
}

void FileJournal::RemoveLoan(Sleutel lening) {
  Write([&](Database& database) {
    log_.Touch(Tabel::Lening, lening);
    const QString of = QString::number(lening);
    const auto keys = [&](const QString& sql) {
      QSqlQuery query = database.Prepare(sql.arg(of));
      Database::Run(query);
      std::vector<Sleutel> found;
      while (query.next()) found.push_back(query.value(0).toLongLong());
      return found;
    };
    for (const Sleutel kolom :
         keys(QStringLiteral("SELECT sleutel FROM vrijekolom WHERE lening = %1 ORDER BY sleutel"))) {
      log_.TouchColumn(kolom);
    }
    // In the order of their numbers: each takes the place that the one before it has left.
    const std::vector<Sleutel> later = keys(QStringLiteral(
        "SELECT sleutel FROM lening WHERE nummer > (SELECT nummer FROM lening WHERE sleutel = %1) ORDER BY "
        "nummer"));
    for (const Sleutel other : later) log_.Touch(Tabel::Lening, other);
    database.Run(QStringLiteral("DELETE FROM vrijekolom WHERE lening = %1").arg(of));
    RunForOne(database.RowsAgain(QStringLiteral("DELETE FROM lening WHERE sleutel = ? AND nummer > 0")), {lening});
    for (const Sleutel other : later) {
      database.Run(QStringLiteral("UPDATE lening SET nummer = nummer - 1 WHERE sleutel = %1").arg(other));
    }
  });
}

void FileJournal::SetPersons(const std::vector<PersoonGegevens>& personen) {
  Write([&](Database& database) {
    for (const PersoonGegevens& persoon : personen) MustBePossible(!FirstImpossible(persoon));
    for (const Sleutel nummer : {1, 2}) log_.Touch(Tabel::Persoon, nummer);
    database.Run(QStringLiteral("DELETE FROM persoon"));
    writer_.WritePersonen(personen);
  });
}

void FileJournal::SetAgeLimit(std::int16_t leeftijd) {
  Write([&](Database& database) {
    MustBePossible(IsPossibleAgeLimit(leeftijd));
    log_.Touch(Tabel::Dossier, 1, PlaceOf(Tabel::Dossier, "leeftijd"));
    database.Run(QStringLiteral("UPDATE dossier SET leeftijd = %1").arg(leeftijd));
  });
}

void FileJournal::SetProposal(std::int16_t voorstel, std::int16_t Vrij_Id, Membership lidmaatschap) {
  Write([&](Database& database) {
    MustBePossible(lidmaatschap == Membership::No || IsPossibleId(Vrij_Id));
    log_.Touch(Tabel::Voorstel, ProposalKey(voorstel, Vrij_Id));
    RunForOne(database.RowsAgain(lidmaatschap == Membership::Yes
                                     ? QStringLiteral("INSERT INTO voorstel (voorstel, vrij_id) VALUES (?, ?)")
                                     : QStringLiteral("DELETE FROM voorstel WHERE voorstel = ? AND vrij_id = ?")),
              {std::int64_t{voorstel}, std::int64_t{Vrij_Id}});
  });
}

std::int64_t FileJournal::NextStep(StepKind kind) {
  try {
    static_cast<void>(Open());
    return log_.Next(kind);
  } catch (const DatabaseError& error) {
    throw AlsFout(error);
  }
}

std::vector<Entry> FileJournal::Next(StepKind kind) {
  try {
    static_cast<void>(Open());
    const std::int64_t step = log_.Step(kind);
    return step == 0 ? std::vector<Entry>() : log_.EntriesOf(step);
  } catch (const DatabaseError& error) {
    throw AlsFout(error);
  }
}

std::optional<Done> FileJournal::Take(StepKind kind) {
  std::optional<Done> done;
  DossierGegevens contents;
  edits_.InOneEdit([&] {
    Write([&](Database& database) {
      if (log_.Next(kind) == 0) return;
      done = log_.Apply(kind);
      // The history is looked at here and not when the file is opened: what it brings back is held to the same rules.
      StoredDossier read = ReadDossier(database);
      MustBePossible(!FirstImpossible(read.gegevens));
      contents = std::move(read.gegevens);
    });
  });
  if (done) adopt_(std::move(contents));
  return done;
}

}  // namespace brivane::dossier
