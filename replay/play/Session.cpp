#include "replay/play/Session.h"

#include <utility>

#include "dossier/model/Application.h"
#include "dossier/model/Tracer.h"

namespace brivane::replay {

namespace {

host::HostFactories Factories() {
  return {[](std::string_view) { return std::make_shared<dossier::Tracer>(); },
          [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }};
}

std::shared_ptr<dossier::Environment> Surroundings(Headers headers) {
  auto surroundings = std::make_shared<dossier::Environment>();
  if (headers == Headers::Computed) surroundings->Kopteksten = std::make_shared<dossier::BerekendeKopteksten>();
  return surroundings;
}

/// What makes the component of any session, where the document is this one.
session::MakeSubject For(const Document& document, MakeSubject make) {
  return [&document, make = std::move(make)](const session::Document&, InstrumentedHost& host, Audience& audience) {
    return make(document, host, audience);
  };
}

}  // namespace

LiveHost HostOf(const Document& document) {
  auto dossier = std::make_shared<dossier::Dossier>(document.dossier, Surroundings(document.headers));
  auto application = std::make_shared<dossier::Application>(dossier);
  return {std::move(dossier), std::move(application), Factories()};
}

Session::Session(const Document& document, LineSink sink) : Session(document, std::move(sink), MakeMemorySubject) {}

Session::Session(const Document& document, LineSink sink, MakeSubject make)
    : Session(document, std::move(sink), HostOf(document), std::move(make)) {}

Session::Session(const Document& document, LineSink sink, LiveHost host, MakeSubject make)
    : session::Session(document, std::move(sink), std::move(host.application), std::move(host.factories),
                       For(document, std::move(make))),
      case_(std::move(host.dossier)) {}

}  // namespace brivane::replay
