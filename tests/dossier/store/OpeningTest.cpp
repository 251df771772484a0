#include <sys/stat.h>

#include "dossier/store/Database.h"
#include "dossier/store/Schema.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/OrdinaryUser.h"

// What opening refuses, with one message and the file as it was.
namespace brivane::dossier {
namespace {

/// Opening meets this problem, tells the adviser in Dutch which file it is, and leaves the folder as it was.
void VerwachtGeweigerd(const Map& map, const QString& pad, OpeningProblem problem, const QString& melding) {
  const QStringList inhoud = map.Inhoud();
  const QByteArray bytes = QFileInfo(pad).isFile() ? Bytes(pad) : QByteArray();
  try {
    static_cast<void>(DossierBestand::Open(pad));
    ADD_FAILURE() << "opened";
  } catch (const OpeningError& error) {
    EXPECT_EQ(error.Problem(), problem);
    EXPECT_EQ(error.Melding(), melding);
    EXPECT_EQ(QString::fromUtf8(error.what()), melding);
  }
  EXPECT_EQ(map.Inhoud(), inhoud);
  if (QFileInfo(pad).isFile()) {
    EXPECT_EQ(Bytes(pad), bytes);
  }
}

void Schrijf(const QString& pad, const QByteArray& bytes) {
  QFile bestand(pad);
  ASSERT_TRUE(bestand.open(QIODevice::WriteOnly));
  bestand.write(bytes);
}

void Overschrijf(const QString& pad, qint64 plaats, const QByteArray& bytes) {
  QFile bestand(pad);
  ASSERT_TRUE(bestand.open(QIODevice::ReadWrite));
  ASSERT_TRUE(bestand.seek(plaats));
  bestand.write(bytes);
}

/// Changes a loan file behind the program's back.
void Wijzig(const QString& pad, const char* sql) {
  Database database(pad, Access::ReadWrite);
  database.Run(QString::fromLatin1(sql));
}

const char kBeschadigd[] = "Het dossier \"test.dossier\" is beschadigd en is niet geopend. Zet een reservekopie terug.";

TEST(Openen, AFileThatIsNotThere) {
  const Map map;
  const QString melding = QStringLiteral("Het dossier \"weg.dossier\" bestaat niet (meer) in de map \"%1\".")
                              .arg(QFileInfo(map.Pad()).absolutePath());
  VerwachtGeweigerd(map, map.Pad("weg.dossier"), OpeningProblem::Missing, melding);
}

TEST(Openen, AFolder) {
  const Map map;
  QDir().mkdir(map.Pad("map.dossier"));
  VerwachtGeweigerd(map, map.Pad("map.dossier"), OpeningProblem::Directory,
                    "\"map.dossier\" is een map en geen dossier.");
}

TEST(Openen, AnEmptyFile) {
  const Map map;
  Schrijf(map.Pad(), {});
  VerwachtGeweigerd(map, map.Pad(), OpeningProblem::Empty,
                    "Het bestand \"test.dossier\" is leeg en bevat geen dossier.");
}

TEST(Openen, AFileOfAnotherKind) {
  const Map map;
  const QString melding = QStringLiteral("Het bestand \"test.dossier\" is geen dossier.");
  for (const QByteArray& bytes : {QByteArray("kort"), QByteArray(5000, 'x'), QByteArray(5000, '\0')}) {
    Schrijf(map.Pad(), bytes);
    VerwachtGeweigerd(map, map.Pad(), OpeningProblem::NotALoanFile, melding);
  }
}

TEST(Openen, ADatabaseOfAnotherProgram) {
  const Map map;
  Wijzig(map.Pad(), "CREATE TABLE iets (anders INTEGER)");
  VerwachtGeweigerd(map, map.Pad(), OpeningProblem::NotALoanFile, "Het bestand \"test.dossier\" is geen dossier.");
}

TEST(Openen, APipe) {
  const Map map;
  ASSERT_EQ(mkfifo(map.Pad().toLocal8Bit().constData(), 0600), 0);
  EXPECT_EQ(ProbleemBijOpenen(map.Pad()), OpeningProblem::NotALoanFile);
}

TEST(Openen, AFileWithAnOverwrittenPage) {
  const Map map;
  const QString pad = map.Maak();
  Overschrijf(pad, 3 * 4096, QByteArray(4096, '\x55'));
  VerwachtGeweigerd(map, pad, OpeningProblem::Damaged, kBeschadigd);
}

TEST(Openen, AFileThatWasCutOff) {
  const Map map;
  const QString pad = map.Maak();
  for (const qint64 lengte : {qint64{100}, qint64{4096}, QFileInfo(pad).size() - 4096, QFileInfo(pad).size() - 1}) {
    const Map stuk;
    SCOPED_TRACE(lengte);
    QFile::copy(pad, stuk.Pad());
    QFile::resize(stuk.Pad(), lengte);
    VerwachtGeweigerd(stuk, stuk.Pad(), OpeningProblem::Damaged, kBeschadigd);
  }
}

TEST(Openen, AFileWithoutATable) {
  const Map map;
  const QString pad = map.Maak();
  Wijzig(pad, "DROP TABLE periode");
  VerwachtGeweigerd(map, pad, OpeningProblem::Damaged, kBeschadigd);
}

TEST(Openen, AFileWithValuesThatNoEditWrites) {
  for (const char* sql :
       {"UPDATE vrijekolom SET termijn = 32768 WHERE id = 2", "UPDATE vrijekolom SET is_product = 2 WHERE id = 2",
        "UPDATE vrijekolom SET looptijd = 2147483648 WHERE id = 2",
        "UPDATE vrijekolom SET percentage_overgang = 1e300 WHERE id = 2",
        "UPDATE lening SET nummer = 9 WHERE nummer = 1", "DELETE FROM dossier", "DELETE FROM persoon",
        "DELETE FROM lening WHERE nummer = 0", "UPDATE vrijekolom SET lening = 999 WHERE id = 2",
        "UPDATE periode SET kolom = 999", "INSERT INTO voorstel VALUES (1, 40000)"}) {
    const Map map;
    const QString pad = map.Maak();
    Wijzig(pad, sql);
    SCOPED_TRACE(sql);
    VerwachtGeweigerd(map, pad, OpeningProblem::Damaged, kBeschadigd);
  }
}

TEST(Openen, AFileWithoutAVersion) {
  const Map map;
  const QString pad = map.Maak();
  Wijzig(pad, "PRAGMA user_version = 0");
  // In the file itself, not only in a log beside it.
  Wijzig(pad, "PRAGMA wal_checkpoint(TRUNCATE)");
  VerwachtGeweigerd(map, pad, OpeningProblem::Damaged, kBeschadigd);
}

const char kNieuwer[] =
    "Het dossier \"test.dossier\" is gemaakt met een nieuwere versie van dit programma. Werk het programma bij om het "
    "te "
    "openen.";

TEST(Openen, AFileOfANewerVersion) {
  const Map map;
  const QString pad = map.Maak();
  Wijzig(pad, "PRAGMA user_version = 3");
  VerwachtGeweigerd(map, pad, OpeningProblem::Newer, kNieuwer);
}

TEST(Openen, AFileThatANewerVersionBroughtUpToDateJustBeforeItWasKilled) {
  const Map map;
  const QString pad = map.Maak();
  const Map gekopieerd;
  {
    Database database(pad, Access::ReadWrite);
    database.Run(QStringLiteral("PRAGMA user_version = 3"));
    // The log holds the version, the file does not yet.
    ASSERT_TRUE(QFile::copy(pad, gekopieerd.Pad()));
    ASSERT_TRUE(QFile::copy(pad + "-wal", gekopieerd.Pad("test.dossier-wal")));
  }
  VerwachtGeweigerd(gekopieerd, gekopieerd.Pad(), OpeningProblem::Newer, kNieuwer);
}

TEST(Openen, AFileThatTheUserMayNotRead) {
  const Map map;
  const QString pad = map.Maak();
  QFile::setPermissions(QFileInfo(pad).absolutePath(), QFile::Permissions(0x7777));
  QFile::setPermissions(pad, {});
  const GewoneGebruiker gebruiker;
  ASSERT_TRUE(gebruiker.Gelukt());
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::Unreadable);
}

TEST(Openen, AFileThatIsOpenInAnotherWindow) {
  const Map map;
  const QString pad = map.Maak();
  const auto eerste = DossierBestand::Open(pad);
  VerwachtGeweigerd(map, pad, OpeningProblem::InUse,
                    "Het dossier \"test.dossier\" is al geopend in een ander venster of programma.");
}

TEST(Openen, AFileThatIsOpenUnderAnotherName) {
  const Map map;
  const QString pad = map.Maak();
  QFile::link(pad, map.Pad("verwijzing.dossier"));
  const auto eerste = DossierBestand::Open(pad);
  EXPECT_EQ(ProbleemBijOpenen(map.Pad("verwijzing.dossier")), OpeningProblem::InUse);
}

TEST(Openen, AFileAgainOnceItWasClosed) {
  const Map map;
  const QString pad = map.Maak();
  static_cast<void>(DossierBestand::Open(pad));
  EXPECT_EQ(ProbleemBijOpenen(pad), std::nullopt);
  EXPECT_EQ(map.Inhoud(), QStringList("test.dossier"));
}

TEST(Openen, AFileAgainAfterItWasRefused) {
  const Map map;
  const QString pad = map.Pad();
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::Missing);
  DossierBestand::Maak(pad, VoorbeeldDossier());
  EXPECT_EQ(ProbleemBijOpenen(pad), std::nullopt);
}

