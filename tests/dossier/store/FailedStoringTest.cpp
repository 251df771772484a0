#include <sys/resource.h>

#include <csignal>

#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"

// A change that cannot be stored reaches the adviser once, and the memory shows what is stored.
namespace brivane::dossier {
namespace {

using controls::Enter;
using controls::Press;
using controls::Select;
using controls::Toggle;

/// Lets no file of this process grow past a size: writing fails as on a full disk.
class FullDisk {
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
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &limits_);
    std::signal(SIGXFSZ, previous_);
  }

 private:
  rlimit limits_{};
  void (*previous_)(int);
};

class FailedStoringTest : public testing::Test {
 protected:
  FailedStoringTest() { desk_.Bind(0, 1); }

  void CloseAndCompare() {
    const DossierGegevens inMemory = file_->Dossier()->Gegevens();
    file_.reset();
    EXPECT_EQ(ReadBack(path_), inMemory);
  }
  [[nodiscard]] dossier::VrijeKolom& Kolom() { return *file_->Dossier()->FindKolom(0, 1); }
  /// Size of the log: what lies behind it cannot be written.
  [[nodiscard]] qint64 LogSize() const { return QFileInfo(path_ + "-wal").size(); }

  Folder folder_;
  QString path_ = folder_.Make();
  std::unique_ptr<DossierFile> file_ = DossierFile::Open(path_);
  Desk desk_{*file_};
};

void ExpectOneReport(const std::vector<host::ErrorRecord>& reports, const std::string& cause) {
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].Caption, "Kwandero");
  EXPECT_EQ(reports[0].Message, "Er is een fout opgetreden.");
  EXPECT_EQ(reports[0].ErrorDescription, "De wijziging is niet opgeslagen: " + cause + ".");
  EXPECT_EQ(reports[0].ErrorSource, "Dossier");
}

TEST_F(FailedStoringTest, AnEditThatTheDiskCannotHoldIsReportedOnceAndTheMemoryShowsWhatIsStored) {
  {
    const FullDisk full(LogSize());
    desk_.Do("TxtOm", Enter{std::string("past niet meer")});
  }
  ExpectOneReport(desk_.reports, "het bestand kan niet worden beschreven");
  EXPECT_EQ(desk_.reports[0].ErrorNumber, "1010");
  ASSERT_EQ(desk_.failed.size(), 1u);
  EXPECT_EQ(desk_.failed[0].told, Told::Yes);
  EXPECT_EQ(Kolom().Omschrijving(), "Kinderopvang");
  // Bound anew, the screen shows it too.
  desk_.Bind(0, 1);
  EXPECT_EQ(dynamic_cast<host::TextBox&>(desk_.Control("TxtOm").Host()).Text(), "Kinderopvang");
  // With room on the disk the next edit is stored.
  desk_.Do("TxtOm", Enter{std::string("past weer")});
  EXPECT_EQ(desk_.reports.size(), 1u);
  CloseAndCompare();
}

TEST_F(FailedStoringTest, NothingOfAnEditOfSeveralChangesStays) {
  desk_.Bind(0, 5);
  dossier::VrijeKolom& kolom = *file_->Dossier()->FindKolom(0, 5);
  const KolomGegevens before = kolom.Gegevens();
  ASSERT_TRUE(before.ScenarioOverlijden);
  {
    const FullDisk full(LogSize());
    desk_.Do("Toelichting.jnOverlijden", Toggle{host::kNee});
  }
  ExpectOneReport(desk_.reports, "het bestand kan niet worden beschreven");
  EXPECT_EQ(desk_.reports[0].ObjectName, "Toelichting");
  EXPECT_EQ(kolom.Gegevens(), before);
  CloseAndCompare();
}

TEST_F(FailedStoringTest, TheColumnAndItsPeriodsStayTheSameObjects) {
  const auto kolom = file_->Dossier()->FindKolom(0, 1);
  const auto bedrag = kolom->Bedrag();
  const auto periode = bedrag->Periode(2);
  {
    const FullDisk full(LogSize());
    desk_.Do("TxtOm", Enter{std::string("past niet meer")});
  }
  EXPECT_EQ(file_->Dossier()->FindKolom(0, 1), kolom);
  EXPECT_EQ(kolom->Bedrag(), bedrag);
  EXPECT_EQ(bedrag->Periode(2), periode);
}

TEST_F(FailedStoringTest, AnOperationOfTheHostFailsAsAWhole) {
  const DossierGegevens before = file_->Dossier()->Gegevens();
  {
    const FullDisk full(LogSize());
    EXPECT_THROW(file_->Dossier()->Dupliceer(0, 1), host::Error);
    EXPECT_THROW(file_->Dossier()->Verwijder(0, 6), host::Error);
    EXPECT_THROW(file_->Dossier()->Verplaats(0, 2, 1), host::Error);
    EXPECT_THROW(file_->Dossier()->SetClient({{.Naam = {"A", "", "B"}, .Geboortedatum = {}}}, 70), host::Error);
    EXPECT_THROW(file_->Dossier()->NieuweLening("x"), host::Error);
  }
  EXPECT_EQ(file_->Dossier()->Gegevens(), before);
  CloseAndCompare();
}

