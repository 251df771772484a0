#include <gtest/gtest.h>

#include <QApplication>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "app/program/JsonFields.h"
#include "app/program/Program.h"
#include "tests/app/screen/WindowTest.h"

namespace {

constexpr char kLees[] = "--lees";

int Lees(const char* bestand) {
  const auto geopend = brivane::dossier::DossierBestand::Open(QString::fromLocal8Bit(bestand));
  if (!geopend->ControleerHeelheid().isEmpty()) return 1;
  std::puts(QJsonDocument(brivane::dossier::Jsonvelden(*geopend->Dossier())).toJson().constData());
  return 0;
}

}  // namespace

QJsonObject brivane::dossier::LeesInTweedeProces(const QString& bestand) {
  QProcess proces;
  proces.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  proces.start(QCoreApplication::applicationFilePath(), {QLatin1String(kLees), bestand});
  EXPECT_TRUE(proces.waitForFinished(60000));
  EXPECT_EQ(proces.exitCode(), 0);
  return QJsonDocument::fromJson(proces.readAllStandardOutput()).object();
}

int main(int aantal, char** argumenten) {
  if (aantal == 3 && std::string(argumenten[1]) == kLees) {
    const QCoreApplication programma(aantal, argumenten);
    return Lees(argumenten[2]);
  }
  testing::InitGoogleTest(&aantal, argumenten);
  // The person's own settings and log stay out of it.
  const QTemporaryDir terzijde;
  for (const char* naam : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
    qputenv(naam, terzijde.path().toLocal8Bit());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication programma(aantal, argumenten);
  brivane::dossier::StelProgrammaIn(programma);
  return RUN_ALL_TESTS();
}
