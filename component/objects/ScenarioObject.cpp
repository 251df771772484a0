#include "component/objects/ScenarioObject.h"

#include "component/automation/HostWindow.h"
#include "component/automation/RecordAdapter.h"
#include <brivane/host/Error.h>

namespace brivane::component {

namespace {

host::Error WrongMoment() { return {5, "Invalid procedure call: the form is filled or open", "BrivaneVrijeKolom"}; }

}  // namespace

ScenarioObject::ScenarioObject(IUnknown* outer)
    : CoObject(outer, CLSID_frmScenario, GUID_NULL), form_(std::make_unique<brivane::frmScenario>(TheToolkit())) {}

ScenarioObject::~ScenarioObject() = default;

controls::Surface& ScenarioObject::Shown() { return controls::Surface::Of(form_->Form()); }

brivane::frmScenario& ScenarioObject::ToSet() {
  if (stage_ == Stage::Closed) {
    form_ = std::make_unique<brivane::frmScenario>(TheToolkit());
    stage_ = Stage::New;
  }
  return *form_;
}

STDMETHODIMP ScenarioObject::Invoeren(IDispatch* Scenario, SHORT AantalJaar, LONG Labeltype, LONG Anv_Leeftijd,
                                      VARIANT_BOOL LooptijdExtra, VARIANT_BOOL In_RenteKorting, double Bd_MaxOpname) {
  return Doing([&] {
    // The grid is built once.
    if (stage_ == Stage::Filled || stage_ == Stage::Open) throw WrongMoment();
    brivane::frmScenario& form = ToSet();
    stage_ = Stage::Closed;  // a form whose filling fails is of no further use
    form.Invoeren(Session().Adapt<BedragAdapter>(Scenario), AantalJaar, Labeltype, Anv_Leeftijd,
                  LooptijdExtra != VARIANT_FALSE, In_RenteKorting != VARIANT_FALSE, Bd_MaxOpname);
    stage_ = Stage::Filled;
  });
}

STDMETHODIMP ScenarioObject::put_DisableJaar(SHORT Jr, VARIANT_BOOL NewValue) {
  return Doing([&] { ToSet().SetDisableJaar(Jr, NewValue != VARIANT_FALSE); });
}

STDMETHODIMP ScenarioObject::get_SoortScenario(SHORT* Soort) {
  return Giving(Soort, [&] { return form_->SoortScenario(); });
}

STDMETHODIMP ScenarioObject::put_SoortScenario(SHORT Soort) {
  return Doing([&] { ToSet().SetSoortScenario(Soort); });
}

STDMETHODIMP ScenarioObject::get_BackColor(OLE_COLOR* Color) {
  return Giving(Color, [&] { return OleColor(form_->BackColor()); });
}

STDMETHODIMP ScenarioObject::put_BackColor(OLE_COLOR New_Color) {
  return Doing([&] { ToSet().SetBackColor(ColorOf(New_Color)); });
}

STDMETHODIMP ScenarioObject::Tonen(VARIANT Eigenaar) {
  return Doing([&] {
    if (stage_ == Stage::Open) throw WrongMoment();
    brivane::frmScenario& form = ToSet();
    const auto eigenaar = WindowNamedBy(Eigenaar);
    stage_ = Stage::Open;
    Opening(form);
    try {
      form.ShowModal(eigenaar.get());
    } catch (...) {
      stage_ = Stage::Closed;
      Session().LetGo();
      throw;
    }
    stage_ = Stage::Closed;
    Session().LetGo();
  });
}

}  // namespace brivane::component
