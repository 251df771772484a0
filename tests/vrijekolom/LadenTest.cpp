// Binding the editor to a free column and filling it.

#include <array>

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using namespace vrijekolom;

class LoadingTest : public EditorTest {};

TEST_F(LoadingTest, ReadsEveryFieldInOrder) {
  kolom_.velden.DatumAanvang = D(2024, 1, 31);
  kolom_.velden.Looptijd = 30;
  kolom_.velden.Termijn = 12;
  kolom_.velden.Omschrijving = "Schaakclub";
  kolom_.bedrag->bedrag = 12.5;
  host_.calls.reads = true;
  Bind();
  EXPECT_THAT(
      Log(),
      ElementsAreArray(Join({
          {"enter SetApplication", "get HuidigeLening", "get Lening(0)", "get Lening(0).VrijeKolommen(1)"},
          {"enter Fill_Controls", "get CorrectieLast=1", "get CorrectieFiscaal=1"},
          {"enter Check_FraFiscaal", "leave"},
          {"enter Fill_fraAlgemeen", "get Productsoort=0", "get DatumAanvang=2024-1-31"},
          {"get Looptijd=30", "get DatumAanvang=2024-1-31", "get DatumAanvang=2024-1-31", "get Looptijd=30"},
          {"get Termijn=12", "get DatumAanvang=2024-1-31"},
          {"get Looptijd=30", "get Termijn=12", "get Looptijd=30", "get Termijn=12"},
          {"get Voorstel(1)=\"\"", "get Voorstel(2)=\"\"", "get Voorstel(3)=\"\"", "leave"},
          {"get Omschrijving=\"Schaakclub\"", "get Basisbedrag=12.5", "get Termijn=12"},
          {"get Termijn=12", "get Termijn=12", "get Termijn=12", "get Termijn=12"},  // the entries up to "per jaar"
          {"get CorrectieFiscaal=1", "get InkomenUitArbeid=false", "get InDagloon=false", "get HeffingBij=1"},
          {"enter Fill_Product", "get IsProduct=false", "get IsProduct=false", "leave"},
          {"enter Toelichting.SetApplication", "get Lening(0).VrijeKolom(1)", "enter Toelichting.Show_Keuze"},
          {"get CorrectieFiscaal=1", "get CorrectieLast=1", "leave Toelichting", "enter Toelichting.Fill_Controls"},
          {"get UitsluitenLangleven=false", "get UitsluitenAO=false", "get UitsluitenWW=false"},
          {"get ScenarioOverlijden=false", "get PercentageOvergang=0", "get EinddatumOvergang=0"},
          {"get EindleeftijdOvergang=0", "leave Toelichting", "leave Toelichting", "leave"},
          {"event HeightChanged", "leave"},
      })));
  EXPECT_FALSE(editor_->Filling());
}

TEST_F(LoadingTest, AsksForBothLoansWhicheverItNeeds) {
  host_.VoegLening({4});
  host_.VoegLening({5});
  host_.calls.reads = true;
  Bind(2, 5);
  Lines log = Log();
  log.resize(4);
  EXPECT_THAT(
      log, ElementsAre("enter SetApplication", "get HuidigeLening", "get Lening(2)", "get Lening(2).VrijeKolommen(5)"));
  EXPECT_EQ(editor_->Item()->Id(), 5);
}

TEST_F(LoadingTest, ShowsTheCorrectionsAndThePerson) {
  for (std::int16_t last = 1; last <= 3; ++last)
    for (std::int16_t fiscaal = 1; fiscaal <= 3; ++fiscaal) {
      kolom_.velden.CorrectieLast = last;
      kolom_.velden.CorrectieFiscaal = fiscaal;
      Bind();
      EXPECT_TRUE(on_(optLast, last).Value());
      EXPECT_TRUE(on_(optFiscaal, fiscaal).Value()) << "also where the burden does not allow it";
    }
  kolom_.velden.HeffingBij = 2;
  Bind();
  EXPECT_TRUE(on_(optAanvrager, 2).Value());
  EXPECT_FALSE(on_(optAanvrager, 1).Value());
}

