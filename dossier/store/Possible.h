#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "dossier/model/Gegevens.h"
#include "dossier/model/Journal.h"

/// What a loan file may hold: the one list by which an edit is stored and a file is opened, so that what was stored
/// opens again and nothing opens that no edit writes. Codes are those of the editor's own lists.
namespace brivane::dossier {

/// Bytes of any text.
inline constexpr std::size_t kMostText = 100'000;
/// Loans of the new situation.
inline constexpr std::size_t kMostLoans = 1'000;
/// An amount lies between this and its negative. Twelve digits can be typed; growing by percentages makes more.
inline constexpr double kMostAmount = 1e15;
/// Month of a period: the year form has up to 80 rows of years.
inline constexpr std::int64_t kMostMonths = 960;
/// Bytes of a file with its history, which is some millions of entries. The case itself is held to kMostWeight
/// (CaseWeight.h): tens of thousands of columns, or hundreds of thousands of periods, and opened within a second.
inline constexpr std::int64_t kMostFile = std::int64_t{256} << 20;

[[nodiscard]] bool IsPossible(KolomVeld field, const Waarde& value);
[[nodiscard]] bool IsPossible(PeriodeVeld field, const Waarde& value);
/// The number of a column within its loan, in a proposal too.
[[nodiscard]] bool IsPossibleId(std::int16_t Vrij_Id);
[[nodiscard]] bool IsPossibleAgeLimit(std::int16_t leeftijd);
[[nodiscard]] bool IsPossibleText(std::string_view text);

/// How a place in a case is told, in Dutch: "de huidige situatie" is loan 0, "lening 2 van de nieuwe situatie" loan 2.
[[nodiscard]] std::string LoanInWords(std::size_t loan);
/// "kolom 3 van de huidige situatie".
[[nodiscard]] std::string ColumnInWords(std::int16_t Vrij_Id, std::size_t loan);
/// The applicant is 0.
[[nodiscard]] std::string PersonInWords(std::size_t person);
/// The first is 1.
[[nodiscard]] std::string PeriodeInWords(std::size_t periode);
/// A field by its name in the model; one without a rule goes by that name.
[[nodiscard]] std::string KolomFieldInWords(std::string_view field);
[[nodiscard]] std::string PeriodeFieldInWords(std::string_view field);
/// There are more loans than kMostLoans.
[[nodiscard]] std::string TooManyLoans();

/// The first value that is not possible, told in Dutch by its place: "kolom 3 van de huidige situatie, termijn".
[[nodiscard]] std::optional<std::string> FirstImpossible(const KolomGegevens& kolom);
[[nodiscard]] std::optional<std::string> FirstImpossible(const PersoonGegevens& persoon);
[[nodiscard]] std::optional<std::string> FirstImpossible(const DossierGegevens& dossier);

}  // namespace brivane::dossier
