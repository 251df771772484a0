#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <cstdio>

#include "app/program/CommandLine.h"
#include "app/program/EndSignals.h"
#include "app/program/PrivateFiles.h"
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
  // Its transcript replaces the one before, and nothing else.
  const QString transcript = QDir(regel.uitvoermap).filePath(QStringLiteral("transcript.jsonl"));
  if (DossierBestand::StandsAt(transcript)) {
    std::fprintf(stderr, "dossier: '%s' is a loan file\n", qUtf8Printable(transcript));
    return kMislukt;
  }
  const QString fout = SpeelSessie(regel.uitvoermap, regel.bestand);
  if (fout.isEmpty()) return 0;
  std::fprintf(stderr, "dossier: %s\n", qUtf8Printable(fout));
  return kMislukt;
}

int ToonVenster(const QString& bestand) {
  const QString map = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  brivane::app::MakePrivate(map);
  brivane::app::MakePrivate(QFileInfo(QSettings().fileName()).absolutePath());
  Logboek logboek(map);
  Hoofdvenster venster(logboek);
  const brivane::app::EndSignals endSignals([&] { venster.EndInOrder(); });
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &venster, &Hoofdvenster::HandOverTyped,
                   Qt::DirectConnection);
  venster.show();
  if (!bestand.isEmpty()) {
    venster.Open(bestand);
  } else if (const QString laatste = Instellingen::LaatsteBestand(); QFile::exists(laatste)) {
    venster.Open(laatste);
  }
  venster.OfferUnfinished();
  return QApplication::exec();
}

}  // namespace

int main(int aantal, char** argumenten) {
  brivane::app::KeepPrivate();
  const auto lijst = DecodeArguments(aantal, argumenten);
  if (!lijst) {
    std::fputs("dossier: a name that is not UTF-8 (see dossier --help)\n", stderr);
    return kVerkeerdeArgumenten;
  }
  const Opdrachtregel regel = LeesOpdrachtregel(*lijst);
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
