#include <gtest/gtest.h>

#include <QDir>
#include <QPlainTextEdit>
#include <QTemporaryDir>

#include "app/desk/EventLog.h"
#include "app/desk/TraceLog.h"
#include "app/screen/EventLogWindow.h"

namespace brivane::app {
namespace {

class EventLogTest : public testing::Test {
 protected:
  [[nodiscard]] QStringList Files() const { return QDir(folder_.path()).entryList(QDir::Files, QDir::Name); }
  [[nodiscard]] qint64 SizeOf(const char* name) const { return QFileInfo(folder_.filePath(name)).size(); }
  QTemporaryDir folder_;
};

TEST_F(EventLogTest, RotatesAndKeepsAFixedNumberOfFiles) {
  // A line takes 25 bytes for the time, 75 for its text and the line end: ten to a file.
  EventLog eventLog(folder_.path(), {.bytesPerFile = 1000, .files = 3});
  const QString text(74 - 4, u'x');
  for (int number = 0; number < 100; ++number) eventLog.Write(QStringLiteral("%1 ").arg(number, 4) + text.mid(1));
  EXPECT_EQ(Files(), (QStringList{"logboek.1.txt", "logboek.2.txt", "logboek.txt"}));
  EXPECT_EQ(SizeOf("logboek.txt"), 1000);
  const QStringList lines = eventLog.Read().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 30);
  EXPECT_TRUE(lines.first().contains("  70 x")) << qPrintable(lines.first());
  EXPECT_TRUE(lines.last().contains("  99 x"));
}

TEST_F(EventLogTest, GoesOnWhereItHadStopped) {
  EventLog(folder_.path()).Write("eerste");
  EventLog eventLog(folder_.path());
  eventLog.Write("tweede");
  const QString all = eventLog.Read();
  EXPECT_LT(all.indexOf("eerste"), all.indexOf("tweede"));
  EXPECT_GE(all.indexOf("eerste"), 0);
}

TEST_F(EventLogTest, TwoWindowsWriteTheSameLog) {
  const EventLog::Limits limits{.bytesPerFile = 1000, .files = 3};
  EventLog one(folder_.path(), limits);
  EventLog two(folder_.path(), limits);
  for (int number = 0; number < 9; ++number) one.Write(QString(74, u'a'));
  // Both find the file full; only the first of them makes room.
  one.Write(QString(200, u'b'));
  two.Write(QString(200, u'c'));
  EXPECT_EQ(Files(), (QStringList{"logboek.1.txt", "logboek.txt"}));
  EXPECT_TRUE(one.Read().contains(QString(200, u'c')));
}

TEST_F(EventLogTest, AFolderThatCannotBeWrittenCostsNoWork) {
  QFile occupied(folder_.filePath("bezet"));
  ASSERT_TRUE(occupied.open(QIODevice::WriteOnly));
  EventLog eventLog(occupied.fileName());
  eventLog.Write("regel");
  EXPECT_TRUE(eventLog.Read().isEmpty());
}

TEST_F(EventLogTest, IndentsByProcedureAndShowsWhereItWentWrong) {
  EventLog eventLog(folder_.path());
  TraceLog log(eventLog);
  log.Entered("VrijeKolom", "SetApplication");
  log.Entered("VrijeKolom", "Fill_Controls");
  log.Left("VrijeKolom");
  log.Entered("VrijeKolom", "Fill_Product");
  log.Failed("VrijeKolom", "SetApplication");
  log.Entered("Toelichting", "Validation");
  QStringList lines;
  for (const QString& line : eventLog.Read().split('\n', Qt::SkipEmptyParts)) lines << line.mid(25);
  EXPECT_EQ(lines, (QStringList{"> SetApplication  (VrijeKolom)", "  > Fill_Controls  (VrijeKolom)",
                                "  < Fill_Controls  (VrijeKolom)", "  > Fill_Product  (VrijeKolom)",
                                "! SetApplication  (VrijeKolom)", "> Validation  (Toelichting)"}));
}

TEST_F(EventLogTest, TheWindowShowsWhatStandsThere) {
  EventLog eventLog(folder_.path());
  eventLog.Write("FOUT 13 in VrijeKolom");
  const EventLogWindow window(eventLog, nullptr);
  const auto* text = window.findChild<QPlainTextEdit*>("logboek");
  ASSERT_NE(text, nullptr);
  EXPECT_TRUE(text->toPlainText().contains("FOUT 13 in VrijeKolom"));
  EXPECT_TRUE(text->isReadOnly());
}

}  // namespace
}  // namespace brivane::app
