#include <gtest/gtest.h>

#include "dossier/store/Database.h"
#include "dossier/store/DossierFile.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/RandomEdits.h"
#include "tests/dossier/store/StoredRows.h"

// From a loan file into an office and back: nothing is lost on the way.
namespace brivane::dossier {
namespace {

/// Every row of a loan file, those of its history too.
std::string AllRows(const QString& path) {
  Database database(path, Access::ReadWrite);
  std::string all = StoredRows(database);
  for (const char* sql :
       {"SELECT nummer || '|' || hex(tekst) FROM naam ORDER BY nummer",
        "SELECT nummer || '|' || tijd || '|' || medewerker || '|' || soort || '|' || van || '|' || terug || "
        "'|' || opnieuw || '|' || eerste || '|' || hoogste FROM stap ORDER BY nummer",
        "SELECT nummer || '|' || stap || '|' || tabel || '|' || sleutel || '|' || lening || '|' || "
        "lening_naam || '|' || kolom || '|' || kolom_naam || '|' || veld || '|' || typeof(oud) || quote(oud) "
        "|| '|' || typeof(nieuw) || quote(nieuw) FROM wijziging ORDER BY nummer"}) {
    QSqlQuery rows = database.Prepare(sql);
    Database::Run(rows);
    while (rows.next()) all += rows.value(0).toString().toStdString() + "\n";
  }
  return all;
}

TEST(TransferTest, AFileComesBackToTheStoredRowsWithItsHistory) {
  const TrialOffice office;
  for (unsigned seed = 1; seed <= 5; ++seed) {
    SCOPED_TRACE(seed);
    const Folder folder;
    const QString there = folder.Make();
    int client = 0;
    {
      const auto file = DossierFile::Open(there);
      file->SetAuthor("Zoë");
      RandomEdits edits(*file->Dossier(), file->Bewerkingen(), seed);
      for (int n = 0; n < 120; ++n) {
        edits.One();
        if (n % 7 == 6) file->Take(StepKind::Undo);
      }
      file->Dossier()->HernoemLening(0, std::string("\xff\0\xf4\x8f\xb8\x80", 6));
      client = AddClient(*office.Enter(), TrialOffice::kNoord, *file);
    }
    const QString back = folder.Path("terug.dossier");
    office.Open(client, "rob")->Kopieer(back);
    EXPECT_EQ(AllRows(back), AllRows(there));
    EXPECT_EQ(DossierFile::Open(back)->ControleerHeelheid(), QStringList());
    // The way back goes on in either.
    const auto in_office = office.Open(client);
    const auto in_file = DossierFile::Open(back);
    while (in_file->Take(StepKind::Undo)) {
      ASSERT_TRUE(in_office->Take(StepKind::Undo));
      ASSERT_EQ(in_office->Dossier()->Gegevens(), in_file->Dossier()->Gegevens());
    }
    EXPECT_FALSE(in_office->Take(StepKind::Undo));
  }
}

TEST(TransferTest, WhatIsDoneInTheOfficeIsInTheFileThatIsMadeOfIt) {
  const TrialOffice office;
  const Folder folder;
  const int client = office.Add();
  const auto store = office.Open(client);
  RandomEdits edits(*store->Dossier(), store->Bewerkingen(), 3);
  for (int n = 0; n < 60; ++n) edits.One();
  const QString path = folder.Path("uit.dossier");
  store->Kopieer(path);
  const auto file = DossierFile::Open(path);
  EXPECT_EQ(file->Dossier()->Gegevens(), store->Dossier()->Gegevens());
  const auto here = file->Geschiedenis();
  const auto there = store->Geschiedenis();
  EXPECT_EQ(here->Find({}), there->Find({}));
  EXPECT_EQ(here->People(), std::vector<std::string>{"Anna Aalders"});
  EXPECT_THROW(store->Kopieer(path), OpeningError);
}

}  // namespace
}  // namespace brivane::dossier
