// The handler of every field: what it writes, in which order, and what it tells.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using namespace vrijekolom;

const Lines kKopregel{"event RefreshTopDisplay de kopregel"};

class FieldHandlers : public EditorTest {
 public:
  /// A contribution that is a taxable addition, of another company and kind, from 31 January 2024 for a month.
  void BindEverything() {
    kolom_.velden.CorrectieLast = 2;
    kolom_.velden.CorrectieFiscaal = 2;
    kolom_.velden.DatumAanvang = D(2024, 1, 31);
    kolom_.velden.Looptijd = 1;
    kolom_.velden.IsProduct = true;
    kolom_.velden.Maatschappij = "ZZ";
    kolom_.velden.Productsoort = 99;
    BindUnheard();
  }
  void BindContract() {
    kolom_.velden.Productsoort = 45;
    BindUnheard();
  }
  using EditorTest::Act;
  using EditorTest::Bind;
  using EditorTest::editor_;
  using EditorTest::host_;
  using EditorTest::InToelichting;
  using EditorTest::Log;
  using EditorTest::on_;
};

enum class Dirty : bool { No, Yes };
enum class Guard : bool { None, Filling };

struct Handler {
  const char* name;
  Guard guard;
  Dirty dirty;
  void (*edit)(FieldHandlers& test);
  Lines log;
  void (*bind)(FieldHandlers& test) = [](FieldHandlers& test) { test.BindEverything(); };
};

void PrintTo(const Handler& handler, std::ostream* out) { *out << handler.name; }

const Handler kHandlers[] = {
    {"jnInDagloon_Change",
     Guard::Filling,
     Dirty::Yes,
     [](FieldHandlers& t) { t.Act(t.on_[jnInDagloon], controls::Toggle{host::kJa}); },
     {"enter jnInDagloon_Change", "set InDagloon=true", "leave"}},
    {"jnInkUitArbeid_Change",
     Guard::Filling,
     Dirty::Yes,
     [](FieldHandlers& t) { t.Act(t.on_[jnInkUitArbeid], controls::Toggle{host::kJa}); },
     {"enter jnInkUitArbeid_Change", "set InkomenUitArbeid=true", "leave"}},
    {"jnUwBemiddeling_Change",
     Guard::Filling,
     Dirty::No,
     [](FieldHandlers& t) { t.Act(t.on_[jnUwBemiddeling], controls::Toggle{host::kJa}); },
     {"enter jnUwBemiddeling_Change", "set UwBemiddeling=true", "leave"}},
    {"optAanvrager_Click", Guard::Filling, Dirty::Yes,
     [](FieldHandlers& t) { t.Act(t.on_(optAanvrager, 2), controls::Select{}); },
     Join({{"enter optAanvrager_Click", "set HeffingBij=2"}, kKopregel, {"leave"}})},
    {"optFiscaal_Click", Guard::Filling, Dirty::Yes,
     [](FieldHandlers& t) { t.Act(t.on_(optFiscaal, 3), controls::Select{}); },
     Join({{"enter optFiscaal_Click", "set CorrectieFiscaal=3"}, kHerbonden, kKopregel, {"leave"}})},
    {"optLast_Click", Guard::Filling, Dirty::Yes,
     [](FieldHandlers& t) { t.Act(t.on_(optLast, 1), controls::Select{}); },
     Join({{"enter optLast_Click", "set CorrectieLast=1", "enter Check_FraFiscaal", "enter optFiscaal_Click",
            "set CorrectieFiscaal=1"},
           kHerbonden,
           kKopregel,
           {"leave", "leave"},
           kHerbonden,
           kKopregel,
           {"leave"}})},
    {"TxtBd_Validation", Guard::None, Dirty::Yes,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[TxtBd], controls::Enter{1200.5})); },
     Join({{"enter TxtBd_Validation", "set Basisbedrag=1200.5"}, kKopregel, {"leave"}})},
    {"TxtOm_Validation", Guard::None, Dirty::Yes,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[TxtOm], controls::Enter{std::string("Krant")})); },
     Join({{"enter TxtOm_Validation", "set Omschrijving=\"Krant\""}, kKopregel, {"leave"}})},
    {"TxtAnJaar_Validation", Guard::None, Dirty::Yes,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[TxtAnJaar], controls::Enter{2.0})); },
     Join({{"enter TxtAnJaar_Validation", "set Looptijd=25"}, kKopregel, {"leave"}})},
    {"TxtAnMaand_Validation", Guard::None, Dirty::Yes,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[TxtAnMaand], controls::Enter{14.0})); },
     Join({{"enter TxtAnMaand_Validation", "set Looptijd=14"}, kKopregel, {"leave"}})},
    {"TxtDtAanvang_Validation", Guard::None, Dirty::Yes,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[TxtDtAanvang], controls::Enter{D(2024, 2, 1)})); },
     Join({{"enter TxtDtAanvang_Validation", "enter Validation", "leave", "set DatumAanvang=2024-2-1"},
           kKopregel,
           {"leave"}})},
    {"TxtDtEind_Validation", Guard::None, Dirty::Yes,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[TxtDtEind], controls::Enter{D(2024, 7, 1)})); },
     Join({{"enter TxtDtEind_Validation", "enter Validation", "leave", "set Looptijd=6"}, kKopregel, {"leave"}})},
    {"txtMaatschappij_Validation",
     Guard::None,
     Dirty::No,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[txtMaatschappij], controls::Enter{std::string("Bank")})); },
     {"enter txtMaatschappij_Validation", "set MaatschappijNaam=\"Bank\"", "leave"}},
    {"txtProductsoort_Validation",
     Guard::None,
     Dirty::No,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[txtProductsoort], controls::Enter{std::string("Koor")})); },
     {"enter txtProductsoort_Validation", "set ProductsoortOmschrijving=\"Koor\"", "leave"}},
    {"txtProductnaam_Validation",
     Guard::None,
     Dirty::No,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[txtProductnaam], controls::Enter{std::string("Extra")})); },
     {"enter txtProductnaam_Validation", "set Productnaam=\"Extra\"", "leave"}},
    {"txtVervaldatum_Validation",
     Guard::None,
     Dirty::No,
     [](FieldHandlers& t) { EXPECT_FALSE(t.Act(t.on_[txtVervaldatum], controls::Enter{D(2030, 6, 1)})); },
     {"enter txtVervaldatum_Validation", "set Contractvervaldatum=2030-6-1", "leave"},
     [](FieldHandlers& t) { t.BindContract(); }},
    {"txtProducttype_Validation",
     Guard::None,
     Dirty::No,
     [](FieldHandlers& t) { t.editor_->txtProducttype_Validation(); },
     {"enter txtProducttype_Validation", "leave"}},
    {"Toelichting_Changed",
     Guard::None,
     Dirty::Yes,
     [](FieldHandlers& t) { t.Act(t.InToelichting()[toelichting::jnOverlijden], controls::Toggle{host::kJa}); },
     {"enter Toelichting.jnOverlijden_Change", "set ScenarioOverlijden=true", "set PercentageOvergang=0",
      "set EinddatumOvergang=0", "set EindleeftijdOvergang=0", "leave Toelichting"}},
};

