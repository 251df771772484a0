#include "dossier/store/Database.h"
#include "tests/dossier/store/Files.h"

// Files that SQLite opens and reads without a word, and that are damaged all the same.
namespace brivane::dossier {
namespace {

using Statements = std::initializer_list<const char*>;

/// Changes a loan file behind the program's back, and leaves no log beside it.
void Change(const QString& path, Statements statements) {
  Database database(path, Access::ReadWrite);
  for (const char* sql : statements) database.Run(QString::fromLatin1(sql));
}

/// Every file of a folder with its bytes, but for the index of a log, which any reader makes anew.
QMap<QString, QByteArray> AllFiles(const Folder& folder) {
  QMap<QString, QByteArray> all;
  for (const QString& name : folder.Contents()) {
    if (!name.endsWith(QStringLiteral("-shm"))) all.insert(name, Bytes(folder.Path(name.toUtf8().constData())));
  }
  return all;
}

/// Refused, as damaged or with the place of a value that cannot be.
void ExpectDamaged(const Folder& folder) {
  const auto all = AllFiles(folder);
  try {
    static_cast<void>(DossierFile::Open(folder.Path()));
    ADD_FAILURE() << "opened";
  } catch (const OpeningError& error) {
    EXPECT_TRUE(error.Problem() == OpeningProblem::Damaged || error.Problem() == OpeningProblem::Impossible)
        << error.what();
  }
  EXPECT_EQ(AllFiles(folder), all);
}

/// The file as a program leaves it that is killed after these statements: they stand in the log alone.
void ExpectDamagedInTheLog(const QString& path, Statements statements) {
  const Folder killed;
  {
    Database database(path, Access::ReadWrite);
    for (const char* sql : statements) database.Run(QString::fromLatin1(sql));
    ASSERT_TRUE(QFile::copy(path, killed.Path()));
    ASSERT_TRUE(QFile::copy(path + "-wal", killed.Path("test.dossier-wal")));
  }
  ExpectDamaged(killed);
}

/// What the statements make of a file is refused, whether it stands in the file, in a file without a log of its own
/// kind, or in the log beside it.
void ExpectDamagedAfter(Statements statements) {
  SCOPED_TRACE(*(statements.end() - 1));
  {
    const Folder folder;
    Change(folder.Make(), statements);
    ExpectDamaged(folder);
    // The same in the other kind of file, which becomes a file with a log once it is open.
    Change(folder.Path(), {"PRAGMA journal_mode = DELETE"});
    ExpectDamaged(folder);
  }
  const Folder folder;
  ExpectDamagedInTheLog(folder.Make(), statements);
}

TEST(DamagedTest, AConstraintInWhichOneDigitTurnedOver) {
  // With a row that breaks what it became, and without.
  for (const DossierGegevens& gegevens : {VoorbeeldDossier(), LeegDossier()}) {
    const Folder folder;
    const QString path = folder.Make(gegevens);
    QByteArray bytes = Bytes(path);
    ASSERT_EQ(bytes.count("IN (1, 2, 3)"), 1);
    bytes.replace("IN (1, 2, 3)", "IN (0, 2, 3)");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    ExpectDamaged(folder);
  }
}

TEST(DamagedTest, AnyLetterOfTheStoredLayout) {
  const Folder folder;
  const QString path = folder.Make();
  QList<QByteArray> words;
  {
    Database database(path, Access::Immutable);
    QSqlQuery query = database.Prepare("SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL");
    Database::Run(query);
    while (query.next()) words << query.value(0).toByteArray();
  }
  EXPECT_EQ(words.size(), 19);  // eleven tables, two indexes and six triggers
  const QByteArray whole = Bytes(path);
  QFile file(path);
  for (const QByteArray& text : words) {
    ASSERT_EQ(whole.count(text), 1) << text.toStdString();
    const qsizetype begin = whole.indexOf(text);
    for (qsizetype position = begin; position < begin + text.size(); ++position) {
      // By turns another digit or letter, and the other case, which for a letter says the same to SQLite.
      QByteArray piece = whole;
      piece[position] = static_cast<char>(piece[position] ^ (position % 2 == 0 ? 0x01 : 0x20));
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(piece);
      file.close();
      ASSERT_EQ(ProblemAtOpening(path), OpeningProblem::Damaged) << text.mid(position - begin, 20).toStdString();
      ASSERT_EQ(Bytes(path), piece);
    }
  }
  EXPECT_EQ(folder.Contents(), QStringList("test.dossier"));
}

TEST(DamagedTest, AnIndexThatIsGone) { ExpectDamagedAfter({"DROP INDEX periode_kolom"}); }

TEST(DamagedTest, AnIndexTooMany) { ExpectDamagedAfter({"CREATE INDEX erbij ON periode (maand)"}); }

TEST(DamagedTest, AnIndexOfAConstraintThatIsGone) {
  ExpectDamagedAfter(
      {"PRAGMA writable_schema = ON", "DELETE FROM sqlite_schema WHERE name = 'sqlite_autoindex_lening_1'"});
}

TEST(DamagedTest, AColumnTooMany) {
  ExpectDamagedAfter({"ALTER TABLE lening ADD COLUMN erbij INTEGER"});
  ExpectDamagedAfter({"ALTER TABLE vrijekolom ADD COLUMN erbij TEXT NOT NULL DEFAULT ''"});
}

TEST(DamagedTest, AColumnThatIsGone) { ExpectDamagedAfter({"ALTER TABLE periode DROP COLUMN korting"}); }

TEST(DamagedTest, AColumnWithAnotherName) { ExpectDamagedAfter({"ALTER TABLE periode RENAME COLUMN maand TO jaar"}); }

TEST(DamagedTest, ATableTooMany) { ExpectDamagedAfter({"CREATE TABLE erbij (x INTEGER)"}); }

TEST(DamagedTest, ATableThatIsGone) { ExpectDamagedAfter({"DROP TABLE voorstel"}); }

TEST(DamagedTest, ATableWithAnotherName) { ExpectDamagedAfter({"ALTER TABLE persoon RENAME TO personen"}); }

TEST(DamagedTest, ATrigger) {
  ExpectDamagedAfter({"CREATE TRIGGER wis AFTER UPDATE ON vrijekolom BEGIN DELETE FROM periode; END"});
}

TEST(DamagedTest, AView) { ExpectDamagedAfter({"CREATE VIEW alles AS SELECT * FROM vrijekolom"}); }

TEST(DamagedTest, AViewInPlaceOfATable) {
  ExpectDamagedAfter({"DROP TABLE voorstel", "CREATE VIEW voorstel AS SELECT 1 AS voorstel, 1 AS vrij_id"});
}

TEST(DamagedTest, ARowThatBreaksAConstraint) {
  for (const char* sql :
       {"UPDATE dossier SET enig = 2", "INSERT INTO persoon VALUES (3, '', '', 'Derde', 20000, NULL)",
        "UPDATE persoon SET nummer = 0 WHERE nummer = 1", "UPDATE lening SET nummer = -1 WHERE nummer = 0",
        "INSERT INTO voorstel VALUES (4, 1)", "INSERT INTO voorstel VALUES (0, 1)"}) {
    ExpectDamagedAfter({"PRAGMA ignore_check_constraints = ON", sql});
  }
}

/// Opening may look at a file over a connection that passes over them: the test above has a row for each, and another
/// one needs its own, and a reader that keeps to it.
TEST(DamagedTest, TheConstraintsOfRowsAreThese) {
  const Folder folder;
  Database database(folder.Make(), Access::Immutable);
  QSqlQuery query = database.Prepare("SELECT name, sql FROM sqlite_schema WHERE sql LIKE '%CHECK%' ORDER BY name");
  Database::Run(query);
  QStringList found;
  while (query.next()) {
    const QString sql = query.value(1).toString();
    const qsizetype begin = sql.indexOf("CHECK");
    found << query.value(0).toString() + ": " + sql.mid(begin, sql.indexOf(')', begin) - begin + 1);
    EXPECT_EQ(sql.count("CHECK"), 1) << sql.toStdString();
  }
  EXPECT_EQ(found, (QStringList{"dossier: CHECK (enig = 1)", "lening: CHECK (nummer >= 0)",
                                "persoon: CHECK (nummer IN (1, 2)", "voorstel: CHECK (voorstel IN (1, 2, 3)"}));
}

TEST(DamagedTest, ARowWithoutItsOwner) {
  ExpectDamagedAfter({"UPDATE vrijekolom SET lening = 999 WHERE id = 2"});
  ExpectDamagedAfter({"UPDATE periode SET kolom = 999"});
}

TEST(DamagedTest, APartnerWithoutAnApplicant) {
  ExpectDamagedAfter({"DELETE FROM persoon", "INSERT INTO persoon VALUES (2, '', '', 'Alleen', 20000, NULL)"});
}

/// A row that the table's own words do not allow, made while they were other words.
void ExpectDamagedUnderOtherWords(const char* words, const char* others, const char* sql) {
  SCOPED_TRACE(sql);
  const Folder folder;
  const QString path = folder.Make();
  const auto alter = [&](const char* from, const char* to) {
    const QByteArray update = QByteArray("UPDATE sqlite_schema SET sql = replace(sql, '") + from + "', '" + to + "')";
    Change(path, {"PRAGMA writable_schema = ON", update.constData()});
  };
  alter(words, others);
  Change(path, {sql});
  alter(others, words);
  ExpectDamaged(folder);
}

TEST(DamagedTest, AFieldWithoutAValue) {
  ExpectDamagedUnderOtherWords("looptijd INTEGER NOT NULL,", "looptijd INTEGER,",
                               "UPDATE vrijekolom SET looptijd = NULL WHERE id = 2");
}

TEST(DamagedTest, AFieldWithAValueOfAnotherKind) {
  ExpectDamagedUnderOtherWords("invoersoort INTEGER NOT NULL, bedrag REAL NOT NULL) STRICT",
                               "invoersoort INTEGER NOT NULL, bedrag REAL NOT NULL)",
                               "UPDATE vrijekolom SET bedrag = 'veel' WHERE id = 2");
}

/// A file whose index does not lead to one of its rows: what is read is right, and only SQLite's check finds it.
void BreakAnIndex(const QString& path) {
  int root = 0;
  {
    Database database(path, Access::ReadWrite);
    root = database.Value("SELECT rootpage FROM sqlite_schema WHERE name = 'periode_kolom'").toInt();
  }
  // While the file does not speak of the index, it is not kept up.
  Change(path, {"PRAGMA writable_schema = ON", "DELETE FROM sqlite_schema WHERE name = 'periode_kolom'"});
  Change(path, {"INSERT INTO periode (sleutel, kolom) SELECT max(sleutel) + 1, min(kolom) FROM periode"});
  const QByteArray back = "INSERT INTO sqlite_schema VALUES ('index', 'periode_kolom', 'periode', " +
                          QByteArray::number(root) + ", 'CREATE INDEX periode_kolom ON periode (kolom)')";
  Change(path, {"PRAGMA writable_schema = ON", back.constData()});
}

TEST(DamagedTest, AnIndexThatMissesARow) {
  const Folder folder;
  BreakAnIndex(folder.Make());
  ExpectDamaged(folder);
}

/// The file is checked while it is read: what is told must not hang on which of the two is ready first.
void ExpectEachTime(const QString& path, OpeningProblem problem) {
  for (int time = 0; time < 50; ++time) ASSERT_EQ(ProblemAtOpening(path), problem) << time;
}

TEST(DamagedTest, DamageIsToldBeforeAValueThatCannotBe) {
  const Folder folder;
  const QString path = folder.Make();
  Change(path, {"UPDATE vrijekolom SET termijn = 32768 WHERE id = 2"});
  ExpectEachTime(path, OpeningProblem::Impossible);
  BreakAnIndex(path);
  ExpectEachTime(path, OpeningProblem::Damaged);
}

TEST(DamagedTest, ACaseThatIsTooLargeIsToldBeforeDamage) {
  const Folder folder;
  const QString path = folder.Make();
  BreakAnIndex(path);
  ExpectEachTime(path, OpeningProblem::Damaged);
  Change(path, {"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 60) "
                "INSERT INTO maatschappij_type SELECT 1000 + i, 'x', printf('%.*c', 100000, 'x') FROM n"});
  ExpectEachTime(path, OpeningProblem::TooLarge);
}

TEST(DamagedTest, AKeyThatIsNeverGivenOut) {
  for (const char* sql :
       {"UPDATE periode SET sleutel = 0 WHERE sleutel = (SELECT min(sleutel) FROM periode)",
        "UPDATE periode SET sleutel = -5 WHERE sleutel = (SELECT min(sleutel) FROM periode)",
        "UPDATE periode SET sleutel = 9223372036854775807 WHERE sleutel = (SELECT max(sleutel) FROM periode)",
        "UPDATE vrijekolom SET volgorde = 9223372036854775807 WHERE id = 2",
        "UPDATE vrijekolom SET volgorde = 0 WHERE id = 2"}) {
    ExpectDamagedAfter({sql});
  }
}

TEST(DamagedTest, ADateOutsideTheCalendar) {
  for (const char* sql : {"UPDATE vrijekolom SET datum_aanvang = -657435 WHERE id = 2",
                          "UPDATE vrijekolom SET contractvervaldatum = 2958466 WHERE id = 2",
                          "UPDATE vrijekolom SET einddatum_overgang = -2147483648 WHERE id = 2",
                          "UPDATE persoon SET geboortedatum = 2147483647 WHERE nummer = 1"}) {
    ExpectDamagedAfter({sql});
  }
}

TEST(DamagedTest, TheCalendarsFirstAndLastDayAreNot) {
  const Folder folder;
  const QString path = folder.Make();
  Change(path, {"UPDATE vrijekolom SET datum_aanvang = -657434, contractvervaldatum = 2958465 WHERE id = 2"});
  EXPECT_EQ(ProblemAtOpening(path), std::nullopt);
}

TEST(DamagedTest, AFormatThatCannotBeWritten) {
  constexpr qsizetype kWriteFormat = 18;
  const Folder folder;
  const QString path = folder.Make();
  const QByteArray whole = Bytes(path);
  ASSERT_EQ(whole.mid(kWriteFormat, 2), "\x02\x02");
  for (const char* format : {"\x03\x02", "\x06\x02", "\x03\x03", "\xff\x02", "\x01\x02", "\x02\x01", "\x02\x03"}) {
    QByteArray piece = whole;
    piece.replace(kWriteFormat, 2, format);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(piece);
    file.close();
    ExpectDamaged(folder);
  }
}

TEST(DamagedTest, ATextEncodingOtherThanUtf8) {
  constexpr qsizetype kEncoding = 56;
  const Folder folder;
  const QString path = folder.Make();
  const QByteArray whole = Bytes(path);
  ASSERT_EQ(whole.mid(kEncoding, 4), QByteArray("\0\0\0\x01", 4));
  const auto write = [&](char third, char last) {
    QByteArray piece = whole;
    piece[kEncoding + 2] = third;
    piece[kEncoding + 3] = last;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(piece);
  };
  for (const char last : {0, 2, 3, 4}) {
    write(0, last);
    ExpectDamaged(folder);
  }
  // The last two bits alone count.
  for (const auto& [third, last] : {std::pair{0x0d, 1}, {0, 5}}) {
    write(static_cast<char>(third), static_cast<char>(last));
    EXPECT_EQ(ProblemAtOpening(path), std::nullopt);
  }
}

TEST(DamagedTest, AVersionBelowTheFirst) {
  for (const char* sql : {"PRAGMA user_version = 0", "PRAGMA user_version = -5", "PRAGMA user_version = -2147483648"}) {
    ExpectDamagedAfter({sql});
  }
  ExpectDamagedAfter({"DROP TABLE periode", "DROP TABLE vrijekolom", "DROP TABLE lening", "DROP TABLE persoon",
                      "DROP TABLE dossier", "DROP TABLE maatschappij_type", "DROP TABLE voorstel",
                      "PRAGMA user_version = 0"});
}

}  // namespace
}  // namespace brivane::dossier
