#include <sys/stat.h>

#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"

// A case is its owner's alone, whatever files the process makes for others.
namespace brivane::dossier {
namespace {

/// While it lives, the process makes files with these rights taken away.
class Mask {
 public:
  explicit Mask(mode_t mask) : before_(umask(mask)) {}
  Mask(const Mask&) = delete;
  Mask& operator=(const Mask&) = delete;
  ~Mask() { umask(before_); }

 private:
  mode_t before_;
};

mode_t Rights(const QString& pad) {
  struct stat file {};
  EXPECT_EQ(stat(QFile::encodeName(pad).constData(), &file), 0) << pad.toStdString();
  return file.st_mode & 0777;
}

TEST(Private, ANewFileAndItsLogAreTheOwnersUnderAnyMask) {
  for (const mode_t mask : {0000, 0022, 0077, 0277}) {
    SCOPED_TRACE(mask);
    const Map map;
    const Mask under(mask);
    const QString pad = map.Maak();
    EXPECT_EQ(Rights(pad), 0600u);
    const auto open = DossierBestand::Open(pad);
    open->Dossier()->ZoekKolom(0, 1)->SetLooptijd(17);
    for (const QString& name : map.Inhoud()) EXPECT_EQ(Rights(map.Pad(name.toUtf8().constData())), 0600u);
    EXPECT_EQ(map.Inhoud().size(), 2);
  }
}

}  // namespace
}  // namespace brivane::dossier
