#include "app/screen/RecentMenu.h"

#include <QDir>
#include <QMenu>

#include "app/desk/RecentFiles.h"

namespace brivane::app {
namespace {

void Fill(QMenu& menu, const RecentChoice& choice) {
  menu.clear();
  const QStringList files = RecentFiles::All();
  for (int number = 0; number < files.size(); ++number) {
    const QString& file = files[number];
    QString text = QStringLiteral("&%1 %2").arg((number + 1) % 10).arg(NameOfFile(file).replace(u'&', "&&"));
    if (!IsThere(file)) text += QStringLiteral(" (niet gevonden)");
    QAction* action = menu.addAction(text, &menu, [open = choice.open, file] { open(file); });
    action->setToolTip(QDir::toNativeSeparators(file));
  }
  if (files.isEmpty()) {
    QAction* none = menu.addAction(QStringLiteral("Nog geen dossier"));
    none->setEnabled(false);
    none->setToolTip(QStringLiteral("Hier komen de dossiers die u hebt geopend."));
    return;
  }
  menu.addSeparator();
  menu.addAction(QStringLiteral("Lijst &leegmaken"), &menu, choice.clear);
}

}  // namespace

void FillWithRecentFiles(QMenu& menu, const RecentChoice& choice) {
  menu.setToolTipsVisible(true);
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu, choice] { Fill(menu, choice); });
  // A menu that was never filled would not open.
  Fill(menu, choice);
}

}  // namespace brivane::app
