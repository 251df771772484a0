#include <brivane/scenario/Indeling.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/session/document/ControlNames.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::session {

namespace {

std::optional<NamedControl> FindIn(const frame::Design& design, std::string_view name) {
  std::optional<NamedControl> found;
  for (const frame::Row& row : design.rows) {
    if (row.name != name) continue;
    if (!found) found = NamedControl{row.kind, std::nullopt};
    if (row.index == frame::kNoIndex) continue;
    if (!found->elements) found->elements = ElementRange{row.index, row.index};
    found->elements->last = row.index;
  }
  return found;
}

}  // namespace

std::optional<NamedControl> EditorControl(std::string_view name) {
  const std::size_t dot = name.find('.');
  if (dot == std::string_view::npos) return FindIn(vrijekolom::kOntwerp, name);
  for (const frame::Row& row : vrijekolom::kOntwerp.rows)
    if (row.embedded != nullptr && row.name == name.substr(0, dot)) return FindIn(*row.embedded, name.substr(dot + 1));
  return std::nullopt;
}

std::optional<NamedControl> FormControl(std::string_view name) {
  std::optional<NamedControl> found = FindIn(scenario::kOntwerp, name);
  if (found && found->elements && found->elements->first == frame::kTemplateIndex)
    found->elements->last = scenario::kMeesteRijen;
  return found;
}

std::string_view InWords(host::Kind kind) {
  switch (kind) {
    case host::Kind::Frame: return "a frame";
    case host::Kind::Label: return "a label";
    case host::Kind::TextBox: return "a text box";
    case host::Kind::JaNee: return "a yes/no toggle";
    case host::Kind::Hint: return "a help icon";
    case host::Kind::OptionButton: return "an option";
    case host::Kind::CheckBox: return "a check box";
    case host::Kind::ListBox: return "a list";
    case host::Kind::Button: return "a button";
    case host::Kind::ListView: return "a report list";
    case host::Kind::Surface: return "an embedded control";
  }
  return "a control";
}

std::string ElementName(std::string_view name, std::optional<int> index) {
  std::string element(name);
  if (index) element += '(' + std::to_string(*index) + ')';
  return element;
}

}  // namespace brivane::session
