#include <QThread>
#include <random>

#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"
#include "tests/dossier/store/Shelf.h"

// The program is killed at any moment of its work: what was accepted is in the file, and the file is whole.
namespace brivane::dossier {
namespace {

/// The script on a case in memory: what the column must hold after each edit.
class Expectation {
 public:
  /// The column after edit n; edits are asked for in rising order, one may be asked for again.
  [[nodiscard]] const KolomGegevens& After(int n) {
    while (static_cast<int>(states_.size()) <= n) {
      if (!states_.empty()) DoEdit(bound_, static_cast<int>(states_.size()));
      states_.push_back(WithoutKeys(dossier_->FindKolom(0, 1)->Gegevens()));
    }
    return states_[static_cast<std::size_t>(n)];
  }

  static KolomGegevens WithoutKeys(KolomGegevens kolom) {
    kolom.Sleutel = 0;
    for (PeriodeGegevens& periode : kolom.Bedrag.Perioden) periode.Sleutel = 0;
    return kolom;
  }

 private:
  class InMemory : public Edits::Transactions {
   public:
    void Begin() override {}
    void Commit() override {}
    void Rollback() noexcept override {}
    void Reload() noexcept override {}
  };
  static std::shared_ptr<Dossier> MakeDossier() {
    return std::make_shared<Dossier>(VoorbeeldDossier(), std::make_shared<Environment>());
  }
  Desk& Bound() {
    desk_.Bind(0, 1);
    return desk_;
  }

  InMemory inMemory_;
  std::shared_ptr<Dossier> dossier_ = MakeDossier();
  Desk desk_{dossier_, std::make_shared<Edits>(inMemory_)};
  Desk& bound_ = Bound();
  std::vector<KolomGegevens> states_;
};

class KilledTest : public EveryStoreTest {};

TEST_F(KilledTest, TwoHundredTimesAtAnyMomentTheFileHoldsEveryAcceptedEdit) {
  constexpr int kTurns = 200;
  constexpr int kEndless = 1 << 30;
  const QString path = shelf_->Make();
  Expectation expectation;
  std::mt19937 random(20261121);
  int done = 0;    // edits that the file holds
  int atWork = 0;  // kills that struck after an accepted edit
  for (int turn = 0; turn < kTurns; ++turn) {
    SecondProcess process({"edit", shelf_->Address(path), QString::number(done + 1), QString::number(kEndless)});
    QStringList said;
    // One in five is killed while it opens the file and recovers the log, the others some edits later.
    const bool atOpening = turn % 5 == 0;
    if (!atOpening) said << process.Line();
    QThread::usleep(std::uniform_int_distribution<unsigned long>(0, atOpening ? 60000 : 40000)(random));
    said << process.Kill();
    int accepted = done;
    for (const QString& line : said) {
      ASSERT_EQ(line, QString::number(accepted + 1)) << "kill " << turn;
      ++accepted;
    }
    if (accepted > done) ++atWork;

    const auto file = shelf_->Open(path);
    ASSERT_EQ(shelf_->Findings(path, *file), QStringList()) << "kill " << turn;
    const KolomGegevens kolom = Expectation::WithoutKeys(file->Dossier()->FindKolom(0, 1)->Gegevens());
    // The edit after the last accepted one may have been stored when the kill struck; as a whole or not at all.
    done = kolom == expectation.After(accepted) ? accepted : accepted + 1;
    ASSERT_EQ(kolom, expectation.After(done)) << "kill " << turn << " after edit " << accepted;
  }
  EXPECT_GE(atWork, kTurns * 3 / 4);
  RecordProperty("edits", done);
  std::printf("%d edits accepted over %d kills, %d of them at work\n", done, kTurns, atWork);
}

}  // namespace
}  // namespace brivane::dossier
