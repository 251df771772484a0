#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "app/program/CommandLine.h"
#include "tests/app/screen/WindowTest.h"

// The program from its command line.
namespace brivane::dossier {
namespace {

struct Uitvoer {
  int code = -1;
  QString uit;
  QString fout;
};

Uitvoer Draai(const QStringList& argumenten) {
  QProcess proces;
  proces.start(QStringLiteral(DOSSIER), argumenten);
  EXPECT_TRUE(proces.waitForFinished(60000)) << "dossier " << qPrintable(argumenten.join(' '));
  return {proces.exitCode(), QString::fromUtf8(proces.readAllStandardOutput()),
          QString::fromUtf8(proces.readAllStandardError())};
}

TEST(Opdrachtregel, VerkeerdeArgumentenGevenEenRegelEnCodeTwee) {
  for (const QStringList& argumenten :
       {QStringList{"--onzin"}, QStringList{"--voorbeeld"}, QStringList{"--sessie", "uit"}, QStringList{"een", "twee"},
        QStringList{"--help", "meer"}, QStringList{""}}) {
    const Uitvoer uitvoer = Draai(argumenten);
    EXPECT_EQ(uitvoer.code, 2) << qPrintable(argumenten.join(' '));
    EXPECT_EQ(uitvoer.fout.count('\n'), 1) << qPrintable(uitvoer.fout);
    EXPECT_TRUE(uitvoer.uit.isEmpty());
  }
}

TEST(Opdrachtregel, HelpEnVersieGaanNaarDeUitvoer) {
  const Uitvoer help = Draai({"--help"});
  EXPECT_EQ(help.code, 0);
  EXPECT_TRUE(help.uit.startsWith("Usage: dossier [FILE]"));
  const Uitvoer versie = Draai({"--version"});
  EXPECT_EQ(versie.code, 0);
  EXPECT_EQ(versie.uit, "dossier " BRIVANE_VERSION "\n");
}

TEST(Opdrachtregel, HetVoorbeeldIsEenDossier) {
  const QTemporaryDir map;
  const QString bestand = map.filePath("v.dossier");
  EXPECT_EQ(Draai({"--voorbeeld", bestand}).code, 0);
  EXPECT_EQ(LeesInTweedeProces(bestand)["0/5/bedrag"].toDouble(), 6250);
  // It never replaces a file.
  const Uitvoer weer = Draai({"--voorbeeld", bestand});
  EXPECT_EQ(weer.code, 1);
  EXPECT_EQ(weer.fout.count('\n'), 1);
}

TEST(Opdrachtregel, EenSessieOpEenAnderSoortBestandMisluktInEenRegel) {
  const QTemporaryDir map;
  QFile brief(map.filePath("brief.dossier"));
  ASSERT_TRUE(brief.open(QIODevice::WriteOnly));
  brief.write("tekst");
  brief.close();
  const Uitvoer uitvoer = Draai({"--sessie", map.filePath("uit"), brief.fileName()});
  EXPECT_EQ(uitvoer.code, 1);
  EXPECT_TRUE(uitvoer.fout.contains("is geen dossier"));
}

/// The session ends by taking the partner out, to whom a second one lets an amount go over.
TEST(Opdrachtregel, EenSessieDieEenFoutmeldingKrijgtEindigtMetWatDieZegt) {
  const QTemporaryDir map;
  const QString bestand = map.filePath("s.dossier");
  ASSERT_EQ(Draai({"--voorbeeld", bestand}).code, 0);
  ASSERT_EQ(Draai({"--sessie", map.filePath("uit"), bestand}).code, 0);
  const Uitvoer tweede = Draai({"--sessie", map.filePath("uit"), bestand});
  EXPECT_EQ(tweede.code, 1);
  EXPECT_TRUE(tweede.fout.contains("txtEinddatum was answered: Er is een fout opgetreden.")) << qPrintable(tweede.fout);
  EXPECT_TRUE(tweede.fout.contains("Foutnummer: 91")) << qPrintable(tweede.fout);
}

TEST(Opdrachtregel, DeSessieLaatBeeldenEnEenTranscriptAchter) {
  const QTemporaryDir map;
  const QString bestand = map.filePath("s.dossier");
  ASSERT_EQ(Draai({"--voorbeeld", bestand}).code, 0);
  const QDir uit(map.filePath("uit"));
  const Uitvoer uitvoer = Draai({"--sessie", uit.path(), bestand});
  ASSERT_EQ(uitvoer.code, 0) << qPrintable(uitvoer.fout);

  for (const char* naam : {"recurring-cost", "newspaper", "death-transition", "scenario", "without-partner"}) {
    const QImage licht(uit.filePath(QStringLiteral("%1-light.png").arg(naam)));
    const QImage donker(uit.filePath(QStringLiteral("%1-dark.png").arg(naam)));
    EXPECT_FALSE(licht.isNull()) << naam;
    EXPECT_EQ(licht.size(), donker.size());
    if (QByteArray(naam) != "scenario") {
      EXPECT_EQ(licht.size(), Hoofdvenster::kEersteMaat);
    }
    // A corner of the window's background.
    EXPECT_GT(licht.pixelColor(5, licht.height() - 5).lightness(), 200) << naam;
    EXPECT_LT(donker.pixelColor(5, donker.height() - 5).lightness(), 100) << naam;
  }

  QFile transcript(uit.filePath("transcript.jsonl"));
  ASSERT_TRUE(transcript.open(QIODevice::ReadOnly));
  QStringList meldingen;
  QJsonObject geschreven;
  while (!transcript.atEnd()) {
    QJsonParseError fout{};
    const QJsonObject regel = QJsonDocument::fromJson(transcript.readLine(), &fout).object();
    ASSERT_EQ(fout.error, QJsonParseError::NoError);
    if (regel.contains("message")) meldingen << regel["message"].toString();
    const QJsonObject velden = regel["written"].toObject();
    for (auto veld = velden.begin(); veld != velden.end(); ++veld) geschreven.insert(veld.key(), veld.value());
  }
  EXPECT_TRUE(meldingen.contains("Voer s.v.p. een aanvangsdatum in."));
  EXPECT_TRUE(meldingen.contains("Wilt u de wijzigingen overnemen in de nieuwe situatie?"));
  // What the transcript says was written is what the file holds.
  const QJsonObject gelezen = LeesInTweedeProces(bestand);
  EXPECT_GT(geschreven.size(), 10);
  for (auto veld = geschreven.begin(); veld != geschreven.end(); ++veld) {
    EXPECT_EQ(gelezen[veld.key()], veld.value().isNull() ? QJsonValue(QJsonValue::Undefined) : veld.value())
        << qPrintable(veld.key());
  }
}

}  // namespace
}  // namespace brivane::dossier
