// The reference host on its loan file, put through the same door: storing an edit changes nothing of what is told. A
// loan file words its header texts from the column, and so does the tool here that it is compared with.

#include <QTemporaryDir>
#include <memory>
#include <utility>

#include "dossier/model/Application.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "dossier/store/StoreTrace.h"
#include "replay/play/Session.h"
#include "tests/session/Golden.h"

namespace brivane::session::test {
namespace {

/// A loan file with the case of a document, and the case as it is worked in.
struct OpenFile {
  explicit OpenFile(const replay::Document& document) {
    dossier::DossierFile::Maak(path, document.dossier);
    auto database = std::make_unique<dossier::Database>(path, dossier::Access::ReadWrite);
    const dossier::StoredDossier stored = dossier::ReadDossier(*database);
    const auto omgeving = std::make_shared<dossier::Environment>();
    omgeving->Kopteksten = std::make_shared<dossier::BerekendeKopteksten>();
    dossier = std::make_shared<dossier::Dossier>(stored.gegevens, omgeving);
    journal = std::make_shared<dossier::FileJournal>(
        std::move(database), stored,
        [this](dossier::DossierGegevens contents) { dossier->Herlaad(std::move(contents)); });
    omgeving->Journal = journal;
  }

  QTemporaryDir folder;
  QString path = folder.filePath("zaak.dossier");
  std::shared_ptr<dossier::Dossier> dossier;
  std::shared_ptr<dossier::FileJournal> journal;
};

hostkit::Host HostOnFile(const replay::Document& document) {
  const auto open = std::make_shared<OpenFile>(document);
  hostkit::Host host;
  host.application = std::make_shared<dossier::Application>(open->dossier);
  host.factories = {
      .MaakProcedureTrace =
          [open](std::string_view control) {
            return std::make_shared<dossier::StoreTrace>(
                control, std::shared_ptr<dossier::Edits>(open->journal, &open->journal->Bewerkingen()), nullptr);
          },
      .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }};
  host.keeps = open;
  return host;
}

class OnFile : public testing::TestWithParam<std::string> {};

TEST_P(OnFile, IsPlayedAsTheToolPlaysIt) {
  const std::string text = Document(GetParam());
  replay::Document document = replay::ReadDocument(text);
  document.headers = replay::Headers::Computed;
  std::string transcript;
  replay::Session(document, [&](std::string_view line) { transcript.append(line) += '\n'; }).Run();
  EXPECT_EQ(Played([&] { return HostOnFile(document); }, text), transcript);
}

/// Its case has two columns of one number in a loan, which no file holds.
const std::string kNoFile = "carry-over";

std::vector<std::string> Names() {
  std::vector<std::string> names = GoldenNames();
  std::erase(names, kNoFile);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Sessions, OnFile, testing::ValuesIn(Names()), TestName);

TEST(OnFileCases, AllButOneCanStandInAFile) {
  EXPECT_EQ(Names().size() + 1, GoldenNames().size());
  EXPECT_THROW(HostOnFile(replay::ReadDocument(Document(kNoFile))), dossier::OpeningError);
}

}  // namespace
}  // namespace brivane::session::test
