#include <unistd.h>

#include <cstdlib>
#include <random>
#include <string>

#include "tests/dossier/store/Digest.h"
#include "tests/dossier/store/OpenElsewhere.h"
#include "tests/dossier/store/RandomEdits.h"
#include "tests/dossier/store/ScriptedEdits.h"

// A process that works in a case until it is killed, and says on standard output what was accepted. It is built for
// every kind of store.
namespace {

using namespace brivane;
using namespace brivane::dossier;

void Say(const std::string& line) {
  const std::string text = line + "\n";
  if (write(STDOUT_FILENO, text.data(), text.size()) < 0) std::abort();
}

/// Says the number of each edit once it has been accepted, until it is killed or has done the last one.
int Edit(const QString& address, int first, int last) {
  const auto store = OpenElsewhere(address);
  Desk desk(*store);
  desk.Bind(0, 1);
  for (int n = first; n <= last; ++n) {
    DoEdit(desk, n);
    if (!desk.reports.empty()) {
      Say("error: " + desk.reports.back().ErrorDescription);
      return 1;
    }
    Say(std::to_string(n));
  }
  return 0;
}

/// Edits, undoes and redoes by chance until it is killed, and says after each what the case is like.
int Walk(const QString& address, unsigned seed) {
  const auto store = OpenElsewhere(address);
  RandomEdits edits(*store->Dossier(), store->Bewerkingen(), seed);
  std::mt19937 chance(seed);
  Say("open");
  for (;;) {
    const int what = std::uniform_int_distribution<int>(0, 9)(chance);
    if (what < 6)
      edits.One();
    else
      store->Take(what < 9 ? StepKind::Undo : StepKind::Redo);
    Say(Digest(store->Dossier()->Gegevens()));
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  const std::string command = argv[1];
  const QString address = QString::fromLocal8Bit(argv[2]);
  if (command == "edit" && argc == 5) return Edit(address, std::atoi(argv[3]), std::atoi(argv[4]));
  if (command == "walk" && argc == 4) return Walk(address, static_cast<unsigned>(std::atoi(argv[3])));
  return 2;
}
