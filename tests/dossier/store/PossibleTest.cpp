#include <cmath>

#include "dossier/store/CaseWeight.h"
#include "dossier/store/Database.h"
#include "dossier/store/FileJournal.h"
#include "dossier/store/Possible.h"
#include "tests/dossier/store/Files.h"
#include <brivane/host/model/Codes.h>

// What no edit writes is refused at opening, with its place; what the lists of the editor offer is possible.
namespace brivane::dossier {
namespace {

TEST(PossibleTest, WhatTheEditorsListsOffer) {
  for (const host::ListEntry& term : host::codes::kTermijnen) {
    EXPECT_TRUE(IsPossible(KolomVeld{"Termijn"}, std::int64_t{term.itemData})) << term.text;
  }
  for (const host::ListEntry& kind : host::codes::kProductsoorten) {
    EXPECT_TRUE(IsPossible(KolomVeld{"Productsoort"}, std::int64_t{kind.itemData})) << kind.text;
  }
  EXPECT_TRUE(IsPossible(KolomVeld{"Productsoort"}, std::int64_t{0}));
}

TEST(PossibleTest, TheBoundsOfEachKindOfValue) {
  struct Row {
    KolomVeld field;
    Waarde value;
    bool possible;
  };
  const std::string longest(100'000, 'x');
  const std::string longer(100'001, 'x');
  const Row rows[] = {
      {KolomVeld{"CorrectieLast"}, std::int64_t{0}, false},
      {KolomVeld{"CorrectieLast"}, std::int64_t{3}, true},
      {KolomVeld{"CorrectieLast"}, std::int64_t{77}, false},
      {KolomVeld{"CorrectieFiscaal"}, std::int64_t{4}, false},
      {KolomVeld{"HeffingBij"}, std::int64_t{3}, false},
      {KolomVeld{"Termijn"}, std::int64_t{2}, false},
      {KolomVeld{"Productsoort"}, std::int64_t{46}, false},
      {KolomVeld{"Looptijd"}, std::int64_t{32767}, true},
      {KolomVeld{"Looptijd"}, std::int64_t{32768}, false},
      {KolomVeld{"Bedrag"}, 1e15, true},
      {KolomVeld{"Bedrag"}, std::nextafter(1e15, 2e15), false},
      {KolomVeld{"Bedrag"}, -1e16, false},
      {KolomVeld{"Bedrag"}, HUGE_VAL, false},
      {KolomVeld{"Bedrag"}, std::nan(""), false},
      {KolomVeld{"Bedrag"}, std::int64_t{5}, false},
      {KolomVeld{"PercentageOvergang"}, 100.0, true},
      {KolomVeld{"PercentageOvergang"}, 100.1, false},
      {KolomVeld{"PercentageOvergang"}, -1.0, false},
      {KolomVeld{"IsProduct"}, std::int64_t{2}, false},
      {KolomVeld{"Voorstel2"}, std::string_view("J"), true},
      {KolomVeld{"Voorstel2"}, std::string_view("ja"), false},
      {KolomVeld{"Omschrijving"}, std::string_view(longest), true},
      {KolomVeld{"Omschrijving"}, std::string_view(longer), false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsPossible(row.field, row.value), row.possible) << (&row - rows);
  EXPECT_TRUE(IsPossible(PeriodeVeld{"Maand"}, std::int64_t{960}));
  EXPECT_FALSE(IsPossible(PeriodeVeld{"Maand"}, std::int64_t{961}));
  EXPECT_FALSE(IsPossible(PeriodeVeld{"Maand"}, std::int64_t{-1}));
  EXPECT_FALSE(IsPossible(PeriodeVeld{"Percentage"}, HUGE_VAL));
}

TEST(PossibleTest, AFileWithAValueThatNoEditWritesIsRefusedWithItsPlace) {
  struct Row {
    const char* sql;
    const char* place;
  };
  for (const Row& row : {
           Row{"UPDATE vrijekolom SET id = 2 WHERE id = 1",
               "kolom 2 van de huidige situatie, nummer komt twee keer voor"},
           Row{"UPDATE vrijekolom SET id = 0 WHERE id = 2", "kolom 0 van de huidige situatie, nummer"},
           Row{"UPDATE vrijekolom SET id = -3 WHERE id = 2", "kolom -3 van de huidige situatie, nummer"},
           Row{"UPDATE vrijekolom SET correctie_last = 77 WHERE id = 3",
               "kolom 3 van de huidige situatie, correctie maandlast"},
           Row{"UPDATE vrijekolom SET termijn = 4 WHERE id = 3", "kolom 3 van de huidige situatie, termijn"},
           Row{"UPDATE vrijekolom SET bedrag = 9e999 WHERE id = 3", "kolom 3 van de huidige situatie, bedrag"},
           Row{"UPDATE vrijekolom SET bedrag = 1e300 WHERE id = 3", "kolom 3 van de huidige situatie, bedrag"},
           Row{"UPDATE vrijekolom SET looptijd = 40000 WHERE id = 3", "kolom 3 van de huidige situatie, looptijd"},
           Row{"UPDATE vrijekolom SET invoersoort = 4 WHERE id = 3", "kolom 3 van de huidige situatie, invoersoort"},
           Row{"UPDATE vrijekolom SET percentage_overgang = -9e999 WHERE id = 3",
               "kolom 3 van de huidige situatie, overgangspercentage"},
           Row{"UPDATE vrijekolom SET omschrijving = hex(zeroblob(60000)) WHERE id = 3",
               "kolom 3 van de huidige situatie, omschrijving"},
           Row{"UPDATE periode SET maand = -1 WHERE sleutel = (SELECT min(sleutel) FROM periode)",
               "kolom 1 van de huidige situatie, periode 1, maand"},
           Row{"UPDATE lening SET naam = hex(zeroblob(60000)) WHERE nummer = 1",
               "naam van lening 1 van de nieuwe situatie"},
           Row{"UPDATE dossier SET leeftijd = 0", "leeftijdsgrens"},
           Row{"UPDATE persoon SET naam_3 = hex(zeroblob(60000)) WHERE nummer = 1", "aanvrager, naam"},
           Row{"INSERT INTO voorstel VALUES (2, -1)", "voorstel 2"},
       }) {
    SCOPED_TRACE(row.sql);
    const Folder folder;
    const QString path = folder.Make();
    Database(path, Access::ReadWrite).Run(QString::fromLatin1(row.sql));
    const QByteArray bytes = Bytes(path);
    try {
      static_cast<void>(DossierFile::Open(path));
      ADD_FAILURE() << "opened";
    } catch (const OpeningError& error) {
      EXPECT_EQ(error.Problem(), OpeningProblem::Impossible);
      EXPECT_TRUE(error.Melding().contains(QStringLiteral("(%1)").arg(QLatin1String(row.place)))) << error.what();
    }
    EXPECT_EQ(Bytes(path), bytes);
  }
}

TEST(PossibleTest, ThirtyThousandLoansAreRefusedBeforeAnythingIsShown) {
  const Folder folder;
  const QString path = folder.Make();
  Database(path, Access::ReadWrite)
      .Run(QStringLiteral(
          "WITH RECURSIVE n(i) AS (SELECT max(nummer) + 1 FROM lening UNION ALL SELECT i + 1 FROM n WHERE i < 30000) "
          "INSERT INTO lening (sleutel, nummer, naam) SELECT 1000000 + i, i, 'Lening' FROM n"));
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::Impossible);
}

TEST(PossibleTest, AFileLargerThanAnyCaseIsRefusedAtOnce) {
  const Folder folder;
  const QString path = folder.Make();
  ASSERT_TRUE(QFile::resize(path, kMostFile + 1));
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::TooLarge);
}

TEST(PossibleTest, WhatMakesACaseLargerThanItMayBeIsRefusedAndTheRestOpensAgain) {
  const Folder folder;
  const QString path = folder.Make();
  const std::string longest(kMostText, 'x');
  std::string reason;
  DossierGegevens stored;
  {
    const auto open = DossierFile::Open(path);
    try {
      for (int n = 0; n < 1000; ++n) open->Dossier()->NewKolom(0)->SetOmschrijving(longest);
    } catch (const host::Error& error) {
      reason = error.Description();
    }
    stored = open->Dossier()->Gegevens();
  }
  EXPECT_EQ(reason, "De wijziging is niet opgeslagen: het dossier is zo groot als een dossier kan zijn.");
  // Each text stands in the case and in its history.
  EXPECT_GT(QFileInfo(path).size(), kMostWeight);
  EXPECT_LE(QFileInfo(path).size(), 3 * kMostWeight);
  EXPECT_TRUE(ReadBack(path) == stored);
}

TEST(PossibleTest, ACaseThatIsLargerThanItMayBeIsRefusedWhateverTheFileHolds) {
  const Folder folder;
  const QString path = folder.Make();
  Database(path, Access::ReadWrite)
      .Run(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 600000) "
                          "INSERT INTO periode (kolom) SELECT (SELECT min(sleutel) FROM vrijekolom) FROM n"));
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::TooLarge);
}

