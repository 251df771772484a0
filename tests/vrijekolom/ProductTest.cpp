// A column that is a product: its company, kind, name and brokerage.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using namespace vrijekolom;

class ProductTest : public EditorTest {
 protected:
  void BindProduct(const std::string& maatschappij = "AB", std::int16_t soort = 99) {
    kolom_.velden.IsProduct = true;
    kolom_.velden.Maatschappij = maatschappij;
    kolom_.velden.MaatschappijNaam = "naam";
    kolom_.velden.Productsoort = soort;
    kolom_.velden.ProductsoortOmschrijving = "soort";
    kolom_.velden.Productnaam = "polis";
    kolom_.velden.UwBemiddeling = true;
    kolom_.velden.Looptijd = 24;
    BindUnheard();
  }
  void ExpectFrames(bool visible) {
    EXPECT_EQ(on_[fraMij].Visible(), visible);
    EXPECT_EQ(on_[fraProductsoort].Visible(), visible);
    EXPECT_EQ(on_[fraProductnaam].Visible(), visible);
    EXPECT_EQ(on_[fraUwBemiddeling].Visible(), visible);
  }
};

TEST_F(ProductTest, FillsNoListsForAColumnThatIsNoProduct) {
  on_[fraProduct].SetVisible(false);
  Bind();
  EXPECT_THAT(Only(Log(), "call"), IsEmpty());
  EXPECT_EQ(on_[cboMaatschappij].ListCount(), 0);
  EXPECT_EQ(on_[cboProductsoort].ListCount(), 0);
  EXPECT_EQ(on_[chkProduct].Value(), host::kUnticked);
  ExpectFrames(false);
  EXPECT_TRUE(on_[fraProduct].Visible());
}

TEST_F(ProductTest, ShowsAProductOnLoading) {
  for (const auto& kader : {fraMij, fraProductsoort, fraProductnaam, fraUwBemiddeling, fraProduct})
    on_[kader].SetVisible(false);
  BindProduct("CD", 43);
  EXPECT_EQ(on_[chkProduct].Value(), host::kTicked);
  ExpectFrames(true);
  EXPECT_TRUE(on_[fraProduct].Visible());
  EXPECT_EQ(on_[cboMaatschappij].Text(), "Centrale Dekking");
  EXPECT_EQ(on_[txtMaatschappij].Text(), "naam") << "shown though it is disabled";
  EXPECT_FALSE(on_[txtMaatschappij].Enabled());
  EXPECT_EQ(on_[cboProductsoort].Text(), "Goed doel");
  EXPECT_EQ(on_[txtProductsoort].Text(), "soort");
  EXPECT_FALSE(on_[txtProductsoort].Enabled());
  EXPECT_EQ(on_[txtProductnaam].Text(), "polis");
  EXPECT_EQ(on_[jnUwBemiddeling].Value(), host::kJa);
}

TEST_F(ProductTest, FillsTheListsInsideTheFillOfTheProduct) {
  BindProduct();
  Bind();
  const Lines log = Log();
  const auto begin = std::find(log.begin(), log.end(), "enter Fill_Product");
  const auto end = std::find(begin, log.end(), "enter Toelichting.SetApplication");
  EXPECT_THAT(Lines(begin, end), ElementsAre("enter Fill_Product", "enter Fill_cboMaatschappij",
                                             "call VulCombo(MaatschappijType, cboMaatschappij, \"AB\", \"\")", "leave",
                                             "enter Fill_cboProductsoort", "leave", "leave"));
}

TEST_F(ProductTest, FillsTheListsAnewEachTime) {
  BindProduct();
  Bind();
  EXPECT_EQ(on_[cboMaatschappij].ListCount(), 3);
  ASSERT_EQ(on_[cboProductsoort].ListCount(), 5);
  struct Entry {
    const char* text;
    std::int32_t code;
  };
  int i = 0;
  for (const Entry& entry : {Entry{"Vereniging", 42}, Entry{"Goed doel", 43}, Entry{"Krant", 44},
                             Entry{"Tijdschrift", 45}, Entry{"Anders", 99}}) {
    EXPECT_EQ(on_[cboProductsoort].List(i), entry.text);
    EXPECT_EQ(on_[cboProductsoort].ItemData(i), entry.code);
    ++i;
  }
}

