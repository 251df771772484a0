// One accepted edit in a loan file, and opening one, as multiples of the same on SQLite's C interface.

#include <QTemporaryDir>
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
      "opening 10,000 columns", {.measured = "opening", .yardstick = "reading the rows", .aim = 3},
      [&] { benchmark::DoNotOptimize(dossier::DossierFile::Open(groot)); },
      [&] { benchmark::DoNotOptimize(bench::ReadRows(pad.constData())); });
  return bench::Run(argc, argv);
}
