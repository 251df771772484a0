#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>

/// Everything that the help window says, in one place.
namespace brivane::app {

/// Where a person stands.
enum class HelpPlace : std::uint8_t { Start, List, Filter, Column, YearForm, Findings, Dialog };

struct HelpKey {
  const char* key;
  const char* does;
};

/// "In de lijst".
[[nodiscard]] QString PlaceTitle(HelpPlace place);
[[nodiscard]] std::span<const HelpKey> KeysOf(HelpPlace place);
/// Those that work wherever one stands in the window.
[[nodiscard]] std::span<const HelpKey> KeysEverywhere();

/// What a field is and what can be filled in.
struct FieldHelp {
  const char* field;  ///< by its name in the design, without the number of an array's element
  const char* title;
  const char* text;
};

/// Every field that is explained.
[[nodiscard]] std::span<const FieldHelp> AllFieldHelp();
/// The help of a field by its name, of an array's element too: "optLast(2)".
[[nodiscard]] std::optional<FieldHelp> HelpOfField(const QString& name);

/// Why a field of the editor can be grey, by its name with an array's number; empty for one that never is.
[[nodiscard]] QString WhyGrey(const QString& name);

}  // namespace brivane::app
