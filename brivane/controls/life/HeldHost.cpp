#include <vector>

#include <brivane/controls/life/Held.h>
#include <brivane/controls/life/HeldHost.h>
#include <brivane/controls/life/OwnVenster.h>
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

namespace brivane::controls {

AnyHeld::AnyHeld(std::shared_ptr<HeldHost::Shared> shared, Kind kind) : shared_(std::move(shared)), kind_(kind) {
  shared_->Add(*this);
}

AnyHeld::~AnyHeld() { shared_->Remove(*this); }

void HeldHost::Shared::Add(AnyHeld& held) {
  held.next_ = first;
  if (first != nullptr) first->previous_ = &held;
  first = &held;
}

void HeldHost::Shared::Remove(AnyHeld& held) {
  (held.previous_ != nullptr ? held.previous_->next_ : first) = held.next_;
  if (held.next_ != nullptr) held.next_->previous_ = held.previous_;
}

void HeldHost::Shared::LetGoOf(bool made) {
  // All of them before the first of the host's objects goes, which may set off anything.
  std::vector<std::shared_ptr<void>> objects;
  for (AnyHeld* held = first; held != nullptr; held = held->next_)
    if (made || held->kind_ == AnyHeld::Kind::Model) objects.push_back(held->LetGo());
}

namespace {

class HeldPeriode final : public Held<host::Periode, host::PeriodeByField<HeldPeriode>> {
 public:
  using Held::Held;

 private:
  friend host::PeriodeByField<HeldPeriode>;
  template <class Field> auto ReadField(const Field& field) const { return Ask(field.get); }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Ask(field.set, value);
  }
};

class HeldBedrag final : public Held<host::BedragObject> {
 public:
  using Held::Held;

  std::string Naam() const override { return Ask(&host::BedragObject::Naam); }
  std::int16_t Invoersoort() const override { return Ask(&host::BedragObject::Invoersoort); }
  double Basisbedrag() const override { return Ask(&host::BedragObject::Basisbedrag); }
  void SetBasisbedrag(double bedrag) override { Ask(&host::BedragObject::SetBasisbedrag, bedrag); }
  double Bedrag() const override { return Ask(&host::BedragObject::Bedrag); }
  void SetBedrag(double bedrag) override { Ask(&host::BedragObject::SetBedrag, bedrag); }
  std::shared_ptr<host::Periode> Periode(std::int16_t positie) override {
    return AskFor<HeldPeriode>(&host::BedragObject::Periode, positie);
  }
  std::int16_t NieuwePeriode() override { return Ask(&host::BedragObject::NieuwePeriode); }
  void VerwijderPeriode(std::int16_t positie) override { Ask(&host::BedragObject::VerwijderPeriode, positie); }
};

class HeldItem final : public Held<host::VrijeKolomItem, host::VrijeKolomByField<HeldItem>> {
 public:
  using Held::Held;

  std::shared_ptr<host::BedragObject> Bedrag() override { return AskFor<HeldBedrag>(&host::VrijeKolomItem::Bedrag); }
  std::string Voorstel(std::int16_t nummer) const override { return Ask(&host::VrijeKolomItem::Voorstel, nummer); }
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    Ask(&host::VrijeKolomItem::SetVoorstel, nummer, lidmaatschap);
  }

 private:
  friend host::VrijeKolomByField<HeldItem>;
  template <class Field> auto ReadField(const Field& field) const { return Ask(field.get); }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Ask(field.set, value);
  }
};

class HeldLening final : public Held<host::Lening> {
 public:
  using Held::Held;

