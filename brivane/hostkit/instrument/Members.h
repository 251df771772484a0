#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include <brivane/host/Export.h>
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

namespace brivane::hostkit {

/// What a host member is.
enum class MemberKind : std::uint8_t {
  Value,      ///< it is read, written, or both
  Operation,  ///< it does something
  Object,     ///< it hands out another object of the host
};

/// Every member of the host interfaces. The amount object has two names: `Bedrag` for its base amount, which
/// the editor reads and writes, and `Scenario` for all that the year-by-year form knows. The fields of a free column
/// and of a period entry have no enumerator of their own: they follow the others in the order of their tables.
enum class Member : std::uint8_t {
  /// The class in brivane::host, and the member there.
  /// @{
  Application_Dossier,
  Application_Uitgangspunten,
  Application_Hoofdvenster,
  Application_Codetabellen,
  Application_VulCombo,
  Application_ZoekCode,
  Application_ReportError,
  Dossier_HuidigeLening,
  Dossier_Lening,
  Dossier_Persoon,
  Dossier_VoegToeAanVoorstel,
  Dossier_VerwijderUitVoorstel,
  DossierControle_Controleer,
  Lening_VrijeKolommen,
  Lening_VrijeKolom,
  Lening_VrijeKolomOp,
  Lening_VerwijderVrijeKolom,
  Persoon_Naam,
  Persoon_Geboortedatum,
  Uitgangspunten_Leeftijd,
  VrijeKolomItem_Bedrag,
  Bedrag_Basisbedrag,
  Scenario_Naam,
  Scenario_Invoersoort,
  Scenario_Bedrag,
  Scenario_Periode,
  Scenario_NieuwePeriode,
  Scenario_VerwijderPeriode,
  ProcedureTrace_EnterProcedure,
  ProcedureTrace_LeaveProcedure,
  ProcedureTrace_ErrorInProcedure,
  ProcedureTrace_ApplicationTitle,
  ProcedureTrace_ObjectName,
  ProcedureTrace_Caption,
  ProcedureTrace_ObjectDescription,
  ProcedureTrace_Message,
  ProcedureTrace_ErrorNumber,
  ProcedureTrace_ErrorDescription,
  ProcedureTrace_ErrorSource,
  /// @}
};

/// The members that are no field of a table.
inline constexpr std::size_t kNamedMembers = static_cast<std::size_t>(Member::ProcedureTrace_ErrorSource) + 1;
/// The fields of a free column, which follow those.
inline constexpr std::size_t kVrijeKolomMembers = std::tuple_size_v<decltype(host::kVrijeKolomFields)>;
/// The fields of a period entry, which come last.
inline constexpr std::size_t kPeriodeMembers = std::tuple_size_v<decltype(host::kPeriodeFields)>;
/// All members.
inline constexpr std::size_t kMemberCount = kNamedMembers + kVrijeKolomMembers + kPeriodeMembers;

/// The member that a field of a free column is.
[[nodiscard]] constexpr Member MemberOf(const host::AnyField<host::VrijeKolomItem>& field) {
  return static_cast<Member>(kNamedMembers + field.place);
}
/// The member that a field of a period entry is.
[[nodiscard]] constexpr Member MemberOf(const host::AnyField<host::Periode>& field) {
  return static_cast<Member>(kNamedMembers + kVrijeKolomMembers + field.place);
}

/// How a member is reached. A getter that hands out an object is a get and a call alike.
enum class Op : std::uint8_t {
  Get,   ///< a value or an object is asked for
  Set,   ///< a value is written
  Call,  ///< an operation is done
};

/// The name of a member as reports and documents write it: `VrijeKolomItem.Termijn`. It lives as long as the program.
[[nodiscard]] BRIVANE_API std::string_view NameOf(Member member);
/// What a member is.
[[nodiscard]] BRIVANE_API MemberKind KindOf(Member member);
/// The member of that name, spelled exactly; nothing where there is none.
[[nodiscard]] BRIVANE_API std::optional<Member> FindMember(std::string_view name);

}  // namespace brivane::hostkit
