#include "dossier/store/DossierFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <QUuid>
#include <chrono>
#include <utility>

#include "dossier/store/EarlierVersion.h"
#include "dossier/store/FileCheck.h"
#include "dossier/store/FileJournal.h"
#include "dossier/store/HeldFile.h"
#include "dossier/store/LeftOver.h"
#include "dossier/store/NewFile.h"
#include "dossier/store/Possible.h"
#include "dossier/store/Reader.h"
#include "dossier/store/Schema.h"
#include "dossier/store/StateChain.h"

namespace brivane::dossier {
namespace {

/// How long what is stored may stand in the log alone.
constexpr std::chrono::milliseconds kRest{500};

OpeningProblem ProblemOf(const DatabaseError& error) {
  if (error.IsDamage()) return OpeningProblem::Damaged;
  switch (error.Code()) {
    case SqliteCode::Busy: return OpeningProblem::InUse;
    case SqliteCode::ReadOnly: return OpeningProblem::ReadOnly;
    case SqliteCode::Full: return OpeningProblem::DiskFull;
    case SqliteCode::NoMemory: return OpeningProblem::NoMemory;
    default: return OpeningProblem::DiskError;
  }
}

OpeningProblem ProblemOf(const ContentsError& error) {
  switch (error.Which()) {
    case ContentsError::What::Value: return OpeningProblem::Impossible;
    case ContentsError::What::Size: return OpeningProblem::TooLarge;
    case ContentsError::What::Structure: break;
  }
  return OpeningProblem::Damaged;
}

OpeningProblem ProblemOf(const LockError& error) {
  switch (error.Why()) {
    case LockError::Cause::InUse: return OpeningProblem::InUse;
    case LockError::Cause::Unsupported: return OpeningProblem::NoLocks;
    case LockError::Cause::Failed: break;
  }
  return OpeningProblem::DiskError;
}

/// What a file holds, and the connection that works in it.
struct Opened {
  std::unique_ptr<HeldFile> held;
  std::unique_ptr<Database> database;
  StoredDossier contents;
  /// The copy of the file before it was brought up to date, or nothing.
  QString earlier;
};

/// Nothing is written before the whole of the file was found right.
Opened OpenToWork(const QString& pad) {
  Opened opened{.held = std::make_unique<HeldFile>(pad), .database = nullptr, .contents = {}, .earlier = {}};
  CheckHeader(pad);
  CheckLeftOver(pad);
  opened.database = std::make_unique<Database>(pad, Access::Held);
  Database& database = *opened.database;
  // Without it SQLite wants to share the index of the log, which needs locks.
  database.Run(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
  opened.contents = ReadChecked(database, pad);
  database.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
  database.Run(QStringLiteral("PRAGMA synchronous = FULL"));
  database.Run(QStringLiteral("PRAGMA foreign_keys = ON"));
  // What is stored opens again: an edit that would make the file larger than that fails.
  database.Run(QStringLiteral("PRAGMA max_page_count = %1")
                   .arg(kMostFile / database.Value(QStringLiteral("PRAGMA page_size")).toLongLong()));
  // The log is worked off whole or not at all: FileJournal::WorkOff.
  database.Run(QStringLiteral("PRAGMA wal_autocheckpoint = 0"));
  // Where the file cannot be written, it shows here and not at the first edit.
  database.Run(QStringLiteral("BEGIN IMMEDIATE"));
  database.Run(QStringLiteral("COMMIT"));
  opened.held->HoldLog();
  if (const int versie = database.Value(QStringLiteral("PRAGMA user_version")).toInt(); versie < kSchemaVersion) {
    // What a killed program left goes first: the log of this step proves itself by changing nothing else.
    database.Run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    opened.earlier = KeepEarlierVersion(pad);
    Migrate(database, versie);
  } else if (IsEarlierVersion(EarlierVersionOf(pad))) {
    // Nothing was changed since it was brought up to date.
    opened.earlier = EarlierVersionOf(pad);
  }
  return opened;
}

/// Takes a file's history over to a connection in memory. One that is damaged is left out: the case is whole.
void TakeHistory(Database& memory, const QString& file) {
  memory.Run(QStringLiteral("ATTACH '%1' AS bron").arg(Database::Untouched(file).replace(u'\'', QStringLiteral("''"))));
  if (memory.Value(QStringLiteral("PRAGMA bron.user_version")).toInt() >= kVersionWithHistory) {
    memory.Run(QStringLiteral("BEGIN"));
    try {
      for (const char* table : {"naam", "stap", "wijziging"}) {
        memory.Run(QStringLiteral("INSERT INTO main.%1 SELECT * FROM bron.%1").arg(QLatin1String(table)));
      }
      memory.Run(QStringLiteral("COMMIT"));
    } catch (const DatabaseError& error) {
      memory.Run(QStringLiteral("ROLLBACK"));
      if (!error.IsDamage()) throw;
    }
  }
  memory.Run(QStringLiteral("DETACH bron"));
}

/// The whole of a file, in memory: the file itself is let go of.
Opened OpenToRead(const QString& pad) {
  const FileLock lock(pad, LockKind::Shared);
  CheckHeader(pad);
  Opened opened{.held = nullptr,
                .database = std::make_unique<Database>(QStringLiteral(":memory:"), Access::ReadWrite),
                .contents = {},
                .earlier = {}};
  Migrate(*opened.database, 0);
  const DossierGegevens contents =
      ReadUntouched(pad, [&](const QString& whole) { TakeHistory(*opened.database, whole); });
  Writer(*opened.database, 1).WriteDossier(contents);
  opened.contents = ReadDossier(*opened.database);
  opened.database->Run(QStringLiteral("PRAGMA query_only = ON"));
  return opened;
}

/// A half file, with what SQLite leaves beside one where the disk failed.
void Verwijder(const QString& voorlopig) {
  for (const char* deel : {"", "-journal", "-wal"}) QFile::remove(voorlopig + QLatin1String(deel));
}

/// Makes a file under a name that nothing has, complete or not at all.
void MakeNew(const QString& pad, const std::function<void(const QString& voorlopig)>& fill) {
  if (QFileInfo::exists(pad)) throw OpeningError(OpeningProblem::AlreadyThere, pad);
  if (LeftOverStands(pad)) throw OpeningError(OpeningProblem::LogThere, pad);
  // Written beside its place and then given its name, so that no half file ever has it.
  const QString voorlopig = pad + QStringLiteral(".") + QUuid::createUuid().toString(QUuid::Id128);
  if (!MakePrivateFile(voorlopig)) throw OpeningError(OpeningProblem::CannotCreate, pad);
  try {
    fill(voorlopig);
  } catch (const DatabaseError& error) {
    Verwijder(voorlopig);
    throw OpeningError(error.Code() == SqliteCode::Full ? OpeningProblem::DiskFull : OpeningProblem::CannotCreate, pad);
  }
  switch (RenameToNew(voorlopig, pad)) {
    case Renamed::Done: return;
    case Renamed::NameIsTaken: Verwijder(voorlopig); throw OpeningError(OpeningProblem::AlreadyThere, pad);
    case Renamed::Failed: Verwijder(voorlopig); throw OpeningError(OpeningProblem::CannotCreate, pad);
  }
}

/// A copy of an open file with its history, as a file of its own.
void CopyInto(Database& database, const QString& voorlopig) {
  database.Run(QStringLiteral("VACUUM INTO '%1'").arg(QString(voorlopig).replace(u'\'', QStringLiteral("''"))));
  Database copy(voorlopig, Access::ReadWrite);
  // A log that leads on from the file that was copied is not the copy's.
  copy.Run(QStringLiteral("BEGIN IMMEDIATE"));
  AddState(copy, FileStandsIn::Newest);
  copy.Run(QStringLiteral("COMMIT"));
  copy.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
}

}  // namespace

DossierFile::DossierFile(const QString& pad) : pad_(pad), read_only_(false) {
  try {
    CheckName(pad_);
    read_only_ = !IsWritable(pad_);
    Opened opened = read_only_ ? OpenToRead(pad_) : OpenToWork(pad_);
    auto doel = std::make_shared<std::weak_ptr<dossier::Dossier>>();
    journal_ = std::make_shared<FileJournal>(
        std::move(opened.database), opened.contents,
        [doel](DossierGegevens gegevens) {
          if (const auto dossier = doel->lock()) dossier->Herlaad(std::move(gegevens));
        },
        std::move(opened.held));
    journal_->WorkOff();
    auto omgeving = std::make_shared<Environment>();
    omgeving->Journal = journal_;
    omgeving->Kopteksten = std::make_shared<BerekendeKopteksten>();
    dossier_ = std::make_shared<dossier::Dossier>(std::move(opened.contents.gegevens), std::move(omgeving));
    *doel = dossier_;
    ForgetAtFirstEdit(opened.earlier);
    ComeToRest();
  } catch (const ContentsError& error) {
    throw OpeningError(ProblemOf(error), pad_, QString::fromStdString(error.Place()));
  } catch (const DatabaseError& error) {
    throw OpeningError(ProblemOf(error), pad_);
  } catch (const LockError& error) {
    throw OpeningError(ProblemOf(error), pad_);
  }
}

void DossierFile::ForgetAtFirstEdit(const QString& copy) {
  if (copy.isEmpty()) return;
  first_edit_ = Bewerkingen().Stored.Connect([copy, gone = false]() mutable {
    if (!std::exchange(gone, true)) QFile::remove(copy);
  });
}

void DossierFile::ComeToRest() {
  // A program without an event loop closes its files; there the log is worked off at closing.
  if (QCoreApplication::instance() == nullptr || read_only_) return;
  rest_ = std::make_unique<QTimer>();
  rest_->setSingleShot(true);
  rest_->setInterval(kRest);
  QObject::connect(rest_.get(), &QTimer::timeout, [this] {
    journal_->WorkOff();
    if (!journal_->AtRest()) rest_->start();
  });
  in_log_ = journal_->InLog.Connect([timer = rest_.get()] {
    if (!timer->isActive()) timer->start();
  });
  if (!journal_->AtRest()) rest_->start();
}

std::unique_ptr<DossierFile> DossierFile::Open(const QString& naam) {
  // The log stands beside the file itself, not beside a link to it.
  const QFileInfo info(naam);
  return std::unique_ptr<DossierFile>(
      new DossierFile(info.exists() ? info.canonicalFilePath() : info.absoluteFilePath()));
}

bool DossierFile::StandsAt(const QString& pad) { return LooksLikeALoanFile(pad); }

DossierFile::~DossierFile() {
  in_log_ = {};
  first_edit_ = {};
  journal_->Sluit();
}

QString DossierFile::Naam() const { return QFileInfo(pad_).completeBaseName(); }

bool DossierFile::InPlace() const { return journal_->InPlace(); }

void DossierFile::Maak(const QString& pad, const DossierGegevens& gegevens) {
  CheckPossible(gegevens, pad);
  MakeNew(pad, [&](const QString& voorlopig) {
    Database database(voorlopig, Access::ReadWrite);
    Migrate(database, 0);
    Writer(database, 1).WriteDossier(gegevens);
    database.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
  });
}

void DossierFile::Maak(const QString& pad, Database& tables) {
  MakeNew(pad, [&](const QString& voorlopig) { CopyInto(tables, voorlopig); });
}

void DossierFile::Kopieer(const QString& pad) const {
  // What was opened to be read stands in memory, for the case alone.
  if (read_only_) return Maak(pad, dossier_->Gegevens());
  Maak(pad, *journal_->Bestand());
}

std::shared_ptr<Edits> DossierFile::GedeeldeBewerkingen() { return {journal_, &journal_->Bewerkingen()}; }

void DossierFile::SetAuthor(const std::string& name) { journal_->SetAuthor(name); }

std::vector<Entry> DossierFile::Next(StepKind kind) const {
  return read_only_ ? std::vector<Entry>() : journal_->Next(kind);
}

std::optional<Done> DossierFile::Take(StepKind kind) { return journal_->Take(kind); }

std::unique_ptr<HistoryView> DossierFile::Geschiedenis() const {
  return std::make_unique<HistoryView>(*journal_->Bestand());
}

Database& DossierFile::Tabellen() const { return *journal_->Bestand(); }

void DossierFile::WorkOff() noexcept { journal_->WorkOff(); }

QStringList DossierFile::ControleerHeelheid() {
  Database& database = *journal_->Bestand();
  QStringList bevindingen;
  for (const QString& sql : {QStringLiteral("PRAGMA integrity_check"), QStringLiteral("PRAGMA foreign_key_check")}) {
    QSqlQuery query = database.Prepare(sql);
    Database::Run(query);
    while (query.next()) bevindingen << query.value(0).toString();
  }
  bevindingen.removeAll(QStringLiteral("ok"));
  return bevindingen;
}

}  // namespace brivane::dossier
