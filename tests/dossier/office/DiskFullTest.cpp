#include <QFile>
#include <QProcess>

#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/Desk.h"
#include "tests/support/postgres/SmallDisk.h"

// The disk of the server is full: nothing is half stored, the adviser is told, and with room again the work goes on.
namespace brivane::dossier {
namespace {

using State = OfficeStore::State;

class DiskFullTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!disk_.IsThere()) GTEST_SKIP() << "not run: this account may not mount a small file system here";
  }

  void Type(const std::string& text) { desk_->Type("TxtOm", text); }
  [[nodiscard]] std::string InMemory() { return store_->Dossier()->FindKolom(0, 1)->Omschrijving(); }
  [[nodiscard]] std::string OnScreen() { return dynamic_cast<host::TextBox&>(desk_->Control("TxtOm").Host()).Text(); }
  void Enter() {
    client_ = office_->Add();
    store_ = office_->Open(client_);
    settled_ = store_->Settled.Connect([this](Outcome outcome) { settlements_.push_back(outcome); });
    desk_ = std::make_unique<Desk>(*store_);
    desk_->Bind(0, 1);
  }
  /// Types text after text until one is refused, and answers how many were accepted before.
  int TypeUntilRefused(const std::function<void()>& between = [] {}) {
    for (int n = 1; n < 2000; ++n) {
      Type("tekst " + std::to_string(n));
      if (!desk_->reports.empty()) return n - 1;
      between();
    }
    return -1;
  }
  /// Steps and those that have their one entry, numbers without a gap, and the text as the office has it.
  [[nodiscard]] QString InOffice() {
    return office_->Psql(
        "postgres",
        QString("SELECT (SELECT concat_ws(' ', count(*), max(s.nummer), count(w.nummer), count(DISTINCT s.bewerking)) "
                "FROM kantoor.stap s JOIN kantoor.wijziging w ON w.client = s.client AND w.stap = s.nummer WHERE "
                "s.client = %1) || ', ' || (SELECT c.laatste FROM kantoor.client c WHERE c.nummer = %1) || ', ' || "
                "(SELECT v.omschrijving FROM kantoor.vrijekolom v JOIN kantoor.lening l ON l.client = v.client AND "
                "l.sleutel = v.lening WHERE v.client = %1 AND l.nummer = 0 AND v.id = 1)")
            .arg(client_));
  }
  static QString Stored(int steps, const QString& text) { return QString("%1 %1 %1 %1, %1, %2").arg(steps).arg(text); }
  void ExpectRefused(int accepted) {
    ASSERT_EQ(desk_->reports.size(), 1U);
    ASSERT_EQ(desk_->failed.size(), 1U);
    // What was typed stays in its box, and the memory shows what is stored.
    EXPECT_EQ(OnScreen(), "tekst " + std::to_string(accepted + 1));
    EXPECT_EQ(InMemory(), "tekst " + std::to_string(accepted));
  }

  // Goes last: the server lies on it.
  test::SmallDisk disk_{96};
  test::PostgresServer server_;
  std::unique_ptr<TrialOffice> office_;
  int client_ = 0;
  std::unique_ptr<OfficeStore> store_;
  std::unique_ptr<Desk> desk_;
  host::Subscription settled_;
  std::vector<Outcome> settlements_;
};

TEST_F(DiskFullTest, WithoutRoomForTheTablesTheEditIsRefusedAndTheSessionGoesOn) {
  office_ = std::make_unique<TrialOffice>(server_);
  const QString folder = disk_.Folder() + "/tabellen";
  ASSERT_EQ(QProcess::execute("install", {"-d", "-o", "postgres", folder}), 0);
  ASSERT_EQ(server_.Psql("postgres", "postgres", QString("CREATE TABLESPACE klein LOCATION '%1'").arg(folder)), "");
  ASSERT_EQ(
      server_.Psql("postgres", "postgres", QString("ALTER DATABASE %1 SET TABLESPACE klein").arg(office_->Name())), "");
  Enter();
  Type("tekst 0");
  disk_.TakeRoom();
  const int accepted = TypeUntilRefused();
  ASSERT_GE(accepted, 0);
  ExpectRefused(accepted);
  EXPECT_EQ(desk_->reports.front().ErrorDescription,
            "De wijziging is niet opgeslagen: de schijf van het kantoor is vol.");
  EXPECT_EQ(store_->Now(), State::Editing);
  EXPECT_EQ(InOffice(), Stored(accepted + 1, QString("tekst %1").arg(accepted)));
  // Full is full, and nothing is lost by trying.
  Type("nog eens");
  EXPECT_EQ(desk_->reports.size(), 2U);
  EXPECT_EQ(InOffice(), Stored(accepted + 1, QString("tekst %1").arg(accepted)));
  disk_.GiveRoom();
  desk_->reports.clear();
  Type("past weer");
  EXPECT_TRUE(desk_->reports.empty());
  EXPECT_EQ(InOffice(), Stored(accepted + 2, "past weer"));
  ASSERT_TRUE(store_->Take(StepKind::Undo));
  EXPECT_EQ(InMemory(), "tekst " + std::to_string(accepted));
}

TEST_F(DiskFullTest, WithoutRoomForTheLogTheServerStopsAndNothingThatWasAcceptedIsLost) {
  // The log alone lies on the small disk.
  server_.Stop("fast");
  const QString log = server_.Folder() + "/data/pg_wal";
  ASSERT_EQ(QProcess::execute("cp", {"-a", log, disk_.Folder() + "/log"}), 0);
  ASSERT_EQ(QProcess::execute("rm", {"-r", log}), 0);
  ASSERT_EQ(QProcess::execute("ln", {"-s", disk_.Folder() + "/log", log}), 0);
  server_.AddSettings("min_wal_size = 32MB\nmax_wal_size = 32MB\n");
  server_.Start();
  office_ = std::make_unique<TrialOffice>(server_);
  Enter();
  Type("tekst 0");
  disk_.TakeRoom();
  // Each edit is to begin a new part of the log.
  const int accepted = TypeUntilRefused([&] { office_->Psql("postgres", "SELECT pg_switch_wal()"); });
  ASSERT_GE(accepted, 0);
  ExpectRefused(accepted);
  disk_.GiveRoom();
  // It may be up again by itself, as it makes do with what room the log has.
  server_.Stop("immediate");
  server_.Start();
  // It is noticed that the connection broke, and then it is tried anew.
  for (int tries = 0; tries < 5 && (tries == 0 || store_->Now() != State::Editing); ++tries) store_->Attend();
  EXPECT_EQ(store_->Now(), State::Editing);
  // The edit that met the full disk was stored or not; whoever was told so, was told the truth.
  const bool was_stored = settlements_ == std::vector{Outcome::WasStored};
  const int stored = accepted + 1 + (was_stored ? 1 : 0);
  EXPECT_EQ(InOffice(), Stored(stored, QString("tekst %1").arg(stored - 1)));
  EXPECT_EQ(InMemory(), "tekst " + std::to_string(stored - 1));
  desk_->reports.clear();
  desk_->Bind(0, 1);
  Type("past weer");
  EXPECT_TRUE(desk_->reports.empty());
  EXPECT_EQ(InOffice(), Stored(stored + 1, "past weer"));
}

}  // namespace
}  // namespace brivane::dossier
