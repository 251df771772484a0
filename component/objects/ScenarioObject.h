#pragma once

#include "component/objects/CoObject.h"
#include <brivane/scenario/frmScenario.h>

namespace brivane::component {

/// The year-by-year form as hosts create it. Once it has been shown and closed, what is set or entered next is of a
/// new form, with nothing locked and `SoortScenario` 0.
class ScenarioObject final : public CoObject<IfrmScenario> {
 public:
  explicit ScenarioObject(IUnknown* outer);
  ~ScenarioObject() override;

  STDMETHODIMP Invoeren(IDispatch* Scenario, SHORT AantalJaar, LONG Labeltype, LONG Anv_Leeftijd,
                        VARIANT_BOOL LooptijdExtra, VARIANT_BOOL In_RenteKorting, double Bd_MaxOpname) override;
  STDMETHODIMP put_DisableJaar(SHORT Jr, VARIANT_BOOL NewValue) override;
  STDMETHODIMP get_SoortScenario(SHORT* Soort) override;
  STDMETHODIMP put_SoortScenario(SHORT Soort) override;
  STDMETHODIMP get_BackColor(OLE_COLOR* Color) override;
  STDMETHODIMP put_BackColor(OLE_COLOR New_Color) override;
  STDMETHODIMP Tonen(VARIANT Eigenaar) override;

 private:
  enum class Stage { New, Filled, Open, Closed };

  controls::Surface& Shown() override;
  /// The form to set something on: a new one where the last was closed.
  [[nodiscard]] brivane::frmScenario& ToSet();

  std::unique_ptr<brivane::frmScenario> form_;
  Stage stage_ = Stage::New;
};

}  // namespace brivane::component
