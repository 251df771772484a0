#include "tests/component/replay/RegisteredSubject.h"

#include <algorithm>

#include "tests/component/replay/Door.h"
#include "tests/component/replay/HostObjects.h"
#include "tests/component/replay/Sink.h"
#include <brivane/frame/GroupedNumber.h>
#include <brivane/session/document/ControlNames.h>
#include <brivane/toolkits/memory/Desktop.h>

namespace brivane::latebound {

namespace {

constexpr const wchar_t* kEditor = L"BrivaneVrijeKolom.VrijeKolom";
constexpr const wchar_t* kForm = L"BrivaneVrijeKolom.frmScenario";

CLSID ClassOf(const wchar_t* progId) {
  CLSID clsid;
  Check(CLSIDFromProgID(progId, &clsid), "the component is not registered");
  return clsid;
}

Ptr<IDispatch> Make(const wchar_t* progId) {
  Ptr<IDispatch> object;
  Check(CoCreateInstance(ClassOf(progId), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.OutVoid()),
        "the registered class cannot be made");
  return object;
}

/// A screen's part that is the same for the editor and for a form.
template <class Interface> class OnDoor : public Interface {
 public:
  [[nodiscard]] std::optional<replay::ControlState> Find(const std::string& name, std::optional<int> index) override {
    const std::optional<bool> reachable = door_.Reachable(replay::ElementName(name, index));
    if (!reachable) return std::nullopt;
    return replay::ControlState{Named(name)->kind, *reachable};
  }
  [[nodiscard]] std::vector<std::string> Entries(const std::string& name) override {
    std::vector<std::string> texts;
    for (const controls::ControlDump& control : door_.Dump())
      if (control.name == name)
        for (const auto& entry : control.list.value().entries) texts.push_back(entry.text);
    return texts;
  }
  controls::Outcome Perform(const std::string& name, std::optional<int> index,
                            const controls::Action& action) override {
    return door_.Perform(replay::ElementName(name, index), action);
  }
  [[nodiscard]] std::vector<controls::ControlDump> Dump() override { return door_.Dump(); }

 protected:
  explicit OnDoor(Ptr<IDispatch> door) : door_(std::move(door)) {}
  [[nodiscard]] virtual std::optional<replay::NamedControl> Named(const std::string& name) const = 0;
  [[nodiscard]] const Door& GetDoor() const { return door_; }

  /// The object of the host that the screen is bound to.
  template <class Held> [[nodiscard]] std::shared_ptr<Held> Bound() const {
    return HostObjects::Behind<Held>(FromVariant<Ptr<IDispatch>>(door_.Read(L"record").get()).get());
  }

 private:
  Door door_;
};

class RegisteredForm final : public OnDoor<replay::FormScreen> {
 public:
  explicit RegisteredForm(Ptr<IDispatch> door) : OnDoor(std::move(door)) {}

  [[nodiscard]] bool IsClosed() override { return FromVariant<bool>(GetDoor().Read(L"closed").get()); }
  void Close() override { (void)GetDoor().Perform("", controls::Close{}); }
  [[nodiscard]] host::Color BackColor() override {
    return {FromVariant<std::int32_t>(GetDoor().Read(L"backcolor").get())};
  }
  [[nodiscard]] std::int16_t AantalJaar() override { return FromVariant<std::int16_t>(GetDoor().Read(L"years").get()); }
  [[nodiscard]] std::shared_ptr<host::BedragObject> Scenario() override { return Bound<host::BedragObject>(); }

