#pragma once

#include <brivane/hostkit/instrument/RecordStandIn.h>

namespace brivane::hostkit {

class LeningStandIn : public StandIn<host::Lening> {
 public:
  using StandIn::StandIn;

  std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override {
    return Record(Object(Member::Lening_VrijeKolommen, &host::Lening::VrijeKolommen, Vrij_Id));
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override {
    return Record(Object(Member::Lening_VrijeKolom, &host::Lening::VrijeKolom, Vrij_Id));
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override {
    return Record(Object(Member::Lening_VrijeKolomOp, &host::Lening::VrijeKolomOp, positie));
  }
  void VerwijderVrijeKolom(std::int16_t positie) override {
    Call(Member::Lening_VerwijderVrijeKolom, &host::Lening::VerwijderVrijeKolom, positie);
  }

 private:
  std::shared_ptr<host::VrijeKolomItem> Record(const std::shared_ptr<host::VrijeKolomItem>& inner) const {
    return StandInOf<RecordStandIn>(shared_, inner);
  }
};

class PersoonStandIn : public StandIn<host::Persoon> {
 public:
  using StandIn::StandIn;

  std::array<std::string, 3> Naam() const override { return Get(Member::Persoon_Naam, {}, &host::Persoon::Naam); }
  host::Date Geboortedatum() const override {
    return Get(Member::Persoon_Geboortedatum, {}, &host::Persoon::Geboortedatum);
  }
};

class UitgangspuntenStandIn : public StandIn<host::Uitgangspunten> {
 public:
  using StandIn::StandIn;

  std::int16_t Leeftijd() const override {
    return Get(Member::Uitgangspunten_Leeftijd, {}, &host::Uitgangspunten::Leeftijd);
  }
};

class DossierStandIn : public StandIn<host::Dossier> {
 public:
  using StandIn::StandIn;

  std::shared_ptr<host::Lening> HuidigeLening() override {
    return StandInOf<LeningStandIn>(shared_, Object(Member::Dossier_HuidigeLening, &host::Dossier::HuidigeLening));
  }
  std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override {
    return StandInOf<LeningStandIn>(shared_, Object(Member::Dossier_Lening, &host::Dossier::Lening, Len_Id));
  }
  std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override {
    return StandInOf<PersoonStandIn>(shared_, Object(Member::Dossier_Persoon, &host::Dossier::Persoon, nummer));
  }
  void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) override {
    Call(Member::Dossier_VoegToeAanVoorstel, &host::Dossier::VoegToeAanVoorstel, voorstel, Vrij_Id);
  }
  void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) override {
    Call(Member::Dossier_VerwijderUitVoorstel, &host::Dossier::VerwijderUitVoorstel, voorstel, Vrij_Id, nul);
  }
};

}  // namespace brivane::hostkit
