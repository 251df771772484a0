#include <algorithm>
#include <string>

#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/Form.h>
#include <brivane/controls/RowChanges.h>

namespace brivane::controls {

using frame::TextId;

namespace {

enum class Typing : std::uint8_t { No, Yes };

/// Says what is lost and what is not when the form is closed.
std::string Question(const frame::Texts& texts, RowChanges::Stays stays, Typing typing) {
  const auto lost = [&] {
    switch (stays) {
      case RowChanges::Stays::Amount: return TextId::AmountStays;
      case RowChanges::Stays::Value: return TextId::ValueStays;
      case RowChanges::Stays::Nothing: break;
    }
    return TextId::RowsNotStored;
  }();
  std::string text = texts.Of(lost);
  if (typing == Typing::Yes) text += ' ' + texts.Of(TextId::TypingToo);
  return text + ' ' + texts.Of(TextId::CloseQuestion);
}

bool IsOfFirstRow(const AnyControl& control) {
  return control.IsRowElement() && control.Index() == 1 && control.ControlKind() == host::Kind::TextBox;
}
bool IsAmount(const AnyControl& control) { return control.Row().format == frame::Format::Amount; }

}  // namespace

std::shared_ptr<RowChanges> RowChanges::Around(const AnyControl& control) {
  if (!control.IsRowElement()) return nullptr;
  auto* const form = dynamic_cast<Form*>(control.Owner());
  return form != nullptr ? form->Rows() : nullptr;
}

RowChanges::Stays RowChanges::WhatStays(const AnyControl& control) {
  if (!IsOfFirstRow(control)) return Stays::Nothing;
  if (IsAmount(control)) return Stays::Amount;
  const auto& made = control.Owner()->Made();
  const bool amounts =
      std::any_of(made.begin(), made.end(), [](const auto& other) { return IsOfFirstRow(*other) && IsAmount(*other); });
  return amounts ? Stays::Nothing : Stays::Value;
}

void RowChanges::Close(Form& form, DrawnToolkit& toolkit) {
  const bool typing = toolkit.Pending().InRowsOf(form);
  if (form.Rows()->Any() || typing) {
    const std::string question = Question(toolkit.Texts(), form.Rows()->stays_, typing ? Typing::Yes : Typing::No);
    // No is the default of a question.
    if (toolkit.Ask(form.Caption(), question, host::MessageStyle::YesNoQuestion) != host::MessageAnswer::Yes) return;
  }
  toolkit.Hand(form, controls::Close{});
}

}  // namespace brivane::controls
