// One accepted edit in a loan file, and opening one, as multiples of the same on SQLite's C interface.

#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>

#include "bench/Compare.h"
#include "bench/dossier/Sqlite.h"
#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "dossier/model/SampleCase.h"
#include "dossier/store/DossierFile.h"
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace {

using namespace brivane;

/// The columns of the sample, over and over.
dossier::DossierGegevens Groot(int kolommen) {
  dossier::DossierGegevens gegevens = dossier::VoorbeeldDossier();
  auto& huidig = gegevens.HuidigeLening.VrijeKolommen;
  const std::vector<dossier::KolomGegevens> voorbeeld = huidig;
  while (static_cast<int>(huidig.size()) < kolommen) {
    dossier::KolomGegevens kolom = voorbeeld[huidig.size() % voorbeeld.size()];
    kolom.Id = static_cast<std::int16_t>(huidig.size() + 1);
    huidig.push_back(kolom);
  }
  return gegevens;
}

/// A history of so many edits of one amount, as the program would have written it.
void AddHistory(const QString& pad, int entries) {
  const bench::Connection database = bench::Open(pad.toLocal8Bit().constData());
  const auto run = [&](const std::string& sql) {
    if (sqlite3_exec(database.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
  };
  const std::string numbers =
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(entries) + ") ";
  run("INSERT INTO naam VALUES (1, 'adviseur'), (2, 'Huidige lening'), (3, 'Kinderopvang')");
  run(numbers + "INSERT INTO stap SELECT i, 1790000000000 + 60000 * i, 1, 0, i, i, 0, i, 100000 FROM n");
  run(numbers +
      "INSERT INTO wijziging SELECT i, i, 4, sleutel, lening, 2, sleutel, 3, 33, 100.25 + i, 101.25 + i FROM n, "
      "(SELECT * FROM vrijekolom ORDER BY sleutel LIMIT 1)");
  run("PRAGMA wal_checkpoint(TRUNCATE)");
}

/// What a thousand edits of one field add to a file, in bytes.
long long GrowthOfAThousandEdits(const QString& pad) {
  const auto size = [&] { return QFileInfo(pad).size(); };
  const auto before = size();
  {
    const auto bestand = dossier::DossierFile::Open(pad);
    const auto bedrag = bestand->Dossier()->FindKolom(0, 1)->Bedrag();
    for (int n = 1; n <= 1000; ++n) bedrag->SetBedrag(n + 0.25);
  }
  return size() - before;
}

/// The editor on a loan file of its own, and a bare statement on another.
struct Sides {
  explicit Sides(const QString& eigen, const QString& kaal)
      : bestand(dossier::DossierFile::Open(eigen)),
        application(std::make_shared<dossier::Application>(bestand->Dossier())),
        surface(toolkit.MakeSurface(vrijekolom::kOntwerp)),
        editor(*surface, toolkit,
               {.MaakProcedureTrace = [this](std::string_view control) { return bestand->MakeTrace(control); },
                .MaakDossierControle = {}}),
        box(*controls::Surface::Of(*surface).Find("TxtBd")),
        database(bench::Open(kaal.toLocal8Bit().constData())),
        update(bench::Prepare(database, "UPDATE vrijekolom SET bedrag = ? WHERE sleutel = ?")) {
    // Both files were made alike, so the column has the same key in each.
    sqlite3_bind_int64(update.get(), 2, bestand->Dossier()->FindKolom(0, 1)->Sleutel());
    editor.SetApplication(application, 0, 1);
  }

  void Edit() { box.Perform(controls::Enter{++bedrag}); }
  void Update() {
    sqlite3_bind_double(update.get(), 1, ++bedrag);
    if (sqlite3_step(update.get()) != SQLITE_DONE || sqlite3_changes(database.get()) != 1) std::abort();
    sqlite3_reset(update.get());
  }

  double bedrag = 0;
  memory::Toolkit toolkit;
  std::unique_ptr<dossier::DossierFile> bestand;
  std::shared_ptr<host::Application> application;
  std::unique_ptr<host::Surface> surface;
  VrijeKolom editor;
  controls::AnyControl& box;
  bench::Connection database;
  bench::Statement update;
};

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir map;
  const auto maak = [&](const char* naam, const dossier::DossierGegevens& gegevens) {
    const QString pad = map.filePath(QString::fromLatin1(naam));
    dossier::DossierFile::Maak(pad, gegevens);
    return pad;
  };
  Sides sides(maak("eigen.dossier", dossier::VoorbeeldDossier()), maak("kaal.dossier", dossier::VoorbeeldDossier()));
  bench::CompareInTurn(
      "one accepted edit", {.measured = "edit", .yardstick = "bare UPDATE", .aim = 1.3}, [&] { sides.Edit(); },
      [&] { sides.Update(); });

  const QString groot = maak("groot.dossier", Groot(10000));
  const QByteArray pad = groot.toLocal8Bit();
  bench::Compare(
      "opening 10,000 columns", {.measured = "opening", .yardstick = "reading the rows", .aim = 1.5},
      [&] { benchmark::DoNotOptimize(dossier::DossierFile::Open(groot)); },
      [&] { benchmark::DoNotOptimize(bench::ReadRows(pad.constData())); });
  const QString zonder = maak("zonder.dossier", dossier::VoorbeeldDossier());
  const QString met = maak("met.dossier", dossier::VoorbeeldDossier());
  AddHistory(met, 100000);
  bench::CompareInTurn(
      "opening the sample with 100,000 entries of history",
      {.measured = "with history", .yardstick = "without", .aim = 1.1},
      [&] { benchmark::DoNotOptimize(dossier::DossierFile::Open(met)); },
      [&] { benchmark::DoNotOptimize(dossier::DossierFile::Open(zonder)); });
  const QString grootMet = maak("groot-met.dossier", Groot(10000));
  AddHistory(grootMet, 100000);
  bench::CompareInTurn(
      "opening 10,000 columns with 100,000 entries of history",
      {.measured = "with history", .yardstick = "without", .aim = 1.1},
      [&] { benchmark::DoNotOptimize(dossier::DossierFile::Open(grootMet)); },
      [&] { benchmark::DoNotOptimize(dossier::DossierFile::Open(groot)); });
  std::printf("1,000 edits of an amount add %lld bytes to a file; 100,000 entries make one of %lld bytes\n",
              GrowthOfAThousandEdits(maak("groei.dossier", dossier::VoorbeeldDossier())),
              static_cast<long long>(QFileInfo(met).size()));
  return bench::Run(argc, argv);
}
