// The list of 10,000 columns: a letter typed in its filter, and a sort, as multiples of reading the same columns from
// their file by SQLite's C interface.

#include <QApplication>
#include <QTemporaryDir>
#include <array>
#include <memory>
#include <string>

#include "app/screen/KolommenTree.h"
#include "bench/Compare.h"
#include "bench/dossier/Sqlite.h"
#include "dossier/model/SampleCase.h"
#include "dossier/store/DossierFile.h"

namespace {

using namespace brivane;

constexpr int kLoans = 10;
constexpr int kColumns = 10000;

/// The columns of the sample over and over, each with a name of its own, in the loans by turns.
dossier::DossierGegevens Case() {
  dossier::DossierGegevens contents = dossier::VoorbeeldDossier();
  const std::vector<dossier::KolomGegevens> sample = contents.HuidigeLening.VrijeKolommen;
  contents.HuidigeLening.VrijeKolommen.clear();
  contents.Leningen.assign(kLoans - 1, {});
  for (int number = 0; number < kColumns; ++number) {
    dossier::KolomGegevens column = sample[static_cast<std::size_t>(number) % sample.size()];
    column.Id = static_cast<std::int16_t>(number + 1);
    column.Omschrijving += " " + std::to_string(number);
    column.Bedrag.Bedrag += number;
    const auto loan = static_cast<std::size_t>(number % kLoans);
    (loan == 0 ? contents.HuidigeLening : contents.Leningen[loan - 1]).VrijeKolommen.push_back(std::move(column));
  }
  return contents;
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication program(argc, argv);
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("groot.dossier"));
  dossier::DossierFile::Maak(file, Case());
  // A file that is open belongs to its window.
  const QString other = folder.filePath(QStringLiteral("kaal.dossier"));
  dossier::DossierFile::Maak(other, Case());
  const QByteArray path = other.toLocal8Bit();
  const auto opened = dossier::DossierFile::Open(file);

  app::KolommenTree tree(opened->Dossier());
  tree.resize(400, 600);
  tree.show();
  QApplication::processEvents();
  // Many are found, a few, one, and all again.
  const std::array<QString, 4> typed{QStringLiteral("1"), QStringLiteral("krant 12"), QStringLiteral("tennis 9995"),
                                     QString()};
  std::size_t turn = 0;
  const auto type = [&] {
    tree.SetFilter(typed[turn++ % typed.size()], {0, 1});
    QApplication::processEvents();
  };
  const auto read = [&] { benchmark::DoNotOptimize(bench::ReadRows(path.constData())); };
  bench::Compare("a letter in the filter of 10,000 columns",
                 {.measured = "filter", .yardstick = "reading the rows", .aim = 1}, type, read);
  bench::Compare(
      "the first letter after an edit", {.measured = "filter", .yardstick = "reading the rows", .aim = 2},
      [&] {
        tree.RedrawText({0, 1});
        type();
      },
      read);
  bench::Compare(
      "sorting 10,000 columns", {.measured = "sort", .yardstick = "reading the rows", .aim = 2},
      [&] {
        tree.SetFilter(QString(), {0, 1});
        tree.SortBy(app::KolommenModel::kNaam);
        QApplication::processEvents();
      },
      read);
  return bench::Run(argc, argv);
}