 protected:
  [[nodiscard]] std::optional<replay::NamedControl> Named(const std::string& name) const override {
    return replay::FormControl(name);
  }
};

/// What the component asks in a person's place, and where it gets the host's classes from.
Ptr<IDispatch> MakeCallback(HostObjects& objects, const host::HostFactories& factories, replay::Audience& audience) {
  using Arguments = LateBound::Arguments;
  auto* const callback = new LateBound;
  const auto made = Ptr<IDispatch>::Adopt(callback);
  callback->Add(L"Message", Reached::Method, 3, [&audience](Arguments given) {
    const auto answer = audience.OnMessage(FromVariant<std::string>(*given[0]), FromVariant<std::string>(*given[1]),
                                           static_cast<host::MessageStyle>(FromVariant<std::int32_t>(*given[2])));
    return ToVariant(static_cast<std::int32_t>(answer));
  });
  callback->Add(L"Form", Reached::Method, 1, [&audience](Arguments given) {
    RegisteredForm form(FromVariant<Ptr<IDispatch>>(*given[0]));
    audience.OnShown(form);
    return Variant();
  });
  callback->Add(L"Closed", Reached::Method, 0, [&audience](Arguments) {
    audience.OnClosed();
    return Variant();
  });
  callback->Add(L"Pending", Reached::Method, 0, [&audience](Arguments) {
    audience.OnPending();
    return Variant();
  });
  callback->Add(L"Focus", Reached::Method, 1, [&audience](Arguments given) {
    audience.OnFocus(FromVariant<std::string>(*given[0]));
    return Variant();
  });
  callback->Add(L"MakeProcedureTrace", Reached::Method, 1, [&objects, &factories](Arguments given) {
    return ToVariant(objects.Of(factories.MaakProcedureTrace(FromVariant<std::string>(*given[0]))).get());
  });
  callback->Add(L"MakeDossierControle", Reached::Method, 1, [&objects, &factories](Arguments given) {
    return ToVariant(objects.Of(factories.MaakDossierControle(FromVariant<std::string>(*given[0]))).get());
  });
  return made;
}

void Equip(const Door& door, const replay::Document& document, IDispatch& callback) {
  if (!document.today.IsNone()) door.Set(L"today", ToVariant(document.today));
  door.Set(L"title", ToVariant(document.title));
  door.Set(L"twipsPerPixelX", ToVariant(document.twipsPerPixelX));
  door.Set(L"twipsPerPixelY", ToVariant(document.twipsPerPixelY));
  door.Set(L"groupSeparator", ToVariant(frame::GroupSeparator(document.locale)));
  door.SetCallback(callback);
}

/// While it lives, objects of the class are equipped from their very creation on.
class Preparation {
 public:
  Preparation(const wchar_t* progId, const replay::Document& document, IDispatch& callback) : door_(ClassDoor(progId)) {
    Equip(door_, document, callback);
  }
  Preparation(const Preparation&) = delete;
  Preparation& operator=(const Preparation&) = delete;
  ~Preparation() { door_.EndCallback(); }

 private:
  static Ptr<IDispatch> ClassDoor(const wchar_t* progId) {
    Ptr<IUnknown> factory;
    Check(CoGetClassObject(ClassOf(progId), CLSCTX_INPROC_SERVER, nullptr, IID_IUnknown, factory.OutVoid()),
          "the registered class cannot be had");
    return DoorOf(*factory.get());
  }

  Door door_;
};

Ptr<IDispatch> MakeEquipped(const wchar_t* progId, const replay::Document& document, IDispatch& callback) {
  const Preparation preparation(progId, document, callback);
  return Make(progId);
}

/// What must stand before the component's objects are made, and go after them.
struct Ground {
  Ground(const replay::Document& document_, replay::InstrumentedHost& host_, replay::Audience& audience_)
      : document(document_),
        host(host_),
        audience(audience_),
        callback(MakeCallback(objects, host.Factories(), audience)) {}

  const replay::Document& document;
  replay::InstrumentedHost& host;
  replay::Audience& audience;
  HostObjects objects;
  Ptr<IDispatch> callback;
};
struct Grounded {
  std::unique_ptr<Ground> ground;
};

class RegisteredSubject final : private Grounded, public OnDoor<replay::Subject> {
 public:
  RegisteredSubject(std::unique_ptr<Ground> on, Ptr<IDispatch> editor)
      : Grounded{std::move(on)},
        OnDoor(DoorOf(*editor.get())),
        editor_(std::move(editor)),
        toelichting_(FromVariant<Ptr<IDispatch>>(Get(*editor_.get(), L"Toelichting").get())),
        events_(*editor_.get(),
                {{L"RefreshTopDisplay",
                  [this](LateBound::Arguments given) {
                    ground->audience.OnRefreshTopDisplay(FromVariant<std::string>(*given[0]));
                  }},
                 {L"HeightChanged", [this](LateBound::Arguments) { ground->audience.OnHeightChanged(); }}}),
        toelichtingEvents_(*toelichting_.get(),
                           {{L"Changed", [this](LateBound::Arguments) { ground->audience.OnToelichtingChanged(); }}}) {}

