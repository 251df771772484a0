// Binding the explanation control and loading its fields.

#include "tests/toelichting/ToelichtingTest.h"

#include <array>

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace toelichting;

class ToelichtingBindingTest : public ToelichtingTest {};

TEST_F(ToelichtingBindingTest, ReadsEveryFieldInOrderAndWritesNothing) {
  host_.calls.reads = true;
  kolom_.velden.EinddatumOvergang = D(2040, 1, 1);
  Bind();
  EXPECT_THAT(Log(),
              ElementsAre("enter Toelichting.SetApplication", "get Lening(0).VrijeKolom(1)",  //
                          "enter Toelichting.Show_Keuze", "get CorrectieFiscaal=1", "get CorrectieLast=1",
                          "leave Toelichting",  //
                          "enter Toelichting.Fill_Controls", "get UitsluitenLangleven=false", "get UitsluitenAO=false",
                          "get UitsluitenWW=false", "get ScenarioOverlijden=false", "get PercentageOvergang=0",
                          "get EinddatumOvergang=2040-1-1", "get EinddatumOvergang=2040-1-1",
                          "get EindleeftijdOvergang=0", "leave Toelichting", "leave Toelichting"));
}

TEST_F(ToelichtingBindingTest, ShowsThreeExclusionsAndOneInclusion) {
  kolom_.velden.UitsluitenAO = true;
  kolom_.velden.UitsluitenWW = false;
  kolom_.velden.UitsluitenLangleven = true;
  kolom_.velden.ScenarioOverlijden = true;
  Bind();
  EXPECT_EQ(on_[jnAO].Value(), host::kNee);
  EXPECT_EQ(on_[jnWW].Value(), host::kJa);
  EXPECT_EQ(on_[jnLangleven].Value(), host::kNee);
  EXPECT_EQ(on_[jnOverlijden].Value(), host::kJa);

  kolom_.velden = {};
  kolom_.velden.UitsluitenWW = true;
  Bind();
  EXPECT_EQ(on_[jnAO].Value(), host::kJa);
  EXPECT_EQ(on_[jnWW].Value(), host::kNee);
  EXPECT_EQ(on_[jnLangleven].Value(), host::kJa);
  EXPECT_EQ(on_[jnOverlijden].Value(), host::kNee);
}

TEST_F(ToelichtingBindingTest, EnablesTheTransitionWithTheDeathToggleAlone) {
  kolom_.velden.ScenarioOverlijden = true;
  kolom_.velden.PercentageOvergang = 12.5F;
  kolom_.velden.EinddatumOvergang = D(2040, 1, 1);
  kolom_.velden.EindleeftijdOvergang = 65;
  Bind();
  EXPECT_EQ(on_[TxtPcOvergang].Number(), 12.5);
  EXPECT_EQ(on_[txtEinddatum].DateValue(), D(2040, 1, 1));
  EXPECT_EQ(on_[TxtEindjaar].Number(), 65);

  kolom_.velden.ScenarioOverlijden = false;
  Bind();
  EXPECT_FALSE(on_[TxtPcOvergang].Enabled());
  EXPECT_FALSE(on_[txtEinddatum].Enabled());
  EXPECT_FALSE(on_[lblSlash].Enabled());
  EXPECT_FALSE(on_[TxtEindjaar].Enabled());
  EXPECT_EQ(on_[TxtPcOvergang].Number(), 12.5) << "disabled, but what is stored still shows";
  kolom_.velden.ScenarioOverlijden = true;
  Bind();
  EXPECT_TRUE(on_[TxtPcOvergang].Enabled());
  EXPECT_TRUE(on_[txtEinddatum].Enabled());
  EXPECT_TRUE(on_[lblSlash].Enabled());
  EXPECT_TRUE(on_[TxtEindjaar].Enabled());
}

TEST_F(ToelichtingBindingTest, NeverDisablesTheCaptionsOfTheTransition) {
  Bind();
  for (const char* caption : {"LblEinddatum", "LblEindjaar"})
    EXPECT_TRUE(controls::Surface::Of(*surface_).Find(caption)->Host().Enabled()) << caption;
  for (const int index : {1, 2})
    EXPECT_TRUE(controls::Surface::Of(*surface_).Find("lblPcOvergang", index)->Host().Enabled());
}

TEST_F(ToelichtingBindingTest, ShowsADateBefore1900AsNoDate) {
  struct Case {
    host::Date stored;
    host::Date shown;
  };
  for (const Case& c :
       {Case{host::kNoDate, host::kNoDate}, Case{D(1899, 12, 31), host::kNoDate}, Case{D(1850, 6, 1), host::kNoDate},
        Case{D(1900, 1, 1), D(1900, 1, 1)}, Case{D(2040, 1, 1), D(2040, 1, 1)}}) {
    kolom_.velden.EinddatumOvergang = c.stored;
    Bind();
    EXPECT_EQ(on_[txtEinddatum].DateValue(), c.shown) << Show(c.stored);
  }
}

TEST_F(ToelichtingBindingTest, RaisesNoChangeWhileLoading) {
  kolom_.velden.UitsluitenAO = true;
  kolom_.velden.ScenarioOverlijden = true;
  Bind();
  const Lines log = Log();
  EXPECT_THAT(Only(log, "event"), IsEmpty());
  EXPECT_THAT(Only(log, "set"), IsEmpty());
}

