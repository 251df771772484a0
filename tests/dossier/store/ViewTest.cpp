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
void ExpectAView(const QString& pad, const std::string& description) {
  const QString folder = QFileInfo(pad).absolutePath();
  const auto before = Everything(folder);
  {
    const auto open = DossierBestand::Open(pad);
    EXPECT_TRUE(open->IsReadOnly());
    const DossierGegevens contents = open->Dossier()->Gegevens();
    EXPECT_EQ(contents.HuidigeLening.VrijeKolommen.front().Omschrijving, description);
    Werkplek bench(*open);
    bench.Bind(0, 1);
    bench.Typ("TxtOm", std::string("gewijzigd"));
    ASSERT_EQ(bench.fouten.size(), 1u);
    EXPECT_EQ(bench.fouten[0].ErrorDescription, "De wijziging is niet opgeslagen: het bestand is alleen-lezen.");
    EXPECT_EQ(open->Dossier()->Gegevens(), contents);
    EXPECT_EQ(Everything(folder), before);
    // Others may look at the same time.
    EXPECT_EQ(DossierBestand::Open(pad)->Dossier()->Gegevens(), contents);
  }
  EXPECT_EQ(Everything(folder), before);
}

TEST(View, AReadOnlyFile) {
  const Map map;
  const QString pad = map.Maak();
  QFile::setPermissions(pad, kReadOnly);
  ExpectAView(pad, "Kinderopvang");
}

TEST(View, AFileInAReadOnlyFolder) {
  const Map map;
  QDir().mkdir(map.Pad("vast"));
  const QString pad = map.Maak(VoorbeeldDossier(), "vast/test.dossier");
  QFile::setPermissions(map.Pad("vast"), QFile::ReadOwner | QFile::ExeOwner);
  ExpectAView(pad, "Kinderopvang");
  QFile::setPermissions(map.Pad("vast"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(View, AFileOfAnotherUser) {
  const Map map;
  const QString pad = map.Maak();
  QFile::setPermissions(QFileInfo(pad).absolutePath(), QFile::Permissions(0x7777));
  QFile::setPermissions(pad, kReadOnly | QFile::WriteOwner);
  const GewoneGebruiker user;
  ASSERT_TRUE(user.Gelukt());
  ExpectAView(pad, "Kinderopvang");
}

TEST(View, AReadOnlyFileWithTheLogOfAKilledProgram) {
  const Map map;
  const QString pad = map.Maak();
  {
    TweedeProces killed({"bewerk", pad, "0", "1000000"});
    EXPECT_EQ(killed.Regel(), "0");
    static_cast<void>(killed.Dood());
  }
  ASSERT_GT(QFileInfo(pad + "-wal").size(), 0);
  QFile::setPermissions(pad, kReadOnly);
  QFile::setPermissions(pad + "-wal", kReadOnly);
  const auto before = Everything(QFileInfo(pad).absolutePath());
  EXPECT_TRUE(DossierBestand::Open(pad)->IsReadOnly());
  EXPECT_EQ(Everything(QFileInfo(pad).absolutePath()), before);
  const std::string shown = Gelezen(pad).HuidigeLening.VrijeKolommen.front().Omschrijving;
  EXPECT_TRUE(shown.starts_with("Bewerking ")) << shown;
}

TEST(View, AFileThatSomebodyWorksInIsRefused) {
  const Map map;
  const QString pad = map.Maak();
  const auto open = DossierBestand::Open(pad);
  QFile::setPermissions(pad, kReadOnly);
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::InUse);
}

TEST(View, ADamagedReadOnlyFileIsRefused) {
  const Map map;
  const QString pad = map.Maak();
  ASSERT_TRUE(QFile::resize(pad, QFileInfo(pad).size() - 1));
  QFile::setPermissions(pad, kReadOnly);
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::Damaged);
}

TEST(View, IsKeptAsAFileOfOnesOwn) {
  const Map map;
  const QString pad = map.Maak();
  QFile::setPermissions(pad, kReadOnly);
  const auto open = DossierBestand::Open(pad);
  DossierBestand::Maak(map.Pad("eigen.dossier"), open->Dossier()->Gegevens());
  EXPECT_FALSE(DossierBestand::Open(map.Pad("eigen.dossier"))->IsReadOnly());
  EXPECT_EQ(Gelezen(map.Pad("eigen.dossier")), open->Dossier()->Gegevens());
}

}  // namespace
}  // namespace brivane::dossier
