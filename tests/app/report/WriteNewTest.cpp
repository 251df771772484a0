#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>

#include "app/desk/WriteNew.h"

namespace brivane::app {
namespace {

class WriteNewTest : public testing::Test {
 protected:
  [[nodiscard]] QStringList Names() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }
  [[nodiscard]] static QByteArray Contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(QStringLiteral("rapport.pdf"));
};

TEST_F(WriteNewTest, AFileIsItsOwnersAlone) {
  const mode_t before = umask(0);
  EXPECT_EQ(WriteNew(path_, "inhoud"), "");
  umask(before);
  EXPECT_EQ(Contents(path_), "inhoud");
  EXPECT_EQ(Names(), QStringList{"rapport.pdf"});
  struct stat state {};
  ASSERT_EQ(stat(path_.toLocal8Bit().constData(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777, 0600U);
}

TEST_F(WriteNewTest, AFileThatIsThereStays) {
  ASSERT_EQ(WriteNew(path_, "eerste"), "");
  EXPECT_TRUE(WriteNew(path_, "tweede").contains("er staat al een bestand met die naam"));
  EXPECT_EQ(Contents(path_), "eerste");
  EXPECT_EQ(Names(), QStringList{"rapport.pdf"});
}

TEST_F(WriteNewTest, ALinkThatLeadsNowhereIsAFileToo) {
  ASSERT_TRUE(QFile::link(folder_.filePath("weg"), path_));
  EXPECT_TRUE(WriteNew(path_, "inhoud").contains("er staat al een bestand met die naam"));
  EXPECT_FALSE(QFile::exists(folder_.filePath("weg")));
}

TEST_F(WriteNewTest, WhatCannotBeWrittenSaysWhyAndLeavesNothing) {
  EXPECT_EQ(WriteNew(folder_.filePath("weg/rapport.pdf"), "inhoud"),
            QStringLiteral(
                "Het bestand \"rapport.pdf\" kan niet worden gemaakt in de map \"%1\": de map bestaat niet (meer). "
                "Kies een andere map.")
                .arg(folder_.filePath("weg")));
  EXPECT_TRUE(WriteNew(folder_.filePath(QString(300, u'a')), "inhoud").contains("de naam is te lang"));
  EXPECT_TRUE(Names().isEmpty());
}

TEST_F(WriteNewTest, HalfAFileIsNoFile) {
  rlimit limits{};
  getrlimit(RLIMIT_FSIZE, &limits);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit low = limits;
  low.rlim_cur = 1000;
  setrlimit(RLIMIT_FSIZE, &low);
  const QString failure = WriteNew(path_, QByteArray(5000, 'x'));
  setrlimit(RLIMIT_FSIZE, &limits);
  std::signal(SIGXFSZ, handler);
  EXPECT_TRUE(failure.contains("het bestand wordt groter dan daar mag staan")) << qPrintable(failure);
  EXPECT_TRUE(Names().isEmpty());
}

TEST(ReasonForTest, TheReasonSaysWhatToDo) {
  EXPECT_TRUE(ReasonFor(ENOSPC).startsWith("de schijf is vol"));
  EXPECT_TRUE(ReasonFor(EDQUOT).startsWith("de schijf is vol"));
  EXPECT_TRUE(ReasonFor(EACCES).startsWith("u mag in deze map niet schrijven"));
  EXPECT_TRUE(ReasonFor(EROFS).startsWith("de schijf is alleen-lezen"));
  EXPECT_TRUE(ReasonFor(EIO).startsWith("de schijf meldt een fout"));
}

TEST_F(WriteNewTest, AFreeNameIsOneThatNothingHas) {
  EXPECT_EQ(FreeName(folder_.path(), "rapport", "pdf"), "rapport");
  ASSERT_EQ(WriteNew(path_, ""), "");
  EXPECT_EQ(FreeName(folder_.path(), "rapport", "pdf"), "rapport (2)");
  ASSERT_TRUE(QFile::link(folder_.filePath("weg"), folder_.filePath("rapport (2).pdf")));
  EXPECT_EQ(FreeName(folder_.path(), "rapport", "pdf"), "rapport (3)");
  EXPECT_EQ(FreeName(folder_.path(), "rapport", "csv"), "rapport");
}

}  // namespace
}  // namespace brivane::app
