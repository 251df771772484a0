#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "app/program/CommandLine.h"
#include "app/program/SampleSession.h"
#include "replay/play/Session.h"
#include "tests/app/screen/ProgramRun.h"
#include "tests/app/screen/WindowTest.h"

// The program from its command line.
namespace brivane::app {
namespace {

TEST(CommandLineTest, WrongArgumentsGiveOneLineAndCodeTwo) {
  for (const QStringList& arguments :
       {QStringList{"--onzin"}, QStringList{"--voorbeeld"}, QStringList{"--sessie", "uit"}, QStringList{"een", "twee"},
        QStringList{"--help", "meer"}, QStringList{""}}) {
    const Output output = RunProgram(arguments);
    EXPECT_EQ(output.code, 2) << qPrintable(arguments.join(' '));
    EXPECT_EQ(output.error.count('\n'), 1) << qPrintable(output.error);
    EXPECT_TRUE(output.out.isEmpty());
  }
}

TEST(CommandLineTest, HelpAndVersionGoToTheOutput) {
  const Output help = RunProgram({"--help"});
  EXPECT_EQ(help.code, 0);
  EXPECT_TRUE(help.out.startsWith("Usage: dossier [FILE]"));
  const Output version = RunProgram({"--version"});
  EXPECT_EQ(version.code, 0);
  EXPECT_EQ(version.out, "dossier " BRIVANE_VERSION "\n");
}

TEST(CommandLineTest, TheSampleIsACase) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("v.dossier");
  EXPECT_EQ(RunProgram({"--voorbeeld", file}).code, 0);
  EXPECT_EQ(ReadInSecondProcess(file)["0/5/bedrag"].toDouble(), 6250);
  // It never replaces a file.
  const Output again = RunProgram({"--voorbeeld", file});
  EXPECT_EQ(again.code, 1);
  EXPECT_EQ(again.error.count('\n'), 1);
}

TEST(CommandLineTest, ASessionOnAnotherKindOfFileFailsInOneLine) {
  const QTemporaryDir folder;
  QFile letter(folder.filePath("brief.dossier"));
  ASSERT_TRUE(letter.open(QIODevice::WriteOnly));
  letter.write("tekst");
  letter.close();
  const Output output = RunProgram({"--sessie", folder.filePath("uit"), letter.fileName()});
  EXPECT_EQ(output.code, 1);
  EXPECT_TRUE(output.error.contains("is geen dossier"));
}

/// The session ends by taking the partner out, to whom a second one lets an amount go over.
TEST(CommandLineTest, ASessionThatIsToldOfAFailureEndsWithWhatThatSays) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("s.dossier");
  ASSERT_EQ(RunProgram({"--voorbeeld", file}).code, 0);
  ASSERT_EQ(RunProgram({"--sessie", folder.filePath("uit"), file}).code, 0);
  const Output second = RunProgram({"--sessie", folder.filePath("uit"), file});
  EXPECT_EQ(second.code, 1);
  EXPECT_TRUE(second.error.contains("txtEinddatum was answered: Er is een fout opgetreden."))
      << qPrintable(second.error);
  EXPECT_TRUE(second.error.contains("Foutnummer: 91")) << qPrintable(second.error);
}

TEST(CommandLineTest, TheSessionLeavesPicturesAndATranscript) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("s.dossier");
  ASSERT_EQ(RunProgram({"--voorbeeld", file}).code, 0);
  const QDir out(folder.filePath("uit"));
  const Output output = RunProgram({"--sessie", out.path(), file});
  ASSERT_EQ(output.code, 0) << qPrintable(output.error);

  for (const char* name : {"recurring-cost", "newspaper", "death-transition", "scenario", "without-partner"}) {
    const QImage light(out.filePath(QStringLiteral("%1-light.png").arg(name)));
    const QImage dark(out.filePath(QStringLiteral("%1-dark.png").arg(name)));
    EXPECT_FALSE(light.isNull()) << name;
    EXPECT_EQ(light.size(), dark.size());
    if (QByteArray(name) != "scenario") {
      EXPECT_EQ(light.size(), MainWindow::kFirstSize);
    }
    // A corner of the window's background.
    EXPECT_GT(light.pixelColor(5, light.height() - 5).lightness(), 200) << name;
    EXPECT_LT(dark.pixelColor(5, dark.height() - 5).lightness(), 100) << name;
  }

  QFile transcript(out.filePath("transcript.jsonl"));
  ASSERT_TRUE(transcript.open(QIODevice::ReadOnly));
  QStringList messages;
  int written = 0;
  while (!transcript.atEnd()) {
    QJsonParseError error{};
    const QJsonObject line = QJsonDocument::fromJson(transcript.readLine(), &error).object();
    ASSERT_EQ(error.error, QJsonParseError::NoError);
    if (line.contains("message")) messages << line["message"]["text"].toString();
    if (line.contains("set")) ++written;
  }
  EXPECT_EQ(messages, (QStringList{"Voer s.v.p. een aanvangsdatum in.",
                                   "Wilt u de wijzigingen overnemen in de nieuwe situatie?"}));
  EXPECT_GT(written, 10);
}

/// The same document on controls in memory: what it writes is what the window's session has put into the file.
TEST(CommandLineTest, TheSessionInTheWindowStoresWhatItsDocumentWrites) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("s.dossier");
  ASSERT_EQ(RunProgram({"--voorbeeld", file}).code, 0);
  ASSERT_EQ(RunProgram({"--sessie", folder.filePath("uit"), file}).code, 0);
  const replay::Document document = ReadSampleSession();
  replay::Session session(document, [](std::string_view) {});
  session.Run();
  dossier::DossierGegevens expected = session.Case().Gegevens();
  // The partner goes last, which is no part of the document.
  expected.Personen.pop_back();
  EXPECT_EQ(replay::ToJson(dossier::DossierFile::Open(file)->Dossier()->Gegevens()), replay::ToJson(expected));
}

TEST(SampleSession, StartsFromTheSampleCaseWithAColumnAdded) {
  dossier::Dossier dossier(dossier::VoorbeeldDossier(), std::make_shared<dossier::Environment>());
  dossier.NewKolom(dossier::Dossier::kHuidig);
  EXPECT_EQ(replay::ToJson(ReadSampleSession().dossier), replay::ToJson(dossier.Gegevens()));
}

}  // namespace
}  // namespace brivane::app