TEST_F(ToelichtingBindingTest, ReplacesEverythingOnABindingAnew) {
  TestKolom& other = host_.VoegLening({7}).kolommen.front().operator*();
  other.velden.UitsluitenAO = true;
  Bind();
  lening_ = host_.dossier.leningen.front();
  Bind(7);
  EXPECT_EQ(on_[jnAO].Value(), host::kNee);
  Forget();
  Act(on_[jnAO], controls::Toggle{host::kJa});
  EXPECT_FALSE(other.velden.UitsluitenAO);
  EXPECT_THAT(Only(Log(), "set"), ElementsAre("set UitsluitenAO=false"));
}

TEST_F(ToelichtingBindingTest, ReportsAFailureOfLoadingAsItsOwnAndStaysSilentAfterIt) {
  host_.calls.Fail("UitsluitenWW", Op::Get);
  Bind();
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.SetApplication", "enter Toelichting.Show_Keuze",
                                 "leave Toelichting", "enter Toelichting.Fill_Controls",
                                 "error Toelichting.SetApplication", "report Toelichting 1004"));
  Act(on_[jnAO], controls::Toggle{host::kNee});
  EXPECT_THAT(Log(), IsEmpty()) << "still loading: the toggles write nothing";
  Bind();
  Forget();
  Act(on_[jnAO], controls::Toggle{host::kNee});
  EXPECT_THAT(Only(Log(), "set"), ElementsAre("set UitsluitenAO=true"));
}

TEST_F(ToelichtingBindingTest, FailsWithMissingObjects) {
  Bind(9);
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report Toelichting 91")) << "no such column";
  lening_ = nullptr;
  Bind();
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report Toelichting 91")) << "no loan";
}

TEST_F(ToelichtingBindingTest, WritesTheWholeErrorRecordInOrder) {
  host_.calls.Fail("UitsluitenAO", Op::Get, 1, {13, "Type mismatch", "Kwandero.Record"});
  Bind();
  EXPECT_THAT(host_.traces.at(0)->Take(),
              ElementsAre("ApplicationTitle=Dossier", "ObjectName=Toelichting", "Caption=Kwandero",
                          "ObjectDescription=Overige post toelichting", "Message=Er is een fout opgetreden.",
                          "ErrorNumber=13", "ErrorDescription=Type mismatch", "ErrorSource=Kwandero.Record"));
  EXPECT_EQ(toolkit_.Desktop().pointerResets, 1);
}

TEST_F(ToelichtingBindingTest, LeavesTheReportOutWhereNobodyIsBound) {
  Act(on_[jnAO], controls::Toggle{host::kJa});
  EXPECT_THAT(Log(), ElementsAre("enter Toelichting.jnAO_Change", "error Toelichting.jnAO_Change"));
}

TEST_F(ToelichtingBindingTest, MakesOneTracer) {
  ASSERT_EQ(host_.traces.size(), 1U) << "filling the list is the first traced procedure";
  Bind();
  Bind();
  EXPECT_EQ(host_.traces.size(), 1U);
  EXPECT_EQ(host_.controles, 0);
}

TEST_F(ToelichtingBindingTest, HoldsCountedReferencesUntilItGoes) {
  const std::weak_ptr<TestKolom> kolom = host_.dossier.huidig->kolommen.front();
  Bind();
  host_.dossier.huidig->kolommen.clear();
  EXPECT_FALSE(kolom.expired());
  control_.reset();
  EXPECT_TRUE(kolom.expired());
}

TEST_F(ToelichtingBindingTest, LetsGoOfEverythingOfTheHostWhenItIsUnbound) {
  const auto held = [this] {
    return std::array{host_.application.use_count(), host_.application->dossier.use_count(),
                      host_.dossier.huidig.use_count(), host_.dossier.huidig->kolommen.front().use_count()};
  };
  const auto before = held();
  Bind();
  EXPECT_NE(held(), before);
  control_->Unbind();
  EXPECT_EQ(held(), before);
}

TEST_F(ToelichtingBindingTest, ASurfaceThatOutlivesTheControlCallsNothing) {
  const auto work = [this](float width, host::Color color) {
    for (const auto& toggle : {jnAO, jnWW, jnLangleven, jnOverlijden})
      on_[toggle].SetValue(on_[toggle].Value() == host::kJa ? host::kNee : host::kJa);
    on_[TxtPcOvergang].SetEnabled(true);
    on_[txtEinddatum].SetEnabled(true);
    on_[TxtEindjaar].SetEnabled(true);
    Act(on_[TxtPcOvergang], controls::Enter{40.0});
    Act(on_[txtEinddatum], controls::Enter{D(2040, 1, 1)});
    Act(on_[TxtEindjaar], controls::Enter{65.0});
    controls::Surface::Of(*surface_).Size({width}, {1});
    surface_->SetBackColor(color);
  };
  BindOverlijden();
  work(7000, {0x00FF00});
  EXPECT_EQ(Only(Log(), "event").size(), 7U) << "each of the seven raised Changed";
  EXPECT_EQ(on_[fraScenarios].Place().width, host::Twips{7000});
  EXPECT_EQ(on_[fraScenarios].BackColor(), host::Color{0x00FF00});

  control_.reset();
  on_[fraScenarios].SetBackColor(host::kButtonFace);
  work(6000, {0x0000FF});
  EXPECT_THAT(Log(), IsEmpty());
  EXPECT_EQ(on_[fraScenarios].Place().width, host::Twips{7000});
  EXPECT_EQ(on_[fraScenarios].BackColor(), host::kButtonFace);
}

}  // namespace

}  // namespace brivane::test
