#pragma once

#include "component/objects/CoObject.h"
#include "component/objects/ConnectionPoint.h"
#include "component/objects/ControlPart.h"
#include <brivane/controls/Binding.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::component {

/// The free-column editor as hosts create it.
class VrijeKolomObject final : public CoObject<IVrijeKolom> {
 public:
  explicit VrijeKolomObject(IUnknown* outer);
  ~VrijeKolomObject() override;

  STDMETHODIMP SetApplication(IDispatch* Application, SHORT Len_Id, SHORT Vrij_Id) override;
  STDMETHODIMP Validation(VARIANT* Cancel, LONG ControleNr) override;
  STDMETHODIMP get_BackColor(OLE_COLOR* Color) override;
  STDMETHODIMP put_BackColor(OLE_COLOR New_Color) override;
  STDMETHODIMP get_BeeindigenZichtbaar(VARIANT_BOOL* Zichtbaar) override;
  STDMETHODIMP put_BeeindigenZichtbaar(VARIANT_BOOL Zichtbaar) override;
  STDMETHODIMP get_Toelichting(IToelichting** Toelichting) override;
  STDMETHODIMP get_ProcedureTraceKlasse(BSTR* ProgID) override;
  STDMETHODIMP put_ProcedureTraceKlasse(BSTR ProgID) override;
  STDMETHODIMP get_DossierControleKlasse(BSTR* ProgID) override;
  STDMETHODIMP put_DossierControleKlasse(BSTR ProgID) override;
  STDMETHODIMP get_Toestand(Bindingstoestand* Toestand) override;

 private:
  class Embedded;

  IUnknown* Find(REFIID iid) override;
  void LetGo();
  controls::Surface& Shown() override { return controls::Surface::Of(*surface_); }
  brivane::VrijeKolom* Editor() override { return editor_.get(); }

  std::unique_ptr<host::Surface> surface_;
  controls::Binding binding_{*surface_};
  std::unique_ptr<brivane::VrijeKolom> editor_;
  std::unique_ptr<Embedded> toelichting_;
  ConnectionPoint events_;
  ControlPart part_;
  ConnectionPoints points_;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane::component
