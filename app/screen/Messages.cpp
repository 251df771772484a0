#include "app/screen/Messages.h"

#include <QMessageBox>
#include <QPushButton>

#include "dossier/model/Tracer.h"
#include "dossier/store/StoreErrors.h"

namespace brivane::dossier {
namespace {

constexpr char kHerladen[] = "\n\nDe wijziging is niet opgeslagen. Het scherm toont weer wat in het dossier staat.";

constexpr char kBewaren[] =
    "\n\nAlles wat eerder is opgeslagen, is te bewaren met Bestand > Kopie opslaan als (Ctrl+Shift+S).";

}  // namespace

void ToonMelding(QWidget* boven, const QString& titel, const QString& tekst) {
  QMessageBox bericht(QMessageBox::Warning, titel, tekst, QMessageBox::Ok, boven);
  bericht.setTextFormat(Qt::PlainText);
  bericht.exec();
}

Antwoord Vraag(QWidget* boven, const QString& titel, const QString& tekst, const QString& jaTekst) {
  QMessageBox bericht(QMessageBox::Question, titel, tekst, QMessageBox::NoButton, boven);
  bericht.setTextFormat(Qt::PlainText);
  QPushButton* ja = bericht.addButton(jaTekst, QMessageBox::AcceptRole);
  QPushButton* nee = bericht.addButton(QStringLiteral("&Annuleren"), QMessageBox::RejectRole);
  bericht.setDefaultButton(nee);
  bericht.setEscapeButton(nee);
  bericht.exec();
  return bericht.clickedButton() == ja ? Antwoord::Ja : Antwoord::Nee;
}

void ToonFout(QWidget* boven, const Foutrecord& fout, Gevolg gevolg) {
  const auto tekst = [](const std::string& s) { return QString::fromStdString(s); };
  QMessageBox bericht(QMessageBox::Critical, tekst(fout.Caption), tekst(fout.Message), QMessageBox::Ok, boven);
  bericht.setTextFormat(Qt::PlainText);
  const bool verplaatst = fout.ErrorNumber == std::to_string(kMovedError);
  bericht.setInformativeText(QStringLiteral("%1\n\n"
                                            "Onderdeel: %2 (%3)\n"
                                            "Foutnummer: %4\n"
                                            "Bron: %5%6")
                                 .arg(tekst(fout.ErrorDescription), tekst(fout.ObjectDescription),
                                      tekst(fout.ObjectName), tekst(fout.ErrorNumber), tekst(fout.ErrorSource),
                                      (gevolg == Gevolg::Herladen ? QString::fromUtf8(kHerladen) : QString()) +
                                          (verplaatst ? QString::fromUtf8(kBewaren) : QString())));
  bericht.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  bericht.exec();
}

}  // namespace brivane::dossier
