#include <gtest/gtest.h>

#include "dossier/store/Database.h"
#include "dossier/store/DossierFile.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/Files.h"
#include "tests/support/postgres/SocketProxy.h"

// A client is added once, and what came of it is told as it is.
namespace brivane::dossier {
namespace {

using Fate = test::SocketProxy::Fate;

class AddingTest : public testing::Test {
 protected:
  /// How many questions an addition takes, of which the last ends the transaction.
  int Questions() {
    const int before = proxy_.RoundTrips();
    static_cast<void>(AddClient(*session_, TrialOffice::kNoord, VoorbeeldDossier()));
    return proxy_.RoundTrips() - before;
  }
  [[nodiscard]] int Clients() { return office_.Psql("postgres", "SELECT count(*) FROM kantoor.client").toInt(); }

  TrialOffice office_;
  test::SocketProxy proxy_{office_.Server().Folder()};
  std::shared_ptr<OfficeConnection> session_ = office_.Enter("anna", proxy_.Folder());
};

TEST_F(AddingTest, AnAnswerThatIsLostIsLookedUp) {
  // The first addition of a session has its statements prepared.
  Questions();
  const int questions = Questions();
  proxy_.NextMeets(Fate::LostAfter, questions - 1);
  const int client = AddClient(*session_, TrialOffice::kNoord, VoorbeeldDossier());
  EXPECT_FALSE(proxy_.Awaits());
  EXPECT_EQ(Clients(), 3);
  EXPECT_EQ(office_.Open(client)->Naam(), "M.C. van den Heuvel");
}

TEST_F(AddingTest, WhatDidNotReachTheOfficeIsToldAsNotAdded) {
  Questions();
  const int questions = Questions();
  for (int others = 0; others < questions; ++others) {
    SCOPED_TRACE(others);
    if (session_->IsBroken()) session_->OpenOffice();
    Questions();
    const int before = Clients();
    proxy_.NextMeets(Fate::LostBefore, others);
    try {
      static_cast<void>(AddClient(*session_, TrialOffice::kNoord, VoorbeeldDossier()));
      ADD_FAILURE() << "added";
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::Unreachable);
    }
    EXPECT_FALSE(proxy_.Awaits());
    EXPECT_EQ(Clients(), before);
  }
}

TEST_F(AddingTest, WhatCannotBeLookedUpIsToldAsNotKnown) {
  Questions();
  const int questions = Questions();
  for (const Fate fate : {Fate::DeadBefore, Fate::DeadAfter}) {
    const int before = Clients();
    proxy_.NextMeets(fate, questions - 1);
    try {
      static_cast<void>(AddClient(*session_, TrialOffice::kNoord, VoorbeeldDossier()));
      ADD_FAILURE() << "added";
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::Unknown);
      EXPECT_EQ(error.Melding(),
                "De verbinding met het kantoor viel weg, en het is niet bekend of de cliënt is toegevoegd; zoek hem "
                "eerst op in de lijst.");
    }
    EXPECT_EQ(Clients(), before + (fate == Fate::DeadAfter ? 1 : 0));
    proxy_.Mend();
    session_->OpenOffice();
    Questions();
  }
}

TEST_F(AddingTest, AnAdditionOfSomebodyElseIsNotFound) {
  Questions();
  const QString mark = office_.Psql("postgres", "SELECT kenmerk FROM kantoor.toevoeging");
  const QString ask = QString("SELECT kantoor.toegevoegd('%1') IS NULL").arg(mark);
  EXPECT_EQ(office_.Psql("anna", ask), "f");
  EXPECT_EQ(office_.Psql("bert", ask), "t");
}

TEST_F(AddingTest, AFileThatCannotBeReadLeavesNothingAndTheSessionGoesOn) {
  const Folder folder;
  const auto file = DossierFile::Open(folder.Make());
  file->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
  // It loses its history when part of it was sent already.
  file->Tabellen().Run(QStringLiteral("DROP TABLE wijziging"));
  try {
    static_cast<void>(AddClient(*session_, TrialOffice::kNoord, *file));
    ADD_FAILURE() << "added";
  } catch (const OfficeError& error) {
    EXPECT_EQ(error.Problem(), OfficeProblem::Damaged);
    EXPECT_EQ(error.Melding(), "Het bestand is beschadigd.");
  }
  EXPECT_EQ(Clients(), 0);
  EXPECT_EQ(
      office_.Psql("postgres", QString("SELECT state FROM pg_stat_activity WHERE pid = %1").arg(session_->User().pid)),
      "idle");
  EXPECT_GT(AddClient(*session_, TrialOffice::kNoord, VoorbeeldDossier()), 0);
}

TEST_F(AddingTest, WhatIsAddedOrEditedOutlivesAPowerCutHoweverTheServerIsSet) {
  const auto must = [&](const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    ASSERT_FALSE(failed) << said.toStdString();
  };
  must("ALTER DATABASE " + office_.Name() + " SET synchronous_commit = off");
  // What holds when the transaction is nearly done.
  must(
      "CREATE TABLE public.gezien (wat text, hoe text); GRANT ALL ON public.gezien TO PUBLIC; "
      "CREATE FUNCTION public.zie() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN INSERT INTO public.gezien VALUES "
      "(TG_TABLE_NAME, current_setting('synchronous_commit')); RETURN NULL; END $$; "
      "CREATE CONSTRAINT TRIGGER zie AFTER INSERT ON kantoor.client DEFERRABLE INITIALLY DEFERRED FOR EACH ROW EXECUTE "
      "FUNCTION public.zie(); "
      "CREATE CONSTRAINT TRIGGER zie AFTER INSERT ON kantoor.stap DEFERRABLE INITIALLY DEFERRED FOR EACH ROW EXECUTE "
      "FUNCTION public.zie()");
  const int client = office_.Add();
  office_.Open(client)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
  EXPECT_EQ(office_.Psql("anna", "SHOW synchronous_commit"), "off");
  EXPECT_EQ(office_.Psql("postgres", "SELECT wat, hoe FROM public.gezien"), "client|on\nstap|on");
}

}  // namespace
}  // namespace brivane::dossier
