#include "app/program/DarkPalette.h"

namespace brivane::app {

QPalette DarkPalette() {
  const QColor area(0x3a, 0x3c, 0x40);
  const QColor box(0x26, 0x27, 0x2a);
  const QColor text(0xe6, 0xe6, 0xe6);
  const QColor faint(0xa4, 0xa7, 0xad);
  QPalette palette(text, area, area.lighter(140), area.darker(160), area.lighter(115), text, Qt::white, box, area);
  palette.setColor(QPalette::AlternateBase, area);
  palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x6c, 0x9e, 0xf8));
  palette.setColor(QPalette::ToolTipBase, box);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::PlaceholderText, faint);
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, area);
  return palette;
}

}  // namespace brivane::app
