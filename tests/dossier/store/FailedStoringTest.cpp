#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Shelf.h"

// A change that cannot be stored reaches the adviser once, and the memory shows what is stored.
namespace brivane::dossier {
namespace {

using controls::Enter;
using controls::Press;
using controls::Toggle;

class FailedStoringTest : public EveryStoreTest {
 protected:
  FailedStoringTest() { desk_.Bind(0, 1); }

  void CloseAndCompare() {
    const DossierGegevens inMemory = file_->Dossier()->Gegevens();
    file_.reset();
    EXPECT_EQ(ReadBack(path_), inMemory);
  }
  [[nodiscard]] dossier::VrijeKolom& Kolom() { return *file_->Dossier()->FindKolom(0, 1); }

  QString path_ = shelf_->Make();
  std::unique_ptr<DossierStore> file_ = shelf_->Open(path_);
  Desk desk_{*file_};
};

void ExpectOneReport(const std::vector<host::ErrorRecord>& reports, const std::string& cause) {
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].Caption, "Kwandero");
  EXPECT_EQ(reports[0].Message, "Er is een fout opgetreden.");
  EXPECT_EQ(reports[0].ErrorDescription, "De wijziging is niet opgeslagen: " + cause + ".");
  EXPECT_EQ(reports[0].ErrorSource, "Dossier");
}

TEST_F(FailedStoringTest, AnEditThatTheDiskCannotHoldIsReportedOnceAndTheMemoryShowsWhatIsStored) {
  {
    const auto full = shelf_->TakeRoom(path_);
    desk_.Do("TxtOm", Enter{std::string("past niet meer")});
  }
  ExpectOneReport(desk_.reports, shelf_->Cause());
  EXPECT_EQ(desk_.reports[0].ErrorNumber, std::to_string(shelf_->Number()));
  ASSERT_EQ(desk_.failed.size(), 1u);
  EXPECT_EQ(desk_.failed[0].told, Told::Yes);
  EXPECT_EQ(Kolom().Omschrijving(), "Kinderopvang");
  // Bound anew, the screen shows it too.
  desk_.Bind(0, 1);
  EXPECT_EQ(dynamic_cast<host::TextBox&>(desk_.Control("TxtOm").Host()).Text(), "Kinderopvang");
  // With room on the disk the next edit is stored.
  desk_.Do("TxtOm", Enter{std::string("past weer")});
  EXPECT_EQ(desk_.reports.size(), 1u);
  CloseAndCompare();
}

TEST_F(FailedStoringTest, NothingOfAnEditOfSeveralChangesStays) {
  desk_.Bind(0, 5);
  dossier::VrijeKolom& kolom = *file_->Dossier()->FindKolom(0, 5);
  const KolomGegevens before = kolom.Gegevens();
  ASSERT_TRUE(before.ScenarioOverlijden);
  {
    const auto full = shelf_->TakeRoom(path_);
    desk_.Do("Toelichting.jnOverlijden", Toggle{host::kNee});
  }
  ExpectOneReport(desk_.reports, shelf_->Cause());
  EXPECT_EQ(desk_.reports[0].ObjectName, "Toelichting");
  EXPECT_EQ(kolom.Gegevens(), before);
  CloseAndCompare();
}

TEST_F(FailedStoringTest, TheColumnAndItsPeriodsStayTheSameObjects) {
  const auto kolom = file_->Dossier()->FindKolom(0, 1);
  const auto bedrag = kolom->Bedrag();
  const auto periode = bedrag->Periode(2);
  {
    const auto full = shelf_->TakeRoom(path_);
    desk_.Do("TxtOm", Enter{std::string("past niet meer")});
  }
  EXPECT_EQ(file_->Dossier()->FindKolom(0, 1), kolom);
  EXPECT_EQ(kolom->Bedrag(), bedrag);
  EXPECT_EQ(bedrag->Periode(2), periode);
}

TEST_F(FailedStoringTest, AnOperationOfTheHostFailsAsAWhole) {
  const DossierGegevens before = file_->Dossier()->Gegevens();
  {
    const auto full = shelf_->TakeRoom(path_);
    EXPECT_THROW(file_->Dossier()->Dupliceer(0, 1), host::Error);
    EXPECT_THROW(file_->Dossier()->Verwijder(0, 6), host::Error);
    EXPECT_THROW(file_->Dossier()->Verplaats(0, 2, 1), host::Error);
    EXPECT_THROW(file_->Dossier()->SetClient({{.Naam = {"A", "", "B"}, .Geboortedatum = {}}}, 70), host::Error);
    EXPECT_THROW(file_->Dossier()->NieuweLening("x"), host::Error);
  }
  EXPECT_EQ(file_->Dossier()->Gegevens(), before);
  CloseAndCompare();
}

TEST_F(FailedStoringTest, TheOkOfTheScenarioFormThatCannotBeStoredLeavesThePeriodsAsTheyWere) {
  const KolomGegevens before = Kolom().Gegevens();
  desk_.Toolkit().modal = [&](controls::Form& form) {
    form.Find("txtBedrag", 3)->Perform(Enter{600.0});
    const auto full = shelf_->TakeRoom(path_);
    form.Find("cmdOK")->Perform(Press{});
  };
  desk_.Do("cmdScenario", Press{});
  EXPECT_EQ(Kolom().Gegevens(), before);
  // The form has closed: the window is the one that tells.
  ASSERT_EQ(desk_.failed.size(), 1u);
  EXPECT_EQ(desk_.failed[0].told, Told::No);
  EXPECT_EQ(desk_.failed[0].error.Number(), shelf_->Number());
  CloseAndCompare();
}

TEST_F(FailedStoringTest, TheFirstRowOfTheScenarioFormThatCannotBeStoredIsToldByTheForm) {
  int messages = 0;
  desk_.Toolkit().Desktop().answer = [&](const std::string& title, const std::string& text, host::MessageStyle) {
    ++messages;
    EXPECT_EQ(title, "Kwandero");
    EXPECT_EQ(text, "Er is een fout opgetreden.\r\n" + std::to_string(shelf_->Number()) +
                        ": De wijziging is niet opgeslagen: " + shelf_->Cause() + ".");
    return host::MessageAnswer::Ok;
  };
  desk_.Toolkit().modal = [&](controls::Form& form) {
    const auto full = shelf_->TakeRoom(path_);
    form.Find("txtBedrag", 1)->Perform(Enter{600.0});
  };
  desk_.Do("cmdScenario", Press{});
  EXPECT_EQ(messages, 1);
  EXPECT_EQ(Kolom().Bedrag()->Bedrag(), 485.5);
  EXPECT_TRUE(desk_.reports.empty());
  CloseAndCompare();
}

}  // namespace
}  // namespace brivane::dossier
