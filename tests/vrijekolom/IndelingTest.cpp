// The layout of the editor, in twips.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using host::Place;
using host::Twips;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace vrijekolom;

class EditorLayoutTest : public EditorTest {
 protected:
  void SetUp() override {
    SizeFrames();
    Make();
  }
  /// The sizes that the expectations count with, whatever the design gives the frames.
  void SizeFrames() {
    for (const auto& kader : {fraFiscaal, fraAlgemeen, fraGegevens, fraHeffing}) on_[kader].Move({{1}, {2}, {3}, {4}});
    on_[fraLast].Move({{0}, {0}, {6300}, {660}});
    on_[fraProduct].Move({{1}, {2}, {6030}, {2790}});
    for (const auto& [kader, hoogte] :
         {std::pair{fraFiscaal, 660}, std::pair{fraGegevens, 2220}, std::pair{fraHeffing, 660}})
      on_[kader].Write(host::Measure::Height, static_cast<float>(hoogte));
    InToelichting()[toelichting::fraContent].Move({{135}, {2115}, {5760}, {1890}});
    controls::Surface::Of(dynamic_cast<host::Surface&>(on_[ToelichtingVlak])).Size({6030}, {4065});
  }
  void Size(float width, float height) { controls::Surface::Of(*surface_).Size({width}, {height}); }
  [[nodiscard]] Twips Top(host::Control& control) { return control.Place().top; }
  [[nodiscard]] Twips Height(host::Control& control) { return control.Place().height; }
};

TEST_F(EditorLayoutTest, PutsTheRowsOfTheGeneralFrameInPlace) {
  struct Case {
    std::int16_t soort;
    float looptijd;
    float vervaldatum;
  };
  for (const Case& c : {Case{0, 660, 1020}, Case{44, 660, 660}}) {
    for (const auto& kader : {fraAanvangsdatum, fraLooptijd, fraVervaldatum, fraBeeindigen})
      on_[kader].Write(host::Measure::Top, 7);
    on_[fraAlgemeen].Write(host::Measure::Height, 7);
    kolom_.velden.Productsoort = c.soort;
    Bind();
    EXPECT_EQ(Top(on_[fraAanvangsdatum]), Twips{300});
    EXPECT_EQ(Top(on_[fraLooptijd]), Twips{c.looptijd});
    EXPECT_EQ(Top(on_[fraVervaldatum]), Twips{c.vervaldatum});
    EXPECT_EQ(Top(on_[fraBeeindigen]), Twips{1020});
    EXPECT_EQ(Height(on_[fraAlgemeen]), Twips{1080});
  }
}

TEST_F(EditorLayoutTest, StacksTheLeftColumn) {
  on_[fraLast].Move({{30}, {40}, {5000}, {700}});
  on_[fraFiscaal].Move({{1}, {1}, {1}, {900}});
  on_[fraGegevens].Move({{2}, {2}, {2}, {1500}});
  on_[fraHeffing].Move({{3}, {3}, {3}, {600}});
  on_[fraProduct].Write(host::Measure::Height, 100);
  Size(12450, 1);
  EXPECT_EQ(on_[fraLast].Place(), (Place{{0}, {0}, {5000}, {700}}));
  EXPECT_EQ(on_[fraFiscaal].Place(), (Place{{0}, {760}, {5000}, {900}}));
  EXPECT_EQ(on_[fraAlgemeen].Place(), (Place{{0}, {1720}, {5000}, {1080}}));
  EXPECT_EQ(on_[fraGegevens].Place(), (Place{{0}, {2860}, {5000}, {1500}}));
  EXPECT_EQ(on_[fraHeffing].Place(), (Place{{0}, {4420}, {5000}, {600}}));
  EXPECT_EQ(on_[fraProduct].Place(), (Place{{5120}, {0}, {6030}, {100}}));
  EXPECT_EQ(on_[ToelichtingVlak].Place(), (Place{{5120}, {160}, {6030}, {4065}}));
  EXPECT_EQ(Height(*surface_), Twips{5020}) << "the left column is the taller one: 4420 + 600 over 160 + 4065";
}

