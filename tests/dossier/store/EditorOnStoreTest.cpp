#include <functional>

#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Shelf.h"

// The real editor on every store: what an adviser accepts is stored before the handler returns.
namespace brivane::dossier {
namespace {

using controls::Choose;
using controls::Enter;
using controls::Outcome;
using controls::Press;
using controls::Select;
using controls::Tick;
using controls::Toggle;

host::Date DateOf(int day, int month, int year) { return frame::MakeDate({.year = year, .month = month, .day = day}); }

class EditorOnStoreTest : public EveryStoreTest {
 protected:
  EditorOnStoreTest() { desk_.Bind(0, 1); }

  /// What is stored at this moment, for somebody else.
  [[nodiscard]] DossierGegevens OnDisk() { return ReadBack(name_); }
  [[nodiscard]] KolomGegevens KolomOnDisk(std::int16_t Vrij_Id) {
    for (const KolomGegevens& kolom : OnDisk().HuidigeLening.VrijeKolommen) {
      if (kolom.Id == Vrij_Id) return kolom;
    }
    ADD_FAILURE() << "no column " << Vrij_Id;
    return {};
  }
  /// Runs an action and answers how many transactions it took.
  int TransactionsOf(const std::function<void()>& action) {
    const int before = shelf_->Transactions(name_);
    action();
    return shelf_->Transactions(name_) - before;
  }

