// How the window goes back and forth, and shows what was changed.
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStatusBar>

#include "app/desk/FileDialogs.h"
#include "app/desk/Messages.h"
#include "app/desk/Settings.h"
#include "app/history/HistoryWindow.h"
#include "app/screen/KolommenModel.h"
#include "app/screen/MainWindow.h"
#include "app/screen/TextDialog.h"
#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::app {
namespace {

bool IsUndoKey(const QAction& action, const QKeyEvent& key) {
  return action.shortcuts().contains(QKeySequence(key.keyCombination()));
}

/// Whether a box has something of its own to take back.
bool IsTypedIn(QObject* box) {
  if (auto* entry = dynamic_cast<qt::EntryBox*>(box)) return entry->Edit().IsPending();
  const auto* line = qobject_cast<const QLineEdit*>(box);
  return line != nullptr && (line->isUndoAvailable() || line->isRedoAvailable());
}

void Name(QAction* action, const QString& text, const QString& step) {
  QString name = step;
  action->setText(step.isEmpty() ? text : QStringLiteral("%1: %2").arg(text, name.replace(u'&', QStringLiteral("&&"))));
  action->setEnabled(!step.isEmpty());
}

}  // namespace

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && qobject_cast<QLineEdit*>(watched) != nullptr &&
      isAncestorOf(static_cast<QWidget*>(watched)) && !IsTypedIn(watched)) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsUndoKey(*actions_.undo, key) || IsUndoKey(*actions_.redo, key)) {
      event->ignore();
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::NameSteps() {
  const auto next = [this](dossier::StepKind kind) { return screen_ ? screen_->NextStep(kind) : QString(); };
  Name(actions_.undo, QStringLiteral("&Ongedaan maken"), next(dossier::StepKind::Undo));
  Name(actions_.redo, QStringLiteral("Opn&ieuw"), next(dossier::StepKind::Redo));
  actions_.removeLening->setEnabled(screen_ && screen_->Shown().Len_Id != dossier::Dossier::kHuidig);
}

void MainWindow::Take(dossier::StepKind kind) {
  const QString step = screen_->NextStep(kind);
  if (!screen_->Take(kind)) return;
  const QString text =
      kind == dossier::StepKind::Undo ? QStringLiteral("Ongedaan gemaakt: %1") : QStringLiteral("Opnieuw gedaan: %1");
  NameSteps();
  // After what storing it says.
  QMetaObject::invokeMethod(
      this, [this, text, step] { statusBar()->showMessage(text.arg(step)); }, Qt::QueuedConnection);
}

void MainWindow::ShowHistory() {
  if (!screen_->Kolom().Editor().CommitPending()) return;
  try {
    HistoryWindow(screen_->Store().Geschiedenis(), NameForFile(screen_->Store().Naam()), Settings::Folder(), this)
        .exec();
  } catch (const host::Error& error) {
    ShowMessage(this, QStringLiteral("Wijzigingen"), QString::fromStdString(error.Description()));
  }
}

void MainWindow::AskAuthor() {
  const auto take = [this](const QString& name) {
    Settings::SetAuthor(name);
    if (screen_) screen_->SetAuthor(Settings::Author());
    return true;
  };
  TextDialog({.title = QStringLiteral("Naam van de adviseur"),
              .label = QStringLiteral("Onder deze naam staan uw wijzigingen in de geschiedenis van een dossier.\nLeeg: "
                                      "de naam van uw account."),
              .text = Settings::Author()},
             take, this)
      .exec();
}

void MainWindow::AskLeningName() {
  if (!screen_->Kolom().Editor().CommitPending()) return;
  const std::int16_t Len_Id = screen_->Shown().Len_Id;
  TextDialog(
      {.title = QStringLiteral("Lening hernoemen"),
       .label = QStringLiteral("Naam van de lening"),
       .text = LeningText(screen_->Dossier(), Len_Id)},
      [this](const QString& name) { return screen_->RenameLening(name); }, this)
      .exec();
}

}  // namespace brivane::app