  std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override {
    return AskFor<HeldItem>(&host::Lening::VrijeKolommen, Vrij_Id);
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override {
    return AskFor<HeldItem>(&host::Lening::VrijeKolom, Vrij_Id);
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override {
    return AskFor<HeldItem>(&host::Lening::VrijeKolomOp, positie);
  }
  void VerwijderVrijeKolom(std::int16_t positie) override { Ask(&host::Lening::VerwijderVrijeKolom, positie); }
};

class HeldPersoon final : public Held<host::Persoon> {
 public:
  using Held::Held;

  std::array<std::string, 3> Naam() const override { return Ask(&host::Persoon::Naam); }
  host::Date Geboortedatum() const override { return Ask(&host::Persoon::Geboortedatum); }
};

class HeldUitgangspunten final : public Held<host::Uitgangspunten> {
 public:
  using Held::Held;

  std::int16_t Leeftijd() const override { return Ask(&host::Uitgangspunten::Leeftijd); }
};

class HeldDossier final : public Held<host::Dossier> {
 public:
  using Held::Held;

  std::shared_ptr<host::Lening> HuidigeLening() override { return AskFor<HeldLening>(&host::Dossier::HuidigeLening); }
  std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override {
    return AskFor<HeldLening>(&host::Dossier::Lening, Len_Id);
  }
  std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override {
    return AskFor<HeldPersoon>(&host::Dossier::Persoon, nummer);
  }
  void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) override {
    Ask(&host::Dossier::VoegToeAanVoorstel, voorstel, Vrij_Id);
  }
  void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) override {
    Ask(&host::Dossier::VerwijderUitVoorstel, voorstel, Vrij_Id, nul);
  }
};

class HeldHoofdvenster final : public Held<host::Hoofdvenster>, public VensterStandIn {
 public:
  using Held::Held;

  host::Hoofdvenster* Own() const override { return Object().get(); }
};

class HeldCodetabellen final : public Held<host::Codetabellen> {
 public:
  using Held::Held;
};

class HeldTrace final : public Held<host::ProcedureTrace> {
 public:
  using Held::Held;

  void EnterProcedure(std::string_view procedure) override { Ask(&host::ProcedureTrace::EnterProcedure, procedure); }
  void LeaveProcedure() override { Ask(&host::ProcedureTrace::LeaveProcedure); }
  void ErrorInProcedure(std::string_view procedure) override {
    Ask(&host::ProcedureTrace::ErrorInProcedure, procedure);
  }
  void SetApplicationTitle(const std::string& tekst) override {
    Ask(&host::ProcedureTrace::SetApplicationTitle, tekst);
  }
  void SetObjectName(const std::string& tekst) override { Ask(&host::ProcedureTrace::SetObjectName, tekst); }
  void SetCaption(const std::string& tekst) override { Ask(&host::ProcedureTrace::SetCaption, tekst); }
  void SetObjectDescription(const std::string& tekst) override {
    Ask(&host::ProcedureTrace::SetObjectDescription, tekst);
  }
  void SetMessage(const std::string& tekst) override { Ask(&host::ProcedureTrace::SetMessage, tekst); }
  void SetErrorNumber(const std::string& tekst) override { Ask(&host::ProcedureTrace::SetErrorNumber, tekst); }
  void SetErrorDescription(const std::string& tekst) override {
    Ask(&host::ProcedureTrace::SetErrorDescription, tekst);
  }
  void SetErrorSource(const std::string& tekst) override { Ask(&host::ProcedureTrace::SetErrorSource, tekst); }
};

}  // namespace

class HeldHost::Application final : public Held<host::Application> {
 public:
  Application(std::shared_ptr<Shared> shared, const std::shared_ptr<host::Application>& application)
      : Held(std::move(shared), application), known_(application) {}

  /// Whether it stands, or stood, before that one.
  [[nodiscard]] bool IsOf(const std::shared_ptr<host::Application>& application) const {
    return known_.lock() == application;
  }
  void Take(const std::shared_ptr<host::Application>& application) { object_ = application; }

