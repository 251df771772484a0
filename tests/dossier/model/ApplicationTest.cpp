#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dossier/model/Application.h"
#include "dossier/model/SampleCase.h"
#include "host/Error.h"
#include "toolkits/memory/Toolkit.h"
#include "vrijekolom/Ontwerp.h"

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
  [[nodiscard]] std::vector<std::string> Regels() const {
    std::vector<std::string> regels;
    for (int index = 0; index < lijst_.ListCount(); ++index) regels.push_back(lijst_.List(index));
    return regels;
  }
  void Vul(const std::string& code, const std::string& leeg = {}, std::optional<std::int32_t> keuze = std::nullopt) {
    application_.VulCombo(application_.Codetabellen(), "MaatschappijType", lijst_, code, leeg, keuze);
  }
  [[nodiscard]] std::string Zoek(const std::string& tekst, std::string_view tabel = "MaatschappijType") {
    return application_.ZoekCode(application_.Codetabellen(), tabel, tekst);
  }

  Application application_{std::make_shared<Dossier>(Gegevens(), std::make_shared<Omgeving>())};
  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_ = toolkit_.MakeSurface(vrijekolom::kOntwerp);
  host::ListBox& lijst_ =
      dynamic_cast<host::ListBox&>(controls::Surface::Of(*surface_).Find("cboMaatschappij")->Host());
};

TEST_F(ApplicationTest, FillsAListInTableOrderAndSelectsTheCode) {
  Vul("ab");
  EXPECT_THAT(Regels(), ElementsAre("Alfa Bank", "Andere Bank", "Alfa Bank", "Anders"));
  EXPECT_EQ(lijst_.ListIndex(), 1);
}

TEST_F(ApplicationTest, SelectsByCodeWhereATextStandsTwice) {
  Vul("X1");
  EXPECT_EQ(lijst_.ListIndex(), 2);
}

TEST_F(ApplicationTest, SelectsNothingForACodeThatIsNotThere) {
  Vul("Ab");
  EXPECT_EQ(lijst_.ListIndex(), -1);
  EXPECT_EQ(lijst_.ListCount(), 4);
}

TEST_F(ApplicationTest, ClearsNothing) {
  lijst_.Add("stond er al", 77);
  Vul("AB");
  EXPECT_EQ(lijst_.ListCount(), 5);
  EXPECT_EQ(lijst_.Text(), "Alfa Bank");
}

TEST_F(ApplicationTest, ShowsAnEmptyEntryFirstAndSelectsByNumberWhereNoCodeIsFound) {
  Vul("", "(geen)", 2);
  EXPECT_THAT(Regels(), ElementsAre("(geen)", "Alfa Bank", "Andere Bank", "Alfa Bank", "Anders"));
  EXPECT_EQ(lijst_.ListIndex(), 2);
}

TEST_F(ApplicationTest, PrefersTheCodeToTheNumber) {
  Vul("ZZ", "", 1);
  EXPECT_EQ(lijst_.Text(), "Anders");
}

TEST_F(ApplicationTest, FindsTheFirstCodeOfATextAndComparesExactly) {
  EXPECT_EQ(Zoek("Alfa Bank"), "AB");
  EXPECT_EQ(Zoek("Anders"), "ZZ");
  EXPECT_EQ(Zoek("alfa bank"), "");
  EXPECT_EQ(Zoek("Alfa Bank", "OnbekendeTabel"), "");
}

TEST_F(ApplicationTest, NeedsASourceOfItsOwn) {
  EXPECT_THROW(static_cast<void>(application_.ZoekCode(nullptr, "MaatschappijType", "x")), host::Error);
  EXPECT_THROW(application_.VulCombo(nullptr, "MaatschappijType", lijst_, "AB", "", {}), host::Error);
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
  std::vector<std::string> gemeld;
  application_.FoutGemeld.Connect([&](const host::ErrorRecord& fout) {
    gemeld = {fout.ApplicationTitle, fout.ObjectName,  fout.Caption,          fout.ObjectDescription,
              fout.Message,          fout.ErrorNumber, fout.ErrorDescription, fout.ErrorSource};
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
  EXPECT_THAT(gemeld, ElementsAre("1", "2", "3", "4", "5", "6", "7", "8"));
}

}  // namespace
}  // namespace brivane::dossier