TEST_F(ProductTest, EnablesTheCompanyNameForExactlyTheCodeOfAnotherCompany) {
  struct Case {
    const char* code;
    bool enabled;
  };
  for (const Case& c : {Case{"ZZ", true}, Case{"zz", false}, Case{"AB", false}, Case{"", false}, Case{"ZZ ", false}}) {
    BindProduct(c.code);
    EXPECT_EQ(on_[txtMaatschappij].Enabled(), c.enabled) << c.code;
    EXPECT_EQ(on_[txtMaatschappij].Text(), "naam");
  }
  EXPECT_EQ(on_[cboMaatschappij].ListIndex(), host::kNoSelection) << "no company of that code";
}

TEST_F(ProductTest, StoresAProductWithoutAKindAsAnotherKind) {
  BindProduct("AB", 0);
  EXPECT_EQ(kolom_.velden.Productsoort, 99);
  EXPECT_EQ(on_[cboProductsoort].Text(), "Anders");
  EXPECT_TRUE(on_[txtProductsoort].Enabled());
  kolom_.velden.Productsoort = 0;
  Bind();
  EXPECT_THAT(Only(Log(), "set"), ElementsAre("set Productsoort=99")) << "the one write of loading";
}

TEST_F(ProductTest, SelectsNoKindForAnUnknownCode) {
  BindProduct("AB", 50);
  EXPECT_EQ(on_[cboProductsoort].ListIndex(), host::kNoSelection);
  EXPECT_FALSE(on_[txtProductsoort].Enabled());
  EXPECT_EQ(kolom_.velden.Productsoort, 50);
}

TEST_F(ProductTest, RunsAFixedKindUntilAContractExpiryDate) {
  BindProduct();
  Pick(on_[cboProductsoort], "Krant");
  EXPECT_THAT(
      Log(), ElementsAre("enter cboProductsoort_Click", "set Productsoort=44", "set ProductsoortOmschrijving=\"Krant\"",
                         "set Looptijd=999", "enter Fill_fraAlgemeen", "leave", "event HeightChanged", "leave"));
  EXPECT_EQ(on_[txtProductsoort].Text(), "Krant");
  EXPECT_FALSE(on_[txtProductsoort].Enabled());
  EXPECT_TRUE(on_[fraVervaldatum].Visible());
  EXPECT_FALSE(on_[fraLooptijd].Visible());
  EXPECT_FALSE(editor_->Gewijzigd());
  EXPECT_FALSE(editor_->Filling());
}

TEST_F(ProductTest, GoesBackToADurationForAnotherKind) {
  BindProduct("AB", 44);
  Pick(on_[cboProductsoort], "Anders");
  EXPECT_THAT(Log(), ElementsAre("enter cboProductsoort_Click", "set Productsoort=99", "set Looptijd=0",
                                 "set ProductsoortOmschrijving=\"\"", "enter Fill_fraAlgemeen", "leave",
                                 "event HeightChanged", "leave"));
  EXPECT_EQ(on_[txtProductsoort].Text(), "");
  EXPECT_TRUE(on_[txtProductsoort].Enabled());
  EXPECT_TRUE(on_[fraLooptijd].Visible());
}

TEST_F(ProductTest, StoresTheSameDurationForEachFixedKind) {
  BindProduct();
  for (const char* soort : {"Vereniging", "Goed doel", "Krant", "Tijdschrift"}) {
    Pick(on_[cboProductsoort], soort);
    EXPECT_EQ(kolom_.velden.Looptijd, 999);
    EXPECT_EQ(kolom_.velden.ProductsoortOmschrijving, soort);
    kolom_.velden.Looptijd = 0;
  }
}

