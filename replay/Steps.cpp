#include "replay/Steps.h"

#include <array>
#include <string>
#include <utility>

#include "host/controls/CheckBox.h"
#include "host/controls/JaNee.h"
#include "replay/ControlNames.h"

namespace brivane::replay {

namespace {

constexpr std::string_view kScenarioButton = "cmdScenario";
constexpr std::string_view kEmbedded = "Toelichting";

bool OnForm(StepList list) {
  return list == StepList::Modal || list == StepList::ModalPending;
}

/// Refuses keys that neither the step nor every step has.
void Keys(const Value& step, std::initializer_list<std::string_view> own) {
  std::vector<std::string_view> keys{"do", "answers", "pending"};
  keys.insert(keys.end(), own);
  step.Keys(keys);
}

template <class T>
T Or(const std::optional<Value>& member, T (Value::*read)() const, T otherwise) {
  return member ? ((*member).*read)() : otherwise;
}

// What a step does

BindStep ReadBind(const Value& step) {
  Keys(step, {"Len_Id", "Vrij_Id"});
  return {step.Member("Len_Id").Whole<std::int16_t>(), step.Member("Vrij_Id").Whole<std::int16_t>()};
}

ValidationStep ReadValidation(const Value& step, Target target) {
  Keys(step, {"ControleNr", "Cancel"});
  return {target, Or(step.Find("ControleNr"), &Value::Whole<std::int32_t>, 0),
          Or(step.Find("Cancel"), &Value::Bool, false)};
}

BackColorStep ReadBackColor(const Value& step) {
  Keys(step, {"value"});
  return {host::Color{step.Member("value").Whole<std::int32_t>()}};
}

BeeindigenStep ReadBeeindigen(const Value& step) {
  Keys(step, {"value"});
  return {step.Member("value").Bool()};
}

ResizeStep ReadResize(const Value& step) {
  Keys(step, {"width", "height", "control"});
  Target target = Target::Editor;
  if (const auto control = step.Find("control")) {
    const std::string name = control->Text();
    if (name != kEmbedded) control->Refuse("no control named " + Quoted(name) + " that a container sizes");
    target = Target::Toelichting;
  }
  return {target, step.Member("width").Single(), step.Member("height").Single()};
}

ScenarioStep ReadScenario(const Value& step) {
  Keys(step, {"Len_Id", "Vrij_Id", "AantalJaar", "Labeltype", "Anv_Leeftijd", "LooptijdExtra", "In_RenteKorting",
              "Bd_MaxOpname", "SoortScenario", "DisableJaar", "modal"});
  ScenarioStep scenario{
      .Len_Id = step.Member("Len_Id").Whole<std::int16_t>(),
      .Vrij_Id = step.Member("Vrij_Id").Whole<std::int16_t>(),
      .AantalJaar = step.Member("AantalJaar").Whole<std::int16_t>(),
      .Labeltype = Or(step.Find("Labeltype"), &Value::Whole<std::int32_t>, 0),
      .Anv_Leeftijd = Or(step.Find("Anv_Leeftijd"), &Value::Whole<std::int32_t>, 0),
      .LooptijdExtra = Or(step.Find("LooptijdExtra"), &Value::Bool, false),
      .In_RenteKorting = Or(step.Find("In_RenteKorting"), &Value::Bool, false),
      .Bd_MaxOpname = Or(step.Find("Bd_MaxOpname"), &Value::Number, 0.0),
      .SoortScenario = Or(step.Find("SoortScenario"), &Value::Whole<std::int16_t>, std::int16_t{0}),
      .DisableJaar = {},
  };
  if (const auto years = step.Find("DisableJaar"))
    for (std::size_t i = 0; i < years->Size(); ++i)
      scenario.DisableJaar.push_back(years->Element(i).Whole<std::int16_t>());
  return scenario;
}

// What a person does

/// The control that a step names; refuses a name that the designs do not know.
NamedControl ReadControl(const Value& step, StepList list, ActStep& act) {
  const Value control = step.Member("control");
  act.control = control.Text();
  const std::optional<NamedControl> named = OnForm(list) ? FormControl(act.control) : EditorControl(act.control);
  if (!named) control.Refuse("no control named " + Quoted(act.control));
  return *named;
}

[[noreturn]] void RefuseKind(const Value& step, const NamedControl& control, const ActStep& act) {
  step.Member("control").Refuse(Quoted(act.control) + " is a " + std::string(InWords(control.kind)) + ": " +
                                Quoted(step.Member("do").Text()) + " does not work on it");
}

/// The element of a control array that a step names.
void ReadIndex(const Value& step, const NamedControl& control, ActStep& act) {
  const std::optional<Value> index = step.Find("index");
  if (!control.elements) {
    if (index) index->Refuse(Quoted(act.control) + " is not a control array");
    return;
  }
  const int element = step.Member("index").Whole<std::int32_t>();
  if (element < control.elements->first || element > control.elements->last)
    index->Refuse("no element " + std::to_string(element) + " of " + Quoted(act.control));
  act.index = element;
}

void ReadElement(const Value& step, StepList list, host::Kind wanted, ActStep& act) {
  const NamedControl control = ReadControl(step, list, act);
  if (control.kind != wanted) RefuseKind(step, control, act);
  ReadIndex(step, control, act);
}

ActStep ReadClick(const Value& step, StepList list) {
  ActStep act;
  const NamedControl control = ReadControl(step, list, act);
  if (control.kind != host::Kind::Button && control.kind != host::Kind::OptionButton) RefuseKind(step, control, act);
  if (!OnForm(list) && act.control == kScenarioButton)
    Keys(step, {"control", "index", "modal"});
  else
    Keys(step, {"control", "index"});
  ReadIndex(step, control, act);
  if (control.kind == host::Kind::Button)
    act.action = headless::Action{headless::Press{}};
  else
    act.action = headless::Action{headless::Select{}};
  return act;
}

ActStep ReadCheck(const Value& step, StepList list) {
  Keys(step, {"control", "index", "value"});
  ActStep act;
  ReadElement(step, list, host::Kind::CheckBox, act);
  const auto value = step.Member("value").WholeWithin(host::kUnticked, host::kTicked);
  act.action = headless::Action{headless::Tick{static_cast<int>(value)}};
  return act;
}

ActStep ReadToggle(const Value& step, StepList list) {
  Keys(step, {"control", "value"});
  ActStep act;
  ReadElement(step, list, host::Kind::JaNee, act);
  const auto value = step.Member("value").WholeWithin(host::kNee, host::kJa);
  act.action = headless::Action{headless::Toggle{static_cast<int>(value)}};
  return act;
}

ActStep ReadSelect(const Value& step, StepList list) {
  Keys(step, {"control", "entry", "index"});
  ActStep act;
  // The index is that of an entry: no list is a control array.
  const NamedControl control = ReadControl(step, list, act);
  if (control.kind != host::Kind::ListBox) RefuseKind(step, control, act);
  const std::optional<Value> index = step.Find("index");
  if (!index) {
    act.action = step.Member("entry").Text();
    return act;
  }
  if (step.Find("entry")) index->Refuse("an entry is picked by text or by index, not by both");
  act.action = headless::Action{
      headless::Choose{static_cast<int>(index->WholeWithin(0, std::numeric_limits<std::int32_t>::max()))}};
  return act;
}

headless::BoxValue ReadTyped(const Value& value) {
  if (value.IsText()) return value.Text();
  if (value.IsNumber()) return value.Number();
  if (value.IsObject()) return value.Keys({"date"}).Member("date").DateOrNone();
  value.Refuse("expected a number, a text or a date");
}

ActStep ReadEnter(const Value& step, StepList list) {
  Keys(step, {"control", "index", "value"});
  ActStep act;
  ReadElement(step, list, host::Kind::TextBox, act);
  act.action = headless::Action{headless::Enter{ReadTyped(step.Member("value"))}};
  return act;
}

// One step

using What = decltype(Step::what);

bool IsUserAction(std::string_view name) {
  return name == "click" || name == "check" || name == "toggle" || name == "select" || name == "enter";
}

What ReadUserAction(const Value& step, std::string_view name, StepList list) {
  if (name == "click") return ReadClick(step, list);
  if (name == "check") return ReadCheck(step, list);
  if (name == "toggle") return ReadToggle(step, list);
  if (name == "select") return ReadSelect(step, list);
  return ReadEnter(step, list);
}

/// What only the host and its container do.
std::optional<What> ReadHostStep(const Value& step, std::string_view name) {
  if (name == "SetApplication") return ReadBind(step);
  if (name == "Validation") return ReadValidation(step, Target::Editor);
  if (name == "Toelichting.Validation") return ReadValidation(step, Target::Toelichting);
  if (name == "BackColor") return ReadBackColor(step);
  if (name == "BeeindigenZichtbaar") return ReadBeeindigen(step);
  if (name == "resize") return ReadResize(step);
  if (name == "frmScenario") return ReadScenario(step);
  return std::nullopt;
}

bool IsHostStep(std::string_view name) {
  constexpr std::array<std::string_view, 7> kNames{"SetApplication", "Validation", "Toelichting.Validation",
                                                   "BackColor",      "resize",     "BeeindigenZichtbaar",
                                                   "frmScenario"};
  return std::find(kNames.begin(), kNames.end(), name) != kNames.end();
}

/// Refuses a step where it does not belong.
void CheckPlace(const Value& name, StepList list) {
  const std::string step = name.Text();
  if (!IsUserAction(step) && !IsHostStep(step) && step != "close" && step != "dump")
    name.Refuse("no step named " + Quoted(step));
  if (step == "close" && !OnForm(list)) name.Refuse("there is no form to close here");
  if (!IsHostStep(step) || list == StepList::Session) return;
  if (list == StepList::Pending) name.Refuse(Quoted(step) + " is not a user action");
  name.Refuse(Quoted(step) + " cannot be done while the form is open");
}

What ReadWhat(const Value& step, const std::string& name, StepList list) {
  if (IsUserAction(name)) return ReadUserAction(step, name, list);
  if (std::optional<What> what = ReadHostStep(step, name)) return *std::move(what);
  Keys(step, {});
  if (name == "close") return CloseStep{};
  return DumpStep{};
}

std::vector<host::MessageAnswer> ReadAnswers(const Value& value) {
  std::vector<host::MessageAnswer> answers;
  for (std::size_t i = 0; i < value.Size(); ++i) {
    const Value answer = value.Element(i);
    const std::string text = answer.Text();
    if (text == "OK")
      answers.push_back(host::MessageAnswer::Ok);
    else if (text == "Ja")
      answers.push_back(host::MessageAnswer::Yes);
    else if (text == "Nee")
      answers.push_back(host::MessageAnswer::No);
    else
      answer.Refuse("no answer " + Quoted(text) + ": expected \"OK\", \"Ja\" or \"Nee\"");
  }
  return answers;
}

Step ReadStep(const Value& value, StepList list) {
  const Value name = value.Member("do");
  CheckPlace(name, list);
  Step step;
  step.place = value.Place();
  step.name = name.Text();
  step.what = ReadWhat(value, step.name, list);
  if (const auto answers = value.Find("answers")) step.answers = ReadAnswers(*answers);
  if (const auto pending = value.Find("pending"))
    step.pending = ReadSteps(*pending, OnForm(list) ? StepList::ModalPending : StepList::Pending);
  if (const auto modal = value.Find("modal")) step.modal = ReadSteps(*modal, StepList::Modal);
  return step;
}

}  // namespace

std::vector<Step> ReadSteps(const Value& value, StepList list) {
  std::vector<Step> steps;
  const std::size_t count = value.Size();
  steps.reserve(count);
  for (std::size_t i = 0; i < count; ++i) steps.push_back(ReadStep(value.Element(i), list));
  return steps;
}

}  // namespace brivane::replay