TEST_F(LoadingTest, SelectsTheTermByItsCode) {
  struct Case {
    std::int16_t termijn;
    int index;
  };
  for (const Case& c : {Case{1, 0}, Case{3, 1}, Case{6, 2}, Case{12, 3}, Case{99, 4}, Case{2, -1}, Case{0, -1}}) {
    kolom_.velden.Termijn = c.termijn;
    Bind();
    EXPECT_EQ(on_[cboTermijn].ListIndex(), c.index) << c.termijn;
    EXPECT_THAT(Only(Log(), "report"), IsEmpty());
  }
}

TEST_F(LoadingTest, DisablesWhatAOneOffColumnHasNot) {
  kolom_.velden.DatumAanvang = D(2024, 1, 1);
  kolom_.velden.Termijn = 99;
  Bind();
  EXPECT_EQ(on_[cboTermijn].Text(), "eenmalig");
  EXPECT_FALSE(on_[cmdScenario].Enabled());
  EXPECT_FALSE(on_[TxtDtEind].Enabled());
  EXPECT_FALSE(on_[TxtAnJaar].Enabled());
  EXPECT_FALSE(on_[TxtAnMaand].Enabled());
  kolom_.velden.Termijn = 12;
  Bind();
  EXPECT_TRUE(on_[cmdScenario].Enabled());
  EXPECT_TRUE(on_[TxtDtEind].Enabled());
  EXPECT_TRUE(on_[TxtAnJaar].Enabled());
  EXPECT_TRUE(on_[TxtAnMaand].Enabled());
}

TEST_F(LoadingTest, ShowsTheDurationInYearsMonthsAndAnEndDate) {
  kolom_.velden.DatumAanvang = D(2024, 1, 31);
  kolom_.velden.Looptijd = 30;
  Bind();
  EXPECT_EQ(on_[TxtDtAanvang].DateValue(), D(2024, 1, 31));
  EXPECT_EQ(on_[TxtAnJaar].Number(), 2);
  EXPECT_EQ(on_[TxtAnMaand].Number(), 6);
  EXPECT_EQ(on_[TxtDtEind].DateValue(), D(2026, 7, 31));

  kolom_.velden.DatumAanvang = host::kNoDate;
  Bind();
  EXPECT_EQ(on_[TxtAnJaar].Number(), 2);
  EXPECT_EQ(on_[TxtDtEind].DateValue(), host::kNoDate);
  EXPECT_FALSE(on_[TxtDtEind].Enabled()) << "no start date";

  kolom_.velden.DatumAanvang = D(2024, 1, 31);
  kolom_.velden.Looptijd = 0;
  Bind();
  EXPECT_EQ(on_[TxtDtEind].DateValue(), host::kNoDate);
  EXPECT_TRUE(on_[TxtDtEind].Enabled());
}

TEST_F(LoadingTest, ShowsTheExpiryDateOfAContractAlone) {
  kolom_.velden.Contractvervaldatum = D(2030, 5, 6);
  Bind();
  EXPECT_EQ(on_[txtVervaldatum].DateValue(), host::kNoDate) << "not a contract";
  kolom_.velden.Productsoort = 44;
  Bind();
  EXPECT_EQ(on_[txtVervaldatum].DateValue(), D(2030, 5, 6));
}

TEST_F(LoadingTest, LeavesTheDurationBoxesOfAContractAsTheyAre) {
  on_[TxtAnJaar].SetNumber(7);
  on_[TxtDtEind].SetDate(D(2020, 1, 1));
  kolom_.velden.Productsoort = 44;
  kolom_.velden.Looptijd = 24;
  kolom_.velden.Termijn = 99;
  Bind();
  EXPECT_EQ(on_[TxtAnJaar].Number(), 7);
  EXPECT_EQ(on_[TxtDtEind].DateValue(), D(2020, 1, 1));
  EXPECT_TRUE(on_[TxtAnJaar].Enabled());
}

TEST_F(LoadingTest, SwitchesFramesAndCaptionWithTheContractKinds) {
  struct Case {
    std::int16_t soort;
    bool contract;
  };
  for (const Case& c : {Case{0, false}, Case{41, false}, Case{42, true}, Case{43, true}, Case{44, true}, Case{45, true},
                        Case{46, false}, Case{99, false}}) {
    kolom_.velden.Productsoort = c.soort;
    Bind();
    EXPECT_EQ(on_[fraVervaldatum].Visible(), c.contract) << c.soort;
    EXPECT_EQ(on_[fraLooptijd].Visible(), !c.contract) << c.soort;
    EXPECT_EQ(on_[fraHeffing].Caption(), c.contract ? "Contractant" : "Heffing bij") << c.soort;
  }
}

