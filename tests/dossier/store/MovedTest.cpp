#include "dossier/store/FileJournal.h"
#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"

// The open file is moved, replaced or deleted: the next change is refused, and nothing that was accepted is lost.
namespace brivane::dossier {
namespace {

class Moved : public testing::Test {
 protected:
  Moved() {
    bench_.Bind(0, 1);
    bench_.Typ("TxtOm", std::string("aanvaard"));
    accepted_ = open_->Dossier()->Gegevens();
  }

  /// The next change fails, told once, and the memory shows what was accepted.
  void ExpectRefused() {
    EXPECT_FALSE(open_->InPlace());
    bench_.Typ("TxtBd", 321.0);
    ASSERT_EQ(bench_.fouten.size(), 1u);
    EXPECT_EQ(bench_.fouten[0].ErrorNumber, std::to_string(kMovedError));
    EXPECT_EQ(bench_.fouten[0].ErrorDescription,
              "De wijziging is niet opgeslagen: het dossier is verplaatst, vervangen of verwijderd terwijl het open "
              "was.");
    ASSERT_EQ(bench_.mislukt.size(), 1u);
    EXPECT_EQ(open_->Dossier()->Gegevens(), accepted_);
  }
  /// What was accepted can be kept elsewhere.
  void ExpectItCanBeKept() {
    DossierBestand::Maak(map_.Pad("elders.dossier"), open_->Dossier()->Gegevens());
    EXPECT_EQ(WithoutKeys(Gelezen(map_.Pad("elders.dossier"))), WithoutKeys(accepted_));
  }
  static DossierGegevens WithoutKeys(DossierGegevens contents) {
    const auto clear = [](LeningGegevens& loan) {
      loan.Sleutel = 0;
      for (KolomGegevens& column : loan.VrijeKolommen) {
        column.Sleutel = 0;
        for (PeriodeGegevens& period : column.Bedrag.Perioden) period.Sleutel = 0;
      }
    };
    clear(contents.HuidigeLening);
    for (LeningGegevens& loan : contents.Leningen) clear(loan);
    return contents;
  }

  Map map_;
  QString pad_ = map_.Maak();
  QString backup_ = map_.Maak(LeegDossier(), "reserve.dossier");
  QByteArray backup_bytes_ = Bytes(backup_);
  std::unique_ptr<DossierBestand> open_ = DossierBestand::Open(pad_);
  Werkplek bench_{*open_};
  DossierGegevens accepted_;
};

TEST_F(Moved, ARenamedFileHoldsTheSessionUnderItsNewName) {
  ASSERT_EQ(rename(QFile::encodeName(pad_), QFile::encodeName(map_.Pad("nieuw.dossier"))), 0);
  ExpectRefused();
  ExpectItCanBeKept();
  open_.reset();
  EXPECT_EQ(Gelezen(map_.Pad("nieuw.dossier")), accepted_);
  EXPECT_EQ(map_.Inhoud(), QStringList({"elders.dossier", "nieuw.dossier", "reserve.dossier"}));
}

TEST_F(Moved, AFileThatIsPutBackIsWorkedInAgain) {
  ASSERT_EQ(rename(QFile::encodeName(pad_), QFile::encodeName(map_.Pad("nieuw.dossier"))), 0);
  ExpectRefused();
  ASSERT_EQ(rename(QFile::encodeName(map_.Pad("nieuw.dossier")), QFile::encodeName(pad_)), 0);
  bench_.Bind(0, 1);
  bench_.Typ("TxtBd", 321.0);
  EXPECT_EQ(bench_.fouten.size(), 1u);
  open_.reset();
  EXPECT_EQ(Gelezen(pad_).HuidigeLening.VrijeKolommen.front().Bedrag.Bedrag, 321.0);
}

TEST_F(Moved, ADeletedFileIsNotSaidToBeStored) {
  ASSERT_TRUE(QFile::remove(pad_));
  ExpectRefused();
  ExpectItCanBeKept();
  open_.reset();
  EXPECT_EQ(map_.Inhoud(), QStringList({"elders.dossier", "reserve.dossier"}));
}

TEST_F(Moved, AReplacedFileIsLeftAlone) {
  ASSERT_EQ(rename(QFile::encodeName(backup_), QFile::encodeName(pad_)), 0);
  ExpectRefused();
  ExpectItCanBeKept();
  open_.reset();
  EXPECT_EQ(Bytes(pad_), backup_bytes_);
  EXPECT_EQ(map_.Inhoud(), QStringList({"elders.dossier", "test.dossier"}));
}

TEST_F(Moved, AFolderThatIsRenamed) {
  const QString folder = map_.Pad("map");
  QDir().mkdir(folder);
  const QString pad = map_.Maak(VoorbeeldDossier(), "map/in.dossier");
  const auto open = DossierBestand::Open(pad);
  open->Dossier()->ZoekKolom(0, 1)->SetLooptijd(17);
  ASSERT_EQ(rename(QFile::encodeName(folder), QFile::encodeName(map_.Pad("verplaatst"))), 0);
  EXPECT_THROW(open->Dossier()->ZoekKolom(0, 1)->SetLooptijd(18), host::Error);
  EXPECT_EQ(open->Dossier()->ZoekKolom(0, 1)->Looptijd(), 17);
}

TEST_F(Moved, ALogThatIsDeletedOrReplaced) {
  ASSERT_TRUE(QFile::remove(pad_ + "-wal"));
  ExpectRefused();
  open_.reset();
  EXPECT_EQ(Gelezen(pad_), accepted_);
}

}  // namespace
}  // namespace brivane::dossier
