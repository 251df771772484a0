#include "tests/scenario/Formulier.h"

namespace brivane::tests {
namespace {

/// How the list of a scenario fills the rows, and how OK writes it anew.
class LadenEnBewaren : public Formulier {
 protected:
  void Vul(std::initializer_list<PeriodeWaarden> perioden) {
    for (const PeriodeWaarden& periode : perioden) scenario->VoegToe(periode);
  }
  /// Opens the same scenario again.
  void OpenOpnieuw(std::int16_t soort, int rijen) { OpenOpnieuw(soort, rijen, Opties{}); }
  void OpenOpnieuw(std::int16_t soort, int rijen, const Opties& opties) {
    Nieuw();
    Open(soort, rijen, opties);
  }
};

using Reeks = std::vector<double>;
using Regels = std::vector<std::string>;

TEST_F(LadenEnBewaren, AScenarioWithoutEntriesFillsEveryRowWithItsBaseValue) {
  scenario->basis = 100;
  Open(1, 3);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{100, 100, 100}));
  EXPECT_EQ(Kruisen(), (std::vector<int>{0, 0, 0}));
  OpenOpnieuw(2, 3, {.korting = true});
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{100, 100, 100}));
  EXPECT_EQ(Waarden("txtKorting"), (Reeks{0, 0, 0}));
  OpenOpnieuw(3, 3);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{100, 100, 100}));
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{0, 0, 0}));
  EXPECT_FALSE(form->Gewijzigd());
}

TEST_F(LadenEnBewaren, AmountsByTheMonth) {
  scenario->basis = 100;
  form->SetSoortScenario(1);
  Open(1, 5);
  Zet("txtBedrag", {100, 100, 200, 200, 150});
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"NieuwePeriode", "1.Maand = 25", "1.Bedrag = 200", "1.Eenmalig = 0", "NieuwePeriode",
                                   "2.Maand = 49", "2.Bedrag = 150", "2.Eenmalig = 0"}));
  EXPECT_EQ(scenario->basis, 100);
  OpenOpnieuw(1, 5);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{100, 100, 200, 200, 150}));
}

TEST_F(LadenEnBewaren, AYearlyAmountFallsInTheLastMonthOfItsRow) {
  scenario->basis = 100;
  form->SetSoortScenario(2);
  Open(1, 5);
  Zet("txtBedrag", {100, 100, 200, 200, 150});
  Kruis("chkEenmalig", 3);
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"NieuwePeriode", "1.Maand = 36", "1.Bedrag = 200", "1.Eenmalig = 1",  //
                                   "NieuwePeriode", "2.Maand = 37", "2.Bedrag = 200", "2.Eenmalig = 0",  //
                                   "NieuwePeriode", "3.Maand = 49", "3.Bedrag = 150", "3.Eenmalig = 0"}));
  OpenOpnieuw(1, 5);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{100, 100, 200, 200, 150}));
  EXPECT_EQ(Kruisen(), (std::vector<int>{0, 0, 1, 0, 0}));
}

TEST_F(LadenEnBewaren, WithoutAKindOfScenarioEveryAmountCountsByTheYear) {
  EXPECT_EQ(form->SoortScenario(), 0);
  Open(1, 3);
  Zet("txtBedrag", {0, 0, 200});
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"NieuwePeriode", "1.Maand = 36", "1.Bedrag = 200", "1.Eenmalig = 0"}));
}

TEST_F(LadenEnBewaren, TheKindOfScenarioMayBeSetWhileTheFormIsOpen) {
  Open(1, 3);
  Zet("txtBedrag", {0, 0, 200});
  form->SetSoortScenario(1);
  EXPECT_EQ(form->SoortScenario(), 1);
  DrukOK();
  EXPECT_EQ(scenario->Inhoud(), (std::vector<PeriodeWaarden>{{.maand = 25, .bedrag = 200}}));
}

