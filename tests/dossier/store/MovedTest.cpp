#include "dossier/store/FileJournal.h"
#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"

// The open file is moved, replaced or deleted: the next change is refused, and nothing that was accepted is lost.
namespace brivane::dossier {
namespace {

class MovedTest : public testing::Test {
 protected:
  MovedTest() {
    desk_.Bind(0, 1);
    desk_.Type("TxtOm", std::string("aanvaard"));
    accepted_ = open_->Dossier()->Gegevens();
  }

  /// The next change fails, told once, and the memory shows what was accepted.
  void ExpectRefused() {
    EXPECT_FALSE(open_->InPlace());
    desk_.Type("TxtBd", 321.0);
    ASSERT_EQ(desk_.reports.size(), 1u);
    EXPECT_EQ(desk_.reports[0].ErrorNumber, std::to_string(kMovedError));
    EXPECT_EQ(desk_.reports[0].ErrorDescription,
              "De wijziging is niet opgeslagen: het dossier is verplaatst, vervangen of verwijderd terwijl het open "
              "was.");
    ASSERT_EQ(desk_.failed.size(), 1u);
    EXPECT_EQ(open_->Dossier()->Gegevens(), accepted_);
  }
  /// What was accepted can be kept elsewhere.
  void ExpectItCanBeKept() {
    DossierFile::Maak(folder_.Path("elders.dossier"), open_->Dossier()->Gegevens());
    EXPECT_EQ(WithoutKeys(ReadBack(folder_.Path("elders.dossier"))), WithoutKeys(accepted_));
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

  Folder folder_;
  QString path_ = folder_.Make();
  QString backup_ = folder_.Make(LeegDossier(), "reserve.dossier");
  QByteArray backup_bytes_ = Bytes(backup_);
  std::unique_ptr<DossierFile> open_ = DossierFile::Open(path_);
  Desk desk_{*open_};
  DossierGegevens accepted_;
};

TEST_F(MovedTest, ARenamedFileHoldsTheSessionUnderItsNewName) {
  ASSERT_EQ(rename(QFile::encodeName(path_), QFile::encodeName(folder_.Path("nieuw.dossier"))), 0);
  ExpectRefused();
  ExpectItCanBeKept();
  open_.reset();
  EXPECT_EQ(ReadBack(folder_.Path("nieuw.dossier")), accepted_);
  EXPECT_EQ(folder_.Contents(), QStringList({"elders.dossier", "nieuw.dossier", "reserve.dossier"}));
}

TEST_F(MovedTest, AFileThatIsPutBackIsWorkedInAgain) {
  ASSERT_EQ(rename(QFile::encodeName(path_), QFile::encodeName(folder_.Path("nieuw.dossier"))), 0);
  ExpectRefused();
  ASSERT_EQ(rename(QFile::encodeName(folder_.Path("nieuw.dossier")), QFile::encodeName(path_)), 0);
  desk_.Bind(0, 1);
  desk_.Type("TxtBd", 321.0);
  EXPECT_EQ(desk_.reports.size(), 1u);
  open_.reset();
  EXPECT_EQ(ReadBack(path_).HuidigeLening.VrijeKolommen.front().Bedrag.Bedrag, 321.0);
}

TEST_F(MovedTest, ADeletedFileIsNotSaidToBeStored) {
  ASSERT_TRUE(QFile::remove(path_));
  ExpectRefused();
  ExpectItCanBeKept();
  open_.reset();
  EXPECT_EQ(folder_.Contents(), QStringList({"elders.dossier", "reserve.dossier"}));
}

TEST_F(MovedTest, AReplacedFileIsLeftAlone) {
  ASSERT_EQ(rename(QFile::encodeName(backup_), QFile::encodeName(path_)), 0);
  ExpectRefused();
  ExpectItCanBeKept();
  open_.reset();
  EXPECT_EQ(Bytes(path_), backup_bytes_);
  EXPECT_EQ(folder_.Contents(), QStringList({"elders.dossier", "test.dossier"}));
}

TEST_F(MovedTest, AFolderThatIsRenamed) {
  const QString folder = folder_.Path("map");
  QDir().mkdir(folder);
  const QString path = folder_.Make(VoorbeeldDossier(), "map/in.dossier");
  const auto open = DossierFile::Open(path);
  open->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
  ASSERT_EQ(rename(QFile::encodeName(folder), QFile::encodeName(folder_.Path("verplaatst"))), 0);
  EXPECT_THROW(open->Dossier()->FindKolom(0, 1)->SetLooptijd(18), host::Error);
  EXPECT_EQ(open->Dossier()->FindKolom(0, 1)->Looptijd(), 17);
}

TEST_F(MovedTest, ALogThatIsDeletedOrReplaced) {
  ASSERT_TRUE(QFile::remove(path_ + "-wal"));
  ExpectRefused();
  open_.reset();
  EXPECT_EQ(ReadBack(path_), accepted_);
}

}  // namespace
}  // namespace brivane::dossier