  std::shared_ptr<host::Dossier> Dossier() override { return AskFor<HeldDossier>(&host::Application::Dossier); }
  std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override {
    return AskFor<HeldUitgangspunten>(&host::Application::Uitgangspunten);
  }
  std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override {
    return AskFor<HeldHoofdvenster>(&host::Application::Hoofdvenster);
  }
  std::shared_ptr<host::Codetabellen> Codetabellen() override {
    return AskFor<HeldCodetabellen>(&host::Application::Codetabellen);
  }
  void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, host::ListBox& lijst,
                const std::string& code, const std::string& leeg, std::optional<std::int32_t> keuze) override {
    Ask(&host::Application::VulCombo, OwnOf(bron), tabel, lijst, code, leeg, keuze);
  }
  std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                       const std::string& tekst) override {
    return Ask(&host::Application::ZoekCode, OwnOf(bron), tabel, tekst);
  }
  void ReportError(host::ProcedureTrace& trace) override {
    const auto* const held = dynamic_cast<HeldTrace*>(&trace);
    const std::shared_ptr<host::ProcedureTrace> own = held != nullptr ? held->Object() : nullptr;
    Ask(&host::Application::ReportError, own ? *own : trace);
  }

 private:
  static std::shared_ptr<host::Codetabellen> OwnOf(const std::shared_ptr<host::Codetabellen>& bron) {
    const auto held = std::dynamic_pointer_cast<HeldCodetabellen>(bron);
    return held ? held->Object() : bron;
  }

  std::weak_ptr<host::Application> known_;
};

namespace {

/// Reaches what is private to HeldHost by way of its interface.
template <class Made, class Interface> std::shared_ptr<Interface> OwnBehind(const std::shared_ptr<Interface>& object) {
  const auto held = std::dynamic_pointer_cast<Made>(object);
  return held ? held->Object() : object;
}

}  // namespace

/// The host's check, which is handed the host's own application.
class HeldControle final : public Held<host::DossierControle> {
 public:
  using Held::Held;

  void Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) override {
    Ask(&host::DossierControle::Controleer, OwnBehind<Held<host::Application>>(application), soort);
  }
};

HeldHost::HeldHost(std::shared_ptr<Life> life) : shared_(std::make_shared<Shared>(std::move(life))) {
  atEnd_ = std::make_unique<Life::AtEnd>(*shared_->life, [shared = shared_] {
    const host::HostFactories factories = std::exchange(shared->factories, {});
    shared->LetGoOf(true);
  });
}

HeldHost::~HeldHost() = default;

host::HostFactories HeldHost::Hold(host::HostFactories factories) {
  shared_->factories = std::move(factories);
  host::HostFactories held;
  held.MaakProcedureTrace = [shared = shared_](std::string_view control) -> std::shared_ptr<host::ProcedureTrace> {
    shared->life->Check();
    const auto make = shared->factories.MaakProcedureTrace;
    std::shared_ptr<host::ProcedureTrace> own = make(control);
    shared->life->Check();
    return own ? std::make_shared<HeldTrace>(shared, std::move(own), AnyHeld::Kind::Made) : nullptr;
  };
  held.MaakDossierControle = [shared = shared_](std::string_view control) -> std::shared_ptr<host::DossierControle> {
    shared->life->Check();
    const auto make = shared->factories.MaakDossierControle;
    std::shared_ptr<host::DossierControle> own = make(control);
    shared->life->Check();
    return own ? std::make_shared<HeldControle>(shared, std::move(own), AnyHeld::Kind::Made) : nullptr;
  };
  return held;
}

std::shared_ptr<host::Application> HeldHost::Hold(const std::shared_ptr<host::Application>& application) {
  if (!application) return nullptr;
  if (!application_ || !application_->IsOf(application))
    application_ = std::make_shared<Application>(shared_, application);
  else
    application_->Take(application);
  return application_;
}

std::shared_ptr<host::Lening> HeldHost::Hold(const std::shared_ptr<host::Lening>& lening) {
  return HeldOf<HeldLening>(shared_, lening);
}

void HeldHost::Rest() {
  if (application_ && application_.use_count() == 1) (void)application_->LetGo();
}

void HeldHost::LetGo() { shared_->LetGoOf(false); }

std::shared_ptr<host::VrijeKolomItem> HostsOwn(const std::shared_ptr<host::VrijeKolomItem>& item) {
  return OwnBehind<HeldItem>(item);
}

std::shared_ptr<host::BedragObject> HostsOwn(const std::shared_ptr<host::BedragObject>& bedrag) {
  return OwnBehind<HeldBedrag>(bedrag);
}

}  // namespace brivane::controls
