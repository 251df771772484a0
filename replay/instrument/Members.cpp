#include "replay/instrument/Members.h"

#include <array>

namespace brivane::replay {

namespace {

struct Entry {
  Member member;
  std::string_view name;
  MemberKind kind;
};

constexpr std::array<Entry, kMemberCount> kMembers{{
    {Member::Application_Dossier, "Application.Dossier", MemberKind::Object},
    {Member::Application_Uitgangspunten, "Application.Uitgangspunten", MemberKind::Object},
    {Member::Application_Hoofdvenster, "Application.Hoofdvenster", MemberKind::Object},
    {Member::Application_Codetabellen, "Application.Codetabellen", MemberKind::Object},
    {Member::Application_VulCombo, "Application.VulCombo", MemberKind::Operation},
    {Member::Application_ZoekCode, "Application.ZoekCode", MemberKind::Operation},
    {Member::Application_ReportError, "Application.ReportError", MemberKind::Operation},
    {Member::Dossier_HuidigeLening, "Dossier.HuidigeLening", MemberKind::Object},
    {Member::Dossier_Lening, "Dossier.Lening", MemberKind::Object},
    {Member::Dossier_Persoon, "Dossier.Persoon", MemberKind::Object},
    {Member::Dossier_VoegToeAanVoorstel, "Dossier.VoegToeAanVoorstel", MemberKind::Operation},
    {Member::Dossier_VerwijderUitVoorstel, "Dossier.VerwijderUitVoorstel", MemberKind::Operation},
    {Member::DossierControle_Controleer, "DossierControle.Controleer", MemberKind::Operation},
    {Member::Lening_VrijeKolommen, "Lening.VrijeKolommen", MemberKind::Object},
    {Member::Lening_VrijeKolom, "Lening.VrijeKolom", MemberKind::Object},
    {Member::Lening_VrijeKolomOp, "Lening.VrijeKolomOp", MemberKind::Object},
    {Member::Lening_VerwijderVrijeKolom, "Lening.VerwijderVrijeKolom", MemberKind::Operation},
    {Member::Persoon_Naam, "Persoon.Naam", MemberKind::Value},
    {Member::Persoon_Geboortedatum, "Persoon.Geboortedatum", MemberKind::Value},
    {Member::Uitgangspunten_Leeftijd, "Uitgangspunten.Leeftijd", MemberKind::Value},
    {Member::VrijeKolomItem_Id, "VrijeKolomItem.Id", MemberKind::Value},
    {Member::VrijeKolomItem_CorrectieLast, "VrijeKolomItem.CorrectieLast", MemberKind::Value},
    {Member::VrijeKolomItem_CorrectieFiscaal, "VrijeKolomItem.CorrectieFiscaal", MemberKind::Value},
    {Member::VrijeKolomItem_HeffingBij, "VrijeKolomItem.HeffingBij", MemberKind::Value},
    {Member::VrijeKolomItem_Omschrijving, "VrijeKolomItem.Omschrijving", MemberKind::Value},
    {Member::VrijeKolomItem_Bedrag, "VrijeKolomItem.Bedrag", MemberKind::Object},
    {Member::VrijeKolomItem_Termijn, "VrijeKolomItem.Termijn", MemberKind::Value},
    {Member::VrijeKolomItem_InkomenUitArbeid, "VrijeKolomItem.InkomenUitArbeid", MemberKind::Value},
    {Member::VrijeKolomItem_InDagloon, "VrijeKolomItem.InDagloon", MemberKind::Value},
    {Member::VrijeKolomItem_DatumAanvang, "VrijeKolomItem.DatumAanvang", MemberKind::Value},
    {Member::VrijeKolomItem_Looptijd, "VrijeKolomItem.Looptijd", MemberKind::Value},
    {Member::VrijeKolomItem_Contractvervaldatum, "VrijeKolomItem.Contractvervaldatum", MemberKind::Value},
    {Member::VrijeKolomItem_IsProduct, "VrijeKolomItem.IsProduct", MemberKind::Value},
    {Member::VrijeKolomItem_Maatschappij, "VrijeKolomItem.Maatschappij", MemberKind::Value},
    {Member::VrijeKolomItem_MaatschappijNaam, "VrijeKolomItem.MaatschappijNaam", MemberKind::Value},
    {Member::VrijeKolomItem_Productsoort, "VrijeKolomItem.Productsoort", MemberKind::Value},
    {Member::VrijeKolomItem_ProductsoortOmschrijving, "VrijeKolomItem.ProductsoortOmschrijving", MemberKind::Value},
    {Member::VrijeKolomItem_Productnaam, "VrijeKolomItem.Productnaam", MemberKind::Value},
    {Member::VrijeKolomItem_UwBemiddeling, "VrijeKolomItem.UwBemiddeling", MemberKind::Value},
    {Member::VrijeKolomItem_Voorstel, "VrijeKolomItem.Voorstel", MemberKind::Value},
    {Member::VrijeKolomItem_Weergave, "VrijeKolomItem.Weergave", MemberKind::Value},
    {Member::VrijeKolomItem_Kopregel, "VrijeKolomItem.Kopregel", MemberKind::Value},
    {Member::VrijeKolomItem_UitsluitenAO, "VrijeKolomItem.UitsluitenAO", MemberKind::Value},
    {Member::VrijeKolomItem_UitsluitenWW, "VrijeKolomItem.UitsluitenWW", MemberKind::Value},
    {Member::VrijeKolomItem_UitsluitenLangleven, "VrijeKolomItem.UitsluitenLangleven", MemberKind::Value},
    {Member::VrijeKolomItem_ScenarioOverlijden, "VrijeKolomItem.ScenarioOverlijden", MemberKind::Value},
    {Member::VrijeKolomItem_PercentageOvergang, "VrijeKolomItem.PercentageOvergang", MemberKind::Value},
    {Member::VrijeKolomItem_EinddatumOvergang, "VrijeKolomItem.EinddatumOvergang", MemberKind::Value},
    {Member::VrijeKolomItem_EindleeftijdOvergang, "VrijeKolomItem.EindleeftijdOvergang", MemberKind::Value},
    {Member::Bedrag_Basisbedrag, "Bedrag.Basisbedrag", MemberKind::Value},
    {Member::Scenario_Naam, "Scenario.Naam", MemberKind::Value},
    {Member::Scenario_Invoersoort, "Scenario.Invoersoort", MemberKind::Value},
    {Member::Scenario_Bedrag, "Scenario.Bedrag", MemberKind::Value},
    {Member::Scenario_Periode, "Scenario.Periode", MemberKind::Object},
    {Member::Scenario_NieuwePeriode, "Scenario.NieuwePeriode", MemberKind::Operation},
    {Member::Scenario_VerwijderPeriode, "Scenario.VerwijderPeriode", MemberKind::Operation},
    {Member::Periode_Maand, "Periode.Maand", MemberKind::Value},
    {Member::Periode_Bedrag, "Periode.Bedrag", MemberKind::Value},
    {Member::Periode_Percentage, "Periode.Percentage", MemberKind::Value},
    {Member::Periode_Korting, "Periode.Korting", MemberKind::Value},
    {Member::Periode_Eenmalig, "Periode.Eenmalig", MemberKind::Value},
    {Member::ProcedureTrace_EnterProcedure, "ProcedureTrace.EnterProcedure", MemberKind::Operation},
    {Member::ProcedureTrace_LeaveProcedure, "ProcedureTrace.LeaveProcedure", MemberKind::Operation},
    {Member::ProcedureTrace_ErrorInProcedure, "ProcedureTrace.ErrorInProcedure", MemberKind::Operation},
    {Member::ProcedureTrace_ApplicationTitle, "ProcedureTrace.ApplicationTitle", MemberKind::Value},
    {Member::ProcedureTrace_ObjectName, "ProcedureTrace.ObjectName", MemberKind::Value},
    {Member::ProcedureTrace_Caption, "ProcedureTrace.Caption", MemberKind::Value},
    {Member::ProcedureTrace_ObjectDescription, "ProcedureTrace.ObjectDescription", MemberKind::Value},
    {Member::ProcedureTrace_Message, "ProcedureTrace.Message", MemberKind::Value},
    {Member::ProcedureTrace_ErrorNumber, "ProcedureTrace.ErrorNumber", MemberKind::Value},
    {Member::ProcedureTrace_ErrorDescription, "ProcedureTrace.ErrorDescription", MemberKind::Value},
    {Member::ProcedureTrace_ErrorSource, "ProcedureTrace.ErrorSource", MemberKind::Value},
}};

constexpr bool InOrder() {
  for (std::size_t i = 0; i < kMembers.size(); ++i)
    if (static_cast<std::size_t>(kMembers[i].member) != i || kMembers[i].name.empty()) return false;
  return true;
}
static_assert(InOrder(), "the table lists the members in the order of their enumeration");

}  // namespace

std::string_view NameOf(Member member) { return kMembers[static_cast<std::size_t>(member)].name; }

MemberKind KindOf(Member member) { return kMembers[static_cast<std::size_t>(member)].kind; }

std::optional<Member> FindMember(std::string_view name) {
  for (const Entry& entry : kMembers)
    if (entry.name == name) return entry.member;
  return std::nullopt;
}

}  // namespace brivane::replay