  QString name_ = shelf_->Make();
  std::unique_ptr<DossierStore> store_ = shelf_->Open(name_);
  Desk desk_{*store_};
};

TEST_F(EditorOnStoreTest, BindingStoresNothing) {
  EXPECT_EQ(TransactionsOf([&] {
              for (const std::int16_t id : {1, 2, 3, 4, 5, 6}) desk_.Bind(0, id);
            }),
            0);
  EXPECT_TRUE(desk_.reports.empty());
}

TEST_F(EditorOnStoreTest, EachAcceptedEditIsOneTransaction) {
  desk_.Bind(0, 3);
  const auto act = [&](std::string_view name, const controls::Action& action, int index = frame::kNoIndex) {
    SCOPED_TRACE(name);
    EXPECT_EQ(TransactionsOf([&] { EXPECT_EQ(desk_.Do(name, action, index), Outcome::Done); }), 1);
  };
  act("TxtOm", Enter{std::string("Pianolessen")});
  act("TxtBd", Enter{412.75});
  act("TxtDtAanvang", Enter{DateOf(1, 5, 2025)});
  act("TxtAnJaar", Enter{4.0});
  act("TxtDtEind", Enter{DateOf(1, 8, 2030)});
  act("jnInDagloon", Toggle{host::kJa});
  // Writes InkomenUitArbeid, and through the other toggle InDagloon.
  act("jnInkUitArbeid", Toggle{host::kNee});
  // Writes the flag and the three values of the transition.
  act("Toelichting.jnOverlijden", Toggle{host::kJa});
  // Writes CorrectieLast, and through the other group CorrectieFiscaal.
  act("optLast", Select{}, 1);
  act("optAanvrager", Select{}, 1);
  // Writes IsProduct, UwBemiddeling and, while it fills, Productsoort.
  EXPECT_LE(TransactionsOf([&] { desk_.Do("chkProduct", Tick{1}); }), 1);
  act("cboProductsoort", Choose{2});
  act("cboMaatschappij", Choose{1});
  act("txtProductnaam", Enter{std::string("Zaterdag")});
  act("txtVervaldatum", Enter{DateOf(31, 12, 2029)});

  const KolomGegevens kolom = KolomOnDisk(3);
  EXPECT_EQ(kolom.Omschrijving, "Pianolessen");
  EXPECT_EQ(kolom.Bedrag.Bedrag, 412.75);
  EXPECT_EQ(kolom.DatumAanvang, DateOf(1, 5, 2025));
  EXPECT_EQ(kolom.InkomenUitArbeid, false);
  EXPECT_EQ(kolom.InDagloon, false);
  EXPECT_EQ(kolom.ScenarioOverlijden, true);
  EXPECT_EQ(kolom.CorrectieLast, 1);
  EXPECT_EQ(kolom.CorrectieFiscaal, 1);
  EXPECT_EQ(kolom.HeffingBij, 1);
  EXPECT_EQ(kolom.IsProduct, true);
  EXPECT_EQ(kolom.UwBemiddeling, true);
  EXPECT_EQ(kolom.Productsoort, 44);
  EXPECT_EQ(kolom.Looptijd, 999);
  EXPECT_EQ(kolom.Maatschappij, "BV");
  EXPECT_EQ(kolom.Productnaam, "Zaterdag");
  EXPECT_EQ(kolom.Contractvervaldatum, DateOf(31, 12, 2029));
  EXPECT_EQ(store_->Dossier()->FindKolom(0, 3)->Gegevens(), kolom);
  EXPECT_TRUE(desk_.reports.empty());
}

TEST_F(EditorOnStoreTest, ARefusedEditStoresNothing) {
  EXPECT_EQ(TransactionsOf([&] { EXPECT_EQ(desk_.Do("TxtDtAanvang", Enter{}), Outcome::Refused); }), 0);
  EXPECT_EQ(KolomOnDisk(1).DatumAanvang, DateOf(1, 9, 2024));
}

TEST_F(EditorOnStoreTest, AHandlerThatFailsKeepsWhatItWrote) {
  // The start date is written; the end date, 96 months later, would lie past the year 9999.
  EXPECT_EQ(TransactionsOf([&] { desk_.Do("TxtDtAanvang", Enter{DateOf(1, 12, 9999)}); }), 1);
  ASSERT_EQ(desk_.reports.size(), 1u);
  EXPECT_EQ(desk_.reports[0].ErrorNumber, "6");
  EXPECT_EQ(desk_.reports[0].ObjectName, "VrijeKolom");
  EXPECT_EQ(KolomOnDisk(1).DatumAanvang, DateOf(1, 12, 9999));
  EXPECT_TRUE(desk_.failed.empty());
  EXPECT_EQ(TransactionsOf([&] { desk_.Do("TxtOm", Enter{std::string("daarna")}); }), 1);
}

TEST_F(EditorOnStoreTest, ChoosingOneOffEmptiesTheScenarioInTheSameTransaction) {
  EXPECT_EQ(KolomOnDisk(1).Bedrag.Perioden.size(), 2u);
  EXPECT_EQ(TransactionsOf([&] { desk_.Do("cboTermijn", Choose{4}); }), 1);
  const KolomGegevens kolom = KolomOnDisk(1);
  EXPECT_EQ(kolom.Termijn, 99);
  EXPECT_EQ(kolom.Looptijd, 0);
  EXPECT_TRUE(kolom.Bedrag.Perioden.empty());
}

TEST_F(EditorOnStoreTest, TickingAProposalRegistersTheColumnInTheSameTransaction) {
  desk_.Editor().SetBeeindigenZichtbaar(true);
  EXPECT_EQ(TransactionsOf([&] { desk_.Do("ChkVoorstel", Tick{1}, 2); }), 1);
  EXPECT_TRUE(OnDisk().Voorstellen[1].contains(1));
  EXPECT_EQ(KolomOnDisk(1).Voorstel[1], "J");
  EXPECT_EQ(TransactionsOf([&] { desk_.Do("ChkVoorstel", Tick{0}, 2); }), 1);
  EXPECT_FALSE(OnDisk().Voorstellen[1].contains(1));
  EXPECT_EQ(KolomOnDisk(1).Voorstel[1], "N");
}

TEST_F(EditorOnStoreTest, TheYesToCarryOverIsStoredWithTheVersionsThatItRemoves) {
  store_->Dossier()->MakeAfwijking(1, 2);
  store_->Dossier()->VoegToeAanVoorstel(3, 1);
  desk_.Do("TxtOm", Enter{std::string("Buitenschoolse opvang")});
  desk_.Toolkit().Desktop().answer = [](const auto&...) { return host::MessageAnswer::Yes; };
  bool cancel = false;
  EXPECT_EQ(TransactionsOf([&] { desk_.Editor().Validation(cancel); }), 1);
  EXPECT_FALSE(cancel);
  const DossierGegevens dossier = OnDisk();
  for (const LeningGegevens& lening : dossier.Leningen) {
    for (const KolomGegevens& kolom : lening.VrijeKolommen) EXPECT_NE(kolom.Id, 1) << lening.Naam;
  }
  EXPECT_FALSE(dossier.Voorstellen[2].contains(1));
  // The new situation now takes over the column as it was changed.
  const auto following = store_->Dossier()->VolgtHuidigeSituatie();
  EXPECT_TRUE(std::any_of(following.begin(), following.end(),
                          [](const auto& kolom) { return kolom->Omschrijving() == "Buitenschoolse opvang"; }));
}

TEST_F(EditorOnStoreTest, AnEditThatWaitsInTheQueueIsStoredBeforeTheCheckThatLetItRunGoesOn) {
  desk_.Bind(0, 5);
  // The check of the explanation lets a waiting edit run, and then refuses.
  desk_.Toolkit().Desktop().pending = [&] { desk_.Do("TxtBd", Enter{7000.0}); };
  desk_.Do("Toelichting.TxtPcOvergang", Enter{0.5});
  int transactionsAtTheMessage = -1;
  const int before = shelf_->Transactions(name_);
  desk_.Toolkit().Desktop().today = DateOf(1, 1, 2050);
  desk_.Toolkit().Desktop().answer = [&](const auto&...) {
    transactionsAtTheMessage = shelf_->Transactions(name_) - before;
    return host::MessageAnswer::Ok;
  };
  bool cancel = false;
  desk_.Editor().Toelichting().Validation(cancel);
  EXPECT_TRUE(cancel);
  EXPECT_EQ(transactionsAtTheMessage, 1);
}

TEST_F(EditorOnStoreTest, TheScenarioFormStoresTheFirstRowAtOnceAndThePeriodsWithItsOk) {
  desk_.Toolkit().modal = [&](controls::Form& form) {
    EXPECT_EQ(TransactionsOf([&] { form.Find("txtBedrag", 1)->Perform(Enter{500.0}); }), 1);
    EXPECT_EQ(KolomOnDisk(1).Bedrag.Bedrag, 500);
    EXPECT_EQ(TransactionsOf([&] { form.Find("txtBedrag", 3)->Perform(Enter{600.0}); }), 0);
    EXPECT_EQ(KolomOnDisk(1).Bedrag.Perioden.size(), 2u);
    EXPECT_EQ(TransactionsOf([&] { form.Find("cmdOK")->Perform(Press{}); }), 1);
    EXPECT_EQ(store_->Dossier()->FindKolom(0, 1)->Gegevens(), KolomOnDisk(1));
  };
  EXPECT_EQ(desk_.Do("cmdScenario", Press{}), Outcome::Done);
  const KolomGegevens kolom = KolomOnDisk(1);
  EXPECT_EQ(kolom.Bedrag.Bedrag, 500);
  // The rows were 485.50, 485.50, 310, 310, 165 and so on; rows 1 and 3 were retyped.
  std::vector<std::pair<int, double>> perioden;
  for (const PeriodeGegevens& periode : kolom.Bedrag.Perioden) perioden.emplace_back(periode.Maand, periode.Bedrag);
  EXPECT_EQ(perioden, (std::vector<std::pair<int, double>>{{24, 485.5}, {36, 600}, {48, 310}, {60, 165}}));
  EXPECT_TRUE(desk_.reports.empty());
}

TEST_F(EditorOnStoreTest, AnOkOfTheScenarioFormThatFailsHalfwayEndsItsTransactionBeforeItTells) {
  int messages = 0;
  desk_.Toolkit().Desktop().answer = [&](const std::string&, const std::string&, host::MessageStyle) {
    ++messages;
    // Nothing is undone: the list was emptied before the third row could not be read.
    EXPECT_EQ(KolomOnDisk(1).Bedrag.Perioden, store_->Dossier()->FindKolom(0, 1)->Gegevens().Bedrag.Perioden);
    EXPECT_NE(KolomOnDisk(1).Bedrag.Perioden.size(), 2u);
    return host::MessageAnswer::Ok;
  };
  desk_.Toolkit().modal = [&](controls::Form& form) {
    form.Find("txtBedrag", 3)->Perform(Enter{std::string("drie")});
    EXPECT_EQ(TransactionsOf([&] { form.Find("cmdOK")->Perform(Press{}); }), 1);
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_EQ(TransactionsOf([&] { form.Find("txtBedrag", 1)->Perform(Enter{700.0}); }), 1);
    EXPECT_EQ(KolomOnDisk(1).Bedrag.Bedrag, 700);
    form.Find("txtBedrag", 3)->Perform(Enter{600.0});
    EXPECT_EQ(TransactionsOf([&] { form.Find("cmdOK")->Perform(Press{}); }), 1);
    EXPECT_TRUE(form.IsUnloaded());
  };
  EXPECT_EQ(desk_.Do("cmdScenario", Press{}), Outcome::Done);
  EXPECT_EQ(messages, 1);
  EXPECT_EQ(store_->Dossier()->FindKolom(0, 1)->Gegevens(), KolomOnDisk(1));
}

TEST_F(EditorOnStoreTest, AScenarioFormThatIsClosedLeavesThePeriodsAsTheyWere) {
  const std::vector<PeriodeGegevens> before = KolomOnDisk(1).Bedrag.Perioden;
  desk_.Toolkit().modal = [&](controls::Form& form) { form.Find("txtBedrag", 3)->Perform(Enter{600.0}); };
  EXPECT_EQ(TransactionsOf([&] { desk_.Do("cmdScenario", Press{}); }), 0);
  EXPECT_EQ(KolomOnDisk(1).Bedrag.Perioden, before);
}

}  // namespace
}  // namespace brivane::dossier