TEST_F(LadenEnBewaren, ABridgingLoanStoresEachAmount) {
  scenario->naam = "Overbruggingskrediet";
  scenario->basis = 75;
  Open(1, 3);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{0, 0, 0}));
  Typ("txtBedrag", 2, 500.0);
  DrukOK();
  // A tick that it does not show is not written.
  EXPECT_EQ(scenario->log, (Regels{"NieuwePeriode", "1.Maand = 24", "1.Bedrag = 500"}));
  OpenOpnieuw(1, 3);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{0, 500, 0}));
  EXPECT_EQ(Vak("txtTotaal").Number(), 500);
}

TEST_F(LadenEnBewaren, ABridgingLoanCountsAsUntickedByTheMonth) {
  scenario->naam = "Overbruggingskrediet";
  form->SetSoortScenario(2);
  Open(1, 2);
  Zet("txtBedrag", {10, 20});
  DrukOK();
  EXPECT_EQ(scenario->Inhoud(), (std::vector<PeriodeWaarden>{{.maand = 1, .bedrag = 10}, {.maand = 13, .bedrag = 20}}));
}

TEST_F(LadenEnBewaren, TheOldListIsTakenAwayFromTheFront) {
  Vul({{.maand = 13, .bedrag = 1}, {.maand = 25, .bedrag = 2}});
  Open(1, 1);
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"VerwijderPeriode 1", "VerwijderPeriode 1"}));
}

TEST_F(LadenEnBewaren, EntriesOutsideTheGridArePassedOver) {
  scenario->basis = 1;
  Vul({{.maand = 0, .bedrag = 9, .percentage = 9},
       {.maand = -3, .bedrag = 9, .percentage = 9},
       {.maand = 37, .bedrag = 9, .percentage = 9},
       {.maand = 13, .bedrag = 2, .percentage = 2}});
  Open(1, 3);
  EXPECT_EQ(Waarden("txtBedrag"), (Reeks{1, 2, 2}));
  OpenOpnieuw(2, 3);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{1, 3, 3}));
  OpenOpnieuw(3, 3);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{0, 2, 2}));
}

TEST_F(LadenEnBewaren, PercentagesAreStoredRelativeToTheFirst) {
  Open(2, 4);
  Zet("txtPercentage", {4, 4, 4.5, 3});
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 4", "NieuwePeriode", "1.Maand = 25", "1.Percentage = 0.5", "NieuwePeriode",
                                   "2.Maand = 37", "2.Percentage = -1"}));
  OpenOpnieuw(2, 4);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{4, 4, 4.5, 3}));
}

TEST_F(LadenEnBewaren, RelativePercentagesAreInSinglePrecisionAndComeBackAsEntered) {
  Open(2, 2);
  Zet("txtPercentage", {4.1, 3.7});
  DrukOK();
  // 3.7 - 4.1 = -0.3999999999999995, in single precision -0.4000000059604645.
  EXPECT_EQ(scenario->log,
            (Regels{"Bedrag = 4.1", "NieuwePeriode", "1.Maand = 13", "1.Percentage = -0.4000000059604645"}));
  OpenOpnieuw(2, 2);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{4.1, 3.7}));
}

TEST_F(LadenEnBewaren, DiscountsAreStoredBesideTheNetPercentage) {
  Open(2, 5, {.korting = true});
  Zet("txtPercentage", {5, 5, 5.5, 5.5, 5});
  Zet("txtKorting", {0.5, 0.5, 0.5, 0.75, 0});
  DrukOK();
  EXPECT_EQ(scenario->log,
            (Regels{"Bedrag = 4.5",                                                              //
                    "NieuwePeriode", "1.Maand = 1", "1.Percentage = 0", "1.Korting = 0.5",       //
                    "NieuwePeriode", "2.Maand = 25", "2.Percentage = 0.5", "2.Korting = 0.5",    //
                    "NieuwePeriode", "3.Maand = 37", "3.Percentage = 0.25", "3.Korting = 0.75",  //
                    "NieuwePeriode", "4.Maand = 49", "4.Percentage = 0.5", "4.Korting = 0"}));
  OpenOpnieuw(2, 5, {.korting = true});
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{5, 5, 5.5, 5.5, 5}));
  EXPECT_EQ(Waarden("txtKorting"), (Reeks{0.5, 0.5, 0.5, 0.75, 0}));
  // Without the column, what counts.
  OpenOpnieuw(2, 5);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{4.5, 4.5, 5, 4.75, 5}));
}

