#include "app/screen/Messages.h"

#include <QPushButton>

#include "dossier/model/Tracer.h"
#include "toolkits/qt/widgets/QuestionBox.h"

namespace brivane::dossier {
namespace {

constexpr auto kPauze = controls::KeysUnderWay::kPause;
constexpr char kHerladen[] = "\n\nDe wijziging is niet opgeslagen. Het scherm toont weer wat in het dossier staat.";

}  // namespace

void ToonMelding(QWidget* boven, const QString& titel, const QString& tekst) {
  qt::QuestionBox bericht(kPauze, boven);
  bericht.setIcon(QMessageBox::Warning);
  bericht.setWindowTitle(titel);
  bericht.setText(tekst);
  bericht.setStandardButtons(QMessageBox::Ok);
  bericht.exec();
}

Antwoord Vraag(QWidget* boven, const QString& titel, const QString& tekst, const QString& jaTekst) {
  qt::QuestionBox bericht(kPauze, boven);
  bericht.setIcon(QMessageBox::Question);
  bericht.setWindowTitle(titel);
  bericht.setText(tekst);
  QPushButton* ja = bericht.addButton(jaTekst, QMessageBox::AcceptRole);
  QPushButton* nee = bericht.addButton(QStringLiteral("&Annuleren"), QMessageBox::RejectRole);
  bericht.setDefaultButton(nee);
  bericht.setEscapeButton(nee);
  bericht.exec();
  return bericht.clickedButton() == ja ? Antwoord::Ja : Antwoord::Nee;
}

void ToonFout(QWidget* boven, const Foutrecord& fout, Gevolg gevolg) {
  const auto tekst = [](const std::string& s) { return QString::fromStdString(s); };
  qt::QuestionBox bericht(kPauze, boven);
  bericht.setIcon(QMessageBox::Critical);
  bericht.setWindowTitle(tekst(fout.Caption));
  bericht.setText(tekst(fout.Message));
  bericht.setStandardButtons(QMessageBox::Ok);
  bericht.setInformativeText(QStringLiteral("%1\n\n"
                                            "Onderdeel: %2 (%3)\n"
                                            "Foutnummer: %4\n"
                                            "Bron: %5%6")
                                 .arg(tekst(fout.ErrorDescription), tekst(fout.ObjectDescription),
                                      tekst(fout.ObjectName), tekst(fout.ErrorNumber), tekst(fout.ErrorSource),
                                      gevolg == Gevolg::Herladen ? QString::fromUtf8(kHerladen) : QString()));
  bericht.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  bericht.exec();
}

}  // namespace brivane::dossier
