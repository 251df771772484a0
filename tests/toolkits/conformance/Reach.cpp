#include "tests/toolkits/conformance/Conformance.h"

/// What a person cannot reach does nothing.
namespace brivane::test {

using controls::AnyControl;
using controls::Outcome;

class ReachConformance : public Conformance {
 protected:
  ReachConformance() {
    subscriptions +=
        Get<controls::TextBox>("txtNaam").Validation.Connect([this](bool&) { log.emplace_back("txtNaam"); });
    subscriptions +=
        Get<controls::TextBox>("txtTotaal").Validation.Connect([this](bool&) { log.emplace_back("txtTotaal"); });
    subscriptions += Get<controls::JaNee>("jnDiep").Change.Connect([this] { log.emplace_back("jnDiep"); });
    subscriptions += Get<controls::OptionButton>("optSoort", 2).Click.Connect([this] { log.emplace_back("optSoort"); });
    subscriptions += Get<controls::CheckBox>("chkVinkje").Click.Connect([this] { log.emplace_back("chkVinkje"); });
    subscriptions += Get<controls::ListBox>("cboTermijn").Click.Connect([this] { log.emplace_back("cboTermijn"); });
    subscriptions += Get<controls::Button>("cmdDoen").Click.Connect([this] { log.emplace_back("cmdDoen"); });
    subscriptions +=
        Get<controls::JaNee>("Binnenste.jnBinnen").Change.Connect([this] { log.emplace_back("jnBinnen"); });
  }

  struct Try {
    AnyControl* control;
    controls::Action action;
  };
  [[nodiscard]] std::vector<Try> EveryAction() {
    return {{Area().Find("txtNaam"), controls::Enter{std::string("x")}},
            {Area().Find("jnDiep"), controls::Toggle{host::kJa}},
            {Area().Find("optSoort", 2), controls::Select{}},
            {Area().Find("chkVinkje"), controls::Tick{host::kTicked}},
            {Area().Find("cboTermijn"), controls::Choose{1}},
            {Area().Find("cmdDoen"), controls::Press{}},
            {Area().Find("Binnenste.jnBinnen"), controls::Toggle{host::kJa}}};
  }

  /// Tries an action in every way; nothing may come of it.
  void ExpectIgnored(AnyControl& control, const controls::Action& action) {
    SCOPED_TRACE(control.ElementName());
    const controls::ControlDump before = controls::Dump(control);
    Act(control, action);
    EXPECT_EQ(Door(control, action), Outcome::Ignored);
    EXPECT_EQ(controls::Dump(control), before);
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
  ExpectIgnored(*Area().Find("Binnenste.jnBinnen"), controls::Toggle{host::kJa});
}

TEST_P(ReachConformance, AControlInADisabledFrameTakesNoAction) {
  for (const char* frame : {"fraBoxen", "fraKeuze", "Binnenste"}) Area().Find(frame)->Host().SetEnabled(false);
  for (const Try& attempt : EveryAction()) {
    EXPECT_TRUE(attempt.control->Host().Enabled());
    ExpectIgnored(*attempt.control, attempt.action);
  }
}

TEST_P(ReachConformance, ALockedBoxTakesNoEntry) {
  ExpectIgnored(Get<controls::TextBox>("txtTotaal"), controls::Enter{1.0});
  Get<controls::TextBox>("txtNaam").SetLocked(true);
  EXPECT_EQ(Shown("txtNaam").locked, true);
  ExpectIgnored(Get<controls::TextBox>("txtNaam"), controls::Enter{std::string("x")});
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
  Get<controls::TextBox>("txtNaam").SetEnabled(false);
  Get<controls::TextBox>("txtNaam").SetText("x");
  Get<controls::TextBox>("txtTotaal").SetNumber(12.5);
  Get<controls::JaNee>("jnDiep").SetValue(host::kJa);
  Get<controls::OptionButton>("optSoort", 2).SetValue(true);
  Get<controls::CheckBox>("chkVinkje").SetValue(host::kTicked);
  Get<controls::ListBox>("cboTermijn").SetListIndex(1);
  EXPECT_EQ(log, (std::vector<std::string>{"jnDiep", "optSoort", "chkVinkje", "cboTermijn"}));
  EXPECT_EQ(Shown("txtNaam").value, controls::DumpValue(std::string("x")));
  EXPECT_EQ(Shown("txtTotaal").value, controls::DumpValue(12.5));
  EXPECT_EQ(Shown("jnDiep").value, controls::DumpValue(2));
}

TEST_P(ReachConformance, AnActionThatTheKindDoesNotKnowIsIgnored) {
  EXPECT_EQ(Door(*Area().Find("txtNaam"), controls::Press{}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("cmdDoen"), controls::Enter{1.0}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("lblNaam"), controls::Press{}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("jnDiep"), controls::Toggle{3}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("chkVinkje"), controls::Tick{2}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("cboTermijn"), controls::Choose{3}), Outcome::Ignored);
  EXPECT_EQ(Door(*Area().Find("cboTermijn"), controls::Choose{-1}), Outcome::Ignored);
  EXPECT_EQ(Door(Area(), controls::Close{}), Outcome::Ignored);
  EXPECT_EQ(log, std::vector<std::string>{});
}

}  // namespace brivane::test
