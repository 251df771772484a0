// What becomes of a binding, and of a control that stands for nothing.

#include "tests/vrijekolom/EditorTest.h"
#include <brivane/controls/Binding.h>

namespace brivane::test {

namespace {

using controls::BindingResult;
using controls::BindingState;
using controls::Outcome;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace vrijekolom;

class BindingTest : public EditorTest {
 protected:
  BindingTest() { host_.dossier.huidig->Voeg(2).velden.Omschrijving = "Tweede"; }

  BindingResult Try(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    return binding_.Bind([&] { Bind(Len_Id, Vrij_Id); });
  }
  Outcome Type(const std::string& text) { return EditorTest::Try(on_[TxtOm], controls::Enter{text}); }

  controls::Binding binding_{*surface_};
};

TEST_F(BindingTest, ThatSucceedsSaysSo) {
  EXPECT_EQ(binding_.State(), BindingState::Never);
  EXPECT_FALSE(binding_.IsVoid());
  EXPECT_EQ(Try(0, 1), BindingResult::Bound);
  EXPECT_EQ(binding_.State(), BindingState::Bound);
  EXPECT_EQ(Type("Krant"), Outcome::Done);
  EXPECT_EQ(kolom_.velden.Omschrijving, "Krant");
}

TEST_F(BindingTest, ThatFailsKeepsAPersonFromTheColumnBefore) {
  EXPECT_EQ(Try(0, 1), BindingResult::Bound);
  EXPECT_EQ(Try(9, 2), BindingResult::Failed);
  EXPECT_EQ(binding_.State(), BindingState::Failed);
  EXPECT_TRUE(binding_.IsVoid());
  Forget();
  EXPECT_EQ(Type("Krant"), Outcome::Ignored);
  EXPECT_EQ(EditorTest::Try(InToelichting()[toelichting::jnAO], controls::Toggle{host::kJa}), Outcome::Ignored);
  EXPECT_THAT(Log(), IsEmpty());
  EXPECT_EQ(kolom_.velden.Omschrijving, "");

  EXPECT_EQ(Try(0, 2), BindingResult::Bound);
  EXPECT_EQ(Type("Krant"), Outcome::Done);
  EXPECT_EQ(host_.Kolom(2).velden.Omschrijving, "Krant");
}

/// Some of the new column and some of the earlier one stands there then: the duration would be worked out of both.
TEST_F(BindingTest, ThatFailsHalfwayIsNone) {
  // Before the look-up, in it, in each procedure of the filling, and in the explanation inside the editor.
  for (const char* member :
       {"Dossier", "VrijeKolommen", "CorrectieLast", "Productsoort", "Omschrijving", "IsProduct", "UitsluitenWW"}) {
    SCOPED_TRACE(member);
    ASSERT_EQ(Try(0, 1), BindingResult::Bound);
    host_.calls.Fail(member, Op::Get);
    EXPECT_EQ(Try(0, 2), BindingResult::Failed);
    EXPECT_EQ(Type("Krant"), Outcome::Ignored);
  }
}

TEST_F(BindingTest, OfAColumnWithACodeThatThereIsNotFails) {
  host_.Kolom(2).velden.CorrectieLast = 77;
  EXPECT_EQ(Try(0, 1), BindingResult::Bound);
  EXPECT_EQ(Try(0, 2), BindingResult::Failed);
}

TEST_F(BindingTest, ThatThrowsHasFailed) {
  EXPECT_EQ(Try(0, 1), BindingResult::Bound);
  host_.calls.Fail("EnterProcedure", Op::Call);
  EXPECT_THROW(Try(0, 2), host::Error);
  EXPECT_EQ(binding_.State(), BindingState::Failed);
  EXPECT_EQ(Type("Krant"), Outcome::Ignored);
}

TEST_F(BindingTest, FromInsideABindingCountsAsTheLast) {
  bool again = true;
  subscriptions_ += editor_->HeightChanged.Connect([&] {
    if (std::exchange(again, false)) Try(0, 2);
  });
  EXPECT_EQ(Try(0, 1), BindingResult::Bound);
  EXPECT_EQ(editor_->Item()->Id(), 2);
  EXPECT_EQ(Type("Krant"), Outcome::Done);
  EXPECT_EQ(host_.Kolom(2).velden.Omschrijving, "Krant");
}

TEST_F(BindingTest, FromInsideThatFailsIsTheOneThatCounts) {
  bool again = true;
  subscriptions_ += editor_->HeightChanged.Connect([&] {
    if (std::exchange(again, false)) Try(9, 2);
  });
  EXPECT_EQ(Try(0, 1), BindingResult::Failed);
  EXPECT_EQ(binding_.State(), BindingState::Failed);
}

TEST_F(BindingTest, IsOverWhereTheHostLetsGoInTheMidstOfIt) {
  const auto before = host_.application.use_count();
  subscriptions_ += editor_->HeightChanged.Connect([&] { binding_.Unbind([&] { editor_->Unbind(); }); });
  EXPECT_EQ(Try(0, 1), BindingResult::Failed);
  EXPECT_EQ(binding_.State(), BindingState::Unbound);
  EXPECT_EQ(host_.application.use_count(), before);
}

TEST_F(BindingTest, LetsGoOfEverythingOfTheHosts) {
  const auto application = host_.application.use_count();
  const auto kolom = host_.dossier.huidig->kolommen.front().use_count();
  const auto lening = host_.dossier.huidig.use_count();
  EXPECT_EQ(Try(0, 1), BindingResult::Bound);
  Validate(0);
  EXPECT_GT(host_.application.use_count(), application);
  EXPECT_GT(host_.traces.front().use_count(), 1);
  Forget();
  binding_.Unbind([&] { editor_->Unbind(); });
  EXPECT_THAT(Log(), IsEmpty());
  EXPECT_EQ(binding_.State(), BindingState::Unbound);
  EXPECT_EQ(host_.application.use_count(), application);
  EXPECT_EQ(host_.dossier.huidig->kolommen.front().use_count(), kolom);
  EXPECT_EQ(host_.dossier.huidig.use_count(), lening);
  for (const auto& trace : host_.traces) EXPECT_EQ(trace.use_count(), 1);
  EXPECT_EQ(editor_->Item(), nullptr);
  EXPECT_FALSE(editor_->Gewijzigd());
  EXPECT_EQ(Type("Krant"), Outcome::Ignored);

  EXPECT_EQ(Try(0, 2), BindingResult::Bound);
  EXPECT_EQ(Type("Krant"), Outcome::Done);
  EXPECT_EQ(host_.Kolom(2).velden.Omschrijving, "Krant");
}

TEST_F(BindingTest, MayBeEndedByTheHostThatIsToldOfAFailure) {
  EXPECT_EQ(Try(0, 1), BindingResult::Bound);
  const host::Subscription listening =
      toolkit_.Desktop().ProcedureFailed.Connect([&] { binding_.Unbind([&] { editor_->Unbind(); }); });
  host_.calls.Fail("Omschrijving", Op::Set);
  Forget();
  EXPECT_EQ(Type("Krant"), Outcome::Done);
  EXPECT_THAT(Only(Log(), "report"), IsEmpty());
  EXPECT_EQ(binding_.State(), BindingState::Unbound);
}

}  // namespace

}  // namespace brivane::test
