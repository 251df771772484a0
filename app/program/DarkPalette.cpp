#include "app/program/DarkPalette.h"

namespace brivane::dossier {

QPalette DonkerPalet() {
  const QColor vlak(0x3a, 0x3c, 0x40);
  const QColor vak(0x26, 0x27, 0x2a);
  const QColor tekst(0xe6, 0xe6, 0xe6);
  const QColor flauw(0x92, 0x95, 0x9b);
  QPalette palet(tekst, vlak, vlak.lighter(140), vlak.darker(160), vlak.lighter(115), tekst, Qt::white, vak, vlak);
  palet.setColor(QPalette::AlternateBase, vlak);
  palet.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
  palet.setColor(QPalette::HighlightedText, Qt::white);
  palet.setColor(QPalette::Link, QColor(0x6c, 0x9e, 0xf8));
  palet.setColor(QPalette::ToolTipBase, vak);
  palet.setColor(QPalette::ToolTipText, tekst);
  palet.setColor(QPalette::PlaceholderText, flauw);
  for (const QPalette::ColorRole rol : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palet.setColor(QPalette::Disabled, rol, flauw);
  }
  palet.setColor(QPalette::Disabled, QPalette::Base, vlak);
  return palet;
}

}  // namespace brivane::dossier
