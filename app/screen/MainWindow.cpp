#include "app/screen/MainWindow.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>

#include "app/desk/Messages.h"
#include "app/desk/Settings.h"
#include "app/screen/FindingsList.h"
#include "app/screen/StartPage.h"
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::app {
namespace {

constexpr int kMessageTime = 4000;  ///< milliseconds

}  // namespace

MainWindow::MainWindow(EventLog& eventLog)
    : eventLog_(eventLog),
      actions_(*this),
      owner_(std::make_shared<qt::Hoofdvenster>(this)),
      stack_(new QStackedWidget),
      start_(new StartPage({actions_.create, actions_.open, actions_.sample})),
      findings_(new FindingsList(this)),
      attention_(new QLabel),
      fileName_(new QLabel) {
  setObjectName(QStringLiteral("hoofdvenster"));
  stack_->addWidget(start_);
  setCentralWidget(stack_);
  addDockWidget(Qt::BottomDockWidgetArea, findings_);
  findings_->hide();
  attention_->setObjectName(QStringLiteral("aandachtspunten"));
  statusBar()->addPermanentWidget(attention_);
  // A name is no mark-up.
  fileName_->setObjectName(QStringLiteral("bestandsnaam"));
  fileName_->setTextFormat(Qt::PlainText);
  statusBar()->addPermanentWidget(fileName_);
  Connect();
  resize(kFirstSize.boundedTo(screen()->availableSize()));
  restoreGeometry(Settings::WindowPlace());
  UpdateActions();
  start_->setFocus();
}

MainWindow::~MainWindow() = default;

bool MainWindow::Open(const QString& file) {
  if (screen_ && !screen_->MayLeave()) return false;
  if (screen_ && QFileInfo(screen_->File().Pad()) == QFileInfo(file)) return true;
  try {
    std::unique_ptr<dossier::DossierFile> opened = dossier::DossierFile::Open(file);
    if (!CloseDossier()) return false;
    Show(std::move(opened));
  } catch (const dossier::OpeningError& error) {
    ShowMessage(this, QStringLiteral("Dossier openen"), error.Melding());
    return false;
  }
  return true;
}

void MainWindow::Show(std::unique_ptr<dossier::DossierFile> file) {
  Settings::SetLastFile(file->Pad());
  screen_ = new DossierScreen(std::move(file), owner_, eventLog_, recording_, instrument);
  stack_->addWidget(screen_);
  stack_->setCurrentWidget(screen_);
  screen_->restoreState(Settings::Split());
  connect(screen_, &DossierScreen::placeChanged, this, &MainWindow::UpdateActions);
  connect(screen_, &DossierScreen::stored, this,
          [this] { statusBar()->showMessage(QStringLiteral("Opgeslagen"), kMessageTime); });
  connect(screen_, &DossierScreen::findingsCounted, this, &MainWindow::ShowAttention);
  overviews_.Follow(*screen_);
  screen_->Tree().SetActions(actions_);
  const QString kind = screen_->File().IsReadOnly() ? QStringLiteral(" (alleen lezen)") : QString();
  fileName_->setText(QDir::toNativeSeparators(screen_->File().Pad()) + kind);
  setWindowTitle(QFileInfo(screen_->File().Pad()).completeBaseName() + kind);
  UpdateActions();
  screen_->SwitchFocus();
}

bool MainWindow::Make(const QString& file, const dossier::DossierGegevens& gegevens) {
  if (screen_ && !screen_->MayLeave()) return false;
  try {
    dossier::DossierFile::Maak(file, gegevens);
  } catch (const dossier::OpeningError& error) {
    ShowMessage(this, QStringLiteral("Nieuw dossier"), error.Melding());
    return false;
  }
  return Open(file);
}

bool MainWindow::CloseDossier() {
  if (!screen_) return true;
  if (!screen_->MayLeave() || !MayLoseFile()) return false;
  LetGoOfFile();
  return true;
}

void MainWindow::LetGoOfFile() {
  Settings::SetSplit(screen_->saveState());
  StopRecording();
  recording_.LetGo();
  delete screen_;
  findings_->Clear();
  fileName_->clear();
  ShowAttention(0);
  setWindowTitle(QString());
  statusBar()->clearMessage();
  UpdateActions();
  start_->setFocus();
}

void MainWindow::ShowAttention(std::size_t count) {
  attention_->setText(count == 0 ? QString() : QStringLiteral("Aandachtspunten: %1 (F7)").arg(count));
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!CloseDossier()) {
    event->ignore();
    return;
  }
  // A log-out that was called off: the person has ended it otherwise.
  if (!ending_) ForgetKept();
  RememberPlace();
  event->accept();
}

void MainWindow::UpdateActions() {
  const bool open = screen_ != nullptr;
  for (QAction* action : actions_.ForDossier()) action->setEnabled(open);
  const bool kolom = open && screen_->Shown().Vrij_Id;
  for (QAction* action : actions_.ForKolom()) action->setEnabled(kolom);
  if (open) FillLeningMenus();
}

void MainWindow::FillLeningMenus() {
  actions_.move->clear();
  actions_.afwijking->clear();
  const Place here = screen_->Shown();
  const dossier::Dossier& dossier = screen_->Dossier();
  for (std::int16_t Len_Id = 0; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    // A number as mnemonic: the names may begin alike.
    const QString text = QStringLiteral("&%1 %2").arg(Len_Id).arg(LeningText(dossier, Len_Id).replace(u'&', "&&"));
    if (Len_Id != here.Len_Id) {
      actions_.move->addAction(text, this, [this, here, Len_Id] { screen_->MoveKolom(here, Len_Id); });
    }
    if (Len_Id != dossier::Dossier::kHuidig) {
      actions_.afwijking->addAction(text, this, [this, Len_Id] { screen_->MakeAfwijking(Len_Id); });
    }
  }
  actions_.afwijking->menuAction()->setEnabled(here.Vrij_Id && here.Len_Id == dossier::Dossier::kHuidig);
}

}  // namespace brivane::app
