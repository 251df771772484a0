#include <gtest/gtest.h>

#include <QSettings>

#include "app/office/ClientAddress.h"
#include "app/office/OfficeWords.h"
#include "app/office/RecentOffices.h"

namespace brivane::app {
namespace {

struct WordsCase {
  const char* words;
  WordsFault fault;
};

TEST(OfficeWords, HoldAServiceOrWordsAndNoSecret) {
  constexpr WordsCase kCases[] = {
      {"kantoor", WordsFault::None},
      {" kantoor ", WordsFault::None},
      {"host=db dbname=kantoor sslmode=verify-full", WordsFault::None},
      {"host = db  dbname = 'het kantoor'", WordsFault::None},
      {"host=db passfile=/home/anna/.pgpass", WordsFault::None},
      {"host=db dbname=password", WordsFault::None},
      {"", WordsFault::Empty},
      {"   ", WordsFault::Empty},
      {"het kantoor", WordsFault::Unclear},
      {"host=db dbname", WordsFault::Unclear},
      {"host=db dbname='kantoor", WordsFault::Unclear},
      {"postgresql://db/kantoor", WordsFault::Unclear},
      {"host=db password=geheim", WordsFault::Secret},
      // It cannot be read, and may still be one.
      {"host=db 'password=geheim", WordsFault::Secret},
      {"postgresql://anna@db/kantoor", WordsFault::Unclear},
      {"postgresql://anna:geheim@db/kantoor", WordsFault::Secret},
  };
  for (const WordsCase& one : kCases) {
    EXPECT_EQ(FaultOf(QString::fromUtf8(one.words)), one.fault) << one.words;
    EXPECT_EQ(FaultText(FaultOf(QString::fromUtf8(one.words))).isEmpty(), one.fault == WordsFault::None) << one.words;
    EXPECT_EQ(FaultLine(FaultOf(QString::fromUtf8(one.words))).isEmpty(), one.fault == WordsFault::None) << one.words;
  }
}

TEST(OfficeWords, NameTheOffice) {
  EXPECT_EQ(OfficeTitle("noord"), "noord");
  EXPECT_EQ(OfficeTitle("service=noord user=anna"), "noord");
  EXPECT_EQ(OfficeTitle("host=db.noord dbname=kantoor"), "kantoor op db.noord");
  EXPECT_EQ(OfficeTitle("host=/tmp/x dbname=proef"), "proef");
  EXPECT_EQ(OfficeTitle("user=anna"), "kantoor");
}

TEST(OfficeWords, NameTheAccountWhereOneStandsInThem) {
  EXPECT_EQ(OfficeAccount("host=db user=anna dbname=kantoor"), "anna");
  EXPECT_EQ(OfficeAccount("host=db user = 'anna b' dbname=kantoor"), "anna b");
  EXPECT_EQ(OfficeAccount("host=db dbname=user"), "");
  EXPECT_EQ(OfficeAccount("noord"), "");
}

TEST(ClientAddressTest, ComesBackFromItsText) {
  const ClientAddress address{"host=db dbname=a:b", 17};
  EXPECT_EQ(address.Text(), "kantoor:17:host=db dbname=a:b");
  EXPECT_EQ(ClientAddress::Of(address.Text()), address);
  for (const char* other : {"", "/home/anna/kantoor:17.dossier", "kantoor:17:", "kantoor:x:noord", "kantoor"})
    EXPECT_FALSE(ClientAddress::Of(other)) << other;
}

TEST(RecentOfficesTest, KeepWhatWasWrittenLastAndNoSecret) {
  QSettings().remove("kantoren");
  RecentOffices::Add("noord");
  RecentOffices::Add("host=db dbname=zuid");
  RecentOffices::Add(" noord ");
  RecentOffices::Add("host=db password=geheim");
  EXPECT_EQ(RecentOffices::All(), QStringList({"noord", "host=db dbname=zuid"}));
  // Of an office that is forgotten the team is too, once another is remembered.
  RecentOffices::SetTeam("host=db dbname=zuid", 4);
  RecentOffices::SetTeam("weg", 5);
  EXPECT_EQ(RecentOffices::Team("weg"), 5);
  RecentOffices::SetTeam(" noord", 7);
  EXPECT_EQ(RecentOffices::Team("noord"), 7);
  EXPECT_EQ(RecentOffices::Team("host=db dbname=zuid"), 4);
  EXPECT_EQ(RecentOffices::Team("weg"), 0);
  QSettings().remove("kantoren");
  QSettings().remove("kantoorteams");
}

}  // namespace
}  // namespace brivane::app
