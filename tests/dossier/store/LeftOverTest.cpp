#include <unistd.h>

#include "dossier/store/Database.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"

// What a killed program left beside a file is worked in where it belongs to that very file, and nowhere else.
namespace brivane::dossier {
namespace {

/// A folder as a program leaves it that is killed at work: the file, and a log with what was accepted last.
void KillAtWork(const QString& name, int edits = 3) {
  SecondProcess killed({"edit", name, "0", "1000000"});
  for (int n = 0; n < edits; ++n) EXPECT_EQ(killed.Line(), QString::number(n));
  static_cast<void>(killed.Kill());
  ASSERT_GT(QFileInfo(QFileInfo(name).canonicalFilePath() + "-wal").size(), 0);
}

QMap<QString, QByteArray> Everything(const Folder& folder) {
  QMap<QString, QByteArray> everything;
  for (const QString& name : folder.Contents()) everything.insert(name, Bytes(folder.Path(name.toUtf8().constData())));
  return everything;
}

void ExpectRefused(const Folder& folder, const QString& path, OpeningProblem problem) {
  const auto before = Everything(folder);
  EXPECT_EQ(ProblemAtOpening(path), problem);
  EXPECT_EQ(Everything(folder), before);
}

TEST(LeftOverTest, ALogOfTheFileItselfIsWorkedIn) {
  const Folder folder;
  const QString path = folder.Make();
  KillAtWork(path, 1);
  EXPECT_EQ(ReadBack(path).HuidigeLening.VrijeKolommen.front().Omschrijving, "Bewerking 0");
  EXPECT_EQ(folder.Contents(), QStringList("test.dossier"));
}

TEST(LeftOverTest, ANewFileIsNotMadeBesideOne) {
  const Folder folder;
  const QString path = folder.Make();
  KillAtWork(path);
  ASSERT_TRUE(QFile::remove(path));
  for (const char* kind : {"-wal", "-journal"}) {
    const auto before = Everything(folder);
    try {
      DossierFile::Maak(path, LeegDossier());
      ADD_FAILURE() << "made beside a " << kind;
    } catch (const OpeningError& error) {
      EXPECT_EQ(error.Problem(), OpeningProblem::LogThere);
      EXPECT_TRUE(error.Melding().contains("logboek van een eerder dossier \"test.dossier\"")) << error.what();
    }
    EXPECT_EQ(Everything(folder), before);
    QFile::rename(path + "-wal", path + "-journal");
  }
}

TEST(LeftOverTest, AnotherClientsLogDoesNotJoinAFileThatCameUnderItsName) {
  const Folder folder;
  const QString path = folder.Make();
  KillAtWork(path);
  // Made elsewhere and then moved here, as by a file manager.
  const QString other = folder.Make(VoorbeeldDossier(), "ander.dossier");
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QFile::rename(other, path));
  ExpectRefused(folder, path, OpeningProblem::StrangeLog);
  // Put aside, as the message says.
  ASSERT_TRUE(QFile::rename(path + "-wal", folder.Path("weg")));
  EXPECT_EQ(ReadBack(path).HuidigeLening.VrijeKolommen.front().Omschrijving, "Kinderopvang");
}

TEST(LeftOverTest, AnEmptyCaseDoesNotTakeOverAnothersLog) {
  const Folder folder;
  const QString path = folder.Make();
  KillAtWork(path);
  const QString other = folder.Make(LeegDossier(), "ander.dossier");
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QFile::rename(other, path));
  ExpectRefused(folder, path, OpeningProblem::StrangeLog);
}

TEST(LeftOverTest, ABackupThatIsPutBackBesideALaterLogShowsNoRowsOfIt) {
  const Folder folder;
  const QString path = folder.Make();
  const QString backup = folder.Path("reserve.dossier");
  ASSERT_TRUE(QFile::copy(path, backup));
  // One session that ended, and one that was killed.
  DossierFile::Open(path)->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
  KillAtWork(path);
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QFile::copy(backup, path));
  ExpectRefused(folder, path, OpeningProblem::StrangeLog);
}

TEST(LeftOverTest, ALogIsFoundBesideTheFileAndNotBesideALinkToIt) {
  const Folder folder;
  QDir().mkdir(folder.Path("koppelingen"));
  const QString path = folder.Make();
  const QString link = folder.Path("koppelingen/naam.dossier");
  ASSERT_TRUE(QFile::link(path, link));
  KillAtWork(path, 1);
  EXPECT_EQ(ReadBack(link).HuidigeLening.VrijeKolommen.front().Omschrijving, "Bewerking 0");
  // Opened by the link, killed, and opened by its own name.
  KillAtWork(link, 1);
  EXPECT_EQ(QDir(folder.Path("koppelingen")).entryList(QDir::Files), QStringList("naam.dossier"));
  EXPECT_EQ(ReadBack(path).HuidigeLening.VrijeKolommen.front().Omschrijving, "Bewerking 0");
}

