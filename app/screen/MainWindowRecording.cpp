// How the window records a session.
#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>

#include "app/program/FileDialogs.h"
#include "app/program/Settings.h"
#include "app/screen/MainWindow.h"
#include "app/screen/Messages.h"

namespace brivane::dossier {
namespace {

constexpr char kTitel[] = "Opname";

}  // namespace

void Hoofdvenster::VraagOpname() {
  // Not running before it runs.
  acties_.opnemen->setChecked(false);
  const QString bestand = app::AskNewFile(this,
                                          {.title = QStringLiteral("Opname opslaan als"),
                                           .folder = Instellingen::Map(),
                                           .filter = QStringLiteral("Opnamen (*.json)")},
                                          QStringLiteral("json"), QStringLiteral("Opname"));
  if (!bestand.isEmpty()) NeemOp(bestand);
}

bool Hoofdvenster::NeemOp(const QString& bestand) {
  if (QFileInfo::exists(bestand)) {
    ToonMelding(this, QString::fromLatin1(kTitel),
                QStringLiteral("Er staat al een bestand \"%1\". Kies een andere naam voor de opname.")
                    .arg(QDir::toNativeSeparators(bestand)));
    return false;
  }
  const Plek plek = scherm_->Getoond();
  const QString dossier = scherm_->Bestand().Pad();
  // A replay starts from the file and a new editor, and so does the recording.
  if (!SluitDossier()) return false;
  opname_.gebroken = [this] { QMetaObject::invokeMethod(this, &Hoofdvenster::OpnameGebroken, Qt::QueuedConnection); };
  opname_.Kies(bestand);
  if (!Open(dossier)) {
    opname_.Vergeet();
    return false;
  }
  acties_.opnemen->setChecked(true);
  scherm_->GaNaar(plek);
  return true;
}

void Hoofdvenster::StopOpname() {
  if (!opname_.Loopt()) return;
  const QString bestand = QDir::toNativeSeparators(opname_.Pad());
  const bool bewaard = opname_.Stop();
  acties_.opnemen->setChecked(false);
  if (bewaard)
    statusBar()->showMessage(QStringLiteral("Opname bewaard: %1").arg(bestand));
  else
    ToonMelding(this, QString::fromLatin1(kTitel),
                QStringLiteral("De opname kan niet worden bewaard:\n\n%1").arg(bestand));
}

void Hoofdvenster::OpnameGebroken() {
  if (!opname_.Loopt()) return;
  StopOpname();
  ToonMelding(
      this, QString::fromLatin1(kTitel),
      QStringLiteral("De opname is gestopt: het dossier is buiten de velden van de vrije kolom om gewijzigd, en "
                     "dat kan niet worden nagespeeld.\n\nWat daarvoor is opgenomen, is bewaard."));
}

}  // namespace brivane::dossier