class FieldHandler : public FieldHandlers, public ::testing::WithParamInterface<Handler> {};

TEST_P(FieldHandler, WritesAndTellsInOrder) {
  const Handler& handler = GetParam();
  handler.bind(*this);
  handler.edit(*this);
  EXPECT_THAT(Log(), ElementsAreArray(handler.log));
  EXPECT_EQ(editor_->Gewijzigd(), handler.dirty == Dirty::Yes);
}

TEST_P(FieldHandler, IsSilentWhileFillingWhereItIsGuarded) {
  const Handler& handler = GetParam();
  handler.bind(*this);
  host_.calls.Fail("HuidigeLening", Op::Get);
  Bind();  // fails in the binding itself, which leaves filling set and the column bound
  ASSERT_TRUE(editor_->Filling());
  Forget();
  handler.edit(*this);
  EXPECT_THAT(Log(), ElementsAreArray(handler.guard == Guard::Filling ? Lines{} : handler.log));
  EXPECT_EQ(editor_->Gewijzigd(), handler.guard == Guard::None && handler.dirty == Dirty::Yes);
}

TEST_P(FieldHandler, TellsNobodyWhereNothingIsBound) {
  GetParam().edit(*this);
  const Lines log = Log();
  ASSERT_FALSE(log.empty());
  for (const char* kind : {"set", "event", "report"}) EXPECT_THAT(Only(log, kind), IsEmpty());
  if (std::string(GetParam().name) == "txtProducttype_Validation")
    EXPECT_THAT(log, ElementsAre("enter txtProducttype_Validation", "leave"));
  else
    EXPECT_THAT(log.back(), ::testing::StartsWith("error "));
  EXPECT_FALSE(editor_->Gewijzigd());
}

