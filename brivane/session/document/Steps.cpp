#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/JaNee.h>
#include <brivane/session/document/ControlNames.h>
#include <brivane/session/document/Steps.h>

namespace brivane::session {

namespace {

constexpr std::string_view kScenarioButton = "cmdScenario";
constexpr std::string_view kEmbedded = "Toelichting";

bool OnForm(StepList list) { return list == StepList::Modal; }

/// Refuses keys that neither the step nor every step has.
void Keys(const Value& step, std::initializer_list<std::string_view> own) {
  std::vector<std::string_view> keys{"do", "answers", "pending"};
  keys.insert(keys.end(), own);
  step.Keys(keys);
}

template <class T> T Or(const std::optional<Value>& member, T (Value::*read)() const, T otherwise) {
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
  step.Member("control").Refuse(Quoted(act.control) + " is " + std::string(InWords(control.kind)) + ": " +
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
    act.action = controls::Action{controls::Press{}};
  else
    act.action = controls::Action{controls::Select{}};
  return act;
}

ActStep ReadCheck(const Value& step, StepList list) {
  Keys(step, {"control", "index", "value"});
  ActStep act;
  ReadElement(step, list, host::Kind::CheckBox, act);
  const auto value = step.Member("value").WholeWithin(host::kUnticked, host::kTicked);
  act.action = controls::Action{controls::Tick{static_cast<int>(value)}};
  return act;
}

ActStep ReadToggle(const Value& step, StepList list) {
  Keys(step, {"control", "value"});
  ActStep act;
  ReadElement(step, list, host::Kind::JaNee, act);
  const auto value = step.Member("value").WholeWithin(host::kNee, host::kJa);
  act.action = controls::Action{controls::Toggle{static_cast<int>(value)}};
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
  act.action = controls::Action{
      controls::Choose{static_cast<int>(index->WholeWithin(0, std::numeric_limits<std::int32_t>::max()))}};
  return act;
}

controls::BoxValue ReadTyped(const Value& value) {
  if (value.IsText()) return value.Text();
  if (value.IsNumber()) return value.Number();
  if (value.IsObject()) return value.Keys({"date"}).Member("date").DateOrNone();
  value.Refuse("expected a number, a text or a date");
}

ActStep ReadEnter(const Value& step, StepList list) {
  Keys(step, {"control", "index", "value"});
  ActStep act;
  ReadElement(step, list, host::Kind::TextBox, act);
  act.action = controls::Action{controls::Enter{ReadTyped(step.Member("value"))}};
  return act;
}

// One step

using What = decltype(Step::what);

CloseStep ReadClose(const Value& step) {
  Keys(step, {});
  return {};
}

DumpStep ReadDump(const Value& step) {
  Keys(step, {});
  return {};
}

/// Who does a step, which decides the lists that it can stand in.
enum class Doer : std::uint8_t { Host, Person, PersonOnForm, Tool };

struct StepKind {
  std::string_view name;
  Doer doer;
  What (*read)(const Value& step, StepList list);
};

constexpr std::array<StepKind, 14> kStepKinds{{
    {"SetApplication", Doer::Host, [](const Value& step, StepList) -> What { return ReadBind(step); }},
    {"Validation", Doer::Host,
     [](const Value& step, StepList) -> What { return ReadValidation(step, Target::Editor); }},
    {"Toelichting.Validation", Doer::Host,
     [](const Value& step, StepList) -> What { return ReadValidation(step, Target::Toelichting); }},
    {"BackColor", Doer::Host, [](const Value& step, StepList) -> What { return ReadBackColor(step); }},
    {"BeeindigenZichtbaar", Doer::Host, [](const Value& step, StepList) -> What { return ReadBeeindigen(step); }},
    {"resize", Doer::Host, [](const Value& step, StepList) -> What { return ReadResize(step); }},
    {"frmScenario", Doer::Host, [](const Value& step, StepList) -> What { return ReadScenario(step); }},
    {"click", Doer::Person, [](const Value& step, StepList list) -> What { return ReadClick(step, list); }},
    {"check", Doer::Person, [](const Value& step, StepList list) -> What { return ReadCheck(step, list); }},
    {"toggle", Doer::Person, [](const Value& step, StepList list) -> What { return ReadToggle(step, list); }},
    {"select", Doer::Person, [](const Value& step, StepList list) -> What { return ReadSelect(step, list); }},
    {"enter", Doer::Person, [](const Value& step, StepList list) -> What { return ReadEnter(step, list); }},
    {"close", Doer::PersonOnForm, [](const Value& step, StepList) -> What { return ReadClose(step); }},
    {"dump", Doer::Tool, [](const Value& step, StepList) -> What { return ReadDump(step); }},
}};

/// The kind of step that is named; refuses one that there is not, and one that does not belong in the list.
const StepKind& ReadKind(const Value& name, StepList list) {
  const std::string text = name.Text();
  const auto kind =
      std::find_if(kStepKinds.begin(), kStepKinds.end(), [&](const StepKind& known) { return known.name == text; });
  if (kind == kStepKinds.end()) name.Refuse("no step named " + Quoted(text));
  if (kind->doer == Doer::PersonOnForm && !OnForm(list)) name.Refuse("no form is open here");
  if (kind->doer == Doer::Host && OnForm(list)) name.Refuse(Quoted(text) + " cannot be done while the form is open");
  if (kind->doer == Doer::Host && list == StepList::Pending) name.Refuse(Quoted(text) + " is not a user action");
  return *kind;
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
  const StepKind& kind = ReadKind(name, list);
  Step step;
  step.place = value.Place();
  step.name = kind.name;
  step.what = kind.read(value, list);
  if (const auto answers = value.Find("answers")) step.answers = ReadAnswers(*answers);
  if (const auto pending = value.Find("pending"))
    step.pending = ReadSteps(*pending, OnForm(list) ? StepList::Modal : StepList::Pending);
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

}  // namespace brivane::session
