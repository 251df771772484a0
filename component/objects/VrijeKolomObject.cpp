#include "component/objects/VrijeKolomObject.h"

#include <array>

#include "component/automation/ApplicationAdapter.h"
#include "component/automation/CaseAdapter.h"
#include "component/automation/Text.h"
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Onderwerp.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::component {

namespace {

// Of the event interface.
constexpr DISPID kRefreshTopDisplay = 1;
constexpr DISPID kHeightChanged = 2;
constexpr DISPID kPartChanged = 1;  // of the explanation control

VARIANT_BOOL Truth(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

}  // namespace

/// The explanation control inside the editor, as hosts reach it: an object of its own, with the editor's count.
class VrijeKolomObject::Embedded final : public Dispatching<IToelichting> {
 public:
  explicit Embedded(VrijeKolomObject& owner)
      : owner_(owner),
        events_(Known(), DIID_DToelichtingEvents),
        properties_(Known()),
        points_(Known(), {&events_, &properties_.Point()}) {
    // The editor's colour comes here too.
    colored_ = frame::Controls(*owner.surface_)[vrijekolom::ToelichtingVlak].BackColorSet.Connect(
        [this](host::Color) { properties_.HasChanged(DISPID_BACKCOLOR); });
  }
  virtual ~Embedded() = default;

  /// The adviser changed something.
  void Changed() { events_.Raise(kPartChanged); }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = iid == IID_IConnectionPointContainer ? &points_ : Own(iid);
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }

  STDMETHODIMP SetApplication(IDispatch* Application, IDispatch* Lening, SHORT Vrij_Id) override {
    return owner_.Doing([&] {
      std::shared_ptr<host::Application> application = owner_.Session().Adapt<ApplicationAdapter>(Application);
      std::shared_ptr<host::Lening> lening = owner_.Session().Adapt<LeningAdapter>(Lening);
      Control().SetApplication(application, lening, Vrij_Id);
    });
  }
  STDMETHODIMP Validation(VARIANT* Cancel, LONG ControleNr) override {
    return owner_.Validating(owner_.binding_, *owner_.surface_, Cancel,
                             [&](bool& cancel) { Control().Validation(cancel, ControleNr); });
  }
  STDMETHODIMP get_BackColor(OLE_COLOR* Color) override {
    return owner_.Giving(Color, [&] { return OleColor(Control().BackColor()); });
  }
  STDMETHODIMP put_BackColor(OLE_COLOR New_Color) override {
    return owner_.Doing([&] {
      if (!properties_.MayChange(DISPID_BACKCOLOR)) throw SetNotPermitted();
      Control().SetBackColor(ColorOf(New_Color));
    });
  }
  // It is bound with the editor.
  STDMETHODIMP get_Toestand(Bindingstoestand* Toestand) override { return owner_.get_Toestand(Toestand); }
  // The embedded control's tracer is of the editor's class.
  STDMETHODIMP get_ProcedureTraceKlasse(BSTR* ProgID) override { return owner_.get_ProcedureTraceKlasse(ProgID); }
  STDMETHODIMP put_ProcedureTraceKlasse(BSTR ProgID) override { return owner_.put_ProcedureTraceKlasse(ProgID); }

 private:
  [[nodiscard]] IUnknown& Known() { return static_cast<IToelichting&>(*this); }
  [[nodiscard]] brivane::Toelichting& Control() { return owner_.editor_->Toelichting(); }

  VrijeKolomObject& owner_;
  ConnectionPoint events_;
  PropertyChanges properties_;
  ConnectionPoints points_;
  host::Subscription colored_;
};

VrijeKolomObject::VrijeKolomObject(IUnknown* outer)
    : CoObject(outer, CLSID_VrijeKolom, DIID_DVrijeKolomEvents),
      surface_(TheToolkit().MakeSurface(vrijekolom::kOntwerp)),
      editor_(std::make_unique<brivane::VrijeKolom>(*surface_, TheToolkit(), Factories())),
      toelichting_(std::make_unique<Embedded>(*this)),
      events_(Controlling(), DIID_DVrijeKolomEvents),
      part_({Controlling(), OwnClass(), L"Brivane vrije kolom", [this] { return editor_->BackColor(); },
             [this](host::Color color) { editor_->SetBackColor(color); }, [this] { LetGo(); }},
            TheToolkit(), *surface_),
      points_(Controlling(), {&events_, &part_.PropertyListeners()}) {
  TheToolkit().SetSubjectTeller([this] {
    const vrijekolom::Onderwerp onderwerp = vrijekolom::LeesOnderwerp(*surface_);
    const auto row = [aanvang = onderwerp.aanvang, &teksten = TheToolkit().Texts()](int rij) {
      return vrijekolom::Rijuitleg(rij, aanvang, {}, teksten);
    };
    return controls::FormSubject{.title = vrijekolom::Titel(onderwerp), .row = row};
  });
  subscriptions_ += editor_->RefreshTopDisplay.Connect([this](const std::string& text) {
    if (!part_.Control().EventsFrozen()) events_.Raise(kRefreshTopDisplay, std::array{Variant(text)});
    CheckGoingOn();
  });
  subscriptions_ += editor_->HeightChanged.Connect([this] {
    part_.Control().SizeChanged();
    CheckGoingOn();
    if (!part_.Control().EventsFrozen()) events_.Raise(kHeightChanged);
    CheckGoingOn();
  });
  subscriptions_ += editor_->ScenarioGeopend.Connect([this](const brivane::frmScenario& form) { Opening(form); });
  subscriptions_ += editor_->Toelichting().Changed.Connect([this] {
    if (!part_.Control().EventsFrozen()) toelichting_->Changed();
    CheckGoingOn();
  });
}

VrijeKolomObject::~VrijeKolomObject() = default;

IUnknown* VrijeKolomObject::Find(REFIID iid) {
  if (iid == IID_IConnectionPointContainer) return &points_;
  IUnknown* const own = CoObject::Find(iid);
  return own ? own : part_.Control().Find(iid);
}

STDMETHODIMP VrijeKolomObject::SetApplication(IDispatch* Application, SHORT Len_Id, SHORT Vrij_Id) {
  return Binding(binding_, *surface_, Application,
                 [&] { editor_->SetApplication(Session().Adapt<ApplicationAdapter>(Application), Len_Id, Vrij_Id); });
}

void VrijeKolomObject::LetGo() {
  binding_.Unbind([this] { editor_->Unbind(); });
  Session().LetGo();
}

STDMETHODIMP VrijeKolomObject::get_Toestand(Bindingstoestand* Toestand) {
  return Giving(Toestand, [&] { return ToestandOf(binding_); });
}

STDMETHODIMP VrijeKolomObject::Validation(VARIANT* Cancel, LONG ControleNr) {
  return Validating(binding_, *surface_, Cancel, [&](bool& cancel) { editor_->Validation(cancel, ControleNr); });
}

STDMETHODIMP VrijeKolomObject::get_BackColor(OLE_COLOR* Color) {
  return Giving(Color, [&] { return OleColor(editor_->BackColor()); });
}

STDMETHODIMP VrijeKolomObject::put_BackColor(OLE_COLOR New_Color) {
  return Doing([&] { part_.Control().PutBackColor(ColorOf(New_Color)); });
}

STDMETHODIMP VrijeKolomObject::get_BeeindigenZichtbaar(VARIANT_BOOL* Zichtbaar) {
  return Giving(Zichtbaar, [&] { return Truth(editor_->BeeindigenZichtbaar()); });
}

STDMETHODIMP VrijeKolomObject::put_BeeindigenZichtbaar(VARIANT_BOOL Zichtbaar) {
  return Doing([&] { editor_->SetBeeindigenZichtbaar(Zichtbaar != VARIANT_FALSE); });
}

STDMETHODIMP VrijeKolomObject::get_Toelichting(IToelichting** Toelichting) {
  return Giving(Toelichting, [&] {
    toelichting_->AddRef();
    return toelichting_.get();
  });
}

STDMETHODIMP VrijeKolomObject::get_ProcedureTraceKlasse(BSTR* ProgID) {
  return Giving(ProgID, [&] { return NewBstr(Classes().procedureTrace); });
}

STDMETHODIMP VrijeKolomObject::put_ProcedureTraceKlasse(BSTR ProgID) {
  return Doing([&] {
    HostClasses classes = Classes();
    classes.procedureTrace = FromBstr(ProgID);
    SetClasses(std::move(classes));
  });
}

STDMETHODIMP VrijeKolomObject::get_DossierControleKlasse(BSTR* ProgID) {
  return Giving(ProgID, [&] { return NewBstr(Classes().dossierControle); });
}

STDMETHODIMP VrijeKolomObject::put_DossierControleKlasse(BSTR ProgID) {
  return Doing([&] {
    HostClasses classes = Classes();
    classes.dossierControle = FromBstr(ProgID);
    SetClasses(std::move(classes));
  });
}

}  // namespace brivane::component
