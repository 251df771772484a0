#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <brivane/frame/Design.h>

namespace brivane::session {

/// The elements that a control array can have.
struct ElementRange {
  int first;
  int last;
};

/// What the designs say about a name.
struct NamedControl {
  host::Kind kind;
  std::optional<ElementRange> elements;  ///< nothing for a control by itself
};

/// A control of the editor (`TxtBd`, `optLast`, `Toelichting.jnAO`); nothing where there is none.
[[nodiscard]] std::optional<NamedControl> EditorControl(std::string_view name);
/// A control of the year-by-year form (`txtBedrag`, `cmdOK`). Which rows there are, only the open form knows.
[[nodiscard]] std::optional<NamedControl> FormControl(std::string_view name);

/// "a text box": the kind in words, with its article.
[[nodiscard]] std::string_view InWords(host::Kind kind);

/// "optLast(2)", "TxtBd".
[[nodiscard]] std::string ElementName(std::string_view name, std::optional<int> index);

}  // namespace brivane::session
