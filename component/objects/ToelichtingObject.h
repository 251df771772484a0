#pragma once

#include "component/objects/CoObject.h"
#include "component/objects/ConnectionPoint.h"
#include "component/objects/ControlPart.h"
#include <brivane/controls/Binding.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane::component {

/// The explanation control as hosts create it by itself.
class ToelichtingObject final : public CoObject<IToelichting> {
 public:
  explicit ToelichtingObject(IUnknown* outer);
  ~ToelichtingObject() override;

  STDMETHODIMP SetApplication(IDispatch* Application, IDispatch* Lening, SHORT Vrij_Id) override;
  STDMETHODIMP Validation(VARIANT* Cancel, LONG ControleNr) override;
  STDMETHODIMP get_BackColor(OLE_COLOR* Color) override;
  STDMETHODIMP put_BackColor(OLE_COLOR New_Color) override;
  STDMETHODIMP get_ProcedureTraceKlasse(BSTR* ProgID) override;
  STDMETHODIMP put_ProcedureTraceKlasse(BSTR ProgID) override;
  STDMETHODIMP get_Toestand(Bindingstoestand* Toestand) override;

 private:
  IUnknown* Find(REFIID iid) override;
  void LetGo();
  controls::Surface& Shown() override { return controls::Surface::Of(*surface_); }

  std::unique_ptr<host::Surface> surface_;
  controls::Binding binding_{*surface_};
  std::unique_ptr<brivane::Toelichting> control_;
  ConnectionPoint events_;
  ControlPart part_;
  ConnectionPoints points_;
  host::Subscription changed_;
};

}  // namespace brivane::component
