#include "app/office/Entrance.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk/Messages.h"
#include "app/office/OfficeWords.h"
#include "app/office/PasswordDialog.h"
#include "app/office/Reach.h"
#include "app/office/RecentOffices.h"
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {
namespace {

constexpr int kCharacters = 56;

QString Title() { return QStringLiteral("Kantoor openen"); }

/// Asks for words until there are some that lead somewhere.
class OfficeDialog final : public PassingDialog {
 public:
  explicit OfficeDialog(QWidget* above) : PassingDialog(above), words_(new QComboBox), reason_(new QLabel) {
    setWindowTitle(Title());
    words_->setEditable(true);
    words_->setObjectName(QStringLiteral("kantoor"));
    words_->setInsertPolicy(QComboBox::NoInsert);
    words_->addItems(RecentOffices::All());
    words_->setMinimumWidth(fontMetrics().averageCharWidth() * kCharacters);
    qt::TypesNothingWithAlt(*words_->lineEdit());
    words_->lineEdit()->selectAll();
    auto* label = new QLabel(QStringLiteral("&Kantoor"));
    label->setBuddy(words_);
    auto* hint = new QLabel(
        QStringLiteral("De naam van een service, of woorden als: host=kantoor dbname=kantoor sslmode=verify-full"));
    hint->setWordWrap(true);
    words_->setToolTip(hint->text());
    reason_->setObjectName(QStringLiteral("reden"));
    reason_->setWordWrap(true);
    reason_->setTextFormat(Qt::PlainText);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Openen"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuleren"));
    connect(buttons, &QDialogButtonBox::accepted, this, &OfficeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &OfficeDialog::reject);
    connect(words_, &QComboBox::editTextChanged, reason_, &QLabel::clear);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(words_);
    layout->addWidget(hint);
    layout->addWidget(reason_);
    layout->addWidget(buttons);
  }

  void accept() override {
    const QString words = words_->currentText().trimmed();
    const QString fault = FaultText(FaultOf(words));
    reason_->setText(fault);
    words_->lineEdit()->setAccessibleDescription(fault);
    if (!fault.isEmpty()) {
      words_->setFocus(Qt::OtherFocusReason);
      return;
    }
    entrance_ = EnterOffice(this, words);
    if (entrance_) QDialog::accept();
  }

  [[nodiscard]] std::optional<Entrance> Entered() { return std::move(entrance_); }

 private:
  QComboBox* words_;
  QLabel* reason_;
  std::optional<Entrance> entrance_;
};

}  // namespace

std::optional<Entrance> EnterOffice(QWidget* above, const QString& words, QString password) {
  if (const QString fault = FaultText(FaultOf(words)); !fault.isEmpty()) {
    ShowMessage(above, Title(), fault);
    return std::nullopt;
  }
  for (;;) {
    const Reached reached = Reach(above, words, password);
    if (reached.put_away) return std::nullopt;
    std::optional<dossier::OfficeError> failure = reached.failure;
    if (!failure) {
      try {
        // It answered just now.
        auto office = std::make_shared<dossier::OfficeConnection>(words, password);
        office->OpenOffice(dossier::OfficeConnection::Patience::Short);
        RecentOffices::Add(words);
        return Entrance{words, password, std::move(office)};
      } catch (const dossier::OfficeError& error) {
        failure = error;
      }
    }
    if (!failure->WantsPassword()) {
      ShowMessage(above, Title(), failure->Melding());
      return std::nullopt;
    }
    const auto typed = AskPassword(
        above, words, password.isEmpty() ? PasswordDialog::Because::Wanted : PasswordDialog::Because::Wrong);
    if (!typed) return std::nullopt;
    password = *typed;
  }
}

std::optional<Entrance> AskOffice(QWidget* above) {
  OfficeDialog question(above);
  question.exec();
  return question.Entered();
}

}  // namespace brivane::app
