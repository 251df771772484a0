#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/OrdinaryUser.h"
#include "tests/dossier/store/SecondProcess.h"

// A file that may not be written opens to be read, and nothing is written to it or beside it.
namespace brivane::dossier {
namespace {

constexpr QFile::Permissions kReadOnly = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;

QMap<QString, QByteArray> Everything(const QString& folder) {
  QMap<QString, QByteArray> everything;
  for (const QString& name : QDir(folder).entryList(QDir::Files)) {
    everything.insert(name, Bytes(folder + u'/' + name));
  }
  return everything;
}

/// The file shows what it should, no change of it is accepted, and its folder stays as it was.
void ExpectAView(const QString& path, const std::string& description) {
  const QString folder = QFileInfo(path).absolutePath();
  const auto before = Everything(folder);
  {
    const auto open = DossierFile::Open(path);
    EXPECT_TRUE(open->IsReadOnly());
    const DossierGegevens contents = open->Dossier()->Gegevens();
    EXPECT_EQ(contents.HuidigeLening.VrijeKolommen.front().Omschrijving, description);
    Desk desk(*open);
    desk.Bind(0, 1);
    desk.Type("TxtOm", std::string("gewijzigd"));
    ASSERT_EQ(desk.reports.size(), 1u);
    EXPECT_EQ(desk.reports[0].ErrorDescription, "De wijziging is niet opgeslagen: het bestand is alleen-lezen.");
    EXPECT_EQ(open->Dossier()->Gegevens(), contents);
    EXPECT_EQ(Everything(folder), before);
    // Others may look at the same time.
    EXPECT_EQ(DossierFile::Open(path)->Dossier()->Gegevens(), contents);
  }
  EXPECT_EQ(Everything(folder), before);
}

TEST(ViewTest, AReadOnlyFile) {
  const Folder folder;
  const QString path = folder.Make();
  QFile::setPermissions(path, kReadOnly);
  ExpectAView(path, "Kinderopvang");
}

TEST(ViewTest, AFileInAReadOnlyFolder) {
  const Folder folder;
  QDir().mkdir(folder.Path("vast"));
  const QString path = folder.Make(VoorbeeldDossier(), "vast/test.dossier");
  QFile::setPermissions(folder.Path("vast"), QFile::ReadOwner | QFile::ExeOwner);
  ExpectAView(path, "Kinderopvang");
  QFile::setPermissions(folder.Path("vast"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(ViewTest, AFileOfAnotherUser) {
  const Folder folder;
  const QString path = folder.Make();
  QFile::setPermissions(QFileInfo(path).absolutePath(), QFile::Permissions(0x7777));
  QFile::setPermissions(path, kReadOnly | QFile::WriteOwner);
  const OrdinaryUser user;
  ASSERT_TRUE(user.Succeeded());
  ExpectAView(path, "Kinderopvang");
}

TEST(ViewTest, AReadOnlyFileWithTheLogOfAKilledProgram) {
  const Folder folder;
  const QString path = folder.Make();
  {
    SecondProcess killed({"edit", path, "0", "1000000"});
    EXPECT_EQ(killed.Line(), "0");
    static_cast<void>(killed.Kill());
  }
  ASSERT_GT(QFileInfo(path + "-wal").size(), 0);
  QFile::setPermissions(path, kReadOnly);
  QFile::setPermissions(path + "-wal", kReadOnly);
  const auto before = Everything(QFileInfo(path).absolutePath());
  EXPECT_TRUE(DossierFile::Open(path)->IsReadOnly());
  EXPECT_EQ(Everything(QFileInfo(path).absolutePath()), before);
  const std::string shown = ReadBack(path).HuidigeLening.VrijeKolommen.front().Omschrijving;
  EXPECT_TRUE(shown.starts_with("Bewerking ")) << shown;
}

TEST(ViewTest, AFileThatSomebodyWorksInIsRefused) {
  const Folder folder;
  const QString path = folder.Make();
  const auto open = DossierFile::Open(path);
  QFile::setPermissions(path, kReadOnly);
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::InUse);
}

TEST(ViewTest, ADamagedReadOnlyFileIsRefused) {
  const Folder folder;
  const QString path = folder.Make();
  ASSERT_TRUE(QFile::resize(path, QFileInfo(path).size() - 1));
  QFile::setPermissions(path, kReadOnly);
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::Damaged);
}

TEST(ViewTest, IsKeptAsAFileOfOnesOwn) {
  const Folder folder;
  const QString path = folder.Make();
  QFile::setPermissions(path, kReadOnly);
  const auto open = DossierFile::Open(path);
  DossierFile::Maak(folder.Path("eigen.dossier"), open->Dossier()->Gegevens());
  EXPECT_FALSE(DossierFile::Open(folder.Path("eigen.dossier"))->IsReadOnly());
  EXPECT_EQ(ReadBack(folder.Path("eigen.dossier")), open->Dossier()->Gegevens());
}

}  // namespace
}  // namespace brivane::dossier
