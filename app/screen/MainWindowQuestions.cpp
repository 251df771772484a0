// What the window asks before it does something.
#include <QApplication>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>

#include "app/program/EventLogWindow.h"
#include "app/program/FileDialogs.h"
#include "app/program/Settings.h"
#include "app/screen/ClientDialog.h"
#include "app/screen/FindingsList.h"
#include "app/screen/MainWindow.h"
#include "dossier/model/SampleCase.h"

namespace brivane::dossier {
namespace {

constexpr char kFilter[] = "Dossiers (*.dossier)";
constexpr int kLijstRegels = 9;  ///< height of the list of findings at first
constexpr char kAchtervoegsel[] = "dossier";

}  // namespace

void Hoofdvenster::Verbind() {
  const auto doe = [this](QAction* actie, auto taak) { connect(actie, &QAction::triggered, this, taak); };
  doe(acties_.nieuw, [this] { VraagNieuw(); });
  doe(acties_.openen, [this] { VraagOpenen(); });
  doe(acties_.voorbeeld, [this] { OpenVoorbeeld(); });
  doe(acties_.kopie, [this] { SaveCopy(); });
  doe(acties_.sluiten, [this] { SluitDossier(); });
  doe(acties_.afsluiten, [this] { close(); });
  doe(acties_.toevoegen, [this] { scherm_->VoegToe(); });
  doe(acties_.dupliceren, [this] { scherm_->Dupliceer(); });
  doe(acties_.verwijderen, [this] { scherm_->Verwijder(); });
  doe(acties_.verplaatsenMetToets, [this] { acties_.verplaatsen->popup(scherm_->mapToGlobal(QPoint())); });
  doe(acties_.vorige, [this] { scherm_->GaVerder(-1); });
  doe(acties_.volgende, [this] { scherm_->GaVerder(1); });
  doe(acties_.boomOfKolom, [this] { scherm_->WisselFocus(); });
  doe(acties_.client, [this] { VraagClient(); });
  doe(acties_.leningToevoegen, [this] { VraagLening(); });
  doe(acties_.controleren, [this] { Controleer(); });
  doe(acties_.opnemen, [this] { acties_.opnemen->isChecked() ? VraagOpname() : StopOpname(); });
  doe(acties_.logboek, [this] { Logboekvenster(logboek_, this).exec(); });
  doe(acties_.over, [this] { ToonOver(); });
  bevindingen_->gekozen = [this](const Plek& plek) {
    if (scherm_ && scherm_->GaNaar(plek)) scherm_->WisselFocus();
  };
}

void Hoofdvenster::VraagNieuw() {
  if (scherm_ && !scherm_->MagVerlaten()) return;
  Clientvenster vraag(QStringLiteral("Nieuw dossier"), Client(), this);
  if (vraag.exec() != QDialog::Accepted) return;
  DossierGegevens gegevens = LeegDossier();
  const Client client = vraag.Gegevens();
  gegevens.Personen = client.personen;
  gegevens.Leeftijd = client.leeftijd;
  const QString naam = QString::fromStdString(client.personen.front().Naam.back());
  // What was typed stays until it is stored or given up.
  for (;;) {
    const QString bestand = VraagNieuwBestand(QStringLiteral("Nieuw dossier opslaan als"), naam);
    if (bestand.isEmpty() || Maak(bestand, gegevens)) return;
  }
}

void Hoofdvenster::VraagOpenen() {
  if (scherm_ && !scherm_->MagVerlaten()) return;
  const QString bestand =
      app::AskFileToOpen(this, {.title = QStringLiteral("Dossier openen"),
                                .folder = Instellingen::Map(),
                                .filter = QString::fromLatin1(kFilter) + QStringLiteral(";;Alle bestanden (*)")});
  if (!bestand.isEmpty()) Open(bestand);
}

void Hoofdvenster::OpenVoorbeeld() {
  if (scherm_ && !scherm_->MagVerlaten()) return;
  const QString bestand = VraagNieuwBestand(QStringLiteral("Voorbeeld opslaan als"), QStringLiteral("Voorbeeld"));
  if (!bestand.isEmpty()) Maak(bestand, VoorbeeldDossier());
}

QString Hoofdvenster::VraagNieuwBestand(const QString& titel, const QString& naam) {
  return app::AskNewFile(this, {.title = titel, .folder = Instellingen::Map(), .filter = QString::fromLatin1(kFilter)},
                         QLatin1String(kAchtervoegsel), naam);
}

void Hoofdvenster::VraagClient() {
  if (!scherm_->Kolom().Editor().CommitPending()) return;
  const Dossier& dossier = scherm_->Gegevens();
  Clientvenster vraag(QStringLiteral("Cliëntgegevens"), {dossier.Personen(), dossier.Leeftijd()}, this);
  if (vraag.exec() != QDialog::Accepted) return;
  const Client client = vraag.Gegevens();
  scherm_->SetClient(client.personen, client.leeftijd);
}

void Hoofdvenster::VraagLening() {
  QInputDialog vraag(this);
  vraag.setWindowTitle(QStringLiteral("Lening toevoegen"));
  vraag.setLabelText(QStringLiteral("Naam van de lening in de nieuwe situatie"));
  vraag.setTextValue(QStringLiteral("Nieuwe lening %1").arg(scherm_->Gegevens().AantalLeningen() + 1));
  vraag.setOkButtonText(QStringLiteral("OK"));
  vraag.setCancelButtonText(QStringLiteral("Annuleren"));
  if (vraag.exec() == QDialog::Accepted) scherm_->NieuweLening(vraag.textValue().trimmed());
}

void Hoofdvenster::Controleer() {
  const auto bevindingen = scherm_->Controleer();
  if (!bevindingen) return;
  bevindingen_->Toon(scherm_->Gegevens(), *bevindingen);
  // The editor above it stays whole.
  resizeDocks({bevindingen_}, {fontMetrics().height() * kLijstRegels}, Qt::Vertical);
}

void Hoofdvenster::ToonOver() {
  QMessageBox::about(this, QStringLiteral("Over Dossier"),
                     QStringLiteral("Dossier %1\n\nEen dossier met de vrije kolommen van een cliënt. Alles wat u "
                                    "invult wordt meteen opgeslagen.")
                         .arg(QApplication::applicationVersion()));
}

}  // namespace brivane::dossier
