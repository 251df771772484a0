#include "app/screen/ClientDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include "app/program/Today.h"
#include "frame/Dates.h"
#include "toolkits/qt/widgets/DateBox.h"

namespace brivane::dossier {
namespace {

constexpr std::array<const char*, 3> kNaamvelden = {"Voorletters", "Tussenvoegsel", "Achternaam"};
constexpr std::size_t kAchternaam = 2;
constexpr int kLaagsteLeeftijd = 1;
constexpr int kHoogsteLeeftijd = 120;

frame::Reading<host::Date> LeesDatum(const QLineEdit& vak) { return frame::ReadDate(vak.text().toStdString()); }

}  // namespace

Clientvenster::Clientvenster(const QString& titel, const Client& client, QWidget* parent) : QDialog(parent) {
  setWindowTitle(titel);
  QWidget* aanvrager = MaakVelden(aanvrager_, QStringLiteral("Aanvrager"));
  metPartner_ = new QCheckBox(QStringLiteral("Er is een &partner"));
  QWidget* partner = MaakVelden(partner_, QStringLiteral("Partner"));
  partner->setEnabled(false);
  connect(metPartner_, &QCheckBox::toggled, partner, &QWidget::setEnabled);
  connect(metPartner_, &QCheckBox::toggled, this, [this] { reden_->clear(); });

  leeftijd_ = new QSpinBox;
  leeftijd_->setRange(kLaagsteLeeftijd, kHoogsteLeeftijd);
  leeftijd_->setSuffix(QStringLiteral(" jaar"));
  leeftijd_->setAccessibleName(QStringLiteral("Leeftijdsgrens"));
  auto* uitgangspunten = new QFormLayout;
  uitgangspunten->addRow(QStringLiteral("&Leeftijdsgrens"), leeftijd_);

  reden_ = new QLabel;
  reden_->setWordWrap(true);
  auto* knoppen = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(knoppen, &QDialogButtonBox::accepted, this, &Clientvenster::accept);
  connect(knoppen, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* indeling = new QVBoxLayout(this);
  indeling->addWidget(aanvrager);
  indeling->addWidget(metPartner_);
  indeling->addWidget(partner);
  indeling->addLayout(uitgangspunten);
  indeling->addWidget(reden_);
  indeling->addStretch();
  indeling->addWidget(knoppen);

  if (!client.personen.empty()) Vul(aanvrager_, client.personen[0]);
  if (client.personen.size() > 1) {
    Vul(partner_, client.personen[1]);
    metPartner_->setChecked(true);
  }
  leeftijd_->setValue(client.leeftijd);
  aanvrager_.naam[0]->setFocus();
}

QWidget* Clientvenster::MaakVelden(Persoonsvelden& velden, const QString& naam) {
  auto* kader = new QGroupBox(naam);
  auto* indeling = new QFormLayout(kader);
  for (std::size_t deel = 0; deel < velden.naam.size(); ++deel) {
    const QString kop = QString::fromUtf8(kNaamvelden[deel]);
    velden.naam[deel] = new QLineEdit;
    velden.naam[deel]->setAccessibleName(naam + QStringLiteral(", ") + kop);
    velden.naam[deel]->setMinimumWidth(velden.naam[deel]->fontMetrics().averageCharWidth() * 34);
    indeling->addRow(kop, velden.naam[deel]);
  }
  velden.geboortedatum = new qt::DateBox;
  velden.geboortedatum->setAccessibleName(naam + QStringLiteral(", Geboortedatum"));
  velden.geboortedatum->SetCommitter([vak = velden.geboortedatum](const QString&) -> qt::EntryBox::Verdict {
    const auto datum = LeesDatum(*vak);
    if (datum.IsRefused()) return {.accepted = false, .reason = QString::fromStdString(datum.Reason())};
    if (!datum.IsEmpty()) vak->setText(QString::fromStdString(frame::ShowDate(*datum)));
    return {};
  });
  indeling->addRow(QStringLiteral("Geboortedatum"), velden.geboortedatum);
  return kader;
}

void Clientvenster::Vul(const Persoonsvelden& velden, const PersoonGegevens& persoon) {
  for (std::size_t deel = 0; deel < velden.naam.size(); ++deel) {
    velden.naam[deel]->setText(QString::fromStdString(persoon.Naam[deel]));
  }
  velden.geboortedatum->ShowText(QString::fromStdString(frame::ShowDate(persoon.Geboortedatum)));
}

PersoonGegevens Clientvenster::Lees(const Persoonsvelden& velden) const {
  PersoonGegevens persoon;
  for (std::size_t deel = 0; deel < velden.naam.size(); ++deel) {
    persoon.Naam[deel] = velden.naam[deel]->text().trimmed().toStdString();
  }
  const auto datum = LeesDatum(*velden.geboortedatum);
  if (!datum.IsRefused() && !datum.IsEmpty()) persoon.Geboortedatum = *datum;
  return persoon;
}

Client Clientvenster::Gegevens() const {
  Client client{.personen = {Lees(aanvrager_)}, .leeftijd = static_cast<std::int16_t>(leeftijd_->value())};
  if (metPartner_->isChecked()) client.personen.push_back(Lees(partner_));
  return client;
}

void Clientvenster::accept() {
  reden_->clear();
  if (qt::EntryBox* vak = qt::EntryBox::PendingWithin(*this); vak && !vak->CommitPending()) return;
  if (!Controleer(aanvrager_, QStringLiteral("de aanvrager"))) return;
  if (metPartner_->isChecked() && !Controleer(partner_, QStringLiteral("de partner"))) return;
  QDialog::accept();
}

bool Clientvenster::Controleer(const Persoonsvelden& velden, const QString& wie) {
  const PersoonGegevens persoon = Lees(velden);
  if (persoon.Naam[kAchternaam].empty()) {
    Meld(QStringLiteral("Vul de achternaam van %1 in.").arg(wie), velden.naam[kAchternaam]);
    return false;
  }
  if (persoon.Geboortedatum.IsNone()) {
    Meld(QStringLiteral("Vul de geboortedatum van %1 in.").arg(wie), velden.geboortedatum);
    return false;
  }
  if (persoon.Geboortedatum >= Vandaag()) {
    Meld(QStringLiteral("De geboortedatum van %1 moet in het verleden liggen.").arg(wie), velden.geboortedatum);
    return false;
  }
  return true;
}

void Clientvenster::Meld(const QString& reden, QLineEdit* veld) {
  reden_->setText(reden);
  veld->setFocus(Qt::OtherFocusReason);
  veld->selectAll();
  // What is being mended is refused no more.
  connect(veld, &QLineEdit::textChanged, reden_, &QLabel::clear, Qt::UniqueConnection);
}

}  // namespace brivane::dossier
