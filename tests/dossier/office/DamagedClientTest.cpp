#include <gtest/gtest.h>

#include "dossier/store/Database.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/Files.h"

// What no program of this office stores may stand there all the same: who opens it is told, and nothing ends.
namespace brivane::dossier {
namespace {

using State = OfficeStore::State;

class DamagedClientTest : public testing::Test {
 protected:
  /// Two steps; the history may be changed behind the office's back.
  DamagedClientTest() {
    Must("DROP TRIGGER blijft ON kantoor.wijziging");
    const auto store = office_.Open(client_);
    store->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    store->Dossier()->FindKolom(0, 1)->SetLooptijd(20);
  }
  void Must(const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    ASSERT_FALSE(failed) << said.toStdString();
  }
  /// What is told where it does not open.
  std::string AtOpening(const char* account = "bert") {
    try {
      static_cast<void>(office_.Open(client_, account));
      return {};
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::Damaged);
      return error.Melding().toStdString();
    }
  }
  static std::string Told(const std::string& place) {
    return "Wat het kantoor van deze cliënt heeft, is beschadigd" + (place.empty() ? place : " (" + place + ")") + ".";
  }

  TrialOffice office_;
  int client_ = office_.Add();
};

TEST_F(DamagedClientTest, IsToldWithItsPlaceAndFreeForWhoMendsIt) {
  const std::pair<const char*, const char*> table[] = {
      {"UPDATE kantoor.vrijekolom SET looptijd = 40000 WHERE id = 3", "kolom 3 van de huidige situatie, looptijd"},
      {"UPDATE kantoor.vrijekolom SET correctie_last = 77 WHERE id = 3",
       "kolom 3 van de huidige situatie, correctie maandlast"},
      {"UPDATE kantoor.vrijekolom SET bedrag = 1e300 WHERE id = 3", "kolom 3 van de huidige situatie, bedrag"},
      {"UPDATE kantoor.vrijekolom SET bedrag = '-Infinity' WHERE id = 3", "kolom 3 van de huidige situatie, bedrag"},
      {"UPDATE kantoor.vrijekolom SET bedrag = 'NaN' WHERE id = 3", ""},
      {"DELETE FROM kantoor.dossier", "de uitgangspunten ontbreken"},
      {"DELETE FROM kantoor.persoon WHERE nummer = 1", "aanvrager ontbreekt"},
      {"UPDATE kantoor.wijziging SET oud = '\\x07' WHERE nummer = 2", ""},
      {"DELETE FROM kantoor.wijziging WHERE nummer = 2", ""}};
  const char* const parts[] = {"vrijekolom", "dossier", "persoon", "wijziging"};
  for (const char* part : parts) Must(QString("CREATE TABLE public.%1 AS TABLE kantoor.%1").arg(part));
  for (const auto& [sql, place] : table) {
    SCOPED_TRACE(sql);
    Must(sql);
    EXPECT_EQ(AtOpening(), Told(place));
    EXPECT_EQ(AtOpening("rob"), Told(place));
    for (const char* part : parts)
      Must(QString("SET session_replication_role = replica; DELETE FROM kantoor.%1; INSERT INTO kantoor.%1 TABLE "
                   "public.%1")
               .arg(part));
    EXPECT_EQ(office_.Open(client_)->Now(), State::Editing);
  }
}

TEST_F(DamagedClientTest, WhatAnAdviserStoresByAnotherProgramEndsNobodysProgram) {
  // The last step is undone by what it had before, which is no value here.
  bool failed = false;
  const QString said = office_.Psql(
      "anna",
      QString("CREATE TEMP TABLE b AS SELECT bewijs FROM kantoor.neem(%1); SELECT kantoor.sla_op(%1, (SELECT bewijs "
              "FROM b), gen_random_uuid(), '(3,0,1,0,3,3,0,3,50)', "
              "ARRAY[ROW(3,3,1,1,0,1,0,1,1,'\\x07',NULL)::kantoor.wijziging_rij], NULL, NULL, NULL, NULL, NULL, NULL, "
              "NULL)")
          .arg(client_),
      &failed);
  ASSERT_FALSE(failed) << said.toStdString();
  EXPECT_EQ(AtOpening(), Told(""));
}

TEST_F(DamagedClientTest, AnEarlierStepIsToldWhereItIsUsed) {
  Must("UPDATE kantoor.wijziging SET oud = '\\x07' WHERE nummer = 1");
  const auto store = office_.Open(client_);
  ASSERT_EQ(store->Now(), State::Editing);
  const DossierGegevens before = store->Dossier()->Gegevens();
  const auto expect_refused = [&](const std::function<void()>& action) {
    try {
      action();
      ADD_FAILURE() << "done";
    } catch (const host::Error& error) {
      EXPECT_EQ(error.Number(), kRefusedError);
      EXPECT_EQ(error.Description(), "Dit kan nu niet: wat het kantoor van deze cliënt heeft, is beschadigd.");
    }
  };
  expect_refused([&] { static_cast<void>(store->Take(StepKind::Undo)); });
  expect_refused([&] { static_cast<void>(store->Geschiedenis()); });
  const Folder folder;
  try {
    store->Kopieer(folder.Path("uit.dossier"));
    ADD_FAILURE() << "made";
  } catch (const OfficeError& error) {
    EXPECT_EQ(error.Problem(), OfficeProblem::Damaged);
  }
  EXPECT_FALSE(QFile::exists(folder.Path("uit.dossier")));
  EXPECT_EQ(store->Dossier()->Gegevens(), before);
  // The case itself can still be worked in.
  store->Dossier()->FindKolom(0, 1)->SetLooptijd(30);
  EXPECT_EQ(office_.Open(client_, "rob")->Dossier()->FindKolom(0, 1)->Looptijd(), 30);
}

TEST_F(DamagedClientTest, WhoReadsAlongIsToldThatWhatIsShownIsOlder) {
  auto editor = office_.Open(client_);
  const auto reader = office_.Open(client_, "bert");
  const DossierGegevens before = reader->Dossier()->Gegevens();
  int changes = 0;
  int reloads = 0;
  const auto changed = reader->Changed.Connect([&] { ++changes; });
  const auto reloaded = reader->Herladen.Connect([&] { ++reloads; });
  editor->Dossier()->FindKolom(0, 1)->SetLooptijd(30);
  Must("UPDATE kantoor.vrijekolom SET correctie_last = 77 WHERE id = 3");
  for (int look = 0; look < 3; ++look) reader->Attend();
  ASSERT_TRUE(reader->Unreadable());
  EXPECT_EQ(reader->Unreadable()->Melding().toStdString(),
            Told("kolom 3 van de huidige situatie, correctie maandlast"));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(reloads, 0);
  EXPECT_EQ(reader->Dossier()->Gegevens(), before);
  // Also who takes it over edits nothing that he does not see.
  editor.reset();
  EXPECT_TRUE(reader->TakeOver());
  EXPECT_THROW(reader->Dossier()->FindKolom(0, 1)->SetLooptijd(40), host::Error);
  Must("UPDATE kantoor.vrijekolom SET correctie_last = 1 WHERE id = 3");
  reader->Attend();
  EXPECT_FALSE(reader->Unreadable());
  EXPECT_EQ(reloads, 1);
  reader->Dossier()->FindKolom(0, 1)->SetLooptijd(40);
  EXPECT_EQ(office_.Open(client_, "rob")->Dossier()->FindKolom(0, 1)->Looptijd(), 40);
}

TEST_F(DamagedClientTest, AFileOfAClientWithoutAConnectionIsToldAsThat) {
  const auto session = office_.Enter();
  const auto store = OfficeStore::Open(session, client_);
  Must(QString("SELECT pg_terminate_backend(%1, 60000)").arg(session->User().pid));
  const Folder folder;
  try {
    store->Kopieer(folder.Path("uit.dossier"));
    ADD_FAILURE() << "made";
  } catch (const OfficeError& error) {
    EXPECT_EQ(error.Problem(), OfficeProblem::Unreachable);
  }
  EXPECT_EQ(store->Now(), State::Broken);
  store->Attend();
  store->Kopieer(folder.Path("uit.dossier"));
  EXPECT_EQ(DossierFile::Open(folder.Path("uit.dossier"))->Dossier()->Gegevens(), store->Dossier()->Gegevens());
}

}  // namespace
}  // namespace brivane::dossier
