#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"

// A loan file that refuses a change: the adviser is told once, and why.
namespace brivane::dossier {
namespace {

using controls::Enter;
using controls::Select;

void ExpectOneReport(const std::vector<host::ErrorRecord>& reports, const std::string& cause) {
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].Caption, "Kwandero");
  EXPECT_EQ(reports[0].Message, "Er is een fout opgetreden.");
  EXPECT_EQ(reports[0].ErrorDescription, "De wijziging is niet opgeslagen: " + cause + ".");
  EXPECT_EQ(reports[0].ErrorSource, "Dossier");
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
