#pragma once

#include <brivane/hostkit/instrument/AmountStandIn.h>

namespace brivane::hostkit {

/// A free column.
class RecordStandIn : public StandIn<host::VrijeKolomItem, host::VrijeKolomByField<RecordStandIn>> {
 public:
  using StandIn::StandIn;

  std::shared_ptr<host::BedragObject> Bedrag() override {
    return StandInOf<AmountStandIn>(shared_, Object(Member::VrijeKolomItem_Bedrag, &host::VrijeKolomItem::Bedrag));
  }
  std::string Voorstel(std::int16_t nummer) const override {
    return Get(kVoorstel, nummer, &host::VrijeKolomItem::Voorstel, nummer);
  }
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    Set(
        kVoorstel, nummer, [&](host::VrijeKolomItem& item) { item.SetVoorstel(nummer, lidmaatschap); },
        [&](const host::VrijeKolomItem& item) { return item.Voorstel(nummer); });
  }

 private:
  static constexpr Member kVoorstel =
      MemberOf(host::kFieldOf<host::kVrijeKolomFields, &host::VrijeKolomValues::Voorstel>);

  friend host::VrijeKolomByField<RecordStandIn>;
  template <class Field> auto ReadField(const Field& field) const { return Get(MemberOf(field), {}, field.get); }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Set(MemberOf(field), {}, field.set, value, field.get);
  }
};

}  // namespace brivane::hostkit
