#include "tests/toolkits/conformance/Conformance.h"

/// Sizes, resizes, measures, colours and text widths.
namespace brivane::test {

using host::Measure;

TEST_P(Conformance, ASizeChangeRaisesOneResize) {
  subscriptions +=
      surface->Resize.Connect([&] { log.push_back("Resize " + std::to_string(surface->Place().width.value)); });
  surface->Move({{0}, {0}, {9000}, {4500}});
  surface->Write(Measure::Width, 7500);
  surface->Write(Measure::Width, 7500);
  surface->Move({{150}, {150}, {7500}, {4500}});
  subject->Settle();
  EXPECT_EQ(log, (std::vector<std::string>{"Resize 9000.000000", "Resize 7500.000000"}));
}

TEST_P(Conformance, TheContainersSizingRaisesOneResizeAlsoToThePresentSize) {
  int resizes = 0;
  subscriptions += surface->Resize.Connect([&] { ++resizes; });
  Area().Size({9000}, {4500});
  EXPECT_EQ(resizes, 1);
  EXPECT_EQ(surface->Place().width, host::Twips{9000});
  EXPECT_EQ(surface->Place().height, host::Twips{4500});
  Area().Size({9000}, {4500});
  subject->Settle();
  EXPECT_EQ(resizes, 2);
}

TEST_P(Conformance, ResizingInsideTheResizeRaisesANestedOne) {
  subscriptions += surface->Resize.Connect([&] {
    log.push_back("begin " + std::to_string(static_cast<int>(surface->Place().height.value)));
    if (log.size() == 1) surface->Write(Measure::Height, 3000);
    log.emplace_back("end");
  });
  Area().Size({9000}, {4500});
  subject->Settle();
  EXPECT_EQ(log, (std::vector<std::string>{"begin 4500", "begin 3000", "end", "end"}));
  EXPECT_EQ(surface->Place().height, host::Twips{3000});
}

TEST_P(Conformance, AnEmbeddedSurfaceResizesByItself) {
  auto& inner = Get<controls::ControlSurface>("Binnenste");
  subscriptions += surface->Resize.Connect([&] { log.emplace_back("outer"); });
  subscriptions += inner.Resize.Connect([&] { log.emplace_back("inner"); });
  inner.Write(Measure::Height, 600);
  surface->Write(Measure::Height, 6000);
  subject->Settle();
  EXPECT_EQ(log, (std::vector<std::string>{"inner", "outer"}));
  EXPECT_EQ(Shown("Binnenste").place, (host::Place{{6120}, {4320}, {3000}, {600}}));
}

TEST_P(Conformance, EachMeasureIsReadAndWrittenAsItStands) {
  auto& box = Get<controls::TextBox>("txtNaam");
  box.Write(Measure::Left, 30);
  box.Write(Measure::Top, 45);
  box.Write(Measure::Width, 1500);
  box.Write(Measure::Height, 285);
  EXPECT_EQ(box.Read(Measure::Left), 30.0F);
  EXPECT_EQ(box.Read(Measure::Top), 45.0F);
  EXPECT_EQ(box.Read(Measure::Width), 1500.0F);
  EXPECT_EQ(box.Read(Measure::Height), 285.0F);
  EXPECT_EQ(box.Place(), (host::Place{{30}, {45}, {1500}, {285}}));
  EXPECT_EQ(Shown("txtNaam").place, (host::Place{{30}, {45}, {1500}, {285}}));
}

TEST_P(Conformance, MeasuresKeepTheirFractions) {
  auto& box = Get<controls::TextBox>("txtNaam");
  box.Write(Measure::Left, 100.25F);
  EXPECT_EQ(box.Read(Measure::Left), 100.25F);
  box.Move({{100.5F}, {200.125F}, {1000.75F}, {300.5F}});
  EXPECT_EQ(box.Place(), (host::Place{{100.5F}, {200.125F}, {1000.75F}, {300.5F}}));
}

TEST_P(Conformance, EveryControlHasPlaceAndSizeAndAFontButForASurface) {
  for (host::Control* control : surface->Controls()) {
    SCOPED_TRACE(control->Name());
    for (const Measure measure : {Measure::Left, Measure::Top, Measure::Width, Measure::Height})
      EXPECT_TRUE(control->Read(measure));
    const std::optional<float> font = control->Read(Measure::FontSize);
    EXPECT_EQ(font, control->Kind() == host::Kind::Surface ? std::nullopt : std::optional(9.0F));
    for (const Measure measure : {Measure::X1, Measure::X2, Measure::Y1, Measure::Y2})
      EXPECT_FALSE(control->Read(measure));
  }
}

TEST_P(Conformance, WritingAMeasureThatIsNotThereIsIgnored) {
  auto& inner = Get<controls::ControlSurface>("Binnenste");
  const host::Place before = inner.Place();
  inner.Write(Measure::FontSize, 12);
  inner.Write(Measure::X1, 12);
  EXPECT_EQ(inner.Place(), before);
  EXPECT_FALSE(inner.Read(Measure::FontSize));
  auto& label = Get<controls::Label>("lblNaam");
  label.Write(Measure::FontSize, 7.2F);
  EXPECT_EQ(label.Read(Measure::FontSize), 7.2F);
}

TEST_P(Conformance, EveryControlTakesABackgroundColour) {
  for (host::Control* control : surface->Controls()) {
    control->SetBackColor(host::Color{255});
    EXPECT_EQ(control->BackColor(), host::Color{255}) << control->Name();
  }
  subject->Settle();
  for (const controls::ControlDump& dump : subject->Shown(Area()))
    if (dump.name.find('.') == std::string::npos) {
      EXPECT_EQ(dump.backColor, host::Color{255}) << dump.name;
    }
}

TEST_P(Conformance, ASurfaceTellsThatItsBackgroundWasSet) {
  auto& inner = Get<controls::ControlSurface>("Binnenste");
  subscriptions +=
      surface->BackColorSet.Connect([&](host::Color color) { log.push_back("outer " + std::to_string(color.value)); });
  subscriptions += inner.BackColorSet.Connect([&](host::Color color) {
    log.push_back("inner " + std::to_string(color.value));
    EXPECT_EQ(inner.BackColor(), color);
  });
  surface->SetBackColor(host::Color{255});
  inner.SetBackColor(host::Color{255});
  inner.SetBackColor(host::Color{255});
  EXPECT_EQ(log, (std::vector<std::string>{"outer 255", "inner 255", "inner 255"}));
}

TEST_P(Conformance, TextWidthGrowsWithTheTextAndWithBold) {
  EXPECT_EQ(surface->TextWidth("").value, 0);
  EXPECT_GT(surface->TextWidth("a").value, 0);
  EXPECT_GT(surface->TextWidth("Vereniging").value, surface->TextWidth("Vereni").value);
  EXPECT_GT(surface->TextWidth("W").value, surface->TextWidth("i").value);
  EXPECT_FALSE(surface->FontBold());
  const float regular = surface->TextWidth("Vereniging").value;
  surface->SetFontBold(true);
  EXPECT_TRUE(surface->FontBold());
  EXPECT_GT(surface->TextWidth("Vereniging").value, regular);
  surface->SetFontBold(false);
  EXPECT_EQ(surface->TextWidth("Vereniging").value, regular);
}

TEST_P(Conformance, TextWidthIsThatOfArialAtTheDesignedSize) {
  // Ten digits of 0.556 em at 9 points are 50.04 points, 1000.8 twips; a toolkit that draws may round to pixels.
  EXPECT_NEAR(surface->TextWidth("0123456789").value, 1000.8F, 100);
  EXPECT_NEAR(surface->TextWidth("é").value, surface->TextWidth("e").value, 16);
}

}  // namespace brivane::test
