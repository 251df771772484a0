#include "tests/faults/Workbench.h"

#include <algorithm>
#include <utility>

#include "dossier/model/Tracer.h"
#include <brivane/frame/Calendar.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::faults {

namespace {

/// Of the explanation control; the editor's procedure of the first name has one.
bool WithoutHandler(std::string_view procedure) {
  return procedure == "Fill_Controls" || procedure == "Show_Keuze" || procedure == "Fill_Listview";
}

class CountingTracer final : public dossier::Tracer {
 public:
  explicit CountingTracer(std::shared_ptr<Traced> traced) : traced_(std::move(traced)) {}
  void EnterProcedure(std::string_view procedure) override { traced_->names.at(traced_->running++) = procedure; }
  void LeaveProcedure() override {
    if (traced_->running == 0)
      ++traced_->unbalanced;
    else
      --traced_->running;
  }
  /// The failure has also ended what the procedure called and what has no handler.
  void ErrorInProcedure(std::string_view procedure) override {
    ++traced_->errors;
    while (traced_->running > 0 && traced_->names[--traced_->running] != procedure)
      if (!WithoutHandler(traced_->names[traced_->running])) ++traced_->unbalanced;
  }

 private:
  std::shared_ptr<Traced> traced_;
};

void Collect(const controls::Surface& surface, std::vector<controls::ControlDump>& dumps) {
  for (const auto& control : surface.Made()) {
    if (!control->Shown()) continue;
    dumps.push_back(controls::Dump(*control));
    if (control->ControlKind() == host::Kind::Surface) Collect(static_cast<const controls::Surface&>(*control), dumps);
  }
}

}  // namespace

Workbench::Workbench(std::shared_ptr<dossier::Dossier> dossier)
    : application_(std::make_shared<dossier::Application>(std::move(dossier))),
      surface_(toolkit_.MakeSurface(vrijekolom::kOntwerp)) {
  toolkit_.Desktop().today = frame::MakeDate({.year = 2026, .month = 11, .day = 21});
  reports_ = application_->FoutGemeld.Connect([traced = traced_](const host::ErrorRecord&) { ++traced->reports; });
  const host::HostFactories factories{
      .MaakProcedureTrace = [traced = traced_](std::string_view) { return std::make_shared<CountingTracer>(traced); },
      .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }};
  editor_ = std::make_unique<brivane::VrijeKolom>(*surface_, toolkit_, factories);
}

std::vector<controls::ControlDump> Workbench::OnShow() {
  std::vector<controls::ControlDump> dumps;
  Collect(Surface(), dumps);
  return dumps;
}

}  // namespace brivane::faults