TEST_F(FailedStoringTest, TheOkOfTheScenarioFormThatCannotBeStoredLeavesThePeriodsAsTheyWere) {
  const KolomGegevens before = Kolom().Gegevens();
  desk_.Toolkit().modal = [&](controls::Form& form) {
    form.Find("txtBedrag", 3)->Perform(Enter{600.0});
    const FullDisk full(LogSize());
    form.Find("cmdOK")->Perform(Press{});
  };
  desk_.Do("cmdScenario", Press{});
  EXPECT_EQ(Kolom().Gegevens(), before);
  // The form has closed: the window is the one that tells.
  ASSERT_EQ(desk_.failed.size(), 1u);
  EXPECT_EQ(desk_.failed[0].told, Told::No);
  EXPECT_EQ(desk_.failed[0].error.Number(), 1010);
  CloseAndCompare();
}

TEST_F(FailedStoringTest, TheFirstRowOfTheScenarioFormThatCannotBeStoredIsToldByTheForm) {
  int messages = 0;
  desk_.Toolkit().Desktop().answer = [&](const std::string& title, const std::string& text, host::MessageStyle) {
    ++messages;
    EXPECT_EQ(title, "Kwandero");
    EXPECT_EQ(text,
              "Er is een fout opgetreden.\r\n1010: De wijziging is niet opgeslagen: het bestand kan niet worden "
              "beschreven.");
    return host::MessageAnswer::Ok;
  };
  desk_.Toolkit().modal = [&](controls::Form& form) {
    const FullDisk full(LogSize());
    form.Find("txtBedrag", 1)->Perform(Enter{600.0});
  };
  desk_.Do("cmdScenario", Press{});
  EXPECT_EQ(messages, 1);
  EXPECT_EQ(Kolom().Bedrag()->Bedrag(), 485.5);
  EXPECT_TRUE(desk_.reports.empty());
  CloseAndCompare();
}

/// A loan file on a connection of the test's own.
struct OwnConnection {
  explicit OwnConnection(const QString& path) : database(new Database(path, Access::ReadWrite)) {
    StoredDossier stored = ReadDossier(*database);
    journal = std::make_shared<FileJournal>(std::unique_ptr<Database>(database), stored,
                                            [this](DossierGegevens again) { dossier->Herlaad(std::move(again)); });
    auto environment = std::make_shared<Environment>();
    environment->Journal = journal;
    dossier = std::make_shared<dossier::Dossier>(std::move(stored.gegevens), std::move(environment));
  }

  Database* database;
  std::shared_ptr<FileJournal> journal;
  std::shared_ptr<dossier::Dossier> dossier;
};

TEST(FailedWriteTest, AFullFileIsReportedOnceByTheHandlerThatWrites) {
  const Folder folder;
  const OwnConnection own(folder.Make());
  own.database->Run(QStringLiteral("PRAGMA max_page_count = 1"));
  Desk desk(own.dossier, {own.journal, &own.journal->Bewerkingen()});
  desk.Bind(0, 1);
  desk.Do("TxtOm", Enter{std::string(50000, 'x')});
  ExpectOneReport(desk.reports, "het dossier is zo groot als een dossier kan zijn");
  EXPECT_EQ(desk.reports[0].ErrorNumber, "1013");
  EXPECT_EQ(own.dossier->FindKolom(0, 1)->Omschrijving(), "Kinderopvang");
  // What needs no room is stored.
  desk.Do("TxtOm", Enter{std::string("kort")});
  EXPECT_EQ(desk.reports.size(), 1u);
  EXPECT_EQ(own.dossier->FindKolom(0, 1)->Omschrijving(), "kort");
}

TEST(FailedWriteTest, AFileThatTurnsReadOnlyIsReportedOnceByEachHandler) {
  const Folder folder;
  const OwnConnection own(folder.Make());
  own.database->Run(QStringLiteral("PRAGMA query_only = ON"));
  Desk desk(own.dossier, {own.journal, &own.journal->Bewerkingen()});
  desk.Bind(0, 3);
  const KolomGegevens before = own.dossier->FindKolom(0, 3)->Gegevens();
  // Three handlers nest here: the option's, the other option's, and the toggle's. The innermost writes last.
  desk.Do("optLast", Select{}, 1);
  ExpectOneReport(desk.reports, "het bestand is alleen-lezen");
  EXPECT_EQ(own.dossier->FindKolom(0, 3)->Gegevens(), before);
  own.database->Run(QStringLiteral("PRAGMA query_only = OFF"));
  desk.Bind(0, 3);
  desk.Do("optLast", Select{}, 1);
  EXPECT_EQ(desk.reports.size(), 1u);
  EXPECT_EQ(own.dossier->FindKolom(0, 3)->CorrectieLast(), 1);
}

TEST(FailedWriteTest, WhatCannotBeReadAgainIsChangedNoMore) {
  const Folder folder;
  OwnConnection own(folder.Make());
  own.database->Run(QStringLiteral("PRAGMA foreign_keys = ON"));
  const auto kolom = own.dossier->FindKolom(0, 1);
  // The file loses a table while it is open, and then refuses a change.
  own.database->Run(QStringLiteral("DROP TABLE periode"));
  EXPECT_THROW(kolom->Bedrag()->NieuwePeriode(), host::Error);
  try {
    kolom->SetOmschrijving("x");
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Description(), "De wijziging is niet opgeslagen: het dossier moet opnieuw worden geopend.");
  }
  EXPECT_EQ(kolom->Omschrijving(), "Kinderopvang");
}

}  // namespace
}  // namespace brivane::dossier
