#include "app/screen/EventLogWindow.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/desk/EventLog.h"

namespace brivane::app {

EventLogWindow::EventLogWindow(const EventLog& eventLog, QWidget* parent) : QDialog(parent) {
  setWindowTitle(QStringLiteral("Logboek"));
  auto* hint = new QLabel(QStringLiteral("Wat het onderdeel heeft gedaan en welke fouten er waren. De bestanden "
                                         "staan in %1.")
                              .arg(QDir::toNativeSeparators(eventLog.Folder())));
  hint->setTextFormat(Qt::PlainText);
  hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
  hint->setWordWrap(true);

  auto* text = new QPlainTextEdit(eventLog.Read());
  text->setObjectName(QStringLiteral("logboek"));
  text->setAccessibleName(QStringLiteral("Logboek"));
  text->setReadOnly(true);
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  text->moveCursor(QTextCursor::End);
  text->moveCursor(QTextCursor::StartOfLine);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(hint);
  layout->addWidget(text);
  layout->addWidget(buttons);
  text->setFocus();
  resize(760, 480);
}

}  // namespace brivane::app
