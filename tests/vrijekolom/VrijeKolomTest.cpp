// What ties the editor to its surface, and until when.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using namespace vrijekolom;

class EditorEndTest : public EditorTest {
 protected:
  /// A person tries every action on every control, code writes the toggles, which may be out of reach, and the
  /// container sizes and colours the surface.
  void WorkOnEverything(float width) {
    WorkOn(controls::Surface::Of(*surface_));
    controls::Surface::Of(*surface_).Size({width}, {4000});
    surface_->SetBackColor({0x00FF00});
  }

 private:
  static void WorkOn(controls::Surface& surface) {
    for (const auto& control : surface.Made()) {
      if (auto* const inner = dynamic_cast<controls::Surface*>(control.get())) WorkOn(*inner);
      for (const controls::Action& action :
           {controls::Action{controls::Enter{std::string("x")}}, controls::Action{controls::Enter{1.0}},
            controls::Action{controls::Toggle{host::kJa}}, controls::Action{controls::Toggle{host::kNee}},
            controls::Action{controls::Tick{host::kTicked}}, controls::Action{controls::Tick{host::kUnticked}},
            controls::Action{controls::Choose{0}}, controls::Action{controls::Choose{1}},
            controls::Action{controls::Select{}}, controls::Action{controls::Press{}}})
        (void)control->Perform(action);
      if (auto* const toggle = dynamic_cast<host::JaNee*>(&control->Host()))
        toggle->SetValue(toggle->Value() == host::kJa ? host::kNee : host::kJa);
    }
  }
};

TEST_F(EditorEndTest, ASurfaceThatOutlivesItsEditorCallsNothing) {
  kolom_.velden.IsProduct = true;
  editor_->SetBeeindigenZichtbaar(true);
  BindUnheard();
  WorkOnEverything(9000);
  const Lines live = Log();
  // One line of each event that the editor hears, to see that the work reaches them.
  for (const char* line : {"event HeightChanged", "enter optLast_Click", "enter optFiscaal_Click",
                           "enter optAanvrager_Click", "enter ChkVoorstel_Click", "enter jnInkUitArbeid_Change",
                           "enter jnUwBemiddeling_Change", "enter TxtBd_Validation", "enter CboTermijn_Click",
                           "enter chkProduct_Click", "enter cmdScenario_Click", "enter Toelichting.jnAO_Change"})
    EXPECT_THAT(live, Contains(line));
  EXPECT_EQ(on_[fraLast].BackColor(), host::Color{0x00FF00});

  Bind();
  editor_->SetBackColor(host::kButtonFace);
  Forget();
  editor_.reset();
  EXPECT_THAT(Log(), IsEmpty()) << "ending itself calls nothing either";
  const host::Color was = *on_[fraLast].BackColor();
  surface_->SetBackColor({0x0000FF});
  EXPECT_EQ(on_[fraLast].BackColor(), was);
  WorkOnEverything(8000);
  EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(EditorEndTest, AnotherEditorTakesTheSurfaceOver) {
  BindUnheard();
  Make();
  Bind();
  Forget();
  Act(on_[TxtOm], controls::Enter{std::string("anders")});
  EXPECT_THAT(Log(), ::testing::ElementsAre("enter TxtOm_Validation", "set Omschrijving=\"anders\"",
                                            "event RefreshTopDisplay de kopregel", "leave"));
}

class ExplanationMarkTest : public EditorTest {};

TEST_F(ExplanationMarkTest, StandsWhoeverElseListensToTheExplanation) {
  bool marked = false;
  subscriptions_ += editor_->Toelichting().Changed.Connect([&] { marked = editor_->Gewijzigd(); });
  BindUnheard();
  Act(InToelichting()[toelichting::jnAO], controls::Toggle{host::kNee});
  EXPECT_TRUE(marked) << "the editor is the first to be told";
  EXPECT_TRUE(editor_->Gewijzigd());
}

}  // namespace

}  // namespace brivane::test