TEST_F(LadenEnBewaren, AFirstRowWithoutDiscountHasNoEntry) {
  Open(2, 2, {.korting = true});
  Zet("txtPercentage", {5, 5});
  Zet("txtKorting", {0, 0.5});
  DrukOK();
  EXPECT_EQ(scenario->log,
            (Regels{"Bedrag = 5", "NieuwePeriode", "1.Maand = 13", "1.Percentage = -0.5", "1.Korting = 0.5"}));
}

TEST_F(LadenEnBewaren, TheEntryOfTheFirstRowHasNoPercentageWhateverTheHostKeepsAsBaseValue) {
  Open(2, 2, {.korting = true});
  Zet("txtPercentage", {5, 6});
  Zet("txtKorting", {0.25, 0.25});
  scenario->voor = [this](const std::string& naam) {
    // A host that keeps its base value whole.
    if (naam == "NieuwePeriode") scenario->basis = 4;
  };
  DrukOK();
  EXPECT_EQ(scenario->Inhoud(), (std::vector<PeriodeWaarden>{{.maand = 1, .korting = 0.25},
                                                             {.maand = 13, .percentage = 1.75, .korting = 0.25}}));
}

TEST_F(LadenEnBewaren, TheBaseValueOfPercentagesIsWrittenBeforeTheEntriesAndAfterTheRemovals) {
  Vul({{.maand = 13, .percentage = 1}});
  scenario->basis = 2;
  Open(2, 2);
  DrukOK();
  EXPECT_EQ(scenario->log,
            (Regels{"VerwijderPeriode 1", "Bedrag = 2", "NieuwePeriode", "1.Maand = 13", "1.Percentage = 1"}));
}

TEST_F(LadenEnBewaren, AmountsThatGrowAreStoredAsTheFirstAndThePercentages) {
  Open(3, 5);
  Zet("txtPercentage", {0, 10, 10, -5, 0});
  Typ("txtBedrag", 1, 1000.0);
  scenario->log.clear();
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 1000",                                       //
                                   "NieuwePeriode", "1.Maand = 13", "1.Percentage = 10",  //
                                   "NieuwePeriode", "2.Maand = 37", "2.Percentage = -5",  //
                                   "NieuwePeriode", "3.Maand = 49", "3.Percentage = 0"}));
  OpenOpnieuw(3, 5);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{0, 10, 10, -5, 0}));
  const Reeks bedragen = Waarden("txtBedrag");
  EXPECT_EQ(bedragen[1], 1000);
  EXPECT_DOUBLE_EQ(bedragen[2], 1100);
  EXPECT_DOUBLE_EQ(bedragen[3], 1210);
  // -5 % is not positive: the last 10 % goes on.
  EXPECT_DOUBLE_EQ(bedragen[4], 1331);
}

TEST_F(LadenEnBewaren, AFirstPercentageOtherThanZeroIsStored) {
  Open(3, 2);
  Zet("txtPercentage", {3.7, 3.7});
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 0", "NieuwePeriode", "1.Maand = 1", "1.Percentage = 3.700000047683716"}));
  OpenOpnieuw(3, 2);
  EXPECT_EQ(Waarden("txtPercentage"), (Reeks{3.7, 3.7}));
}

TEST_F(LadenEnBewaren, ADerivedPercentageKeepsWhatSinglePrecisionHeldOfIt) {
  Open(3, 2);
  Zet("txtBedrag", {300, 0});
  Typ("txtBedrag", 2, 400.0);
  EXPECT_EQ(Waarden("txtPercentage")[0], 33.333333333333336);
  DrukOK();
  const Reeks een{static_cast<double>(100.0F / 3.0F), 0};
  OpenOpnieuw(3, 2);
  EXPECT_EQ(Waarden("txtPercentage"), een);
  DrukOK();
  OpenOpnieuw(3, 2);
  EXPECT_EQ(Waarden("txtPercentage"), een);
}