TEST_F(LoadingTest, NamesThePersons) {
  Bind();
  EXPECT_EQ(on_(optAanvrager, 1).Caption(), "J. van Dam");
  EXPECT_EQ(on_(optAanvrager, 2).Caption(), "A. de Wit");
  EXPECT_TRUE(on_(optAanvrager, 2).Enabled());

  host_.dossier.personen.pop_back();
  Bind();
  EXPECT_EQ(on_(optAanvrager, 2).Caption(), "");
  EXPECT_FALSE(on_(optAanvrager, 2).Enabled());

  host_.dossier.personen.push_back(host_.dossier.personen[0]);
  Bind();
  EXPECT_EQ(on_(optAanvrager, 2).Caption(), "J. van Dam");
  EXPECT_TRUE(on_(optAanvrager, 2).Enabled());
}

TEST_F(LoadingTest, ShortensANameToTheWidthOfTheFirstOption) {
  // The first option is 3000 wide, less 450: 2550. An "m" is 0.833 of 180 twips, a dot 0.278: sixteen of the
  // first and the ellipsis make 2399.04 + 150.12, seventeen would be too wide.
  const std::string lang(20, 'm');
  host_.dossier.personen[0]->naam = {lang, "", ""};
  host_.dossier.personen[1]->naam = {lang, "", ""};
  on_(optAanvrager, 2).Write(host::Measure::Width, 500);
  Bind();
  EXPECT_EQ(on_(optAanvrager, 1).Caption(), std::string(16, 'm') + "...");
  EXPECT_EQ(on_(optAanvrager, 2).Caption(), std::string(16, 'm') + "...") << "both share the first one's width";
}

TEST_F(LoadingTest, ShowsTheWorkTogglesAlsoWhereTheyAreDisabled) {
  struct Case {
    std::int16_t last;
    std::int16_t fiscaal;
    bool enabled;
  };
  for (const Case& c : {Case{2, 2, true}, Case{3, 2, false}, Case{2, 1, false}, Case{1, 1, false}}) {
    kolom_.velden.CorrectieLast = c.last;
    kolom_.velden.CorrectieFiscaal = c.fiscaal;
    for (const bool ja : {true, false}) {
      kolom_.velden.InkomenUitArbeid = ja;
      kolom_.velden.InDagloon = ja;
      Bind();
      EXPECT_EQ(on_[jnInkUitArbeid].Value(), ja ? host::kJa : host::kNee);
      EXPECT_EQ(on_[jnInDagloon].Value(), ja ? host::kJa : host::kNee);
      EXPECT_EQ(on_[jnInkUitArbeid].Enabled(), c.enabled);
      EXPECT_EQ(on_[jnInDagloon].Enabled(), c.enabled);
    }
  }
}