TEST(Openen, AFileWithANameThatLooksLikeAnAddress) {
  const Map map;
  const QString pad = map.Maak(VoorbeeldDossier(), "50% été?mode=ro#1 &'x'.dossier");
  const auto bestand = DossierBestand::Open(pad);
  bestand->Dossier()->ZoekKolom(0, 1)->SetLooptijd(17);
  EXPECT_EQ(bestand->Dossier()->ZoekKolom(0, 1)->Looptijd(), 17);
}

TEST(Openen, AnEditLeavesTheFilesMarksInPlace) {
  const Map map;
  const QString pad = map.Maak();
  DossierBestand::Open(pad)->Dossier()->ZoekKolom(0, 1)->SetLooptijd(17);
  Database database(pad, Access::ReadOnly);
  EXPECT_EQ(database.Value(QStringLiteral("PRAGMA application_id")).toUInt(), kApplicationId);
  EXPECT_EQ(database.Value(QStringLiteral("PRAGMA user_version")).toInt(), kSchemaVersion);
  EXPECT_EQ(database.Value(QStringLiteral("PRAGMA journal_mode")).toString(), "wal");
}

TEST(Maken, NeverReplacesAFile) {
  const Map map;
  Schrijf(map.Pad(), "van een ander");
  try {
    DossierBestand::Maak(map.Pad(), LeegDossier());
    ADD_FAILURE() << "made";
  } catch (const OpeningError& error) {
    EXPECT_EQ(error.Problem(), OpeningProblem::AlreadyThere);
    EXPECT_TRUE(error.Melding().contains("staat al een bestand \"test.dossier\"")) << error.what();
  }
  EXPECT_EQ(Bytes(map.Pad()), "van een ander");
  EXPECT_EQ(map.Inhoud(), QStringList("test.dossier"));
}

