#include "tests/scenario/Formulier.h"

namespace brivane::tests {
namespace {

/// What an adviser's edits do to the rows and to the base value.
class Invoer : public Formulier {};

using Reeks = std::vector<double>;
using Regels = std::vector<std::string>;

TEST_F(Invoer, AmountsFillForwardWhenTicked) {
  Open(1, 5);
  Zet("txtBedrag", {10, 20, 30, 40, 50});
  Kruis("chkAanvullen");
  EXPECT_EQ(Typ("txtBedrag", 2, 300.0), controls::Outcome::Done);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{10, 300, 300, 300, 300}));
  EXPECT_TRUE(scenario->log.empty());
  EXPECT_TRUE(form->Gewijzigd());
}

TEST_F(Invoer, AmountsChangeAloneWhenNotTicked) {
  Open(1, 4);
  Zet("txtBedrag", {10, 20, 30, 40});
  EXPECT_FALSE(form->Gewijzigd());
  Typ("txtBedrag", 2, 300.0);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{10, 300, 30, 40}));
  EXPECT_TRUE(form->Gewijzigd());
}

TEST_F(Invoer, TheFirstAmountIsTheBaseValueOfEveryKindWithAmounts) {
  for (const std::int16_t soort : {std::int16_t{1}, std::int16_t{3}}) {
    Nieuw();
    Open(soort, 3);
    Typ("txtBedrag", 1, 125.5);
    EXPECT_EQ(scenario->log, (Regels{"Bedrag = 125.5"})) << soort;
    scenario->log.clear();
    Typ("txtBedrag", 2, 130.0);
    EXPECT_TRUE(scenario->log.empty()) << soort;
  }
}

TEST_F(Invoer, ABridgingLoanKeepsItsTotalTickedOrNot) {
  scenario->naam = "Overbruggingskrediet";
  Open(1, 3);
  EXPECT_EQ(Vak("txtTotaal").Number(), 0);
  Typ("txtBedrag", 2, 500.0);
  EXPECT_EQ(Vak("txtTotaal").Number(), 500);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{0, 500, 0}));
  Kruis("chkAanvullen");
  Typ("txtBedrag", 1, 100.0);
  EXPECT_EQ(Vak("txtTotaal").Number(), 300);
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 100"}));
}

TEST_F(Invoer, TheTotalCountsTheTemplateToo) {
  scenario->naam = "Overbruggingskrediet";
  Open(1, 2);
  Vak("txtBedrag", 0).SetNumber(7);
  Typ("txtBedrag", 2, 500.0);
  EXPECT_EQ(Vak("txtTotaal").Number(), 507);
}

TEST_F(Invoer, WithoutABridgingLoanTheTotalStaysEmpty) {
  Open(1, 2);
  Typ("txtBedrag", 2, 500.0);
  EXPECT_EQ(Vak("txtTotaal").Number(), 0);
}

TEST_F(Invoer, AmountsGrowByThePercentagesOfTheRows) {
  Open(3, 4);
  Zet("txtPercentage", {10, 0, 5, 0});
  Typ("txtBedrag", 1, 1000.0);
  const Reeks bedragen = Waarden("txtBedrag");
  EXPECT_DOUBLE_EQ(bedragen[1], 1100);
  EXPECT_DOUBLE_EQ(bedragen[2], 1210);
  EXPECT_DOUBLE_EQ(bedragen[3], 1270.5);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{10, 0, 5, 0}));
  EXPECT_TRUE(form->Gewijzigd());
}

TEST_F(Invoer, ALaterAmountGivesTheRowAboveItsPercentage) {
  Open(3, 4);
  Zet("txtBedrag", {200, 1, 1, 1});
  Zet("txtPercentage", {3, 100, 0, 9});
  Typ("txtBedrag", 2, 250.0);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{25, 100, 0, 9}));
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{200, 250, 500, 1000}));
}

TEST_F(Invoer, AnAmountAfterZeroDerivesNothing) {
  Open(3, 3);
  Zet("txtBedrag", {200, 0, 1});
  Zet("txtPercentage", {3, 50, 7});
  Typ("txtBedrag", 3, 250.0);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{3, 50, 7}));
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{200, 0, 250}));
}

TEST_F(Invoer, ATickedAmountOfKindThreeIsEveryLaterAmount) {
  Open(3, 4);
  Zet("txtBedrag", {200, 1, 1, 1});
  Zet("txtPercentage", {3, 50, 50, 50});
  Kruis("chkAanvullen");
  Typ("txtBedrag", 2, 100.0);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{200, 100, 100, 100}));
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{-50, 50, 50, 50}));
}

TEST_F(Invoer, APercentageOfKindThreeGrowsFromItsRow) {
  Open(3, 4);
  Zet("txtBedrag", {8, 100, 1, 1});
  Typ("txtPercentage", 2, 100.0);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{8, 100, 200, 400}));
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{0, 100, 0, 0}));
  EXPECT_TRUE(scenario->log.empty());
  EXPECT_TRUE(form->Gewijzigd());
}

