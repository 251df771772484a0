#include <sys/stat.h>

#include "dossier/store/Database.h"
#include "dossier/store/Schema.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/OrdinaryUser.h"

// What opening refuses, with one message and the file as it was.
namespace brivane::dossier {
namespace {

/// Opening meets this problem, tells the adviser in Dutch which file it is, and leaves the folder as it was.
void ExpectRefused(const Folder& folder, const QString& path, OpeningProblem problem, const QString& message) {
  const QStringList contents = folder.Contents();
  const QByteArray bytes = QFileInfo(path).isFile() ? Bytes(path) : QByteArray();
  try {
    static_cast<void>(DossierFile::Open(path));
    ADD_FAILURE() << "opened";
  } catch (const OpeningError& error) {
    EXPECT_EQ(error.Problem(), problem);
    EXPECT_EQ(error.Melding().toStdString(), message.toStdString());
    EXPECT_EQ(std::string(error.what()), message.toStdString());
  }
  EXPECT_EQ(folder.Contents(), contents);
  if (QFileInfo(path).isFile()) {
    EXPECT_EQ(Bytes(path), bytes);
  }
}

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

void Overwrite(const QString& path, qint64 position, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.seek(position));
  file.write(bytes);
}

/// Changes a loan file behind the program's back.
void Change(const QString& path, const char* sql) {
  Database database(path, Access::ReadWrite);
  database.Run(QString::fromLatin1(sql));
}

const char kDamaged[] = "Het dossier \"test.dossier\" is beschadigd en is niet geopend. Zet een reservekopie terug.";

TEST(OpeningTest, AFileThatIsNotThere) {
  const Folder folder;
  const QString message = QStringLiteral("Het dossier \"weg.dossier\" bestaat niet (meer) in de map \"%1\".")
                              .arg(QFileInfo(folder.Path()).absolutePath());
  ExpectRefused(folder, folder.Path("weg.dossier"), OpeningProblem::Missing, message);
}

TEST(OpeningTest, AFolder) {
  const Folder folder;
  QDir().mkdir(folder.Path("map.dossier"));
  ExpectRefused(folder, folder.Path("map.dossier"), OpeningProblem::Directory,
                "\"map.dossier\" is een map en geen dossier.");
}

TEST(OpeningTest, AnEmptyFile) {
  const Folder folder;
  Write(folder.Path(), {});
  ExpectRefused(folder, folder.Path(), OpeningProblem::Empty,
                "Het bestand \"test.dossier\" is leeg en bevat geen dossier.");
}

TEST(OpeningTest, AFileOfAnotherKind) {
  const Folder folder;
  const QString message = QStringLiteral("Het bestand \"test.dossier\" is geen dossier.");
  for (const QByteArray& bytes : {QByteArray("kort"), QByteArray(5000, 'x'), QByteArray(5000, '\0')}) {
    Write(folder.Path(), bytes);
    ExpectRefused(folder, folder.Path(), OpeningProblem::NotALoanFile, message);
  }
}

TEST(OpeningTest, ADatabaseOfAnotherProgram) {
  const Folder folder;
  Change(folder.Path(), "CREATE TABLE iets (anders INTEGER)");
  ExpectRefused(folder, folder.Path(), OpeningProblem::NotALoanFile, "Het bestand \"test.dossier\" is geen dossier.");
}

TEST(OpeningTest, APipe) {
  const Folder folder;
  ASSERT_EQ(mkfifo(folder.Path().toLocal8Bit().constData(), 0600), 0);
  EXPECT_EQ(ProblemAtOpening(folder.Path()), OpeningProblem::NotALoanFile);
}

TEST(OpeningTest, AFileWithAnOverwrittenPage) {
  const Folder folder;
  const QString path = folder.Make();
  Overwrite(path, 3 * 4096, QByteArray(4096, '\x55'));
  ExpectRefused(folder, path, OpeningProblem::Damaged, kDamaged);
}

TEST(OpeningTest, AFileThatWasCutOff) {
  const Folder folder;
  const QString path = folder.Make();
  for (const qint64 length : {qint64{100}, qint64{4096}, QFileInfo(path).size() - 4096, QFileInfo(path).size() - 1}) {
    const Folder cut;
    SCOPED_TRACE(length);
    QFile::copy(path, cut.Path());
    QFile::resize(cut.Path(), length);
    ExpectRefused(cut, cut.Path(), OpeningProblem::Damaged, kDamaged);
  }
}

TEST(OpeningTest, AFileWithoutATable) {
  const Folder folder;
  const QString path = folder.Make();
  Change(path, "DROP TABLE periode");
  ExpectRefused(folder, path, OpeningProblem::Damaged, kDamaged);
}

/// The message of a value that cannot be, or of a part that is missing, with its place.
QString Impossible(const char* place) {
  return QStringLiteral(
             "Het dossier \"test.dossier\" is niet geopend: het bevat een waarde die dit programma niet schrijft (%1). "
             "Zet een reservekopie terug.")
      .arg(QString::fromUtf8(place));
}
QString DamagedAt(const char* place) {
  return QStringLiteral(
             "Het dossier \"test.dossier\" is beschadigd en is niet geopend (%1). Zet een reservekopie terug.")
      .arg(QString::fromUtf8(place));
}

TEST(OpeningTest, AFileWithValuesThatNoEditWritesTellsThePlace) {
  struct Row {
    const char* sql;
    QString message;
  };
  for (const auto& [sql, message] : {
           Row{"UPDATE vrijekolom SET termijn = 32768 WHERE id = 2",
               Impossible("kolom 2 van de huidige situatie, termijn")},
           Row{"UPDATE vrijekolom SET is_product = 2 WHERE id = 2",
               Impossible("kolom 2 van de huidige situatie, product")},
           Row{"UPDATE vrijekolom SET looptijd = 2147483648 WHERE id = 2",
               Impossible("kolom 2 van de huidige situatie, looptijd")},
           Row{"UPDATE vrijekolom SET percentage_overgang = 1e300 WHERE id = 2",
               Impossible("kolom 2 van de huidige situatie, overgangspercentage")},
           Row{"UPDATE vrijekolom SET id = 40000 WHERE id = 2",
               Impossible("een kolom van de huidige situatie, nummer")},
           Row{"UPDATE vrijekolom SET volgorde = 0 WHERE id = 2",
               Impossible("een kolom van de huidige situatie, volgorde")},
           Row{"UPDATE vrijekolom SET datum_aanvang = 9999999 WHERE id = 2",
               Impossible("kolom 2 van de huidige situatie, aanvangsdatum")},
           Row{"UPDATE periode SET maand = 40000 WHERE sleutel = (SELECT min(sleutel) FROM periode)",
               Impossible("kolom 1 van de huidige situatie, periode 1, maand")},
           Row{"UPDATE dossier SET leeftijd = 40000", Impossible("leeftijdsgrens")},
           Row{"UPDATE persoon SET geboortedatum = 9999999 WHERE nummer = 2", Impossible("partner, geboortedatum")},
           Row{"INSERT INTO voorstel VALUES (1, 40000)", Impossible("voorstel 1")},
           Row{"UPDATE lening SET nummer = 9 WHERE nummer = 1", DamagedAt("lening 1 van de nieuwe situatie ontbreekt")},
           Row{"DELETE FROM lening WHERE nummer = 0", DamagedAt("de huidige situatie ontbreekt")},
           Row{"DELETE FROM dossier", DamagedAt("de uitgangspunten ontbreken")},
           Row{"DELETE FROM persoon", DamagedAt("aanvrager ontbreekt")},
           Row{"DELETE FROM persoon WHERE nummer = 1", DamagedAt("aanvrager ontbreekt")},
           Row{"UPDATE vrijekolom SET lening = 999 WHERE id = 2", DamagedAt("een kolom hoort bij geen lening")},
           Row{"UPDATE periode SET kolom = 999", DamagedAt("een periode hoort bij geen kolom")},
       }) {
    const Folder folder;
    const QString path = folder.Make();
    Change(path, sql);
    SCOPED_TRACE(sql);
    const bool value = message.contains("niet schrijft");
    ExpectRefused(folder, path, value ? OpeningProblem::Impossible : OpeningProblem::Damaged, message);
  }
}

TEST(OpeningTest, AFileWithoutAVersion) {
  const Folder folder;
  const QString path = folder.Make();
  Change(path, "PRAGMA user_version = 0");
  // In the file itself, not only in a log beside it.
  Change(path, "PRAGMA wal_checkpoint(TRUNCATE)");
  ExpectRefused(folder, path, OpeningProblem::Damaged, kDamaged);
}

const char kNewer[] =
    "Het dossier \"test.dossier\" is gemaakt met een nieuwere versie van dit programma. Werk het programma bij om het "
    "te "
    "openen.";

TEST(OpeningTest, AFileOfANewerVersion) {
  const Folder folder;
  const QString path = folder.Make();
  Change(path, "PRAGMA user_version = 4");
  ExpectRefused(folder, path, OpeningProblem::Newer, kNewer);
}

TEST(OpeningTest, AFileThatANewerVersionBroughtUpToDateJustBeforeItWasKilled) {
  const Folder folder;
  const QString path = folder.Make();
  const Folder copied;
  {
    Database database(path, Access::ReadWrite);
    database.Run(QStringLiteral("PRAGMA user_version = 4"));
    // The log holds the version, the file does not yet.
    ASSERT_TRUE(QFile::copy(path, copied.Path()));
    ASSERT_TRUE(QFile::copy(path + "-wal", copied.Path("test.dossier-wal")));
  }
  ExpectRefused(copied, copied.Path(), OpeningProblem::Newer, kNewer);
}

TEST(OpeningTest, AFileThatTheUserMayNotRead) {
  const Folder folder;
  const QString path = folder.Make();
  QFile::setPermissions(QFileInfo(path).absolutePath(), QFile::Permissions(0x7777));
  QFile::setPermissions(path, {});
  const OrdinaryUser user;
  ASSERT_TRUE(user.Succeeded());
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::Unreadable);
}

