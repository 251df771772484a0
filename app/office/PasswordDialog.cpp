#include "app/office/PasswordDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/office/OfficeWords.h"
#include "app/office/SpokenLabel.h"
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {
namespace {

constexpr int kBoxCharacters = 40;

QString Question(const QString& words) {
  const QString account = OfficeAccount(words);
  const QString office = OfficeTitle(words);
  return account.isEmpty()
             ? QStringLiteral("Het kantoor \"%1\" vraagt om uw wachtwoord. Het wordt niet bewaard.").arg(office)
             : QStringLiteral("Het kantoor \"%1\" vraagt om het wachtwoord van %2. Het wordt niet bewaard.")
                   .arg(office, account);
}

QString Reason(PasswordDialog::Because because) {
  switch (because) {
    case PasswordDialog::Because::Wanted: break;
    case PasswordDialog::Because::Wrong: return QStringLiteral("Dit wachtwoord is niet goed. Probeer het opnieuw.");
    case PasswordDialog::Because::Outdated:
      return QStringLiteral("De verbinding is verbroken, en het kantoor neemt het eerdere wachtwoord niet meer aan.");
  }
  return {};
}

}  // namespace

PasswordDialog::PasswordDialog(const QString& words, Because because, QWidget* above)
    : PassingDialog(above), box_(new QLineEdit) {
  setWindowTitle(QStringLiteral("Kantoor openen"));
  auto* question = new QLabel(Question(words));
  // A name is no mark-up.
  question->setTextFormat(Qt::PlainText);
  question->setWordWrap(true);
  box_->setObjectName(QStringLiteral("wachtwoord"));
  box_->setEchoMode(QLineEdit::Password);
  box_->setMinimumWidth(fontMetrics().averageCharWidth() * kBoxCharacters);
  qt::TypesNothingWithAlt(*box_);
  auto* label = new QLabel(QStringLiteral("&Wachtwoord"));
  label->setBuddy(box_);
  auto* reason = new SpokenLabel(Reason(because));
  reason->setObjectName(QStringLiteral("reden"));
  reason->setVisible(because != Because::Wanted);
  box_->setAccessibleDescription((reason->text() + u' ' + question->text()).trimmed());

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* open = buttons->button(QDialogButtonBox::Ok);
  open->setText(QStringLiteral("&Openen"));
  open->setEnabled(false);
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuleren"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(box_, &QLineEdit::textChanged, open, [open](const QString& text) { open->setEnabled(!text.isEmpty()); });

  auto* layout = new QVBoxLayout(this);
  for (QWidget* widget : std::initializer_list<QWidget*>{question, reason, label, box_}) layout->addWidget(widget);
  layout->addStretch();
  layout->addWidget(buttons);
  box_->setFocus();
}

QString PasswordDialog::Typed() const { return box_->text(); }

std::optional<QString> AskPassword(QWidget* above, const QString& words, PasswordDialog::Because because) {
  PasswordDialog question(words, because, above);
  if (question.exec() != QDialog::Accepted) return std::nullopt;
  return question.Typed();
}

}  // namespace brivane::app
