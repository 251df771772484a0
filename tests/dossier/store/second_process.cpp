#include <unistd.h>

#include <cstdlib>
#include <string>

#include "dossier/store/Database.h"
#include "tests/dossier/store/ScriptedEdits.h"

// A second process for the tests: does what it is told to a loan file and says so on standard output.
namespace {

using namespace brivane;
using namespace brivane::dossier;

void Zeg(const std::string& regel) {
  const std::string tekst = regel + "\n";
  if (write(STDOUT_FILENO, tekst.data(), tekst.size()) < 0) std::abort();
}

/// Until the parent closes the pipe.
void Wacht() {
  char byte = 0;
  while (read(STDIN_FILENO, &byte, 1) > 0) {
  }
}

int Open(const QString& pad) {
  try {
    const auto bestand = DossierBestand::Open(pad);
    Zeg("open " + bestand->Dossier()->ZoekKolom(0, 1)->Omschrijving());
    Wacht();
  } catch (const OpeningError& error) {
    Zeg(error.what());
  }
  return 0;
}

/// As another program would that reads the file.
int Lees(const QString& pad) {
  Database database(pad, Access::ReadOnly);
  Zeg("leest " + database.Value(QStringLiteral("SELECT count(*) FROM vrijekolom")).toString().toStdString());
  Wacht();
  return 0;
}

/// As another program would that writes in the file.
int Schrijf(const QString& pad) {
  try {
    Database(pad, Access::ReadWrite).Run(QStringLiteral("UPDATE vrijekolom SET looptijd = 99"));
    Zeg("geschreven");
  } catch (const DatabaseError& error) {
    Zeg(std::string("geweigerd: ") + error.what());
  }
  return 0;
}

/// Says the number of each edit once it has been accepted, until it is killed or has done the last one.
int Bewerk(const QString& pad, int eerste, int laatste) {
  const auto bestand = DossierBestand::Open(pad);
  Werkplek werk(*bestand);
  werk.Bind(0, 1);
  for (int n = eerste; n <= laatste; ++n) {
    DoeBewerking(werk, n);
    if (!werk.fouten.empty()) {
      Zeg("fout: " + werk.fouten.back().ErrorDescription);
      return 1;
    }
    Zeg(std::to_string(n));
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const std::string wat = argv[1];
  const QString pad = QString::fromLocal8Bit(argv[2]);
  if (wat == "open") return Open(pad);
  if (wat == "lees") return Lees(pad);
  if (wat == "schrijf") return Schrijf(pad);
  if (wat == "bewerk" && argc == 5) return Bewerk(pad, std::atoi(argv[3]), std::atoi(argv[4]));
  return 2;
}
