#pragma once

#include <optional>
#include <string>

#include "web/host/Session.h"
#include <brivane/host/model/Application.h>
#include <brivane/host/model/DossierControle.h>
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

/// The host's model as objects of a script: each member is asked for by the name that it has in the model.
namespace brivane::webhost {

class PeriodeAdapter final : public AdapterOf<host::PeriodeByField<PeriodeAdapter>> {
 public:
  using AdapterOf::AdapterOf;

 private:
  friend host::PeriodeByField<PeriodeAdapter>;
  template <class Field> auto ReadField(const Field& field) const {
    return Get<typename Field::Value>(field.name.data());
  }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Put(field.name.data(), value);
  }
};

class BedragAdapter final : public AdapterOf<host::BedragObject> {
 public:
  using AdapterOf::AdapterOf;

  std::string Naam() const override { return Get<std::string>("Naam"); }
  std::int16_t Invoersoort() const override { return Get<std::int16_t>("Invoersoort"); }
  double Basisbedrag() const override { return Get<double>("Basisbedrag"); }
  void SetBasisbedrag(double bedrag) override { Put("Basisbedrag", bedrag); }
  double Bedrag() const override { return Get<double>("Bedrag"); }
  void SetBedrag(double bedrag) override { Put("Bedrag", bedrag); }
  std::shared_ptr<host::Periode> Periode(std::int16_t positie) override {
    return TheSession().Adapt<PeriodeAdapter>(Get<webhost::Object>("Periode", positie));
  }
  std::int16_t NieuwePeriode() override { return Get<std::int16_t>("NieuwePeriode"); }
  void VerwijderPeriode(std::int16_t positie) override { Call("VerwijderPeriode", positie); }
};

class ItemAdapter final : public AdapterOf<host::VrijeKolomByField<ItemAdapter>> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::BedragObject> Bedrag() override {
    return TheSession().Adapt<BedragAdapter>(Get<webhost::Object>("Bedrag"));
  }
  std::string Voorstel(std::int16_t nummer) const override;
  void SetVoorstel(std::int16_t nummer, const std::string& lidmaatschap) override {
    Put("Voorstel", lidmaatschap, nummer);
  }

 private:
  friend host::VrijeKolomByField<ItemAdapter>;
  template <class Field> auto ReadField(const Field& field) const {
    return Get<typename Field::Value>(field.name.data());
  }
  template <class Field> void WriteField(const Field& field, const typename Field::Value& value) {
    Put(field.name.data(), value);
  }
};

class LeningAdapter final : public AdapterOf<host::Lening> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override {
    return Item("VrijeKolommen", Vrij_Id);
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override {
    return Item("VrijeKolom", Vrij_Id);
  }
  std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override {
    return Item("VrijeKolomOp", positie);
  }
  void VerwijderVrijeKolom(std::int16_t positie) override { Call("VerwijderVrijeKolom", positie); }

 private:
  std::shared_ptr<host::VrijeKolomItem> Item(const char* name, std::int16_t argument) {
    return TheSession().Adapt<ItemAdapter>(Get<webhost::Object>(name, argument));
  }
};

/// `Naam` answers an array of three texts.
class PersoonAdapter final : public AdapterOf<host::Persoon> {
 public:
  using AdapterOf::AdapterOf;

  std::array<std::string, 3> Naam() const override;
  host::Date Geboortedatum() const override { return Get<host::Date>("Geboortedatum"); }
};

class UitgangspuntenAdapter final : public AdapterOf<host::Uitgangspunten> {
 public:
  using AdapterOf::AdapterOf;

  std::int16_t Leeftijd() const override { return Get<std::int16_t>("Leeftijd"); }
};

class DossierAdapter final : public AdapterOf<host::Dossier> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::Lening> HuidigeLening() override {
    return TheSession().Adapt<LeningAdapter>(Get<webhost::Object>("HuidigeLening"));
  }
  std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override {
    return TheSession().Adapt<LeningAdapter>(Get<webhost::Object>("Lening", Len_Id));
  }
  std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override {
    return TheSession().Adapt<PersoonAdapter>(Get<webhost::Object>("Persoon", nummer));
  }
  void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) override {
    Call("VoegToeAanVoorstel", voorstel, Vrij_Id);
  }
  void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) override {
    Call("VerwijderUitVoorstel", voorstel, Vrij_Id, nul);
  }
};

class ApplicationAdapter final : public AdapterOf<host::Application> {
 public:
  using AdapterOf::AdapterOf;

  std::shared_ptr<host::Dossier> Dossier() override {
    return TheSession().Adapt<DossierAdapter>(Get<webhost::Object>("Dossier"));
  }
  std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override {
    return TheSession().Adapt<UitgangspuntenAdapter>(Get<webhost::Object>("Uitgangspunten"));
  }
  /// The dialogs of a page need no owner; the host is asked all the same, as every host is.
  std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override;
  std::shared_ptr<host::Codetabellen> Codetabellen() override;
  /// The host is given the list as an object, which is of use until the call returns.
  void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, host::ListBox& lijst,
                const std::string& code, const std::string& leeg, std::optional<std::int32_t> keuze) override;
  std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                       const std::string& tekst) override;
  void ReportError(host::ProcedureTrace& trace) override;
};

/// The host's check of the loan file.
class ControleAdapter final : public AdapterOf<host::DossierControle> {
 public:
  using AdapterOf::AdapterOf;

  void Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) override;
};

/// The tracer of the host, or the plain one that the script makes.
class TraceAdapter final : public AdapterOf<host::ProcedureTrace> {
 public:
  using AdapterOf::AdapterOf;

  void EnterProcedure(std::string_view procedure) override { Call("EnterProcedure", std::string(procedure)); }
  void LeaveProcedure() override { Call("LeaveProcedure"); }
  void ErrorInProcedure(std::string_view procedure) override { Call("ErrorInProcedure", std::string(procedure)); }

  void SetApplicationTitle(const std::string& tekst) override { Put("ApplicationTitle", tekst); }
  void SetObjectName(const std::string& tekst) override { Put("ObjectName", tekst); }
  void SetCaption(const std::string& tekst) override { Put("Caption", tekst); }
  void SetObjectDescription(const std::string& tekst) override { Put("ObjectDescription", tekst); }
  void SetMessage(const std::string& tekst) override { Put("Message", tekst); }
  void SetErrorNumber(const std::string& tekst) override { Put("ErrorNumber", tekst); }
  void SetErrorDescription(const std::string& tekst) override { Put("ErrorDescription", tekst); }
  void SetErrorSource(const std::string& tekst) override { Put("ErrorSource", tekst); }
};

}  // namespace brivane::webhost
