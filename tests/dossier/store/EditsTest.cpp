#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dossier/store/Edits.h"

namespace brivane::dossier {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const host::Error kVol(1013, "vol", "Dossier");

/// Writes down what is asked of the file, and refuses what it is told to.
class Transacties : public Edits::Transactions {
 public:
  void Begin() override { Note("begin"); }
  void Commit() override { Note("commit"); }
  void Rollback() noexcept override { regels.emplace_back("rollback"); }
  void Reload() noexcept override { regels.emplace_back("reload"); }

  void Note(const std::string& regel) {
    if (regel == weiger) {
      regels.push_back(regel + " fails");
      throw kVol;
    }
    regels.push_back(regel);
  }

  std::vector<std::string> regels;
  std::string weiger;
};

class EditsTest : public testing::Test {
 protected:
  EditsTest() {
    failed_ = edits_.Failed.Connect([this](const StoreFailure& failure) {
      file_.regels.push_back(failure.told == Told::Yes ? "failed, told" : "failed, not told");
      EXPECT_EQ(failure.error.Number(), 1013);
    });
  }

  void Wijzig(const std::string& wat) {
    edits_.Write([&] { file_.Note(wat); });
  }
  void WijzigMetFout(const std::string& wat) {
    file_.weiger = wat;
    EXPECT_THROW(Wijzig(wat), host::Error);
    file_.weiger.clear();
  }
  [[nodiscard]] std::vector<std::string>& Regels() { return file_.regels; }

  Transacties file_;
  Edits edits_{file_};
  host::Subscription failed_;
};

TEST_F(EditsTest, AProcedureThatChangesNothingTouchesTheFileNot) {
  edits_.Enter("A");
  edits_.Enter("B");
  edits_.Leave();
  edits_.Leave();
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(EditsTest, AllChangesOfAProcedureAreOneTransactionStoredAsItEnds) {
  edits_.Enter("A");
  Wijzig("1");
  Wijzig("2");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, WhatACalledProcedureChangesBelongsToTheEditOfItsCaller) {
  edits_.Enter("A");
  Wijzig("1");
  edits_.Enter("B");
  Wijzig("2");
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, AnEditOfACalledProcedureIsStoredAsThatOneEnds) {
  edits_.Enter("A");
  edits_.Enter("B");
  Wijzig("1");
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit"));
  Wijzig("2");
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit", "begin", "2", "commit"));
}

TEST_F(EditsTest, AChangeOutsideOfAnyProcedureIsStoredAtOnce) {
  Wijzig("1");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit"));
}

TEST_F(EditsTest, AFailingProcedureKeepsWhatItChanged) {
  edits_.Enter("A");
  Wijzig("1");
  edits_.Enter("B");
  edits_.Fail("A");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit"));
  Wijzig("2");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit", "begin", "2", "commit"));
}

TEST_F(EditsTest, AProcedureThatFailsWithinAnotherLeavesTheEditOpen) {
  edits_.Enter("A");
  Wijzig("1");
  edits_.Enter("B");
  edits_.Fail("B");
  Wijzig("2");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, TheFailureOfAnUnknownProcedureEndsNothing) {
  edits_.Enter("A");
  Wijzig("1");
  edits_.Fail("B");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1"));
}

TEST_F(EditsTest, AFailedChangeRollsTheEditBackAndDropsItsRest) {
  edits_.Enter("A");
  Wijzig("1");
  WijzigMetFout("2");
  Wijzig("3");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2 fails", "rollback"));
  edits_.Fail("A");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2 fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AfterAFailedEditTheNextIsStoredAgain) {
  edits_.Enter("A");
  WijzigMetFout("1");
  edits_.Fail("A");
  Regels().clear();
  edits_.Enter("B");
  Wijzig("2");
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "2", "commit"));
}

