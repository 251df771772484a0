#include <gtest/gtest.h>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/Peer.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/memory/Toolkit.h>

/// What a drawing toolkit hears of the controls that it shows.
namespace brivane::controls {

namespace {

using Log = std::vector<std::string>;

const char* NameOf(Aspect aspect) {
  static constexpr const char* kNames[] = {"value",  "enabled", "visible", "caption", "place",   "font", "colour",
                                           "locked", "entries", "entry",   "index",   "columns", "rows", "selection"};
  return kNames[static_cast<std::size_t>(aspect)];
}

class LoggingPeer : public FormPeer {
 public:
  LoggingPeer(AnyControl& control, Log& log) : control_(control), log_(log) {}
  ~LoggingPeer() override { log_.push_back("gone " + name_); }
  void Refresh(Aspect aspect) override { log_.push_back(name_ + " " + NameOf(aspect)); }
  void TakeFocus() override { log_.push_back(name_ + " focus"); }
  void ShowModal(host::Hoofdvenster*) override { log_.push_back(name_ + " shown"); }
  void Unload() override { log_.push_back(name_ + " unloaded"); }

 private:
  AnyControl& control_;
  std::string name_ = control_.ElementName();
  Log& log_;
};

class DrawingToolkit final : public ToolkitBase {
 public:
  [[nodiscard]] host::Desktop& Desktop() override { return desktop_; }
  Log log;

 protected:
  [[nodiscard]] std::unique_ptr<Peer> MakePeer(AnyControl& control) override {
    std::string line = "made " + control.ElementName();
    if (control.Container() != nullptr) {
      // What it stands in is drawn already.
      EXPECT_NE(control.Container()->GetPeer(), nullptr);
      line += " in " + control.Container()->ElementName();
    }
    log.push_back(line);
    return std::make_unique<LoggingPeer>(control, log);
  }
  [[nodiscard]] std::unique_ptr<FormPeer> MakeFormPeer(Form& form) override {
    log.push_back("made form " + form.ElementName());
    return std::make_unique<LoggingPeer>(form, log);
  }

  [[nodiscard]] host::Twips MeasureText(const frame::Design&, std::string_view, bool) const override { return {}; }

 private:
  memory::Desktop desktop_;
};

}  // namespace

class PeerTest : public testing::Test {
 protected:
  PeerTest() : surface(toolkit.MakeSurface(test::kSurface)), area(Surface::Of(*surface)) {}
  /// What the peers heard since the last call.
  [[nodiscard]] Log Heard() { return std::exchange(toolkit.log, {}); }

