#include <array>
#include <string>
#include <vector>

#include <brivane/hostkit/instrument/Members.h>

namespace brivane::hostkit {

namespace {

struct Entry {
  Member member;
  std::string_view name;
  MemberKind kind;
};

constexpr std::array<Entry, kNamedMembers> kMembers{{
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
    {Member::VrijeKolomItem_Bedrag, "VrijeKolomItem.Bedrag", MemberKind::Object},
    {Member::Bedrag_Basisbedrag, "Bedrag.Basisbedrag", MemberKind::Value},
    {Member::Scenario_Naam, "Scenario.Naam", MemberKind::Value},
    {Member::Scenario_Invoersoort, "Scenario.Invoersoort", MemberKind::Value},
    {Member::Scenario_Bedrag, "Scenario.Bedrag", MemberKind::Value},
    {Member::Scenario_Periode, "Scenario.Periode", MemberKind::Object},
    {Member::Scenario_NieuwePeriode, "Scenario.NieuwePeriode", MemberKind::Operation},
    {Member::Scenario_VerwijderPeriode, "Scenario.VerwijderPeriode", MemberKind::Operation},
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

/// The names of the members that are fields, in the order of their numbers.
const std::vector<std::string>& FieldNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> made;
    const auto add = [&made](const char* record) {
      return [&made, record](const auto& field) { made.push_back(record + std::string(field.name)); };
    };
    host::ForEach(host::kVrijeKolomFields, add("VrijeKolomItem."));
    host::ForEach(host::kPeriodeFields, add("Periode."));
    return made;
  }();
  return names;
}

}  // namespace

std::string_view NameOf(Member member) {
  const auto number = static_cast<std::size_t>(member);
  return number < kNamedMembers ? kMembers[number].name : FieldNames()[number - kNamedMembers];
}

MemberKind KindOf(Member member) {
  const auto number = static_cast<std::size_t>(member);
  return number < kNamedMembers ? kMembers[number].kind : MemberKind::Value;
}

std::optional<Member> FindMember(std::string_view name) {
  for (std::size_t number = 0; number < kMemberCount; ++number)
    if (NameOf(static_cast<Member>(number)) == name) return static_cast<Member>(number);
  return std::nullopt;
}

}  // namespace brivane::hostkit
