#include "app/program/CommandLine.h"

namespace brivane::app {
namespace {

struct Option {
  const char* name;
  Command command;
  int arguments;
};

constexpr Option kOptions[] = {
    {"--voorbeeld", Command::Sample, 1}, {"--sessie", Command::Session, 2},
    {"--help", Command::Help, 0},        {"-h", Command::Help, 0},
    {"--version", Command::Version, 0},
};

CommandLine Refusal(const QString& message) {
  CommandLine line;
  line.command = Command::Error;
  line.message = QStringLiteral("dossier: ") + message + QStringLiteral(" (see dossier --help)");
  return line;
}

}  // namespace

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
      "       dossier --help | --version\n"
      "\n"
      "A loan file is one .dossier file. Exit code: 0 done, 1 failed, 2 wrong arguments.\n");
}

}  // namespace brivane::app