INSTANTIATE_TEST_SUITE_P(Editor, FieldHandler, ::testing::ValuesIn(kHandlers),
                         [](const auto& handler) { return std::string(handler.param.name); });

class NestingTest : public FieldHandlers {};

TEST_F(NestingTest, IncomeFromWorkEnablesTheDayWage) {
  kolom_.velden.InkomenUitArbeid = true;
  kolom_.velden.InDagloon = true;
  BindEverything();
  Act(on_[jnInkUitArbeid], controls::Toggle{host::kNee});
  EXPECT_THAT(Log(), ElementsAre("enter jnInkUitArbeid_Change", "set InkomenUitArbeid=false",
                                 "enter jnInDagloon_Change", "set InDagloon=false", "leave", "leave"));
  EXPECT_FALSE(on_[jnInDagloon].Enabled());
  EXPECT_EQ(on_[jnInDagloon].Value(), host::kNee);
  Act(on_[jnInkUitArbeid], controls::Toggle{host::kJa});
  EXPECT_TRUE(on_[jnInDagloon].Enabled());
  EXPECT_THAT(Only(Log(), "set"), ElementsAre("set InkomenUitArbeid=true")) << "the day wage stays \"Nee\"";
}

TEST_F(NestingTest, IncomeFromWorkLeavesADayWageThatTheRecordHad) {
  kolom_.velden.InkomenUitArbeid = false;
  kolom_.velden.InDagloon = true;
  BindEverything();
  Act(on_[jnInkUitArbeid], controls::Toggle{host::kJa});
  EXPECT_THAT(Log(), ElementsAre("enter jnInkUitArbeid_Change", "set InkomenUitArbeid=true", "leave"));
  EXPECT_TRUE(on_[jnInDagloon].Enabled());
  EXPECT_EQ(on_[jnInDagloon].Value(), host::kJa);
}

TEST_F(NestingTest, OnlyATaxableContributionKeepsItsIncomeFromWork) {
  kolom_.velden.InkomenUitArbeid = kolom_.velden.InDagloon = true;
  BindEverything();
  Act(on_(optFiscaal, 3), controls::Select{});
  EXPECT_THAT(Log(), ElementsAreArray(Join({{"enter optFiscaal_Click", "set CorrectieFiscaal=3",
                                             "enter jnInkUitArbeid_Change", "set InkomenUitArbeid=false",
                                             "enter jnInDagloon_Change", "set InDagloon=false", "leave", "leave"},
                                            kHerbonden,
                                            kKopregel,
                                            {"leave"}})));
  EXPECT_FALSE(on_[jnInkUitArbeid].Enabled());
  Act(on_(optFiscaal, 2), controls::Select{});
  EXPECT_TRUE(on_[jnInkUitArbeid].Enabled());
  EXPECT_EQ(on_[jnInkUitArbeid].Value(), host::kNee);
}

TEST_F(NestingTest, AFailureInsideEndsTheInnerProcedureAlone) {
  kolom_.velden.InDagloon = true;
  kolom_.velden.InkomenUitArbeid = true;
  BindEverything();
  host_.calls.Fail("InDagloon", Op::Set);
  Act(on_[jnInkUitArbeid], controls::Toggle{host::kNee});
  EXPECT_THAT(Log(),
              ElementsAre("enter jnInkUitArbeid_Change", "set InkomenUitArbeid=false", "enter jnInDagloon_Change",
                          "error jnInDagloon_Change", "report VrijeKolom 1004", "leave"));
  EXPECT_TRUE(editor_->Gewijzigd()) << "the outer one came to its end";
}

TEST_F(NestingTest, TheExplanationListFollowsTheCorrections) {
  BindEverything();
  host::ListView& list = InToelichting()[toelichting::lstToelichting];
  EXPECT_EQ(list.Selected(), 3U);
  Act(on_(optFiscaal, 3), controls::Select{});
  EXPECT_EQ(list.Selected(), 4U);
  Act(on_(optLast, 1), controls::Select{});
  EXPECT_EQ(list.Selected(), 1U);
}

class ErrorReportTest : public FieldHandlers {};

