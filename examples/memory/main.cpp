// Edits a free column without a screen: binds the editor to a loan, acts as an adviser would, and shows what the
// host's record then holds.
#include <iostream>
#include <memory>
#include <string>

#include "host/MemoryHost.h"
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

using namespace brivane;

int main() {
  // The host's side: one loan with one free column.
  auto application = std::make_shared<memory_host::Application>();
  auto column = std::make_shared<memory_host::VrijeKolomItem>();
  application->dossier->huidig->kolommen.push_back(column);
  auto client = std::make_shared<memory_host::Persoon>();
  client->naam = {"J.", "van", "Dam"};
  client->geboren = frame::MakeDate({1975, 12, 31});
  application->dossier->personen.push_back(client);
  application->onError = [](const memory_host::Trace& trace) {
    std::cerr << trace.number << ": " << trace.description << '\n';
  };

  // The editor on the toolkit in memory.
  memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, memory_host::Factories());
  const auto header =
      editor.Get().RefreshTopDisplay.Connect([](const std::string& text) { std::cout << "header: " << text << '\n'; });
  if (editor.SetApplication(application, 0, 1) != controls::BindingResult::Bound) return 1;

  // What the adviser does.
  auto& boxes = editor.Surface();
  boxes.Find("TxtOm")->Perform(controls::Enter{std::string("Vereniging")});
  boxes.Find("TxtBd")->Perform(controls::Enter{12.5});
  boxes.Find("TxtDtAanvang")->Perform(controls::Enter{frame::MakeDate({2031, 4, 1})});
  boxes.Find("TxtAnMaand")->Perform(controls::Enter{14.0});

  // Each accepted edit is in the record already.
  std::cout << column->omschrijving << ", " << column->bedrag->basisbedrag << " euro, " << column->looptijd
            << " maanden\n";
  bool cancel = false;
  editor.Validation(cancel);
  const bool asExpected =
      !cancel && column->omschrijving == "Vereniging" && column->looptijd == 14 && column->bedrag->basisbedrag == 12.5;
  return asExpected ? 0 : 1;
}
