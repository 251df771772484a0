#include <unistd.h>

#include "dossier/store/Database.h"
#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"

// What a killed program left beside a file is worked in where it belongs to that very file, and nowhere else.
namespace brivane::dossier {
namespace {

/// A folder as a program leaves it that is killed at work: the file, and a log with what was accepted last.
void KillAtWork(const QString& name, int edits = 3) {
  TweedeProces killed({"bewerk", name, "0", "1000000"});
  for (int n = 0; n < edits; ++n) EXPECT_EQ(killed.Regel(), QString::number(n));
  static_cast<void>(killed.Dood());
  ASSERT_GT(QFileInfo(QFileInfo(name).canonicalFilePath() + "-wal").size(), 0);
}

QMap<QString, QByteArray> Everything(const Map& map) {
  QMap<QString, QByteArray> everything;
  for (const QString& name : map.Inhoud()) everything.insert(name, Bytes(map.Pad(name.toUtf8().constData())));
  return everything;
}

void ExpectRefused(const Map& map, const QString& pad, OpeningProblem problem) {
  const auto before = Everything(map);
  EXPECT_EQ(ProbleemBijOpenen(pad), problem);
  EXPECT_EQ(Everything(map), before);
}

TEST(LeftOver, ALogOfTheFileItselfIsWorkedIn) {
  const Map map;
  const QString pad = map.Maak();
  KillAtWork(pad, 1);
  EXPECT_EQ(Gelezen(pad).HuidigeLening.VrijeKolommen.front().Omschrijving, "Bewerking 0");
  EXPECT_EQ(map.Inhoud(), QStringList("test.dossier"));
}

TEST(LeftOver, ANewFileIsNotMadeBesideOne) {
  const Map map;
  const QString pad = map.Maak();
  KillAtWork(pad);
  ASSERT_TRUE(QFile::remove(pad));
  for (const char* kind : {"-wal", "-journal"}) {
    const auto before = Everything(map);
    try {
      DossierBestand::Maak(pad, LeegDossier());
      ADD_FAILURE() << "made beside a " << kind;
    } catch (const OpeningError& error) {
      EXPECT_EQ(error.Problem(), OpeningProblem::LogThere);
      EXPECT_TRUE(error.Melding().contains("logboek van een eerder dossier \"test.dossier\"")) << error.what();
    }
    EXPECT_EQ(Everything(map), before);
    QFile::rename(pad + "-wal", pad + "-journal");
  }
}

TEST(LeftOver, AnotherClientsLogDoesNotJoinAFileThatCameUnderItsName) {
  const Map map;
  const QString pad = map.Maak();
  KillAtWork(pad);
  // Made elsewhere and then moved here, as by a file manager.
  const QString other = map.Maak(VoorbeeldDossier(), "ander.dossier");
  ASSERT_TRUE(QFile::remove(pad));
  ASSERT_TRUE(QFile::rename(other, pad));
  ExpectRefused(map, pad, OpeningProblem::StrangeLog);
  // Put aside, as the message says.
  ASSERT_TRUE(QFile::rename(pad + "-wal", map.Pad("weg")));
  EXPECT_EQ(Gelezen(pad).HuidigeLening.VrijeKolommen.front().Omschrijving, "Kinderopvang");
}

TEST(LeftOver, AnEmptyCaseDoesNotTakeOverAnothersLog) {
  const Map map;
  const QString pad = map.Maak();
  KillAtWork(pad);
  const QString other = map.Maak(LeegDossier(), "ander.dossier");
  ASSERT_TRUE(QFile::remove(pad));
  ASSERT_TRUE(QFile::rename(other, pad));
  ExpectRefused(map, pad, OpeningProblem::StrangeLog);
}

TEST(LeftOver, ABackupThatIsPutBackBesideALaterLogShowsNoRowsOfIt) {
  const Map map;
  const QString pad = map.Maak();
  const QString backup = map.Pad("reserve.dossier");
  ASSERT_TRUE(QFile::copy(pad, backup));
  // One session that ended, and one that was killed.
  DossierBestand::Open(pad)->Dossier()->ZoekKolom(0, 1)->SetLooptijd(17);
  KillAtWork(pad);
  ASSERT_TRUE(QFile::remove(pad));
  ASSERT_TRUE(QFile::copy(backup, pad));
  ExpectRefused(map, pad, OpeningProblem::StrangeLog);
}

TEST(LeftOver, ALogIsFoundBesideTheFileAndNotBesideALinkToIt) {
  const Map map;
  QDir().mkdir(map.Pad("koppelingen"));
  const QString pad = map.Maak();
  const QString link = map.Pad("koppelingen/naam.dossier");
  ASSERT_TRUE(QFile::link(pad, link));
  KillAtWork(pad, 1);
  EXPECT_EQ(Gelezen(link).HuidigeLening.VrijeKolommen.front().Omschrijving, "Bewerking 0");
  // Opened by the link, killed, and opened by its own name.
  KillAtWork(link, 1);
  EXPECT_EQ(QDir(map.Pad("koppelingen")).entryList(QDir::Files), QStringList("naam.dossier"));
  EXPECT_EQ(Gelezen(pad).HuidigeLening.VrijeKolommen.front().Omschrijving, "Bewerking 0");
}

TEST(LeftOver, AStrangersLogBesideTheFileIsRefusedThroughALinkToo) {
  const Map map;
  QDir().mkdir(map.Pad("koppelingen"));
  const QString pad = map.Maak();
  const QString link = map.Pad("koppelingen/naam.dossier");
  ASSERT_TRUE(QFile::link(pad, link));
  KillAtWork(pad);
  const QString other = map.Maak(VoorbeeldDossier(), "ander.dossier");
  ASSERT_TRUE(QFile::remove(pad));
  ASSERT_TRUE(QFile::rename(other, pad));
  const QByteArray bytes = Bytes(pad);
  const QByteArray log = Bytes(pad + "-wal");
  EXPECT_EQ(ProbleemBijOpenen(link), OpeningProblem::StrangeLog);
  EXPECT_EQ(Bytes(pad), bytes);
  EXPECT_EQ(Bytes(pad + "-wal"), log);
}

TEST(LeftOver, AFileWithASecondNameIsRefusedUnderEach) {
  const Map map;
  const QString pad = map.Maak();
  KillAtWork(pad);
  const QByteArray second = QFile::encodeName(map.Pad("tweede.dossier"));
  ASSERT_EQ(link(QFile::encodeName(pad).constData(), second.constData()), 0);
  ExpectRefused(map, map.Pad("tweede.dossier"), OpeningProblem::SecondName);
  ExpectRefused(map, pad, OpeningProblem::SecondName);
  ASSERT_TRUE(QFile::remove(map.Pad("tweede.dossier")));
  EXPECT_EQ(ProbleemBijOpenen(pad), std::nullopt);
}

TEST(LeftOver, ALogThatNeverHeldAWholeEditIsDropped) {
  const Map map;
  const QString pad = map.Maak();
  const DossierGegevens contents = Gelezen(pad);
  for (const QByteArray& bytes : {QByteArray(), QByteArray(20, '\x37'), QByteArray(6000, '\x37')}) {
    QFile log(pad + "-wal");
    ASSERT_TRUE(log.open(QIODevice::WriteOnly));
    log.write(bytes);
    log.close();
    EXPECT_EQ(Gelezen(pad), contents);
    EXPECT_EQ(map.Inhoud(), QStringList("test.dossier"));
  }
}

TEST(LeftOver, AValueThatNoEditWritesIsFoundInTheLogAndBothAreLeft) {
  const Map map;
  const QString pad = map.Maak();
  const Map killed;
  {
    Database database(pad, Access::ReadWrite);
    database.Run(QStringLiteral("UPDATE vrijekolom SET correctie_last = 77 WHERE id = 1"));
    ASSERT_TRUE(QFile::copy(pad, killed.Pad()));
    ASSERT_TRUE(QFile::copy(pad + "-wal", killed.Pad("test.dossier-wal")));
  }
  ExpectRefused(killed, killed.Pad(), OpeningProblem::Impossible);
}

TEST(LeftOver, TheJournalOfAnotherProgramIsNotPlayedBack) {
  const Map map;
  DossierGegevens contents = VoorbeeldDossier();
  auto& columns = contents.HuidigeLening.VrijeKolommen;
  const auto first = columns.front();
  while (columns.size() < 200) {
    columns.push_back(first);
    columns.back().Id = static_cast<std::int16_t>(columns.size());
  }
  const QString pad = map.Maak(contents);
  const Map killed;
  {
    // With so little memory pages are written before the transaction ends, and the journal holds what stood there.
    Database database(pad, Access::ReadWrite);
    for (const char* sql :
         {"PRAGMA journal_mode = DELETE", "PRAGMA cache_size = 1", "BEGIN", "UPDATE vrijekolom SET looptijd = 1"}) {
      database.Run(QString::fromLatin1(sql));
    }
    ASSERT_TRUE(QFile::copy(pad, killed.Pad()));
    ASSERT_TRUE(QFile::copy(pad + "-journal", killed.Pad("test.dossier-journal")));
  }
  ASSERT_GT(QFileInfo(killed.Pad("test.dossier-journal")).size(), 0);
  ExpectRefused(killed, killed.Pad(), OpeningProblem::StrangeLog);
}

}  // namespace
}  // namespace brivane::dossier
