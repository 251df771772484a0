#include <QSqlQuery>

#include "dossier/store/CaseTables.h"
#include "dossier/store/Database.h"
#include "dossier/store/StoreErrors.h"
#include "tests/dossier/store/Files.h"

// What a loan file keeps of its history, and what of a file it does not trust.
namespace brivane::dossier {
namespace {

TEST(UndoTest, TheTablesOfACaseAreThoseOfTheLayout) {
  const Folder folder;
  Database database(folder.Make(), Access::ReadOnly);
  for (const Tabel tabel : kTabellen) {
    const CaseTable& table = TableOf(tabel);
    QSqlQuery query = database.Prepare("SELECT name, type FROM pragma_table_info('" +
                                       QString::fromStdString(std::string(table.name)) + "') ORDER BY cid");
    Database::Run(query);
    for (const TableColumn& column : table.columns) {
      ASSERT_TRUE(query.next());
      EXPECT_EQ(query.value(0).toString().toStdString(), column.name);
      const QString type = query.value(1).toString();
      EXPECT_EQ(type == "TEXT", column.kind == Opslag::Text) << column.name;
      EXPECT_EQ(type == "REAL", column.kind == Opslag::Real) << column.name;
    }
    EXPECT_FALSE(query.next());
  }
}

TEST(UndoTest, ARowAsBytesIsTheSameRowAgain) {
  const Row row = {std::int64_t{0}, std::int64_t{127},        std::int64_t{128}, std::int64_t{-1}, 0.1, -0.0,
                   std::string(),   std::string("Zoë\0x", 6), Stored()};
  Row back;
  const std::string bytes = Pack(row);
  ASSERT_TRUE(Unpack(bytes, back));
  ASSERT_EQ(back.size(), row.size());
  for (std::size_t n = 0; n < row.size(); ++n) EXPECT_TRUE(Same(row[n], back[n])) << n;
  // What was cut off is no row.
  for (std::size_t length = 1; length < bytes.size(); ++length) {
    Row cut;
    if (Unpack(std::string_view(bytes).substr(0, length), cut)) {
      EXPECT_LT(cut.size(), row.size());
    }
  }
  EXPECT_FALSE(Unpack("t\xff\xff\xff\xff\xff\xff\xff\xff", back));
}

TEST(UndoTest, NothingOfTheHistoryCanBeChangedOrRemoved) {
  const Folder folder;
  const QString path = folder.Make();
  DossierFile::Open(path)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
  Database database(path, Access::ReadWrite);
  for (const char* sql : {"UPDATE stap SET tijd = 0", "DELETE FROM stap", "UPDATE wijziging SET oud = 5",
                          "DELETE FROM wijziging", "UPDATE naam SET tekst = 'x'", "DELETE FROM naam"}) {
    EXPECT_THROW(database.Run(QString::fromLatin1(sql)), DatabaseError) << sql;
  }
}

TEST(UndoTest, ACopyGoesOnWithTheHistoryAndTheWayBack) {
  const Folder folder;
  const QString path = folder.Make();
  const QString copy = folder.Path("kopie d'or.dossier");
  DossierGegevens contents;
  {
    const auto file = DossierFile::Open(path);
    file->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    contents = file->Dossier()->Gegevens();
    // Also of a file that is no longer where it was.
    ASSERT_TRUE(QFile::remove(path));
    file->Kopieer(copy);
  }
  EXPECT_EQ(QFile::permissions(copy) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
  const auto file = DossierFile::Open(copy);
  EXPECT_EQ(file->Dossier()->Gegevens(), contents);
  EXPECT_EQ(file->Geschiedenis()->Find({}).size(), 1U);
  ASSERT_TRUE(file->Take(StepKind::Undo));
  EXPECT_EQ(file->Dossier()->FindKolom(0, 1)->Looptijd(), 96);
  EXPECT_THROW(file->Kopieer(copy), OpeningError);
}

TEST(UndoTest, AFileThatIsOnlyReadShowsItsHistoryAndUndoesNothing) {
  const Folder folder;
  const QString path = folder.Make();
  DossierFile::Open(path)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
  QFile::setPermissions(path, QFile::ReadOwner);
  const auto file = DossierFile::Open(path);
  ASSERT_TRUE(file->IsReadOnly());
  const auto history = file->Geschiedenis();
  const std::vector<HistoryLine> lines = history->Lines(history->Find({}));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].entry.kolom_naam, "Kinderopvang");
  EXPECT_TRUE(file->Next(StepKind::Undo).empty());
  EXPECT_THROW(file->Take(StepKind::Undo), host::Error);
}

}  // namespace
}  // namespace brivane::dossier
