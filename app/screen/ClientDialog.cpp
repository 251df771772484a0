#include "app/screen/ClientDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <utility>

#include "app/desk/Today.h"
#include <brivane/frame/Dates.h>
#include <brivane/frame/Numbers.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {
namespace {

constexpr std::array<const char*, 3> kNameFields = {"Voorletters", "Tussenvoegsel", "Achternaam"};
constexpr std::size_t kSurname = 2;
constexpr int kLowestLeeftijd = 1;
constexpr int kHighestLeeftijd = 120;

/// A number that the wheel changes only where somebody has gone to it, and a digit only without Alt.
class AgeBox final : public QSpinBox {
 public:
  AgeBox() { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus())
      QSpinBox::wheelEvent(event);
    else
      event->ignore();
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (qt::IsTypedWithAlt(*event))
      event->ignore();
    else
      QSpinBox::keyPressEvent(event);
  }
};

/// A date of birth as it is typed.
controls::TypedContent ReadBirth(std::string_view typed) {
  const frame::Reading<host::Date> date = frame::ReadPastDate(typed, Today());
  if (date.IsRefused()) return {.refusal = date.Why()};
  return date.IsEmpty() ? controls::TypedContent() : controls::TypedContent{.value = *date};
}

/// A rate as it is typed.
controls::TypedContent ReadRate(std::string_view typed) {
  const frame::Reading<double> rate = frame::ReadNumber(typed);
  if (rate.IsRefused()) return {.refusal = rate.Why()};
  if (rate.IsEmpty()) return {};
  if (*rate < 0 || *rate > 100) return {.refusal = "Vul een percentage van 0 tot en met 100 in, of niets."};
  return {.value = *rate};
}

constexpr char kRateHelp[] =
    "Het percentage inkomstenbelasting over de laatst verdiende euro, zoals u dat voor deze persoon aanhoudt. Het "
    "programma rekent geen belasting uit: het percentage dient alleen om in het overzicht te tonen wat een aftrekpost "
    "of "
    "bijtelling in euro's doet. Leeg: alleen het belastbare bedrag wordt getoond.";

}  // namespace

ClientDialog::ClientDialog(const QString& title, const Client& client, std::function<bool(const Client&)> take,
                           QWidget* parent)
    : QDialog(parent), take_(std::move(take)) {
  setWindowTitle(title);
  QWidget* aanvrager = MakeFields(aanvrager_, QStringLiteral("Aanvrager"));
  withPartner_ = new QCheckBox(QStringLiteral("Er is een &partner"));
  QWidget* partner = MakeFields(partner_, QStringLiteral("Partner"));
  partner->setEnabled(false);
  connect(withPartner_, &QCheckBox::toggled, partner, &QWidget::setEnabled);
  connect(withPartner_, &QCheckBox::toggled, this, [this] { reason_->clear(); });

  leeftijd_ = new AgeBox;
  leeftijd_->setRange(kLowestLeeftijd, kHighestLeeftijd);
  leeftijd_->setSuffix(QStringLiteral(" jaar"));
  leeftijd_->setAccessibleName(QStringLiteral("Leeftijdsgrens"));
  auto* uitgangspunten = new QFormLayout;
  uitgangspunten->addRow(QStringLiteral("&Leeftijdsgrens"), leeftijd_);

  reason_ = new QLabel;
  reason_->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &ClientDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* form = new QWidget;
  auto* fields = new QVBoxLayout(form);
  fields->setContentsMargins(0, 0, 0, 0);
  fields->addWidget(aanvrager);
  fields->addWidget(withPartner_);
  fields->addWidget(partner);
  fields->addLayout(uitgangspunten);
  fields->addStretch();
  scroller_ = new QScrollArea;
  scroller_->setFrameShape(QFrame::NoFrame);
  scroller_->setWidgetResizable(true);
  scroller_->setFocusPolicy(Qt::NoFocus);
  scroller_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroller_->setWidget(form);
  scroller_->setMinimumWidth(form->sizeHint().width() + scroller_->verticalScrollBar()->sizeHint().width());
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(scroller_, 1);
  layout->addWidget(reason_);
  layout->addWidget(buttons);
  const int more = form->sizeHint().height() - scroller_->sizeHint().height();
  resize((sizeHint() + QSize(0, more + reason_->fontMetrics().lineSpacing())).boundedTo(screen()->availableSize()));

  if (!client.personen.empty()) Fill(aanvrager_, client.personen[0]);
  if (client.personen.size() > 1) {
    Fill(partner_, client.personen[1]);
    withPartner_->setChecked(true);
  }
  leeftijd_->setValue(client.leeftijd);
  aanvrager_.name[0]->setFocus();
}

