// The hosts of the project, held to the kit: the reference host in memory and on its file, the smallest host, and the
// one that the tests of the controls stand on.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "dossier/model/Application.h"
#include "dossier/model/DossierControle.h"
#include "dossier/model/Tracer.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "dossier/store/StoreTrace.h"
#include "tests/hostkit/FaultyHost.h"
#include "tests/support/TestHost.h"
#include <brivane/hostkit/googletest/HostTests.h>

namespace brivane::hostkit::test {
namespace {

template <std::size_t count> dossier::LeningGegevens Loan(const std::array<std::int16_t, count>& ids) {
  dossier::LeningGegevens lening;
  for (const std::int16_t id : ids) lening.VrijeKolommen.emplace_back().Id = id;
  return lening;
}

dossier::DossierGegevens Zaak() {
  dossier::DossierGegevens zaak;
  for (const CasePersoon& asked : kPersonen)
    zaak.Personen.push_back({{std::string(asked.naam[0]), std::string(asked.naam[1]), std::string(asked.naam[2])},
                             frame::MakeDate(asked.geboortedatum)});
  zaak.Leeftijd = kLeeftijd;
  zaak.MaatschappijType = {{"AB", "Alfa Bank"}, {"ZZ", "Anders"}};
  zaak.HuidigeLening = Loan(kHuidigeLening);
  zaak.Leningen = {Loan(kLening1), Loan(kLening2)};
  return zaak;
}

/// Keeps nothing, and fails when it is told to.
class FailingJournal final : public dossier::Journal {
 public:
  std::optional<host::Error> next;

  using Journal::SetField;
  void SetField(dossier::Sleutel kolom, dossier::KolomVeld veld, const dossier::Waarde& waarde) override {
    if (next && veld.naam == "Omschrijving") throw host::Error(*std::exchange(next, std::nullopt));
    Journal::SetField(kolom, veld, waarde);
  }
};

/// What the reference host's application was told last.
struct LastReport {
  explicit LastReport(dossier::Application& application)
      : subscription(application.FoutGemeld.Connect([this](const host::ErrorRecord& told) { record = told; })) {}
  std::optional<host::ErrorRecord> record;
  host::Subscription subscription;
};

std::shared_ptr<dossier::DossierControle> MakeControle() {
  return std::make_shared<dossier::DossierControle>([] { return frame::MakeDate({2026, 11, 21}); });
}

Host ReferenceHost() {
  const auto journal = std::make_shared<FailingJournal>();
  const auto omgeving = std::make_shared<dossier::Environment>();
  omgeving->Journal = journal;
  const auto application = std::make_shared<dossier::Application>(std::make_shared<dossier::Dossier>(Zaak(), omgeving));
  const auto last = std::make_shared<LastReport>(*application);
  Host host;
  host.application = application;
  host.factories = {.MaakProcedureTrace = [](std::string_view) { return std::make_shared<dossier::Tracer>(); },
                    .MaakDossierControle = [](std::string_view) { return MakeControle(); }};
  host.failNextWrite = [journal](const host::Error& error) { journal->next.emplace(error); };
  host.lastReport = [last] { return last->record; };
  return host;
}

/// The same on a file: the edit that the failing change belongs to is rolled back, as where the disk is full.
class FailingFileJournal final : public dossier::FileJournal {
 public:
  using FileJournal::FileJournal;
  std::optional<host::Error> next;

