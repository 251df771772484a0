#pragma once

#include <brivane/hostkit/instrument/StandIn.h>

namespace brivane::hostkit {

/// A period entry, named by the position at which it was asked for.
class PeriodeStandIn : public StandIn<host::Periode, host::PeriodeByField<PeriodeStandIn>> {
 public:
  PeriodeStandIn(SharedPtr shared, std::shared_ptr<host::Periode> inner, std::int16_t positie)
      : StandIn(std::move(shared), std::move(inner)), positie_(positie) {}

 private:
  friend host::PeriodeByField<PeriodeStandIn>;
  template <class Field> auto ReadField(const Field& field) const { return Get(MemberOf(field), positie_, field.get); }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Set(MemberOf(field), positie_, field.set, value, field.get);
  }

  std::int16_t positie_;
};

/// An amount object under its two names.
class AmountStandIn : public StandIn<host::BedragObject> {
 public:
  using StandIn::StandIn;

  std::string Naam() const override { return Get(Member::Scenario_Naam, {}, &host::BedragObject::Naam); }
  std::int16_t Invoersoort() const override {
    return Get(Member::Scenario_Invoersoort, {}, &host::BedragObject::Invoersoort);
  }
  double Basisbedrag() const override { return Get(Member::Bedrag_Basisbedrag, {}, &host::BedragObject::Basisbedrag); }
  void SetBasisbedrag(double bedrag) override {
    Set(Member::Bedrag_Basisbedrag, {}, &host::BedragObject::SetBasisbedrag, bedrag, &host::BedragObject::Basisbedrag);
  }
  double Bedrag() const override { return Get(Member::Scenario_Bedrag, {}, &host::BedragObject::Bedrag); }
  void SetBedrag(double bedrag) override {
    Set(Member::Scenario_Bedrag, {}, &host::BedragObject::SetBedrag, bedrag, &host::BedragObject::Bedrag);
  }
  std::shared_ptr<host::Periode> Periode(std::int16_t positie) override {
    std::shared_ptr<host::Periode> periode = Object(Member::Scenario_Periode, &host::BedragObject::Periode, positie);
    return periode ? std::make_shared<PeriodeStandIn>(shared_, std::move(periode), positie) : nullptr;
  }
  std::int16_t NieuwePeriode() override {
    return Call(Member::Scenario_NieuwePeriode, &host::BedragObject::NieuwePeriode);
  }
  void VerwijderPeriode(std::int16_t positie) override {
    Call(Member::Scenario_VerwijderPeriode, &host::BedragObject::VerwijderPeriode, positie);
  }
};

}  // namespace brivane::hostkit
