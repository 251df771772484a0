#include "dossier/store/OpeningError.h"

#include <QDir>
#include <QFileInfo>

namespace brivane::dossier {
namespace {

QString Tekst(OpeningProblem problem, const QString& naam, const QString& map, const QString& plaats) {
  switch (problem) {
    case OpeningProblem::Missing:
      return QStringLiteral("Het dossier \"%1\" bestaat niet (meer) in de map \"%2\".").arg(naam, map);
    case OpeningProblem::Directory: return QStringLiteral("\"%1\" is een map en geen dossier.").arg(naam);
    case OpeningProblem::Empty: return QStringLiteral("Het bestand \"%1\" is leeg en bevat geen dossier.").arg(naam);
    case OpeningProblem::NotALoanFile: return QStringLiteral("Het bestand \"%1\" is geen dossier.").arg(naam);
    case OpeningProblem::Impossible:
      return QStringLiteral(
                 "Het dossier \"%1\" is niet geopend: het bevat een waarde die dit programma niet schrijft (%2). Zet "
                 "een reservekopie terug.")
          .arg(naam, plaats);
    case OpeningProblem::TooLarge:
      return QStringLiteral("Het bestand \"%1\" is niet geopend: het is groter dan een dossier kan zijn.").arg(naam);
    case OpeningProblem::Damaged:
      return QStringLiteral("Het dossier \"%1\" is beschadigd en is niet geopend%2. Zet een reservekopie terug.")
          .arg(naam, plaats.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(plaats));
    case OpeningProblem::Newer:
      return QStringLiteral(
                 "Het dossier \"%1\" is gemaakt met een nieuwere versie van dit programma. "
                 "Werk het programma bij om het te openen.")
          .arg(naam);
    case OpeningProblem::ReadOnly:
      return QStringLiteral("Het dossier \"%1\" kan niet worden gewijzigd: het bestand of de map is alleen-lezen.")
          .arg(naam);
    case OpeningProblem::InUse:
      return QStringLiteral("Het dossier \"%1\" is al geopend in een ander venster of programma.").arg(naam);
    case OpeningProblem::Unreadable:
      return QStringLiteral("Het dossier \"%1\" kan niet worden gelezen: u hebt er geen toegang toe.").arg(naam);
    case OpeningProblem::SecondName:
      return QStringLiteral(
                 "Het dossier \"%1\" staat onder nog een naam op de schijf (een harde koppeling) en is niet geopend. "
                 "Maak een kopie van het bestand en open die.")
          .arg(naam);
    case OpeningProblem::StrangeLog:
      return QStringLiteral(
                 "Naast het dossier \"%1\" staat een logboek dat er niet aantoonbaar bij hoort (\"%1-wal\" of "
                 "\"%1-journal\"). Er is niets geopend en niets gewijzigd. Zet dat logboek in een andere map om het "
                 "dossier zonder te openen.")
          .arg(naam);
    case OpeningProblem::NoLocks:
      return QStringLiteral(
                 "Het dossier \"%1\" kan niet worden geopend: de schijf met de map \"%2\" kan niet voorkomen dat twee "
                 "programma's er tegelijk in werken. Zet het dossier op een andere schijf.")
          .arg(naam, map);
    case OpeningProblem::DiskFull:
      return QStringLiteral("De schijf met de map \"%2\" is vol. Maak ruimte en probeer het dossier \"%1\" opnieuw.")
          .arg(naam, map);
    case OpeningProblem::DiskError:
      return QStringLiteral(
                 "Het dossier \"%1\" kan nu niet worden gelezen of geschreven: de schijf met de map \"%2\" meldt een "
                 "fout. Controleer de schijf of de verbinding en probeer het opnieuw.")
          .arg(naam, map);
    case OpeningProblem::NoMemory:
      return QStringLiteral("Er is te weinig geheugen om het dossier \"%1\" te openen.").arg(naam);
    case OpeningProblem::NoEarlierVersion:
      return QStringLiteral(
                 "Het dossier \"%1\" is van een eerdere versie van dit programma en is niet bijgewerkt: in de map "
                 "\"%2\" kan er geen kopie van worden bewaard. Maak ruimte en probeer het opnieuw.")
          .arg(naam, map);
    case OpeningProblem::CannotCopy:
      return QStringLiteral(
                 "Het dossier \"%1\" is niet geopend: een eerder programma is onderbroken, en van wat het achterliet "
                 "kan geen kopie worden gemaakt om het na te kijken. Is er nog ruimte op de schijf?")
          .arg(naam);
    case OpeningProblem::AlreadyThere:
      return QStringLiteral("In de map \"%2\" staat al een bestand \"%1\".").arg(naam, map);
    case OpeningProblem::LogThere:
      return QStringLiteral(
                 "In de map \"%2\" staat nog een logboek van een eerder dossier \"%1\" (\"%1-wal\" of "
                 "\"%1-journal\"). Kies een andere naam, of zet dat logboek in een andere map.")
          .arg(naam, map);
    case OpeningProblem::CannotCreate:
      return QStringLiteral("Het dossier \"%1\" kan niet worden gemaakt in de map \"%2\".").arg(naam, map);
  }
  return {};
}

}  // namespace

OpeningError::OpeningError(OpeningProblem problem, const QString& pad, const QString& plaats) : problem_(problem) {
  const QFileInfo bestand(pad);
  melding_ = Tekst(problem, bestand.fileName(), QDir::toNativeSeparators(bestand.absolutePath()), plaats);
  bytes_ = melding_.toStdString();
}

}  // namespace brivane::dossier
