#include "dossier/model/Application.h"

#include <algorithm>
#include <utility>

#include <brivane/host/Error.h>
#include <brivane/host/model/Codes.h>

namespace brivane::dossier {
namespace {

const std::vector<Code>& TabelVan(const std::shared_ptr<host::Codetabellen>& bron, std::string_view naam) {
  return host::Need(std::dynamic_pointer_cast<Codetabellen>(bron)).Tabel(naam);
}

}  // namespace

const std::vector<Code>& Codetabellen::Tabel(std::string_view naam) const {
  static const std::vector<Code> leeg;
  return naam == host::codes::kMaatschappijTabel ? maatschappijType_ : leeg;
}

Application::Application(std::shared_ptr<dossier::Dossier> dossier, std::shared_ptr<host::Hoofdvenster> hoofdvenster)
    : dossier_(std::move(dossier)),
      hoofdvenster_(std::move(hoofdvenster)),
      uitgangspunten_(std::make_shared<dossier::Uitgangspunten>(dossier_)),
      codetabellen_(std::make_shared<dossier::Codetabellen>(dossier_->MaatschappijType())) {}

void Application::VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                           host::ListBox& lijst, const std::string& code, const std::string& leeg,
                           std::optional<std::int32_t> keuze) {
  const std::vector<Code>& regels = TabelVan(bron, tabel);
  const int eerste = lijst.ListCount();
  if (!leeg.empty()) lijst.Add(leeg, 0);
  std::int32_t nummer = 0;
  for (const Code& regel : regels) lijst.Add(regel.tekst, ++nummer);

  const auto gezocht =
      std::find_if(regels.begin(), regels.end(), [&](const Code& regel) { return regel.code == code; });
  if (gezocht != regels.end()) keuze = static_cast<std::int32_t>(gezocht - regels.begin() + 1);
  for (int index = eerste; keuze && index < lijst.ListCount(); ++index) {
    if (lijst.ItemData(index) != *keuze) continue;
    lijst.SetListIndex(index);
    return;
  }
}

std::string Application::ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                  const std::string& tekst) {
  const std::vector<Code>& regels = TabelVan(bron, tabel);
  const auto gezocht =
      std::find_if(regels.begin(), regels.end(), [&](const Code& regel) { return regel.tekst == tekst; });
  return gezocht == regels.end() ? std::string() : gezocht->code;
}

void Application::ReportError(host::ProcedureTrace& trace) {
  if (const auto* tracer = dynamic_cast<const Tracer*>(&trace)) FoutGemeld.Raise(tracer->Record());
}

}  // namespace brivane::dossier
