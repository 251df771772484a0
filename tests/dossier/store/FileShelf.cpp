#include <sys/resource.h>

#include <QtEndian>
#include <csignal>

#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/Shelf.h"
#include "tests/dossier/store/StoredRows.h"

namespace brivane::dossier {
namespace {

/// Lets no file of this process grow past a size: writing fails as on a full disk.
class FullDisk final : public Shelf::NoRoom {
 public:
  explicit FullDisk(qint64 bytes) {
    previous_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &limits_);
    rlimit low = limits_;
    low.rlim_cur = static_cast<rlim_t>(bytes);
    setrlimit(RLIMIT_FSIZE, &low);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() override {
    setrlimit(RLIMIT_FSIZE, &limits_);
    std::signal(SIGXFSZ, previous_);
  }

 private:
  rlimit limits_{};
  void (*previous_)(int);
};

/// How many transactions the write-ahead log of an open file holds: frames that end one name the file's size.
int TransactionsInLog(const QString& path) {
  constexpr qsizetype kLogHeader = 32;
  constexpr qsizetype kFrameHeader = 24;
  const QByteArray log = Bytes(path + QStringLiteral("-wal"));
  if (log.size() < kLogHeader) return 0;
  const auto page = static_cast<qsizetype>(qFromBigEndian<quint32>(log.constData() + 8));
  const QByteArray salt = log.mid(16, 8);
  int transactions = 0;
  for (qsizetype position = kLogHeader; position + kFrameHeader + page <= log.size(); position += kFrameHeader + page) {
    // Frames of an earlier round of the log carry another salt.
    if (log.mid(position + 8, 8) != salt) break;
    if (qFromBigEndian<quint32>(log.constData() + position + 4) != 0) ++transactions;
  }
  return transactions;
}

/// A loan file on a connection of the test's own, which does not wait for the disk and reads the rows itself.
class OnFile final : public Shelf::Walk {
 public:
  explicit OnFile(QString path) : path_(std::move(path)) { Open(); }
  [[nodiscard]] std::optional<Done> Take(StepKind kind) override { return journal_->Take(kind); }
  [[nodiscard]] std::string Rows() override { return StoredRows(*database_); }
  [[nodiscard]] dossier::Dossier& Dossier() override { return *dossier_; }
  [[nodiscard]] Edits& Bewerkingen() override { return journal_->Bewerkingen(); }
  /// What the file holds, read anew.
  [[nodiscard]] DossierGegevens Stored() override { return ReadDossier(*database_).gegevens; }

 private:
  void Open() {
    auto database = std::make_unique<Database>(path_, Access::ReadWrite);
    for (const char* sql : {"PRAGMA synchronous = OFF", "PRAGMA foreign_keys = ON"}) database->Run(sql);
    database_ = database.get();
    StoredDossier stored = ReadDossier(*database);
    journal_ = std::make_shared<FileJournal>(
        std::move(database), stored, [this](DossierGegevens contents) { dossier_->Herlaad(std::move(contents)); });
    auto environment = std::make_shared<Environment>();
    environment->Journal = journal_;
    dossier_ = std::make_shared<dossier::Dossier>(std::move(stored.gegevens), std::move(environment));
  }

  QString path_;
  Database* database_ = nullptr;
  std::shared_ptr<FileJournal> journal_;
  std::shared_ptr<dossier::Dossier> dossier_;
};

class FileShelf final : public Shelf {
 public:
  QString Make(const DossierGegevens& gegevens) override {
    return folder_.Make(gegevens, QByteArray::number(++files_).append(".dossier").constData());
  }
  std::unique_ptr<DossierStore> Open(const QString& name) override { return DossierFile::Open(name); }
  QString Address(const QString& name) const override { return name; }
  DossierGegevens Stored(const QString& name) override {
    const Copy copy(name);
    return ReadBack(copy.path);
  }
  std::string Rows(const QString& name) override {
    const Copy copy(name);
    Database database(copy.path, Access::ReadWrite);
    return StoredRows(database);
  }
  int Transactions(const QString& name) override { return TransactionsInLog(name); }
  QStringList Findings(const QString&, DossierStore& store) override {
    return dynamic_cast<DossierFile&>(store).ControleerHeelheid();
  }
  bool Spoil(const QString& name, const Damage& damage) override {
    Database database(name, Access::ReadWrite);
    // The history keeps itself.
    database.PassOverTriggers();
    QString change = *damage.set == '\0' ? QString("DELETE FROM %1").arg(damage.table)
                                         : QString("UPDATE %1 SET %2").arg(damage.table, damage.set);
    change += QString(" WHERE ") + damage.where;
    database.Run(change.replace("{largest}", "9e999")
                     .replace("{long}", "hex(zeroblob(60000))")
                     .replace("{11}", "11")
                     .replace("{400000}", "400000"));
    return database.Value("SELECT changes()").toInt() > 0;
  }
  std::string WhyNotOpened(const QString& name) override {
    try {
      static_cast<void>(DossierFile::Open(name));
      return {};
    } catch (const OpeningError& error) {
      return error.Melding().toStdString();
    }
  }
  std::unique_ptr<Walk> Begin(const QString& name) override { return std::make_unique<OnFile>(name); }
  std::unique_ptr<NoRoom> TakeRoom(const QString& name) override {
    // What lies behind the log as it is cannot be written.
    return std::make_unique<FullDisk>(QFileInfo(name + "-wal").size());
  }
  std::string Cause() const override { return "het bestand kan niet worden beschreven"; }
  int Number() const override { return 1010; }
  QString FreePath(const char* name) override { return folder_.Path(name); }

 private:
  /// What the disk holds at this moment: the file and its log, copied.
  struct Copy {
    explicit Copy(const QString& name) : path(folder.Path()) {
      EXPECT_TRUE(QFile::copy(name, path));
      if (QFileInfo::exists(name + "-wal")) {
        EXPECT_TRUE(QFile::copy(name + "-wal", path + "-wal"));
      }
    }
    Folder folder;
    QString path;
  };

  Folder folder_;
  int files_ = 0;
};

}  // namespace

std::unique_ptr<Shelf> Shelf::New() { return std::make_unique<FileShelf>(); }

}  // namespace brivane::dossier
