#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include "app/screen/KolommenTree.h"
#include "dossier/model/SampleCase.h"
#include "dossier/store/Possible.h"

// The tree of loans and columns, alone.
namespace brivane::app {
namespace {

dossier::DossierGegevens CaseOf(std::size_t loans, std::int16_t columns) {
  dossier::DossierGegevens contents = dossier::LeegDossier();
  contents.Leningen.clear();
  for (std::size_t loan = 0; loan < loans; ++loan) {
    dossier::LeningGegevens& made = contents.Leningen.emplace_back();
    for (std::int16_t Vrij_Id = 1; Vrij_Id <= columns; ++Vrij_Id) made.VrijeKolommen.emplace_back().Id = Vrij_Id;
  }
  return contents;
}

/// Looking up what is expanded must not take ever longer with each of them.
TEST(TreeTest, AsManyLoansAsAFileMayHaveAreShownAtOnce) {
  const auto dossier =
      std::make_shared<dossier::Dossier>(CaseOf(dossier::kMostLoans, 50), std::make_shared<dossier::Environment>());
  QElapsedTimer time;
  time.start();
  KolommenTree tree(dossier);
  tree.Select({1, 50});
  EXPECT_LT(time.elapsed(), 2000);
  // All loans stand open.
  EXPECT_TRUE(tree.isExpanded(tree.currentIndex().parent()));
  EXPECT_TRUE(tree.isExpanded(tree.model()->index(static_cast<int>(dossier::kMostLoans), 0)));
}

}  // namespace
}  // namespace brivane::app
