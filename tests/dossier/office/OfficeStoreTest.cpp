#include <QTemporaryDir>

#include "dossier/office/OfficeStore.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"

// A client of an office behaves as a loan file does, and is edited by one adviser at a time.
namespace brivane::dossier {
namespace {

TEST(OfficeStoreTest, WhatIsStoredIsThereForTheNextOne) {
  const TrialOffice office;
  const int client = office.Add();
  DossierGegevens contents;
  {
    const auto store = office.Open(client);
    EXPECT_EQ(store->Now(), OfficeStore::State::Editing);
    EXPECT_EQ(store->Naam(), "M.C. van den Heuvel");
    store->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    store->Dossier()->NewKolom(1)->SetOmschrijving("Zoë's \"\\ krant");
    contents = store->Dossier()->Gegevens();
  }
  const auto again = office.Open(client, "bert");
  EXPECT_EQ(again->Now(), OfficeStore::State::Editing);
  EXPECT_EQ(again->Dossier()->Gegevens(), contents);
  EXPECT_EQ(again->Dossier()->FindKolom(0, 1)->Looptijd(), 10);
}

TEST(OfficeStoreTest, EveryLetterOfATextArrivesAndGoesBack) {
  const TrialOffice office;
  const int client = office.Add();
  const std::string texts[] = {"\"",       "\\",    "\\\"",       "{a,\"b\"}", "(1,,\"\")", "NULL",
                               "it's",     "",      " ",          "a\tb\nc",   "\x01\x7f",  std::string("a\0b", 3),
                               "\xff\xc3", "Zoë 😀", "$1 :name ?", "\\x00",     "E'\\'"};
  DossierGegevens before;
  {
    const auto store = office.Open(client);
    before = store->Dossier()->Gegevens();
    for (const std::string& text : texts) {
      store->Dossier()->FindKolom(0, 1)->SetOmschrijving(text);
      // Another session has read it from the office.
      EXPECT_EQ(office.Open(client, "bert")->Dossier()->FindKolom(0, 1)->Omschrijving(), text);
    }
  }
  const auto store = office.Open(client);
  for (std::size_t n = 0; n < std::size(texts); ++n) ASSERT_TRUE(store->Take(StepKind::Undo)) << n;
  EXPECT_FALSE(store->Take(StepKind::Undo));
  EXPECT_EQ(office.Open(client, "bert")->Dossier()->Gegevens(), before);
}

TEST(OfficeStoreTest, TheWayBackAndTheHistoryOutliveTheProgram) {
  const TrialOffice office;
  const int client = office.Add();
  const DossierGegevens before = office.Open(client)->Dossier()->Gegevens();
  office.Open(client)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
  office.Open(client, "bert")->Dossier()->Verwijder(0, 2);
  {
    const auto store = office.Open(client);
    ASSERT_TRUE(store->Take(StepKind::Undo));
    ASSERT_TRUE(store->Take(StepKind::Undo));
    EXPECT_FALSE(store->Take(StepKind::Undo));
    EXPECT_EQ(store->Dossier()->Gegevens(), before);
  }
  const auto store = office.Open(client);
  EXPECT_EQ(store->Dossier()->Gegevens(), before);
  const auto history = store->Geschiedenis();
  const auto lines = history->Lines(history->Find({}));
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.back().step.who, "Anna Aalders");
  EXPECT_EQ(history->People(), (std::vector<std::string>{"Anna Aalders", "Bert Bakker"}));
  ASSERT_TRUE(store->Take(StepKind::Redo));
  EXPECT_EQ(store->Dossier()->FindKolom(0, 1)->Looptijd(), 10);
}

TEST(OfficeStoreTest, TheSecondOneReadsAndIsToldWhoEdits) {
  const TrialOffice office;
  const int client = office.Add();
  auto first = office.Open(client);
  const auto second = office.Open(client, "bert");
  EXPECT_EQ(second->Now(), OfficeStore::State::Reading);
  EXPECT_EQ(second->HeldBy().naam, "Anna Aalders");
  EXPECT_TRUE(second->HeldBy().sinds.isValid());
  try {
    second->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), kLeaseError);
    EXPECT_EQ(error.Description(), "De wijziging is niet opgeslagen: Anna Aalders werkt in dit dossier.");
  }
  EXPECT_FALSE(second->TakeOver());
  first->Dossier()->FindKolom(0, 1)->SetLooptijd(20);
  first.reset();
  EXPECT_TRUE(second->TakeOver());
  EXPECT_EQ(second->Now(), OfficeStore::State::Editing);
  EXPECT_EQ(second->Dossier()->FindKolom(0, 1)->Looptijd(), 20);
  second->Dossier()->FindKolom(0, 1)->SetLooptijd(30);
  EXPECT_EQ(office.Open(client, "rob")->Dossier()->FindKolom(0, 1)->Looptijd(), 30);
}

TEST(OfficeStoreTest, AClientOfAnotherTeamIsNotThere) {
  const TrialOffice office;
  const int client = office.Add();
  try {
    static_cast<void>(office.Open(client, "carla"));
    ADD_FAILURE() << "opened";
  } catch (const OfficeError& error) {
    EXPECT_EQ(error.Problem(), OfficeProblem::NoClient);
  }
  EXPECT_TRUE(SearchClients(*office.Enter("carla"), "Heuvel").empty());
  EXPECT_EQ(SearchClients(*office.Enter("bert"), "heuv 12-3-1978").size(), 1U);
  // At every key of the day of birth.
  const auto session = office.Enter("bert");
  for (const QString day : {"12-3-1978", "12/03/78", "1978-03-12"}) {
    for (int keys = 1; keys <= day.size(); ++keys)
      EXPECT_EQ(SearchClients(*session, day.left(keys)).size(), 1U) << day.left(keys).toStdString();
  }
  EXPECT_TRUE(SearchClients(*session, "13-3").empty());
  EXPECT_TRUE(SearchClients(*session, "1978-04").empty());
  EXPECT_EQ(SearchClients(*office.Enter("rob"), "").size(), 1U);
  EXPECT_EQ(SearchClients(*office.Enter("mia"), "").size(), 1U);
}

}  // namespace
}  // namespace brivane::dossier
