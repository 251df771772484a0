#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/RandomEdits.h"
#include "tests/dossier/store/StoredRows.h"

// The way back and forth through all that was stored, by the rows of the file themselves.
namespace brivane::dossier {
namespace {

/// How long a sequence is, and how many there are: a few in every run, more where BRIVANE_UNDO asks for them.
constexpr int kEdits = 1000;
int Sequences() {
  const int asked = qEnvironmentVariableIntValue("BRIVANE_UNDO");
  return asked > 0 ? asked : 1;
}

/// A loan file on a connection of the test's own, which does not wait for the disk and reads the rows itself.
class OnFile {
 public:
  explicit OnFile(QString path) : path_(std::move(path)) { Open(); }
  /// Closes the file and opens it again.
  void Reopen() {
    journal_.reset();
    Open();
  }
  [[nodiscard]] std::optional<Done> Take(StepKind kind) { return journal_->Take(kind); }
  [[nodiscard]] std::string Rows() { return StoredRows(*database_); }
  void OneEdit(unsigned seed) { RandomEdits(*dossier_, journal_->Bewerkingen(), seed).One(); }
  [[nodiscard]] dossier::Dossier& Dossier() { return *dossier_; }
  [[nodiscard]] Edits& Bewerkingen() { return journal_->Bewerkingen(); }
  /// What the file holds, read anew.
  [[nodiscard]] DossierGegevens Stored() { return ReadDossier(*database_).gegevens; }

 private:
  void Open() {
    auto database = std::make_unique<Database>(path_, Access::ReadWrite);
    for (const char* sql : {"PRAGMA synchronous = OFF", "PRAGMA foreign_keys = ON"}) database->Run(sql);
    database_ = database.get();
    StoredDossier stored = ReadDossier(*database);
    journal_ = std::make_shared<FileJournal>(
        std::move(database), stored, [this](DossierGegevens contents) { dossier_->Herlaad(std::move(contents)); });
    auto environment = std::make_shared<Environment>();
    environment->Journal = journal_;
    dossier_ = std::make_shared<dossier::Dossier>(std::move(stored.gegevens), std::move(environment));
  }

