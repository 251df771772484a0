#include "app/office/Reach.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <chrono>

#include "app/desk/PassingDialog.h"
#include "app/office/OfficeWords.h"
#include "dossier/office/Knock.h"

namespace brivane::app {
namespace {

/// A server at hand has answered by then, and no window flashes up.
constexpr std::chrono::milliseconds kMoment{250};
constexpr int kTextCharacters = 44;

/// While it lives the pointer says that the program waits for the server.
class Waiting {
 public:
  Waiting() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  ~Waiting() { QGuiApplication::restoreOverrideCursor(); }
};

class ReachDialog final : public PassingDialog {
 public:
  ReachDialog(const QString& words, QWidget* above) : PassingDialog(above) {
    setObjectName(QStringLiteral("verbinden"));
    setWindowTitle(QStringLiteral("Kantoor openen"));
    auto* text =
        new QLabel(QStringLiteral("Er wordt verbinding gemaakt met het kantoor \"%1\"…").arg(OfficeTitle(words)));
    text->setObjectName(QStringLiteral("waarmee"));
    // A name is no mark-up.
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * kTextCharacters);
    auto* bar = new QProgressBar;
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setAccessibleName(QStringLiteral("Verbinding maken"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setText(QStringLiteral("Annuleren"));
    // It has the focus, and says what it is that goes on.
    cancel->setAccessibleDescription(text->text());
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(bar);
    layout->addStretch();
    layout->addWidget(buttons);
    cancel->setFocus();
  }
};

}  // namespace

Reached Reach(QWidget* above, const QString& words, const QString& password) {
  dossier::Aside aside;
  ReachDialog dialog(words, above);
  Reached reached{.put_away = true};
  dossier::Knock(
      aside, [words, password] { return std::make_unique<dossier::OfficeConnection>(words, password); },
      [&](const std::optional<dossier::OfficeError>& failure) {
        reached = {.put_away = false, .failure = failure};
        dialog.accept();
      });
  {
    const Waiting waiting;
    static_cast<void>(aside.Settle(kMoment));
  }
  if (reached.put_away) dialog.exec();
  return reached;
}

}  // namespace brivane::app
