#pragma once

#include <string>
#include <vector>

#include "component/automation/HostSession.h"
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

namespace brivane::component {

/// The names of a table's fields as Automation spells them, in the order of the table.
template <class Fields> std::vector<std::wstring> WideNames(const Fields& table) {
  std::vector<std::wstring> names;
  host::ForEach(table, [&](const auto& field) { names.emplace_back(field.name.begin(), field.name.end()); });
  return names;
}

/// A period entry of the host.
class PeriodeAdapter final : public AdapterOf<host::PeriodeByField<PeriodeAdapter>> {
 public:
  using AdapterOf::AdapterOf;

 private:
  friend host::PeriodeByField<PeriodeAdapter>;
  template <class Field> auto ReadField(const Field& field) const {
    return Get<typename Field::Value>(Names()[field.place]);
  }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Put(Names()[field.place], value);
  }
  static const std::vector<std::wstring>& Names() { return names_; }

  static inline const std::vector<std::wstring> names_ = WideNames(host::kPeriodeFields);
};

/// An amount object of the host.
class BedragAdapter final : public AdapterOf<host::BedragObject> {
 public:
  using AdapterOf::AdapterOf;

  std::string Naam() const override { return Get<std::string>(L"Naam"); }
  std::int16_t Invoersoort() const override { return Get<std::int16_t>(L"Invoersoort"); }
  double Basisbedrag() const override { return Get<double>(L"Basisbedrag"); }
  void SetBasisbedrag(double bedrag) override { Put(L"Basisbedrag", bedrag); }
  double Bedrag() const override { return Get<double>(L"Bedrag"); }
  void SetBedrag(double bedrag) override { Put(L"Bedrag", bedrag); }
  std::shared_ptr<host::Periode> Periode(std::int16_t positie) override {
    return Session().Adapt<PeriodeAdapter>(Get<ComPtr<IDispatch>>(L"Periode", positie));
  }
  std::int16_t NieuwePeriode() override { return Get<std::int16_t>(L"NieuwePeriode"); }
  void VerwijderPeriode(std::int16_t positie) override { Call(L"VerwijderPeriode", positie); }
};

/// A free column of the host.
class RecordAdapter final : public AdapterOf<host::VrijeKolomByField<RecordAdapter>> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::BedragObject> Bedrag() override {
    return Session().Adapt<BedragAdapter>(Get<ComPtr<IDispatch>>(L"Bedrag"));
  }
  std::string Voorstel(std::int16_t nummer) const override { return Get<std::string>(L"Voorstel", nummer); }
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    const Variant index[]{Variant(nummer)};
    Target().Put(L"Voorstel", Variant(lidmaatschap), index);
  }

 private:
  friend host::VrijeKolomByField<RecordAdapter>;
  template <class Field> auto ReadField(const Field& field) const {
    return Get<typename Field::Value>(Names()[field.place]);
  }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Put(Names()[field.place], value);
  }
  static const std::vector<std::wstring>& Names() { return names_; }

  static inline const std::vector<std::wstring> names_ = WideNames(host::kVrijeKolomFields);
};

}  // namespace brivane::component
