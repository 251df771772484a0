#include <cerrno>

#include "dossier/store/Database.h"
#include "dossier/store/FileLock.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"

// Nothing that this process does with an open loan file lets anybody else in.
namespace brivane::dossier {
namespace {

const char kInUse[] = "Het dossier \"test.dossier\" is al geopend in een ander venster of programma.";

/// What any part of a process may do: a file dialog to guess the kind of a file, a copy, a check of its size.
void OpenAndClose(const QString& pad) {
  QFile file(pad);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  static_cast<void>(file.readAll());
}

TEST(Lock, OutlivesAnyOtherOpeningAndClosingOfTheFileInTheSameProcess) {
  const Map map;
  const QString pad = map.Maak();
  const auto open = DossierBestand::Open(pad);
  for (const char* name : {"", "-wal"}) {
    SCOPED_TRACE(name);
    OpenAndClose(pad + QLatin1String(name));
    TweedeProces second({"open", pad});
    EXPECT_EQ(second.Regel(), kInUse);
    EXPECT_EQ(second.Sluit(), 0);
  }
  open->Dossier()->ZoekKolom(0, 1)->SetOmschrijving("werkt door");
}

TEST(Lock, KeepsAnotherProgramOutAfterTheFileWasOpenedAndClosed) {
  const Map map;
  const QString pad = map.Maak();
  const auto open = DossierBestand::Open(pad);
  OpenAndClose(pad);
  TweedeProces other({"schrijf", pad});
  EXPECT_EQ(other.Regel(), "geweigerd: database is locked");
  EXPECT_EQ(other.Sluit(), 0);
}

TEST(Lock, KeepsTwoWindowsOfOneProcessApart) {
  const Map map;
  const QString pad = map.Maak();
  QFile::link(pad, map.Pad("verwijzing.dossier"));
  auto first = DossierBestand::Open(pad);
  OpenAndClose(pad);
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::InUse);
  EXPECT_EQ(ProbleemBijOpenen(map.Pad("verwijzing.dossier")), OpeningProblem::InUse);
  first.reset();
  EXPECT_EQ(ProbleemBijOpenen(map.Pad("verwijzing.dossier")), std::nullopt);
}

TEST(Lock, OfAFileIsHeldOverALogThatWasLeftBehind) {
  const Map map;
  const QString pad = map.Maak();
  {
    TweedeProces killed({"bewerk", pad, "1", "1000000"});
    EXPECT_EQ(killed.Regel(), "1");
    static_cast<void>(killed.Dood());
  }
  ASSERT_TRUE(QFile::exists(pad + "-wal"));
  const auto open = DossierBestand::Open(pad);
  OpenAndClose(pad);
  OpenAndClose(pad + "-wal");
  TweedeProces second({"open", pad});
  EXPECT_EQ(second.Regel(), kInUse);
  EXPECT_EQ(second.Sluit(), 0);
}

TEST(Lock, AFileSystemWithoutLocksIsNotAFileInUse) {
  using Cause = LockError::Cause;
  for (const auto& [error, cause] : {std::pair{EAGAIN, Cause::InUse},
                                     {EACCES, Cause::InUse},
                                     {ENOLCK, Cause::Unsupported},
                                     {EOPNOTSUPP, Cause::Unsupported},
                                     {ENOSYS, Cause::Unsupported},
                                     {EIO, Cause::Failed}}) {
    EXPECT_EQ(LockError::CauseOf(error), cause) << error;
  }
}

/// Another file under the name of a log that is in use must not share that log.
TEST(Lock, HoldsTheLogToo) {
  const Map map;
  const QString pad = map.Maak();
  const QString backup = map.Maak(VoorbeeldDossier(), "reserve.dossier");
  const auto open = DossierBestand::Open(pad);
  ASSERT_TRUE(QFile::remove(pad));
  ASSERT_TRUE(QFile::copy(backup, pad));
  TweedeProces second({"open", pad});
  EXPECT_EQ(second.Regel(), kInUse);
  EXPECT_EQ(second.Sluit(), 0);
}

}  // namespace
}  // namespace brivane::dossier
