#include <brivane/host/Error.h>
#include <brivane/session/Play.h>
#include <brivane/session/play/Session.h>

namespace brivane::session {

namespace {

[[noreturn]] void Missing(const char* what) {
  throw host::Error(static_cast<std::int32_t>(host::ErrorNumber::ObjectMissing), std::string("the host has no ") + what,
                    "BrivaneVrijeKolom");
}

hostkit::Host MakeHost(const hostkit::HostFactory& factory) {
  hostkit::Host host = factory();
  if (!host.application) Missing("application");
  if (!host.factories.MaakProcedureTrace) Missing("tracers (MaakProcedureTrace)");
  if (!host.factories.MaakDossierControle) Missing("check of the case (MaakDossierControle)");
  return host;
}

}  // namespace

void Play(const hostkit::HostFactory& factory, std::string_view document, const LineSink& sink,
          DescribedCase described) {
  const Document read = ReadDocument(document, described);
  const hostkit::Host host = MakeHost(factory);
  Session(read, sink, host.application, host.factories).Run();
}

std::vector<std::string> Play(const hostkit::HostFactory& factory, std::string_view document, DescribedCase described) {
  std::vector<std::string> transcript;
  Play(
      factory, document, [&](std::string_view line) { transcript.emplace_back(line); }, described);
  return transcript;
}

void Check(std::string_view document, DescribedCase described) { static_cast<void>(ReadDocument(document, described)); }

}  // namespace brivane::session