  using FileJournal::SetField;
  void SetField(dossier::Sleutel kolom, dossier::KolomVeld veld, const dossier::Waarde& waarde) override {
    if (next && veld.naam == "Omschrijving")
      Bewerkingen().Write([&] { throw host::Error(*std::exchange(next, std::nullopt)); });
    FileJournal::SetField(kolom, veld, waarde);
  }
};

/// The loan file of one host: worked in over a journal that can fail, then opened as the program does.
struct OpenFile {
  OpenFile() {
    dossier::DossierFile::Maak(path, Zaak());
    auto database = std::make_unique<dossier::Database>(path, dossier::Access::ReadWrite);
    const dossier::StoredDossier stored = dossier::ReadDossier(*database);
    const auto omgeving = std::make_shared<dossier::Environment>();
    dossier = std::make_shared<dossier::Dossier>(stored.gegevens, omgeving);
    const auto adopt = [this](dossier::DossierGegevens contents) { dossier->Herlaad(std::move(contents)); };
    journal = std::make_shared<FailingFileJournal>(std::move(database), stored, adopt);
    omgeving->Journal = journal;
  }
  std::shared_ptr<dossier::Application> Reopen() {
    journal->Sluit();
    file.reset();
    file = dossier::DossierFile::Open(path);
    return std::make_shared<dossier::Application>(file->Dossier());
  }
  [[nodiscard]] std::shared_ptr<dossier::Edits> Bewerkingen() const {
    return file ? file->GedeeldeBewerkingen() : std::shared_ptr<dossier::Edits>(journal, &journal->Bewerkingen());
  }

  QTemporaryDir folder;
  QString path = folder.filePath("zaak.dossier");
  std::shared_ptr<dossier::Dossier> dossier;
  std::shared_ptr<FailingFileJournal> journal;
  std::unique_ptr<dossier::DossierFile> file;
};

Host HostOnFile() {
  const auto open = std::make_shared<OpenFile>();
  const auto application = std::make_shared<dossier::Application>(open->dossier);
  const auto last = std::make_shared<LastReport>(*application);
  Host host;
  host.application = application;
  host.factories = {.MaakProcedureTrace =
                        [open](std::string_view control) {
                          return std::make_shared<dossier::StoreTrace>(control, open->Bewerkingen(), nullptr);
                        },
                    .MaakDossierControle = [](std::string_view) { return MakeControle(); }};
  host.failNextWrite = [open](const host::Error& error) { open->journal->next.emplace(error); };
  host.lastReport = [last] { return last->record; };
  host.reopen = [open] { return open->Reopen(); };
  host.keeps = open;
  return host;
}

/// What a loan file refuses with a message rather than keep (dossier/store/Possible.h).
Options LimitsOfAFile() {
  Options options;
  options.cannot = {{"VrijeKolomItem.Looptijd/beyond 16 bits", "a duration has 16 bits in the file"},
                    {"Periode.Maand/largest", "80 rows of years have 960 months"}};
  for (const char* const amount : {"Bedrag.Basisbedrag/largest", "Periode.Bedrag/largest", "Periode.Percentage/largest",
                                   "Periode.Korting/largest"})
    options.cannot.push_back({amount, "an amount is at most 1e15"});
  return options;
}

Host SmallestHost() {
  const auto application = MemoryCase();
  Host host;
  host.application = application;
  host.factories = memory_host::Factories();
  KeepReports(host, *application);
  return host;
}

Host HostOfTheTests() {
  using brivane::test::TestHost;
  const auto made = std::make_shared<TestHost>();
  for (const std::int16_t id : {std::int16_t{2}, std::int16_t{3}}) made->dossier.huidig->Voeg(id);
  made->VoegLening({kLening1.begin(), kLening1.end()});
  made->VoegLening({kLening2.begin(), kLening2.end()});
  made->dossier.personen[1]->naam = {"Zoë", "de", "Wit"};
  Host host;
  host.application = made->application;
  host.factories = made->Factories();
  host.failNextWrite = [made](const host::Error& error) {
    made->calls.Fail("Omschrijving", brivane::test::Op::Set, 1, error);
  };
  host.keeps = made;
  return host;
}

// GoogleTest asks each test for a suite of its own; they are there before the program begins.
const bool registered = RegisterHostTests("ReferenceHost", ReferenceHost) &&
                        RegisterHostTests("ReferenceHostOnFile", HostOnFile, LimitsOfAFile()) &&
                        RegisterHostTests("MemoryHost", SmallestHost) && RegisterHostTests("TestHost", HostOfTheTests);

TEST(HostsTest, EachCheckIsATest) {
  EXPECT_TRUE(registered);
  const auto* const unit = testing::UnitTest::GetInstance();
  EXPECT_EQ(unit->total_test_count(), static_cast<int>(4 * Checks().size() + 1));
}

}  // namespace
}  // namespace brivane::hostkit::test
