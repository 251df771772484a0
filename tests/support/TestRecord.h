#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/CallLog.h"
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

/// The record of a free column, its amount and its periods, with their data open to the test.
namespace brivane::test {

using PeriodeVelden = host::PeriodeValues;

struct KolomVelden : host::VrijeKolomValues {
  KolomVelden() {
    Weergave = "de weergave";
    Kopregel = "de kopregel";
  }
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

class TestPeriode final : public host::PeriodeByField<TestPeriode>, private Told {
 public:
  explicit TestPeriode(CallLog& calls, PeriodeVelden begin = {}) : Told(calls, "Periode."), velden(begin) {}
  PeriodeVelden velden;

 private:
  friend host::PeriodeByField<TestPeriode>;
  template <class Field> auto ReadField(const Field& field) const { return Get(field.name, velden.*field.value); }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& waarde) {
    Set(field.name, velden.*field.value, waarde);
  }
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

class TestKolom final : public host::VrijeKolomByField<TestKolom>, private Told {
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
  [[nodiscard]] std::string Voorstel(std::int16_t nummer) const override {
    return Get("Voorstel(" + Show(nummer) + ')', velden.Voorstel.at(static_cast<std::size_t>(nummer - 1)));
  }
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    Set("Voorstel(" + Show(nummer) + ')', velden.Voorstel.at(static_cast<std::size_t>(nummer - 1)), lidmaatschap);
  }

 private:
  friend host::VrijeKolomByField<TestKolom>;
  template <class Field> auto ReadField(const Field& field) const { return Get(field.name, velden.*field.value); }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& waarde) {
    Set(field.name, velden.*field.value, waarde);
  }
  void Adjust(std::string_view naam) override {
    if (adjust) adjust(velden, naam);
  }
  std::int16_t id_;
};

}  // namespace brivane::test
