#include <sys/stat.h>

#include "dossier/store/Database.h"
#include "dossier/store/EarlierVersion.h"
#include "dossier/store/Schema.h"
#include "tests/dossier/store/Files.h"

// Files of earlier layouts, kept as the programs of their time wrote them.
namespace brivane::dossier {
namespace {

class EarlierVersionTest : public testing::TestWithParam<int> {
 protected:
  EarlierVersionTest() {
    const QString kept = QStringLiteral(EARLIER_FILES "/versie-%1.dossier").arg(GetParam());
    EXPECT_TRUE(QFile::copy(kept, folder_.Path()));
    EXPECT_TRUE(QFile::setPermissions(folder_.Path(), QFile::ReadOwner | QFile::WriteOwner));
  }
  Folder folder_;
  const QString path_ = folder_.Path();
  const QString copy_ = EarlierVersionOf(folder_.Path());
};
INSTANTIATE_TEST_SUITE_P(Each, EarlierVersionTest, testing::Values(1, 2));

/// The contents without the keys.
DossierGegevens WithoutKeys(DossierGegevens contents) {
  const auto strip = [](LeningGegevens& lening) {
    lening.Sleutel = 0;
    for (KolomGegevens& kolom : lening.VrijeKolommen) {
      kolom.Sleutel = 0;
      for (PeriodeGegevens& periode : kolom.Bedrag.Perioden) periode.Sleutel = 0;
    }
  };
  strip(contents.HuidigeLening);
  for (LeningGegevens& lening : contents.Leningen) strip(lening);
  return contents;
}

int VersionOf(const QString& path) {
  Database database(path, Access::ReadOnly);
  return database.Value(QStringLiteral("PRAGMA user_version")).toInt();
}

TEST_P(EarlierVersionTest, IsTakenOverWithAllThatItHolds) {
  EXPECT_EQ(WithoutKeys(ReadBack(path_)), VoorbeeldDossier());
  EXPECT_EQ(VersionOf(path_), kSchemaVersion);
  // And opens again.
  EXPECT_EQ(WithoutKeys(ReadBack(path_)), VoorbeeldDossier());
}

TEST_P(EarlierVersionTest, StandsBesideItAsItWasUntilAChangeIsStored) {
  const QByteArray before = Bytes(path_);
  {
    const auto open = DossierFile::Open(path_);
    EXPECT_EQ(Bytes(copy_), before);
    struct stat file {};
    ASSERT_EQ(stat(copy_.toLocal8Bit().constData(), &file), 0);
    EXPECT_EQ(file.st_mode & 0777, 0600);
    open->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
    EXPECT_FALSE(QFile::exists(copy_));
  }
  EXPECT_EQ(folder_.Contents(), QStringList("test.dossier"));
}

TEST_P(EarlierVersionTest, StandsBesideItWhenNothingWasChangedTheFirstTime) {
  const QByteArray before = Bytes(path_);
  static_cast<void>(DossierFile::Open(path_));
  EXPECT_EQ(Bytes(copy_), before);
  DossierFile::Open(path_)->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
  EXPECT_FALSE(QFile::exists(copy_));
}

TEST_P(EarlierVersionTest, AFileThatHasTheNameOfTheCopyStays) {
  QFile taken(copy_);
  ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
  taken.write("van iemand anders");
  taken.close();
  const QByteArray before = Bytes(path_);
  {
    const auto open = DossierFile::Open(path_);
    EXPECT_EQ(Bytes(copy_ + "-2"), before);
    open->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
  }
  EXPECT_EQ(Bytes(copy_), "van iemand anders");
  EXPECT_FALSE(QFile::exists(copy_ + "-2"));
}

TEST_P(EarlierVersionTest, WhoseLayoutCannotBeChangedIsRefusedWithNothingLeftBesideIt) {
  QByteArray bytes = Bytes(path_);
  // The text encoding, without which SQLite changes no layout.
  bytes.replace(56, 4, QByteArray(4, '\0'));
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  EXPECT_EQ(ProblemAtOpening(path_), OpeningProblem::Damaged);
  EXPECT_EQ(Bytes(path_), bytes);
  EXPECT_EQ(folder_.Contents(), QStringList("test.dossier"));
}

TEST_P(EarlierVersionTest, ToBeReadItIsLeftAsItIs) {
  QFile::setPermissions(path_, QFile::ReadOwner);
  const QByteArray before = Bytes(path_);
  EXPECT_EQ(WithoutKeys(ReadBack(path_)), VoorbeeldDossier());
  EXPECT_EQ(Bytes(path_), before);
  EXPECT_EQ(folder_.Contents(), QStringList("test.dossier"));
}

TEST(BelastingtariefTest, IsKeptAsItWasEnteredAndMayBeLeftOut) {
  const Folder folder;
  DossierGegevens contents = VoorbeeldDossier();
  contents.Personen[0].Belastingtarief = 37.48;
  const QString path = folder.Make(contents);
  EXPECT_EQ(ReadBack(path).Personen[0].Belastingtarief, 37.48);
  EXPECT_EQ(ReadBack(path).Personen[1].Belastingtarief, std::nullopt);
  {
    const auto open = DossierFile::Open(path);
    std::vector<PersoonGegevens> personen = open->Dossier()->Personen();
    personen[0].Belastingtarief.reset();
    personen[1].Belastingtarief = 0;
    open->Dossier()->SetClient(personen, 67);
  }
  EXPECT_EQ(ReadBack(path).Personen[0].Belastingtarief, std::nullopt);
  EXPECT_EQ(ReadBack(path).Personen[1].Belastingtarief, 0);
}

TEST(BelastingtariefTest, OutsideZeroToAHundredIsNotStoredAndDoesNotOpen) {
  const Folder folder;
  const QString path = folder.Make();
  {
    const auto open = DossierFile::Open(path);
    for (const double rate : {-0.01, 100.01}) {
      std::vector<PersoonGegevens> personen = open->Dossier()->Personen();
      personen[0].Belastingtarief = rate;
      EXPECT_THROW(open->Dossier()->SetClient(personen, 67), host::Error);
    }
  }
  Database(path, Access::ReadWrite).Run(QStringLiteral("UPDATE persoon SET belastingtarief = 101"));
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::Impossible);
}

}  // namespace
}  // namespace brivane::dossier
