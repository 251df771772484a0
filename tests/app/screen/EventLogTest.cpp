#include <gtest/gtest.h>

#include <QDir>
#include <QPlainTextEdit>
#include <QTemporaryDir>

#include "app/program/EventLog.h"
#include "app/program/EventLogWindow.h"
#include "app/program/TraceLog.h"

namespace brivane::dossier {
namespace {

class LogboekTest : public testing::Test {
 protected:
  [[nodiscard]] QStringList Bestanden() const { return QDir(map_.path()).entryList(QDir::Files, QDir::Name); }
  [[nodiscard]] qint64 Grootte(const char* naam) const { return QFileInfo(map_.filePath(naam)).size(); }
  QTemporaryDir map_;
};

TEST_F(LogboekTest, DraaitEnHoudtEenVastAantalBestanden) {
  // A line takes 25 bytes for the time, 75 for its text and the line end: ten to a file.
  Logboek logboek(map_.path(), {.bytesPerBestand = 1000, .bestanden = 3});
  const QString tekst(74 - 4, u'x');
  for (int nummer = 0; nummer < 100; ++nummer) logboek.Schrijf(QStringLiteral("%1 ").arg(nummer, 4) + tekst.mid(1));
  EXPECT_EQ(Bestanden(), (QStringList{"logboek.1.txt", "logboek.2.txt", "logboek.txt"}));
  EXPECT_EQ(Grootte("logboek.txt"), 1000);
  const QStringList regels = logboek.Lees().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(regels.size(), 30);
  EXPECT_TRUE(regels.first().contains("  70 x")) << qPrintable(regels.first());
  EXPECT_TRUE(regels.last().contains("  99 x"));
}

TEST_F(LogboekTest, GaatVerderWaarHetGeblevenWas) {
  Logboek(map_.path()).Schrijf("eerste");
  Logboek logboek(map_.path());
  logboek.Schrijf("tweede");
  const QString alles = logboek.Lees();
  EXPECT_LT(alles.indexOf("eerste"), alles.indexOf("tweede"));
  EXPECT_GE(alles.indexOf("eerste"), 0);
}

TEST_F(LogboekTest, TweeVenstersSchrijvenInHetzelfdeLogboek) {
  const Logboek::Grenzen grenzen{.bytesPerBestand = 1000, .bestanden = 3};
  Logboek een(map_.path(), grenzen);
  Logboek twee(map_.path(), grenzen);
  for (int nummer = 0; nummer < 9; ++nummer) een.Schrijf(QString(74, u'a'));
  // Both find the file full; only the first of them makes room.
  een.Schrijf(QString(200, u'b'));
  twee.Schrijf(QString(200, u'c'));
  EXPECT_EQ(Bestanden(), (QStringList{"logboek.1.txt", "logboek.txt"}));
  EXPECT_TRUE(een.Lees().contains(QString(200, u'c')));
}

TEST_F(LogboekTest, EenMapDieNietTeSchrijvenIsKostGeenWerk) {
  QFile bezet(map_.filePath("bezet"));
  ASSERT_TRUE(bezet.open(QIODevice::WriteOnly));
  Logboek logboek(bezet.fileName());
  logboek.Schrijf("regel");
  EXPECT_TRUE(logboek.Lees().isEmpty());
}

TEST_F(LogboekTest, SpringtInPerProcedureEnToontWaarHetMisging) {
  Logboek logboek(map_.path());
  Traceerlog log(logboek);
  log.Entered("VrijeKolom", "SetApplication");
  log.Entered("VrijeKolom", "Fill_Controls");
  log.Left("VrijeKolom");
  log.Entered("VrijeKolom", "Fill_Product");
  log.Failed("VrijeKolom", "SetApplication");
  log.Entered("Toelichting", "Validation");
  QStringList regels;
  for (const QString& regel : logboek.Lees().split('\n', Qt::SkipEmptyParts)) regels << regel.mid(25);
  EXPECT_EQ(regels, (QStringList{"> SetApplication  (VrijeKolom)", "  > Fill_Controls  (VrijeKolom)",
                                 "  < Fill_Controls  (VrijeKolom)", "  > Fill_Product  (VrijeKolom)",
                                 "! SetApplication  (VrijeKolom)", "> Validation  (Toelichting)"}));
}

TEST_F(LogboekTest, HetVensterToontWatErStaat) {
  Logboek logboek(map_.path());
  logboek.Schrijf("FOUT 13 in VrijeKolom");
  const Logboekvenster venster(logboek, nullptr);
  const auto* tekst = venster.findChild<QPlainTextEdit*>("logboek");
  ASSERT_NE(tekst, nullptr);
  EXPECT_TRUE(tekst->toPlainText().contains("FOUT 13 in VrijeKolom"));
  EXPECT_TRUE(tekst->isReadOnly());
}

}  // namespace
}  // namespace brivane::dossier
