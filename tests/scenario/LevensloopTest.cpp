#include "tests/scenario/Formulier.h"

namespace brivane::tests {
namespace {

constexpr host::Color kRood{255};

/// The form from its making to its closing.
class Levensloop : public Formulier {};

TEST_F(Levensloop, ItIsModalAndReleasesTheScenarioWhenItCloses) {
  Open(1, 3);
  EXPECT_EQ(form->Scenario(), scenario);
  EXPECT_EQ(scenario.use_count(), 2);
  bool open = false;
  toolkit.modal = [&](controls::Form& venster) {
    open = true;
    EXPECT_EQ(form->Scenario(), scenario);
    venster.Find("cmdOK")->Perform(controls::Press{});
    EXPECT_TRUE(venster.IsUnloaded());
  };
  form->ShowModal(nullptr);
  EXPECT_TRUE(open);
  EXPECT_EQ(form->Scenario(), nullptr);
  EXPECT_EQ(scenario.use_count(), 1);
}

TEST_F(Levensloop, TheCloseBoxReleasesTheScenarioToo) {
  Open(1, 3);
  toolkit.modal = [](controls::Form& venster) { venster.Perform(controls::Close{}); };
  form->ShowModal(nullptr);
  EXPECT_EQ(scenario.use_count(), 1);
}

TEST_F(Levensloop, OKSaysWhenItsStoringBeginsAndEnds) {
  Open(2, 2);
  host::Subscriptions luistert;
  luistert += form->OpslagBegint.Connect([&] { scenario->log.emplace_back("begint"); });
  luistert += form->OpslagEindigt.Connect([&] { scenario->log.emplace_back("eindigt"); });
  luistert += form->Form().Unloaded.Connect([&] { scenario->log.emplace_back("gesloten"); });
  Typ("txtPercentage", 1, 4.0);
  EXPECT_EQ(scenario->log, std::vector<std::string>{"Bedrag = 4"}) << "an edit stores by itself";
  scenario->log.clear();
  DrukOK();
  EXPECT_EQ(scenario->log.front(), "begint");
  EXPECT_EQ(std::vector<std::string>(scenario->log.end() - 2, scenario->log.end()),
            (std::vector<std::string>{"eindigt", "gesloten"}));
  EXPECT_GT(scenario->log.size(), 3U) << "between them it writes";
}

TEST_F(Levensloop, ShowingGivesEveryButtonFaceTheFormsColour) {
  EXPECT_EQ(form->BackColor(), host::kButtonFace);
  form->SetBackColor(kRood);
  Open(1, 2);
  EXPECT_EQ(Control("fraScenario").BackColor(), host::kButtonFace);
  const auto vak = Control("txtBedrag", 1).BackColor();
  Control("lblJaar", 2).SetBackColor(host::Color{7});
  toolkit.modal = [&](controls::Form&) {
    EXPECT_EQ(Control("fraScenario").BackColor(), kRood);
    EXPECT_EQ(Control("lblJaar", 1).BackColor(), kRood);
    EXPECT_EQ(Control("cmdOK").BackColor(), kRood);
    // A colour of its own stays, that of boxes too.
    EXPECT_EQ(Control("lblJaar", 2).BackColor(), host::Color{7});
    EXPECT_EQ(Control("txtBedrag", 1).BackColor(), vak);
  };
  form->ShowModal(nullptr);
  EXPECT_EQ(form->BackColor(), kRood);
}

TEST_F(Levensloop, AFineScreenScalesTheTemplatesBeforeTheRowsAreMade) {
  toolkit.Desktop().twipsPerPixelX = 12;
  toolkit.Desktop().twipsPerPixelY = 12;
  Nieuw();
  Open(1, 2, {.labeltype = 1});
  // Widths and heights are 0.8 of the design: 420, 225 and 1470, 315; places follow the run-time constants.
  const host::Place label = Control("lblJaar", 1).Place();
  EXPECT_FLOAT_EQ(label.left.value, 135);
  EXPECT_FLOAT_EQ(label.top.value, 1070);
  EXPECT_FLOAT_EQ(label.width.value, 336);
  EXPECT_FLOAT_EQ(label.height.value, 180);
  const host::Place vak = Control("txtBedrag", 1).Place();
  EXPECT_FLOAT_EQ(vak.left.value, 135 + 336 + 60);
  EXPECT_FLOAT_EQ(vak.top.value, 1020);
  EXPECT_FLOAT_EQ(vak.width.value, 1176);
  EXPECT_FLOAT_EQ(vak.height.value, 252);
  // 336 + 60 + 1176 + 120 + 204 + 60 + 204 = 2160.
  EXPECT_FLOAT_EQ(Control("lblJaar", 2).Place().left.value, 2295);
  EXPECT_FLOAT_EQ(Control("fraScenario").Place().left.value, 96);
  EXPECT_FLOAT_EQ(*Control("txtBedrag", 1).Read(host::Measure::FontSize), 6.6F);
  // A narrow row label is narrow on every screen.
  Nieuw();
  Open(1, 2);
  EXPECT_FLOAT_EQ(Control("lblJaar", 1).Place().width.value, 240);
}

TEST_F(Levensloop, TheScreenAndTheFormsOwnPropertiesNeedNoScenario) {
  EXPECT_EQ(form->Scenario(), nullptr);
  EXPECT_EQ(form->AantalJaar(), 0);
  EXPECT_EQ(form->SoortScenario(), 0);
  form->SetSoortScenario(2);
  EXPECT_EQ(form->SoortScenario(), 2);
  EXPECT_FALSE(form->Gewijzigd());
}

TEST_F(Levensloop, AFormThatWasNeverShownEndsQuietly) {
  Open(1, 80);
  form.reset();
  EXPECT_EQ(scenario.use_count(), 1);
  EXPECT_TRUE(berichten.empty());
}

TEST_F(Levensloop, OKOnAFormThatNeverGotAScenarioIsShown) {
  DrukOK();
  EXPECT_EQ(berichten, (std::vector<Bericht>{Foutbericht(91, "Object missing")}));
}

}  // namespace
}  // namespace brivane::tests
