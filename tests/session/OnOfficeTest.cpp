// The reference host on a client of an office, put through the same door as on its loan file: storing an edit at a
// server changes nothing of what is told.

#include <memory>

#include "dossier/model/Application.h"
#include "dossier/store/OpeningError.h"
#include "dossier/store/StoreTrace.h"
#include "replay/play/Session.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/session/Golden.h"

namespace brivane::session::test {
namespace {

/// One for all sessions, each of which has a client of its own.
dossier::TrialOffice& Office() {
  static dossier::TrialOffice office;
  return office;
}

hostkit::Host HostInOffice(const replay::Document& document) {
  const std::shared_ptr<dossier::OfficeStore> store = Office().Open(Office().Add(document.dossier));
  hostkit::Host host;
  host.application = std::make_shared<dossier::Application>(store->Dossier());
  host.factories = {
      .MaakProcedureTrace = [store](std::string_view control) { return store->MakeTrace(control); },
      .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }};
  host.keeps = store;
  return host;
}

class InOffice : public testing::TestWithParam<std::string> {};

TEST_P(InOffice, IsPlayedAsTheToolPlaysIt) {
  const std::string text = Document(GetParam());
  replay::Document document = replay::ReadDocument(text);
  document.headers = replay::Headers::Computed;
  std::string transcript;
  replay::Session(document, [&](std::string_view line) { transcript.append(line) += '\n'; }).Run();
  EXPECT_EQ(Played([&] { return HostInOffice(document); }, text), transcript);
}

/// Its case has two columns of one number in a loan, which no office holds either.
const std::string kNoClient = "carry-over";

std::vector<std::string> Names() {
  std::vector<std::string> names = GoldenNames();
  std::erase(names, kNoClient);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Sessions, InOffice, testing::ValuesIn(Names()), TestName);

TEST(InOfficeCases, AllButOneCanStandThere) {
  EXPECT_EQ(Names().size() + 1, GoldenNames().size());
  EXPECT_THROW(HostInOffice(replay::ReadDocument(Document(kNoClient))), dossier::OpeningError);
}

}  // namespace
}  // namespace brivane::session::test
