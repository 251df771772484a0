#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <vector>

#include <brivane/frame/Graphemes.h>
#include <brivane/frame/Handle.h>
#include <brivane/frame/LayoutHelpers.h>
#include <brivane/host/Error.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::frame {

namespace {

constexpr Design kInner{.name = "Binnenste", .rows = {}, .width = 1500, .height = 750};
constexpr Row kRows[] = {
    {.name = "fraGroep", .kind = Kind::Frame, .place = {150, 300, 3000, 1500}, .caption = "Groep"},
    {.name = "txtNaam",
     .kind = Kind::TextBox,
     .place = {75, 225, 1500, 300},
     .parent = "fraGroep",
     .tab = 1,
     .label = "Naam",
     .format = Format::Text},
    {.name = "lblVast", .kind = Kind::Label, .place = {0, 600, 900, 240}, .parent = "fraGroep", .caption = "Vast"},
    {.name = "Binnenste", .kind = Kind::Surface, .place = {3300, 0, 1500, 750}, .tab = 2, .embedded = &kInner},
};
constexpr Design kDesign{.name = "Proef", .rows = kRows, .width = 6000, .height = 3000};
static_assert(Check(kDesign) == Fault::None);
constexpr auto fraGroep = Find<Kind::Frame>(kDesign, "fraGroep");
constexpr auto txtNaam = Find<Kind::TextBox>(kDesign, "txtNaam");
constexpr auto lblVast = Find<Kind::Label>(kDesign, "lblVast");
constexpr auto Binnenste = Find<Kind::Surface>(kDesign, "Binnenste");

class LayoutHelpers : public testing::Test {
 protected:
  void Scale(float twipsPerPixelX, float twipsPerPixelY, ControlNames keepSize = {}) {
    toolkit.Desktop().twipsPerPixelX = twipsPerPixelX;
    toolkit.Desktop().twipsPerPixelY = twipsPerPixelY;
    ScaleToResolution(toolkit.Desktop(), surface->Controls(), *surface, keepSize);
  }
  static void ExpectNear(const host::Place& place, const host::Place& expected) {
    EXPECT_FLOAT_EQ(place.left.value, expected.left.value);
    EXPECT_FLOAT_EQ(place.top.value, expected.top.value);
    EXPECT_FLOAT_EQ(place.width.value, expected.width.value);
    EXPECT_FLOAT_EQ(place.height.value, expected.height.value);
  }

  memory::Toolkit toolkit;
  std::unique_ptr<host::Surface> surface = toolkit.MakeSurface(kDesign);
  Controls controls{*surface};
};

/// A surface on which every character is 100 wide, or 150 in bold, and whose measuring can fail.
class Ruler final : public host::DrawingSurface {
 public:
  [[nodiscard]] bool FontBold() const override { return bold; }
  void SetFontBold(bool value) override { bold = value; }
  [[nodiscard]] host::Twips TextWidth(std::string_view text) const override {
    if (calls-- == 0) throw std::runtime_error("no font");
    return {static_cast<float>(text.size()) * (bold ? 150.0F : 100.0F)};
  }
  bool bold = false;
  mutable int calls = -1;  ///< measurements until one fails; never when negative
};

}  // namespace

TEST_F(LayoutHelpers, TheDesignScreenChangesNothing) {
  int resizes = 0;
  const host::Subscription resized = surface->Resize.Connect([&] { ++resizes; });
  Scale(15, 15);
  ExpectNear(controls[txtNaam].Place(), {{75}, {225}, {1500}, {300}});
  EXPECT_EQ(surface->Place().width.value, 6000);
  EXPECT_EQ(resizes, 0);
}

