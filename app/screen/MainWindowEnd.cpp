// How the window ends when nobody is asked, and what it keeps then.
#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QInputMethodEvent>
#include <QTimer>

#include "app/program/UnfinishedText.h"
#include "app/screen/MainWindow.h"
#include "app/screen/Messages.h"
#include "toolkits/qt/VrijeKolomWidget.h"
#include "toolkits/qt/widgets/EntryBox.h"

namespace brivane::dossier {
namespace {

constexpr int kBetweenLooks = 20;  ///< milliseconds: a loop that was ended gets time to return

/// Answers whatever stands in front as Escape does. False where nothing does.
bool DismissInFront() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup->close();
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr) return false;
  if (auto* dialog = qobject_cast<QDialog*>(front))
    dialog->reject();
  else
    front->close();
  return true;
}

/// A box, or the control around it, has the name by which its surface knows it.
QString NameOf(const QWidget* box) {
  while (box != nullptr && box->objectName().isEmpty()) box = box->parentWidget();
  return box ? box->objectName() : QString();
}

qt::EntryBox* BoxOf(const QWidget& area, const QString& name) {
  for (QLineEdit* line : area.findChildren<QLineEdit*>()) {
    auto* box = dynamic_cast<qt::EntryBox*>(line);
    if (box != nullptr && NameOf(box) == name) return box;
  }
  return nullptr;
}

}  // namespace

void Hoofdvenster::HandOverTyped() {
  if (!scherm_ || !scherm_->Getoond().Vrij_Id) return;
  qt::VrijeKolomWidget& editor = scherm_->Kolom().Editor();
  const qt::EntryBox* box = qt::EntryBox::PendingWithin(editor);
  if (box == nullptr) return;
  const app::UnfinishedText typed{.file = scherm_->Bestand().Pad(),
                                  .lening = scherm_->Getoond().Len_Id,
                                  .kolom = *scherm_->Getoond().Vrij_Id,
                                  .box = NameOf(box),
                                  .text = box->text()};
  // Kept first: what the handing over asks may be cut off.
  typed.Keep();
  if (!editor.CommitPending()) return;
  static_cast<void>(app::UnfinishedText::Take());
}

void Hoofdvenster::EndInOrder() {
  if (ending_) return;
  ending_ = true;
  auto* look = new QTimer(this);
  connect(look, &QTimer::timeout, this, [this] {
    if (!DismissInFront()) FinishEnd();
  });
  look->start(kBetweenLooks);
}

void Hoofdvenster::FinishEnd() {
  // The handing over may bring up a box, which the timer dismisses from within.
  static bool finishing = false;
  if (finishing) return;
  finishing = true;
  HandOverTyped();
  if (scherm_) LetGoOfFile();
  finishing = false;
  QApplication::quit();
}

void Hoofdvenster::OfferUnfinished() {
  const auto kept = app::UnfinishedText::Take();
  if (!kept) return;
  const QString what = QStringLiteral(
                           "Bij het afsluiten stond nog in een vak, en is niet opgeslagen:\n\n%1\n\nDossier: %2\n\n"
                           "Wilt u verdergaan waar u was?")
                           .arg(kept->text, QFileInfo(kept->file).fileName());
  if (Vraag(this, QStringLiteral("Niet opgeslagen"), what, QStringLiteral("&Verdergaan")) == Antwoord::Nee) return;
  if (!Open(kept->file) || !scherm_->GaNaar({kept->lening, kept->kolom})) return;
  qt::EntryBox* box = BoxOf(scherm_->Kolom().Editor(), kept->box);
  if (box == nullptr || !box->isEnabled()) return;
  box->setFocus(Qt::OtherFocusReason);
  box->selectAll();
  QInputMethodEvent typing;
  typing.setCommitString(kept->text);
  QApplication::sendEvent(box, &typing);
}

void Hoofdvenster::SaveCopy() {
  if (!scherm_) return;
  const QString naam = QFileInfo(scherm_->Bestand().Pad()).completeBaseName() + QStringLiteral(" kopie");
  for (;;) {
    const QString bestand = VraagNieuwBestand(QStringLiteral("Kopie opslaan als"), naam);
    if (bestand.isEmpty()) return;
    try {
      DossierBestand::Maak(bestand, scherm_->Gegevens().Gegevens());
      std::unique_ptr<DossierBestand> kopie = DossierBestand::Open(bestand);
      const Plek plek = scherm_->Getoond();
      LetGoOfFile();
      Toon(std::move(kopie));
      scherm_->GaNaar(plek);
      return;
    } catch (const OpeningError& fout) {
      ToonMelding(this, QStringLiteral("Kopie opslaan als"), fout.Melding());
    }
  }
}

bool Hoofdvenster::MayLoseFile() {
  if (scherm_->Bestand().IsReadOnly() || scherm_->Bestand().InPlace()) return true;
  return Vraag(
             this, QStringLiteral("Dossier sluiten"),
             QStringLiteral("Het dossier \"%1\" staat niet meer waar het stond. Het is verplaatst, vervangen of "
                            "verwijderd terwijl het open was.\n\nBewaar het met Bestand > Kopie opslaan als, of sluit "
                            "het toch.")
                 .arg(QFileInfo(scherm_->Bestand().Pad()).fileName()),
             QStringLiteral("Toch &sluiten")) == Antwoord::Ja;
}

}  // namespace brivane::dossier