  void SetApplication(std::int16_t Len_Id, std::int16_t Vrij_Id) override {
    const Ptr<IDispatch> application = ground->objects.Of(ground->host.Application());
    (void)Call(*editor_.get(), L"SetApplication",
               {ToVariant(application.get()), ToVariant(Len_Id), ToVariant(Vrij_Id)});
  }
  bool Validation(replay::Target target, bool cancel, std::int32_t ControleNr) override {
    Variant verdict = ToVariant(cancel);
    Variant byReference;
    byReference.get().vt = VT_BYREF | VT_VARIANT;
    byReference.get().pvarVal = &verdict.get();
    IDispatch& checked = target == replay::Target::Editor ? *editor_.get() : *toelichting_.get();
    (void)Call(checked, L"Validation", {byReference, ToVariant(ControleNr)});
    return FromVariant<bool>(verdict.get());
  }
  void SetBackColor(host::Color color) override { Put(*editor_.get(), L"BackColor", {ToVariant(color.value)}); }
  void SetBeeindigenZichtbaar(bool visible) override {
    Put(*editor_.get(), L"BeeindigenZichtbaar", {ToVariant(visible)});
  }
  void Size(replay::Target target, float width, float height) override {
    GetDoor().Size(target == replay::Target::Editor ? "" : "Toelichting", width, height);
  }
  void ShowScenario(const replay::ScenarioStep& step, const std::shared_ptr<host::BedragObject>& bedrag) override {
    const Ptr<IDispatch> form = MakeEquipped(kForm, ground->document, *ground->callback.get());
    const Ptr<IDispatch> scenario = ground->objects.Of(bedrag);
    Put(*form.get(), L"SoortScenario", {ToVariant(step.SoortScenario)});
    for (const std::int16_t year : step.DisableJaar)
      Put(*form.get(), L"DisableJaar", {ToVariant(year), ToVariant(true)});
    (void)Call(
        *form.get(), L"Invoeren",
        {ToVariant(scenario.get()), ToVariant(step.AantalJaar), ToVariant(step.Labeltype), ToVariant(step.Anv_Leeftijd),
         ToVariant(step.LooptijdExtra), ToVariant(step.In_RenteKorting), ToVariant(step.Bd_MaxOpname)});
    (void)Call(*form.get(), L"Tonen");
  }

  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> Item() override { return Bound<host::VrijeKolomItem>(); }
  [[nodiscard]] bool Filling() override { return FromVariant<bool>(GetDoor().Read(L"filling").get()); }
  [[nodiscard]] bool Gewijzigd() override { return FromVariant<bool>(GetDoor().Read(L"changed").get()); }

 protected:
  [[nodiscard]] std::optional<replay::NamedControl> Named(const std::string& name) const override {
    return replay::EditorControl(name);
  }

 private:
  Ptr<IDispatch> editor_;
  Ptr<IDispatch> toelichting_;
  Connection events_;
  Connection toelichtingEvents_;
};

}  // namespace

std::unique_ptr<replay::Subject> MakeRegisteredSubject(const replay::Document& document, replay::InstrumentedHost& host,
                                                       replay::Audience& audience) {
  auto ground = std::make_unique<Ground>(document, host, audience);
  Ptr<IDispatch> editor = MakeEquipped(kEditor, document, *ground->callback.get());
  return std::make_unique<RegisteredSubject>(std::move(ground), std::move(editor));
}

}  // namespace brivane::latebound
