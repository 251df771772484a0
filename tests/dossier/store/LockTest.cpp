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
void OpenAndClose(const QString& path) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  static_cast<void>(file.readAll());
}

TEST(LockTest, OutlivesAnyOtherOpeningAndClosingOfTheFileInTheSameProcess) {
  const Folder folder;
  const QString path = folder.Make();
  const auto open = DossierFile::Open(path);
  for (const char* name : {"", "-wal"}) {
    SCOPED_TRACE(name);
    OpenAndClose(path + QLatin1String(name));
    SecondProcess second({"open", path});
    EXPECT_EQ(second.Line(), kInUse);
    EXPECT_EQ(second.Close(), 0);
  }
  open->Dossier()->FindKolom(0, 1)->SetOmschrijving("werkt door");
}

TEST(LockTest, KeepsAnotherProgramOutAfterTheFileWasOpenedAndClosed) {
  const Folder folder;
  const QString path = folder.Make();
  const auto open = DossierFile::Open(path);
  OpenAndClose(path);
  SecondProcess other({"write", path});
  EXPECT_EQ(other.Line(), "refused: database is locked");
  EXPECT_EQ(other.Close(), 0);
}

TEST(LockTest, KeepsTwoWindowsOfOneProcessApart) {
  const Folder folder;
  const QString path = folder.Make();
  QFile::link(path, folder.Path("verwijzing.dossier"));
  auto first = DossierFile::Open(path);
  OpenAndClose(path);
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::InUse);
  EXPECT_EQ(ProblemAtOpening(folder.Path("verwijzing.dossier")), OpeningProblem::InUse);
  first.reset();
  EXPECT_EQ(ProblemAtOpening(folder.Path("verwijzing.dossier")), std::nullopt);
}

TEST(LockTest, OfAFileIsHeldOverALogThatWasLeftBehind) {
  const Folder folder;
  const QString path = folder.Make();
  {
    SecondProcess killed({"edit", path, "1", "1000000"});
    EXPECT_EQ(killed.Line(), "1");
    static_cast<void>(killed.Kill());
  }
  ASSERT_TRUE(QFile::exists(path + "-wal"));
  const auto open = DossierFile::Open(path);
  OpenAndClose(path);
  OpenAndClose(path + "-wal");
  SecondProcess second({"open", path});
  EXPECT_EQ(second.Line(), kInUse);
  EXPECT_EQ(second.Close(), 0);
}

TEST(LockTest, AFileSystemWithoutLocksIsNotAFileInUse) {
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
TEST(LockTest, HoldsTheLogToo) {
  const Folder folder;
  const QString path = folder.Make();
  const QString backup = folder.Make(VoorbeeldDossier(), "reserve.dossier");
  const auto open = DossierFile::Open(path);
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QFile::copy(backup, path));
  SecondProcess second({"open", path});
  EXPECT_EQ(second.Line(), kInUse);
  EXPECT_EQ(second.Close(), 0);
}

}  // namespace
}  // namespace brivane::dossier
