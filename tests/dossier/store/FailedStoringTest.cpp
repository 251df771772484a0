#include <sys/resource.h>

#include <csignal>

#include "dossier/store/FileJournal.h"
#include "dossier/store/Reader.h"
#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"

// A change that cannot be stored reaches the adviser once, and the memory shows what is stored.
namespace brivane::dossier {
namespace {

using controls::Enter;
using controls::Press;
using controls::Select;
using controls::Toggle;

/// Lets no file of this process grow past a size: writing fails as on a full disk.
class VolleSchijf {
 public:
  explicit VolleSchijf(qint64 bytes) {
    vorige_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &grens_);
    rlimit laag = grens_;
    laag.rlim_cur = static_cast<rlim_t>(bytes);
    setrlimit(RLIMIT_FSIZE, &laag);
  }
  VolleSchijf(const VolleSchijf&) = delete;
  VolleSchijf& operator=(const VolleSchijf&) = delete;
  ~VolleSchijf() {
    setrlimit(RLIMIT_FSIZE, &grens_);
    std::signal(SIGXFSZ, vorige_);
  }

 private:
  rlimit grens_{};
  void (*vorige_)(int);
};

class MislukteOpslag : public testing::Test {
 protected:
  MislukteOpslag() { werk_.Bind(0, 1); }

  void SluitEnVergelijk() {
    const DossierGegevens geheugen = bestand_->Dossier()->Gegevens();
    bestand_.reset();
    EXPECT_EQ(Gelezen(pad_), geheugen);
  }
  [[nodiscard]] dossier::VrijeKolom& Kolom() { return *bestand_->Dossier()->ZoekKolom(0, 1); }
  /// Size of the log: what lies behind it cannot be written.
  [[nodiscard]] qint64 LogGrootte() const { return QFileInfo(pad_ + "-wal").size(); }

