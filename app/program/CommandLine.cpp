#include "app/program/CommandLine.h"

#include <QFile>

namespace brivane::dossier {
namespace {

struct Vorm {
  const char* optie;
  Opdracht opdracht;
  int argumenten;
};

constexpr Vorm kVormen[] = {
    {"--voorbeeld", Opdracht::Voorbeeld, 1}, {"--sessie", Opdracht::Sessie, 2},
    {"--help", Opdracht::Help, 0},           {"-h", Opdracht::Help, 0},
    {"--version", Opdracht::Versie, 0},
};

Opdrachtregel Fout(const QString& melding) {
  Opdrachtregel regel;
  regel.opdracht = Opdracht::Fout;
  regel.melding = QStringLiteral("dossier: ") + melding + QStringLiteral(" (see dossier --help)");
  return regel;
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

Opdrachtregel LeesOpdrachtregel(const QStringList& argumenten) {
  Opdrachtregel regel;
  if (argumenten.isEmpty()) return regel;
  const QString& eerste = argumenten.first();
  if (!eerste.startsWith(u'-')) {
    if (argumenten.size() > 1) return Fout(QStringLiteral("one file at most"));
    if (eerste.isEmpty()) return Fout(QStringLiteral("the file name is empty"));
    regel.bestand = eerste;
    return regel;
  }
  for (const Vorm& vorm : kVormen) {
    if (eerste != QLatin1String(vorm.optie)) continue;
    if (argumenten.size() - 1 != vorm.argumenten || argumenten.mid(1).contains(QString())) {
      return Fout(QStringLiteral("%1 takes %2 argument(s)").arg(eerste).arg(vorm.argumenten));
    }
    regel.opdracht = vorm.opdracht;
    if (vorm.argumenten > 0) regel.bestand = argumenten.last();
    if (vorm.argumenten == 2) regel.uitvoermap = argumenten.at(1);
    return regel;
  }
  return Fout(QStringLiteral("unknown option '%1'").arg(eerste));
}

QString Helptekst() {
  return QStringLiteral(
      "Usage: dossier [FILE]                  open the window, on FILE or on the file of last time\n"
      "       dossier --voorbeeld FILE        write the sample loan file to FILE\n"
      "       dossier --sessie OUTDIR FILE    play the sample session on FILE without a screen;\n"
      "                                       leaves OUTDIR/*.png and OUTDIR/transcript.jsonl\n"
      "       dossier --help | --version\n"
      "\n"
      "A loan file is one .dossier file. Exit code: 0 done, 1 failed, 2 wrong arguments.\n");
}

}  // namespace brivane::dossier
