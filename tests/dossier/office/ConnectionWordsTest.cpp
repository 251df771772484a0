#include <gtest/gtest.h>

#include "dossier/office/ConnectionWords.h"
#include "dossier/office/OfficeConnection.h"

namespace brivane::dossier {
namespace {

struct PasswordCase {
  const char* words;
  bool holds;
};

TEST(ConnectionWordsTest, APasswordIsSeenHoweverItIsWritten) {
  constexpr PasswordCase kCases[] = {
      {"kantoor", false},
      {"password", false},
      {"host=db dbname=kantoor sslmode=verify-full", false},
      {"host=db passfile=/home/anna/.pgpass", false},
      {"host=db passfile=/home/anna/password=.txt", false},
      {"host=db dbname=password", false},
      {"host=db dbname='password = x'", false},
      {"host=db password=geheim", true},
      {"host=db password=", true},
      {"host=db PASSWORD = geheim", true},
      {"host=db\tpassword\n=\ngeheim", true},
      {"host=db password='ge heim' dbname=x", true},
      {"host=db;password=geheim", true},
      {"host=db sslpassword=geheim", true},
      // It cannot be read, and may still be one.
      {"host=db 'password=geheim", true},
      {"host=db password geheim x=y", true},
      {"postgresql://db/kantoor", false},
      {"postgresql://anna@db:5432/kantoor?sslmode=verify-full", false},
      {"postgresql://anna:geheim@db/kantoor", true},
      {"postgresql://anna:ge/he@im@db/kantoor", true},
      {"postgresql://db/kantoor?user=anna&Password=geheim", true},
  };
  for (const PasswordCase& one : kCases) {
    const QString words = QString::fromUtf8(one.words);
    EXPECT_EQ(HoldsPassword(words), one.holds) << one.words;
    // A connection takes none, and everything else.
    if (one.holds)
      EXPECT_THROW(OfficeConnection(words, {}), OfficeError) << one.words;
    else
      EXPECT_NO_THROW(OfficeConnection(words, {})) << one.words;
  }
}

TEST(ConnectionWordsTest, AreReadAsLibpqReadsThem) {
  EXPECT_EQ(ReadConnectionWords("HOST = db  dbname='het \\'kantoor\\''; user=a\\ b"),
            (ConnectionWords{{"host", "db"}, {"dbname", "het 'kantoor'"}, {"user", "a b"}}));
  for (const char* other : {"host", "host=db dbname", "host=db dbname='kantoor", "ho-st=db"})
    EXPECT_EQ(ReadConnectionWords(other), std::nullopt) << other;
}

}  // namespace
}  // namespace brivane::dossier