QWidget* ClientDialog::MakeFields(PersoonFields& fields, const QString& name) {
  auto* group = new QGroupBox(name);
  auto* layout = new QFormLayout(group);
  for (std::size_t part = 0; part < fields.name.size(); ++part) {
    const QString heading = QString::fromUtf8(kNameFields[part]);
    fields.name[part] = new QLineEdit;
    qt::TypesNothingWithAlt(*fields.name[part]);
    fields.name[part]->setAccessibleName(name + QStringLiteral(", ") + heading);
    fields.name[part]->setMinimumWidth(fields.name[part]->fontMetrics().averageCharWidth() * 34);
    layout->addRow(heading, fields.name[part]);
  }
  fields.geboortedatum = new qt::DateBox;
  qt::TypesNothingWithAlt(*fields.geboortedatum);
  fields.geboortedatum->Edit().Tie(frame::Format::Date, &ReadBirth, &Today);
  fields.geboortedatum->setAccessibleName(name + QStringLiteral(", Geboortedatum"));
  layout->addRow(QStringLiteral("Geboortedatum"), fields.geboortedatum);
  fields.belastingtarief = new qt::EntryBox;
  qt::TypesNothingWithAlt(*fields.belastingtarief);
  fields.belastingtarief->Edit().Tie(frame::Format::Number, &ReadRate);
  const QString heading = QStringLiteral("Marginaal belastingtarief");
  fields.belastingtarief->setAccessibleName(name + QStringLiteral(", ") + heading);
  fields.belastingtarief->setToolTip(QString::fromUtf8(kRateHelp));
  fields.belastingtarief->setAccessibleDescription(QString::fromUtf8(kRateHelp));
  fields.belastingtarief->setPlaceholderText(QStringLiteral("niet ingevuld"));
  auto* percent = new QHBoxLayout;
  percent->addWidget(fields.belastingtarief);
  percent->addWidget(new QLabel(QStringLiteral("%")));
  auto* label = new QLabel(heading);
  label->setBuddy(fields.belastingtarief);
  label->setToolTip(QString::fromUtf8(kRateHelp));
  layout->addRow(label, percent);
  return group;
}

void ClientDialog::Fill(const PersoonFields& fields, const dossier::PersoonGegevens& persoon) {
  for (std::size_t part = 0; part < fields.name.size(); ++part) {
    fields.name[part]->setText(QString::fromStdString(persoon.Naam[part]));
  }
  fields.geboortedatum->ShowText(QString::fromStdString(frame::ShowDate(persoon.Geboortedatum)));
  fields.belastingtarief->ShowText(
      persoon.Belastingtarief ? QString::fromStdString(frame::ShowNumber(*persoon.Belastingtarief)) : QString());
}

dossier::PersoonGegevens ClientDialog::Read(const PersoonFields& fields) const {
  dossier::PersoonGegevens persoon;
  for (std::size_t part = 0; part < fields.name.size(); ++part) {
    persoon.Naam[part] = fields.name[part]->text().trimmed().toStdString();
  }
  const controls::TypedContent datum = ReadBirth(fields.geboortedatum->text().toStdString());
  if (const auto* geboortedatum = std::get_if<host::Date>(&datum.value)) persoon.Geboortedatum = *geboortedatum;
  const controls::TypedContent tarief = ReadRate(fields.belastingtarief->text().toStdString());
  if (const auto* belastingtarief = std::get_if<double>(&tarief.value)) persoon.Belastingtarief = *belastingtarief;
  return persoon;
}

Client ClientDialog::Contents() const {
  Client client{.personen = {Read(aanvrager_)}, .leeftijd = static_cast<std::int16_t>(leeftijd_->value())};
  if (withPartner_->isChecked()) client.personen.push_back(Read(partner_));
  return client;
}

void ClientDialog::accept() {
  reason_->clear();
  if (qt::EntryBox* box = qt::EntryBox::PendingWithin(*this); box && !box->CommitPending()) return;
  if (!Check(aanvrager_, QStringLiteral("de aanvrager"))) return;
  if (withPartner_->isChecked() && !Check(partner_, QStringLiteral("de partner"))) return;
  if (take_(Contents())) QDialog::accept();
}

bool ClientDialog::Check(const PersoonFields& fields, const QString& who) {
  const dossier::PersoonGegevens persoon = Read(fields);
  if (persoon.Naam[kSurname].empty()) {
    Tell(QStringLiteral("Vul de achternaam van %1 in.").arg(who), fields.name[kSurname]);
    return false;
  }
  if (persoon.Geboortedatum.IsNone()) {
    Tell(QStringLiteral("Vul de geboortedatum van %1 in.").arg(who), fields.geboortedatum);
    return false;
  }
  if (persoon.Geboortedatum >= Today()) {
    Tell(QStringLiteral("De geboortedatum van %1 moet in het verleden liggen.").arg(who), fields.geboortedatum);
    return false;
  }
  return true;
}

void ClientDialog::Tell(const QString& reason, QLineEdit* field) {
  reason_->setText(reason);
  field->setFocus(Qt::OtherFocusReason);
  field->selectAll();
  scroller_->ensureWidgetVisible(field);
  // What is being mended is refused no more.
  connect(field, &QLineEdit::textChanged, reason_, &QLabel::clear, Qt::UniqueConnection);
}

}  // namespace brivane::app
