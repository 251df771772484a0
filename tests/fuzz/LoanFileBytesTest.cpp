// A small loan file with one bit of one byte turned over, again and again all over the file.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <iostream>

#include "dossier/model/SampleCase.h"
#include "dossier/store/Database.h"
#include "dossier/store/DossierFile.h"
#include "fuzz/LoanFile.h"

namespace brivane::fuzz {
namespace {

/// The sample in pages of 512 bytes, the smallest that there are, so that few bytes stand for nothing.
QByteArray SmallFile() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("small.dossier"));
  dossier::DossierFile::Maak(path, dossier::VoorbeeldDossier());
  {
    dossier::Database database(path, dossier::Access::ReadWrite);
    for (const char* sql :
         {"PRAGMA journal_mode = DELETE", "PRAGMA page_size = 512", "VACUUM", "PRAGMA journal_mode = WAL"}) {
      database.Run(QString::fromLatin1(sql));
    }
  }
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

TEST(LoanFileBytes, AnyOneThatTurnsOverIsFoundAndLeftOrLeavesAFileToWorkIn) {
  const QByteArray whole = SmallFile();
  ASSERT_GT(whole.size(), 16 * 512);
  int opened = 0;
  int refused = 0;
  // With every fifth byte each of the eight bits has its turn; every byte would take minutes on a slow disk.
  for (qsizetype place = 0; place < whole.size(); place += 5) {
    SCOPED_TRACE(place);
    QByteArray bytes = whole;
    bytes[place] = static_cast<char>(bytes[place] ^ (1 << place % 8));
    const Outcome outcome = OpenAsLoanFile(
        {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())});
    ++(outcome == Outcome::Opened ? opened : refused);
  }
  std::cout << "bytes turned over: " << opened + refused << ", refused: " << refused << ", opened: " << opened << '\n';
  // What opens has another amount or name, or a bit that counts for nothing.
  EXPECT_GT(opened, 200);
  EXPECT_GT(refused, 600);
}

}  // namespace
}  // namespace brivane::fuzz