TEST(PossibleTest, AChangeThatWouldNotOpenAgainIsNotStored) {
  const Folder folder;
  const QString path = folder.Make();
  const DossierGegevens before = ReadBack(path);
  {
    const auto open = DossierFile::Open(path);
    const auto column = open->Dossier()->FindKolom(0, 1);
    const std::function<void()> changes[] = {
        [&] { column->Bedrag()->SetBedrag(HUGE_VAL); },
        [&] { column->SetTermijn(4); },
        [&] { column->SetOmschrijving(std::string(kMostText + 1, 'x')); },
        [&] { column->Bedrag()->Periode(1)->SetMaand(-1); },
        [&] {
          open->Dossier()->SetClient({{.Naam = {"A", "", "B"}, .Geboortedatum = {}}}, 0);
        },
        [&] { static_cast<void>(open->Dossier()->NieuweLening(std::string(kMostText + 1, 'x'))); },
    };
    for (const auto& change : changes) {
      try {
        change();
        ADD_FAILURE() << "stored: change " << (&change - changes);
      } catch (const host::Error& error) {
        EXPECT_EQ(error.Number(), kImpossibleError);
      }
      EXPECT_EQ(open->Dossier()->Gegevens(), before);
    }
  }
  EXPECT_EQ(ReadBack(path), before);
}

}  // namespace
}  // namespace brivane::dossier