  QString path_;
  Database* database_ = nullptr;
  std::shared_ptr<FileJournal> journal_;
  std::shared_ptr<dossier::Dossier> dossier_;
};

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

TEST(UndoTest, AThousandEditsAreUndoneOneByOneAndRedone) {
  for (int sequence = 0; sequence < Sequences(); ++sequence) {
    SCOPED_TRACE(sequence);
    const Folder folder;
    OnFile file(folder.Make());
    // The rows after each step; an edit that changed nothing is no step.
    std::vector<std::string> states = {file.Rows()};
    RandomEdits edits(file.Dossier(), file.Bewerkingen(), static_cast<unsigned>(sequence + 1));
    for (int n = 0; n < kEdits; ++n) {
      edits.One();
      std::string now = file.Rows();
      if (now != states.back()) states.push_back(std::move(now));
    }
    EXPECT_GT(states.size(), static_cast<std::size_t>(kEdits * 7 / 10));
    const DossierGegevens last = file.Dossier().Gegevens();
    for (std::size_t n = states.size() - 1; n > 0; --n) {
      // The way back outlives the program.
      if (n % 100 == 0) file.Reopen();
      ASSERT_TRUE(file.Take(StepKind::Undo)) << n;
      ASSERT_EQ(file.Rows(), states[n - 1]) << n;
      if (n % 20 == 0) {
        ASSERT_EQ(file.Dossier().Gegevens(), file.Stored()) << n;
      }
    }
    EXPECT_FALSE(file.Take(StepKind::Undo));
    for (std::size_t n = 1; n < states.size(); ++n) {
      if (n % 100 == 0) file.Reopen();
      ASSERT_TRUE(file.Take(StepKind::Redo)) << n;
      ASSERT_EQ(file.Rows(), states[n]) << n;
    }
    EXPECT_FALSE(file.Take(StepKind::Redo));
    EXPECT_EQ(file.Dossier().Gegevens(), last);
  }
}

/// Edits, undos and redos in any order: a plain list of states tells what must stand there.
TEST(UndoTest, BackAndForthInAnyOrder) {
  for (int sequence = 0; sequence < Sequences(); ++sequence) {
    SCOPED_TRACE(sequence);
    const Folder folder;
    OnFile file(folder.Make());
    std::mt19937 chance(static_cast<unsigned>(1000 + sequence));
    std::vector<std::string> states = {file.Rows()};
    std::size_t here = 0;
    unsigned seed = 0;
    for (int n = 0; n < kEdits; ++n) {
      const int what = std::uniform_int_distribution<int>(0, 9)(chance);
      if (what < 4) {
        file.OneEdit(++seed + 5000U * static_cast<unsigned>(sequence));
        std::string now = file.Rows();
        if (now == states[here]) continue;
        states.resize(here + 1);
        states.push_back(std::move(now));
        ++here;
      } else if (what < 7) {
        ASSERT_EQ(file.Take(StepKind::Undo).has_value(), here > 0);
        if (here > 0) --here;
      } else if (what < 9) {
        ASSERT_EQ(file.Take(StepKind::Redo).has_value(), here + 1 < states.size());
        if (here + 1 < states.size()) ++here;
      } else {
        file.Reopen();
      }
      ASSERT_EQ(file.Rows(), states[here]) << n;
    }
  }
}

TEST(UndoTest, ANewEditEndsTheWayForthAndTheHistoryKeepsAll) {
  const Folder folder;
  const auto file = DossierFile::Open(folder.Make());
  file->SetAuthor("Zoë de Vries");
  const auto column = [&] { return file->Dossier()->FindKolom(0, 1); };
  column()->SetLooptijd(10);
  column()->SetLooptijd(20);
  ASSERT_TRUE(file->Take(StepKind::Undo));
  EXPECT_EQ(column()->Looptijd(), 10);
  column()->SetLooptijd(30);
  EXPECT_FALSE(file->Take(StepKind::Redo));
  ASSERT_TRUE(file->Take(StepKind::Undo));
  ASSERT_TRUE(file->Take(StepKind::Undo));
  EXPECT_EQ(column()->Looptijd(), 96);

  const auto history = file->Geschiedenis();
  const std::vector<HistoryLine> lines = history->Lines(history->Find({}));
  // 96, 10, 20; back to 10; 30; back to 10; back to 96: the newest first.
  const std::vector<std::tuple<StepKind, std::int64_t, std::int64_t, std::int64_t>> expected = {
      {StepKind::Undo, 1, 10, 96}, {StepKind::Undo, 4, 30, 10}, {StepKind::Edit, 4, 10, 30},
      {StepKind::Undo, 2, 20, 10}, {StepKind::Edit, 2, 10, 20}, {StepKind::Edit, 1, 96, 10}};
  ASSERT_EQ(lines.size(), expected.size());
  for (std::size_t n = 0; n < lines.size(); ++n) {
    const auto& [kind, of, before, after] = expected[n];
    EXPECT_EQ(lines[n].step.kind, kind) << n;
    EXPECT_EQ(lines[n].step.of, of) << n;
    EXPECT_EQ(lines[n].entry.before, Stored(before)) << n;
    EXPECT_EQ(lines[n].entry.after, Stored(after)) << n;
    EXPECT_EQ(lines[n].step.who, "Zoë de Vries") << n;
    EXPECT_EQ(lines[n].entry.kolom_naam, "Kinderopvang") << n;
    EXPECT_EQ(lines[n].entry.lening_naam, "Huidige lening") << n;
    EXPECT_EQ(lines[n].entry.field, PlaceOf(Tabel::Kolom, "looptijd")) << n;
  }
}

TEST(UndoTest, WhatTheAdviserDidComesBeforeWhatItSetOff) {
  const Folder folder;
  const auto file = DossierFile::Open(folder.Make());
  const auto column = file->Dossier()->FindKolom(0, 1);
  file->Bewerkingen().InOneEdit([&] {
    column->SetTermijn(99);
    column->SetLooptijd(0);
    column->SetOmschrijving("Eens");
    while (column->Bedrag()->Periode(1)) column->Bedrag()->VerwijderPeriode(1);
  });
  const std::vector<Entry> entries = file->Next(StepKind::Undo);
  ASSERT_EQ(entries.size(), 5U);
  EXPECT_EQ(entries[0].field, PlaceOf(Tabel::Kolom, "termijn"));
  EXPECT_TRUE(entries[4].Removed());
}

TEST(UndoTest, AnEditThatChangesNothingLeavesNoStep) {
  const Folder folder;
  const auto file = DossierFile::Open(folder.Make());
  const auto column = file->Dossier()->FindKolom(0, 1);
  column->SetLooptijd(column->Looptijd());
  EXPECT_TRUE(file->Next(StepKind::Undo).empty());
  EXPECT_TRUE(file->Geschiedenis()->Find({}).empty());
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

/// What stands in the history of a file that opened may still be wrong: it is held against the case when it is used.
TEST(UndoTest, AHistoryThatDoesNotFitIsRefusedAndNothingChanges) {
  for (const char* sql :
       {"UPDATE wijziging SET nieuw = 11", "UPDATE wijziging SET veld = 99", "UPDATE wijziging SET tabel = 9",
        "UPDATE wijziging SET sleutel = 4711", "UPDATE wijziging SET stap = 7", "UPDATE stap SET eerste = 5",
        "UPDATE stap SET terug = 44", "UPDATE wijziging SET oud = 400000", "UPDATE wijziging SET veld = 0",
        "DELETE FROM wijziging", "UPDATE wijziging SET veld = 1, oud = 1, nieuw = 1"}) {
    SCOPED_TRACE(sql);
    const Folder folder;
    const QString path = folder.Make();
    DossierFile::Open(path)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    {
      Database database(path, Access::ReadWrite);
      QStringList triggers;
      QSqlQuery query = database.Prepare("SELECT name, sql FROM sqlite_schema WHERE type = 'trigger'");
      Database::Run(query);
      QStringList names;
      while (query.next()) {
        names << query.value(0).toString();
        triggers << query.value(1).toString();
      }
      query.finish();
      for (const QString& name : names) database.Run("DROP TRIGGER " + name);
      database.Run(QString::fromLatin1(sql));
      for (const QString& trigger : triggers) database.Run(trigger);
    }
    std::unique_ptr<DossierFile> file;
    try {
      file = DossierFile::Open(path);
    } catch (const OpeningError& error) {
      EXPECT_EQ(error.Problem(), OpeningProblem::Damaged);
      continue;
    }
    const DossierGegevens before = file->Dossier()->Gegevens();
    EXPECT_THROW(file->Take(StepKind::Undo), host::Error);
    EXPECT_EQ(file->Dossier()->Gegevens(), before);
    // The case itself can still be worked in.
    file->Dossier()->FindKolom(0, 1)->SetOmschrijving("gaat door");
    EXPECT_EQ(file->Dossier()->FindKolom(0, 1)->Omschrijving(), "gaat door");
  }
}

TEST(UndoTest, AKeyOfWhatWasRemovedIsNotGivenOutAgain) {
  const Folder folder;
  const QString path = folder.Make();
  Sleutel key = 0;
  {
    const auto file = DossierFile::Open(path);
    const auto column = file->Dossier()->NewKolom(0);
    key = column->Sleutel();
    file->Dossier()->Verwijder(0, column->Id());
  }
  EXPECT_GT(DossierFile::Open(path)->Dossier()->NewKolom(0)->Sleutel(), key);
}

TEST(UndoTest, ALoanComesBackInItsPlaceWithAllThatItHeld) {
  const Folder folder;
  const auto file = DossierFile::Open(folder.Make());
  Dossier& dossier = *file->Dossier();
  dossier.VoegToeAanVoorstel(2, 7);
  dossier.NieuweLening("Derde");
  const DossierGegevens before = dossier.Gegevens();
  dossier.VerwijderLening(1);
  ASSERT_EQ(dossier.AantalLeningen(), 2);
  EXPECT_EQ(dossier.FindLening(1)->Naam(), "Nieuwe lening 2");
  EXPECT_EQ(dossier.FindLening(2)->Naam(), "Derde");
  // Item 7 stood in that loan alone.
  EXPECT_FALSE(dossier.Voorstel(2).contains(7));
  ASSERT_TRUE(file->Take(StepKind::Undo));
  EXPECT_EQ(dossier.Gegevens(), before);
  EXPECT_THROW(dossier.VerwijderLening(0), host::Error);
  EXPECT_THROW(dossier.VerwijderLening(9), host::Error);
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

TEST(UndoTest, AMoveIsToldByTheNamesOfTheLoans) {
  const Folder folder;
  const auto file = DossierFile::Open(folder.Make());
  file->Dossier()->Verplaats(0, 4, 2);
  const auto history = file->Geschiedenis();
  const std::vector<HistoryLine> lines = history->Lines(history->Find({}));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].entry.before, Stored(std::string("Huidige lening")));
  EXPECT_EQ(lines[0].entry.after, Stored(std::string("Nieuwe lening 2")));
}

}  // namespace
}  // namespace brivane::dossier
