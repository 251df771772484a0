#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/model/VrijeKolomItem.h"
#include "tests/support/CallLog.h"

/// The record of a free column, its amount and its periods, with their data open to the test.
namespace brivane::test {

struct PeriodeVelden {
  std::int16_t Maand = 0;
  double Bedrag = 0;
  double Percentage = 0;
  double Korting = 0;
  bool Eenmalig = false;
};

struct KolomVelden {
  std::int16_t CorrectieLast = 1;
  std::int16_t CorrectieFiscaal = 1;
  std::int16_t HeffingBij = 1;
  std::string Omschrijving;
  std::int16_t Termijn = 1;
  bool InkomenUitArbeid = false;
  bool InDagloon = false;
  host::Date DatumAanvang;
  std::int32_t Looptijd = 0;
  host::Date Contractvervaldatum;
  bool IsProduct = false;
  std::string Maatschappij;
  std::string MaatschappijNaam;
  std::int16_t Productsoort = 0;
  std::string ProductsoortOmschrijving;
  std::string Productnaam;
  bool UwBemiddeling = false;
  std::array<std::string, 3> Voorstel;
  std::string Weergave = "de weergave";
  std::string Kopregel = "de kopregel";
  bool UitsluitenAO = false;
  bool UitsluitenWW = false;
  bool UitsluitenLangleven = false;
  bool ScenarioOverlijden = false;
  float PercentageOvergang = 0;
  host::Date EinddatumOvergang;
  std::int16_t EindleeftijdOvergang = 0;
};

/// Tells reads and writes of fields to the calls under "PREFIX.FIELD", or fails as planned.
class Told {
 public:
  Told(CallLog& calls, std::string prefix) : calls_(calls), prefix_(std::move(prefix)) {}

 protected:
  template <class T> const T& Get(std::string_view naam, const T& veld) const {
    calls_.Reach(naam, Op::Get);
    calls_.AddRead("get " + prefix_ + std::string(naam) + '=' + Show(veld));
    return veld;
  }
  template <class T> void Set(std::string_view naam, T& veld, const T& waarde) {
    calls_.Reach(naam, Op::Set);
    veld = waarde;
    Adjust(naam);
    calls_.Add("set " + prefix_ + std::string(naam) + '=' + Show(veld));
  }
  virtual void Adjust(std::string_view) {}
  ~Told() = default;

  CallLog& calls_;

