#include <gtest/gtest.h>

#include <QApplication>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "app/program/Program.h"
#include "tests/app/screen/JsonFields.h"
#include "tests/app/screen/WindowTest.h"

namespace {

constexpr char kRead[] = "--read";

int ReadFile(const char* file) {
  const auto opened = brivane::dossier::DossierFile::Open(QString::fromLocal8Bit(file));
  if (!opened->ControleerHeelheid().isEmpty()) return 1;
  std::puts(QJsonDocument(brivane::app::JsonFields(*opened->Dossier())).toJson().constData());
  return 0;
}

}  // namespace

QJsonObject brivane::app::ReadInSecondProcess(const QString& file) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kRead), file});
  EXPECT_TRUE(process.waitForFinished(60000));
  EXPECT_EQ(process.exitCode(), 0);
  return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

int main(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]) == kRead) {
    const QCoreApplication program(argc, argv);
    return ReadFile(argv[2]);
  }
  testing::InitGoogleTest(&argc, argv);
  // The person's own settings and log stay out of it.
  const QTemporaryDir aside;
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
    qputenv(name, aside.path().toLocal8Bit());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication program(argc, argv);
  brivane::app::SetUpProgram(program);
  return RUN_ALL_TESTS();
}
