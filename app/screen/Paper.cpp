#include "app/screen/Paper.h"

#include <QDir>
#include <QGuiApplication>
#include <QMainWindow>
#include <QStatusBar>
#include <functional>
#include <optional>
#include <utility>

#include "app/desk/FileDialogs.h"
#include "app/desk/Messages.h"
#include "app/desk/Settings.h"
#include "app/desk/Today.h"
#include "app/desk/WriteNew.h"
#include "app/report/Contents.h"
#include "app/report/Pdf.h"
#include "app/report/Tables.h"
#include "app/screen/DossierScreen.h"
#include "app/screen/PrintPreview.h"

namespace brivane::app {
namespace {

constexpr int kSavedTime = 8000;  ///< milliseconds

/// The case as it is stored once what is being typed was handed over; nothing where that was refused.
std::optional<report::Source> SourceOf(DossierScreen& screen) {
  if (!screen.Kolom().Editor().CommitPending()) return std::nullopt;
  dossier::DossierGegevens gegevens = screen.Dossier().Gegevens();
  const sums::Uitgangspunt today{.peildatum = Today(), .tarieven = sums::TarievenVan(gegevens.Personen)};
  return report::Source{.gegevens = std::move(gegevens),
                        .adviser = Settings::Author().toStdString(),
                        .today = today.peildatum,
                        .uitgangspunt = today};
}

/// While it lives the pointer says that the program is busy.
class Busy {
 public:
  Busy() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { QGuiApplication::restoreOverrideCursor(); }
};

struct Export {
  QString title;
  QString filter;
  QString suffix;
  QString addition;  ///< to the name of the loan file
  std::function<QByteArray(const report::Source&)> make;
};

void Save(QMainWindow& window, DossierScreen& screen, const Export& what) {
  const auto source = SourceOf(screen);
  if (!source) return;
  const QString folder = Settings::Folder();
  const QString name = NameForFile(screen.Store().Naam()) + what.addition;
  for (;;) {
    const QString file = AskNewFile(&window, {.title = what.title, .folder = folder, .filter = what.filter},
                                    what.suffix, FreeName(folder, name, what.suffix));
    if (file.isEmpty()) return;
    const QString failure = [&] {
      const Busy busy;
      return WriteNew(file, what.make(*source));
    }();
    if (failure.isEmpty()) {
      window.statusBar()->showMessage(QStringLiteral("Opgeslagen: %1").arg(QDir::toNativeSeparators(file)), kSavedTime);
      return;
    }
    ShowMessage(&window, what.title, failure);
  }
}

}  // namespace

void PrintReport(QMainWindow& window, DossierScreen& screen) {
  if (const auto source = SourceOf(screen)) PrintPreview(report::ReportOf(*source), &window).exec();
}

void SaveReportAsPdf(QMainWindow& window, DossierScreen& screen) {
  Save(window, screen,
       {.title = QStringLiteral("Opslaan als PDF"),
        .filter = QStringLiteral("PDF-documenten (*.pdf)"),
        .suffix = QStringLiteral("pdf"),
        .addition = {},
        .make = [](const report::Source& source) { return report::PdfOf(report::ReportOf(source)); }});
}

void ExportKolommen(QMainWindow& window, DossierScreen& screen) {
  Save(window, screen,
       {.title = QStringLiteral("Kolommen exporteren"),
        .filter = QStringLiteral("CSV-bestanden (*.csv)"),
        .suffix = QStringLiteral("csv"),
        .addition = QStringLiteral(" - kolommen"),
        .make = [](const report::Source& source) { return QByteArray::fromStdString(report::KolommenCsv(source)); }});
}

void ExportPerioden(QMainWindow& window, DossierScreen& screen) {
  Save(window, screen,
       {.title = QStringLiteral("Perioden exporteren"),
        .filter = QStringLiteral("CSV-bestanden (*.csv)"),
        .suffix = QStringLiteral("csv"),
        .addition = QStringLiteral(" - perioden"),
        .make = [](const report::Source& source) { return QByteArray::fromStdString(report::PeriodenCsv(source)); }});
}

}  // namespace brivane::app