TEST(LeftOverTest, AStrangersLogBesideTheFileIsRefusedThroughALinkToo) {
  const Folder folder;
  QDir().mkdir(folder.Path("koppelingen"));
  const QString path = folder.Make();
  const QString link = folder.Path("koppelingen/naam.dossier");
  ASSERT_TRUE(QFile::link(path, link));
  KillAtWork(path);
  const QString other = folder.Make(VoorbeeldDossier(), "ander.dossier");
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QFile::rename(other, path));
  const QByteArray bytes = Bytes(path);
  const QByteArray log = Bytes(path + "-wal");
  EXPECT_EQ(ProblemAtOpening(link), OpeningProblem::StrangeLog);
  EXPECT_EQ(Bytes(path), bytes);
  EXPECT_EQ(Bytes(path + "-wal"), log);
}

TEST(LeftOverTest, AFileWithASecondNameIsRefusedUnderEach) {
  const Folder folder;
  const QString path = folder.Make();
  KillAtWork(path);
  const QByteArray second = QFile::encodeName(folder.Path("tweede.dossier"));
  ASSERT_EQ(link(QFile::encodeName(path).constData(), second.constData()), 0);
  ExpectRefused(folder, folder.Path("tweede.dossier"), OpeningProblem::SecondName);
  ExpectRefused(folder, path, OpeningProblem::SecondName);
  ASSERT_TRUE(QFile::remove(folder.Path("tweede.dossier")));
  EXPECT_EQ(ProblemAtOpening(path), std::nullopt);
}

TEST(LeftOverTest, ALogThatNeverHeldAWholeEditIsDropped) {
  const Folder folder;
  const QString path = folder.Make();
  const DossierGegevens contents = ReadBack(path);
  for (const QByteArray& bytes : {QByteArray(), QByteArray(20, '\x37'), QByteArray(6000, '\x37')}) {
    QFile log(path + "-wal");
    ASSERT_TRUE(log.open(QIODevice::WriteOnly));
    log.write(bytes);
    log.close();
    EXPECT_EQ(ReadBack(path), contents);
    EXPECT_EQ(folder.Contents(), QStringList("test.dossier"));
  }
}

TEST(LeftOverTest, AValueThatNoEditWritesIsFoundInTheLogAndBothAreLeft) {
  const Folder folder;
  const QString path = folder.Make();
  const Folder killed;
  {
    Database database(path, Access::ReadWrite);
    database.Run(QStringLiteral("UPDATE vrijekolom SET correctie_last = 77 WHERE id = 1"));
    ASSERT_TRUE(QFile::copy(path, killed.Path()));
    ASSERT_TRUE(QFile::copy(path + "-wal", killed.Path("test.dossier-wal")));
  }
  ExpectRefused(killed, killed.Path(), OpeningProblem::Impossible);
}

TEST(LeftOverTest, TheJournalOfAnotherProgramIsNotPlayedBack) {
  const Folder folder;
  DossierGegevens contents = VoorbeeldDossier();
  auto& columns = contents.HuidigeLening.VrijeKolommen;
  const auto first = columns.front();
  while (columns.size() < 200) {
    columns.push_back(first);
    columns.back().Id = static_cast<std::int16_t>(columns.size());
  }
  const QString path = folder.Make(contents);
  const Folder killed;
  {
    // With so little memory pages are written before the transaction ends, and the journal holds what stood there.
    Database database(path, Access::ReadWrite);
    for (const char* sql :
         {"PRAGMA journal_mode = DELETE", "PRAGMA cache_size = 1", "BEGIN", "UPDATE vrijekolom SET looptijd = 1"}) {
      database.Run(QString::fromLatin1(sql));
    }
    ASSERT_TRUE(QFile::copy(path, killed.Path()));
    ASSERT_TRUE(QFile::copy(path + "-journal", killed.Path("test.dossier-journal")));
  }
  ASSERT_GT(QFileInfo(killed.Path("test.dossier-journal")).size(), 0);
  ExpectRefused(killed, killed.Path(), OpeningProblem::StrangeLog);
}

}  // namespace
}  // namespace brivane::dossier