TEST_F(EditorLayoutTest, TakesItsHeightFromTheTallerColumn) {
  Bind();
  // Left: 660, 660, 1080, 2220 and 660 high, 60 apart. Right: 2790 high, and 4065 below it.
  EXPECT_EQ(on_[fraHeffing].Place().Bottom(), Twips{5520});
  EXPECT_EQ(on_[fraProduct].Place(), (Place{{6420}, {0}, {6030}, {2790}}));
  EXPECT_EQ(on_[ToelichtingVlak].Place(), (Place{{6420}, {2850}, {6030}, {4065}}));
  EXPECT_EQ(Height(*surface_), Twips{6915});
}

TEST_F(EditorLayoutTest, GivesHiddenFramesTheirPlace) {
  for (const auto& kader : {fraFiscaal, fraAlgemeen, fraGegevens}) on_[kader].SetVisible(false);
  Bind();
  EXPECT_EQ(on_[fraHeffing].Place().Bottom(), Twips{5520});
}

TEST_F(EditorLayoutTest, PlacesTheExplanationControlOnWholeTwips) {
  struct Case {
    float height;
    float top;
  };
  for (const Case& c : {Case{100.25F, 160}, Case{100.5F, 160}, Case{101.5F, 162}, Case{100.75F, 161}}) {
    on_[fraProduct].Write(host::Measure::Height, c.height);
    Bind();
    EXPECT_EQ(Top(on_[ToelichtingVlak]), Twips{c.top}) << c.height;
  }
}

TEST_F(EditorLayoutTest, TellsItsHeightOncePerLayout) {
  Size(9000, 4000);
  EXPECT_THAT(Log(), ElementsAre("event HeightChanged"));
  EXPECT_EQ(Height(*surface_), Twips{6915}) << "the height is the control's own";
  Size(9000, 6915);
  EXPECT_THAT(Log(), ElementsAre("event HeightChanged")) << "also where nothing changed";
}

TEST_F(EditorLayoutTest, IsSilentFromAFailureOn) {
  Bind();
  host::Subscription listener = editor_->HeightChanged.Connect([] { throw host::Error(5, "luisteraar", "host"); });
  EXPECT_THROW(Size(9000, 4000), host::Error) << "untraced: the one who resized is told";
  int told = 0;
  listener = editor_->HeightChanged.Connect([&told] { ++told; });
  Size(9000, 5000);
  Bind();
  EXPECT_EQ(told, 0);
  EXPECT_EQ(Height(*surface_), Twips{5000});
}

TEST_F(EditorLayoutTest, FailsTheBindingThatCalledIt) {
  subscriptions_ += editor_->HeightChanged.Connect([] { throw host::Error(5, "luisteraar", "host"); });
  Bind();
  const Lines log = Log();
  ASSERT_GE(log.size(), 2U);
  EXPECT_THAT(Lines(log.end() - 2, log.end()), ElementsAre("error SetApplication", "report VrijeKolom 5"));
  EXPECT_TRUE(editor_->Filling());
}

class ScaledEditorTest : public EditorLayoutTest {
 protected:
  void SetUp() override { SizeFrames(); }
  void MakeAt(float x, float y) {
    toolkit_.Desktop().twipsPerPixelX = x;
    toolkit_.Desktop().twipsPerPixelY = y;
    Make();
  }
};

