// A store of one's own: edits a column that is kept in a file, and reads the file anew.
//   store_example [FILE]     without one, a file that is gone afterwards
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

#include "host/SampleCase.h"
#include "store/FileStore.h"
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

using namespace brivane;

namespace {

/// The case, with its first column from the file where there is one.
struct Opened {
  explicit Opened(const std::filesystem::path& file) : store(file, column) {}
  std::shared_ptr<memory_host::Application> application = memory_host::SampleCase();
  std::shared_ptr<memory_host::VrijeKolomItem> column = application->dossier->huidig->kolommen.front();
  file_store::Store store;
};

void Edit(const std::filesystem::path& file) {
  Opened opened(file);
  memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, opened.store.Factories());
  if (editor.SetApplication(opened.application, 0, 1) != controls::BindingResult::Bound) return;
  editor.Surface().Find("TxtOm")->Perform(controls::Enter{std::string("Café \"De Club\"")});
  editor.Surface().Find("TxtBd")->Perform(controls::Enter{0.1});
  editor.Surface().Find("TxtAnMaand")->Perform(controls::Enter{14.0});
}

}  // namespace

int main(int argc, char** argv) {
  const bool given = argc > 1 && std::string(argv[1]) != "--quit";
  const std::filesystem::path file =
      given ? std::filesystem::path(argv[1]) : std::filesystem::temp_directory_path() / "brivane-store-example.txt";
  try {
    Edit(file);
    const Opened again(file);
    std::cout << again.column->omschrijving << ", " << again.column->bedrag->basisbedrag << " euro, "
              << again.column->looptijd << " maanden\n";
    if (!given) std::filesystem::remove(file);
    const bool asTyped = again.column->omschrijving == "Café \"De Club\"" && again.column->bedrag->basisbedrag == 0.1 &&
                         again.column->looptijd == 14;
    return asTyped ? 0 : 1;
  } catch (const host::Error& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
