#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "examples/host/MemoryHost.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/model/VrijeKolomFields.h>
#include <brivane/hostkit/Host.h>

/// A right host behind one that makes the mistakes that are planted in it.
namespace brivane::hostkit::test {

enum class Mistake {
  AmountInSinglePrecision,
  DateADayLate,
  EmptyTextLost,
  TextCutAtAByte,
  RemovalCountsFromZero,
  ColumnsInReverse,
  ALoanObjectForEachQuestion,
  LookupOfNothingThrows,
  ErrorNumberLost,
  SelectionToldTwice,
  SelectionNotMade,
  DurationClamped,
  PercentageRounded,
  FlagsShareOnePlace,
};

/// What the objects of one faulty host share.
struct Plan {
  std::set<Mistake> planted;
  std::optional<host::Error> next;  ///< the next write fails with it

  [[nodiscard]] bool Has(Mistake mistake) const { return planted.count(mistake) > 0; }
};
using SharedPlan = std::shared_ptr<Plan>;

class FaultyBedrag final : public host::BedragObject {
 public:
  FaultyBedrag(SharedPlan plan, std::shared_ptr<host::BedragObject> inner)
      : plan_(std::move(plan)), inner_(std::move(inner)) {}
  std::string Naam() const override { return inner_->Naam(); }
  std::int16_t Invoersoort() const override { return inner_->Invoersoort(); }
  double Basisbedrag() const override { return inner_->Basisbedrag(); }
  void SetBasisbedrag(double value) override { inner_->SetBasisbedrag(Kept(value)); }
  double Bedrag() const override { return inner_->Bedrag(); }
  void SetBedrag(double value) override { inner_->SetBedrag(Kept(value)); }
  std::shared_ptr<host::Periode> Periode(std::int16_t positie) override { return inner_->Periode(positie); }
  std::int16_t NieuwePeriode() override { return inner_->NieuwePeriode(); }
  void VerwijderPeriode(std::int16_t positie) override { inner_->VerwijderPeriode(positie); }

 private:
  double Kept(double value) const {
    return plan_->Has(Mistake::AmountInSinglePrecision) ? static_cast<double>(static_cast<float>(value)) : value;
  }
  SharedPlan plan_;
  std::shared_ptr<host::BedragObject> inner_;
};

class FaultyKolom final : public host::VrijeKolomByField<FaultyKolom> {
 public:
  FaultyKolom(SharedPlan plan, std::shared_ptr<host::VrijeKolomItem> inner)
      : plan_(std::move(plan)), inner_(std::move(inner)) {}
  std::shared_ptr<host::BedragObject> Bedrag() override {
    return std::make_shared<FaultyBedrag>(plan_, inner_->Bedrag());
  }
  std::string Voorstel(std::int16_t nummer) const override { return inner_->Voorstel(nummer); }
  void SetVoorstel(std::int16_t nummer, const std::string& value) override { inner_->SetVoorstel(nummer, value); }

 private:
  friend host::VrijeKolomByField<FaultyKolom>;
  template <class Field> auto ReadField(const Field& field) const { return field.Read(*inner_); }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& given) {
    using Value = typename Field::Value;
    if (plan_->next && field.name == "Omschrijving") Fail();
    Value value = given;
    if constexpr (std::is_same_v<Value, std::string>) {
      if (plan_->Has(Mistake::EmptyTextLost) && field.name == "Omschrijving" && value.empty()) return;
      if (plan_->Has(Mistake::TextCutAtAByte) && field.name == "Productnaam" && value.size() > 12) value.resize(12);
    } else if constexpr (std::is_same_v<Value, host::Date>) {
      if (plan_->Has(Mistake::DateADayLate) && field.name == "Contractvervaldatum" && !value.IsNone())
        value = host::Date(value.Days() + 1);
    } else if constexpr (std::is_same_v<Value, std::int32_t>) {
      if (plan_->Has(Mistake::DurationClamped)) value = std::clamp(value, 0, 360);
    } else if constexpr (std::is_same_v<Value, float>) {
      if (plan_->Has(Mistake::PercentageRounded)) value = std::round(value * 100) / 100;
    } else if constexpr (std::is_same_v<Value, bool>) {
      if (plan_->Has(Mistake::FlagsShareOnePlace) && field.name == "UitsluitenWW") inner_->SetUitsluitenAO(value);
    }
    (inner_.get()->*field.set)(value);
  }
  [[noreturn]] void Fail() {
    const host::Error error = *std::exchange(plan_->next, std::nullopt);
    if (plan_->Has(Mistake::ErrorNumberLost)) throw std::runtime_error(error.Description());
    throw error;
  }

  SharedPlan plan_;
  std::shared_ptr<host::VrijeKolomItem> inner_;
};

