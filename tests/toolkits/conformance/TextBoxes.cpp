#include "tests/toolkits/conformance/Conformance.h"
#include <brivane/frame/Calendar.h>

/// What a text box holds, reads and refuses.
namespace brivane::test {

using controls::DumpValue;
using controls::Enter;
using controls::Outcome;
using controls::TextBox;

namespace {
const host::Date kDate = frame::MakeDate({2024, 1, 31});
}

TEST_P(Conformance, AnEmptyBoxReadsAsTheEmptyValueOfTheKindThatIsAsked) {
  for (const char* name : {"txtNaam", "txtBedrag", "txtJaren", "txtDatum"}) {
    const auto& box = Get<TextBox>(name);
    EXPECT_EQ(box.Text(), "") << name;
    EXPECT_EQ(box.Number(), 0.0) << name;
    EXPECT_EQ(box.DateValue(), host::kNoDate) << name;
  }
}

TEST_P(Conformance, ABoxReadsBackWhatCodeWrites) {
  Get<TextBox>("txtNaam").SetText("Zoë & co");
  Get<TextBox>("txtBedrag").SetNumber(1234.56);
  Get<TextBox>("txtPercentage").SetNumber(-0.125);
  Get<TextBox>("txtJaren").SetNumber(30);
  Get<TextBox>("txtDatum").SetDate(kDate);
  EXPECT_EQ(Get<TextBox>("txtNaam").Text(), "Zoë & co");
  EXPECT_EQ(Get<TextBox>("txtBedrag").Number(), 1234.56);
  EXPECT_EQ(Get<TextBox>("txtPercentage").Number(), -0.125);
  EXPECT_EQ(Get<TextBox>("txtJaren").Number(), 30);
  EXPECT_EQ(Get<TextBox>("txtDatum").DateValue(), kDate);
  EXPECT_EQ(Shown("txtNaam").value, DumpValue(std::string("Zoë & co")));
  EXPECT_EQ(Shown("txtBedrag").value, DumpValue(1234.56));
  EXPECT_EQ(Shown("txtJaren").value, DumpValue(30.0));
  EXPECT_EQ(Shown("txtDatum").value, DumpValue(kDate));
}

TEST_P(Conformance, ReadingAnotherKindThanTheContentFailsWith13) {
  auto& text = Get<TextBox>("txtNaam");
  text.SetText("1200");
  EXPECT_EQ(ErrorOf([&] { (void)text.Number(); }), 13);
  EXPECT_EQ(ErrorOf([&] { (void)text.DateValue(); }), 13);
  auto& number = Get<TextBox>("txtBedrag");
  number.SetNumber(0);
  EXPECT_EQ(ErrorOf([&] { (void)number.Text(); }), 13);
  EXPECT_EQ(ErrorOf([&] { (void)number.DateValue(); }), 13);
  auto& date = Get<TextBox>("txtDatum");
  date.SetDate(kDate);
  EXPECT_EQ(ErrorOf([&] { (void)date.Text(); }), 13);
  EXPECT_EQ(ErrorOf([&] { (void)date.Number(); }), 13);
}

TEST_P(Conformance, AnEmptyTextEmptiesAnyBoxAndZeroADateBox) {
  for (const char* name : {"txtNaam", "txtBedrag", "txtDatum"}) {
    auto& box = Get<TextBox>(name);
    box.SetText("vol");
    box.SetText("");
    EXPECT_EQ(box.Text(), "") << name;
    EXPECT_EQ(box.Number(), 0.0) << name;
    EXPECT_EQ(box.DateValue(), host::kNoDate) << name;
  }
  auto& date = Get<TextBox>("txtDatum");
  date.SetDate(kDate);
  date.SetNumber(0);
  EXPECT_EQ(date.DateValue(), host::kNoDate);
  EXPECT_EQ(Shown("txtDatum").value, DumpValue(host::kNoDate));
  date.SetDate(kDate);
  date.SetDate(host::kNoDate);
  EXPECT_EQ(date.DateValue(), host::kNoDate);
}

TEST_P(Conformance, AValueOfAnotherKindIsHeldAsTypedAndFailsWhenItIsRead) {
  auto& amount = Get<TextBox>("txtBedrag");
  EXPECT_EQ(Door(amount, Enter{std::string("1200")}), Outcome::Done);
  EXPECT_EQ(ErrorOf([&] { (void)amount.Number(); }), 13);
  EXPECT_EQ(amount.Content(), controls::BoxValue(std::string("1200")));
  auto& date = Get<TextBox>("txtDatum");
  Door(date, Enter{std::string("31-01-2024")});
  EXPECT_EQ(ErrorOf([&] { (void)date.DateValue(); }), 13);
  Door(date, Enter{45322.0});
  EXPECT_EQ(ErrorOf([&] { (void)date.DateValue(); }), 13);
  Door(date, Enter{0.0});
  EXPECT_EQ(date.DateValue(), host::kNoDate);
  auto& text = Get<TextBox>("txtNaam");
  Door(text, Enter{12.0});
  EXPECT_EQ(ErrorOf([&] { (void)text.Text(); }), 13);
  Door(text, Enter{std::string()});
  EXPECT_EQ(text.Text(), "");
  Door(text, Enter{kDate});
  EXPECT_EQ(ErrorOf([&] { (void)text.Text(); }), 13);
}

TEST_P(Conformance, AWholeNumberBoxHandsAFractionOverUnrounded) {
  auto& box = Get<TextBox>("txtJaren");
  Door(box, Enter{1.5});
  EXPECT_EQ(box.Number(), 1.5);
}

TEST_P(Conformance, APersonsEntryIsInTheBoxBeforeItsValidation) {
  auto& amount = Get<TextBox>("txtBedrag");
  std::vector<double> seen;
  subscriptions += amount.Validation.Connect([&](bool& Cancel) {
    EXPECT_FALSE(Cancel);
    seen.push_back(amount.Number());
  });
  Act(amount, Enter{1200.5});
  EXPECT_EQ(seen, std::vector<double>{1200.5});
  EXPECT_EQ(Shown("txtBedrag").value, DumpValue(1200.5));
}

TEST_P(Conformance, EveryKindOfBoxTakesAPersonsEntry) {
  Act(Get<TextBox>("txtNaam"), Enter{std::string("Vereniging")});
  Act(Get<TextBox>("txtPercentage"), Enter{2.25});
  Act(Get<TextBox>("txtJaren"), Enter{12.0});
  Act(Get<TextBox>("txtDatum"), Enter{kDate});
  EXPECT_EQ(Get<TextBox>("txtNaam").Text(), "Vereniging");
  EXPECT_EQ(Get<TextBox>("txtPercentage").Number(), 2.25);
  EXPECT_EQ(Get<TextBox>("txtJaren").Number(), 12);
  EXPECT_EQ(Get<TextBox>("txtDatum").DateValue(), kDate);
}

TEST_P(Conformance, EveryEntryRaisesValidationOnceAlsoOfTheValueThatStandsThere) {
  auto& text = Get<TextBox>("txtNaam");
  int raised = 0;
  subscriptions += text.Validation.Connect([&](bool&) { ++raised; });
  Act(text, Enter{std::string("Krant")});
  EXPECT_EQ(raised, 1);
  Act(text, Enter{std::string("Krant")});
  EXPECT_EQ(raised, 2);
}

TEST_P(Conformance, WritingByCodeRaisesNothing) {
  for (const char* name : {"txtNaam", "txtBedrag", "txtDatum"})
    subscriptions += Get<TextBox>(name).Validation.Connect([&, name](bool&) { log.emplace_back(name); });
  Get<TextBox>("txtNaam").SetText("Krant");
  Get<TextBox>("txtBedrag").SetNumber(12);
  Get<TextBox>("txtDatum").SetDate(kDate);
  subject->Settle();
  EXPECT_EQ(log, std::vector<std::string>{});
}

TEST_P(Conformance, ARefusedEntryStaysAsTyped) {
  auto& amount = Get<TextBox>("txtBedrag");
  amount.SetNumber(10);
  bool refuse = true;
  subscriptions += amount.Validation.Connect([&](bool& Cancel) { Cancel = refuse; });
  EXPECT_EQ(Door(amount, Enter{-1.0}), Outcome::Refused);
  EXPECT_EQ(amount.Number(), -1.0);
  EXPECT_EQ(Shown("txtBedrag").value, DumpValue(-1.0));
  refuse = false;
  EXPECT_EQ(Door(amount, Enter{-1.0}), Outcome::Done);
}

TEST_P(Conformance, AFailingListenerFailsTheAction) {
  auto& text = Get<TextBox>("txtNaam");
  subscriptions += text.Validation.Connect([](bool&) { throw host::Error(host::ErrorNumber::ObjectMissing); });
  EXPECT_EQ(ErrorOf([&] { Door(text, Enter{std::string("x")}); }), 91);
  EXPECT_EQ(text.Text(), "x");
}

TEST_P(Conformance, CodeMayWriteIntoTheBoxThatIsBeingValidated) {
  auto& amount = Get<TextBox>("txtBedrag");
  subscriptions += amount.Validation.Connect([&](bool&) { amount.SetNumber(99); });
  Act(amount, Enter{1.0});
  EXPECT_EQ(amount.Number(), 99);
  EXPECT_EQ(Shown("txtBedrag").value, DumpValue(99.0));
}

TEST_P(Conformance, SetFocusMovesTheFocusOnce) {
  subject->Toolkit().focusMoved = [&](controls::AnyControl& control) { log.push_back(control.ElementName()); };
  Get<TextBox>("txtDatum").SetFocus();
  subject->Settle();
  EXPECT_EQ(log, std::vector<std::string>{"txtDatum"});
}

}  // namespace brivane::test
