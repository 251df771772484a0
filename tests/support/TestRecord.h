#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/model/PeriodeFields.h"
#include "host/model/VrijeKolomFields.h"
#include "tests/support/Journal.h"

/// The record of a free column, its amount and its periods, with their data open to the test.
namespace brivane::test {

using PeriodeVelden = host::PeriodeValues;

struct KolomVelden : host::VrijeKolomValues {
  KolomVelden() {
    Weergave = "de weergave";
    Kopregel = "de kopregel";
  }
};

/// Tells reads and writes of fields to the journal under "PREFIX.FIELD", or fails as planned.
class Told {
 public:
  Told(Journal& journal, std::string prefix) : journal_(journal), prefix_(std::move(prefix)) {}

 protected:
  template <class T> const T& Get(std::string_view naam, const T& veld) const {
    journal_.Reach(naam, Op::Get);
    journal_.AddRead("get " + prefix_ + std::string(naam) + '=' + Show(veld));
    return veld;
  }
  template <class T> void Set(std::string_view naam, T& veld, const T& waarde) {
    journal_.Reach(naam, Op::Set);
    veld = waarde;
    Adjust(naam);
    journal_.Add("set " + prefix_ + std::string(naam) + '=' + Show(veld));
  }
  virtual void Adjust(std::string_view) {}
  ~Told() = default;

  Journal& journal_;

 private:
  std::string prefix_;
};

class TestPeriode final : public host::PeriodeByField<TestPeriode>, private Told {
 public:
  explicit TestPeriode(Journal& journal, PeriodeVelden begin = {}) : Told(journal, "Periode."), velden(begin) {}
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
  explicit TestBedrag(Journal& journal) : Told(journal, "") {}
  std::string naam;
  std::int16_t invoersoort = 1;
  double bedrag = 0;
  std::vector<std::shared_ptr<TestPeriode>> perioden;

  void Voeg(PeriodeVelden velden) { perioden.push_back(std::make_shared<TestPeriode>(journal_, velden)); }

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
    journal_.Add("call NieuwePeriode()");
    return static_cast<std::int16_t>(perioden.size());
  }
  void VerwijderPeriode(std::int16_t positie) override {
    journal_.Reach("VerwijderPeriode", Op::Call);
    perioden.erase(perioden.begin() + (positie - 1));
    journal_.Add("call VerwijderPeriode(" + Show(positie) + ')');
  }
};

class TestKolom final : public host::VrijeKolomByField<TestKolom>, private Told {
 public:
  TestKolom(Journal& journal, std::int16_t id)
      : Told(journal, ""), bedrag(std::make_shared<TestBedrag>(journal)), id_(id) {}
  KolomVelden velden;
  /// Nothing stands for a record without an amount object.
  std::shared_ptr<TestBedrag> bedrag;
  /// A record that changes what it is given: told the field that was written.
  std::function<void(KolomVelden&, std::string_view)> adjust;

  [[nodiscard]] std::int16_t Id() const override { return id_; }
  [[nodiscard]] std::shared_ptr<host::BedragObject> Bedrag() override {
    journal_.Reach("Bedrag", Op::Get);
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
