#pragma once

#include <QString>
#include <span>
#include <string_view>

#include "dossier/store/CaseTables.h"
#include "dossier/store/History.h"

/// The fields of a case in the words of the screen.
namespace brivane::app {

/// How the screen shows what a field holds.
enum class ShownAs : std::uint8_t { Text, Amount, Percent, Number, Date, Duration, Yes, No, Option, Months, Age };

struct FieldWords {
  std::string_view field;  ///< its name in the table
  const char* words;
  ShownAs shown = ShownAs::Text;
  /// The control of the editor where it is filled in; for an array without the index. Empty where there is none.
  std::string_view control = {};
};

/// The words for a field of a table; nothing for a place that the table lacks.
[[nodiscard]] const FieldWords* WordsOf(dossier::Tabel tabel, int field);

/// What a field holds, as the screen shows it: "€ 1.234,56", "01-04-2031", "per kwartaal". Nothing is empty.
[[nodiscard]] QString ValueText(dossier::Tabel tabel, int field, const dossier::Stored& value);

/// What an entry is about: "bedrag", "kolom", "periode", "achternaam van de partner".
[[nodiscard]] QString SubjectText(const dossier::Entry& entry);
/// What stood there before and after, and of a row that came or went what it is in short.
[[nodiscard]] QString BeforeText(const dossier::Entry& entry);
[[nodiscard]] QString AfterText(const dossier::Entry& entry);

/// A step by the reason of all that it set off: "bedrag van Kinderopvang", "verwijderen van Kinderopvang". Empty
/// without entries.
[[nodiscard]] QString StepText(std::span<const dossier::Entry> entries);

/// The control of the editor where the reason of a step is filled in, as its surface names it: "TxtBd", "optLast(2)".
/// `now`: the value that stands there now. Empty where there is none.
[[nodiscard]] QString ControlOf(const dossier::Entry& entry, const dossier::Stored& now);

}  // namespace brivane::app
