#include <gtest/gtest.h>

#include <QSet>
#include <functional>

#include "dossier/store/StoreErrors.h"
#include "tests/dossier/office/TrialOffice.h"

// Each table that an adviser writes is without room in turn: nothing is half, and it goes on once there is some.
namespace brivane::dossier {
namespace {

using State = OfficeStore::State;
using EditOf = std::function<void(dossier::Dossier&)>;

/// The tables of a case and of its history by an edit that writes them.
const std::pair<const char*, EditOf> kEdits[] = {
    {"client", [](auto& dossier) { dossier.FindKolom(0, 1)->SetLooptijd(10); }},
    {"stap", [](auto& dossier) { dossier.FindKolom(0, 1)->SetLooptijd(10); }},
    {"wijziging", [](auto& dossier) { dossier.FindKolom(0, 1)->SetLooptijd(10); }},
    {"naam", [](auto& dossier) { dossier.FindKolom(0, 1)->SetLooptijd(10); }},
    {"vrijekolom", [](auto& dossier) { dossier.FindKolom(0, 1)->SetLooptijd(10); }},
    {"vrijekolom", [](auto& dossier) { dossier.Verwijder(0, 2); }},
    {"periode", [](auto& dossier) { static_cast<void>(dossier.FindKolom(0, 1)->Bedrag()->NieuwePeriode()); }},
    {"lening", [](auto& dossier) { dossier.HernoemLening(1, "anders"); }},
    {"lening", [](auto& dossier) { static_cast<void>(dossier.NieuweLening("erbij")); }},
    {"persoon",
     [](auto& dossier) {
       auto persons = dossier.Personen();
       persons.front().Naam[2] = "Anders";
       dossier.SetClient(persons, 67);
     }},
    {"dossier", [](auto& dossier) { dossier.SetClient(dossier.Personen(), 70); }},
    {"voorstel", [](auto& dossier) { dossier.VoegToeAanVoorstel(3, 77); }},
    {"zoek", [](auto& dossier) { dossier.FindKolom(0, 1)->SetOmschrijving("ongehoord"); }}};

/// Those that a new client writes, each once.
const char* const kAdded[] = {"client", "toevoeging", "zoek",    "dossier", "persoon", "maatschappij_type",
                              "lening", "vrijekolom", "periode", "voorstel"};

class EveryTableTest : public testing::Test {
 protected:
  EveryTableTest() {
    Must(
        "CREATE FUNCTION kantoor.vol() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE EXCEPTION 'full' USING "
        "ERRCODE = 'disk_full'; END $$; GRANT EXECUTE ON FUNCTION kantoor.vol() TO PUBLIC");
  }
  void Must(const QString& sql) {
    bool failed = false;
    const QString said = office_.Psql("postgres", sql, &failed);
    ASSERT_FALSE(failed) << said.toStdString();
  }
  void Fill(const char* table) {
    Must(QString("CREATE TRIGGER vol BEFORE INSERT OR UPDATE OR DELETE ON kantoor.%1 FOR EACH ROW EXECUTE FUNCTION "
                 "kantoor.vol()")
             .arg(table));
  }
  void MakeRoom(const char* table) { Must(QString("DROP TRIGGER vol ON kantoor.%1").arg(table)); }

  TrialOffice office_;
};

TEST_F(EveryTableTest, AnEditIsRefusedWholeAndStoredOnceThereIsRoom) {
  for (const auto& [table, edit] : kEdits) {
    SCOPED_TRACE(table);
    const int client = office_.Add();
    const auto store = office_.Open(client);
    const DossierGegevens before = store->Dossier()->Gegevens();
    Fill(table);
    try {
      edit(*store->Dossier());
      ADD_FAILURE() << "stored";
    } catch (const host::Error& error) {
      EXPECT_EQ(error.Number(), kRefusedError);
      EXPECT_EQ(error.Description(), "De wijziging is niet opgeslagen: de schijf van het kantoor is vol.");
    }
    EXPECT_EQ(store->Dossier()->Gegevens(), before);
    MakeRoom(table);
    EXPECT_EQ(office_.Open(client, "rob")->Dossier()->Gegevens(), before);
    edit(*store->Dossier());
    EXPECT_NE(store->Dossier()->Gegevens(), before);
    EXPECT_EQ(office_.Open(client, "rob")->Dossier()->Gegevens(), store->Dossier()->Gegevens());
  }
}

TEST_F(EveryTableTest, AClientIsAddedWholeOrNotAtAll) {
  DossierGegevens contents = VoorbeeldDossier();
  contents.Voorstellen[0].insert(1);
  const auto session = office_.Enter();
  for (const char* table : kAdded) {
    SCOPED_TRACE(table);
    Fill(table);
    try {
      static_cast<void>(AddClient(*session, TrialOffice::kNoord, contents));
      ADD_FAILURE() << "added";
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::DiskFull);
    }
    MakeRoom(table);
    EXPECT_TRUE(SearchClients(*session, "").empty());
  }
  EXPECT_GT(AddClient(*session, TrialOffice::kNoord, contents), 0);
}

TEST_F(EveryTableTest, AClientThatCannotBeTakenUpIsFree) {
  const int client = office_.Add();
  Fill("bewerker");
  const auto session = office_.Enter();
  try {
    static_cast<void>(OfficeStore::Open(session, client));
    ADD_FAILURE() << "opened";
  } catch (const OfficeError& error) {
    EXPECT_EQ(error.Problem(), OfficeProblem::DiskFull);
  }
  MakeRoom("bewerker");
  EXPECT_EQ(office_.Open(client, "bert")->Now(), State::Editing);
  EXPECT_EQ(OfficeStore::Open(session, client)->Now(), State::Editing);
}

TEST_F(EveryTableTest, WhoCannotFollowReadsAllTheSame) {
  const int client = office_.Add();
  Fill("meelezer");
  const auto reader = office_.Open(client, "rob");
  office_.Open(client)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
  reader->Attend();
  EXPECT_EQ(reader->Dossier()->FindKolom(0, 1)->Looptijd(), 10);
}

TEST_F(EveryTableTest, NoTableIsForgotten) {
  // Managers alone write those.
  QSet<QString> tables = {"versie", "team", "lid", "medewerker"};
  for (const auto& [table, edit] : kEdits) tables.insert(table);
  for (const char* table : kAdded) tables.insert(table);
  for (const char* table : {"bewerker", "meelezer"}) tables.insert(table);
  const QStringList all =
      office_
          .Psql("postgres",
                "SELECT relname FROM pg_class WHERE relnamespace = 'kantoor'::regnamespace AND relkind = 'r'")
          .split(u'\n');
  EXPECT_EQ(tables, QSet<QString>(all.begin(), all.end()));
}

}  // namespace
}  // namespace brivane::dossier