  Map map_;
  QString pad_ = map_.Maak();
  std::unique_ptr<DossierBestand> bestand_ = DossierBestand::Open(pad_);
  Werkplek werk_{*bestand_};
};

void VerwachtEenMelding(const std::vector<host::ErrorRecord>& fouten, const std::string& oorzaak) {
  ASSERT_EQ(fouten.size(), 1u);
  EXPECT_EQ(fouten[0].Caption, "Kwandero");
  EXPECT_EQ(fouten[0].Message, "Er is een fout opgetreden.");
  EXPECT_EQ(fouten[0].ErrorDescription, "De wijziging is niet opgeslagen: " + oorzaak + ".");
  EXPECT_EQ(fouten[0].ErrorSource, "Dossier");
}

TEST_F(MislukteOpslag, AnEditThatTheDiskCannotHoldIsReportedOnceAndTheMemoryShowsWhatIsStored) {
  {
    const VolleSchijf vol(LogGrootte());
    werk_.Doe("TxtOm", Enter{std::string("past niet meer")});
  }
  VerwachtEenMelding(werk_.fouten, "het bestand kan niet worden beschreven");
  EXPECT_EQ(werk_.fouten[0].ErrorNumber, "1010");
  ASSERT_EQ(werk_.mislukt.size(), 1u);
  EXPECT_EQ(werk_.mislukt[0].told, Told::Yes);
  EXPECT_EQ(Kolom().Omschrijving(), "Kinderopvang");
  // Bound anew, the screen shows it too.
  werk_.Bind(0, 1);
  EXPECT_EQ(dynamic_cast<host::TextBox&>(werk_.Control("TxtOm").Host()).Text(), "Kinderopvang");
  // With room on the disk the next edit is stored.
  werk_.Doe("TxtOm", Enter{std::string("past weer")});
  EXPECT_EQ(werk_.fouten.size(), 1u);
  SluitEnVergelijk();
}

TEST_F(MislukteOpslag, NothingOfAnEditOfSeveralChangesStays) {
  werk_.Bind(0, 5);
  dossier::VrijeKolom& kolom = *bestand_->Dossier()->ZoekKolom(0, 5);
  const KolomGegevens eerst = kolom.Gegevens();
  ASSERT_TRUE(eerst.ScenarioOverlijden);
  {
    const VolleSchijf vol(LogGrootte());
    werk_.Doe("Toelichting.jnOverlijden", Toggle{host::kNee});
  }
  VerwachtEenMelding(werk_.fouten, "het bestand kan niet worden beschreven");
  EXPECT_EQ(werk_.fouten[0].ObjectName, "Toelichting");
  EXPECT_EQ(kolom.Gegevens(), eerst);
  SluitEnVergelijk();
}

TEST_F(MislukteOpslag, TheColumnAndItsPeriodsStayTheSameObjects) {
  const auto kolom = bestand_->Dossier()->ZoekKolom(0, 1);
  const auto bedrag = kolom->Bedrag();
  const auto periode = bedrag->Periode(2);
  {
    const VolleSchijf vol(LogGrootte());
    werk_.Doe("TxtOm", Enter{std::string("past niet meer")});
  }
  EXPECT_EQ(bestand_->Dossier()->ZoekKolom(0, 1), kolom);
  EXPECT_EQ(kolom->Bedrag(), bedrag);
  EXPECT_EQ(bedrag->Periode(2), periode);
}

TEST_F(MislukteOpslag, AnOperationOfTheHostFailsAsAWhole) {
  const DossierGegevens eerst = bestand_->Dossier()->Gegevens();
  {
    const VolleSchijf vol(LogGrootte());
    EXPECT_THROW(bestand_->Dossier()->Dupliceer(0, 1), host::Error);
    EXPECT_THROW(bestand_->Dossier()->Verwijder(0, 6), host::Error);
    EXPECT_THROW(bestand_->Dossier()->Verplaats(0, 2, 1), host::Error);
    EXPECT_THROW(bestand_->Dossier()->SetClient({{.Naam = {"A", "", "B"}, .Geboortedatum = {}}}, 70), host::Error);
    EXPECT_THROW(bestand_->Dossier()->NieuweLening("x"), host::Error);
  }
  EXPECT_EQ(bestand_->Dossier()->Gegevens(), eerst);
  SluitEnVergelijk();
}

TEST_F(MislukteOpslag, TheOkOfTheScenarioFormThatCannotBeStoredLeavesThePeriodsAsTheyWere) {
  const KolomGegevens eerst = Kolom().Gegevens();
  werk_.Toolkit().modal = [&](controls::Form& form) {
    form.Find("txtBedrag", 3)->Perform(Enter{600.0});
    const VolleSchijf vol(LogGrootte());
    form.Find("cmdOK")->Perform(Press{});
  };
  werk_.Doe("cmdScenario", Press{});
  EXPECT_EQ(Kolom().Gegevens(), eerst);
  // The form has closed: the window is the one that tells.
  ASSERT_EQ(werk_.mislukt.size(), 1u);
  EXPECT_EQ(werk_.mislukt[0].told, Told::No);
  EXPECT_EQ(werk_.mislukt[0].error.Number(), 1010);
  SluitEnVergelijk();
}

TEST_F(MislukteOpslag, TheFirstRowOfTheScenarioFormThatCannotBeStoredIsToldByTheForm) {
  int meldingen = 0;
  werk_.Toolkit().Desktop().answer = [&](const std::string& titel, const std::string& tekst, host::MessageStyle) {
    ++meldingen;
    EXPECT_EQ(titel, "Kwandero");
    EXPECT_EQ(tekst,
              "Er is een fout opgetreden.\r\n1010: De wijziging is niet opgeslagen: het bestand kan niet worden "
              "beschreven.");
    return host::MessageAnswer::Ok;
  };
  werk_.Toolkit().modal = [&](controls::Form& form) {
    const VolleSchijf vol(LogGrootte());
    form.Find("txtBedrag", 1)->Perform(Enter{600.0});
  };
  werk_.Doe("cmdScenario", Press{});
  EXPECT_EQ(meldingen, 1);
  EXPECT_EQ(Kolom().Bedrag()->Bedrag(), 485.5);
  EXPECT_TRUE(werk_.fouten.empty());
  SluitEnVergelijk();
}

/// A loan file on a connection of the test's own.
struct EigenVerbinding {
  explicit EigenVerbinding(const QString& pad) : database(new Database(pad, Access::ReadWrite)) {
    GelezenDossier gelezen = LeesDossier(*database);
    journal =
        std::make_shared<FileJournal>(std::unique_ptr<Database>(database), gelezen.hoogste + 1,
                                      [this](Database& opnieuw) { dossier->Herlaad(LeesDossier(opnieuw).gegevens); });
    auto omgeving = std::make_shared<Omgeving>();
    omgeving->Journal = journal;
    dossier = std::make_shared<dossier::Dossier>(std::move(gelezen.gegevens), std::move(omgeving));
  }