TEST_F(LadenEnBewaren, ADiscountOfKindThreeIsNeitherStoredNorLoaded) {
  Vul({{.maand = 1, .percentage = 2, .korting = 0.5}});
  scenario->basis = 100;
  Open(3, 2, {.korting = true});
  EXPECT_EQ(Waarden("txtKorting"), (Reeks{0, 0}));
  Zet("txtKorting", {1, 2});
  DrukOK();
  EXPECT_EQ(scenario->log,
            (Regels{"VerwijderPeriode 1", "Bedrag = 100", "NieuwePeriode", "1.Maand = 1", "1.Percentage = 2"}));
}

TEST_F(LadenEnBewaren, AnUnknownKindLoadsAndStoresNothing) {
  Vul({{.maand = 13, .bedrag = 9}});
  scenario->basis = 5;
  Open(4, 2);
  DrukOK();
  EXPECT_TRUE(scenario->log.empty());
  EXPECT_EQ(scenario->Inhoud(), (std::vector<PeriodeWaarden>{{.maand = 13, .bedrag = 9}}));
  EXPECT_TRUE(Venster().IsUnloaded());
  EXPECT_TRUE(berichten.empty());
}

TEST_F(LadenEnBewaren, TheCloseBoxStoresNoRows) {
  scenario->basis = 100;
  Open(1, 2);
  Typ("txtBedrag", 1, 150.0);
  Typ("txtBedrag", 2, 200.0);
  Venster().Perform(controls::Close{});
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 150"}));
  EXPECT_TRUE(scenario->perioden.empty());
}

TEST_F(LadenEnBewaren, TheHostIsReadInOrderWhenTheFormFills) {
  Vul({{.maand = 13, .bedrag = 1}, {.maand = 0}});
  std::vector<std::string> toegang;
  scenario->voor = [&](const std::string& naam) { toegang.push_back(naam); };
  Open(1, 2);
  EXPECT_EQ(toegang, (Regels{"Naam", "Invoersoort", "Naam", "Bedrag", "Periode", "Periode.Maand", "Periode.Bedrag",
                             "Periode.Eenmalig", "Periode", "Periode.Maand", "Periode"}));
  toegang.clear();
  OpenOpnieuw(3, 2);
  EXPECT_EQ(toegang, (Regels{"Naam", "Invoersoort", "Naam", "Periode", "Periode.Maand", "Periode.Percentage", "Periode",
                             "Periode.Maand", "Periode", "Bedrag"}));
}

TEST_F(LadenEnBewaren, TheHostIsWrittenInOrderWhenTheFormStores) {
  Vul({{.maand = 13, .bedrag = 1}});
  Open(1, 2);
  std::vector<std::string> toegang;
  scenario->voor = [&](const std::string& naam) { toegang.push_back(naam); };
  DrukOK();
  EXPECT_EQ(toegang, (Regels{"Invoersoort", "Periode", "VerwijderPeriode", "Periode", "NieuwePeriode", "Periode",
                             "Periode.Maand =", "Periode.Bedrag =", "Periode.Eenmalig ="}));
}

TEST_F(LadenEnBewaren, ARowThatCannotBeReadStopsStoringWhereItStands) {
  Open(1, 4);
  Zet("txtBedrag", {1, 2, 2, 5});
  Typ("txtBedrag", 3, std::string("veel"));
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"NieuwePeriode", "1.Maand = 24", "1.Bedrag = 2", "1.Eenmalig = 0"}));
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(13, "Type mismatch")}));
  EXPECT_FALSE(Venster().IsUnloaded());
}

TEST_F(LadenEnBewaren, ADiscountThatCannotBeReadLeavesItsEntryWithTheMonthAlone) {
  Open(2, 2, {.korting = true});
  Zet("txtPercentage", {5, 6});
  Typ("txtKorting", 2, std::string("half"));
  scenario->log.clear();
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 5", "NieuwePeriode", "1.Maand = 13"}));
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(13, "Type mismatch")}));
}

TEST_F(LadenEnBewaren, APercentageThatSinglePrecisionCannotHoldOverflows) {
  Open(3, 1);
  Zet("txtPercentage", {1e300});
  DrukOK();
  EXPECT_EQ(scenario->log, (Regels{"Bedrag = 0", "NieuwePeriode", "1.Maand = 1"}));
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(6, "Overflow")}));
}

}  // namespace
}  // namespace brivane::tests