TEST_F(ProductTest, GoesByTheKindAsTheRecordKeepsIt) {
  BindProduct();
  kolom_.adjust = [](KolomVelden& velden, std::string_view veld) {
    if (veld == "Productsoort") velden.Productsoort = 99;
    if (veld == "ProductsoortOmschrijving")
      velden.ProductsoortOmschrijving = "[" + velden.ProductsoortOmschrijving + "]";
  };
  Pick(on_[cboProductsoort], "Krant");
  EXPECT_EQ(kolom_.velden.Looptijd, 0);
  EXPECT_TRUE(on_[fraLooptijd].Visible());
  kolom_.adjust = [](KolomVelden& velden, std::string_view veld) {
    if (veld == "ProductsoortOmschrijving")
      velden.ProductsoortOmschrijving = "[" + velden.ProductsoortOmschrijving + "]";
  };
  Pick(on_[cboProductsoort], "Vereniging");
  EXPECT_EQ(on_[txtProductsoort].Text(), "[Vereniging]") << "as read back";
}

TEST_F(ProductTest, CopiesTheNameOfAListedCompany) {
  BindProduct("ZZ");
  Pick(on_[cboMaatschappij], "Alfa Bank");
  EXPECT_THAT(Log(), ElementsAre("enter cboMaatschappij_Click", "call ZoekCode(MaatschappijType, \"Alfa Bank\")",
                                 "set Maatschappij=\"AB\"", "set MaatschappijNaam=\"Alfa Bank\"", "leave"));
  EXPECT_EQ(on_[txtMaatschappij].Text(), "Alfa Bank");
  EXPECT_FALSE(on_[txtMaatschappij].Enabled());
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(ProductTest, ShowsTheCompanyNameAsTheRecordKeepsIt) {
  BindProduct();
  kolom_.adjust = [](KolomVelden& velden, std::string_view veld) {
    if (veld == "MaatschappijNaam") velden.MaatschappijNaam = "Bank";
  };
  Pick(on_[cboMaatschappij], "Centrale Dekking");
  EXPECT_EQ(on_[txtMaatschappij].Text(), "Bank");
}

TEST_F(ProductTest, LetsThePersonNameAnotherCompany) {
  BindProduct();
  Pick(on_[cboMaatschappij], "Anders");
  EXPECT_THAT(Log(),
              ElementsAre("enter cboMaatschappij_Click", "call ZoekCode(MaatschappijType, \"Anders\")",
                          "set Maatschappij=\"ZZ\"", "set MaatschappijNaam=\"\"", "focus txtMaatschappij", "leave"));
  EXPECT_EQ(on_[txtMaatschappij].Text(), "");
  EXPECT_TRUE(on_[txtMaatschappij].Enabled());
}

TEST_F(ProductTest, LooksTheCompanyUpBeforeItNeedsTheColumn) {
  BindProduct();
  BindUnheard(0, 9);
  Pick(on_[cboMaatschappij], "Anders");
  EXPECT_THAT(Log(), ElementsAre("enter cboMaatschappij_Click", "call ZoekCode(MaatschappijType, \"Anders\")",
                                 "error cboMaatschappij_Click", "report VrijeKolom 91"));
}

TEST_F(ProductTest, IsFilledWhenItBecomesAProduct) {
  BindUnheard();
  Act(on_[chkProduct], controls::Tick{host::kTicked});
  EXPECT_THAT(
      Log(), ElementsAre("enter chkProduct_Click", "set IsProduct=true", "set UwBemiddeling=true", "enter Fill_Product",
                         "enter Fill_cboMaatschappij", "call VulCombo(MaatschappijType, cboMaatschappij, \"\", \"\")",
                         "leave", "enter Fill_cboProductsoort", "set Productsoort=99", "leave", "leave", "leave"));
  ExpectFrames(true);
  EXPECT_EQ(on_[jnUwBemiddeling].Value(), host::kJa);
  EXPECT_FALSE(editor_->Filling());
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(ProductTest, EmptiesTheProductDataOfAContractAndItsDuration) {
  BindProduct("ZZ", 45);
  Act(on_[chkProduct], controls::Tick{host::kUnticked});
  EXPECT_THAT(Log(), ElementsAre("enter chkProduct_Click", "set IsProduct=false", "set Maatschappij=\"\"",
                                 "set MaatschappijNaam=\"\"", "set Productsoort=0", "set ProductsoortOmschrijving=\"\"",
                                 "set Productnaam=\"\"", "set UwBemiddeling=false", "set Looptijd=0",
                                 "enter Fill_fraAlgemeen", "leave", "event HeightChanged", "leave"));
  ExpectFrames(false);
  EXPECT_TRUE(on_[fraLooptijd].Visible());
  EXPECT_FALSE(on_[fraVervaldatum].Visible());
  EXPECT_EQ(on_[TxtAnJaar].Number(), 0);
  EXPECT_FALSE(editor_->Filling());
}

TEST_F(ProductTest, KeepsTheDurationOfAProductThatIsNoContract) {
  BindProduct("AB", 99);
  Act(on_[chkProduct], controls::Tick{host::kUnticked});
  EXPECT_THAT(Log(), ElementsAre("enter chkProduct_Click", "set IsProduct=false", "set Maatschappij=\"\"",
                                 "set MaatschappijNaam=\"\"", "set Productsoort=0", "set ProductsoortOmschrijving=\"\"",
                                 "set Productnaam=\"\"", "set UwBemiddeling=false", "leave"));
  EXPECT_EQ(kolom_.velden.Looptijd, 24);
}

TEST_F(ProductTest, ShowsTheFramesThoughNothingIsBound) {
  Act(on_[chkProduct], controls::Tick{host::kTicked});
  ExpectFrames(true);
  EXPECT_THAT(Log(), ElementsAre("enter chkProduct_Click", "error chkProduct_Click"));
}

TEST_F(ProductTest, ReportsAListWithoutASelectionBeforeItTraces) {
  BindUnheard();
  on_[cboProductsoort].Click.Raise();
  EXPECT_THAT(Log(), ElementsAre("error cboProductsoort_Click", "report VrijeKolom 381"));
  on_[cboMaatschappij].Click.Raise();
  EXPECT_THAT(Log(),
              ElementsAre("enter cboMaatschappij_Click", "error cboMaatschappij_Click", "report VrijeKolom 381"));
}

TEST_F(ProductTest, KeepsTheRestOfTheProductWhereTheCompaniesFail) {
  BindUnheard();
  on_[txtMaatschappij].SetText("van een andere kolom");
  host_.calls.Fail("VulCombo", Op::Call);
  Act(on_[chkProduct], controls::Tick{host::kTicked});
  EXPECT_THAT(
      Log(), ElementsAre("enter chkProduct_Click", "set IsProduct=true", "set UwBemiddeling=true", "enter Fill_Product",
                         "enter Fill_cboMaatschappij", "error Fill_cboMaatschappij", "report VrijeKolom 1004",
                         "enter Fill_cboProductsoort", "set Productsoort=99", "leave", "leave", "leave"));
  EXPECT_EQ(on_[txtMaatschappij].Text(), "");
  EXPECT_FALSE(on_[txtMaatschappij].Enabled());
  EXPECT_FALSE(editor_->Filling());
}

TEST_F(ProductTest, KeepsWhatItEmptiedBeforeAFailure) {
  BindProduct("ZZ", 45);
  host_.calls.Fail("Productnaam", Op::Set);
  Act(on_[chkProduct], controls::Tick{host::kUnticked});
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report VrijeKolom 1004"));
  EXPECT_FALSE(kolom_.velden.IsProduct);
  EXPECT_EQ(kolom_.velden.Productsoort, 0);
  EXPECT_EQ(kolom_.velden.Productnaam, "polis");
  EXPECT_TRUE(kolom_.velden.UwBemiddeling);
  EXPECT_EQ(kolom_.velden.Looptijd, 24);
}

TEST_F(ProductTest, LeavesFillingSetWhereTheLayoutFails) {
  BindProduct();
  subscriptions_ += editor_->HeightChanged.Connect([] { throw host::Error(host::ErrorNumber::Overflow); });
  Pick(on_[cboProductsoort], "Krant");
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report VrijeKolom 6"));
  EXPECT_TRUE(editor_->Filling());
  Act(on_[jnUwBemiddeling], controls::Toggle{host::kNee});
  EXPECT_THAT(Log(), IsEmpty());
}

}  // namespace

}  // namespace brivane::test
