#include "app/program/EventLogWindow.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/program/EventLog.h"

namespace brivane::dossier {

Logboekvenster::Logboekvenster(const Logboek& logboek, QWidget* parent) : QDialog(parent) {
  setWindowTitle(QStringLiteral("Logboek"));
  auto* uitleg = new QLabel(QStringLiteral("Wat het onderdeel heeft gedaan en welke fouten er waren. De bestanden "
                                           "staan in %1.")
                                .arg(QDir::toNativeSeparators(logboek.Map())));
  uitleg->setTextFormat(Qt::PlainText);
  uitleg->setTextInteractionFlags(Qt::TextSelectableByMouse);
  uitleg->setWordWrap(true);

  auto* tekst = new QPlainTextEdit(logboek.Lees());
  tekst->setObjectName(QStringLiteral("logboek"));
  tekst->setAccessibleName(QStringLiteral("Logboek"));
  tekst->setReadOnly(true);
  tekst->setLineWrapMode(QPlainTextEdit::NoWrap);
  tekst->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  tekst->moveCursor(QTextCursor::End);
  tekst->moveCursor(QTextCursor::StartOfLine);

  auto* knoppen = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(knoppen, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* indeling = new QVBoxLayout(this);
  indeling->addWidget(uitleg);
  indeling->addWidget(tekst);
  indeling->addWidget(knoppen);
  tekst->setFocus();
  resize(760, 480);
}

}  // namespace brivane::dossier