  DrawingToolkit toolkit;
  std::unique_ptr<host::Surface> surface;
  Surface& area;
};

TEST_F(PeerTest, AreMadeInTheOrderOfTheTableEachAfterWhatItStandsIn) {
  const Log log = Heard();
  ASSERT_EQ(log.size(), std::size(test::kSurfaceRows) + std::size(test::kInnerRows) + 1);
  EXPECT_EQ(log[0], "made Proef");
  EXPECT_EQ(log[1], "made fraBoxen in Proef");
  EXPECT_EQ(log[2], "made lblNaam in fraBoxen");
  EXPECT_EQ(log[24], "made Binnenste in Proef");
  EXPECT_EQ(log[25], "made Binnenste.fraBinnen in Binnenste");
  EXPECT_EQ(log[26], "made Binnenste.jnBinnen in Binnenste.fraBinnen");
}

TEST_F(PeerTest, GoInTheReverseOrder) {
  const Log made = Heard();
  surface.reset();
  const Log gone = Heard();
  ASSERT_EQ(gone.size(), made.size());
  EXPECT_EQ(gone.front(), "gone Binnenste.jnBinnen");
  EXPECT_EQ(gone.back(), "gone Proef");
}

TEST_F(PeerTest, HearOfEachChangeOnceAndOfNoneThatChangesNothing) {
  (void)Heard();
  auto& box = static_cast<TextBox&>(*area.Find("txtNaam"));
  for (int twice = 0; twice < 2; ++twice) {
    box.SetText("x");
    box.SetEnabled(false);
    box.SetVisible(false);
    box.SetLocked(true);
    box.SetBackColor(host::Color{255});
    box.Move({{0}, {0}, {100}, {100}});
    box.Write(host::Measure::FontSize, 8);
    box.Write(host::Measure::Left, 15);
    box.Move({{15}, {0}, {100}, {100}});
  }
  EXPECT_EQ(Heard(), (Log{"txtNaam value", "txtNaam enabled", "txtNaam visible", "txtNaam locked", "txtNaam colour",
                          "txtNaam place", "txtNaam font", "txtNaam place", "txtNaam place", "txtNaam place"}));
}

TEST_F(PeerTest, HearOfAChangeBeforeTheEventThatItRaises) {
  (void)Heard();
  auto& toggle = static_cast<JaNee&>(*area.Find("jnDiep"));
  const host::Subscription changed = toggle.Change.Connect([&] { toolkit.log.emplace_back("Change"); });
  toggle.SetValue(host::kJa);
  EXPECT_EQ(Heard(), (Log{"jnDiep value", "Change"}));
  auto& list = static_cast<ListBox&>(*area.Find("cboTermijn"));
  const host::Subscription clicked = list.Click.Connect([&] { toolkit.log.emplace_back("Click"); });
  list.SetListIndex(1);
  list.Clear();
  list.Add("x");
  EXPECT_EQ(Heard(), (Log{"cboTermijn index", "Click", "cboTermijn entries", "cboTermijn entry"}));
}

TEST_F(PeerTest, HearOfTheOptionsThatASelectionDeselects) {
  static_cast<OptionButton&>(*area.Find("optSoort", 1)).SetValue(true);
  (void)Heard();
  static_cast<OptionButton&>(*area.Find("optSoort", 3)).SetValue(true);
  EXPECT_EQ(Heard(), (Log{"optSoort(1) value", "optSoort(3) value"}));
}

TEST_F(PeerTest, ShowWhatCodeWritesOverHalfATyping) {
  auto& box = static_cast<TextBox&>(*area.Find("txtBedrag"));
  box.SetNumber(10);
  (void)Heard();
  box.SetNumber(10);
  EXPECT_EQ(Heard(), Log{});
  box.MarkEdited();
  box.SetNumber(10);
  EXPECT_EQ(Heard(), Log{"txtBedrag value"});
  box.SetNumber(10);
  EXPECT_EQ(Heard(), Log{});
}

TEST_F(PeerTest, TakeTheFocusThatCodeMoves) {
  (void)Heard();
  static_cast<TextBox&>(*area.Find("txtDatum")).SetFocus();
  EXPECT_EQ(Heard(), Log{"txtDatum focus"});
}

TEST_F(PeerTest, OfAFormShowAndUnloadIt) {
  const auto form = toolkit.MakeForm(test::kForm);
  EXPECT_EQ(toolkit.log.at(27), "made form frmProef");
  EXPECT_EQ(toolkit.log.at(28), "made fraRooster in frmProef");
  (void)Heard();
  const host::Subscription activated = form->Activate.Connect([&] { toolkit.log.emplace_back("Activate"); });
  const host::Subscription unloaded = form->Unloaded.Connect([&] { toolkit.log.emplace_back("Unloaded"); });
  form->ShowModal(nullptr);
  EXPECT_EQ(Heard(), (Log{"Activate", "frmProef shown", "frmProef unloaded", "Unloaded"}));
}

TEST_F(PeerTest, OfARunTimeElementIsMadeAfterItCopiedItsTemplate) {
  const auto form = toolkit.MakeForm(test::kForm);
  (void)Heard();
  constexpr auto lblJaar = frame::Find<frame::Kind::Label>(test::kForm, "lblJaar");
  form->Create(lblJaar.row, 1);
  EXPECT_EQ(Heard(), Log{"made lblJaar(1) in fraRooster"});
}

}  // namespace brivane::controls
