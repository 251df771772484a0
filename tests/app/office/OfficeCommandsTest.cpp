#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include "dossier/office/Office.h"
#include "tests/app/screen/ProgramRun.h"
#include "tests/dossier/office/TrialOffice.h"

// The program's commands for an office.
namespace brivane::app {
namespace {

TEST(OfficeCommandsTest, APasswordInTheWordsIsRefusedInOneLine) {
  for (const char* command : {"--kantoor", "--kantoor-inrichten", "--kantoor-proef"}) {
    const Output output = RunProgram({command, "host=db password=geheim"});
    EXPECT_EQ(output.code, 2) << command;
    EXPECT_EQ(output.error,
              "dossier: a password does not belong in an argument: leave it out, and it is asked for (see dossier "
              "--help)\n");
  }
  EXPECT_EQ(RunProgram({"--kantoor"}).code, 2);
}

TEST(OfficeCommandsTest, AServerThatIsNotThereIsToldInOneLine) {
  const Output output = RunProgram({"--kantoor-inrichten", "host=/tmp/daar-is-niets dbname=kantoor"});
  EXPECT_EQ(output.code, 1);
  EXPECT_EQ(output.error.count('\n'), 1) << qPrintable(output.error);
  EXPECT_TRUE(output.out.isEmpty());
}

TEST(OfficeCommandsTest, TheSetUpMakesAnOfficeAndFindsItDoneTheNextTime) {
  test::PostgresServer& server = test::PostgresServer::Shared();
  const QString words = server.Words("postgres", server.MakeDatabase());
  const Output first = RunProgram({"--kantoor-inrichten", words});
  EXPECT_EQ(first.code, 0) << qPrintable(first.error);
  EXPECT_EQ(first.out, "The office is set up, version 1.\n");
  const Output again = RunProgram({"--kantoor-inrichten", words});
  EXPECT_EQ(again.code, 0) << qPrintable(again.error);
  EXPECT_EQ(again.out, "The office is up to date, version 1.\n");
}

TEST(OfficeCommandsTest, ADatabaseThatIsNotOfUtf8IsRefusedInOneLine) {
  test::PostgresServer& server = test::PostgresServer::Shared();
  server.Psql("postgres", "postgres", "CREATE DATABASE oud ENCODING 'LATIN1' LOCALE 'C' TEMPLATE template0");
  const Output output = RunProgram({"--kantoor-inrichten", server.Words("postgres", "oud")});
  EXPECT_EQ(output.code, 1);
  EXPECT_TRUE(output.out.isEmpty());
  EXPECT_EQ(output.error,
            "dossier: The database has the encoding LATIN1, and an office needs UTF8: make it by createdb "
            "--encoding=UTF8 --template=template0\n");
}

TEST(OfficeCommandsTest, TheTrialOfficeHasTwoHundredClientsAndItsSessionLeavesPictures) {
  dossier::TrialOffice office;
  EXPECT_EQ(RunProgram({"--kantoor-proef", office.Words("anna")}).out, "200 clients added.\n");
  EXPECT_EQ(dossier::SearchClients(*office.Enter(), QString(), 500).size(), 200U);

  const QTemporaryDir folder;
  const Output output = RunProgram({"--kantoor-sessie", folder.path(), office.Words("anna"), office.Words("bert"),
                                    office.Server().Words("postgres", "postgres")});
  EXPECT_EQ(output.code, 0) << qPrintable(output.error);
  const QStringList pictures = QDir(folder.path()).entryList({"*.png"});
  EXPECT_EQ(pictures.size(), 16) << qPrintable(pictures.join(' '));
  for (const QString& picture : pictures)
    EXPECT_FALSE(QImage(folder.filePath(picture)).isNull()) << qPrintable(picture);
}

}  // namespace
}  // namespace brivane::app
