#include <unistd.h>

#include <cstdlib>
#include <string>

#include "dossier/store/Database.h"
#include "dossier/store/DossierFile.h"

// A second process for the tests: does what it is told to a loan file and says so on standard output.
namespace {

using namespace brivane;
using namespace brivane::dossier;

void Say(const std::string& line) {
  const std::string text = line + "\n";
  if (write(STDOUT_FILENO, text.data(), text.size()) < 0) std::abort();
}

/// Until the parent closes the pipe.
void Wait() {
  char byte = 0;
  while (read(STDIN_FILENO, &byte, 1) > 0) {
  }
}

int Open(const QString& path) {
  try {
    const auto file = DossierFile::Open(path);
    Say("open " + file->Dossier()->FindKolom(0, 1)->Omschrijving());
    Wait();
  } catch (const OpeningError& error) {
    Say(error.what());
  }
  return 0;
}

/// As another program would that reads the file.
int Read(const QString& path) {
  Database database(path, Access::ReadOnly);
  Say("reads " + database.Value(QStringLiteral("SELECT count(*) FROM vrijekolom")).toString().toStdString());
  Wait();
  return 0;
}

/// As another program would that writes in the file.
int Write(const QString& path) {
  try {
    Database(path, Access::ReadWrite).Run(QStringLiteral("UPDATE vrijekolom SET looptijd = 99"));
    Say("written");
  } catch (const DatabaseError& error) {
    Say(std::string("refused: ") + error.what());
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const std::string command = argv[1];
  const QString path = QString::fromLocal8Bit(argv[2]);
  if (command == "open") return Open(path);
  if (command == "read") return Read(path);
  if (command == "write") return Write(path);
  return 2;
}
