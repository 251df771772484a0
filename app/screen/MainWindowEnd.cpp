// How the window ends when nobody is asked, and what it keeps then.
#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QInputMethodEvent>
#include <QTimer>

#include "app/desk/UnfinishedText.h"
#include "app/screen/MainWindow.h"
#include "app/screen/Messages.h"
#include "toolkits/qt/VrijeKolomWidget.h"
#include "toolkits/qt/widgets/EntryBox.h"

namespace brivane::app {
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

void MainWindow::HandOverTyped() {
  if (!screen_ || !screen_->Shown().Vrij_Id) return;
  qt::VrijeKolomWidget& editor = screen_->Kolom().Editor();
  const qt::EntryBox* box = qt::EntryBox::PendingWithin(editor);
  if (box == nullptr) return;
  const UnfinishedText typed{.file = screen_->File().Pad(),
                             .lening = screen_->Shown().Len_Id,
                             .kolom = *screen_->Shown().Vrij_Id,
                             .box = NameOf(box),
                             .text = box->text()};
  // Kept first: what the handing over asks may be cut off.
  typed.Keep();
  if (!editor.CommitPending()) return;
  static_cast<void>(UnfinishedText::Take());
}

void MainWindow::EndInOrder() {
  if (ending_) return;
  ending_ = true;
  auto* look = new QTimer(this);
  connect(look, &QTimer::timeout, this, [this] {
    if (!DismissInFront()) FinishEnd();
  });
  look->start(kBetweenLooks);
}

void MainWindow::FinishEnd() {
  // The handing over may bring up a box, which the timer dismisses from within.
  static bool finishing = false;
  if (finishing) return;
  finishing = true;
  HandOverTyped();
  if (screen_) LetGoOfFile();
  finishing = false;
  QApplication::quit();
}

void MainWindow::OfferUnfinished() {
  const auto kept = UnfinishedText::Take();
  if (!kept) return;
  const QString what = QStringLiteral(
                           "Bij het afsluiten stond nog in een vak, en is niet opgeslagen:\n\n%1\n\nDossier: %2\n\n"
                           "Wilt u verdergaan waar u was?")
                           .arg(kept->text, QFileInfo(kept->file).fileName());
  if (Ask(this, QStringLiteral("Niet opgeslagen"), what, QStringLiteral("&Verdergaan")) == Answer::No) return;
  if (!Open(kept->file) || !screen_->GoTo({kept->lening, kept->kolom})) return;
  qt::EntryBox* box = BoxOf(screen_->Kolom().Editor(), kept->box);
  if (box == nullptr || !box->isEnabled()) return;
  box->setFocus(Qt::OtherFocusReason);
  box->selectAll();
  QInputMethodEvent typing;
  typing.setCommitString(kept->text);
  QApplication::sendEvent(box, &typing);
}

void MainWindow::SaveCopy() {
  if (!screen_) return;
  const QString name = QFileInfo(screen_->File().Pad()).completeBaseName() + QStringLiteral(" kopie");
  for (;;) {
    const QString file = AskNewFile(QStringLiteral("Kopie opslaan als"), name);
    if (file.isEmpty()) return;
    try {
      dossier::DossierFile::Maak(file, screen_->Dossier().Gegevens());
      std::unique_ptr<dossier::DossierFile> copy = dossier::DossierFile::Open(file);
      const Place place = screen_->Shown();
      LetGoOfFile();
      Show(std::move(copy));
      screen_->GoTo(place);
      return;
    } catch (const dossier::OpeningError& error) {
      ShowMessage(this, QStringLiteral("Kopie opslaan als"), error.Melding());
    }
  }
}

bool MainWindow::MayLoseFile() {
  if (screen_->File().IsReadOnly() || screen_->File().InPlace()) return true;
  return Ask(this, QStringLiteral("Dossier sluiten"),
             QStringLiteral("Het dossier \"%1\" staat niet meer waar het stond. Het is verplaatst, vervangen of "
                            "verwijderd terwijl het open was.\n\nBewaar het met Bestand > Kopie opslaan als, of sluit "
                            "het toch.")
                 .arg(QFileInfo(screen_->File().Pad()).fileName()),
             QStringLiteral("Toch &sluiten")) == Answer::Yes;
}

}  // namespace brivane::app
