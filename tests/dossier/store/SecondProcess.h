#pragma once

#include <QProcess>
#include <QStringList>

#include "tests/dossier/store/Files.h"

namespace brivane::dossier {

/// A second process at work; see second_process.cpp and store_worker.cpp for what it can be told.
class SecondProcess {
 public:
  explicit SecondProcess(const QStringList& command) {
    // What works until it is killed does so in every kind of store.
    const bool works = command.front() == "edit" || command.front() == "walk";
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QString::fromLocal8Bit(works ? STORE_WORKER : SECOND_PROCESS), command);
    EXPECT_TRUE(process_.waitForStarted());
  }

  /// Its next line, or nothing where it ended without one.
  [[nodiscard]] QString Line() {
    while (!process_.canReadLine()) {
      if (!process_.waitForReadyRead(kPatience)) return {};
    }
    return QString::fromUtf8(process_.readLine()).trimmed();
  }
  /// Kills it, and answers all that it had said by then.
  [[nodiscard]] QStringList Kill() {
    process_.kill();
    EXPECT_TRUE(process_.waitForFinished(kPatience));
    return QString::fromUtf8(process_.readAll()).split('\n', Qt::SkipEmptyParts);
  }
  /// Lets it finish, and answers its exit code.
  int Close() {
    process_.closeWriteChannel();
    EXPECT_TRUE(process_.waitForFinished(kPatience));
    EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
    return process_.exitCode();
  }

 private:
  static constexpr int kPatience = 60000;
  QProcess process_;
};

}  // namespace brivane::dossier