TEST_F(LayoutHelpers, At120DotsPerInchEverythingIsFourFifths) {
  Scale(12, 12);
  ExpectNear(controls[fraGroep].Place(), {{120}, {240}, {2400}, {1200}});
  ExpectNear(controls[txtNaam].Place(), {{60}, {180}, {1200}, {240}});
  ExpectNear(controls[lblVast].Place(), {{0}, {480}, {720}, {192}});
  ExpectNear(controls[Binnenste].Place(), {{2640}, {0}, {1200}, {600}});
  EXPECT_FLOAT_EQ(controls[txtNaam].Read(host::Measure::FontSize).value(), 7.2F);
  EXPECT_FALSE(controls[Binnenste].Read(host::Measure::FontSize));
  EXPECT_FLOAT_EQ(surface->Place().width.value, 4800);
  EXPECT_FLOAT_EQ(surface->Place().height.value, 2400);
}

TEST_F(LayoutHelpers, At72DotsPerInchEverythingIsFourThirds) {
  Scale(20, 20);
  ExpectNear(controls[txtNaam].Place(), {{100}, {300}, {2000}, {400}});
  EXPECT_FLOAT_EQ(controls[txtNaam].Read(host::Measure::FontSize).value(), 12);
  EXPECT_FLOAT_EQ(surface->Place().width.value, 8000);
}

TEST_F(LayoutHelpers, TheVerticalResolutionDecidesTheFactorAndEitherWhetherToScale) {
  Scale(12, 15);  // factor 1, yet scaled
  ExpectNear(controls[txtNaam].Place(), {{75}, {225}, {1500}, {300}});
  Scale(15, 30);
  ExpectNear(controls[txtNaam].Place(), {{150}, {450}, {3000}, {600}});
}

TEST_F(LayoutHelpers, AnExcludedControlKeepsItsSizeAndNothingElse) {
  constexpr std::string_view kKeep[] = {"lblVast"};
  Scale(12, 12, kKeep);
  ExpectNear(controls[lblVast].Place(), {{0}, {480}, {900}, {240}});
  EXPECT_FLOAT_EQ(controls[lblVast].Read(host::Measure::FontSize).value(), 7.2F);
  ExpectNear(controls[txtNaam].Place(), {{60}, {180}, {1200}, {240}});
}

TEST_F(LayoutHelpers, AFormKeepsTheHeightOfItsFrameAndTitle) {
  const auto form = toolkit.MakeForm(kDesign);
  const float frameHeight = form->Place().height.value - form->ScaleHeight().value;
  const float width = form->Place().width.value;
  toolkit.Desktop().twipsPerPixelX = 12;
  toolkit.Desktop().twipsPerPixelY = 12;
  ScaleToResolution(toolkit.Desktop(), form->Controls(), *form);
  EXPECT_FLOAT_EQ(form->Place().height.value, frameHeight + 3000 * 0.8F);
  EXPECT_FLOAT_EQ(form->Place().width.value, width * 0.8F);
  ExpectNear(form->At(txtNaam.row).Place(), {{60}, {180}, {1200}, {240}});
}

TEST_F(LayoutHelpers, AColourIsReplacedOnceAndWhereItStands) {
  const host::Color red{255};
  const host::Color blue{0xFF0000};
  ReplaceColor(surface->Controls(), red);
  EXPECT_EQ(controls[fraGroep].BackColor(), red);
  EXPECT_EQ(controls[lblVast].BackColor(), red);
  EXPECT_EQ(controls[Binnenste].BackColor(), red);
  EXPECT_EQ(controls[txtNaam].BackColor(), host::kWindowBackground);
  // Nothing holds the button face any more.
  ReplaceColor(surface->Controls(), blue);
  EXPECT_EQ(controls[fraGroep].BackColor(), red);
  EXPECT_EQ(controls[lblVast].BackColor(), red);
}

TEST_F(LayoutHelpers, ASkippedNameKeepsItsColour) {
  constexpr std::string_view kSkip[] = {"lblVast"};
  ReplaceColor(surface->Controls(), host::Color{255}, kSkip);
  EXPECT_EQ(controls[fraGroep].BackColor(), host::Color{255});
  EXPECT_EQ(controls[lblVast].BackColor(), host::kButtonFace);
}

