// What the window asks before it does something.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

#include "app/desk/FileDialogs.h"
#include "app/desk/Messages.h"
#include "app/desk/RecentFiles.h"
#include "app/desk/Settings.h"
#include "app/screen/ClientDialog.h"
#include "app/screen/EventLogWindow.h"
#include "app/screen/FindingsList.h"
#include "app/screen/MainWindow.h"
#include "app/screen/Paper.h"
#include "app/screen/RecentMenu.h"
#include "app/screen/StartPage.h"
#include "app/screen/TextDialog.h"
#include "dossier/model/SampleCase.h"

namespace brivane::app {
namespace {

constexpr char kFilter[] = "Dossiers (*.dossier)";
constexpr int kListLines = 9;  ///< height of the list of findings at first
constexpr char kSuffix[] = "dossier";

}  // namespace

void MainWindow::Connect() {
  const auto on = [this](QAction* action, auto task) { connect(action, &QAction::triggered, this, task); };
  on(actions_.create, [this] { AskNew(); });
  on(actions_.open, [this] { AskOpen(); });
  on(actions_.sample, [this] { OpenSample(); });
  on(actions_.saveCopy, [this] { SaveCopy(); });
  on(actions_.print, [this] { PrintReport(*this, *screen_); });
  on(actions_.pdf, [this] { SaveReportAsPdf(*this, *screen_); });
  on(actions_.exportKolommen, [this] { ExportKolommen(*this, *screen_); });
  on(actions_.exportPerioden, [this] { ExportPerioden(*this, *screen_); });
  on(actions_.close, [this] { CloseDossier(); });
  on(actions_.quit, [this] { close(); });
  on(actions_.undo, [this] { Take(dossier::StepKind::Undo); });
  on(actions_.redo, [this] { Take(dossier::StepKind::Redo); });
  on(actions_.author, [this] { AskAuthor(); });
  on(actions_.history, [this] { ShowHistory(); });
  on(actions_.renameLening, [this] { AskLeningName(); });
  on(actions_.removeLening, [this] { screen_->RemoveLening(); });
  on(actions_.add, [this] { screen_->AddKolom(dossier::Invoer::Bedragen); });
  on(actions_.addGrowth, [this] { screen_->AddKolom(dossier::Invoer::BedragenMetGroei); });
  on(actions_.addPercentages, [this] { screen_->AddKolom(dossier::Invoer::Percentages); });
  on(actions_.duplicate, [this] { screen_->DuplicateKolom(screen_->Shown().Len_Id); });
  on(actions_.duplicateByKey, [this] { actions_.duplicateTo->popup(screen_->mapToGlobal(QPoint())); });
  on(actions_.find, [this] { screen_->EnterFilter(); });
  connect(actions_.sort, &QMenu::triggered, this,
          [this](const QAction* cell) { screen_->Tree().SortBy(cell->data().toInt()); });
  on(actions_.help, [this] { help_.Show(); });
  FillWithRecentFiles(*actions_.recent,
                      {.open = [this](const QString& file) { OpenRecent(file); }, .clear = [this] { ClearRecent(); }});
  start_->opened = [this](const QString& file) { OpenRecent(file); };
  on(actions_.remove, [this] { screen_->RemoveKolom(); });
  on(actions_.moveByKey, [this] { actions_.move->popup(screen_->mapToGlobal(QPoint())); });
  on(actions_.previous, [this] { screen_->GoOn(-1); });
  on(actions_.next, [this] { screen_->GoOn(1); });
  on(actions_.treeOrKolom, [this] { screen_->SwitchFocus(); });
  on(actions_.client, [this] { AskClient(); });
  on(actions_.addLening, [this] { AskLening(); });
  on(actions_.check, [this] { Check(); });
  on(actions_.overview, [this] { overviews_.ShowOverview(); });
  on(actions_.verloop, [this] { overviews_.ShowVerloop(); });
  on(actions_.record, [this] { actions_.record->isChecked() ? AskRecording() : StopRecording(); });
  on(actions_.eventLog, [this] { EventLogWindow(eventLog_, this).exec(); });
  on(actions_.about, [this] { ShowAbout(); });
  ConnectOffice();
  findings_->chosen = [this](const Place& place) {
    if (screen_ && screen_->GoTo(place)) screen_->SwitchFocus();
  };
}

void MainWindow::AskNew() {
  if (screen_ && !screen_->MayLeave()) return;
  const auto make = [this](const Client& client) {
    dossier::DossierGegevens gegevens = dossier::LeegDossier();
    gegevens.Personen = client.personen;
    gegevens.Leeftijd = client.leeftijd;
    const QString name = QString::fromStdString(client.personen.front().Naam.back());
    for (;;) {
      const QString file = AskNewFile(QStringLiteral("Nieuw dossier opslaan als"), name);
      if (file.isEmpty()) return false;
      if (Make(file, gegevens)) return true;
    }
  };
  ClientDialog(QStringLiteral("Nieuw dossier"), Client(), make, this).exec();
}

void MainWindow::AskOpen() {
  if (screen_ && !screen_->MayLeave()) return;
  const QString file =
      AskFileToOpen(this, {.title = QStringLiteral("Dossier openen"),
                           .folder = Settings::Folder(),
                           .filter = QString::fromLatin1(kFilter) + QStringLiteral(";;Alle bestanden (*)")});
  if (!file.isEmpty()) Open(file);
}

void MainWindow::OpenSample() {
  if (screen_ && !screen_->MayLeave()) return;
  const QString file = AskNewFile(QStringLiteral("Voorbeeld opslaan als"), QStringLiteral("Voorbeeld"));
  if (!file.isEmpty()) Make(file, dossier::VoorbeeldDossier());
}

void MainWindow::OpenRecent(const QString& file) {
  if (IsThere(file)) {
    Open(file);
    return;
  }
  const QString question =
      QStringLiteral(
          "Het dossier \"%1\" staat niet (meer) in de map \"%2\".\n\nWilt u het uit de "
          "lijst van recente dossiers halen?")
          .arg(QFileInfo(file).fileName(), QDir::toNativeSeparators(QFileInfo(file).absolutePath()));
  if (Ask(this, QStringLiteral("Recent dossier"), question, QStringLiteral("&Uit de lijst halen")) == Answer::No)
    return;
  RecentFiles::Remove(file);
  start_->Refresh();
}

void MainWindow::ClearRecent() {
  RecentFiles::Clear();
  start_->Refresh();
}

QString MainWindow::AskNewFile(const QString& title, const QString& name) {
  return app::AskNewFile(InFront(this),
                         {.title = title, .folder = Settings::Folder(), .filter = QString::fromLatin1(kFilter)},
                         QLatin1String(kSuffix), name);
}

void MainWindow::AskClient() {
  if (!screen_->Kolom().Editor().CommitPending()) return;
  const dossier::Dossier& dossier = screen_->Dossier();
  const auto store = [this](const Client& client) { return screen_->SetClient(client.personen, client.leeftijd); };
  ClientDialog(QStringLiteral("Cliëntgegevens"), {dossier.Personen(), dossier.Leeftijd()}, store, this).exec();
}

void MainWindow::AskLening() {
  // What has to be mended first is mended before a name is typed.
  if (!screen_->MayLeave()) return;
  TextDialog(
      {.title = QStringLiteral("Lening toevoegen"),
       .label = QStringLiteral("Naam van de lening in de nieuwe situatie"),
       .text = QStringLiteral("Nieuwe lening %1").arg(screen_->Dossier().AantalLeningen() + 1)},
      [this](const QString& name) { return screen_->AddLening(name); }, this)
      .exec();
}

void MainWindow::Check() {
  const auto findings = screen_->Check();
  if (!findings) return;
  findings_->Show(screen_->Dossier(), *findings);
  // The editor above it stays whole.
  resizeDocks({findings_}, {fontMetrics().height() * kListLines}, Qt::Vertical);
}

void MainWindow::ShowAbout() {
  QMessageBox::about(this, QStringLiteral("Over Dossier"),
                     QStringLiteral("Dossier %1\n\nEen dossier met de vrije kolommen van een cliënt. Alles wat u "
                                    "invult wordt meteen opgeslagen.")
                         .arg(QApplication::applicationVersion()));
}

}  // namespace brivane::app
