#include "dossier/store/OpeningError.h"

#include <QDir>
#include <QFileInfo>

namespace brivane::dossier {
namespace {

QString Tekst(OpeningProblem problem, const QString& naam, const QString& map) {
  switch (problem) {
    case OpeningProblem::Missing:
      return QStringLiteral("Het dossier \"%1\" bestaat niet (meer) in de map \"%2\".").arg(naam, map);
    case OpeningProblem::Directory: return QStringLiteral("\"%1\" is een map en geen dossier.").arg(naam);
    case OpeningProblem::Empty: return QStringLiteral("Het bestand \"%1\" is leeg en bevat geen dossier.").arg(naam);
    case OpeningProblem::NotALoanFile: return QStringLiteral("Het bestand \"%1\" is geen dossier.").arg(naam);
    case OpeningProblem::Damaged:
      return QStringLiteral("Het dossier \"%1\" is beschadigd en is niet geopend. Zet een reservekopie terug.")
          .arg(naam);
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
    case OpeningProblem::AlreadyThere:
      return QStringLiteral("In de map \"%2\" staat al een bestand \"%1\".").arg(naam, map);
    case OpeningProblem::CannotCreate:
      return QStringLiteral("Het dossier \"%1\" kan niet worden gemaakt in de map \"%2\".").arg(naam, map);
  }
  return {};
}

}  // namespace

OpeningError::OpeningError(OpeningProblem problem, const QString& pad) : problem_(problem) {
  const QFileInfo bestand(pad);
  melding_ = Tekst(problem, bestand.fileName(), QDir::toNativeSeparators(bestand.absolutePath()));
  bytes_ = melding_.toStdString();
}

}  // namespace brivane::dossier