 private:
  std::string prefix_;
};

// A getter and a setter of a field that an interface names.
#define BRIVANE_TOLD(Type, Parameter, Name)                                    \
  [[nodiscard]] Type Name() const override { return Get(#Name, velden.Name); } \
  void Set##Name(Parameter waarde) override { Set(#Name, velden.Name, waarde); }

class TestPeriode final : public host::Periode, private Told {
 public:
  explicit TestPeriode(CallLog& calls, PeriodeVelden begin = {}) : Told(calls, "Periode."), velden(begin) {}
  PeriodeVelden velden;

  BRIVANE_TOLD(std::int16_t, std::int16_t, Maand)
  BRIVANE_TOLD(double, double, Bedrag)
  BRIVANE_TOLD(double, double, Percentage)
  BRIVANE_TOLD(double, double, Korting)
  BRIVANE_TOLD(bool, bool, Eenmalig)
};

class TestBedrag final : public host::BedragObject, private Told {
 public:
  explicit TestBedrag(CallLog& calls) : Told(calls, "") {}
  std::string naam;
  std::int16_t invoersoort = 1;
  double bedrag = 0;
  std::vector<std::shared_ptr<TestPeriode>> perioden;

  void Voeg(PeriodeVelden velden) { perioden.push_back(std::make_shared<TestPeriode>(calls_, velden)); }

  [[nodiscard]] std::string Naam() const override { return naam; }
  [[nodiscard]] std::int16_t Invoersoort() const override { return invoersoort; }
  [[nodiscard]] double Basisbedrag() const override { return Get("Basisbedrag", bedrag); }
  void SetBasisbedrag(double waarde) override { Set("Basisbedrag", bedrag, waarde); }
  [[nodiscard]] double Bedrag() const override { return Get("Scenario.Bedrag", bedrag); }
  void SetBedrag(double waarde) override { Set("Scenario.Bedrag", bedrag, waarde); }
  [[nodiscard]] std::shared_ptr<host::Periode> Periode(std::int16_t positie) override {
    const auto index = static_cast<std::size_t>(positie);
    return index >= 1 && index <= perioden.size() ? perioden[index - 1] : nullptr;
  }
  std::int16_t NieuwePeriode() override {
    Voeg({});
    calls_.Add("call NieuwePeriode()");
    return static_cast<std::int16_t>(perioden.size());
  }
  void VerwijderPeriode(std::int16_t positie) override {
    calls_.Reach("VerwijderPeriode", Op::Call);
    perioden.erase(perioden.begin() + (positie - 1));
    calls_.Add("call VerwijderPeriode(" + Show(positie) + ')');
  }
};

class TestKolom final : public host::VrijeKolomItem, private Told {
 public:
  TestKolom(CallLog& calls, std::int16_t id) : Told(calls, ""), bedrag(std::make_shared<TestBedrag>(calls)), id_(id) {}
  KolomVelden velden;
  /// Nothing stands for a record without an amount object.
  std::shared_ptr<TestBedrag> bedrag;
  /// A record that changes what it is given: told the field that was written.
  std::function<void(KolomVelden&, std::string_view)> adjust;

  [[nodiscard]] std::int16_t Id() const override { return id_; }
  [[nodiscard]] std::shared_ptr<host::BedragObject> Bedrag() override {
    calls_.Reach("Bedrag", Op::Get);
    return bedrag;
  }
  [[nodiscard]] std::string Weergave() const override { return Get("Weergave", velden.Weergave); }
  [[nodiscard]] std::string Kopregel() const override { return Get("Kopregel", velden.Kopregel); }
  [[nodiscard]] std::string Voorstel(std::int16_t nummer) const override {
    return Get("Voorstel(" + Show(nummer) + ')', velden.Voorstel.at(static_cast<std::size_t>(nummer - 1)));
  }
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    Set("Voorstel(" + Show(nummer) + ')', velden.Voorstel.at(static_cast<std::size_t>(nummer - 1)), lidmaatschap);
  }

  BRIVANE_TOLD(std::int16_t, std::int16_t, CorrectieLast)
  BRIVANE_TOLD(std::int16_t, std::int16_t, CorrectieFiscaal)
  BRIVANE_TOLD(std::int16_t, std::int16_t, HeffingBij)
  BRIVANE_TOLD(std::string, const std::string&, Omschrijving)
  BRIVANE_TOLD(std::int16_t, std::int16_t, Termijn)
  BRIVANE_TOLD(bool, bool, InkomenUitArbeid)
  BRIVANE_TOLD(bool, bool, InDagloon)
  BRIVANE_TOLD(host::Date, host::Date, DatumAanvang)
  BRIVANE_TOLD(std::int32_t, std::int32_t, Looptijd)
  BRIVANE_TOLD(host::Date, host::Date, Contractvervaldatum)
  BRIVANE_TOLD(bool, bool, IsProduct)
  BRIVANE_TOLD(std::string, const std::string&, Maatschappij)
  BRIVANE_TOLD(std::string, const std::string&, MaatschappijNaam)
  BRIVANE_TOLD(std::int16_t, std::int16_t, Productsoort)
  BRIVANE_TOLD(std::string, const std::string&, ProductsoortOmschrijving)
  BRIVANE_TOLD(std::string, const std::string&, Productnaam)
  BRIVANE_TOLD(bool, bool, UwBemiddeling)
  BRIVANE_TOLD(bool, bool, UitsluitenAO)
  BRIVANE_TOLD(bool, bool, UitsluitenWW)
  BRIVANE_TOLD(bool, bool, UitsluitenLangleven)
  BRIVANE_TOLD(bool, bool, ScenarioOverlijden)
  BRIVANE_TOLD(float, float, PercentageOvergang)
  BRIVANE_TOLD(host::Date, host::Date, EinddatumOvergang)
  BRIVANE_TOLD(std::int16_t, std::int16_t, EindleeftijdOvergang)

 private:
  void Adjust(std::string_view naam) override {
    if (adjust) adjust(velden, naam);
  }
  std::int16_t id_;
};

#undef BRIVANE_TOLD

}  // namespace brivane::test
