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

#include "app/program/Settings.h"
#include "app/screen/FindingsList.h"
#include "app/screen/Messages.h"
#include "app/screen/StartPage.h"
#include "toolkits/qt/widgets/FormWindow.h"

namespace brivane::dossier {
namespace {

constexpr int kMeldingstijd = 4000;  ///< milliseconds

}  // namespace

Hoofdvenster::Hoofdvenster(Logboek& logboek)
    : logboek_(logboek),
      acties_(*this),
      eigenaar_(std::make_shared<qt::Hoofdvenster>(this)),
      stapel_(new QStackedWidget),
      start_(new Startpagina({acties_.nieuw, acties_.openen, acties_.voorbeeld})),
      bevindingen_(new Bevindingenlijst(this)),
      aandachtspunten_(new QLabel),
      bestandsnaam_(new QLabel) {
  setObjectName(QStringLiteral("hoofdvenster"));
  stapel_->addWidget(start_);
  setCentralWidget(stapel_);
  addDockWidget(Qt::BottomDockWidgetArea, bevindingen_);
  bevindingen_->hide();
  aandachtspunten_->setObjectName(QStringLiteral("aandachtspunten"));
  statusBar()->addPermanentWidget(aandachtspunten_);
  // A name is no mark-up.
  bestandsnaam_->setObjectName(QStringLiteral("bestandsnaam"));
  bestandsnaam_->setTextFormat(Qt::PlainText);
  statusBar()->addPermanentWidget(bestandsnaam_);
  Verbind();
  resize(kEersteMaat.boundedTo(screen()->availableSize()));
  restoreGeometry(Instellingen::Vensterplaats());
  WerkActiesBij();
  start_->setFocus();
}

Hoofdvenster::~Hoofdvenster() = default;

bool Hoofdvenster::Open(const QString& bestand) {
  if (scherm_ && !scherm_->MagVerlaten()) return false;
  if (scherm_ && QFileInfo(scherm_->Bestand().Pad()) == QFileInfo(bestand)) return true;
  try {
    std::unique_ptr<DossierBestand> geopend = DossierBestand::Open(bestand);
    if (!SluitDossier()) return false;
    Toon(std::move(geopend));
  } catch (const OpeningError& fout) {
    ToonMelding(this, QStringLiteral("Dossier openen"), fout.Melding());
    return false;
  }
  return true;
}

void Hoofdvenster::Toon(std::unique_ptr<DossierBestand> bestand) {
  Instellingen::SetLaatsteBestand(bestand->Pad());
  scherm_ = new Dossierscherm(std::move(bestand), eigenaar_, logboek_, opname_);
  stapel_->addWidget(scherm_);
  stapel_->setCurrentWidget(scherm_);
  scherm_->restoreState(Instellingen::Verdeling());
  connect(scherm_, &Dossierscherm::plekGewijzigd, this, &Hoofdvenster::WerkActiesBij);
  connect(scherm_, &Dossierscherm::opgeslagen, this,
          [this] { statusBar()->showMessage(QStringLiteral("Opgeslagen"), kMeldingstijd); });
  connect(scherm_, &Dossierscherm::aandachtspunten, this, &Hoofdvenster::ToonAandachtspunten);
  scherm_->Boom().ZetActies(acties_);
  const QString soort = scherm_->Bestand().IsReadOnly() ? QStringLiteral(" (alleen lezen)") : QString();
  bestandsnaam_->setText(QDir::toNativeSeparators(scherm_->Bestand().Pad()) + soort);
  setWindowTitle(QFileInfo(scherm_->Bestand().Pad()).completeBaseName() + soort);
  WerkActiesBij();
  scherm_->WisselFocus();
}

bool Hoofdvenster::Maak(const QString& bestand, const DossierGegevens& gegevens) {
  if (scherm_ && !scherm_->MagVerlaten()) return false;
  try {
    DossierBestand::Maak(bestand, gegevens);
  } catch (const OpeningError& fout) {
    ToonMelding(this, QStringLiteral("Nieuw dossier"), fout.Melding());
    return false;
  }
  return Open(bestand);
}

bool Hoofdvenster::SluitDossier() {
  if (!scherm_) return true;
  if (!scherm_->MagVerlaten() || !MayLoseFile()) return false;
  LetGoOfFile();
  return true;
}

void Hoofdvenster::LetGoOfFile() {
  Instellingen::SetVerdeling(scherm_->saveState());
  StopOpname();
  opname_.LaatLos();
  delete scherm_;
  bevindingen_->Leeg();
  bestandsnaam_->clear();
  ToonAandachtspunten(0);
  setWindowTitle(QString());
  statusBar()->clearMessage();
  WerkActiesBij();
  start_->setFocus();
}

void Hoofdvenster::ToonAandachtspunten(std::size_t aantal) {
  aandachtspunten_->setText(aantal == 0 ? QString() : QStringLiteral("Aandachtspunten: %1 (F7)").arg(aantal));
}

void Hoofdvenster::closeEvent(QCloseEvent* event) {
  if (!SluitDossier()) {
    event->ignore();
    return;
  }
  Instellingen::SetVensterplaats(saveGeometry());
  event->accept();
}

void Hoofdvenster::WerkActiesBij() {
  const bool open = scherm_ != nullptr;
  for (QAction* actie : acties_.VoorDossier()) actie->setEnabled(open);
  const bool kolom = open && scherm_->Getoond().Vrij_Id;
  for (QAction* actie : acties_.VoorKolom()) actie->setEnabled(kolom);
  if (open) VulLeningmenus();
}

void Hoofdvenster::VulLeningmenus() {
  acties_.verplaatsen->clear();
  acties_.afwijking->clear();
  const Plek hier = scherm_->Getoond();
  const Dossier& dossier = scherm_->Gegevens();
  for (std::int16_t Len_Id = 0; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    // A number as mnemonic: the names may begin alike.
    const QString tekst = QStringLiteral("&%1 %2").arg(Len_Id).arg(LeningTekst(dossier, Len_Id).replace(u'&', "&&"));
    if (Len_Id != hier.Len_Id) {
      acties_.verplaatsen->addAction(tekst, this, [this, hier, Len_Id] { scherm_->Verplaats(hier, Len_Id); });
    }
    if (Len_Id != Dossier::kHuidig) {
      acties_.afwijking->addAction(tekst, this, [this, Len_Id] { scherm_->MaakAfwijking(Len_Id); });
    }
  }
  acties_.afwijking->menuAction()->setEnabled(hier.Vrij_Id && hier.Len_Id == Dossier::kHuidig);
}

}  // namespace brivane::dossier
