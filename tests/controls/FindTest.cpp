#include <gtest/gtest.h>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::controls {

class Find : public testing::Test {
 protected:
  memory::Toolkit toolkit;
  std::unique_ptr<host::Surface> surface = toolkit.MakeSurface(test::kSurface);
  Surface& area = Surface::Of(*surface);
};

TEST_F(Find, GivesAControlByNameAndAnElementByIndex) {
  ASSERT_NE(area.Find("txtNaam"), nullptr);
  EXPECT_EQ(area.Find("txtNaam")->ElementName(), "txtNaam");
  ASSERT_NE(area.Find("optSoort", 2), nullptr);
  EXPECT_EQ(area.Find("optSoort", 2)->ElementName(), "optSoort(2)");
}

TEST_F(Find, GivesAControlOfAnEmbeddedSurface) {
  AnyControl* inner = area.Find("Binnenste.jnBinnen");
  ASSERT_NE(inner, nullptr);
  EXPECT_EQ(inner->ElementName(), "Binnenste.jnBinnen");
  EXPECT_EQ(inner->Container()->ElementName(), "Binnenste.fraBinnen");
  EXPECT_EQ(inner->Owner(), area.Find("Binnenste"));
}

TEST_F(Find, GivesNothingForWhatIsNotThere) {
  EXPECT_EQ(area.Find("TxtNaam"), nullptr);
  EXPECT_EQ(area.Find(""), nullptr);
  EXPECT_EQ(area.Find("optSoort"), nullptr);
  EXPECT_EQ(area.Find("optSoort", 4), nullptr);
  EXPECT_EQ(area.Find("txtNaam", 1), nullptr);
  EXPECT_EQ(area.Find("txtNaam.jnBinnen"), nullptr);
  EXPECT_EQ(area.Find("Binnenste."), nullptr);
  EXPECT_EQ(area.Find("jnBinnen"), nullptr);
}

TEST_F(Find, GivesRunTimeElementsAndTheirTemplate) {
  const auto form = toolkit.MakeForm(test::kForm);
  constexpr auto txtBedrag = frame::Find<frame::Kind::TextBox>(test::kForm, "txtBedrag");
  host::Control& made = form->Create(txtBedrag.row, 7);
  Surface& window = Surface::Of(*form);
  EXPECT_EQ(&window.Find("txtBedrag", 7)->Host(), &made);
  EXPECT_EQ(window.Find("txtBedrag", 7)->ElementName(), "txtBedrag(7)");
  EXPECT_EQ(&window.Find("txtBedrag", 0)->Host(), &form->At(txtBedrag.row));
  EXPECT_EQ(&AnyControl::Of(made), window.Find("txtBedrag", 7));
}

TEST_F(Find, KnowsWhatIsShownThroughAllThatItStandsIn) {
  AnyControl* inner = area.Find("Binnenste.jnBinnen");
  EXPECT_TRUE(inner->Shown());
  area.Find("Binnenste")->Host().SetVisible(false);
  EXPECT_FALSE(inner->Shown());
  area.Find("Binnenste")->Host().SetVisible(true);
  inner->Host().SetEnabled(false);
  EXPECT_TRUE(inner->Shown());
  EXPECT_FALSE(inner->Reachable());
}

}  // namespace brivane::controls
