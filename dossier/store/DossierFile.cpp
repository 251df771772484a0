#include "dossier/store/DossierFile.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <algorithm>
#include <filesystem>
#include <mutex>
#include <utility>
#include <vector>

#include "dossier/store/FileCheck.h"
#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "dossier/store/Schema.h"

namespace brivane::dossier {
namespace {

/// The loan files that this process has open. A lock on a file is lost when the process opens and closes it
/// a second time, so it must be known beforehand.
class OpenFiles {
 public:
  static OpenFiles& Instance() {
    static OpenFiles openFiles;
    return openFiles;
  }

  /// Answers false where it is there already, under whatever name.
  bool Add(const QString& pad) {
    const std::lock_guard guard(mutex_);
    const std::filesystem::path file = pad.toStdU16String();
    for (const std::filesystem::path& open : files_) {
      std::error_code niet_te_vergelijken;
      if (std::filesystem::equivalent(open, file, niet_te_vergelijken)) return false;
    }
    files_.push_back(file);
    return true;
  }

  void Remove(const QString& pad) {
    const std::lock_guard guard(mutex_);
    const auto plaats = std::find(files_.begin(), files_.end(), std::filesystem::path(pad.toStdU16String()));
    if (plaats != files_.end()) files_.erase(plaats);
  }

 private:
  std::mutex mutex_;
  std::vector<std::filesystem::path> files_;
};

/// Takes the file for this process, for as long as the connection lives, and reads it. Nothing is written before the
/// whole of it was found right.
StoredDossier NeemEnLees(Database& database, const QString& pad) {
  // From the first reading on nobody else can write.
  database.Run(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
  ControleerInhoud(database, pad);
  if (const int versie = database.Value(QStringLiteral("PRAGMA user_version")).toInt(); versie < kSchemaVersion) {
    Migrate(database, versie);
  }
  return LeesDossier(database);
}

void MaakSchrijfklaar(Database& database) {
  database.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
  database.Run(QStringLiteral("PRAGMA synchronous = FULL"));
  database.Run(QStringLiteral("PRAGMA foreign_keys = ON"));
  // Where the file cannot be written, it shows here and not at the first edit.
  database.Run(QStringLiteral("BEGIN IMMEDIATE"));
  database.Run(QStringLiteral("COMMIT"));
}

/// A half file, with what SQLite leaves beside one where the disk failed.
void Verwijder(const QString& voorlopig) {
  for (const char* deel : {"", "-journal", "-wal"}) QFile::remove(voorlopig + QLatin1String(deel));
}

OpeningProblem Probleem(const DatabaseError& error) {
  switch (error.Code()) {
    case SqliteCode::Busy: return OpeningProblem::InUse;
    case SqliteCode::ReadOnly:
    case SqliteCode::CannotOpen: return OpeningProblem::ReadOnly;
    default: return OpeningProblem::Damaged;
  }
}

}  // namespace

DossierFile::DossierFile(const QString& pad) : pad_(pad) {
  try {
    ControleerBestand(pad_);
    auto database = std::make_unique<Database>(pad_, Access::ReadWrite);
    StoredDossier gelezen = NeemEnLees(*database, pad_);
    MaakSchrijfklaar(*database);
    auto doel = std::make_shared<std::weak_ptr<dossier::Dossier>>();
    journal_ = std::make_shared<FileJournal>(std::move(database), gelezen.hoogste + 1, [doel](Database& opnieuw) {
      if (const auto dossier = doel->lock()) dossier->Herlaad(LeesDossier(opnieuw).gegevens);
    });
    auto omgeving = std::make_shared<Environment>();
    omgeving->Journal = journal_;
    omgeving->Kopteksten = std::make_shared<BerekendeKopteksten>();
    dossier_ = std::make_shared<dossier::Dossier>(std::move(gelezen.gegevens), std::move(omgeving));
    *doel = dossier_;
  } catch (const DatabaseError& error) {
    throw OpeningError(Probleem(error), pad_);
  }
}

std::unique_ptr<DossierFile> DossierFile::Open(const QString& naam) {
  // The name under which the file is given free again.
  const QString pad = QFileInfo(naam).absoluteFilePath();
  if (!OpenFiles::Instance().Add(pad)) throw OpeningError(OpeningProblem::InUse, pad);
  try {
    return std::unique_ptr<DossierFile>(new DossierFile(pad));
  } catch (...) {
    OpenFiles::Instance().Remove(pad);
    throw;
  }
}

DossierFile::~DossierFile() {
  journal_->Sluit();
  OpenFiles::Instance().Remove(pad_);
}

void DossierFile::Maak(const QString& pad, const DossierGegevens& gegevens) {
  if (QFileInfo::exists(pad)) throw OpeningError(OpeningProblem::AlreadyThere, pad);
  // Written beside its place and then given its name, so that no half file ever has it.
  const QString voorlopig = pad + QStringLiteral(".") + QUuid::createUuid().toString(QUuid::Id128);
  try {
    Database database(voorlopig, Access::ReadWrite);
    Migrate(database, 0);
    Writer(database, 1).SchrijfDossier(gegevens);
    database.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
  } catch (const DatabaseError&) {
    Verwijder(voorlopig);
    throw OpeningError(OpeningProblem::CannotCreate, pad);
  }
  if (QFile::rename(voorlopig, pad)) return;
  Verwijder(voorlopig);
  throw OpeningError(QFileInfo::exists(pad) ? OpeningProblem::AlreadyThere : OpeningProblem::CannotCreate, pad);
}

Edits& DossierFile::Bewerkingen() { return journal_->Bewerkingen(); }

std::shared_ptr<Edits> DossierFile::GedeeldeBewerkingen() { return {journal_, &journal_->Bewerkingen()}; }

std::shared_ptr<StoreTrace> DossierFile::MaakTrace(std::string_view control, std::shared_ptr<TraceListener> listener) {
  return std::make_shared<StoreTrace>(control, GedeeldeBewerkingen(), std::move(listener));
}

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
