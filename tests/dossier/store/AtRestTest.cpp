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
DossierGegevens OfACopy(const QString& path) {
  const Folder elsewhere;
  EXPECT_TRUE(QFile::copy(path, elsewhere.Path()));
  return ReadBack(elsewhere.Path());
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

TEST(AtRestTest, AnEditIsInTheOneFileWithinASecond) {
  const Idle idle;
  const Folder folder;
  const QString path = folder.Make();
  const auto open = DossierFile::Open(path);
  Desk desk(*open);
  desk.Bind(0, 1);
  for (int n = 0; n < 6; ++n) {
    DoEdit(desk, n);
    idle.Wait(900);
    EXPECT_EQ(OfACopy(path), open->Dossier()->Gegevens()) << "edit " << n;
    EXPECT_EQ(QFileInfo(path + "-wal").size(), 0) << "edit " << n;
  }
}

TEST(AtRestTest, WorkThatGoesOnIsInTheOneFileASecondLater) {
  const Idle idle;
  const Folder folder;
  const QString path = folder.Make();
  const auto open = DossierFile::Open(path);
  Desk desk(*open);
  desk.Bind(0, 1);
  std::vector<std::string> names;
  for (int n = 0; n < 20; ++n) {
    names.push_back("Naam " + std::to_string(n));
    desk.Type("TxtOm", names.back());
    idle.Wait(100);
    if (n < 10) continue;
    const std::string copied = OfACopy(path).HuidigeLening.VrijeKolommen.front().Omschrijving;
    EXPECT_TRUE(std::find(names.end() - 11, names.end(), copied) != names.end()) << copied << " after " << names.back();
  }
}

TEST(AtRestTest, ALogThatWasLeftBehindIsWorkedOffAtOpening) {
  const Folder folder;
  const QString path = folder.Make();
  SecondProcess killed({"edit", path, "6", "6000000"});
  EXPECT_EQ(killed.Line(), "6");
  static_cast<void>(killed.Kill());
  ASSERT_GT(QFileInfo(path + "-wal").size(), 0);
  const auto open = DossierFile::Open(path);
  EXPECT_EQ(OfACopy(path), open->Dossier()->Gegevens());
}

TEST(AtRestTest, AnEditOfManyChangesIsNotCutInTwo) {
  const Idle idle;
  const Folder folder;
  const QString path = folder.Make();
  const auto open = DossierFile::Open(path);
  const DossierGegevens before = open->Dossier()->Gegevens();
  open->Bewerkingen().InOneEdit([&] {
    open->Dossier()->FindKolom(0, 1)->SetOmschrijving("half");
    idle.Wait(900);
    EXPECT_EQ(OfACopy(path), before);
  });
  idle.Wait(900);
  EXPECT_EQ(OfACopy(path), open->Dossier()->Gegevens());
}

TEST(AtRestTest, WithoutAnEventLoopTheLogStaysWithinBounds) {
  const Folder folder;
  const QString path = folder.Make();
  const auto open = DossierFile::Open(path);
  const auto column = open->Dossier()->FindKolom(0, 1);
  qint64 largest = 0;
  for (int n = 0; n < 1200; ++n) {
    column->SetLooptijd(n);
    largest = std::max(largest, QFileInfo(path + "-wal").size());
  }
  // 500 edits of two pages of 4 KiB, each with its head of 24 bytes, and one that drops the states before.
  EXPECT_LT(largest, 500 * 3 * 4120);
}

/// A file of the first version, as the program made it.
QString MakeVersion1(const Folder& folder) {
  EXPECT_TRUE(QFile::copy(QStringLiteral(EARLIER_FILES "/versie-1.dossier"), folder.Path()));
  EXPECT_TRUE(QFile::setPermissions(folder.Path(), QFile::ReadOwner | QFile::WriteOwner));
  return folder.Path();
}

TEST(AtRestTest, AFileOfTheFirstVersionIsTakenOver) {
  const Folder folder;
  const QString path = MakeVersion1(folder);
  {
    const auto open = DossierFile::Open(path);
    EXPECT_EQ(OfACopy(path), open->Dossier()->Gegevens());
    open->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
  }
  EXPECT_EQ(folder.Contents(), QStringList("test.dossier"));
  EXPECT_EQ(ReadBack(path).HuidigeLening.VrijeKolommen.front().Looptijd, 17);
  Database database(path, Access::ReadOnly);
  EXPECT_EQ(database.Value("PRAGMA user_version").toInt(), kSchemaVersion);
}

/// The program was killed right after it had brought the file up to date, before the log was worked off.
TEST(AtRestTest, AFileThatWasKilledWhileItWasTakenOverOpens) {
  const Folder folder;
  const QString path = MakeVersion1(folder);
  const DossierGegevens contents = ReadBack([&] {
    const QString copy = folder.Path("kopie.dossier");
    EXPECT_TRUE(QFile::copy(path, copy));
    return copy;
  }());
  const Folder killed;
  {
    Database database(path, Access::ReadWrite);
    Migrate(database, 1);
    ASSERT_TRUE(QFile::copy(path, killed.Path()));
    ASSERT_TRUE(QFile::copy(path + "-wal", killed.Path("test.dossier-wal")));
  }
  EXPECT_EQ(ReadBack(killed.Path()), contents);
}

}  // namespace
}  // namespace brivane::dossier
