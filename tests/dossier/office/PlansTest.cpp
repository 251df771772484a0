#include <gtest/gtest.h>

#include <QMap>

#include "tests/dossier/office/ManyClients.h"

// What an adviser waits for goes by an index, however large the office: a lost index shows here.
namespace brivane::dossier {
namespace {

class PlansTest : public testing::Test {
 protected:
  /// What the server counted. A session's figures are there once it has ended, which takes it a moment.
  QString Counted(const QString& sql) {
    bool failed = false;
    office_.Psql("postgres",
                 "DO $$ BEGIN FOR look IN 1..6000 LOOP PERFORM pg_stat_clear_snapshot(); IF NOT EXISTS (SELECT FROM "
                 "pg_stat_activity WHERE datname = current_database() AND backend_type = 'client backend' AND pid <> "
                 "pg_backend_pid()) THEN RETURN; END IF; "
                 "PERFORM pg_sleep(0.01); END LOOP; RAISE EXCEPTION 'a session goes on'; END $$",
                 &failed);
    EXPECT_FALSE(failed);
    return office_.Psql("postgres", sql);
  }
  /// How often each table was read from end to end.
  QMap<QString, int> WholeReadings() {
    QMap<QString, int> readings;
    const QString said = Counted(
        "SELECT relname || ' ' || seq_scan FROM pg_stat_user_tables WHERE schemaname = 'kantoor' AND relname IN "
        "('client', 'zoek', 'dossier', 'persoon', 'maatschappij_type', 'lening', 'vrijekolom', 'periode', "
        "'voorstel', 'naam', 'stap', 'wijziging')");
    for (const QString& line : said.split('\n')) readings[line.section(' ', 0, 0)] = line.section(' ', 1).toInt();
    return readings;
  }

  TrialOffice office_;
  int client_ = office_.Add();
};

TEST_F(PlansTest, NothingThatAnAdviserDoesReadsATableFromEndToEnd) {
  MakeClients(office_, client_, {.clients = 5000, .steps = 4});
  const auto doing = [&](const char* what, const std::function<void(OfficeConnection&)>& act) {
    SCOPED_TRACE(what);
    const QMap<QString, int> before = WholeReadings();
    ASSERT_EQ(before.size(), 12);
    act(*office_.Enter());
    EXPECT_EQ(WholeReadings(), before);
  };
  doing("the list", [](OfficeConnection& office) { EXPECT_EQ(SearchClients(office, "", 50).size(), 50U); });
  // Each twentieth bears that name: 431 and 4311.
  doing("a name", [](OfficeConnection& office) { EXPECT_EQ(SearchClients(office, "dijkstra 431", 50).size(), 2U); });
  doing("a day of birth",
        [](OfficeConnection& office) { EXPECT_GE(SearchClients(office, "21-11-1930", 50).size(), 1U); });
  for (int again = 0; again < 7; ++again) {
    // A prepared statement may get another plan after the fifth time.
    doing("opening, editing, undoing, the history", [&](OfficeConnection&) {
      const auto store = office_.Open(client_ + 100 + again);
      for (int n = 0; n < 7; ++n) store->Dossier()->FindKolom(0, 1)->SetLooptijd(10 + n);
      ASSERT_TRUE(store->Take(StepKind::Undo));
      store->Dossier()->Verwijder(0, 2);
      EXPECT_GE(store->Geschiedenis()->Find({}).size(), 8U);
    });
  }
}

TEST_F(PlansTest, AWordThatOthersHaveIsNotLookedForInTheirClients) {
  MakeClients(office_, client_, {.clients = 9000, .teams = 3});
  const auto rows_read = [&] {
    return Counted(
               "SELECT seq_tup_read + idx_tup_fetch FROM pg_stat_user_tables WHERE schemaname = 'kantoor' AND "
               "relname = 'zoek'")
        .toInt();
  };
  const int before = rows_read();
  // 6,000 clients of the other teams have the word, and none of the 3,000 of anna's.
  EXPECT_TRUE(SearchClients(*office_.Enter(), "elders", 50).empty());
  const int read = rows_read() - before;
  // A hundred of the newest of hers and of those that she changed; none has it, and the index is asked at once.
  EXPECT_GT(read, 0);
  EXPECT_LE(read, 2 * 100);
  EXPECT_EQ(SearchClients(*office_.Enter("mia"), "elders", 50).size(), 50U);
}

}  // namespace
}  // namespace brivane::dossier
