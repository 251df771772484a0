#include <gtest/gtest.h>

#include "tests/support/TestHost.h"
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Toelichting.h>
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

/// What a control in memory tells its host of a binding.
namespace brivane::test {
namespace {

using controls::BindingResult;
using controls::BindingState;
using controls::Outcome;

TEST(Embedded, TakesNothingAfterABindingThatFailed) {
  TestHost host;
  memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, host.Factories());
  const auto type = [&](const std::string& text) {
    return editor.Surface().Find("TxtOm")->Perform(controls::Enter{text});
  };
  EXPECT_EQ(editor.State(), BindingState::Never);
  EXPECT_EQ(editor.SetApplication(host.application, 0, 1), BindingResult::Bound);
  EXPECT_EQ(type("Club"), Outcome::Done);
  EXPECT_EQ(editor.SetApplication(host.application, 9, 2), BindingResult::Failed);
  EXPECT_EQ(editor.State(), BindingState::Failed);
  EXPECT_EQ(type("Krant"), Outcome::Ignored);
  EXPECT_EQ(host.Kolom(1).velden.Omschrijving, "Club");
  (void)host.calls.Take();
  bool cancel = false;
  editor.Validation(cancel);
  EXPECT_FALSE(cancel);
  EXPECT_TRUE(host.calls.Take().empty());
  EXPECT_EQ(editor.SetApplication(host.application, 0, 1), BindingResult::Bound);
  EXPECT_EQ(type("Krant"), Outcome::Done);
}

TEST(Embedded, LetsGoOfTheHost) {
  for (const bool byNothing : {false, true}) {
    TestHost host;
    const auto application = host.application.use_count();
    memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, host.Factories());
    EXPECT_EQ(editor.SetApplication(host.application, 0, 1), BindingResult::Bound);
    EXPECT_GT(host.dossier.huidig->kolommen.front().use_count(), 1);
    if (byNothing) {
      EXPECT_EQ(editor.SetApplication(nullptr, 0, 0), BindingResult::Failed);
    } else {
      editor.Unbind();
    }
    EXPECT_EQ(editor.State(), BindingState::Unbound);
    EXPECT_EQ(host.application.use_count(), application);
    EXPECT_EQ(host.dossier.huidig->kolommen.front().use_count(), 1);
    for (const auto& trace : host.traces) EXPECT_EQ(trace.use_count(), 1);
  }
}

TEST(Embedded, TellsOfTheExplanationToo) {
  TestHost host;
  memory::Embedded<Toelichting> toelichting(toelichting::kOntwerp, host.Factories());
  const std::shared_ptr<host::Lening> lening = host.dossier.huidig;
  EXPECT_EQ(toelichting.SetApplication(host.application, lening, 1), BindingResult::Bound);
  EXPECT_EQ(toelichting.SetApplication(host.application, lening, 9), BindingResult::Failed);
  EXPECT_EQ(toelichting.Surface().Find("jnAO")->Perform(controls::Toggle{host::kNee}), Outcome::Ignored);
  toelichting.Unbind();
  EXPECT_EQ(toelichting.State(), BindingState::Unbound);
}

}  // namespace
}  // namespace brivane::test
