// A document as text, for tools that make one.

#include <array>
#include <utility>

#include "replay/document/Document.h"
#include <brivane/session/document/LogNames.h>

namespace brivane::replay {

namespace {

Json Write(const std::vector<Step>& steps);

std::string_view NameOf(const controls::Action& action) {
  return std::visit(
      []<class T>(const T&) -> std::string_view {
        if constexpr (std::is_same_v<T, controls::Tick>)
          return "check";
        else if constexpr (std::is_same_v<T, controls::Toggle>)
          return "toggle";
        else if constexpr (std::is_same_v<T, controls::Choose>)
          return "select";
        else if constexpr (std::is_same_v<T, controls::Enter>)
          return "enter";
        else if constexpr (std::is_same_v<T, controls::Close>)
          return "close";
        else
          return "click";
      },
      action);
}

std::string_view NameOf(Op op) {
  switch (op) {
    case Op::Get: return "get";
    case Op::Set: return "set";
    case Op::Call: return "call";
  }
  return "";
}

std::string_view NameOf(host::MessageAnswer answer) {
  switch (answer) {
    case host::MessageAnswer::Ok: return "OK";
    case host::MessageAnswer::Yes: return "Ja";
    case host::MessageAnswer::No: return "Nee";
  }
  return "";
}

Json Typed(const controls::BoxValue& value) {
  return std::visit(
      []<class T>(const T& typed) -> Json {
        if constexpr (std::is_same_v<T, std::monostate>)
          return "";
        else if constexpr (std::is_same_v<T, host::Date>)
          return {{"date", ToJson(typed)}};
        else
          return typed;
      },
      value);
}

struct StepWriter {
  Json operator()(const BindStep& step) const {
    return {{"do", "SetApplication"}, {"Len_Id", step.Len_Id}, {"Vrij_Id", step.Vrij_Id}};
  }
  Json operator()(const ValidationStep& step) const {
    return {{"do", step.target == Target::Editor ? "Validation" : "Toelichting.Validation"},
            {"ControleNr", step.ControleNr},
            {"Cancel", step.Cancel}};
  }
  Json operator()(const BackColorStep& step) const { return {{"do", "BackColor"}, {"value", step.color.value}}; }
  Json operator()(const BeeindigenStep& step) const { return {{"do", "BeeindigenZichtbaar"}, {"value", step.visible}}; }
  Json operator()(const ResizeStep& step) const {
    Json json{{"do", "resize"}, {"width", step.width}, {"height", step.height}};
    if (step.target == Target::Toelichting) json["control"] = "Toelichting";
    return json;
  }
  Json operator()(const ActStep& step) const {
    const auto* const action = std::get_if<controls::Action>(&step.action);
    Json json{{"do", action != nullptr ? NameOf(*action) : "select"}, {"control", step.control}};
    if (action == nullptr) {
      json["entry"] = std::get<std::string>(step.action);
      return json;
    }
    if (step.index) json["index"] = *step.index;
    if (const auto* choose = std::get_if<controls::Choose>(action)) json["index"] = choose->index;
    if (const auto* tick = std::get_if<controls::Tick>(action)) json["value"] = tick->value;
    if (const auto* toggle = std::get_if<controls::Toggle>(action)) json["value"] = toggle->value;
    if (const auto* enter = std::get_if<controls::Enter>(action)) json["value"] = Typed(enter->value);
    return json;
  }
  Json operator()(const ScenarioStep& step) const {
    return {{"do", "frmScenario"},
            {"Len_Id", step.Len_Id},
            {"Vrij_Id", step.Vrij_Id},
            {"AantalJaar", step.AantalJaar},
            {"Labeltype", step.Labeltype},
            {"Anv_Leeftijd", step.Anv_Leeftijd},
            {"LooptijdExtra", step.LooptijdExtra},
            {"In_RenteKorting", step.In_RenteKorting},
            {"Bd_MaxOpname", step.Bd_MaxOpname},
            {"SoortScenario", step.SoortScenario},
            {"DisableJaar", step.DisableJaar}};
  }
  Json operator()(const CloseStep&) const { return {{"do", "close"}}; }
  Json operator()(const DumpStep&) const { return {{"do", "dump"}}; }
};

Json Write(const Step& step) {
  Json json = std::visit(StepWriter{}, step.what);
  if (!step.answers.empty()) {
    Json& answers = json["answers"] = Json::array();
    for (const host::MessageAnswer answer : step.answers) answers.push_back(NameOf(answer));
  }
  if (!step.modal.empty()) json["modal"] = Write(step.modal);
  if (!step.pending.empty()) json["pending"] = Write(step.pending);
  return json;
}

Json Write(const std::vector<Step>& steps) {
  Json json = Json::array();
  for (const Step& step : steps) json.push_back(Write(step));
  return json;
}

Json Write(const FaultPlan& fault) {
  return {{"member", NameOf(fault.member)}, {"op", NameOf(fault.op)},           {"nth", fault.nth},
          {"number", fault.number},         {"description", fault.description}, {"source", fault.source}};
}

Json Write(const std::set<Log>& logs) {
  Json json = Json::array();
  for (const auto& [name, log] : kLogNames)
    if (logs.contains(log)) json.push_back(name);
  return json;
}

/// A member on lines of its own; of a list, each element on one.
void AppendMember(std::string& out, std::string_view key, const Json& value) {
  out += (out.empty() ? "{\n  " : ",\n  ") + Quoted(key) + ": ";
  if (!value.is_array() || value.empty() || !value.front().is_object()) {
    AppendLine(out, value);
    return;
  }
  const char* before = "[\n    ";
  for (const Json& element : value) {
    out += before;
    AppendLine(out, element);
    before = ",\n    ";
  }
  out += "\n  ]";
}

}  // namespace

std::string WriteDocument(const Document& document) {
  std::string out;
  if (!document.today.IsNone()) AppendMember(out, "today", ToJson(document.today));
  AppendMember(out, "title", document.title);
  AppendMember(out, "locale", document.locale);
  AppendMember(out, "screen",
               {{"TwipsPerPixelX", document.twipsPerPixelX}, {"TwipsPerPixelY", document.twipsPerPixelY}});
  if (document.headers == Headers::Computed) AppendMember(out, "headers", "computed");
  AppendMember(out, "log", Write(document.log));
  AppendMember(out, "dossier", ToJson(document.dossier));
  Json faults = Json::array();
  for (const FaultPlan& fault : document.faults) faults.push_back(Write(fault));
  AppendMember(out, "faults", faults);
  AppendMember(out, "steps", Write(document.steps));
  return out + "\n}\n";
}

}  // namespace brivane::replay
