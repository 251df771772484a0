#include "app/desk/Messages.h"

#include <QApplication>
#include <QPushButton>

#include "dossier/store/StoreErrors.h"
#include <brivane/toolkits/qt/widgets/QuestionBox.h>

namespace brivane::app {
namespace {

constexpr auto kPause = controls::KeysUnderWay::kPause;
constexpr char kKeepText[] =
    "\n\nAlles wat eerder is opgeslagen, is te bewaren met Bestand > Kopie opslaan als (Ctrl+Shift+S).";

/// Where the connection broke meanwhile the change may yet turn out to be stored.
const char* TextOf(Consequence consequence, bool unknown) {
  switch (consequence) {
    case Consequence::None: break;
    case Consequence::Reloaded:
      return unknown ? "\n\nTot dan toont het scherm het dossier zonder de wijziging. Voer haar niet opnieuw in."
                     : "\n\nDe wijziging is niet opgeslagen. Het scherm toont weer wat in het dossier staat.";
    case Consequence::Kept:
      return unknown ? "\n\nWat u invulde, staat nog in het venster. Blijkt dat het is opgeslagen, dan sluit dat "
                       "venster vanzelf."
                     : "\n\nDe wijziging is niet opgeslagen. Wat u invulde, staat nog in het venster.";
  }
  return "";
}

bool Is(const host::ErrorRecord& error, std::int32_t number) { return error.ErrorNumber == std::to_string(number); }

}  // namespace

QWidget* InFront(QWidget* window) {
  QWidget* dialog = QApplication::activeModalWidget();
  return dialog ? dialog : window;
}

void ShowMessage(QWidget* above, const QString& title, const QString& text) {
  qt::QuestionBox box(kPause, InFront(above));
  box.setIcon(QMessageBox::Warning);
  box.setWindowTitle(title);
  box.setText(text);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

Answer Ask(QWidget* above, const QString& title, const QString& text, const QString& yesText) {
  qt::QuestionBox box(kPause, InFront(above));
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle(title);
  box.setText(text);
  QPushButton* yes = box.addButton(yesText, QMessageBox::AcceptRole);
  QPushButton* no = box.addButton(QStringLiteral("&Annuleren"), QMessageBox::RejectRole);
  box.setDefaultButton(no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes ? Answer::Yes : Answer::No;
}

void ShowFailure(QWidget* above, const host::ErrorRecord& error, Consequence consequence) {
  const auto text = [](const std::string& s) { return QString::fromStdString(s); };
  qt::QuestionBox box(kPause, InFront(above));
  box.setIcon(QMessageBox::Critical);
  box.setWindowTitle(text(error.Caption));
  box.setText(text(error.Message));
  box.setStandardButtons(QMessageBox::Ok);
  box.setInformativeText(QStringLiteral("%1\n\n"
                                        "Onderdeel: %2 (%3)\n"
                                        "Foutnummer: %4\n"
                                        "Bron: %5%6")
                             .arg(text(error.ErrorDescription), text(error.ObjectDescription), text(error.ObjectName),
                                  text(error.ErrorNumber), text(error.ErrorSource),
                                  QString::fromUtf8(TextOf(consequence, Is(error, dossier::kUnknownError))) +
                                      (Is(error, dossier::kMovedError) ? QString::fromUtf8(kKeepText) : QString())));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.exec();
}

}  // namespace brivane::app
