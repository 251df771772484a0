#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dossier/store/Edits.h"

namespace brivane::dossier {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const host::Error kFull(1013, "vol", "Dossier");

/// Writes down what is asked of the file, and refuses what it is told to.
class LoggedTransactions : public Edits::Transactions {
 public:
  void Begin() override { Note("begin"); }
  void Commit() override {
    Note("commit");
    makers.push_back(edits->MadeBy());
  }
  void Rollback() noexcept override { lines.emplace_back("rollback"); }
  void Reload() noexcept override { lines.emplace_back("reload"); }

  void Note(const std::string& line) {
    if (line == refused) {
      lines.push_back(line + " fails");
      throw kFull;
    }
    lines.push_back(line);
  }

  std::vector<std::string> lines;
  std::string refused;
  const Edits* edits = nullptr;
  /// Of each edit that was committed.
  std::vector<Maker> makers;
};

class EditsTest : public testing::Test {
 protected:
  EditsTest() {
    file_.edits = &edits_;
    failed_ = edits_.Failed.Connect([this](const StoreFailure& failure) {
      file_.lines.push_back(failure.told == Told::Yes ? "failed, told" : "failed, not told");
      EXPECT_EQ(failure.error.Number(), 1013);
    });
  }

  void Change(const std::string& what) {
    edits_.Write([&] { file_.Note(what); });
  }
  void ChangeAndFail(const std::string& what) {
    file_.refused = what;
    EXPECT_THROW(Change(what), host::Error);
    file_.refused.clear();
  }
  [[nodiscard]] std::vector<std::string>& Lines() { return file_.lines; }

  LoggedTransactions file_;
  Edits edits_{file_};
  host::Subscription failed_;
};

TEST_F(EditsTest, AProcedureThatChangesNothingTouchesTheFileNot) {
  edits_.Enter("A");
  edits_.Enter("B");
  edits_.Leave();
  edits_.Leave();
  EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(EditsTest, AllChangesOfAProcedureAreOneTransactionStoredAsItEnds) {
  edits_.Enter("A");
  Change("1");
  Change("2");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, WhatACalledProcedureChangesBelongsToTheEditOfItsCaller) {
  edits_.Enter("A");
  Change("1");
  edits_.Enter("B");
  Change("2");
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, AnEditOfACalledProcedureIsStoredAsThatOneEnds) {
  edits_.Enter("A");
  edits_.Enter("B");
  Change("1");
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit"));
  Change("2");
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit", "begin", "2", "commit"));
}

TEST_F(EditsTest, AChangeOutsideOfAnyProcedureIsStoredAtOnce) {
  Change("1");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit"));
}

TEST_F(EditsTest, AnEditOfAProcedureIsTheControlsAndAnyOtherTheHosts) {
  edits_.Enter("A");
  Change("1");
  edits_.Leave();
  Change("2");
  const std::size_t edit = edits_.BeginEdit();
  edits_.Enter("A");
  Change("3");
  edits_.Leave();
  ASSERT_TRUE(edits_.EndEdit(edit));
  edits_.Enter("A");
  edits_.InOneEdit([&] { Change("4"); });
  edits_.Leave();
  EXPECT_THAT(file_.makers, ElementsAre(Maker::Control, Maker::Host, Maker::Host, Maker::Host));
}

TEST_F(EditsTest, AFailingProcedureKeepsWhatItChanged) {
  edits_.Enter("A");
  Change("1");
  edits_.Enter("B");
  edits_.Fail("A");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit"));
  Change("2");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit", "begin", "2", "commit"));
}

TEST_F(EditsTest, AProcedureThatFailsWithinAnotherLeavesTheEditOpen) {
  edits_.Enter("A");
  Change("1");
  edits_.Enter("B");
  edits_.Fail("B");
  Change("2");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, TheFailureOfAnUnknownProcedureEndsNothing) {
  edits_.Enter("A");
  Change("1");
  edits_.Fail("B");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1"));
}

TEST_F(EditsTest, AFailedChangeRollsTheEditBackAndDropsItsRest) {
  edits_.Enter("A");
  Change("1");
  ChangeAndFail("2");
  Change("3");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2 fails", "rollback"));
  edits_.Fail("A");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2 fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AfterAFailedEditTheNextIsStoredAgain) {
  edits_.Enter("A");
  ChangeAndFail("1");
  edits_.Fail("A");
  Lines().clear();
  edits_.Enter("B");
  Change("2");
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "2", "commit"));
}

