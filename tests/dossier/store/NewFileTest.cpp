#include "dossier/store/NewFile.h"
#include "tests/dossier/store/Files.h"

// A new file takes a name that nothing has, also where something comes under it at the last moment.
namespace brivane::dossier {
namespace {

void Put(const QString& path, const char* text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

TEST(NewFileTest, TakesAFreeName) {
  const Folder folder;
  Put(folder.Path("van"), "nieuw");
  EXPECT_EQ(RenameToNew(folder.Path("van"), folder.Path("naar")), Renamed::Done);
  EXPECT_EQ(folder.Contents(), QStringList("naar"));
  EXPECT_EQ(Bytes(folder.Path("naar")), "nieuw");
}

TEST(NewFileTest, NeverTakesTheNameOfAnother) {
  const Folder folder;
  Put(folder.Path("van"), "nieuw");
  Put(folder.Path("naar"), "van een ander");
  EXPECT_EQ(RenameToNew(folder.Path("van"), folder.Path("naar")), Renamed::NameIsTaken);
  EXPECT_EQ(Bytes(folder.Path("naar")), "van een ander");
  EXPECT_EQ(Bytes(folder.Path("van")), "nieuw");
}

TEST(NewFileTest, NeverTakesTheNameOfALinkThatLeadsNowhere) {
  const Folder folder;
  Put(folder.Path("van"), "nieuw");
  ASSERT_TRUE(QFile::link(folder.Path("weg"), folder.Path("naar")));
  EXPECT_EQ(RenameToNew(folder.Path("van"), folder.Path("naar")), Renamed::NameIsTaken);
  EXPECT_TRUE(QFileInfo(folder.Path("naar")).isSymLink());
}

TEST(NewFileTest, IsNotMadeOverAnother) {
  const Folder folder;
  Put(folder.Path("naar"), "van een ander");
  EXPECT_FALSE(MakePrivateFile(folder.Path("naar")));
  EXPECT_EQ(Bytes(folder.Path("naar")), "van een ander");
}

}  // namespace
}  // namespace brivane::dossier
