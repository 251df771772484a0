#include <algorithm>
#include <string>

#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/Form.h>
#include <brivane/controls/RowChanges.h>

namespace brivane::controls {

namespace {

enum class Typing : std::uint8_t { No, Yes };

/// Says what is lost and what is not when the form is closed.
std::string Question(RowChanges::Stays stays, Typing typing) {
  constexpr char kStays[] = " van de eerste rij is bij het invullen al bewaard en blijft staan. De andere wijzigingen";
  std::string text = "De wijzigingen in de rijen";
  if (stays == RowChanges::Stays::Amount) text = std::string("Het bedrag") + kStays;
  if (stays == RowChanges::Stays::Value) text = std::string("De waarde") + kStays;
  text += " worden niet bewaard als u het venster sluit zonder op OK te drukken.";
  if (typing == Typing::Yes) text += " Dat geldt ook voor wat u nu aan het typen bent.";
  return text + " Wilt u het sluiten?";
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
    const std::string question = Question(form.Rows()->stays_, typing ? Typing::Yes : Typing::No);
    // "Nee" is the default of a question.
    if (toolkit.Ask(form.Caption(), question, host::MessageStyle::YesNoQuestion) != host::MessageAnswer::Yes) return;
  }
  toolkit.Hand(form, controls::Close{});
}

}  // namespace brivane::controls