TEST_F(LayoutHelpers, AnotherColourCanBeReplaced) {
  ReplaceColor(surface->Controls(), host::Color{255}, {}, host::kWindowBackground);
  EXPECT_EQ(controls[txtNaam].BackColor(), host::Color{255});
  EXPECT_EQ(controls[fraGroep].BackColor(), host::kButtonFace);
}

TEST_F(LayoutHelpers, AControlThatFailsToTakeTheColourIsPassedOver) {
  const host::Subscription failing =
      controls[Binnenste].BackColorSet.Connect([](host::Color) { throw host::Error(host::ErrorNumber::Overflow); });
  std::vector<host::Control*> order = {&controls[Binnenste], &controls[fraGroep]};
  ReplaceColor(order, host::Color{255});
  EXPECT_EQ(controls[fraGroep].BackColor(), host::Color{255});
}

TEST(FitText, ATextThatFitsComesBackUnchanged) {
  Ruler ruler;
  EXPECT_EQ(FitText(&ruler, "Krant", {500}), "Krant");
  EXPECT_EQ(FitText(&ruler, "", {0}), "");
  EXPECT_EQ(FitText(nullptr, "Krantenabonnement", {1}), "Krantenabonnement");
}

TEST(FitText, ALongerTextEndsInAnEllipsisThatFits) {
  Ruler ruler;
  EXPECT_EQ(FitText(&ruler, "Krantje", {600}), "Kra...");
  EXPECT_EQ(FitText(&ruler, "Krantje", {699}), "Kra...");
  EXPECT_EQ(FitText(&ruler, "Krantje", {400}), "K...");
}

TEST(FitText, AWidthNarrowerThanTheEllipsisLeavesTheEllipsisAlone) {
  Ruler ruler;
  EXPECT_EQ(FitText(&ruler, "Krantje", {300}), "...");
  EXPECT_EQ(FitText(&ruler, "Krantje", {10}), "...");
  EXPECT_EQ(FitText(&ruler, "Krantje", {-5}), "...");
}

TEST(FitText, WholeCharactersAreDropped) {
  Ruler ruler;  // measures bytes: "é" is 200 wide
  EXPECT_EQ(FitText(&ruler, "caf\u00E9s", {500}), "ca...");
  EXPECT_EQ(FitText(&ruler, "\u00E9\u00E9\u00E9", {550}), "\u00E9...");
  EXPECT_EQ(FitText(&ruler, "ae\u0308bc", {599}), "a...");
}

TEST(FitText, MeasuresInTheAskedWeightAndRestoresIt) {
  Ruler ruler;
  EXPECT_EQ(FitText(&ruler, "Krant", {500}, true), "...");
  EXPECT_FALSE(ruler.bold);
  ruler.bold = true;
  EXPECT_EQ(FitText(&ruler, "Krant", {500}, false), "Krant");
  EXPECT_TRUE(ruler.bold);
}

TEST(FitText, WhenMeasuringFailsTheTextStandsAsItIsAndTheWeightIsRestored) {
  Ruler ruler;
  ruler.calls = 0;
  EXPECT_EQ(FitText(&ruler, "Krantje", {400}, true), "Krantje");
  EXPECT_FALSE(ruler.bold);
  ruler.calls = 4;  // the text, the ellipsis and two lengths of the text are measured
  EXPECT_EQ(FitText(&ruler, "Krantje", {400}), "Krant");
}

/// A surface on which characters join: every seventh byte makes what stands before it a little narrower.
class JoiningRuler final : public host::DrawingSurface {
 public:
  [[nodiscard]] bool FontBold() const override { return false; }
  void SetFontBold(bool) override {}
  [[nodiscard]] host::Twips TextWidth(std::string_view text) const override {
    ++measured;
    const auto length = static_cast<float>(text.size());
    return {length * 100 - (text.size() % 7 == 0 ? 250.0F : 0.0F)};
  }
  mutable int measured = 0;
};