TEST(Maken, AFileWhereNoneCanBe) {
  const Map map;
  try {
    DossierBestand::Maak(map.Pad("weg/test.dossier"), LeegDossier());
    ADD_FAILURE() << "made";
  } catch (const OpeningError& error) {
    EXPECT_EQ(error.Problem(), OpeningProblem::CannotCreate);
    EXPECT_TRUE(error.Melding().contains("kan niet worden gemaakt")) << error.what();
  }
  EXPECT_EQ(map.Inhoud(), QStringList());
}

TEST(Maken, LeavesNothingBesideTheFile) {
  const Map map;
  const QString pad = map.Maak(LeegDossier());
  EXPECT_EQ(map.Inhoud(), QStringList("test.dossier"));
  EXPECT_EQ(DossierBestand::Open(pad)->ControleerHeelheid(), QStringList());
}

TEST(Openen, AFileThatWasOpenedUnderARelativeNameIsFreeAfterIt) {
  const Map map;
  const QString naam = QDir::current().relativeFilePath(map.Maak());
  ASSERT_TRUE(QFileInfo(naam).isRelative());
  static_cast<void>(DossierBestand::Open(naam));
  EXPECT_EQ(ProbleemBijOpenen(naam), std::nullopt);
}

}  // namespace
}  // namespace brivane::dossier
