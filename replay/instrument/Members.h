#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace brivane::replay {

/// What a host member is. An Object hands out another object of the host.
enum class MemberKind : std::uint8_t { Value, Operation, Object };

/// Every member of the host interfaces. The amount object has two names: `Bedrag` for its base amount, which
/// the editor reads and writes, and `Scenario` for all that the year-by-year form knows.
enum class Member : std::uint8_t {
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
  VrijeKolomItem_Id,
  VrijeKolomItem_CorrectieLast,
  VrijeKolomItem_CorrectieFiscaal,
  VrijeKolomItem_HeffingBij,
  VrijeKolomItem_Omschrijving,
  VrijeKolomItem_Bedrag,
  VrijeKolomItem_Termijn,
  VrijeKolomItem_InkomenUitArbeid,
  VrijeKolomItem_InDagloon,
  VrijeKolomItem_DatumAanvang,
  VrijeKolomItem_Looptijd,
  VrijeKolomItem_Contractvervaldatum,
  VrijeKolomItem_IsProduct,
  VrijeKolomItem_Maatschappij,
  VrijeKolomItem_MaatschappijNaam,
  VrijeKolomItem_Productsoort,
  VrijeKolomItem_ProductsoortOmschrijving,
  VrijeKolomItem_Productnaam,
  VrijeKolomItem_UwBemiddeling,
  VrijeKolomItem_Voorstel,
  VrijeKolomItem_Weergave,
  VrijeKolomItem_Kopregel,
  VrijeKolomItem_UitsluitenAO,
  VrijeKolomItem_UitsluitenWW,
  VrijeKolomItem_UitsluitenLangleven,
  VrijeKolomItem_ScenarioOverlijden,
  VrijeKolomItem_PercentageOvergang,
  VrijeKolomItem_EinddatumOvergang,
  VrijeKolomItem_EindleeftijdOvergang,
  Bedrag_Basisbedrag,
  Scenario_Naam,
  Scenario_Invoersoort,
  Scenario_Bedrag,
  Scenario_Periode,
  Scenario_NieuwePeriode,
  Scenario_VerwijderPeriode,
  Periode_Maand,
  Periode_Bedrag,
  Periode_Percentage,
  Periode_Korting,
  Periode_Eenmalig,
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
};

inline constexpr std::size_t kMemberCount = static_cast<std::size_t>(Member::ProcedureTrace_ErrorSource) + 1;

/// How a member is reached. A getter that hands out an object is a get and a call alike.
enum class Op : std::uint8_t { Get, Set, Call };

/// `VrijeKolomItem.Termijn`.
[[nodiscard]] std::string_view NameOf(Member member);
[[nodiscard]] MemberKind KindOf(Member member);
/// The member of that name, spelled exactly; nothing where there is none.
[[nodiscard]] std::optional<Member> FindMember(std::string_view name);

}  // namespace brivane::replay
