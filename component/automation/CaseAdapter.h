#pragma once

#include "component/automation/RecordAdapter.h"
#include <brivane/host/model/Dossier.h>
#include <brivane/host/model/Uitgangspunten.h>

namespace brivane::component {

/// A loan of the host.
class LeningAdapter final : public AdapterOf<host::Lening> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override {
    return Record(L"VrijeKolommen", Vrij_Id);
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override {
    return Record(L"VrijeKolom", Vrij_Id);
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override {
    return Record(L"VrijeKolomOp", positie);
  }
  void VerwijderVrijeKolom(std::int16_t positie) override { Call(L"VerwijderVrijeKolom", positie); }

 private:
  std::shared_ptr<host::VrijeKolomItem> Record(std::wstring_view name, std::int16_t argument) {
    return Session().Adapt<RecordAdapter>(Get<ComPtr<IDispatch>>(name, argument));
  }
};

/// A person of the host. `Naam` answers an array of three strings.
class PersoonAdapter final : public AdapterOf<host::Persoon> {
 public:
  using AdapterOf::AdapterOf;

  std::array<std::string, 3> Naam() const override;
  host::Date Geboortedatum() const override { return Get<host::Date>(L"Geboortedatum"); }
};

class UitgangspuntenAdapter final : public AdapterOf<host::Uitgangspunten> {
 public:
  using AdapterOf::AdapterOf;

  std::int16_t Leeftijd() const override { return Get<std::int16_t>(L"Leeftijd"); }
};

/// The case of the host.
class DossierAdapter final : public AdapterOf<host::Dossier> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::Lening> HuidigeLening() override {
    return Session().Adapt<LeningAdapter>(Get<ComPtr<IDispatch>>(L"HuidigeLening"));
  }
  std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override {
    return Session().Adapt<LeningAdapter>(Get<ComPtr<IDispatch>>(L"Lening", Len_Id));
  }
  std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override {
    return Session().Adapt<PersoonAdapter>(Get<ComPtr<IDispatch>>(L"Persoon", nummer));
  }
  void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) override {
    Call(L"VoegToeAanVoorstel", voorstel, Vrij_Id);
  }
  void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) override {
    Call(L"VerwijderUitVoorstel", voorstel, Vrij_Id, nul);
  }
};

}  // namespace brivane::component
