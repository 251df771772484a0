// Asks the kit whether the smallest host answers as the controls need, and prints what it says.
#include <iostream>
#include <memory>
#include <string>

#include "host/MemoryHost.h"
#include <brivane/frame/Calendar.h>
#include <brivane/hostkit/Check.h>

using namespace brivane;

namespace {

template <class Ids> std::shared_ptr<memory_host::Lening> Loan(const Ids& ids) {
  auto loan = std::make_shared<memory_host::Lening>();
  for (const auto id : ids) {
    loan->kolommen.push_back(std::make_shared<memory_host::VrijeKolomItem>());
    loan->kolommen.back()->id = id;
  }
  return loan;
}

/// The host with the case that the kit asks for.
hostkit::Host MakeHost() {
  auto application = std::make_shared<memory_host::Application>();
  application->dossier->huidig = Loan(hostkit::kHuidigeLening);
  application->dossier->nieuw = {Loan(hostkit::kLening1), Loan(hostkit::kLening2)};
  for (const hostkit::CasePersoon& asked : hostkit::kPersonen) {
    auto person = std::make_shared<memory_host::Persoon>();
    for (std::size_t part = 0; part < asked.naam.size(); ++part) person->naam[part] = asked.naam[part];
    person->geboren = frame::MakeDate(asked.geboortedatum);
    application->dossier->personen.push_back(person);
  }
  hostkit::Host host;
  host.application = application;
  host.factories = memory_host::Factories();
  return host;
}

}  // namespace

int main() {
  const hostkit::Report report = hostkit::Check(MakeHost);
  std::cout << report.Text();
  return report.Ok() ? 0 : 1;
}
