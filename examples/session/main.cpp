// Plays sessions on a host of one's own: session_example [--check] FILE, or the document that stands below.
#include <iostream>
#include <string>

#include "host/SampleCase.h"
#include <brivane/session/Main.h>
#include <brivane/session/Play.h>

using namespace brivane;

namespace {

hostkit::Host MakeHost() {
  hostkit::Host host;
  host.application = memory_host::SampleCase();
  host.factories = memory_host::Factories();
  return host;
}

constexpr char kDocument[] = R"({
  "today": "2026-11-21",
  "log": ["writes", "calls", "events", "messages", "results"],
  "faults": [{"member": "VrijeKolomItem.Omschrijving", "op": "set", "nth": 2, "number": 1004, "description": "schijf vol"}],
  "steps": [
    {"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
    {"do": "enter", "control": "TxtOm", "value": "Sportclub"},
    {"do": "enter", "control": "TxtBd", "value": 25},
    {"do": "enter", "control": "TxtOm", "value": "Zwemclub"},
    {"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 2, "modal": [
      {"do": "enter", "control": "txtBedrag", "index": 2, "value": 80},
      {"do": "click", "control": "cmdOK"}]}
  ]
})";

}  // namespace

int main(int count, char** arguments) {
  if (count > 1 && std::string(arguments[1]) != "--quit") return session::Main(count, arguments, MakeHost);
  for (const std::string& line : session::Play(MakeHost, kDocument)) std::cout << line << '\n';
}
