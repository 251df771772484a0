#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dossier/model/Application.h"
#include "dossier/model/SampleCase.h"
#include <brivane/host/Error.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::dossier {
namespace {

using testing::ElementsAre;

class ApplicationTest : public testing::Test {
 protected:
  static DossierGegevens Gegevens() {
    DossierGegevens gegevens = LeegDossier();
    gegevens.MaatschappijType = {{"AB", "Alfa Bank"}, {"ab", "Andere Bank"}, {"X1", "Alfa Bank"}, {"ZZ", "Anders"}};
    return gegevens;
  }
  [[nodiscard]] std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (int index = 0; index < list_.ListCount(); ++index) lines.push_back(list_.List(index));
    return lines;
  }
  void Fill(const std::string& code, const std::string& empty = {}, std::optional<std::int32_t> choice = std::nullopt) {
    application_.VulCombo(application_.Codetabellen(), "MaatschappijType", list_, code, empty, choice);
  }
  [[nodiscard]] std::string Find(const std::string& text, std::string_view table = "MaatschappijType") {
    return application_.ZoekCode(application_.Codetabellen(), table, text);
  }

  Application application_{std::make_shared<Dossier>(Gegevens(), std::make_shared<Environment>())};
  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_ = toolkit_.MakeSurface(vrijekolom::kOntwerp);
  host::ListBox& list_ = dynamic_cast<host::ListBox&>(controls::Surface::Of(*surface_).Find("cboMaatschappij")->Host());
};

TEST_F(ApplicationTest, FillsAListInTableOrderAndSelectsTheCode) {
  Fill("ab");
  EXPECT_THAT(Lines(), ElementsAre("Alfa Bank", "Andere Bank", "Alfa Bank", "Anders"));
  EXPECT_EQ(list_.ListIndex(), 1);
}

TEST_F(ApplicationTest, SelectsByCodeWhereATextStandsTwice) {
  Fill("X1");
  EXPECT_EQ(list_.ListIndex(), 2);
}

TEST_F(ApplicationTest, SelectsNothingForACodeThatIsNotThere) {
  Fill("Ab");
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(list_.ListCount(), 4);
}

TEST_F(ApplicationTest, ClearsNothing) {
  list_.Add("stond er al", 77);
  Fill("AB");
  EXPECT_EQ(list_.ListCount(), 5);
  EXPECT_EQ(list_.Text(), "Alfa Bank");
}

TEST_F(ApplicationTest, ShowsAnEmptyEntryFirstAndSelectsByNumberWhereNoCodeIsFound) {
  Fill("", "(geen)", 2);
  EXPECT_THAT(Lines(), ElementsAre("(geen)", "Alfa Bank", "Andere Bank", "Alfa Bank", "Anders"));
  EXPECT_EQ(list_.ListIndex(), 2);
}

TEST_F(ApplicationTest, PrefersTheCodeToTheNumber) {
  Fill("ZZ", "", 1);
  EXPECT_EQ(list_.Text(), "Anders");
}

TEST_F(ApplicationTest, FindsTheFirstCodeOfATextAndComparesExactly) {
  EXPECT_EQ(Find("Alfa Bank"), "AB");
  EXPECT_EQ(Find("Anders"), "ZZ");
  EXPECT_EQ(Find("alfa bank"), "");
  EXPECT_EQ(Find("Alfa Bank", "OnbekendeTabel"), "");
}

TEST_F(ApplicationTest, NeedsASourceOfItsOwn) {
  EXPECT_THROW(static_cast<void>(application_.ZoekCode(nullptr, "MaatschappijType", "x")), host::Error);
  EXPECT_THROW(application_.VulCombo(nullptr, "MaatschappijType", list_, "AB", "", {}), host::Error);
}

TEST_F(ApplicationTest, AnswersTheSameObjectsAtEachLookUp) {
  EXPECT_EQ(application_.Dossier(), application_.Dossier());
  EXPECT_EQ(application_.Uitgangspunten(), application_.Uitgangspunten());
  EXPECT_EQ(application_.Codetabellen(), application_.Codetabellen());
  EXPECT_EQ(application_.Hoofdvenster(), nullptr);
}

TEST_F(ApplicationTest, GivesTheAgeLimitOfTheCase) {
  EXPECT_EQ(application_.Uitgangspunten()->Leeftijd(), 67);
  application_.Bestand()->SetClient(application_.Bestand()->Personen(), 71);
  EXPECT_EQ(application_.Uitgangspunten()->Leeftijd(), 71);
}

TEST_F(ApplicationTest, HandsTheErrorRecordToItsListener) {
  std::vector<std::string> told;
  const host::Subscription errors = application_.FoutGemeld.Connect([&](const host::ErrorRecord& error) {
    told = {error.ApplicationTitle, error.ObjectName,  error.Caption,          error.ObjectDescription,
            error.Message,          error.ErrorNumber, error.ErrorDescription, error.ErrorSource};
  });
  Tracer tracer;
  tracer.EnterProcedure("A");
  tracer.ErrorInProcedure("A");
  tracer.LeaveProcedure();
  tracer.SetApplicationTitle("1");
  tracer.SetObjectName("2");
  tracer.SetCaption("3");
  tracer.SetObjectDescription("4");
  tracer.SetMessage("5");
  tracer.SetErrorNumber("6");
  tracer.SetErrorDescription("7");
  tracer.SetErrorSource("8");
  application_.ReportError(tracer);
  EXPECT_THAT(told, ElementsAre("1", "2", "3", "4", "5", "6", "7", "8"));
}

}  // namespace
}  // namespace brivane::dossier