TEST(OpeningTest, AFileThatIsOpenInAnotherWindow) {
  const Folder folder;
  const QString path = folder.Make();
  const auto first = DossierFile::Open(path);
  ExpectRefused(folder, path, OpeningProblem::InUse,
                "Het dossier \"test.dossier\" is al geopend in een ander venster of programma.");
}

TEST(OpeningTest, AFileThatIsOpenUnderAnotherName) {
  const Folder folder;
  const QString path = folder.Make();
  QFile::link(path, folder.Path("verwijzing.dossier"));
  const auto first = DossierFile::Open(path);
  EXPECT_EQ(ProblemAtOpening(folder.Path("verwijzing.dossier")), OpeningProblem::InUse);
}

TEST(OpeningTest, AFileAgainOnceItWasClosed) {
  const Folder folder;
  const QString path = folder.Make();
  static_cast<void>(DossierFile::Open(path));
  EXPECT_EQ(ProblemAtOpening(path), std::nullopt);
  EXPECT_EQ(folder.Contents(), QStringList("test.dossier"));
}

TEST(OpeningTest, AFileAgainAfterItWasRefused) {
  const Folder folder;
  const QString path = folder.Path();
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::Missing);
  DossierFile::Maak(path, VoorbeeldDossier());
  EXPECT_EQ(ProblemAtOpening(path), std::nullopt);
}

