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

mode_t Rights(const QString& path) {
  struct stat file {};
  EXPECT_EQ(stat(QFile::encodeName(path).constData(), &file), 0) << path.toStdString();
  return file.st_mode & 0777;
}

TEST(PrivateTest, ANewFileAndItsLogAreTheOwnersUnderAnyMask) {
  for (const mode_t mask : {0000, 0022, 0077, 0277}) {
    SCOPED_TRACE(mask);
    const Folder folder;
    const Mask under(mask);
    const QString path = folder.Make();
    EXPECT_EQ(Rights(path), 0600u);
    const auto open = DossierFile::Open(path);
    open->Dossier()->FindKolom(0, 1)->SetLooptijd(17);
    for (const QString& name : folder.Contents()) EXPECT_EQ(Rights(folder.Path(name.toUtf8().constData())), 0600u);
    EXPECT_EQ(folder.Contents().size(), 2);
  }
}

}  // namespace
}  // namespace brivane::dossier
