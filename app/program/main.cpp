#include <QApplication>
#include <QStandardPaths>
#include <cstdio>

#include "app/program/CommandLine.h"
#include "app/program/Program.h"
#include "app/program/SampleSession.h"
#include "app/program/Settings.h"
#include "app/screen/MainWindow.h"
#include "dossier/model/SampleCase.h"

namespace {

using namespace brivane::dossier;

constexpr int kMislukt = 1;

int MaakVoorbeeld(const QString& bestand) {
  try {
    DossierBestand::Maak(bestand, VoorbeeldDossier());
  } catch (const OpeningError& fout) {
    std::fprintf(stderr, "dossier: cannot write the sample file: %s\n", qUtf8Printable(fout.Melding()));
    return kMislukt;
  }
  return 0;
}

int Speel(const Opdrachtregel& regel) {
  const QString fout = SpeelSessie(regel.uitvoermap, regel.bestand);
  if (fout.isEmpty()) return 0;
  std::fprintf(stderr, "dossier: %s\n", qUtf8Printable(fout));
  return kMislukt;
}

int ToonVenster(const QString& bestand) {
  Logboek logboek(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  Hoofdvenster venster(logboek);
  venster.show();
  if (!bestand.isEmpty()) {
    venster.Open(bestand);
  } else if (const QString laatste = Instellingen::LaatsteBestand(); QFile::exists(laatste)) {
    venster.Open(laatste);
  }
  return QApplication::exec();
}

}  // namespace

int main(int aantal, char** argumenten) {
  QStringList lijst;
  for (int nummer = 1; nummer < aantal; ++nummer) lijst << QFile::decodeName(argumenten[nummer]);
  const Opdrachtregel regel = LeesOpdrachtregel(lijst);
  switch (regel.opdracht) {
    case Opdracht::Help: std::fputs(qUtf8Printable(Helptekst()), stdout); return 0;
    case Opdracht::Versie: std::puts("dossier " BRIVANE_VERSION); return 0;
    case Opdracht::Fout: std::fprintf(stderr, "%s\n", qUtf8Printable(regel.melding)); return kVerkeerdeArgumenten;
    case Opdracht::Voorbeeld:
    case Opdracht::Sessie:
    case Opdracht::Venster: break;
  }
  if (regel.opdracht == Opdracht::Voorbeeld) {
    QCoreApplication programma(aantal, argumenten);
    return MaakVoorbeeld(regel.bestand);
  }
  if (regel.opdracht == Opdracht::Sessie) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication programma(aantal, argumenten);
  StelProgrammaIn(programma);
  if (regel.opdracht == Opdracht::Sessie) return Speel(regel);
  return ToonVenster(regel.bestand);
}
