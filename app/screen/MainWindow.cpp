#include "app/screen/MainWindow.h"

#include <QApplication>
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
#include "app/desk/RecentFiles.h"
#include "app/desk/Settings.h"
#include "app/screen/FindingsList.h"
#include "app/screen/Greying.h"
#include "app/screen/StartPage.h"
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::app {
namespace {

constexpr int kMessageTime = 4000;  ///< milliseconds
constexpr QSize kFrame{8, 40};      ///< what a desktop puts around a window

}  // namespace

MainWindow::MainWindow(EventLog& eventLog)
    : eventLog_(eventLog),
      actions_(*this),
      help_(*this),
      owner_(std::make_shared<qt::Hoofdvenster>(this)),
      stack_(new QStackedWidget),
      start_(new StartPage({actions_.create, actions_.open, actions_.office.open, actions_.sample})),
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
  qApp->installEventFilter(this);
  resize(kFirstSize.boundedTo(screen()->availableSize() - kFrame));
  restoreGeometry(Settings::WindowPlace());
  UpdateActions();
  start_->setFocus();
}

MainWindow::~MainWindow() = default;

bool MainWindow::Open(const QString& file) {
  if (screen_ && !screen_->MayLeave()) return false;
  if (screen_ && !screen_->Path().isEmpty() && QFileInfo(screen_->Path()) == QFileInfo(file)) return true;
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
  RecentFiles::Add(file->Pad());
  Put(std::move(file));
}

void MainWindow::Put(std::unique_ptr<dossier::DossierStore> store) {
  screen_ = new DossierScreen(std::move(store), owner_, eventLog_, recording_, instrument);
  stack_->addWidget(screen_);
  stack_->setCurrentWidget(screen_);
  if (const int width = Settings::ListWidth(); width > 0) screen_->SetWantedListWidth(width);
  connect(screen_, &DossierScreen::placeChanged, this, &MainWindow::UpdateActions);
  connect(screen_, &DossierScreen::stored, this,
          [this] { statusBar()->showMessage(QStringLiteral("Opgeslagen"), kMessageTime); });
  connect(screen_, &DossierScreen::stored, this, &MainWindow::NameSteps);
  connect(screen_, &DossierScreen::findingsCounted, this, &MainWindow::ShowAttention);
  overviews_.Follow(*screen_);
  screen_->Tree().SetActions(actions_);
  FollowClient();
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
  Settings::SetListWidth(screen_->WantedListWidth());
  StopRecording();
  recording_.LetGo();
  client_.reset();
  delete screen_;
  delete page_;
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

void MainWindow::ShowName() {
  const QString kind = screen_->Store().IsReadOnly() ? QStringLiteral(" (alleen lezen)") : QString();
  fileName_->setText(Whereabouts() + kind);
  setWindowTitle(screen_->Store().Naam() + kind);
}

void MainWindow::UpdateActions() {
  const QString noFile = screen_ ? QString() : QStringLiteral("Open eerst een dossier.");
  const QString readOnly =
      screen_ && screen_->Store().IsReadOnly() ? QStringLiteral("Dit dossier is alleen te lezen.") : noFile;
  const bool kolom = screen_ && screen_->Shown().Vrij_Id;
  const QString noKolom = kolom || !readOnly.isEmpty() ? readOnly : QStringLiteral("Kies eerst een vrije kolom.");
  for (QAction* action : actions_.ForDossier()) SetGrey(*action, noFile);
  for (QAction* action : actions_.ForEditing()) SetGrey(*action, readOnly);
  for (QAction* action : actions_.ForKolom()) SetGrey(*action, noKolom);
  UpdateOffice(noFile);
  if (screen_) ShowName();
  if (screen_) FillLeningMenus(noKolom);
  NameSteps();
}

void MainWindow::FillLeningMenus(const QString& noKolom) {
  actions_.duplicateTo->clear();
  actions_.move->clear();
  actions_.afwijking->clear();
  const Place here = screen_->Shown();
  const dossier::Dossier& dossier = screen_->Dossier();
  for (std::int16_t Len_Id = 0; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    // A number as mnemonic: the names may begin alike.
    const QString text = QStringLiteral("&%1 %2").arg(Len_Id).arg(LeningText(dossier, Len_Id).replace(u'&', "&&"));
    if (Len_Id != here.Len_Id) {
      actions_.duplicateTo->addAction(text, this, [this, Len_Id] { screen_->DuplicateKolom(Len_Id); });
      actions_.move->addAction(text, this, [this, here, Len_Id] { screen_->MoveKolom(here, Len_Id); });
    }
    if (Len_Id != dossier::Dossier::kHuidig) {
      actions_.afwijking->addAction(text, this, [this, Len_Id] { screen_->MakeAfwijking(Len_Id); });
    }
  }
  if (!noKolom.isEmpty()) return;
  if (dossier.AantalLeningen() == 0) {
    const QString none = QStringLiteral("Er is nog geen lening in de nieuwe situatie (Dossier > Lening toevoegen).");
    for (QAction* action : {actions_.duplicateTo->menuAction(), actions_.duplicateByKey, actions_.move->menuAction(),
                            actions_.moveByKey, actions_.afwijking->menuAction()})
      SetGrey(*action, none);
  } else if (here.Len_Id != dossier::Dossier::kHuidig) {
    SetGrey(*actions_.afwijking->menuAction(),
            QStringLiteral("Een afwijking wordt gemaakt van een kolom van de huidige lening."));
  }
}

}  // namespace brivane::app
