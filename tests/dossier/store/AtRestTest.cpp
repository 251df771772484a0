#include <QCoreApplication>
#include <QElapsedTimer>

#include "dossier/store/Database.h"
#include "dossier/store/Schema.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"

// The one file is the case: what was accepted is in it soon after, whoever copies or mails it alone.
namespace brivane::dossier {
namespace {

/// What somebody gets who is sent a copy of the file alone, made while it is open.
DossierGegevens OfACopy(const QString& pad) {
  const Map elsewhere;
  EXPECT_TRUE(QFile::copy(pad, elsewhere.Pad()));
  return Gelezen(elsewhere.Pad());
}

/// A program that waits for what a person does next.
class Idle {
 public:
  void Wait(int milliseconds) const {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
  }

 private:
  int argc_ = 0;
  QCoreApplication application_{argc_, nullptr};
};

TEST(AtRest, AnEditIsInTheOneFileWithinASecond) {
  const Idle idle;
  const Map map;
  const QString pad = map.Maak();
  const auto open = DossierBestand::Open(pad);
  Werkplek bench(*open);
  bench.Bind(0, 1);
  for (int n = 0; n < 6; ++n) {
    DoeBewerking(bench, n);
    idle.Wait(900);
    EXPECT_EQ(OfACopy(pad), open->Dossier()->Gegevens()) << "edit " << n;
    EXPECT_EQ(QFileInfo(pad + "-wal").size(), 0) << "edit " << n;
  }
}

TEST(AtRest, WorkThatGoesOnIsInTheOneFileASecondLater) {
  const Idle idle;
  const Map map;
  const QString pad = map.Maak();
  const auto open = DossierBestand::Open(pad);
  Werkplek bench(*open);
  bench.Bind(0, 1);
  std::vector<std::string> names;
  for (int n = 0; n < 20; ++n) {
    names.push_back("Naam " + std::to_string(n));
    bench.Typ("TxtOm", names.back());
    idle.Wait(100);
    if (n < 10) continue;
    const std::string copied = OfACopy(pad).HuidigeLening.VrijeKolommen.front().Omschrijving;
    EXPECT_TRUE(std::find(names.end() - 11, names.end(), copied) != names.end()) << copied << " after " << names.back();
  }
}

TEST(AtRest, ALogThatWasLeftBehindIsWorkedOffAtOpening) {
  const Map map;
  const QString pad = map.Maak();
  TweedeProces killed({"bewerk", pad, "6", "6000000"});
  EXPECT_EQ(killed.Regel(), "6");
  static_cast<void>(killed.Dood());
  ASSERT_GT(QFileInfo(pad + "-wal").size(), 0);
  const auto open = DossierBestand::Open(pad);
  EXPECT_EQ(OfACopy(pad), open->Dossier()->Gegevens());
}

TEST(AtRest, AnEditOfManyChangesIsNotCutInTwo) {
  const Idle idle;
  const Map map;
  const QString pad = map.Maak();
  const auto open = DossierBestand::Open(pad);
  const DossierGegevens before = open->Dossier()->Gegevens();
  open->Bewerkingen().InOneEdit([&] {
    open->Dossier()->ZoekKolom(0, 1)->SetOmschrijving("half");
    idle.Wait(900);
    EXPECT_EQ(OfACopy(pad), before);
  });
  idle.Wait(900);
  EXPECT_EQ(OfACopy(pad), open->Dossier()->Gegevens());
}

TEST(AtRest, WithoutAnEventLoopTheLogStaysWithinBounds) {
  const Map map;
  const QString pad = map.Maak();
  const auto open = DossierBestand::Open(pad);
  const auto column = open->Dossier()->ZoekKolom(0, 1);
  qint64 largest = 0;
  for (int n = 0; n < 1200; ++n) {
    column->SetLooptijd(n);
    largest = std::max(largest, QFileInfo(pad + "-wal").size());
  }
  // 500 edits of two pages of 4 KiB, each with its head of 24 bytes, and one that drops the states before.
  EXPECT_LT(largest, 500 * 3 * 4120);
}

/// A file of the first version, as the program made it.
QString MakeVersion1(const Map& map) {
  const QString pad = map.Maak();
  Database database(pad, Access::ReadWrite);
  for (const char* sql : {"DROP TABLE stand", "PRAGMA user_version = 1"}) database.Run(QString::fromLatin1(sql));
  return pad;
}

TEST(AtRest, AFileOfTheFirstVersionIsTakenOver) {
  const Map map;
  const QString pad = MakeVersion1(map);
  {
    const auto open = DossierBestand::Open(pad);
    EXPECT_EQ(OfACopy(pad), open->Dossier()->Gegevens());
    open->Dossier()->ZoekKolom(0, 1)->SetLooptijd(17);
  }
  EXPECT_EQ(map.Inhoud(), QStringList("test.dossier"));
  EXPECT_EQ(Gelezen(pad).HuidigeLening.VrijeKolommen.front().Looptijd, 17);
  Database database(pad, Access::ReadOnly);
  EXPECT_EQ(database.Value("PRAGMA user_version").toInt(), kSchemaVersion);
}

/// The program was killed right after it had brought the file up to date, before the log was worked off.
TEST(AtRest, AFileThatWasKilledWhileItWasTakenOverOpens) {
  const Map map;
  const QString pad = MakeVersion1(map);
  const DossierGegevens contents = Gelezen([&] {
    const QString copy = map.Pad("kopie.dossier");
    EXPECT_TRUE(QFile::copy(pad, copy));
    return copy;
  }());
  const Map killed;
  {
    Database database(pad, Access::ReadWrite);
    Migrate(database, 1);
    ASSERT_TRUE(QFile::copy(pad, killed.Pad()));
    ASSERT_TRUE(QFile::copy(pad + "-wal", killed.Pad("test.dossier-wal")));
  }
  EXPECT_EQ(Gelezen(killed.Pad()), contents);
}

}  // namespace
}  // namespace brivane::dossier