TEST(OpeningTest, AFileWithANameThatLooksLikeAnAddress) {
  const Folder folder;
  const QString path = folder.Make(VoorbeeldDossier(), "50% été?mode=ro#1 &'x'.dossier");
  const auto file = DossierFile::Open(path);
  file->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
  EXPECT_EQ(file->Dossier()->FindKolom(0, 1)->Looptijd(), 17);
}

TEST(OpeningTest, AnEditLeavesTheFilesMarksInPlace) {
  const Folder folder;
  const QString path = folder.Make();
  DossierFile::Open(path)->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
  Database database(path, Access::ReadOnly);
  EXPECT_EQ(database.Value(QStringLiteral("PRAGMA application_id")).toUInt(), kApplicationId);
  EXPECT_EQ(database.Value(QStringLiteral("PRAGMA user_version")).toInt(), kSchemaVersion);
  EXPECT_EQ(database.Value(QStringLiteral("PRAGMA journal_mode")).toString(), "wal");
}

TEST(MakingTest, NeverReplacesAFile) {
  const Folder folder;
  Write(folder.Path(), "van een ander");
  try {
    DossierFile::Maak(folder.Path(), LeegDossier());
    ADD_FAILURE() << "made";
  } catch (const OpeningError& error) {
    EXPECT_EQ(error.Problem(), OpeningProblem::AlreadyThere);
    EXPECT_TRUE(error.Melding().contains("staat al een bestand \"test.dossier\"")) << error.what();
  }
  EXPECT_EQ(Bytes(folder.Path()), "van een ander");
  EXPECT_EQ(folder.Contents(), QStringList("test.dossier"));
}

TEST(MakingTest, AFileWhereNoneCanBe) {
  const Folder folder;
  try {
    DossierFile::Maak(folder.Path("weg/test.dossier"), LeegDossier());
    ADD_FAILURE() << "made";
  } catch (const OpeningError& error) {
    EXPECT_EQ(error.Problem(), OpeningProblem::CannotCreate);
    EXPECT_TRUE(error.Melding().contains("kan niet worden gemaakt")) << error.what();
  }
  EXPECT_EQ(folder.Contents(), QStringList());
}

TEST(MakingTest, LeavesNothingBesideTheFile) {
  const Folder folder;
  const QString path = folder.Make(LeegDossier());
  EXPECT_EQ(folder.Contents(), QStringList("test.dossier"));
  EXPECT_EQ(DossierFile::Open(path)->ControleerHeelheid(), QStringList());
}

TEST(OpeningTest, AFileThatWasOpenedUnderARelativeNameIsFreeAfterIt) {
  const Folder folder;
  const QString name = QDir::current().relativeFilePath(folder.Make());
  ASSERT_TRUE(QFileInfo(name).isRelative());
  static_cast<void>(DossierFile::Open(name));
  EXPECT_EQ(ProblemAtOpening(name), std::nullopt);
}

}  // namespace
}  // namespace brivane::dossier
