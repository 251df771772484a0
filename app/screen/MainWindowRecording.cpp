// How the window records a session.
#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>

#include "app/desk/FileDialogs.h"
#include "app/desk/Messages.h"
#include "app/desk/Settings.h"
#include "app/screen/MainWindow.h"

namespace brivane::app {
namespace {

constexpr char kTitle[] = "Opname";

}  // namespace

void MainWindow::AskRecording() {
  // Not running before it runs.
  actions_.record->setChecked(false);
  const QString file = app::AskNewFile(this,
                                       {.title = QStringLiteral("Opname opslaan als"),
                                        .folder = Settings::Folder(),
                                        .filter = QStringLiteral("Opnamen (*.json)")},
                                       QStringLiteral("json"), QStringLiteral("Opname"));
  if (!file.isEmpty()) Record(file);
}

bool MainWindow::Record(const QString& file) {
  if (QFileInfo::exists(file)) {
    ShowMessage(this, QString::fromLatin1(kTitle),
                QStringLiteral("Er staat al een bestand \"%1\". Kies een andere naam voor de opname.")
                    .arg(QDir::toNativeSeparators(file)));
    return false;
  }
  const Place place = screen_->Shown();
  const QString dossier = Address();
  // A replay starts from the file and a new editor, and so does the recording.
  if (!CloseDossier()) return false;
  recording_.broken = [this] { QMetaObject::invokeMethod(this, &MainWindow::RecordingBroken, Qt::QueuedConnection); };
  recording_.Choose(file);
  if (!OpenAt(dossier)) {
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
