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

TEST(PossibleTest, TheFileOfTheLargestCaseHoldsEachTextTwice) {
  const Folder folder;
  const QString path = folder.Make();
  const std::string longest(kMostText, 'x');
  EXPECT_THROW(
      {
        const auto open = DossierFile::Open(path);
        for (int n = 0; n < 1000; ++n) open->Dossier()->NewKolom(0)->SetOmschrijving(longest);
      },
      host::Error);
  // Each text stands in the case and in its history.
  EXPECT_GT(QFileInfo(path).size(), kMostWeight);
  EXPECT_LE(QFileInfo(path).size(), 3 * kMostWeight);
}

TEST(PossibleTest, ACaseThatIsLargerThanItMayBeIsRefusedWhateverTheFileHolds) {
  const Folder folder;
  const QString path = folder.Make();
  Database(path, Access::ReadWrite)
      .Run(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 600000) "
                          "INSERT INTO periode (kolom) SELECT (SELECT min(sleutel) FROM vrijekolom) FROM n"));
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::TooLarge);
}

}  // namespace
}  // namespace brivane::dossier
