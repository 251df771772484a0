// What 10,000 columns add up to, as multiples of reading the same rows by SQLite's C interface.

#include <QApplication>
#include <QTemporaryDir>

#include "app/overview/OverviewWindow.h"
#include "app/overview/VerloopWindow.h"
#include "bench/Compare.h"
#include "bench/dossier/LargeCase.h"
#include "bench/dossier/Sqlite.h"
#include "dossier/store/DossierFile.h"
#include "dossier/sums/Overzicht.h"
#include <brivane/frame/Calendar.h>

int main(int argc, char** argv) {
  using namespace brivane;
  QApplication program(argc, argv);
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("groot.dossier"));
  const dossier::DossierGegevens gegevens = bench::LargeCase(10000);
  dossier::DossierFile::Maak(file, gegevens);
  const QByteArray path = file.toLocal8Bit();
  const auto read = [&] { benchmark::DoNotOptimize(bench::ReadRows(path.constData())); };
  const auto opened = std::make_shared<dossier::Dossier>(gegevens, std::make_shared<dossier::Environment>());

  const sums::Uitgangspunt day{.peildatum = frame::MakeDate({.year = 2027, .month = 6, .day = 15}), .tarieven = {}};
  bench::Compare(
      "sums of 10,000 columns", {.measured = "sums", .yardstick = "reading the rows", .aim = 1},
      [&] {
        const sums::Overzicht overzicht(gegevens, day);
        for (std::int16_t situatie = 0; situatie <= overzicht.NieuweLeningen(); ++situatie)
          benchmark::DoNotOptimize(overzicht.TotalenVan(situatie));
      },
      read);

  const app::CaseView view{.read = [&] { return opened->Gegevens(); },
                           .shown = [] { return std::pair<std::int16_t, std::optional<std::int16_t>>(0, 1); },
                           .goTo = [](std::int16_t, std::int16_t) {}};
  app::OverviewWindow overview(view, nullptr);
  overview.show();
  bench::Compare(
      "overview of 10,000 columns, painted", {.measured = "overview", .yardstick = "reading the rows", .aim = 3},
      [&] {
        overview.Refresh();
        benchmark::DoNotOptimize(overview.grab());
      },
      read);
  app::VerloopWindow verloop(view, nullptr);
  verloop.show();
  bench::Compare(
      "years of 10,000 columns, painted", {.measured = "years", .yardstick = "reading the rows", .aim = 5},
      [&] {
        verloop.Refresh();
        benchmark::DoNotOptimize(verloop.grab());
      },
      read);
  return bench::Run(argc, argv);
}
