#include "dossier/store/Database.h"
#include "tests/dossier/store/Files.h"

// Files that SQLite opens and reads without a word, and that are damaged all the same.
namespace brivane::dossier {
namespace {

using Statements = std::initializer_list<const char*>;

/// Changes a loan file behind the program's back, and leaves no log beside it.
void Wijzig(const QString& pad, Statements statements) {
  Database database(pad, Access::ReadWrite);
  for (const char* sql : statements) database.Run(QString::fromLatin1(sql));
}

/// Every file of a folder with its bytes, but for the index of a log, which any reader makes anew.
QMap<QString, QByteArray> Alles(const Map& map) {
  QMap<QString, QByteArray> alles;
  for (const QString& naam : map.Inhoud()) {
    if (!naam.endsWith(QStringLiteral("-shm"))) alles.insert(naam, Bytes(map.Pad(naam.toUtf8().constData())));
  }
  return alles;
}

void VerwachtBeschadigd(const Map& map) {
  const auto alles = Alles(map);
  try {
    static_cast<void>(DossierBestand::Open(map.Pad()));
    ADD_FAILURE() << "opened";
  } catch (const OpeningError& error) {
    EXPECT_EQ(error.Melding(),
              "Het dossier \"test.dossier\" is beschadigd en is niet geopend. Zet een reservekopie terug.");
  }
  EXPECT_EQ(Alles(map), alles);
}

/// The file as a program leaves it that is killed after these statements: they stand in the log alone.
void VerwachtBeschadigdInHetLog(const QString& pad, Statements statements) {
  const Map gedood;
  {
    Database database(pad, Access::ReadWrite);
    for (const char* sql : statements) database.Run(QString::fromLatin1(sql));
    ASSERT_TRUE(QFile::copy(pad, gedood.Pad()));
    ASSERT_TRUE(QFile::copy(pad + "-wal", gedood.Pad("test.dossier-wal")));
  }
  VerwachtBeschadigd(gedood);
}

/// What the statements make of a file is refused, whether it stands in the file, in a file without a log of its own
/// kind, or in the log beside it.
void VerwachtBeschadigdNa(Statements statements) {
  SCOPED_TRACE(*(statements.end() - 1));
  {
    const Map map;
    Wijzig(map.Maak(), statements);
    VerwachtBeschadigd(map);
    // The same in the other kind of file, which becomes a file with a log once it is open.
    Wijzig(map.Pad(), {"PRAGMA journal_mode = DELETE"});
    VerwachtBeschadigd(map);
  }
  const Map map;
  VerwachtBeschadigdInHetLog(map.Maak(), statements);
}

TEST(Beschadigd, AConstraintInWhichOneDigitTurnedOver) {
  // With a row that breaks what it became, and without.
  for (const DossierGegevens& gegevens : {VoorbeeldDossier(), LeegDossier()}) {
    const Map map;
    const QString pad = map.Maak(gegevens);
    QByteArray bytes = Bytes(pad);
    ASSERT_EQ(bytes.count("IN (1, 2, 3)"), 1);
    bytes.replace("IN (1, 2, 3)", "IN (0, 2, 3)");
    QFile bestand(pad);
    ASSERT_TRUE(bestand.open(QIODevice::WriteOnly));
    bestand.write(bytes);
    bestand.close();
    VerwachtBeschadigd(map);
  }
}

TEST(Beschadigd, AnyLetterOfTheStoredLayout) {
  const Map map;
  const QString pad = map.Maak();
  QList<QByteArray> woorden;
  {
    Database database(pad, Access::Immutable);
    QSqlQuery query = database.Prepare("SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL");
    Database::Run(query);
    while (query.next()) woorden << query.value(0).toByteArray();
  }
  EXPECT_EQ(woorden.size(), 10);  // eight tables and two indexes
  const QByteArray heel = Bytes(pad);
  QFile bestand(pad);
  for (const QByteArray& tekst : woorden) {
    ASSERT_EQ(heel.count(tekst), 1) << tekst.toStdString();
    const qsizetype begin = heel.indexOf(tekst);
    for (qsizetype plaats = begin; plaats < begin + tekst.size(); ++plaats) {
      // By turns another digit or letter, and the other case, which for a letter says the same to SQLite.
      QByteArray stuk = heel;
      stuk[plaats] = static_cast<char>(stuk[plaats] ^ (plaats % 2 == 0 ? 0x01 : 0x20));
      ASSERT_TRUE(bestand.open(QIODevice::WriteOnly));
      bestand.write(stuk);
      bestand.close();
      ASSERT_EQ(ProbleemBijOpenen(pad), OpeningProblem::Damaged) << tekst.mid(plaats - begin, 20).toStdString();
      ASSERT_EQ(Bytes(pad), stuk);
    }
  }
  EXPECT_EQ(map.Inhoud(), QStringList("test.dossier"));
}

TEST(Beschadigd, AnIndexThatIsGone) { VerwachtBeschadigdNa({"DROP INDEX periode_kolom"}); }

TEST(Beschadigd, AnIndexTooMany) { VerwachtBeschadigdNa({"CREATE INDEX erbij ON periode (maand)"}); }

TEST(Beschadigd, AnIndexOfAConstraintThatIsGone) {
  VerwachtBeschadigdNa(
      {"PRAGMA writable_schema = ON", "DELETE FROM sqlite_schema WHERE name = 'sqlite_autoindex_lening_1'"});
}

TEST(Beschadigd, AColumnTooMany) {
  VerwachtBeschadigdNa({"ALTER TABLE lening ADD COLUMN erbij INTEGER"});
  VerwachtBeschadigdNa({"ALTER TABLE vrijekolom ADD COLUMN erbij TEXT NOT NULL DEFAULT ''"});
}

TEST(Beschadigd, AColumnThatIsGone) { VerwachtBeschadigdNa({"ALTER TABLE periode DROP COLUMN korting"}); }

TEST(Beschadigd, AColumnWithAnotherName) { VerwachtBeschadigdNa({"ALTER TABLE periode RENAME COLUMN maand TO jaar"}); }

TEST(Beschadigd, ATableTooMany) { VerwachtBeschadigdNa({"CREATE TABLE erbij (x INTEGER)"}); }

TEST(Beschadigd, ATableThatIsGone) { VerwachtBeschadigdNa({"DROP TABLE voorstel"}); }

TEST(Beschadigd, ATableWithAnotherName) { VerwachtBeschadigdNa({"ALTER TABLE persoon RENAME TO personen"}); }

TEST(Beschadigd, ATrigger) {
  VerwachtBeschadigdNa({"CREATE TRIGGER wis AFTER UPDATE ON vrijekolom BEGIN DELETE FROM periode; END"});
}

TEST(Beschadigd, AView) { VerwachtBeschadigdNa({"CREATE VIEW alles AS SELECT * FROM vrijekolom"}); }

TEST(Beschadigd, AViewInPlaceOfATable) {
  VerwachtBeschadigdNa({"DROP TABLE voorstel", "CREATE VIEW voorstel AS SELECT 1 AS voorstel, 1 AS vrij_id"});
}

TEST(Beschadigd, ARowThatBreaksAConstraint) {
  for (const char* sql :
       {"UPDATE dossier SET enig = 2", "INSERT INTO persoon VALUES (3, '', '', 'Derde', 20000)",
        "UPDATE persoon SET nummer = 0 WHERE nummer = 1", "UPDATE lening SET nummer = -1 WHERE nummer = 0",
        "INSERT INTO voorstel VALUES (4, 1)", "INSERT INTO voorstel VALUES (0, 1)"}) {
    VerwachtBeschadigdNa({"PRAGMA ignore_check_constraints = ON", sql});
  }
}

TEST(Beschadigd, ARowWithoutItsOwner) {
  VerwachtBeschadigdNa({"UPDATE vrijekolom SET lening = 999 WHERE id = 2"});
  VerwachtBeschadigdNa({"UPDATE periode SET kolom = 999"});
}

TEST(Beschadigd, APartnerWithoutAnApplicant) {
  VerwachtBeschadigdNa({"DELETE FROM persoon", "INSERT INTO persoon VALUES (2, '', '', 'Alleen', 20000)"});
}

/// A row that the table's own words do not allow, made while they were other words.
void VerwachtBeschadigdOnderAndereWoorden(const char* woorden, const char* andere, const char* sql) {
  SCOPED_TRACE(sql);
  const Map map;
  const QString pad = map.Maak();
  const auto verander = [&](const char* van, const char* naar) {
    const QByteArray update = QByteArray("UPDATE sqlite_schema SET sql = replace(sql, '") + van + "', '" + naar + "')";
    Wijzig(pad, {"PRAGMA writable_schema = ON", update.constData()});
  };
  verander(woorden, andere);
  Wijzig(pad, {sql});
  verander(andere, woorden);
  VerwachtBeschadigd(map);
}

TEST(Beschadigd, AFieldWithoutAValue) {
  VerwachtBeschadigdOnderAndereWoorden("looptijd INTEGER NOT NULL,", "looptijd INTEGER,",
                                       "UPDATE vrijekolom SET looptijd = NULL WHERE id = 2");
}

TEST(Beschadigd, AFieldWithAValueOfAnotherKind) {
  VerwachtBeschadigdOnderAndereWoorden("invoersoort INTEGER NOT NULL, bedrag REAL NOT NULL) STRICT",
                                       "invoersoort INTEGER NOT NULL, bedrag REAL NOT NULL)",
                                       "UPDATE vrijekolom SET bedrag = 'veel' WHERE id = 2");
}

TEST(Beschadigd, AnIndexThatMissesARow) {
  const Map map;
  const QString pad = map.Maak();
  int wortel = 0;
  {
    Database database(pad, Access::ReadWrite);
    wortel = database.Value("SELECT rootpage FROM sqlite_schema WHERE name = 'periode_kolom'").toInt();
  }
  // While the file does not speak of the index, it is not kept up.
  Wijzig(pad, {"PRAGMA writable_schema = ON", "DELETE FROM sqlite_schema WHERE name = 'periode_kolom'"});
  Wijzig(pad, {"INSERT INTO periode (sleutel, kolom) SELECT max(sleutel) + 1, min(kolom) FROM periode"});
  const QByteArray terug = "INSERT INTO sqlite_schema VALUES ('index', 'periode_kolom', 'periode', " +
                           QByteArray::number(wortel) + ", 'CREATE INDEX periode_kolom ON periode (kolom)')";
  Wijzig(pad, {"PRAGMA writable_schema = ON", terug.constData()});
  VerwachtBeschadigd(map);
}

TEST(Beschadigd, AKeyThatIsNeverGivenOut) {
  for (const char* sql :
       {"UPDATE periode SET sleutel = 0 WHERE sleutel = (SELECT min(sleutel) FROM periode)",
        "UPDATE periode SET sleutel = -5 WHERE sleutel = (SELECT min(sleutel) FROM periode)",
        "UPDATE periode SET sleutel = 9223372036854775807 WHERE sleutel = (SELECT max(sleutel) FROM periode)",
        "UPDATE vrijekolom SET volgorde = 9223372036854775807 WHERE id = 2",
        "UPDATE vrijekolom SET volgorde = 0 WHERE id = 2"}) {
    VerwachtBeschadigdNa({sql});
  }
}

TEST(Beschadigd, ADateOutsideTheCalendar) {
  for (const char* sql : {"UPDATE vrijekolom SET datum_aanvang = -657435 WHERE id = 2",
                          "UPDATE vrijekolom SET contractvervaldatum = 2958466 WHERE id = 2",
                          "UPDATE vrijekolom SET einddatum_overgang = -2147483648 WHERE id = 2",
                          "UPDATE persoon SET geboortedatum = 2147483647 WHERE nummer = 1"}) {
    VerwachtBeschadigdNa({sql});
  }
}

TEST(Beschadigd, TheCalendarsFirstAndLastDayAreNot) {
  const Map map;
  const QString pad = map.Maak();
  Wijzig(pad, {"UPDATE vrijekolom SET datum_aanvang = -657434, contractvervaldatum = 2958465 WHERE id = 2"});
  EXPECT_EQ(ProbleemBijOpenen(pad), std::nullopt);
}

TEST(Beschadigd, AFormatThatCannotBeWritten) {
  constexpr qsizetype kWriteFormat = 18;
  const Map map;
  const QString pad = map.Maak();
  const QByteArray heel = Bytes(pad);
  ASSERT_EQ(heel.mid(kWriteFormat, 2), "\x02\x02");
  for (const char* formaat : {"\x03\x02", "\x06\x02", "\x03\x03", "\xff\x02", "\x01\x02", "\x02\x01", "\x02\x03"}) {
    QByteArray stuk = heel;
    stuk.replace(kWriteFormat, 2, formaat);
    QFile bestand(pad);
    ASSERT_TRUE(bestand.open(QIODevice::WriteOnly));
    bestand.write(stuk);
    bestand.close();
    VerwachtBeschadigd(map);
  }
}

TEST(Beschadigd, AVersionBelowTheFirst) {
  for (const char* sql : {"PRAGMA user_version = 0", "PRAGMA user_version = -5", "PRAGMA user_version = -2147483648"}) {
    VerwachtBeschadigdNa({sql});
  }
  VerwachtBeschadigdNa({"DROP TABLE periode", "DROP TABLE vrijekolom", "DROP TABLE lening", "DROP TABLE persoon",
                        "DROP TABLE dossier", "DROP TABLE maatschappij_type", "DROP TABLE voorstel",
                        "PRAGMA user_version = 0"});
}

}  // namespace
}  // namespace brivane::dossier
