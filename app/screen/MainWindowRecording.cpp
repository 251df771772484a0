// How the window records a session.
#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QStatusBar>

#include "app/program/Settings.h"
#include "app/screen/MainWindow.h"
#include "app/screen/Messages.h"

namespace brivane::app {
namespace {

constexpr char kTitle[] = "Opname";

}  // namespace

void MainWindow::AskRecording() {
  // Not running before it runs.
  actions_.record->setChecked(false);
  QFileDialog question(this, QStringLiteral("Opname opslaan als"), Settings::Folder(),
                       QStringLiteral("Opnamen (*.json)"));
  question.setAcceptMode(QFileDialog::AcceptSave);
  question.setDefaultSuffix(QStringLiteral("json"));
  question.selectFile(QStringLiteral("Opname.json"));
  if (question.exec() == QDialog::Accepted) Record(question.selectedFiles().value(0));
}

bool MainWindow::Record(const QString& file) {
  const Place place = screen_->Shown();
  const QString dossier = screen_->File().Pad();
  // A replay starts from the file and a new editor, and so does the recording.
  if (!CloseDossier()) return false;
  recording_.broken = [this] { QMetaObject::invokeMethod(this, &MainWindow::RecordingBroken, Qt::QueuedConnection); };
  recording_.Choose(file);
  if (!Open(dossier)) {
    recording_.Forget();
    return false;
  }
  actions_.record->setChecked(true);
  screen_->GoTo(place);
  return true;
}

void MainWindow::StopRecording() {
  if (!recording_.IsRunning()) return;
  const QString file = QDir::toNativeSeparators(recording_.Path());
  const bool kept = recording_.Stop();
  actions_.record->setChecked(false);
  if (kept)
    statusBar()->showMessage(QStringLiteral("Opname bewaard: %1").arg(file));
  else
    ShowMessage(this, QString::fromLatin1(kTitle),
                QStringLiteral("De opname kan niet worden bewaard:\n\n%1").arg(file));
}

void MainWindow::RecordingBroken() {
  if (!recording_.IsRunning()) return;
  StopRecording();
  ShowMessage(
      this, QString::fromLatin1(kTitle),
      QStringLiteral("De opname is gestopt: het dossier is buiten de velden van de vrije kolom om gewijzigd, en "
                     "dat kan niet worden nagespeeld.\n\nWat daarvoor is opgenomen, is bewaard."));
}

}  // namespace brivane::app