TEST_F(ScaledEditorTest, ShrinksOnAFinerScreen) {
  MakeAt(12, 12);  // 0.8 of the design
  EXPECT_EQ(on_[fraLast].Place(), (Place{{0}, {0}, {5040}, {528}}));
  EXPECT_FLOAT_EQ(on_[TxtOm].Read(host::Measure::FontSize).value(), 7.2F);
  const frame::DesignPlace& ontwerp = kOntwerp.rows[TxtOm.row].place;
  EXPECT_FLOAT_EQ(on_[TxtOm].Place().left.value, 0.8F * static_cast<float>(ontwerp.left));
  EXPECT_FLOAT_EQ(on_[TxtOm].Place().top.value, 0.8F * static_cast<float>(ontwerp.top));
  EXPECT_FLOAT_EQ(on_[TxtOm].Place().width.value, 0.8F * static_cast<float>(ontwerp.width));
  EXPECT_FLOAT_EQ(on_[TxtOm].Place().height.value, 0.8F * static_cast<float>(ontwerp.height));
  Bind();
  // The frames keep their scaled sizes; distances, rows and the general frame's height are not scaled.
  EXPECT_EQ(Top(on_[fraLooptijd]), Twips{660});
  EXPECT_EQ(on_[fraFiscaal].Place(), (Place{{0}, {588}, {5040}, {528}}));
  EXPECT_EQ(on_[fraAlgemeen].Place(), (Place{{0}, {1176}, {5040}, {1080}}));
  EXPECT_EQ(on_[fraGegevens].Place(), (Place{{0}, {2316}, {5040}, {1776}}));
  EXPECT_EQ(on_[fraHeffing].Place(), (Place{{0}, {4152}, {5040}, {528}}));
  EXPECT_EQ(on_[fraProduct].Place(), (Place{{5160}, {0}, {4824}, {2232}}));
  EXPECT_EQ(on_[ToelichtingVlak].Place(), (Place{{5160}, {2292}, {4824}, {3288}}));
  EXPECT_EQ(Height(*surface_), Twips{5580});
}

TEST_F(ScaledEditorTest, GrowsOnACoarserScreen) {
  MakeAt(20, 20);  // four thirds of the design
  EXPECT_EQ(on_[fraLast].Place(), (Place{{0}, {0}, {8400}, {880}}));
  EXPECT_FLOAT_EQ(on_[TxtOm].Read(host::Measure::FontSize).value(), 12);
  Bind();
  EXPECT_EQ(on_[fraGegevens].Place(), (Place{{0}, {3020}, {8400}, {2960}}));  // 880+60+880+60+1080+60
  EXPECT_EQ(on_[fraHeffing].Place(), (Place{{0}, {6040}, {8400}, {880}}));
  EXPECT_EQ(on_[fraProduct].Place(), (Place{{8520}, {0}, {8040}, {3720}}));
  EXPECT_EQ(on_[ToelichtingVlak].Place(), (Place{{8520}, {3780}, {8040}, {5360}}));
  EXPECT_EQ(Height(*surface_), Twips{9140});
}

TEST_F(ScaledEditorTest, TakesTheVerticalFactorForBothDirections) {
  MakeAt(15, 12);
  EXPECT_EQ(on_[fraLast].Place().width, Twips{5040});
}

TEST_F(ScaledEditorTest, KeepsTheDesignAtFifteenTwips) {
  MakeAt(15, 15);
  EXPECT_EQ(on_[fraLast].Place(), (Place{{0}, {0}, {6300}, {660}}));
  EXPECT_THAT(Log(), IsEmpty());
}

class BackColorTest : public EditorTest {};

TEST_F(BackColorTest, GoesOnceToWhatStillHasTheButtonFace) {
  constexpr host::Color kRood{0x0000FF};
  constexpr host::Color kBlauw{0xFF0000};
  constexpr host::Color kGroen{0x00FF00};
  on_[fraHeffing].SetBackColor(kGroen);
  EXPECT_EQ(editor_->BackColor(), host::kButtonFace);
  editor_->SetBackColor(kRood);
  EXPECT_EQ(editor_->BackColor(), kRood);
  EXPECT_EQ(editor_->Toelichting().BackColor(), kRood);
  EXPECT_EQ(on_[fraHeffing].BackColor(), kGroen) << "a colour of its own stays";
  for (host::Control* control : surface_->Controls()) {
    if (control == &on_[fraHeffing]) continue;
    EXPECT_NE(control->BackColor(), host::kButtonFace) << control->Name();
  }
  EXPECT_EQ(InToelichting()[toelichting::fraContent].BackColor(), kRood);

  editor_->SetBackColor(kBlauw);
  EXPECT_EQ(editor_->BackColor(), kBlauw);
  EXPECT_EQ(on_[fraLast].BackColor(), kRood) << "no longer the button face";
  EXPECT_EQ(editor_->Toelichting().BackColor(), kRood);
  EXPECT_THAT(Log(), IsEmpty()) << "untraced";
}

}  // namespace

}  // namespace brivane::test
