#include "app/screen/UnfinishedDialog.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/office/ClientAddress.h"
#include "app/office/OfficeWords.h"

namespace brivane::app {
namespace {

constexpr int kMostLines = 14;  ///< of the text that are shown at once
constexpr int kCharacters = 60;

QString NameOf(const QString& address) {
  if (const auto client = ClientAddress::Of(address))
    return QStringLiteral("cliënt %1 van kantoor %2").arg(client->client).arg(OfficeTitle(client->words));
  return QFileInfo(address).fileName();
}

QString Introduction(const UnfinishedText& unfinished) {
  const QString outcome = unfinished.unknown ? QStringLiteral(
                                                   "Of het is opgeslagen is niet bekend: de verbinding met het kantoor "
                                                   "viel weg. Kijk het na in het dossier.")
                                             : QStringLiteral("Het is niet opgeslagen.");
  QString text =
      unfinished.title.isEmpty()
          ? QStringLiteral("Bij het afsluiten stond dit nog in een vak. ")
          : QStringLiteral("Bij het afsluiten was dit ingevuld in het venster \"%1\". ").arg(unfinished.title);
  text += outcome;
  if (!unfinished.file.isEmpty()) {
    text += QStringLiteral("\n\nDossier: %1").arg(NameOf(unfinished.file));
  }
  return text;
}

}  // namespace

UnfinishedDialog::UnfinishedDialog(const UnfinishedText& unfinished, QWidget* parent) : QDialog(parent) {
  const QString title =
      unfinished.unknown ? QStringLiteral("Misschien niet opgeslagen") : QStringLiteral("Niet opgeslagen");
  setWindowTitle(title);
  auto* introduction = new QLabel(Introduction(unfinished));
  introduction->setTextFormat(Qt::PlainText);
  introduction->setWordWrap(true);
  auto* text = new QPlainTextEdit(unfinished.text);
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setAccessibleName(title + QStringLiteral(": tekst"));
  const QFontMetrics metrics = text->fontMetrics();
  text->setTabStopDistance(14.0 * metrics.averageCharWidth());
  const auto lines = static_cast<int>(unfinished.text.count(u'\n')) + 1;
  const int height = (qMin(lines, kMostLines) + 1) * metrics.lineSpacing() + 2 * text->frameWidth();
  text->setMinimumSize(kCharacters * metrics.averageCharWidth(), height);
  if (lines < kMostLines) text->setMaximumHeight(height);

  // What goes back into no box goes along on the clipboard.
  const bool inBox = !unfinished.box.isEmpty();
  auto* buttons = new QDialogButtonBox;
  const auto add = [&](const QString& name, Choice choice) {
    QPushButton* button = buttons->addButton(name, QDialogButtonBox::ActionRole);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, choice] {
      choice_ = choice;
      accept();
    });
    return button;
  };
  add(inBox ? QStringLiteral("&Verdergaan") : QStringLiteral("&Kopiëren en verdergaan"), Choice::GoOn);
  add(QStringLiteral("&Weggooien"), Choice::ThrowAway);
  add(QStringLiteral("&Later"), Choice::Later)->setDefault(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(introduction);
  layout->addWidget(text, 1);
  layout->addWidget(buttons);
}

UnfinishedDialog::Choice UnfinishedDialog::Ask() {
  exec();
  return choice_;
}

}  // namespace brivane::app