TEST_F(EditsTest, AFailureThatACalledProcedureReportedIsNotReportedAgainByItsCaller) {
  edits_.Enter("A");
  Wijzig("1");
  edits_.Enter("B");
  WijzigMetFout("2");
  edits_.Fail("B");
  Wijzig("3");
  EXPECT_NO_THROW(edits_.Leave());
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2 fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AFailingCommitIsAFailureOfTheProcedure) {
  edits_.Enter("A");
  Wijzig("1");
  file_.weiger = "commit";
  EXPECT_THROW(edits_.Leave(), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AFailingBeginIsAFailureOfTheChange) {
  edits_.Enter("A");
  file_.weiger = "begin";
  EXPECT_THROW(Wijzig("1"), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Regels(), ElementsAre("begin fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, ACommitThatFailsBehindAnotherFailureIsToldByTheFileAlone) {
  edits_.Enter("A");
  Wijzig("1");
  file_.weiger = "commit";
  edits_.Fail("A");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, not told"));
}

TEST_F(EditsTest, AFailedChangeOutsideOfAnyProcedureGoesToItsMaker) {
  WijzigMetFout("1");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1 fails", "rollback", "reload", "failed, told"));
  Wijzig("2");
  EXPECT_EQ(Regels().back(), "commit");
}

TEST_F(EditsTest, AModalFormStoresEachChangeAtOnce) {
  edits_.Enter("cmdScenario_Click");
  edits_.BeginModal();
  Wijzig("1");
  Wijzig("2");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit", "begin", "2", "commit"));
  edits_.Leave();
  EXPECT_THAT(Regels(), testing::SizeIs(6));
}

TEST_F(EditsTest, WhatWasChangedBeforeAModalFormIsStoredAsItOpens) {
  edits_.Enter("A");
  Wijzig("1");
  edits_.BeginModal();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit"));
}

TEST_F(EditsTest, AFormThatCannotStoreWhatCameBeforeDoesNotOpen) {
  edits_.Enter("A");
  Wijzig("1");
  file_.weiger = "commit";
  EXPECT_THROW(edits_.BeginModal(), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AfterAFailedEditAModalFormStoresAgain) {
  edits_.Enter("A");
  WijzigMetFout("1");
  edits_.BeginModal();
  Wijzig("2");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1 fails", "rollback", "reload", "failed, told", "begin", "2", "commit"));
}

TEST_F(EditsTest, AProcedureInsideAModalFormIsAnEditOfItsOwn) {
  edits_.Enter("A");
  edits_.BeginModal();
  edits_.Enter("B");
  Wijzig("1");
  Wijzig("2");
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, TheModalFormEndsWithTheProcedureThatOpenedIt) {
  edits_.Enter("A");
  edits_.BeginModal();
  edits_.Leave();
  edits_.Enter("B");
  Wijzig("1");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1"));
}

TEST_F(EditsTest, AMarkedEditIsOneTransactionInAModalForm) {
  edits_.Enter("A");
  edits_.BeginModal();
  const std::size_t edit = edits_.BeginEdit();
  Wijzig("1");
  Wijzig("2");
  EXPECT_TRUE(edits_.EndEdit(edit));
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, AMarkedEditOwnsWhatItsProceduresChange) {
  const std::size_t edit = edits_.BeginEdit();
  edits_.Enter("A");
  Wijzig("1");
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1"));
  EXPECT_TRUE(edits_.EndEdit(edit));
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit"));
}

TEST_F(EditsTest, AMarkedEditThatCannotBeStoredIsTold) {
  const std::size_t edit = edits_.BeginEdit();
  Wijzig("1");
  file_.weiger = "commit";
  EXPECT_FALSE(edits_.EndEdit(edit));
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, not told"));
}

TEST_F(EditsTest, EndingAMarkedEditTwiceEndsNothingElse) {
  edits_.Enter("A");
  const std::size_t edit = edits_.BeginEdit();
  edits_.Fail("A");
  edits_.Enter("B");
  EXPECT_TRUE(edits_.EndEdit(edit));
  Wijzig("1");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1"));
}

TEST_F(EditsTest, OneEditIsStoredAsAWhole) {
  edits_.InOneEdit([&] {
    Wijzig("1");
    Wijzig("2");
  });
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, OneEditThatFailsIsStoredNotAtAll) {
  EXPECT_THROW(edits_.InOneEdit([&] {
    Wijzig("1");
    throw kVol;
  }),
               host::Error);
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, OneEditThatFailsBeforeItChangesAnythingIsNoFailureOfTheFile) {
  EXPECT_THROW(edits_.InOneEdit([] { throw kVol; }), host::Error);
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(EditsTest, OneEditWhoseCommitFailsGoesToItsCaller) {
  file_.weiger = "commit";
  EXPECT_THROW(edits_.InOneEdit([&] { Wijzig("1"); }), host::Error);
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, OneEditInsideAProcedureIsPartOfItsEdit) {
  edits_.Enter("A");
  Wijzig("1");
  edits_.InOneEdit([&] { Wijzig("2"); });
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_EQ(Regels().back(), "commit");
}

TEST_F(EditsTest, TellsOfWhatWasStoredOnceItIsInTheFile) {
  const host::Subscription stored = edits_.Stored.Connect([this] { Regels().emplace_back("stored"); });
  edits_.Enter("A");
  edits_.Enter("B");
  edits_.Leave();
  Wijzig("1");
  edits_.Leave();
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit", "stored"));
}

TEST_F(EditsTest, TellsNotOfWhatWasNotStored) {
  const host::Subscription stored = edits_.Stored.Connect([this] { Regels().emplace_back("stored"); });
  edits_.Enter("A");
  Wijzig("1");
  file_.weiger = "commit";
  EXPECT_THROW(edits_.Leave(), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Regels(), testing::Not(testing::Contains("stored")));
}

TEST_F(EditsTest, LeavingMoreThanWasEnteredIsOverlooked) {
  edits_.Leave();
  Wijzig("1");
  EXPECT_THAT(Regels(), ElementsAre("begin", "1", "commit"));
}

}  // namespace
}  // namespace brivane::dossier
