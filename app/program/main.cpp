#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "app/desk/Settings.h"
#include "app/program/CommandLine.h"
#include "app/program/OfficeCommands.h"
#include "app/program/OfficeSession.h"
#include "app/program/PrivateFiles.h"
#include "app/program/Program.h"
#include "app/program/SampleSession.h"
#include "app/program/SessionEnd.h"
#include "app/screen/MainWindow.h"
#include "dossier/model/SampleCase.h"
#include "dossier/office/Aside.h"

namespace {

using namespace brivane::app;
namespace dossier = brivane::dossier;

constexpr int kFailed = 1;
/// For what is still under way when the window is gone.
constexpr std::chrono::milliseconds kLastWord{200};

int MakeSample(const QString& file) {
  try {
    dossier::DossierFile::Maak(file, dossier::VoorbeeldDossier());
  } catch (const dossier::OpeningError& error) {
    std::fprintf(stderr, "dossier: cannot write the sample file: %s\n", qUtf8Printable(error.Melding()));
    return kFailed;
  }
  return 0;
}

int PlaySession(const CommandLine& line) {
  // Its transcript replaces the one before, and nothing else.
  const QString transcript = QDir(line.outputFolder).filePath(QStringLiteral("transcript.jsonl"));
  if (dossier::DossierFile::StandsAt(transcript)) {
    std::fprintf(stderr, "dossier: '%s' is a loan file\n", qUtf8Printable(transcript));
    return kFailed;
  }
  const QString error = PlaySampleSession(line.outputFolder, line.file);
  if (error.isEmpty()) return 0;
  std::fprintf(stderr, "dossier: %s\n", qUtf8Printable(error));
  return kFailed;
}

int PlayOffice(const CommandLine& line) {
  const QString error = PlayOfficeSession(
      line.outputFolder, {.first = line.offices[0], .second = line.offices[1], .manager = line.offices[2]});
  if (error.isEmpty()) return 0;
  std::fprintf(stderr, "dossier: %s\n", qUtf8Printable(error));
  return kFailed;
}

void Begin(MainWindow& window, const CommandLine& line) {
  if (!line.offices.isEmpty()) {
    window.OpenOffice(line.offices.first());
  } else if (!line.file.isEmpty()) {
    window.Open(line.file);
  } else if (const QString last = Settings::LastFile(); QFile::exists(last)) {
    window.Open(last);
  }
  window.OfferUnfinished();
}

int ShowWindow(const CommandLine& line) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  MakePrivate(folder);
  MakePrivate(QFileInfo(QSettings().fileName()).absolutePath());
  EventLog eventLog(folder);
  MainWindow window(eventLog);
  const SessionEnd end(window);
  window.show();
  // In the program's event loop: what that asks or shows may be ended from outside, and the program with it.
  QTimer::singleShot(0, &window, [&] { Begin(window, line); });
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  KeepPrivate();
  const auto arguments = DecodeArguments(argc, argv);
  if (!arguments) {
    std::fputs("dossier: a name that is not UTF-8 (see dossier --help)\n", stderr);
    return kWrongArguments;
  }
  const CommandLine line = ReadCommandLine(*arguments);
  switch (line.command) {
    case Command::Help: std::fputs(qUtf8Printable(HelpText()), stdout); return 0;
    case Command::Version: std::puts("dossier " BRIVANE_VERSION); return 0;
    case Command::Error: std::fprintf(stderr, "%s\n", qUtf8Printable(line.message)); return kWrongArguments;
    case Command::Sample:
    case Command::Session:
    case Command::Office:
    case Command::OfficeSetUp:
    case Command::OfficeTrial:
    case Command::OfficeSession:
    case Command::Window: break;
  }
  if (line.command == Command::Sample) {
    QCoreApplication program(argc, argv);
    return MakeSample(line.file);
  }
  if (line.command == Command::OfficeSetUp || line.command == Command::OfficeTrial) {
    QCoreApplication program(argc, argv);
    return line.command == Command::OfficeSetUp ? SetUpOfficeOf(line.offices.first())
                                                : AddTrialClients(line.offices.first());
  }
  if (line.command == Command::Session || line.command == Command::OfficeSession)
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication program(argc, argv);
  SetUpProgram(program);
  if (line.command == Command::Session) return PlaySession(line);
  if (line.command == Command::OfficeSession) return PlayOffice(line);
  const int code = ShowWindow(line);
  // A server that does not answer is not waited for.
  if (!dossier::Aside::AllEnd(kLastWord)) std::_Exit(code);
  return code;
}
