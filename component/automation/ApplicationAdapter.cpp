#include "component/automation/ApplicationAdapter.h"

#include <array>

#include "component/automation/CaseAdapter.h"
#include "component/automation/HostWindow.h"
#include "component/automation/Keuzelijst.h"
#include "component/automation/TraceAdapter.h"

namespace brivane::component {

namespace {

/// The source of the code tables, of whatever type the host has it: handed back as it came.
class HeldCodetabellen final : public host::Codetabellen {
 public:
  explicit HeldCodetabellen(Variant value) : value_(std::move(value)) {}
  [[nodiscard]] const Variant& Value() const { return value_; }

 private:
  Variant value_;
};

Variant Handed(const std::shared_ptr<host::Codetabellen>& bron) {
  const auto* const held = dynamic_cast<const HeldCodetabellen*>(bron.get());
  return held ? held->Value() : Variant(static_cast<IDispatch*>(nullptr));
}

}  // namespace

std::shared_ptr<host::Dossier> ApplicationAdapter::Dossier() {
  return Session().Adapt<DossierAdapter>(Get<ComPtr<IDispatch>>(L"Dossier"));
}

std::shared_ptr<host::Uitgangspunten> ApplicationAdapter::Uitgangspunten() {
  return Session().Adapt<UitgangspuntenAdapter>(Get<ComPtr<IDispatch>>(L"Uitgangspunten"));
}

std::shared_ptr<host::Hoofdvenster> ApplicationAdapter::Hoofdvenster() {
  return WindowNamedBy(Target().Get(L"Hoofdvenster").Raw());
}

std::shared_ptr<host::Codetabellen> ApplicationAdapter::Codetabellen() {
  return std::make_shared<HeldCodetabellen>(Target().Get(L"Codetabellen"));
}

void ApplicationAdapter::VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                  host::ListBox& lijst, const std::string& code, const std::string& leeg,
                                  std::optional<std::int32_t> keuze) {
  const LentKeuzelijst lent(lijst);
  const std::array arguments{Handed(bron),  Variant(tabel), Variant(lent.Object()),
                             Variant(code), Variant(leeg),  keuze ? Variant(*keuze) : Variant::Missing()};
  Target().Call(L"VulCombo", arguments);
}

std::string ApplicationAdapter::ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                         const std::string& tekst) {
  const std::array arguments{Handed(bron), Variant(tabel), Variant(tekst)};
  return As<std::string>(Target().Get(L"ZoekCode", arguments));
}

void ApplicationAdapter::ReportError(host::ProcedureTrace& trace) {
  auto& adapter = dynamic_cast<TraceAdapter&>(trace);
  const ComPtr<IDispatch> handed(adapter.Object());
  ComPtr<IDispatch> returned = handed;
  Target().CallByRef(L"ReportError", returned);
  if (returned.Get() != handed.Get()) adapter.Replace(std::move(returned));
}

void ControleAdapter::Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) {
  const auto* const adapter = dynamic_cast<const ApplicationAdapter*>(application.get());
  const std::array arguments{Variant(adapter ? adapter->Object() : nullptr), Variant(soort)};
  Target().Call(L"Controleer", arguments);
}

std::array<std::string, 3> PersoonAdapter::Naam() const {
  const auto delen = As<std::vector<Variant>>(Target().Get(L"Naam"));
  std::array<std::string, 3> naam;
  for (std::size_t i = 0; i < naam.size() && i < delen.size(); ++i) naam[i] = As<std::string>(delen[i]);
  return naam;
}

}  // namespace brivane::component
