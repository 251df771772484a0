// Drives the editor from a text, without a screen: script_example [FILE], or what stands below. A line is a control and
// what a person does to it; on a form that it opens, the lines go on until the form is closed.
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "host/SampleCase.h"
#include "script/Player.h"
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

using namespace brivane;

namespace {

constexpr char kScript[] = R"(# what an adviser types, as it is typed
TxtOm type Sportclub
TxtBd type 3*25
TxtDtAanvang type 1-4-2031
TxtAnJaar type 2
optFiscaal(1) select
Toelichting.jnAO set Nee
cmdScenario press
  txtBedrag(2) type 80
  cmdOK press
)";

}  // namespace

int main(int argc, char** argv) {
  const bool given = argc > 1 && std::string(argv[1]) != "--quit";
  std::ifstream file(given ? argv[1] : "");
  std::istringstream own(kScript);
  script::Player player(given ? static_cast<std::istream&>(file) : own, std::cout);

  const auto application = memory_host::SampleCase();
  application->onError = [](const memory_host::Trace& trace) {
    std::cerr << trace.number << ": " << trace.description << '\n';
  };
  memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, memory_host::Factories(), [&](memory::Toolkit& toolkit) {
    toolkit.modal = [&](controls::Form& form) { player.Play(form, [&] { return form.IsUnloaded(); }); };
  });
  if (editor.SetApplication(application, 0, 1) != controls::BindingResult::Bound) return 1;
  const bool played = player.Play(editor.Surface(), [] { return false; });

  const auto& column = *application->dossier->huidig->kolommen.front();
  std::cout << column.omschrijving << ": " << column.bedrag->basisbedrag << " euro, " << column.looptijd << " maanden, "
            << column.bedrag->periodes.size() << " wijzigingen\n";
  return played ? 0 : 1;
}