TEST_F(ErrorReportTest, FillsTheRecordInOrderAndReportsOnce) {
  BindEverything();
  host_.calls.Fail("Omschrijving", Op::Set, 1, {13, "Type mismatch", "Kwandero.Record"});
  Act(on_[TxtOm], controls::Enter{std::string("x")});
  EXPECT_THAT(Log(), ElementsAre("enter TxtOm_Validation", "error TxtOm_Validation", "report VrijeKolom 13"));
  EXPECT_THAT(host_.traces.at(1)->Take(),
              ElementsAre("ApplicationTitle=Dossier", "ObjectName=VrijeKolom", "Caption=Kwandero",
                          "ObjectDescription=Vrije kolom", "Message=Er is een fout opgetreden.", "ErrorNumber=13",
                          "ErrorDescription=Type mismatch", "ErrorSource=Kwandero.Record"));
  EXPECT_EQ(toolkit_.Desktop().pointerResets, 1);
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(ErrorReportTest, ResetsThePointerFirst) {
  BindEverything();
  host_.calls.Fail("Omschrijving", Op::Set);
  host_.calls.Fail("ApplicationTitle", Op::Set);
  EXPECT_THROW(Act(on_[TxtOm], controls::Enter{std::string("x")}), host::Error);
  EXPECT_EQ(toolkit_.Desktop().pointerResets, 1);
}

TEST_F(ErrorReportTest, UndoesNothing) {
  BindEverything();
  host_.calls.Fail("Kopregel", Op::Get);
  Act(on_[TxtOm], controls::Enter{std::string("geschreven")});
  EXPECT_THAT(Log(), ElementsAre("enter TxtOm_Validation", "set Omschrijving=\"geschreven\"", "error TxtOm_Validation",
                                 "report VrijeKolom 1004"));
  EXPECT_EQ(kolom_.velden.Omschrijving, "geschreven");
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(ErrorReportTest, BelongsToTheCallerWhenItFailsItself) {
  BindEverything();
  host_.calls.Fail("Omschrijving", Op::Set);
  host_.calls.Fail("ReportError", Op::Call);
  EXPECT_THROW(Act(on_[TxtOm], controls::Enter{std::string("x")}), host::Error);
  EXPECT_THAT(Log(), ElementsAre("enter TxtOm_Validation", "error TxtOm_Validation"));
}

TEST_F(ErrorReportTest, FailsTheTracedProcedureAroundIt) {
  BindEverything();
  host_.calls.Fail("InDagloon", Op::Set);
  host_.calls.Fail("ReportError", Op::Call, 1, {70, "Geen toegang", "Kwandero"});
  kolom_.velden.InDagloon = kolom_.velden.InkomenUitArbeid = true;
  BindUnheard();
  Act(on_[jnInkUitArbeid], controls::Toggle{host::kNee});
  EXPECT_THAT(Log(),
              ElementsAre("enter jnInkUitArbeid_Change", "set InkomenUitArbeid=false", "enter jnInDagloon_Change",
                          "error jnInDagloon_Change", "error jnInkUitArbeid_Change", "report VrijeKolom 70"));
}

TEST_F(ErrorReportTest, NamesAnExceptionOfAnotherKindByItsText) {
  BindEverything();
  subscriptions_ +=
      editor_->RefreshTopDisplay.Connect([](const std::string&) { throw std::runtime_error("de luisteraar"); });
  Act(on_[TxtBd], controls::Enter{1.0});
  EXPECT_THAT(Log(), ElementsAre("enter TxtBd_Validation", "set Basisbedrag=1", "event RefreshTopDisplay de kopregel",
                                 "error TxtBd_Validation", "report VrijeKolom 440"));
  const Lines record = host_.traces.at(1)->Take();
  EXPECT_THAT(record, ::testing::Contains("ErrorDescription=de luisteraar"));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(ErrorReportTest, MakesTheTracerOnFirstUseAndKeepsIt) {
  ASSERT_EQ(host_.traces.size(), 1U) << "the explanation control's, for its list";
  Bind();
  EXPECT_EQ(host_.traces.size(), 2U);
  Bind();
  (void)Validate(0);
  EXPECT_EQ(host_.traces.size(), 2U);
  EXPECT_EQ(host_.traces[1]->Summary(), "VrijeKolom ");
}

TEST_F(ErrorReportTest, LeavesATracerThatRefusesToTheCaller) {
  host_.calls.Fail("EnterProcedure", Op::Call);
  EXPECT_THROW(Bind(), host::Error);
  EXPECT_FALSE(editor_->Filling()) << "nothing was begun";
}

}  // namespace

}  // namespace brivane::test