class FaultyLening final : public host::Lening {
 public:
  FaultyLening(SharedPlan plan, std::shared_ptr<host::Lening> inner)
      : plan_(std::move(plan)), inner_(std::move(inner)) {}
  std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override {
    return Found(inner_->VrijeKolommen(Vrij_Id));
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override {
    return Found(inner_->VrijeKolom(Vrij_Id));
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override {
    if (plan_->Has(Mistake::ColumnsInReverse)) positie = static_cast<std::int16_t>(Count() + 1 - positie);
    return Faulty(inner_->VrijeKolomOp(positie));
  }
  void VerwijderVrijeKolom(std::int16_t positie) override {
    if (plan_->Has(Mistake::RemovalCountsFromZero)) ++positie;
    if (positie <= Count()) inner_->VerwijderVrijeKolom(positie);
  }

 private:
  std::int16_t Count() const {
    std::int16_t count = 0;
    while (inner_->VrijeKolomOp(static_cast<std::int16_t>(count + 1))) ++count;
    return count;
  }
  std::shared_ptr<host::VrijeKolomItem> Faulty(std::shared_ptr<host::VrijeKolomItem> kolom) const {
    return kolom ? std::make_shared<FaultyKolom>(plan_, std::move(kolom)) : nullptr;
  }
  std::shared_ptr<host::VrijeKolomItem> Found(std::shared_ptr<host::VrijeKolomItem> kolom) const {
    if (!kolom && plan_->Has(Mistake::LookupOfNothingThrows)) throw std::out_of_range("map::at");
    return Faulty(std::move(kolom));
  }
  SharedPlan plan_;
  std::shared_ptr<host::Lening> inner_;
};

class FaultyDossier final : public host::Dossier {
 public:
  FaultyDossier(SharedPlan plan, std::shared_ptr<host::Dossier> inner)
      : plan_(std::move(plan)), inner_(std::move(inner)) {}
  std::shared_ptr<host::Lening> HuidigeLening() override {
    if (plan_->Has(Mistake::ALoanObjectForEachQuestion) || !huidig_)
      huidig_ = std::make_shared<FaultyLening>(plan_, inner_->HuidigeLening());
    return huidig_;
  }
  std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override {
    if (Len_Id == 0) return HuidigeLening();
    auto lening = inner_->Lening(Len_Id);
    return lening ? std::make_shared<FaultyLening>(plan_, std::move(lening)) : nullptr;
  }
  std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override { return inner_->Persoon(nummer); }
  void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) override {
    inner_->VoegToeAanVoorstel(voorstel, Vrij_Id);
  }
  void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) override {
    inner_->VerwijderUitVoorstel(voorstel, Vrij_Id, nul);
  }

 private:
  SharedPlan plan_;
  std::shared_ptr<host::Dossier> inner_;
  std::shared_ptr<host::Lening> huidig_;
};

class FaultyApplication final : public host::Application {
 public:
  FaultyApplication(SharedPlan plan, std::shared_ptr<memory_host::Application> inner)
      : plan_(std::move(plan)),
        inner_(std::move(inner)),
        dossier_(std::make_shared<FaultyDossier>(plan_, inner_->Dossier())) {}
  std::shared_ptr<host::Dossier> Dossier() override { return dossier_; }
  std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override { return inner_->Uitgangspunten(); }
  std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override { return inner_->Hoofdvenster(); }
  std::shared_ptr<host::Codetabellen> Codetabellen() override { return inner_->Codetabellen(); }
  void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, host::ListBox& lijst,
                const std::string& code, const std::string& leeg, std::optional<std::int32_t> keuze) override {
    inner_->VulCombo(bron, tabel, lijst, plan_->Has(Mistake::SelectionNotMade) ? "" : code, leeg, keuze);
    const int gekozen = lijst.ListIndex();
    if (!plan_->Has(Mistake::SelectionToldTwice) || gekozen == host::kNoSelection) return;
    lijst.SetListIndex(host::kNoSelection);
    lijst.SetListIndex(gekozen);
  }
  std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                       const std::string& tekst) override {
    return inner_->ZoekCode(bron, tabel, tekst);
  }
  void ReportError(host::ProcedureTrace& trace) override { inner_->ReportError(trace); }

 private:
  SharedPlan plan_;
  std::shared_ptr<memory_host::Application> inner_;
  std::shared_ptr<host::Dossier> dossier_;
};

/// The smallest host with the case that the kit asks for.
inline std::shared_ptr<memory_host::Application> MemoryCase() {
  auto application = std::make_shared<memory_host::Application>();
  const auto add = [](memory_host::Lening& lening, std::int16_t id) {
    const auto kolom = std::make_shared<memory_host::VrijeKolomItem>();
    kolom->id = id;
    lening.kolommen.push_back(kolom);
  };
  for (const std::int16_t id : kHuidigeLening) add(*application->dossier->huidig, id);
  for (int i = 0; i < 2; ++i) application->dossier->nieuw.push_back(std::make_shared<memory_host::Lening>());
  for (const std::int16_t id : kLening1) add(*application->dossier->nieuw[0], id);
  for (const std::int16_t id : kLening2) add(*application->dossier->nieuw[1], id);
  for (const CasePersoon& asked : kPersonen) {
    const auto persoon = std::make_shared<memory_host::Persoon>();
    persoon->naam = {std::string(asked.naam[0]), std::string(asked.naam[1]), std::string(asked.naam[2])};
    persoon->geboren = frame::MakeDate(asked.geboortedatum);
    application->dossier->personen.push_back(persoon);
  }
  return application;
}

/// A host that shows what was reported last, in `host.lastReport`.
inline void KeepReports(Host& host, memory_host::Application& application) {
  const auto last = std::make_shared<std::optional<host::ErrorRecord>>();
  application.onError = [last](const memory_host::Trace& trace) {
    host::ErrorRecord record;
    record.ErrorNumber = trace.number;
    record.ErrorDescription = trace.description;
    *last = record;
  };
  host.lastReport = [last] { return *last; };
}

inline Host MakeFaultyHost(const std::set<Mistake>& planted) {
  const auto plan = std::make_shared<Plan>(Plan{planted, std::nullopt});
  const auto inner = MemoryCase();
  Host host;
  host.application = std::make_shared<FaultyApplication>(plan, inner);
  host.factories = memory_host::Factories();
  host.failNextWrite = [plan](const host::Error& error) { plan->next = error; };
  host.reopen = [plan, inner] { return std::make_shared<FaultyApplication>(plan, inner); };
  KeepReports(host, *inner);
  return host;
}

}  // namespace brivane::hostkit::test
