// Recording without a screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "replay/play/Session.h"
#include "tests/app/recording/RecordedSession.h"
#include <brivane/controls/Form.h>
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::app {
namespace {

using controls::Enter;
using controls::Outcome;
using controls::Select;
using testing::Contains;

/// Those lines that begin so.
std::vector<std::string> BeginningWith(const std::vector<std::string>& lines,
                                       const std::vector<std::string>& beginnings) {
  std::vector<std::string> found;
  for (const std::string& line : lines)
    for (const std::string& name : beginnings)
      if (line.starts_with("{\"" + name + '"')) found.push_back(line);
  return found;
}

std::vector<std::string> WritesAndEvents(const std::vector<std::string>& lines) {
  return BeginningWith(lines, {"set", "event", "focus", "pending", "opened", "closed"});
}

class WithoutScreen final : public RecordedSession {
 public:
  WithoutScreen() {
    memory::Desktop& machine = toolkit_.Desktop();
    machine.today = frame::MakeDate({2026, 11, 21});
    machine.answer = [this](const std::string& title, const std::string& text, host::MessageStyle style) {
      const host::MessageAnswer answer = Answer(title, text, style);
      Recorder().Answered(answer);
      return answer;
    };
    machine.pending = [this] {
      transcript_.Pending();
      if (waiting_) std::exchange(waiting_, nullptr)();
    };
    toolkit_.modal = [this](controls::Form& form) { std::exchange(work_, nullptr)(form); };
    Record(controls::Surface::Of(*surface_));
    subscriptions_ +=
        editor_.RefreshTopDisplay.Connect([this](const std::string& text) { transcript_.RefreshTopDisplay(text); });
    subscriptions_ += editor_.HeightChanged.Connect([this] { transcript_.Event("HeightChanged"); });
    Follow(editor_);
  }
  ~WithoutScreen() override { LetGo(); }

  [[nodiscard]] brivane::VrijeKolom& Editor() { return editor_; }
  [[nodiscard]] controls::Surface& EditorSurface() { return controls::Surface::Of(*surface_); }

 private:
  void LetWait(std::function<void()> act) override { waiting_ = std::move(act); }
  void OnForm(std::function<void(controls::Surface&)> work) override { work_ = std::move(work); }

  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_ = toolkit_.MakeSurface(vrijekolom::kOntwerp);
  std::function<void()> waiting_;
  std::function<void(controls::Surface&)> work_;
  brivane::VrijeKolom editor_{*surface_, toolkit_, host_.Factories()};
};

/// What a person can act on, of a design and those embedded in it.
void Operable(const frame::Design& design, const std::string& before, std::set<std::string>& names) {
  for (const frame::Row& row : design.rows) {
    const std::string name = before + std::string(row.name);
    switch (row.kind) {
      case host::Kind::Surface: Operable(*row.embedded, name + '.', names); break;
      case host::Kind::TextBox:
      case host::Kind::JaNee:
      case host::Kind::OptionButton:
      case host::Kind::CheckBox:
      case host::Kind::ListBox:
      case host::Kind::Button:
        names.insert(row.index == frame::kNoIndex ? name : name + '(' + std::to_string(row.index) + ')');
        break;
      default: break;
    }
  }
}

TEST(RecorderTest, ASessionThroughEveryControlReplaysWithTheSameTranscript) {
  WithoutScreen session;
  session.Play();
  ASSERT_TRUE(session.Recorder().IsRunning());
  EXPECT_GE(session.actions, 60);

  std::set<std::string> all;
  Operable(vrijekolom::kOntwerp, "", all);
  for (const char* onForm : {"txtBedrag", "txtPercentage", "chkEenmalig", "chkAanvullen", "cmdOK"})
    all.insert(std::string("frmScenario.") + onForm);
  for (const std::string& name : all) EXPECT_THAT(session.operated, Contains(name));

  // By way of a file, which the program takes.
  const std::string text = replay::WriteDocument(session.Recorder().Document());
  const std::string path = testing::TempDir() + "opname-" + std::to_string(::getpid()) + ".json";
  std::ofstream(path) << text;
  EXPECT_EQ(std::system(("'" REPLAY_PROGRAM "' --check '" + path + "'").c_str()), 0);
  std::remove(path.c_str());
  const replay::Document document = replay::ReadDocument(text);
  const std::vector<std::string> replayed = Lines(document);
  EXPECT_EQ(WritesAndEvents(replayed), WritesAndEvents(session.live));
  // And in full: procedures, calls, messages with their answers, reports.
  EXPECT_EQ(replayed, session.live);
  EXPECT_GT(BeginningWith(session.live, {"set"}).size(), 60u);
  EXPECT_GT(BeginningWith(session.live, {"message"}).size(), 3u);
  EXPECT_EQ(BeginningWith(session.live, {"opened"}).size(), 2u);
  EXPECT_EQ(BeginningWith(session.live, {"report"}).size(), 1u);
}

TEST(RecorderTest, TheReplayedCaseHoldsWhatTheRecordedOneHolds) {
  WithoutScreen session;
  session.Play();
  replay::Session replayed(session.Recorder().Document(), [](std::string_view) {});
  replayed.Run();
  EXPECT_EQ(replay::ToJson(replayed.Case().Gegevens()), replay::ToJson(session.Dossier().Gegevens()));
}

TEST(RecorderTest, StepsStandWhereTheyRan) {
  WithoutScreen session;
  session.Bind(0, 1);
  session.Do("optLast", Select{}, 3);
  session.Do("cboTermijn", controls::Choose{3});
  EXPECT_EQ(session.Do("TxtDtAanvang", Enter{}), Outcome::Refused);
  const replay::Document& document = session.Recorder().Document();
  ASSERT_EQ(document.steps.size(), 5u);
  EXPECT_TRUE(std::get<replay::BeeindigenStep>(document.steps[0].what).visible);
  EXPECT_EQ(std::get<replay::BindStep>(document.steps[1].what).Vrij_Id, 1);
  EXPECT_EQ(std::get<replay::ActStep>(document.steps[2].what).index, 3);
  EXPECT_EQ(std::get<std::string>(std::get<replay::ActStep>(document.steps[3].what).action), "per jaar");
  // The changes are not carried over to the new loan; then the date is refused.
  EXPECT_EQ(document.steps[4].answers, (std::vector{host::MessageAnswer::No, host::MessageAnswer::Ok}));
  EXPECT_EQ(document.today, frame::MakeDate({2026, 11, 21}));
  EXPECT_EQ(document.dossier.HuidigeLening.VrijeKolommen.size(), 6u);
}

TEST(RecorderTest, AnIgnoredActionIsNoStep) {
  WithoutScreen session;
  session.Bind(0, 1);
  EXPECT_EQ(session.Do("TxtOm", controls::Press{}), Outcome::Ignored);
  EXPECT_EQ(session.Do("cboTermijn", controls::Choose{99}), Outcome::Ignored);
  EXPECT_EQ(session.Recorder().Document().steps.size(), 2u);
}

TEST(RecorderTest, AChangeOfTheCaseBetweenStepsEndsTheRecordingBeforeTheNextOne) {
  WithoutScreen session;
  int broken = 0;
  session.Recorder().broken = [&] { ++broken; };
  session.Bind(0, 1);
  session.Do("TxtBd", Enter{500.0});
  const replay::Document before = session.Recorder().Document();
  session.Dossier().NewKolom(0);
  EXPECT_TRUE(session.Recorder().IsRunning());
  session.Bind(0, 2);
  session.Do("TxtBd", Enter{40.0});
  EXPECT_FALSE(session.Recorder().IsRunning());
  EXPECT_EQ(broken, 1);
  EXPECT_EQ(replay::WriteDocument(session.Recorder().Document()), replay::WriteDocument(before));
  EXPECT_EQ(session.Dossier().FindKolom(0, 2)->Gegevens().Bedrag.Bedrag, 40);
}

TEST(RecorderTest, TheHostInTheMiddleOfAStepEndsTheRecordingBeforeThatStep) {
  WithoutScreen session;
  session.Bind(0, 1);
  const std::size_t steps = session.Recorder().Document().steps.size();
  const host::Subscription listening = session.Editor().RefreshTopDisplay.Connect(
      [&](const std::string&) { session.EditorSurface().Size({10000}, {4000}); });
  session.Do("TxtOm", Enter{std::string("Opvang")});
  EXPECT_FALSE(session.Recorder().IsRunning());
  EXPECT_EQ(session.Recorder().Document().steps.size(), steps);
}

}  // namespace
}  // namespace brivane::app
