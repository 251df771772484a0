#include "tests/toolkits/conformance/Conformance.h"

/// What a person cannot reach does nothing.
namespace brivane::test {

using headless::AnyControl;
using headless::Outcome;

class ReachConformance : public Conformance {
 protected:
  ReachConformance() {
    Get<headless::TextBox>("txtNaam").Validation.Connect([this](bool&) { log.emplace_back("txtNaam"); });
    Get<headless::TextBox>("txtTotaal").Validation.Connect([this](bool&) { log.emplace_back("txtTotaal"); });
    Get<headless::JaNee>("jnDiep").Change.Connect([this] { log.emplace_back("jnDiep"); });
    Get<headless::OptionButton>("optSoort", 2).Click.Connect([this] { log.emplace_back("optSoort"); });
    Get<headless::CheckBox>("chkVinkje").Click.Connect([this] { log.emplace_back("chkVinkje"); });
    Get<headless::ListBox>("cboTermijn").Click.Connect([this] { log.emplace_back("cboTermijn"); });
    Get<headless::Button>("cmdDoen").Click.Connect([this] { log.emplace_back("cmdDoen"); });
    Get<headless::JaNee>("Binnenste.jnBinnen").Change.Connect([this] { log.emplace_back("jnBinnen"); });
  }

  struct Try {
    AnyControl* control;
    headless::Action action;
  };
  [[nodiscard]] std::vector<Try> EveryAction() {
    return {{Area().Find("txtNaam"), headless::Enter{std::string("x")}},
            {Area().Find("jnDiep"), headless::Toggle{host::kJa}},
            {Area().Find("optSoort", 2), headless::Select{}},
            {Area().Find("chkVinkje"), headless::Tick{host::kTicked}},
            {Area().Find("cboTermijn"), headless::Choose{1}},
            {Area().Find("cmdDoen"), headless::Press{}},
            {Area().Find("Binnenste.jnBinnen"), headless::Toggle{host::kJa}}};
  }

  /// Tries an action in every way; nothing may come of it.
  void ExpectIgnored(AnyControl& control, const headless::Action& action) {
    SCOPED_TRACE(control.ElementName());
    const headless::ControlDump before = headless::Dump(control);
    Act(control, action);
    EXPECT_EQ(Door(control, action), Outcome::Ignored);
    EXPECT_EQ(headless::Dump(control), before);
    EXPECT_EQ(log, std::vector<std::string>{});
  }
};

INSTANTIATE_TEST_SUITE_P(Toolkit, ReachConformance, testing::ValuesIn(Subjects()), SubjectName);

TEST_P(ReachConformance, ADisabledControlTakesNoAction) {
  for (const Try& attempt : EveryAction()) {
    attempt.control->Host().SetEnabled(false);
    ExpectIgnored(*attempt.control, attempt.action);
  }
}

TEST_P(ReachConformance, AHiddenControlTakesNoAction) {
  for (const Try& attempt : EveryAction()) {
    attempt.control->Host().SetVisible(false);
    ExpectIgnored(*attempt.control, attempt.action);
  }
}

TEST_P(ReachConformance, AControlInAHiddenFrameTakesNoActionAtAnyDepth) {
  for (const char* frame : {"fraBoxen", "fraKeuze", "Binnenste"}) Area().Find(frame)->Host().SetVisible(false);
  for (const Try& attempt : EveryAction()) {
    EXPECT_TRUE(attempt.control->Host().Visible());  // its own visibility
    ExpectIgnored(*attempt.control, attempt.action);
  }
}

TEST_P(ReachConformance, AFrameOnAnEmbeddedSurfaceHidesToo) {
  Area().Find("Binnenste.fraBinnen")->Host().SetVisible(false);
  ExpectIgnored(*Area().Find("Binnenste.jnBinnen"), headless::Toggle{host::kJa});
}

TEST_P(ReachConformance, AControlInADisabledFrameTakesNoAction) {
  for (const char* frame : {"fraBoxen", "fraKeuze", "Binnenste"}) Area().Find(frame)->Host().SetEnabled(false);
  for (const Try& attempt : EveryAction()) {
    EXPECT_TRUE(attempt.control->Host().Enabled());
    ExpectIgnored(*attempt.control, attempt.action);
  }
}

TEST_P(ReachConformance, ALockedBoxTakesNoEntry) {
  ExpectIgnored(Get<headless::TextBox>("txtTotaal"), headless::Enter{1.0});
  Get<headless::TextBox>("txtNaam").SetLocked(true);
  EXPECT_EQ(Shown("txtNaam").locked, true);
  ExpectIgnored(Get<headless::TextBox>("txtNaam"), headless::Enter{std::string("x")});
}

TEST_P(ReachConformance, WhatIsShownAndEnabledAgainTakesActionsAgain) {
  for (const char* frame : {"fraBoxen", "fraKeuze", "Binnenste"}) {
    Area().Find(frame)->Host().SetVisible(false);
    Area().Find(frame)->Host().SetVisible(true);
  }
  for (const Try& attempt : EveryAction()) {
    attempt.control->Host().SetEnabled(false);
    attempt.control->Host().SetEnabled(true);
    Act(*attempt.control, attempt.action);
  }
  EXPECT_EQ(log, (std::vector<std::string>{"txtNaam", "jnDiep", "optSoort", "chkVinkje", "cboTermijn", "cmdDoen",
                                           "jnBinnen"}));
}

TEST_P(ReachConformance, CodeStillSetsWhatAPersonCannotReach) {
  for (const char* frame : {"fraBoxen", "fraKeuze"}) Area().Find(frame)->Host().SetVisible(false);
  Get<headless::TextBox>("txtNaam").SetEnabled(false);
  Get<headless::TextBox>("txtNaam").SetText("x");
  Get<headless::TextBox>("txtTotaal").SetNumber(12.5);
  Get<headless::JaNee>("jnDiep").SetValue(host::kJa);
  Get<headless::OptionButton>("optSoort", 2).SetValue(true);
  Get<headless::CheckBox>("chkVinkje").SetValue(host::kTicked);
  Get<headless::ListBox>("cboTermijn").SetListIndex(1);
  EXPECT_EQ(log, (std::vector<std::string>{"jnDiep", "optSoort", "chkVinkje", "cboTermijn"}));
  EXPECT_EQ(Shown("txtNaam").value, headless::DumpValue(std::string("x")));
  EXPECT_EQ(Shown("txtTotaal").value, headless::DumpValue(12.5));
  EXPECT_EQ(Shown("jnDiep").value, headless::DumpValue(2));
}

TEST_P(ReachConformance, AnActionThatTheKindDoesNotKnowIsIgnored) {
  EXPECT_EQ(Door(*Area().Find("txtNaam"), headless::Press{}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("cmdDoen"), headless::Enter{1.0}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("lblNaam"), headless::Press{}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("jnDiep"), headless::Toggle{3}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("chkVinkje"), headless::Tick{2}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("cboTermijn"), headless::Choose{3}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("cboTermijn"), headless::Choose{-1}), Outcome::Ignored);
  EXPECT_EQ(Door(Area(), headless::Close{}), Outcome::Ignored);
  EXPECT_EQ(log, std::vector<std::string>{});
}

}  // namespace brivane::test
