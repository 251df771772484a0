#include "app/program/Program.h"

#include <QApplication>
#include <QLocale>

#include "app/program/DutchTranslator.h"
#include "app/program/LegiblePalette.h"
#include "app/program/WindowIcon.h"
#include <brivane/toolkits/qt/widgets/HighContrast.h>

namespace brivane::app {

void SetUpProgram(QApplication& program) {
  QApplication::setOrganizationName(QStringLiteral("Brivane"));
  QApplication::setApplicationName(QStringLiteral("dossier"));
  QApplication::setApplicationDisplayName(QStringLiteral("Dossier"));
  QApplication::setApplicationVersion(QStringLiteral(BRIVANE_VERSION));
  QApplication::setWindowIcon(WindowIcon());
  QApplication::setPalette(LegiblePalette(QApplication::palette()));
  qt::OutlineAllInHighContrast(program);
  QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
  QApplication::installTranslator(new DutchTranslator(&program));
}

}  // namespace brivane::app
