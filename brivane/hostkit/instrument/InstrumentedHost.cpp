#include <optional>
#include <string_view>
#include <utility>

#include <brivane/hostkit/instrument/CaseStandIns.h>
#include <brivane/hostkit/instrument/InstrumentedHost.h>
#include <brivane/hostkit/instrument/TraceStandIn.h>

namespace brivane::hostkit {

namespace {

class ApplicationStandIn : public StandIn<host::Application> {
 public:
  using StandIn::StandIn;

  std::shared_ptr<host::Dossier> Dossier() override {
    return StandInOf<DossierStandIn>(shared_, Object(Member::Application_Dossier, &host::Application::Dossier));
  }
  std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override {
    return StandInOf<UitgangspuntenStandIn>(
        shared_, Object(Member::Application_Uitgangspunten, &host::Application::Uitgangspunten));
  }
  // The main window and the code tables have no members of their own: the inner host gets back its own.
  std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override {
    return Object(Member::Application_Hoofdvenster, &host::Application::Hoofdvenster);
  }
  std::shared_ptr<host::Codetabellen> Codetabellen() override {
    return Object(Member::Application_Codetabellen, &host::Application::Codetabellen);
  }
  void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, host::ListBox& lijst,
                const std::string& code, const std::string& leeg, std::optional<std::int32_t> keuze) override {
    shared_->ledger.Pass(Member::Application_VulCombo, Op::Call);
    inner_->VulCombo(bron, tabel, lijst, code, leeg, keuze);
  }
  std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                       const std::string& tekst) override {
    shared_->ledger.Pass(Member::Application_ZoekCode, Op::Call);
    return inner_->ZoekCode(bron, tabel, tekst);
  }
  void ReportError(host::ProcedureTrace& trace) override {
    shared_->ledger.Pass(Member::Application_ReportError, Op::Call);
    auto* const standIn = dynamic_cast<TraceStandIn*>(&trace);
    inner_->ReportError(standIn != nullptr ? *standIn->Inner() : trace);
    if (standIn != nullptr) shared_->listener.OnReport(standIn->Record());
  }
};

class ControleStandIn : public StandIn<host::DossierControle> {
 public:
  using StandIn::StandIn;

  void Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) override {
    shared_->ledger.Pass(Member::DossierControle_Controleer, Op::Call);
    const auto standIn = std::dynamic_pointer_cast<ApplicationStandIn>(application);
    inner_->Controleer(standIn ? standIn->Inner() : application, soort);
    shared_->listener.OnCall(Member::DossierControle_Controleer, std::array{soort});
  }
};

}  // namespace

InstrumentedHost::InstrumentedHost(std::shared_ptr<host::Application> application, host::HostFactories factories,
                                   HostListener& listener)
    : shared_(std::make_shared<Shared>(listener)),
      application_(std::make_shared<ApplicationStandIn>(shared_, std::move(application))) {
  factories_.MaakProcedureTrace = [shared = shared_, make = std::move(factories.MaakProcedureTrace)](
                                      std::string_view control) -> std::shared_ptr<host::ProcedureTrace> {
    std::shared_ptr<host::ProcedureTrace> inner = make(control);
    return inner ? std::make_shared<TraceStandIn>(shared, std::move(inner), control) : nullptr;
  };
  factories_.MaakDossierControle = [shared = shared_, make = std::move(factories.MaakDossierControle)](
                                       std::string_view control) -> std::shared_ptr<host::DossierControle> {
    std::shared_ptr<host::DossierControle> inner = make(control);
    return inner ? std::make_shared<ControleStandIn>(shared, std::move(inner)) : nullptr;
  };
}

AccessLedger& InstrumentedHost::Ledger() { return shared_->ledger; }

std::shared_ptr<host::BedragObject> InstrumentedHost::StandInFor(const std::shared_ptr<host::BedragObject>& bedrag) {
  return StandInOf<AmountStandIn>(shared_, bedrag);
}

std::shared_ptr<host::VrijeKolomItem> InnerOf(const std::shared_ptr<host::VrijeKolomItem>& standIn) {
  const auto known = std::dynamic_pointer_cast<RecordStandIn>(standIn);
  return known ? known->Inner() : nullptr;
}

std::shared_ptr<host::BedragObject> InnerOf(const std::shared_ptr<host::BedragObject>& standIn) {
  const auto known = std::dynamic_pointer_cast<AmountStandIn>(standIn);
  return known ? known->Inner() : nullptr;
}

}  // namespace brivane::hostkit
