#include <QThread>
#include <random>

#include "tests/dossier/store/Digest.h"
#include "tests/dossier/store/SecondProcess.h"
#include "tests/dossier/store/Shelf.h"

// The program is killed while it edits, undoes and redoes: the way back and the history are as the data are.
namespace brivane::dossier {
namespace {

/// What stands in a case after each step of the way that was gone, and where on it the case is.
struct Way {
  std::vector<std::string> states;
  std::size_t here = 0;

  /// One step was seen; its kind is that of the newest step of the history.
  void Step(StepKind kind, const std::string& state) {
    if (kind == StepKind::Undo) {
      ASSERT_GT(here, 0U);
      --here;
    } else if (kind == StepKind::Redo) {
      ASSERT_LT(here + 1, states.size());
      ++here;
    } else {
      states.resize(++here);
      states.push_back(state);
    }
    ASSERT_EQ(states[here], state);
  }
};

class KilledUndoTest : public EveryStoreTest {};

TEST_F(KilledUndoTest, WhateverWasUnderWayTheWayBackIsWhole) {
  const int asked = qEnvironmentVariableIntValue("BRIVANE_UNDO");
  const int turns = asked > 0 ? 25 * asked : 25;
  const QString path = shelf_->Make();
  std::mt19937 random(20261122);
  Way way{.states = {Digest(ReadBack(path))}};
  std::int64_t seen = 0;  // steps of the history that the way has
  int steps = 0;
  for (int turn = 0; turn < turns; ++turn) {
    QStringList said;
    {
      SecondProcess process({"walk", shelf_->Address(path), QString::number(turn + 1)});
      ASSERT_EQ(process.Line(), "open");
      QThread::usleep(std::uniform_int_distribution<unsigned long>(0, 150000)(random));
      said = process.Kill();
    }
    const auto file = shelf_->Open(path);
    ASSERT_EQ(shelf_->Findings(path, *file), QStringList()) << "kill " << turn;
    // The steps since the last time, each once, in their order.
    const auto history = file->Geschiedenis();
    std::vector<std::int64_t> numbers = history->Find({});
    std::reverse(numbers.begin(), numbers.end());
    std::vector<Step> since;
    for (const HistoryLine& line : history->Lines(numbers)) {
      if (line.step.number > seen && (since.empty() || since.back().number != line.step.number)) {
        ASSERT_EQ(line.step.number, (since.empty() ? seen : since.back().number) + 1);
        since.push_back(line.step);
      }
    }
    seen += static_cast<std::int64_t>(since.size());
    // What it said, without what changed nothing; one more step may have been stored when the kill struck.
    std::vector<std::string> states;
    std::string last = way.states[way.here];
    for (const QString& line : said) {
      if (line.size() != 40 || line.toStdString() == last) continue;
      states.push_back(last = line.toStdString());
    }
    if (since.size() == states.size() + 1) states.push_back(Digest(file->Dossier()->Gegevens()));
    ASSERT_EQ(since.size(), states.size()) << "kill " << turn;
    for (std::size_t n = 0; n < since.size(); ++n) {
      way.Step(since[n].kind, states[n]);
      if (HasFatalFailure()) return;
    }
    ASSERT_EQ(Digest(file->Dossier()->Gegevens()), way.states[way.here]) << "kill " << turn;
    steps += static_cast<int>(since.size());
  }
  const auto file = shelf_->Open(path);
  const std::size_t top = way.here;
  while (way.here > 0) {
    ASSERT_TRUE(file->Take(StepKind::Undo)) << way.here;
    ASSERT_EQ(Digest(file->Dossier()->Gegevens()), way.states[--way.here]) << way.here;
  }
  EXPECT_FALSE(file->Take(StepKind::Undo));
  while (way.here < top) {
    ASSERT_TRUE(file->Take(StepKind::Redo)) << way.here;
    ASSERT_EQ(Digest(file->Dossier()->Gegevens()), way.states[++way.here]) << way.here;
  }
  EXPECT_GT(steps, turns);
  std::printf("%d steps over %d kills\n", steps, turns);
}

}  // namespace
}  // namespace brivane::dossier