TEST_F(Invoer, ATickedPercentageOfKindThreeIsCopiedDownButNotToTheLastRow) {
  Open(3, 4);
  Zet("txtBedrag", {1000, 1, 1, 1});
  Zet("txtPercentage", {0, 9, 9, 9});
  Kruis("chkAanvullen");
  Typ("txtPercentage", 1, 3.7);
  // In doubles: 1000 x 3.7 / 100 + 1000 = 1037, where single precision would make it 1037.000000476837.
  const Reeks bedragen = Waarden("txtBedrag");
  EXPECT_EQ(bedragen[1], 1037);
  EXPECT_DOUBLE_EQ(bedragen[2], 1075.369);
  EXPECT_DOUBLE_EQ(bedragen[3], 1115.157653);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{3.7, 3.7, 3.7, 9}));
}

TEST_F(Invoer, AnUntickedPercentageOfKindThreeGrowsInSinglePrecision) {
  Open(3, 2);
  Zet("txtBedrag", {1000, 1});
  Typ("txtPercentage", 1, 3.7);
  EXPECT_EQ(Waarden("txtBedrag")[1], 1000 * (3.7000000476837158203125 / 100) + 1000);
  EXPECT_GT(Waarden("txtBedrag")[1], 1037.0000004);
}

TEST_F(Invoer, ThePercentageOfTheFirstRowIsTheBaseValue) {
  Open(2, 3);
  Typ("txtPercentage", 1, 4.5);
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 4.5"}));
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{4.5, 0, 0}));
  Kruis("chkAanvullen");
  Typ("txtPercentage", 2, 5.0);
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 4.5"}));
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{4.5, 5, 5}));
  EXPECT_TRUE(form->Gewijzigd());
}

TEST_F(Invoer, EachEditOfTheFirstDiscountIsTakenOffAgain) {
  Open(2, 2, {.korting = true});
  Zet("txtKorting", {0.5, 0});
  Typ("txtPercentage", 1, 5.0);
  EXPECT_EQ(scenario->basis, 4.5);
  Nieuw();
  scenario->basis = 4.5;
  Open(2, 2, {.korting = true});
  Typ("txtKorting", 1, 0.5);
  EXPECT_EQ(scenario->basis, 4.0);
  // That is no change of the rows.
  EXPECT_FALSE(form->Gewijzigd());
  Typ("txtKorting", 1, 0.5);
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 4", "Bedrag = 3.5"}));
  Typ("txtKorting", 2, 0.5);
  EXPECT_EQ(scenario->log.size(), 2U);
  EXPECT_FALSE(form->Gewijzigd());
}

TEST_F(Invoer, ADiscountOfKindThreeCountsForNothing) {
  Open(3, 2, {.korting = true});
  Typ("txtKorting", 1, 0.5);
  EXPECT_TRUE(scenario->log.empty());
  EXPECT_FALSE(form->Gewijzigd());
}

TEST_F(Invoer, AKindThatIsNoLongerTheGridsOwnOnlyMarksTheChange) {
  Open(3, 3);
  Zet("txtBedrag", {1, 2, 3});
  scenario->invoersoort = 2;
  Typ("txtBedrag", 1, 9.0);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{9, 2, 3}));
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 9"}));
  EXPECT_TRUE(form->Gewijzigd());

  Nieuw();
  Open(3, 3);
  scenario->invoersoort = 4;
  Kruis("chkAanvullen");
  Typ("txtPercentage", 1, 9.0);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{9, 0, 0}));
  EXPECT_TRUE(form->Gewijzigd());
}

TEST_F(Invoer, ALockedRowTakesPartInFillingAndGrowth) {
  form->SetDisableJaar(2, true);
  Open(1, 3);
  Kruis("chkAanvullen");
  EXPECT_EQ(Typ("txtBedrag", 2, 1.0), controls::Outcome::Ignored);
  Typ("txtBedrag", 1, 100.0);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{100, 100, 100}));

  Nieuw();
  form->SetDisableJaar(2, true);
  Open(3, 3);
  Zet("txtPercentage", {100, 50, 0});
  Typ("txtBedrag", 1, 100.0);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{100, 200, 300}));
}

