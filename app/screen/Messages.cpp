#include "app/screen/Messages.h"

#include <QMessageBox>
#include <QPushButton>

namespace brivane::app {
namespace {

constexpr char kReloadedText[] = "\n\nDe wijziging is niet opgeslagen. Het scherm toont weer wat in het dossier staat.";

}  // namespace

void ShowMessage(QWidget* above, const QString& title, const QString& text) {
  QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, above);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

Answer Ask(QWidget* above, const QString& title, const QString& text, const QString& yesText) {
  QMessageBox box(QMessageBox::Question, title, text, QMessageBox::NoButton, above);
  box.setTextFormat(Qt::PlainText);
  QPushButton* yes = box.addButton(yesText, QMessageBox::AcceptRole);
  QPushButton* no = box.addButton(QStringLiteral("&Annuleren"), QMessageBox::RejectRole);
  box.setDefaultButton(no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes ? Answer::Yes : Answer::No;
}

void ShowFailure(QWidget* above, const host::ErrorRecord& error, Consequence consequence) {
  const auto text = [](const std::string& s) { return QString::fromStdString(s); };
  QMessageBox box(QMessageBox::Critical, text(error.Caption), text(error.Message), QMessageBox::Ok, above);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(QStringLiteral("%1\n\n"
                                        "Onderdeel: %2 (%3)\n"
                                        "Foutnummer: %4\n"
                                        "Bron: %5%6")
                             .arg(text(error.ErrorDescription), text(error.ObjectDescription), text(error.ObjectName),
                                  text(error.ErrorNumber), text(error.ErrorSource),
                                  consequence == Consequence::Reloaded ? QString::fromUtf8(kReloadedText) : QString()));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.exec();
}

}  // namespace brivane::app
