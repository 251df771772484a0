#include <QThread>
#include <random>

#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"

// The program is killed at any moment of its work: what was accepted is in the file, and the file is whole.
namespace brivane::dossier {
namespace {

/// The script on a case in memory: what the column must hold after each edit.
class Verwachting {
 public:
  /// The column after edit n; edits are asked for in rising order, one may be asked for again.
  [[nodiscard]] const KolomGegevens& Na(int n) {
    while (static_cast<int>(standen_.size()) <= n) {
      if (!standen_.empty()) DoeBewerking(werk_, static_cast<int>(standen_.size()));
      standen_.push_back(ZonderSleutels(dossier_->ZoekKolom(0, 1)->Gegevens()));
    }
    return standen_[static_cast<std::size_t>(n)];
  }

  static KolomGegevens ZonderSleutels(KolomGegevens kolom) {
    kolom.Sleutel = 0;
    for (PeriodeGegevens& periode : kolom.Bedrag.Perioden) periode.Sleutel = 0;
    return kolom;
  }

 private:
  class Geheugen : public Edits::Transactions {
   public:
    void Begin() override {}
    void Commit() override {}
    void Rollback() noexcept override {}
    void Reload() noexcept override {}
  };
  static std::shared_ptr<Dossier> MaakDossier() {
    return std::make_shared<Dossier>(VoorbeeldDossier(), std::make_shared<Omgeving>());
  }
  Werkplek& Gebonden() {
    werkplek_.Bind(0, 1);
    return werkplek_;
  }

  Geheugen geheugen_;
  std::shared_ptr<Dossier> dossier_ = MaakDossier();
  Werkplek werkplek_{dossier_, std::make_shared<Edits>(geheugen_)};
  Werkplek& werk_ = Gebonden();
  std::vector<KolomGegevens> standen_;
};

TEST(Gedood, TwoHundredTimesAtAnyMomentTheFileHoldsEveryAcceptedEdit) {
  constexpr int kKeren = 200;
  constexpr int kZonderEinde = 1 << 30;
  const Map map;
  const QString pad = map.Maak();
  Verwachting verwacht;
  std::mt19937 toeval(20261121);
  int gedaan = 0;        // edits that the file holds
  int tijdens_werk = 0;  // kills that struck after an accepted edit
  for (int keer = 0; keer < kKeren; ++keer) {
    TweedeProces proces({"bewerk", pad, QString::number(gedaan + 1), QString::number(kZonderEinde)});
    QStringList gezegd;
    // One in five is killed while it opens the file and recovers the log, the others some edits later.
    const bool bij_openen = keer % 5 == 0;
    if (!bij_openen) gezegd << proces.Regel();
    QThread::usleep(std::uniform_int_distribution<unsigned long>(0, bij_openen ? 60000 : 40000)(toeval));
    gezegd << proces.Dood();
    int aanvaard = gedaan;
    for (const QString& regel : gezegd) {
      ASSERT_EQ(regel, QString::number(aanvaard + 1)) << "kill " << keer;
      ++aanvaard;
    }
    if (aanvaard > gedaan) ++tijdens_werk;

    const auto bestand = DossierBestand::Open(pad);
    ASSERT_EQ(bestand->ControleerHeelheid(), QStringList()) << "kill " << keer;
    const KolomGegevens kolom = Verwachting::ZonderSleutels(bestand->Dossier()->ZoekKolom(0, 1)->Gegevens());
    // The edit after the last accepted one may have been stored when the kill struck; as a whole or not at all.
    gedaan = kolom == verwacht.Na(aanvaard) ? aanvaard : aanvaard + 1;
    ASSERT_EQ(kolom, verwacht.Na(gedaan)) << "kill " << keer << " after edit " << aanvaard;
  }
  EXPECT_GE(tijdens_werk, kKeren * 3 / 4);
  RecordProperty("edits", gedaan);
  std::printf("%d edits accepted over %d kills, %d of them at work\n", gedaan, kKeren, tijdens_werk);
}

}  // namespace
}  // namespace brivane::dossier