/// As the rule is told: the last character goes until the rest fits.
std::string ShortenedOneByOne(const host::DrawingSurface& surface, std::string text, host::Twips width) {
  if (surface.TextWidth(text) <= width) return text;
  const host::Twips ellipsis = surface.TextWidth("...");
  while (!text.empty() && surface.TextWidth(text) + ellipsis > width) text.resize(LastGraphemeStart(text));
  return text + "...";
}

TEST(FitText, ALongTextIsShortenedToTheSameWithoutMeasuringItForEachOfItsCharacters) {
  const std::string_view parts[] = {"a",    "\u00E9", "e\u0308", "\U0001F1F3\U0001F1F1", "\U0001F469\u200D\U0001F469",
                                    "\x80", "w"};
  std::string text;
  for (std::size_t i = 0; text.size() < 3000; ++i) text += parts[i * i % 7];
  for (int width = 0; width < 320000; width += 1234) {
    JoiningRuler ruler;
    const std::string expected = ShortenedOneByOne(ruler, text, {static_cast<float>(width)});
    ruler.measured = 0;
    EXPECT_EQ(FitText(&ruler, text, {static_cast<float>(width)}), expected) << width;
    EXPECT_LT(ruler.measured, 150) << width;
  }
}

/// A surface on which a longer text may be narrower, by less than 32 bytes.
class WobblyRuler final : public host::DrawingSurface {
 public:
  [[nodiscard]] bool FontBold() const override { return false; }
  void SetFontBold(bool) override {}
  [[nodiscard]] host::Twips TextWidth(std::string_view text) const override {
    return {static_cast<float>(text.size() * 100 + text.size() * 11 % 31 * 100)};
  }
};

TEST(FitText, ALongTextIsShortenedToTheSameWhereALongerOneMayBeNarrower) {
  const WobblyRuler ruler;
  std::string letters;
  std::string mixed;
  for (int i = 0; i < 40; ++i) {
    letters += "abcdefghij";
    mixed += "e\u0308\u20AC\U0001F600";
  }
  for (const std::string& whole : {letters, mixed})
    for (const std::size_t length : {1U, 31U, 32U, 33U, 34U, 63U, 64U, 65U, 66U, 96U, 97U, 130U, 400U}) {
      const std::string text = whole.substr(0, length);
      for (int width = 0; width < 45000; width += 100) {
        WobblyRuler measuring;
        EXPECT_EQ(FitText(&measuring, text, {static_cast<float>(width)}),
                  ShortenedOneByOne(ruler, text, {static_cast<float>(width)}))
            << length << ' ' << width;
      }
    }
}

TEST(SmallerAndLarger, GiveTheSecondWhenEqual) {
  EXPECT_EQ(Smaller(80, 200), 80);
  EXPECT_EQ(Smaller(200, 80), 80);
  EXPECT_EQ(Larger(0, 1), 1);
  EXPECT_EQ(Larger(1, 0), 1);
  EXPECT_FALSE(std::signbit(Smaller(-0.0, 0.0)));
  EXPECT_FALSE(std::signbit(Larger(-0.0, 0.0)));
}

TEST(Contains, LooksAtEveryElement) {
  const std::vector<int> list = {3, 1, 2};
  EXPECT_TRUE(Contains(3, list));
  EXPECT_TRUE(Contains(2, list));
  EXPECT_FALSE(Contains(4, list));
  EXPECT_FALSE(Contains(4, std::vector<int>{}));
  constexpr std::string_view kNames[] = {"a", "b"};
  EXPECT_TRUE(Contains(std::string_view("b"), kNames));
  EXPECT_FALSE(Contains(std::string_view("B"), kNames));
}

}  // namespace brivane::frame