TEST_F(EditsTest, AFailureThatACalledProcedureReportedIsNotReportedAgainByItsCaller) {
  edits_.Enter("A");
  Change("1");
  edits_.Enter("B");
  ChangeAndFail("2");
  edits_.Fail("B");
  Change("3");
  EXPECT_NO_THROW(edits_.Leave());
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2 fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AFailingCommitIsAFailureOfTheProcedure) {
  edits_.Enter("A");
  Change("1");
  file_.refused = "commit";
  EXPECT_THROW(edits_.Leave(), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AFailingBeginIsAFailureOfTheChange) {
  edits_.Enter("A");
  file_.refused = "begin";
  EXPECT_THROW(Change("1"), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Lines(), ElementsAre("begin fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, ACommitThatFailsBehindAnotherFailureIsToldByTheFileAlone) {
  edits_.Enter("A");
  Change("1");
  file_.refused = "commit";
  edits_.Fail("A");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, not told"));
}

TEST_F(EditsTest, AFailedChangeOutsideOfAnyProcedureGoesToItsMaker) {
  ChangeAndFail("1");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1 fails", "rollback", "reload", "failed, told"));
  Change("2");
  EXPECT_EQ(Lines().back(), "commit");
}

TEST_F(EditsTest, AModalFormStoresEachChangeAtOnce) {
  edits_.Enter("cmdScenario_Click");
  edits_.BeginModal();
  Change("1");
  Change("2");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit", "begin", "2", "commit"));
  edits_.Leave();
  EXPECT_THAT(Lines(), testing::SizeIs(6));
}

TEST_F(EditsTest, WhatWasChangedBeforeAModalFormIsStoredAsItOpens) {
  edits_.Enter("A");
  Change("1");
  edits_.BeginModal();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit"));
}

TEST_F(EditsTest, AFormThatCannotStoreWhatCameBeforeDoesNotOpen) {
  edits_.Enter("A");
  Change("1");
  file_.refused = "commit";
  EXPECT_THROW(edits_.BeginModal(), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, AfterAFailedEditAModalFormStoresAgain) {
  edits_.Enter("A");
  ChangeAndFail("1");
  edits_.BeginModal();
  Change("2");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1 fails", "rollback", "reload", "failed, told", "begin", "2", "commit"));
}

TEST_F(EditsTest, AProcedureInsideAModalFormIsAnEditOfItsOwn) {
  edits_.Enter("A");
  edits_.BeginModal();
  edits_.Enter("B");
  Change("1");
  Change("2");
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, TheModalFormEndsWithTheProcedureThatOpenedIt) {
  edits_.Enter("A");
  edits_.BeginModal();
  edits_.Leave();
  edits_.Enter("B");
  Change("1");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1"));
}

TEST_F(EditsTest, AMarkedEditIsOneTransactionInAModalForm) {
  edits_.Enter("A");
  edits_.BeginModal();
  const std::size_t edit = edits_.BeginEdit();
  Change("1");
  Change("2");
  EXPECT_TRUE(edits_.EndEdit(edit));
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, AMarkedEditOwnsWhatItsProceduresChange) {
  const std::size_t edit = edits_.BeginEdit();
  edits_.Enter("A");
  Change("1");
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1"));
  EXPECT_TRUE(edits_.EndEdit(edit));
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit"));
}

TEST_F(EditsTest, AMarkedEditThatCannotBeStoredIsTold) {
  const std::size_t edit = edits_.BeginEdit();
  Change("1");
  file_.refused = "commit";
  EXPECT_FALSE(edits_.EndEdit(edit));
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, not told"));
}

TEST_F(EditsTest, EndingAMarkedEditTwiceEndsNothingElse) {
  edits_.Enter("A");
  const std::size_t edit = edits_.BeginEdit();
  edits_.Fail("A");
  edits_.Enter("B");
  EXPECT_TRUE(edits_.EndEdit(edit));
  Change("1");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1"));
}

TEST_F(EditsTest, OneEditIsStoredAsAWhole) {
  edits_.InOneEdit([&] {
    Change("1");
    Change("2");
  });
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2", "commit"));
}

TEST_F(EditsTest, OneEditThatFailsIsStoredNotAtAll) {
  EXPECT_THROW(edits_.InOneEdit([&] {
    Change("1");
    throw kFull;
  }),
               host::Error);
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, OneEditThatFailsBeforeItChangesAnythingIsNoFailureOfTheFile) {
  EXPECT_THROW(edits_.InOneEdit([] { throw kFull; }), host::Error);
  EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(EditsTest, OneEditWhoseCommitFailsGoesToItsCaller) {
  file_.refused = "commit";
  EXPECT_THROW(edits_.InOneEdit([&] { Change("1"); }), host::Error);
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit fails", "rollback", "reload", "failed, told"));
}

TEST_F(EditsTest, OneEditInsideAProcedureIsPartOfItsEdit) {
  edits_.Enter("A");
  Change("1");
  edits_.InOneEdit([&] { Change("2"); });
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "2"));
  edits_.Leave();
  EXPECT_EQ(Lines().back(), "commit");
}

TEST_F(EditsTest, TellsOfWhatWasStoredOnceItIsInTheFile) {
  const host::Subscription stored = edits_.Stored.Connect([this] { Lines().emplace_back("stored"); });
  edits_.Enter("A");
  edits_.Enter("B");
  edits_.Leave();
  Change("1");
  edits_.Leave();
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit", "stored"));
}

TEST_F(EditsTest, TellsNotOfWhatWasNotStored) {
  const host::Subscription stored = edits_.Stored.Connect([this] { Lines().emplace_back("stored"); });
  edits_.Enter("A");
  Change("1");
  file_.refused = "commit";
  EXPECT_THROW(edits_.Leave(), host::Error);
  edits_.Fail("A");
  EXPECT_THAT(Lines(), testing::Not(testing::Contains("stored")));
}

TEST_F(EditsTest, LeavingMoreThanWasEnteredIsOverlooked) {
  edits_.Leave();
  Change("1");
  EXPECT_THAT(Lines(), ElementsAre("begin", "1", "commit"));
}

}  // namespace
}  // namespace brivane::dossier
