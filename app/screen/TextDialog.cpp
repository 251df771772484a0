#include "app/screen/TextDialog.h"

#include <QLineEdit>
#include <utility>

#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {

TextDialog::TextDialog(const Question& question, std::function<bool(const QString&)> take, QWidget* parent)
    : QInputDialog(parent), take_(std::move(take)) {
  setWindowTitle(question.title);
  setLabelText(question.label);
  setTextValue(question.text);
  if (auto* box = findChild<QLineEdit*>()) qt::TypesNothingWithAlt(*box);
  setOkButtonText(QStringLiteral("OK"));
  setCancelButtonText(QStringLiteral("Annuleren"));
}

void TextDialog::accept() {
  if (take_(textValue().trimmed())) QInputDialog::accept();
}

}  // namespace brivane::app
