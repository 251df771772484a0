#include "component/objects/ToelichtingObject.h"

#include "component/automation/ApplicationAdapter.h"
#include "component/automation/CaseAdapter.h"
#include "component/automation/Text.h"
#include <brivane/toelichting/Ontwerp.h>

namespace brivane::component {

namespace {

// Of the event interface.
constexpr DISPID kChanged = 1;

}  // namespace

ToelichtingObject::ToelichtingObject(IUnknown* outer)
    : CoObject(outer, CLSID_Toelichting, DIID_DToelichtingEvents),
      surface_(TheToolkit().MakeSurface(toelichting::kOntwerp)),
      control_(std::make_unique<brivane::Toelichting>(*surface_, TheToolkit().Desktop(), Factories())),
      events_(Controlling(), DIID_DToelichtingEvents),
      part_({Controlling(), OwnClass(), L"Brivane toelichting", [this] { return control_->BackColor(); },
             [this](host::Color color) { control_->SetBackColor(color); }, [this] { LetGo(); }},
            TheToolkit(), *surface_),
      points_(Controlling(), {&events_, &part_.PropertyListeners()}) {
  changed_ = control_->Changed.Connect([this] {
    if (!part_.Control().EventsFrozen()) events_.Raise(kChanged);
    CheckGoingOn();
  });
}

ToelichtingObject::~ToelichtingObject() = default;

IUnknown* ToelichtingObject::Find(REFIID iid) {
  if (iid == IID_IConnectionPointContainer) return &points_;
  IUnknown* const own = CoObject::Find(iid);
  return own ? own : part_.Control().Find(iid);
}

STDMETHODIMP ToelichtingObject::SetApplication(IDispatch* Application, IDispatch* Lening, SHORT Vrij_Id) {
  return Binding(binding_, *surface_, Application, [&] {
    std::shared_ptr<host::Application> application = Session().Adapt<ApplicationAdapter>(Application);
    std::shared_ptr<host::Lening> lening = Session().Adapt<LeningAdapter>(Lening);
    control_->SetApplication(application, lening, Vrij_Id);
  });
}

void ToelichtingObject::LetGo() {
  binding_.Unbind([this] { control_->Unbind(); });
  Session().LetGo();
}

STDMETHODIMP ToelichtingObject::Validation(VARIANT* Cancel, LONG ControleNr) {
  return Validating(binding_, *surface_, Cancel, [&](bool& cancel) { control_->Validation(cancel, ControleNr); });
}

STDMETHODIMP ToelichtingObject::get_Toestand(Bindingstoestand* Toestand) {
  return Giving(Toestand, [&] { return ToestandOf(binding_); });
}

STDMETHODIMP ToelichtingObject::get_BackColor(OLE_COLOR* Color) {
  return Giving(Color, [&] { return OleColor(control_->BackColor()); });
}

STDMETHODIMP ToelichtingObject::put_BackColor(OLE_COLOR New_Color) {
  return Doing([&] { part_.Control().PutBackColor(ColorOf(New_Color)); });
}

STDMETHODIMP ToelichtingObject::get_ProcedureTraceKlasse(BSTR* ProgID) {
  return Giving(ProgID, [&] { return NewBstr(Classes().procedureTrace); });
}

STDMETHODIMP ToelichtingObject::put_ProcedureTraceKlasse(BSTR ProgID) {
  return Doing([&] {
    HostClasses classes = Classes();
    classes.procedureTrace = FromBstr(ProgID);
    SetClasses(std::move(classes));
  });
}

}  // namespace brivane::component
