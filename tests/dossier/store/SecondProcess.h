#pragma once

#include <QProcess>
#include <QStringList>

#include "tests/dossier/store/Files.h"

namespace brivane::dossier {

/// A second process at work on a loan file; see Tweede.cpp for what it can be told.
class TweedeProces {
 public:
  explicit TweedeProces(const QStringList& opdracht) {
    proces_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    proces_.start(QStringLiteral(SECOND_PROCESS), opdracht);
    EXPECT_TRUE(proces_.waitForStarted());
  }

  /// Its next line, or nothing where it ended without one.
  [[nodiscard]] QString Regel() {
    while (!proces_.canReadLine()) {
      if (!proces_.waitForReadyRead(kGeduld)) return {};
    }
    return QString::fromUtf8(proces_.readLine()).trimmed();
  }
  /// Kills it, and answers all that it had said by then.
  [[nodiscard]] QStringList Dood() {
    proces_.kill();
    EXPECT_TRUE(proces_.waitForFinished(kGeduld));
    return QString::fromUtf8(proces_.readAll()).split('\n', Qt::SkipEmptyParts);
  }
  /// Lets it finish, and answers its exit code.
  int Sluit() {
    proces_.closeWriteChannel();
    EXPECT_TRUE(proces_.waitForFinished(kGeduld));
    EXPECT_EQ(proces_.exitStatus(), QProcess::NormalExit);
    return proces_.exitCode();
  }

 private:
  static constexpr int kGeduld = 60000;
  QProcess proces_;
};

}  // namespace brivane::dossier