TEST_F(LoadingTest, WritesNothingBackAndRaisesNoHeaderText) {
  TestKolom& other = host_.dossier.huidig->Voeg(2);
  other.velden.CorrectieLast = 2;
  other.velden.CorrectieFiscaal = 2;
  other.velden.HeffingBij = 2;
  other.velden.InkomenUitArbeid = other.velden.InDagloon = other.velden.UwBemiddeling = true;
  other.velden.Termijn = 6;
  other.velden.IsProduct = true;
  other.velden.Productsoort = 43;
  other.velden.Maatschappij = "CD";
  other.velden.Voorstel = {"J", "N", "J"};
  other.velden.UitsluitenAO = other.velden.ScenarioOverlijden = true;
  for (const std::int16_t id : {1, 2, 1}) Bind(0, id);
  const Lines log = Log();
  EXPECT_THAT(Only(log, "set"), IsEmpty());
  EXPECT_THAT(Only(log, "event"), ElementsAre("event HeightChanged", "event HeightChanged", "event HeightChanged"));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(LoadingTest, TicksTheProposalsThatTheColumnIsIn) {
  kolom_.velden.Voorstel = {"J", "N", ""};
  Bind();
  EXPECT_EQ(on_(ChkVoorstel, 1).Value(), host::kTicked);
  EXPECT_EQ(on_(ChkVoorstel, 2).Value(), host::kUnticked);
  EXPECT_EQ(on_(ChkVoorstel, 3).Value(), host::kUnticked);
  kolom_.velden.Voorstel = {"", "J", "j"};
  Bind();
  EXPECT_EQ(on_(ChkVoorstel, 1).Value(), host::kUnticked);
  EXPECT_EQ(on_(ChkVoorstel, 2).Value(), host::kTicked);
  EXPECT_EQ(on_(ChkVoorstel, 3).Value(), host::kUnticked) << "exactly \"J\"";
}

TEST_F(LoadingTest, ShowsTheProposalFrameWhereTheHostAsksForIt) {
  EXPECT_FALSE(editor_->BeeindigenZichtbaar());
  Bind();
  EXPECT_FALSE(on_[fraBeeindigen].Visible());
  Forget();
  editor_->SetBeeindigenZichtbaar(true);
  EXPECT_TRUE(on_[fraBeeindigen].Visible()) << "at once";
  EXPECT_THAT(Log(), IsEmpty()) << "untraced";
  Bind();
  EXPECT_TRUE(on_[fraBeeindigen].Visible());
  editor_->SetBeeindigenZichtbaar(false);
  EXPECT_FALSE(on_[fraBeeindigen].Visible());
}

TEST_F(LoadingTest, KeepsWhatItFilledBeforeAnOptionThatDoesNotExist) {
  kolom_.velden.CorrectieLast = 2;
  kolom_.velden.CorrectieFiscaal = 7;
  kolom_.velden.Omschrijving = "niet getoond";
  Bind();
  EXPECT_THAT(Log(), ElementsAre("enter SetApplication", "enter Fill_Controls", "error Fill_Controls",
                                 "report VrijeKolom 340", "event HeightChanged", "leave"));
  EXPECT_TRUE(on_(optLast, 2).Value());
  EXPECT_EQ(on_[TxtOm].Text(), "");
  EXPECT_FALSE(editor_->Filling()) << "the binding itself came to its end";
}

TEST_F(LoadingTest, ReportsAPersonOptionThatDoesNotExistAfterTheCaptions) {
  kolom_.velden.HeffingBij = 3;
  Bind();
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report VrijeKolom 340"));
  EXPECT_EQ(on_(optAanvrager, 2).Caption(), "A. de Wit");
}

TEST_F(LoadingTest, EndsTheGeneralFrameAloneWhereThatFails) {
  kolom_.velden.Omschrijving = "wel getoond";
  host_.calls.Fail("Voorstel(2)", Op::Get);
  Bind();
  EXPECT_THAT(Log(), ElementsAreArray(Join({{"enter SetApplication", "enter Fill_Controls", "enter Check_FraFiscaal",
                                             "leave", "enter Fill_fraAlgemeen", "error Fill_fraAlgemeen",
                                             "report VrijeKolom 1004", "enter Fill_Product", "leave"},
                                            kHerbonden,
                                            {"leave", "event HeightChanged", "leave"}})));
  EXPECT_EQ(on_[TxtOm].Text(), "wel getoond");
}

TEST_F(LoadingTest, GoesOnWhereTheExplanationControlFails) {
  host_.calls.Fail("UitsluitenAO", Op::Get);
  Bind();
  const Lines log = Log();
  EXPECT_THAT(Only(log, "report"), ElementsAre("report Toelichting 1004"));
  EXPECT_EQ(log.back(), "leave");
}

TEST_F(LoadingTest, LeavesFillingSetAfterAFailureOfTheBindingItself) {
  host_.calls.Fail("Lening", Op::Get, 1, {13, "Type mismatch", "Kwandero"});
  Bind();
  EXPECT_THAT(Log(), ElementsAre("enter SetApplication", "error SetApplication", "report VrijeKolom 13"));
  EXPECT_TRUE(editor_->Filling());
  Bind();
  EXPECT_FALSE(editor_->Filling());
}

TEST_F(LoadingTest, FailsOnALoanOrColumnThatDoesNotExist) {
  Bind(5, 1);
  EXPECT_THAT(Log(), ElementsAre("enter SetApplication", "error SetApplication", "report VrijeKolom 91"));
  EXPECT_TRUE(editor_->Filling());

  Bind(0, 9);
  EXPECT_THAT(Log(), ElementsAre("enter SetApplication", "enter Fill_Controls", "error Fill_Controls",
                                 "report VrijeKolom 91", "event HeightChanged", "leave"));
  EXPECT_FALSE(editor_->Filling());
  EXPECT_EQ(editor_->Item(), nullptr);
}

TEST_F(LoadingTest, KeepsTheOldColumnWhereTheLoanIsNotFound) {
  Bind();
  Bind(5, 1);
  Forget();
  EXPECT_EQ(editor_->Item()->Id(), 1);
  Act(on_[TxtOm], controls::Enter{std::string("nog steeds")});
  EXPECT_THAT(Only(Log(), "set"), ElementsAre("set Omschrijving=\"nog steeds\"")) << "boxes are not guarded";
}

TEST_F(LoadingTest, FailsWithoutAnAmountOrAnApplicant) {
  kolom_.bedrag = nullptr;
  Bind();
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report VrijeKolom 91"));
  kolom_.bedrag = std::make_shared<TestBedrag>(host_.calls);
  host_.dossier.personen.clear();
  Bind();
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report VrijeKolom 91"));
}

TEST_F(LoadingTest, HasNobodyToTellWithoutAnApplication) {
  editor_->SetApplication(nullptr, 0, 1);
  EXPECT_THAT(Log(), ElementsAre("enter SetApplication", "error SetApplication"));
}

TEST_F(LoadingTest, ReleasesTheOldReferencesOnABindingAnew) {
  const std::weak_ptr<TestKolom> first = host_.dossier.huidig->kolommen.front();
  host_.dossier.huidig->Voeg(2);
  Bind();
  host_.dossier.huidig->kolommen.erase(host_.dossier.huidig->kolommen.begin());
  EXPECT_FALSE(first.expired());
  Bind(0, 2);
  EXPECT_TRUE(first.expired());
}

TEST_F(LoadingTest, LetsGoOfEverythingOfTheHostWhenItIsUnbound) {
  const auto held = [this] {
    return std::array{host_.application.use_count(), host_.application->dossier.use_count(),
                      host_.dossier.huidig.use_count(), host_.dossier.huidig->kolommen.front().use_count()};
  };
  const auto before = held();
  Bind();
  EXPECT_NE(held(), before);
  editor_->Unbind();
  EXPECT_EQ(held(), before);
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(LoadingTest, ClearsTheMarkForAnotherColumnAndKeepsItForTheSame) {
  host_.dossier.huidig->Voeg(2);
  host_.VoegLening({1});
  const auto marked = [this](std::int16_t len, std::int16_t vrij) {
    Bind();
    MarkChanged();
    EXPECT_TRUE(editor_->Gewijzigd());
    Bind(len, vrij);
    return editor_->Gewijzigd();
  };
  EXPECT_TRUE(marked(0, 1));
  EXPECT_FALSE(marked(0, 2));
  EXPECT_FALSE(marked(1, 1));
  EXPECT_TRUE(marked(9, 1)) << "no such loan: the identifiers were not kept";
  EXPECT_FALSE(marked(0, 9)) << "no such column, but its identifier is kept";
}

TEST_F(LoadingTest, KeepsTheMarkWhereAnotherApplicationWasTriedInVain) {
  Bind();
  MarkChanged();
  const auto other = std::make_shared<TestApplication>(host_.calls);
  host_.calls.Fail("HuidigeLening", Op::Get);
  editor_->SetApplication(other, 0, 1);
  Bind();
  EXPECT_TRUE(editor_->Gewijzigd()) << "bound anew to the column that was never left";
}

TEST_F(LoadingTest, ClearsTheMarkForAnotherApplication) {
  Bind();
  MarkChanged();
  const auto other = std::make_shared<TestApplication>(host_.calls);
  other->dossier->huidig->Voeg(1);
  other->dossier->personen = host_.dossier.personen;
  host_.calls.Fail("HuidigeLening", Op::Get);
  editor_->SetApplication(other, 0, 1);
  EXPECT_TRUE(editor_->Gewijzigd()) << "failed before the identifiers were kept";
  editor_->SetApplication(other, 0, 1);
  EXPECT_FALSE(editor_->Gewijzigd());
}

}  // namespace

}  // namespace brivane::test
