// How the window ends when nobody is asked, and what it keeps then.
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFileInfo>
#include <QInputMethodEvent>
#include <QPointer>
#include <QTimer>
#include <utility>
#include <vector>

#include "app/desk/Messages.h"
#include "app/desk/Settings.h"
#include "app/desk/UnfinishedText.h"
#include "app/office/LastTyped.h"
#include "app/screen/FilledIn.h"
#include "app/screen/MainWindow.h"
#include "app/screen/UnfinishedDialog.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::app {
namespace {

constexpr int kBetweenLooks = 20;  ///< milliseconds: a loop that was ended gets time to return

/// Answers whatever stands in front as Escape does; a form is put away without its question, which nobody would answer.
/// False where nothing stands there.
bool DismissInFront() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup->close();
  QWidget* front = QApplication::activeModalWidget();
  if (front == nullptr) return false;
  auto* dialog = qobject_cast<QDialog*>(front);
  if (dynamic_cast<qt::FormWindow::Window*>(dialog) != nullptr)
    dialog->done(QDialog::Rejected);
  else if (dialog != nullptr)
    dialog->reject();
  else
    front->close();
  return true;
}

qt::EntryBox* BoxOf(const QWidget& area, const QString& name) {
  for (QLineEdit* line : area.findChildren<QLineEdit*>()) {
    auto* box = dynamic_cast<qt::EntryBox*>(line);
    if (box != nullptr && NameOfBox(box) == name) return box;
  }
  return nullptr;
}

}  // namespace

UnfinishedText MainWindow::Here() const {
  UnfinishedText here;
  if (!screen_) return here;
  here.file = Address();
  here.lening = screen_->Shown().Len_Id;
  here.kolom = screen_->Shown().Vrij_Id.value_or(0);
  return here;
}

void MainWindow::ForgetKept() {
  for (const QString& name : std::exchange(kept_, {})) UnfinishedText::Forget(name);
}

void MainWindow::KeepFilledIn(const QWidget* window) {
  const auto* dialog = qobject_cast<const QDialog*>(window);
  UnfinishedText unfinished = Here();
  unfinished.text = dialog ? FilledIn(*dialog) : QString();
  if (unfinished.text.isEmpty()) return;
  unfinished.title = dialog->windowTitle();
  kept_ << unfinished.Keep();
}

void MainWindow::HandOverTyped() {
  if (!screen_ || !screen_->Shown().Vrij_Id) return;
  qt::VrijeKolomWidget& editor = screen_->Kolom().Editor();
  // Kept first: what the handing over asks may be cut off.
  std::vector<std::pair<QPointer<qt::EntryBox>, QString>> kept;
  for (qt::EntryBox* const box : qt::EntryBox::AllPendingWithin(editor)) {
    UnfinishedText typed = Here();
    typed.box = NameOfBox(box);
    typed.text = box->text();
    // What an office refused just now, or may have, is kept already.
    if (!typed.text.isEmpty() && !typed.IsKept()) kept.emplace_back(box, typed.Keep());
  }
  // Under a window in front the editor waits for it.
  const bool handedOver = QApplication::activeModalWidget() == nullptr && editor.CommitPending();
  for (const auto& [box, name] : kept) {
    if (handedOver || (box && !box->Edit().IsPending()))
      UnfinishedText::Forget(name);
    else
      kept_ << name;
  }
}

void MainWindow::PrepareForLogOut() {
  ForgetKept();
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) KeepFilledIn(window);
  }
  {
    // Nobody answers what the handing over asks.
    QTimer look;
    connect(&look, &QTimer::timeout, &look, [] { DismissInFront(); });
    if (QApplication::activeModalWidget() == nullptr) look.start(kBetweenLooks);
    HandOverTyped();
  }
  if (screen_) screen_->WorkOff();
  RememberPlace();
}

void MainWindow::RememberPlace() {
  Settings::SetWindowPlace(saveGeometry());
  if (screen_) Settings::SetListWidth(screen_->WantedListWidth());
}

void MainWindow::EndInOrder() {
  if (ending_) return;
  ending_ = true;
  ForgetKept();
  auto* look = new QTimer(this);
  connect(look, &QTimer::timeout, this, [this] {
    KeepFilledIn(QApplication::activeModalWidget());
    // Not from within the timer, which would not look again before that returns.
    if (!DismissInFront()) QMetaObject::invokeMethod(this, &MainWindow::FinishEnd, Qt::QueuedConnection);
  });
  look->start(kBetweenLooks);
}

void MainWindow::FinishEnd() {
  // The handing over may bring up a box, which the timer dismisses from within.
  if (finishing_) return;
  finishing_ = true;
  HandOverTyped();
  RememberPlace();
  if (screen_) LetGoOfFile();
  QApplication::quit();
}

void MainWindow::OfferUnfinished() {
  for (const UnfinishedText::Kept& kept : UnfinishedText::All()) {
    switch (UnfinishedDialog(kept.what, this).Ask()) {
      case UnfinishedDialog::Choice::Later: break;
      case UnfinishedDialog::Choice::ThrowAway: UnfinishedText::Forget(kept.name); break;
      case UnfinishedDialog::Choice::GoOn:
        // Where the file does not open it is offered again.
        if (!GoOnWith(kept.what)) break;
        UnfinishedText::Forget(kept.name);
        // What comes next would take its place.
        if (!kept.what.box.isEmpty()) return;
        break;
    }
  }
}

bool MainWindow::GoOnWith(const UnfinishedText& unfinished) {
  if (unfinished.box.isEmpty()) QGuiApplication::clipboard()->setText(unfinished.text);
  if (unfinished.file.isEmpty()) return true;
  if (!OpenAt(unfinished.file)) return false;
  if (unfinished.kolom == 0) return true;
  const bool shown = screen_->GoTo({unfinished.lening, unfinished.kolom});
  if (unfinished.box.isEmpty()) return true;
  qt::EntryBox* box = shown ? BoxOf(screen_->Kolom().Editor(), unfinished.box) : nullptr;
  if (box == nullptr || !box->isEnabled() || box->isReadOnly()) {
    QGuiApplication::clipboard()->setText(unfinished.text);
    ShowMessage(
        this, QStringLiteral("Niet opgeslagen"),
        QStringLiteral("Het vak waarin dit stond is er niet meer, of kan niet worden ingevuld. De tekst staat op "
                       "het klembord:\n\n%1")
            .arg(unfinished.text));
    return true;
  }
  box->setFocus(Qt::OtherFocusReason);
  box->selectAll();
  QInputMethodEvent typing;
  typing.setCommitString(unfinished.text);
  QApplication::sendEvent(box, &typing);
  return true;
}

void MainWindow::SaveCopy() {
  if (!screen_) return;
  const QString name = screen_->Store().Naam() + QStringLiteral(" kopie");
  for (;;) {
    const QString file = AskNewFile(QStringLiteral("Kopie opslaan als"), name);
    if (file.isEmpty()) return;
    try {
      screen_->Store().Kopieer(file);
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
  if (screen_->Store().IsReadOnly() || screen_->Store().InPlace()) return true;
  if (client_) return MayLoseConnection();
  return Ask(this, QStringLiteral("Dossier sluiten"),
             QStringLiteral("Het dossier \"%1\" staat niet meer waar het stond. Het is verplaatst, vervangen of "
                            "verwijderd terwijl het open was.\n\nBewaar het met Bestand > Kopie opslaan als, of sluit "
                            "het toch.")
                 .arg(QFileInfo(screen_->Path()).fileName()),
             QStringLiteral("Toch &sluiten")) == Answer::Yes;
}

}  // namespace brivane::app
