#include <tuple>

#include "tests/dossier/store/RandomEdits.h"
#include "tests/dossier/store/Shelf.h"

// The way back and forth through all that was stored, by the stored rows themselves, in every store.
namespace brivane::dossier {
namespace {

/// How long a sequence is, and how many there are: a few in every run, more where BRIVANE_UNDO asks for them.
constexpr int kEdits = 1000;
int Sequences() {
  const int asked = qEnvironmentVariableIntValue("BRIVANE_UNDO");
  return asked > 0 ? asked : 1;
}

class WayBackTest : public EveryStoreTest {};

TEST_F(WayBackTest, AThousandEditsAreUndoneOneByOneAndRedone) {
  for (int sequence = 0; sequence < Sequences(); ++sequence) {
    SCOPED_TRACE(sequence);
    const QString name = shelf_->Make();
    std::unique_ptr<Shelf::Walk> file = shelf_->Begin(name);
    // The rows after each step; an edit that changed nothing is no step.
    std::vector<std::string> states = {file->Rows()};
    RandomEdits edits(file->Dossier(), file->Bewerkingen(), static_cast<unsigned>(sequence + 1));
    for (int n = 0; n < kEdits; ++n) {
      edits.One();
      std::string now = file->Rows();
      if (now != states.back()) states.push_back(std::move(now));
    }
    EXPECT_GT(states.size(), static_cast<std::size_t>(kEdits * 7 / 10));
    const DossierGegevens last = file->Dossier().Gegevens();
    for (std::size_t n = states.size() - 1; n > 0; --n) {
      // The way back outlives the program.
      if (n % 100 == 0) {
        file.reset();
        file = shelf_->Begin(name);
      }
      ASSERT_TRUE(file->Take(StepKind::Undo)) << n;
      ASSERT_EQ(file->Rows(), states[n - 1]) << n;
      if (n % 20 == 0) {
        ASSERT_EQ(file->Dossier().Gegevens(), file->Stored()) << n;
      }
    }
    EXPECT_FALSE(file->Take(StepKind::Undo));
    for (std::size_t n = 1; n < states.size(); ++n) {
      if (n % 100 == 0) {
        file.reset();
        file = shelf_->Begin(name);
      }
      ASSERT_TRUE(file->Take(StepKind::Redo)) << n;
      ASSERT_EQ(file->Rows(), states[n]) << n;
    }
    EXPECT_FALSE(file->Take(StepKind::Redo));
    EXPECT_EQ(file->Dossier().Gegevens(), last);
  }
}

/// Edits, undos and redos in any order: a plain list of states tells what must stand there.
TEST_F(WayBackTest, BackAndForthInAnyOrder) {
  for (int sequence = 0; sequence < Sequences(); ++sequence) {
    SCOPED_TRACE(sequence);
    const QString name = shelf_->Make();
    std::unique_ptr<Shelf::Walk> file = shelf_->Begin(name);
    std::mt19937 chance(static_cast<unsigned>(1000 + sequence));
    std::vector<std::string> states = {file->Rows()};
    std::size_t here = 0;
    unsigned seed = 0;
    for (int n = 0; n < kEdits; ++n) {
      const int what = std::uniform_int_distribution<int>(0, 9)(chance);
      if (what < 4) {
        RandomEdits(file->Dossier(), file->Bewerkingen(), ++seed + 5000U * static_cast<unsigned>(sequence)).One();
        std::string now = file->Rows();
        if (now == states[here]) continue;
        states.resize(here + 1);
        states.push_back(std::move(now));
        ++here;
      } else if (what < 7) {
        ASSERT_EQ(file->Take(StepKind::Undo).has_value(), here > 0);
        if (here > 0) --here;
      } else if (what < 9) {
        ASSERT_EQ(file->Take(StepKind::Redo).has_value(), here + 1 < states.size());
        if (here + 1 < states.size()) ++here;
      } else {
        file.reset();
        file = shelf_->Begin(name);
      }
      ASSERT_EQ(file->Rows(), states[here]) << n;
    }
  }
}

TEST_F(WayBackTest, ANewEditEndsTheWayForthAndTheHistoryKeepsAll) {
  const auto file = shelf_->Open(shelf_->Make());
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

TEST_F(WayBackTest, WhatTheAdviserDidComesBeforeWhatItSetOff) {
  const auto file = shelf_->Open(shelf_->Make());
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

TEST_F(WayBackTest, AnEditThatChangesNothingLeavesNoStep) {
  const auto file = shelf_->Open(shelf_->Make());
  const auto column = file->Dossier()->FindKolom(0, 1);
  column->SetLooptijd(column->Looptijd());
  EXPECT_TRUE(file->Next(StepKind::Undo).empty());
  EXPECT_TRUE(file->Geschiedenis()->Find({}).empty());
}

TEST_F(WayBackTest, AKeyOfWhatWasRemovedIsNotGivenOutAgain) {
  const QString path = shelf_->Make();
  Sleutel key = 0;
  {
    const auto file = shelf_->Open(path);
    const auto column = file->Dossier()->NewKolom(0);
    key = column->Sleutel();
    file->Dossier()->Verwijder(0, column->Id());
  }
  EXPECT_GT(shelf_->Open(path)->Dossier()->NewKolom(0)->Sleutel(), key);
}

TEST_F(WayBackTest, ALoanComesBackInItsPlaceWithAllThatItHeld) {
  const auto file = shelf_->Open(shelf_->Make());
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

TEST_F(WayBackTest, AMoveIsToldByTheNamesOfTheLoans) {
  const auto file = shelf_->Open(shelf_->Make());
  file->Dossier()->Verplaats(0, 4, 2);
  const auto history = file->Geschiedenis();
  const std::vector<HistoryLine> lines = history->Lines(history->Find({}));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].entry.before, Stored(std::string("Huidige lening")));
  EXPECT_EQ(lines[0].entry.after, Stored(std::string("Nieuwe lening 2")));
}

}  // namespace
}  // namespace brivane::dossier
