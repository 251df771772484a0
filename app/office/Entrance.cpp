#include "app/office/Entrance.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desk/Messages.h"
#include "app/office/OfficeWords.h"
#include "app/office/RecentOffices.h"
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {
namespace {

constexpr int kCharacters = 56;

QString Title() { return QStringLiteral("Kantoor openen"); }

/// While it lives the pointer says that the program waits for the server.
class Waiting {
 public:
  Waiting() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  ~Waiting() { QGuiApplication::restoreOverrideCursor(); }
};

/// Nothing where it was put away.
std::optional<QString> AskPassword(QWidget* above, const QString& words, bool again) {
  QInputDialog question(above);
  question.setWindowTitle(Title());
  const QString why = again ? QStringLiteral("Dit wachtwoord is niet goed.\n") : QString();
  question.setLabelText(why + QStringLiteral("Wachtwoord voor %1").arg(OfficeTitle(words)));
  question.setTextEchoMode(QLineEdit::Password);
  question.setOkButtonText(QStringLiteral("OK"));
  question.setCancelButtonText(QStringLiteral("Annuleren"));
  if (question.exec() != QDialog::Accepted) return std::nullopt;
  return question.textValue();
}

/// Asks for words until there are some that lead somewhere.
class OfficeDialog final : public QDialog {
 public:
  explicit OfficeDialog(QWidget* above) : QDialog(above), words_(new QComboBox), reason_(new QLabel) {
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

bool WantsPassword(const dossier::OfficeError& error) {
  if (error.Problem() == dossier::OfficeProblem::NotAdmitted) return true;
  // A session that never began has no code; libpq's words are English, or in the language of the machine.
  const QString said = QString::fromUtf8(error.what());
  return error.Problem() == dossier::OfficeProblem::Unreachable &&
         (said.contains(QLatin1String("password"), Qt::CaseInsensitive) ||
          said.contains(QLatin1String("wachtwoord"), Qt::CaseInsensitive));
}

std::optional<Entrance> EnterOffice(QWidget* above, const QString& words) {
  if (const QString fault = FaultText(FaultOf(words)); !fault.isEmpty()) {
    ShowMessage(above, Title(), fault);
    return std::nullopt;
  }
  QString password;
  for (;;) {
    try {
      const Waiting waiting;
      auto office = std::make_shared<dossier::OfficeConnection>(words, password);
      office->OpenOffice();
      RecentOffices::Add(words);
      return Entrance{words, password, std::move(office)};
    } catch (const dossier::OfficeError& error) {
      if (!WantsPassword(error)) {
        ShowMessage(above, Title(), error.Melding());
        return std::nullopt;
      }
    }
    const auto typed = AskPassword(above, words, !password.isEmpty());
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
