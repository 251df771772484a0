// What the window does with an office and its clients.
#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

#include "app/desk/FileDialogs.h"
#include "app/desk/Messages.h"
#include "app/office/ClientListDialog.h"
#include "app/office/OfficeWords.h"
#include "app/office/TeamDialog.h"
#include "app/office/WaitNotice.h"
#include "app/screen/Greying.h"
#include "app/screen/MainWindow.h"
#include "dossier/office/Office.h"
#include "dossier/store/OpeningError.h"

namespace brivane::app {
namespace {

constexpr int kTold = 8000;  ///< milliseconds

QString KantoorTitle() { return QStringLiteral("Kantoor"); }

/// Makes a loan file of a client, with its history where that is at hand or the office can be asked for it; answers
/// whether it was.
bool MakeFileOf(const dossier::DossierStore& client, const QString& file) {
  try {
    client.Kopieer(file);
    return true;
  } catch (const dossier::OfficeError&) {
    // It may turn out only now that there is no connection, or no such client any more.
    if (client.InPlace()) throw;
  }
  dossier::DossierFile::Maak(file, client.Dossier()->Gegevens());
  return false;
}

}  // namespace

void MainWindow::ConnectOffice() {
  WaitNotice::Install();
  const auto on = [this](QAction* action, auto task) { connect(action, &QAction::triggered, this, task); };
  on(actions_.office.open, [this] {
    if (screen_ && !screen_->MayLeave()) return;
    if (IsInOffice({})) AskClientOfOffice();
  });
  on(actions_.office.toOffice, [this] { BringToOffice(); });
  on(actions_.office.toFile, [this] { SaveAsFile(); });
  on(actions_.office.ask, [this] { client_->Ask(); });
  on(actions_.office.takeOver, [this] { client_->TakeOver(); });
  on(actions_.office.handOver, [this] { client_->HandOver(); });
  on(actions_.office.reconnect, [this] { client_->Reconnect(); });
}

bool MainWindow::IsInOffice(const QString& words) {
  if (entrance_ && !entrance_->office->IsBroken() && (words.isEmpty() || words == entrance_->words)) return true;
  // The one that broke is tried first.
  const QString which = words.isEmpty() && entrance_ ? entrance_->words : words;
  const QString password = entrance_ && which == entrance_->words ? entrance_->password : QString();
  std::optional<Entrance> entered = which.isEmpty() ? AskOffice(this) : EnterOffice(this, which, password);
  if (!entered) return false;
  entrance_ = std::move(entered);
  return true;
}

void MainWindow::OpenOffice(const QString& words) {
  if (screen_ && !screen_->MayLeave()) return;
  if (IsInOffice(words)) AskClientOfOffice();
}

void MainWindow::AskClientOfOffice() {
  for (;;) {
    ClientListDialog list(*entrance_, this);
    list.exec();
    if (list.Chosen() != 0) {
      // The list stays where the client does not open.
      if (OpenClient({entrance_->words, list.Chosen()})) return;
      continue;
    }
    if (!list.WantsOtherOffice()) return;
    std::optional<Entrance> entered = AskOffice(this);
    if (entered) entrance_ = std::move(entered);
  }
}

bool MainWindow::OpenClient(const ClientAddress& address) {
  if (screen_ && !screen_->MayLeave()) return false;
  if (client_ && address == address_ && !client_->IsGone()) return true;
  try {
    if (!IsInOffice(address.words)) return false;
    std::unique_ptr<dossier::OfficeStore> opened = dossier::OfficeStore::Open(entrance_->office, address.client);
    if (!CloseDossier()) return false;
    address_ = address;
    Put(std::move(opened));
  } catch (const dossier::OfficeError& error) {
    ShowMessage(this, KantoorTitle(), error.Melding());
    return false;
  }
  return true;
}

void MainWindow::FollowClient() {
  auto* store = dynamic_cast<dossier::OfficeStore*>(&screen_->Store());
  if (store == nullptr) return;
  client_ = std::make_unique<ClientOnScreen>(
      *screen_, *store, actions_.office, eventLog_,
      ClientOnScreen::Window{.changed = [this] { UpdateActions(); },
                             .tell = [this](const QString& text) { statusBar()->showMessage(text, kTold); },
                             .here = [this] { return Here(); },
                             .goOn = [this](const UnfinishedText& text) { return GoOnWith(text); },
                             .askPassword = [this](auto because) { return AskPassword(this, address_.words, because); },
                             .admittedBy = [this](const QString& password) { entrance_->password = password; }});
  page_ = new QWidget;
  auto* layout = new QVBoxLayout(page_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  stack_->removeWidget(screen_);
  layout->addWidget(client_->Bar());
  layout->addWidget(screen_, 1);
  stack_->addWidget(page_);
  stack_->setCurrentWidget(page_);
  screen_->show();
}

void MainWindow::UpdateOffice(const QString& noFile) {
  const OfficeActions& office = actions_.office;
  const QString file = client_ ? QStringLiteral("Deze cliënt staat al in een kantoor.") : noFile;
  const QString client = screen_ && !client_ ? QStringLiteral("Dit dossier is al een bestand.") : noFile;
  SetGrey(*office.toOffice, file);
  SetGrey(*office.toFile, client);
  SetGrey(*actions_.saveCopy, client_ ? QStringLiteral("Gebruik Kantoor > Als bestand bewaren.") : noFile);
  SetGrey(*actions_.author, client_ ? QStringLiteral("In een kantoor staat uw naam vast.") : QString());
  if (client_) return client_->UpdateActions();
  const QString none = QStringLiteral("Open eerst een cliënt van een kantoor.");
  for (QAction* action : {office.ask, office.takeOver, office.handOver, office.reconnect}) SetGrey(*action, none);
}

void MainWindow::BringToOffice() {
  if (!screen_->MayLeave() || !IsInOffice({})) return;
  if (!entrance_->office->User().writes) {
    return ShowMessage(this, KantoorTitle(), QStringLiteral("U mag in dit kantoor geen cliënten toevoegen."));
  }
  const auto& file = dynamic_cast<const dossier::DossierFile&>(screen_->Store());
  const QString name = file.Naam();
  std::optional<dossier::Team> team;
  int client = 0;
  try {
    const std::vector<dossier::Team> teams = dossier::TeamsFor(*entrance_->office);
    if (teams.empty()) {
      return ShowMessage(this, KantoorTitle(),
                         QStringLiteral("U zit in dit kantoor in geen team: een cliënt hoort bij een team."));
    }
    team = AskTeam(this, entrance_->words, teams, name);
    if (!team) return;
    client = dossier::AddClient(*entrance_->office, team->nummer, file);
  } catch (const dossier::OfficeError& error) {
    return ShowMessage(this, KantoorTitle(), error.Melding());
  } catch (const dossier::OpeningError& error) {
    return ShowMessage(this, KantoorTitle(), error.Melding());
  }
  if (OpenClient({entrance_->words, client})) {
    statusBar()->showMessage(
        QStringLiteral("\"%1\" staat nu in het kantoor, in team %2; het bestand blijft zoals het was.")
            .arg(name, team->naam),
        kTold);
  }
}

void MainWindow::SaveAsFile() {
  if (!screen_->Kolom().Editor().CommitPending()) return;
  for (;;) {
    const QString file = AskNewFile(QStringLiteral("Als bestand bewaren"), NameForFile(screen_->Store().Naam()));
    if (file.isEmpty()) return;
    try {
      QString told = QStringLiteral("Bewaard: %1").arg(QDir::toNativeSeparators(file));
      if (!MakeFileOf(screen_->Store(), file))
        told += QStringLiteral(" (zonder geschiedenis: die is nu niet uit het kantoor te halen)");
      return statusBar()->showMessage(told, kTold);
    } catch (const dossier::OfficeError& error) {
      // With another name it would go no better.
      return ShowMessage(this, QStringLiteral("Als bestand bewaren"), error.Melding());
    } catch (const dossier::OpeningError& error) {
      ShowMessage(this, QStringLiteral("Als bestand bewaren"), error.Melding());
    }
  }
}

bool MainWindow::MayLoseConnection() {
  return Ask(this, QStringLiteral("Cliënt sluiten"),
             QStringLiteral("Er is geen verbinding met het kantoor. Zolang de cliënt open blijft, wordt opnieuw "
                            "verbinding gezocht, en blijkt of de laatste wijziging is opgeslagen."),
             QStringLiteral("Toch &sluiten")) == Answer::Yes;
}

QString MainWindow::Address() const { return client_ ? address_.Text() : screen_->Path(); }

QString MainWindow::Whereabouts() const {
  if (!client_) return QDir::toNativeSeparators(screen_->Path());
  return QStringLiteral("%1, cliënt %2").arg(OfficeTitle(address_.words)).arg(address_.client);
}

bool MainWindow::OpenAt(const QString& address) {
  const auto client = ClientAddress::Of(address);
  return client ? OpenClient(*client) : Open(address);
}

}  // namespace brivane::app
