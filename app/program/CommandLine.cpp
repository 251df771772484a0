#include "app/program/CommandLine.h"

#include <QFile>

#include "app/office/OfficeWords.h"

namespace brivane::app {
namespace {

struct Option {
  const char* name;
  Command command;
  int arguments;
};

constexpr Option kOptions[] = {
    {"--voorbeeld", Command::Sample, 1},
    {"--sessie", Command::Session, 2},
    {"--kantoor", Command::Office, 1},
    {"--kantoor-inrichten", Command::OfficeSetUp, 1},
    {"--kantoor-proef", Command::OfficeTrial, 1},
    {"--kantoor-sessie", Command::OfficeSession, 4},
    {"--help", Command::Help, 0},
    {"-h", Command::Help, 0},
    {"--version", Command::Version, 0},
};

CommandLine Refusal(const QString& message) {
  CommandLine line;
  line.command = Command::Error;
  line.message = QStringLiteral("dossier: ") + message + QStringLiteral(" (see dossier --help)");
  return line;
}

/// The folder of the pictures, where the command takes one, and offices.
CommandLine ReadOffices(CommandLine line, QStringList arguments) {
  if (line.command == Command::OfficeSession) line.outputFolder = arguments.takeFirst();
  for (const QString& words : arguments) {
    if (const WordsFault fault = FaultOf(words); fault != WordsFault::None) return Refusal(FaultLine(fault));
  }
  line.offices = arguments;
  return line;
}

}  // namespace

std::optional<QStringList> DecodeArguments(int count, const char* const* arguments) {
  QStringList decoded;
  for (int number = 1; number < count; ++number) {
    const QByteArray bytes(arguments[number]);
    decoded << QFile::decodeName(bytes);
    if (QFile::encodeName(decoded.last()) != bytes) return std::nullopt;
  }
  return decoded;
}

CommandLine ReadCommandLine(const QStringList& arguments) {
  CommandLine line;
  if (arguments.isEmpty()) return line;
  const QString& first = arguments.first();
  if (!first.startsWith(u'-')) {
    if (arguments.size() > 1) return Refusal(QStringLiteral("one file at most"));
    if (first.isEmpty()) return Refusal(QStringLiteral("the file name is empty"));
    line.file = first;
    return line;
  }
  for (const Option& option : kOptions) {
    if (first != QLatin1String(option.name)) continue;
    if (arguments.size() - 1 != option.arguments || arguments.mid(1).contains(QString())) {
      return Refusal(QStringLiteral("%1 takes %2 argument(s)").arg(first).arg(option.arguments));
    }
    line.command = option.command;
    if (first.startsWith(QLatin1String("--kantoor"))) return ReadOffices(line, arguments.mid(1));
    if (option.arguments > 0) line.file = arguments.last();
    if (option.arguments == 2) line.outputFolder = arguments.at(1);
    return line;
  }
  return Refusal(QStringLiteral("unknown option '%1'").arg(first));
}

QString HelpText() {
  return QStringLiteral(
      "Usage: dossier [FILE]                  open the window, on FILE or on the file of last time\n"
      "       dossier --voorbeeld FILE        write the sample loan file to FILE\n"
      "       dossier --sessie OUTDIR FILE    play the sample session on FILE without a screen;\n"
      "                                       leaves OUTDIR/*.png and OUTDIR/transcript.jsonl\n"
      "       dossier --kantoor OFFICE        open the window on the clients of an office\n"
      "       dossier --kantoor-inrichten OFFICE\n"
      "                                       make the schema and the roles of an office, or bring them up to date\n"
      "       dossier --kantoor-proef OFFICE  add 200 made-up clients\n"
      "       dossier --kantoor-sessie OUTDIR OFFICE OFFICE MANAGER\n"
      "                                       play two advisers at one client without a screen; leaves OUTDIR/*.png\n"
      "       dossier --help | --version\n"
      "\n"
      "OFFICE is the name of a libpq service, or connection words: \"host=db dbname=kantoor sslmode=verify-full\".\n"
      "A password never stands in it: it comes from where libpq looks for it, or is asked for.\n"
      "A loan file is one .dossier file. Exit code: 0 done, 1 failed, 2 wrong arguments.\n");
}

}  // namespace brivane::app