  Database* database;
  std::shared_ptr<FileJournal> journal;
  std::shared_ptr<dossier::Dossier> dossier;
};

TEST(MislukteSchrijfactie, AFullFileIsReportedOnceByTheHandlerThatWrites) {
  const Map map;
  const EigenVerbinding eigen(map.Maak());
  eigen.database->Run(QStringLiteral("PRAGMA max_page_count = 1"));
  Werkplek werk(eigen.dossier, {eigen.journal, &eigen.journal->Bewerkingen()});
  werk.Bind(0, 1);
  werk.Doe("TxtOm", Enter{std::string(50000, 'x')});
  VerwachtEenMelding(werk.fouten, "de schijf is vol");
  EXPECT_EQ(werk.fouten[0].ErrorNumber, "1013");
  EXPECT_EQ(eigen.dossier->ZoekKolom(0, 1)->Omschrijving(), "Kinderopvang");
  // What needs no room is stored.
  werk.Doe("TxtOm", Enter{std::string("kort")});
  EXPECT_EQ(werk.fouten.size(), 1u);
  EXPECT_EQ(eigen.dossier->ZoekKolom(0, 1)->Omschrijving(), "kort");
}

TEST(MislukteSchrijfactie, AFileThatTurnsReadOnlyIsReportedOnceByEachHandler) {
  const Map map;
  const EigenVerbinding eigen(map.Maak());
  eigen.database->Run(QStringLiteral("PRAGMA query_only = ON"));
  Werkplek werk(eigen.dossier, {eigen.journal, &eigen.journal->Bewerkingen()});
  werk.Bind(0, 3);
  const KolomGegevens eerst = eigen.dossier->ZoekKolom(0, 3)->Gegevens();
  // Three handlers nest here: the option's, the other option's, and the toggle's. The innermost writes last.
  werk.Doe("optLast", Select{}, 1);
  VerwachtEenMelding(werk.fouten, "het bestand is alleen-lezen");
  EXPECT_EQ(eigen.dossier->ZoekKolom(0, 3)->Gegevens(), eerst);
  eigen.database->Run(QStringLiteral("PRAGMA query_only = OFF"));
  werk.Bind(0, 3);
  werk.Doe("optLast", Select{}, 1);
  EXPECT_EQ(werk.fouten.size(), 1u);
  EXPECT_EQ(eigen.dossier->ZoekKolom(0, 3)->CorrectieLast(), 1);
}

TEST(MislukteSchrijfactie, WhatCannotBeReadAgainIsChangedNoMore) {
  const Map map;
  EigenVerbinding eigen(map.Maak());
  eigen.database->Run(QStringLiteral("PRAGMA foreign_keys = ON"));
  const auto kolom = eigen.dossier->ZoekKolom(0, 1);
  // The file loses a table while it is open, and then refuses a change.
  eigen.database->Run(QStringLiteral("DROP TABLE periode"));
  EXPECT_THROW(kolom->Bedrag()->NieuwePeriode(), host::Error);
  try {
    kolom->SetOmschrijving("x");
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Description(), "De wijziging is niet opgeslagen: het dossier moet opnieuw worden geopend.");
  }
  EXPECT_EQ(kolom->Omschrijving(), "Kinderopvang");
}

}  // namespace
}  // namespace brivane::dossier
