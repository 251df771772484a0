#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

namespace brivane::app {

/// What came of a run of the program.
struct Output {
  int code = -1;
  QString out;
  QString error;
};

/// Runs the program with these arguments, nobody at the keys, and waits for its end.
inline Output RunProgram(const QStringList& arguments) {
  QProcess process;
  process.start(QStringLiteral(DOSSIER), arguments);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(600000)) << "dossier " << qPrintable(arguments.join(' '));
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

}  // namespace brivane::app