TEST_F(Invoer, TheHostIsAskedForTheKindOnceAnEdit) {
  Open(2, 2, {.korting = true});
  std::vector<std::string> toegang;
  scenario->voor = [&](const std::string& naam) { toegang.push_back(naam); };
  Typ("txtPercentage", 1, 5.0);
  EXPECT_EQ(toegang, (Regels{"Invoersoort", "Bedrag ="}));
  toegang.clear();
  Typ("txtKorting", 1, 0.5);
  EXPECT_EQ(toegang, (Regels{"Invoersoort", "Bedrag", "Bedrag ="}));
  toegang.clear();
  Typ("txtKorting", 2, 0.5);
  EXPECT_EQ(toegang, (Regels{"Invoersoort"}));

  Nieuw();
  scenario->voor = nullptr;
  Open(3, 3);
  scenario->voor = [&](const std::string& naam) { toegang.push_back(naam); };
  toegang.clear();
  Typ("txtBedrag", 1, 5.0);
  EXPECT_EQ(toegang, (Regels{"Bedrag =", "Invoersoort"}));
}

class Opname : public Formulier {
 protected:
  void OpenKrediet(double maximum, const std::vector<double>& bedragen) {
    scenario->naam = "Overbruggingskrediet";
    Open(1, static_cast<int>(bedragen.size()), {.maxOpname = maximum});
    Zet("txtBedrag", bedragen);
  }
  [[nodiscard]] bool Geweigerd(std::int32_t nummer, bool cancel = false) {
    form->Validation(cancel, nummer);
    return cancel;
  }
};

TEST_F(Opname, PastTheMaximumIsRefusedWithItsMessage) {
  OpenKrediet(25000, {10000, 10000, 6000});
  int opslagen = 0;
  const host::Subscription opslag = form->OpslagBegint.Connect([&] { ++opslagen; });
  DrukOK();
  EXPECT_EQ(opslagen, 0);
  EXPECT_EQ(berichten, (std::vector<Bericht>{{"Scenario",
                                              "Onjuiste invoer:\r\n- De som van alle opnames bedraagt maximaal € "
                                              "25.000,-.",
                                              host::MessageStyle::OkExclamation}}));
  // The form stays open with its values and stores nothing.
  EXPECT_FALSE(Venster().IsUnloaded());
  EXPECT_EQ(form->Scenario(), scenario);
  EXPECT_TRUE(scenario->log.empty());
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{10000, 10000, 6000}));
}

TEST_F(Opname, TheMaximumIsWrittenAsTheLocaleWritesIt) {
  toolkit.Desktop().groupSeparator = ",";
  OpenKrediet(1234567.5, {2000000});
  DrukOK();
  ASSERT_EQ(berichten.size(), 1U);
  EXPECT_EQ(berichten[0].tekst, "Onjuiste invoer:\r\n- De som van alle opnames bedraagt maximaal € 1,234,568,-.");
}

TEST_F(Opname, AtTheMaximumOrWithoutOneItPasses) {
  OpenKrediet(25000, {10000, 10000, 5000});
  EXPECT_FALSE(Geweigerd(1));
  Nieuw();
  OpenKrediet(0, {10000, 1e9});
  EXPECT_FALSE(Geweigerd(1));
  EXPECT_FALSE(Geweigerd(0));
  EXPECT_TRUE(berichten.empty());
}

TEST_F(Opname, WithoutAMaximumNoAmountIsRead) {
  OpenKrediet(0, {10000, 0});
  Typ("txtBedrag", 2, std::string("?"));
  berichten.clear();
  EXPECT_FALSE(Geweigerd(1));
  EXPECT_TRUE(berichten.empty());
}

TEST_F(Opname, AnyAmountIsPastANegativeMaximum) {
  OpenKrediet(-1, {0});
  EXPECT_TRUE(Geweigerd(1));
}

TEST_F(Opname, TheCompleteCheckLetsPendingEventsRunFirst) {
  OpenKrediet(100, {50, 50});
  int gelopen = 0;
  toolkit.Desktop().pending = [&] {
    ++gelopen;
    Vak("txtBedrag", 2).SetNumber(51);
  };
  EXPECT_FALSE(Geweigerd(1));
  EXPECT_EQ(gelopen, 0);
  EXPECT_TRUE(Geweigerd(0));
  EXPECT_EQ(gelopen, 1);
  EXPECT_EQ(berichten.size(), 1U);
}

TEST_F(Opname, AnotherCheckOrARefusalBeforeItAsksNothing) {
  OpenKrediet(100, {500});
  EXPECT_FALSE(Geweigerd(2));
  EXPECT_TRUE(Geweigerd(1, true));
  EXPECT_TRUE(berichten.empty());
}

TEST_F(Opname, OtherScenariosAreNotCheckedAtOK) {
  Open(1, 2, {.maxOpname = 100});
  Zet("txtBedrag", {500, 500});
  DrukOK();
  EXPECT_TRUE(berichten.empty());
  EXPECT_TRUE(Venster().IsUnloaded());

  Nieuw();
  scenario->naam = "Overbruggingskrediet";
  Open(3, 2, {.maxOpname = 100});
  Zet("txtBedrag", {500, 500});
  DrukOK();
  EXPECT_TRUE(berichten.empty());
  EXPECT_TRUE(Venster().IsUnloaded());
}

}  // namespace
}  // namespace brivane::tests
