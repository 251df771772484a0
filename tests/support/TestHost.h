#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/TestRecord.h"
#include <brivane/host/model/Application.h>
#include <brivane/host/model/HostFactories.h>

namespace brivane::test {

struct TestPersoon final : host::Persoon {
  std::array<std::string, 3> naam;
  host::Date geboortedatum;
  TestPersoon(std::array<std::string, 3> namen, host::Date geboren) : naam(std::move(namen)), geboortedatum(geboren) {}
  [[nodiscard]] std::array<std::string, 3> Naam() const override { return naam; }
  [[nodiscard]] host::Date Geboortedatum() const override { return geboortedatum; }
};

class TestLening final : public host::Lening {
 public:
  TestLening(CallLog& calls, std::int16_t nummer) : calls_(calls), nummer_(nummer) {}
  std::vector<std::shared_ptr<TestKolom>> kolommen;

  TestKolom& Voeg(std::int16_t id) { return *kolommen.emplace_back(std::make_shared<TestKolom>(calls_, id)); }

  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> VrijeKolommen(std::int16_t Vrij_Id) override;
  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> VrijeKolom(std::int16_t Vrij_Id) override;
  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> VrijeKolomOp(std::int16_t positie) override;
  void VerwijderVrijeKolom(std::int16_t positie) override;

 private:
  [[nodiscard]] std::string Prefix() const { return "Lening(" + Show(nummer_) + ")."; }
  [[nodiscard]] std::shared_ptr<host::VrijeKolomItem> Zoek(std::int16_t Vrij_Id) const;

  CallLog& calls_;
  std::int16_t nummer_;
};

class TestDossier final : public host::Dossier {
 public:
  explicit TestDossier(CallLog& calls) : huidig(std::make_shared<TestLening>(calls, 0)), calls_(calls) {}
  std::shared_ptr<TestLening> huidig;
  std::vector<std::shared_ptr<TestLening>> leningen;
  std::vector<std::shared_ptr<TestPersoon>> personen;

  [[nodiscard]] std::shared_ptr<host::Lening> HuidigeLening() override;
  [[nodiscard]] std::shared_ptr<host::Lening> Lening(std::int16_t Len_Id) override;
  [[nodiscard]] std::shared_ptr<host::Persoon> Persoon(std::int16_t nummer) override;
  void VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) override;
  void VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) override;

 private:
  CallLog& calls_;
};

struct TestUitgangspunten final : host::Uitgangspunten {
  std::int16_t leeftijd = 67;
  [[nodiscard]] std::int16_t Leeftijd() const override { return leeftijd; }
};
struct TestCodetabellen final : host::Codetabellen {};
struct TestHoofdvenster final : host::Hoofdvenster {};

class TestApplication final : public host::Application {
 public:
  explicit TestApplication(CallLog& calls) : dossier(std::make_shared<TestDossier>(calls)), calls_(calls) {}
  std::shared_ptr<TestDossier> dossier;
  std::shared_ptr<TestUitgangspunten> uitgangspunten = std::make_shared<TestUitgangspunten>();
  std::shared_ptr<TestHoofdvenster> hoofdvenster = std::make_shared<TestHoofdvenster>();
  /// Code and text of the companies.
  std::vector<std::pair<std::string, std::string>> maatschappijen{
      {"AB", "Alfa Bank"}, {"CD", "Centrale Dekking"}, {"ZZ", "Anders"}};

  [[nodiscard]] std::shared_ptr<host::Dossier> Dossier() override;
  [[nodiscard]] std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override { return uitgangspunten; }
  [[nodiscard]] std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override { return hoofdvenster; }
  [[nodiscard]] std::shared_ptr<host::Codetabellen> Codetabellen() override {
    return std::make_shared<TestCodetabellen>();
  }
  void VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel, host::ListBox& lijst,
                const std::string& code, const std::string& leeg, std::optional<std::int32_t> keuze) override;
  [[nodiscard]] std::string ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                     const std::string& tekst) override;
  void ReportError(host::ProcedureTrace& trace) override;

 private:
  CallLog& calls_;
};

/// Writes down the procedures of one control; those of the explanation control under "Toelichting.".
class TestTrace final : public host::ProcedureTrace {
 public:
  TestTrace(CallLog& calls, std::string_view control) : calls_(calls), control_(control) {}

  void EnterProcedure(std::string_view procedure) override;
  void LeaveProcedure() override;
  void ErrorInProcedure(std::string_view procedure) override;

  void SetApplicationTitle(const std::string& tekst) override { Write("ApplicationTitle", tekst); }
  void SetObjectName(const std::string& tekst) override { Write("ObjectName", tekst); }
  void SetCaption(const std::string& tekst) override { Write("Caption", tekst); }
  void SetObjectDescription(const std::string& tekst) override { Write("ObjectDescription", tekst); }
  void SetMessage(const std::string& tekst) override { Write("Message", tekst); }
  void SetErrorNumber(const std::string& tekst) override { Write("ErrorNumber", number_ = tekst); }
  void SetErrorDescription(const std::string& tekst) override { Write("ErrorDescription", tekst); }
  void SetErrorSource(const std::string& tekst) override { Write("ErrorSource", tekst); }

  /// The error record as it was written, one line each, since the last Take.
  [[nodiscard]] std::vector<std::string> Take() { return std::exchange(record_, {}); }
  [[nodiscard]] std::string Summary() const { return std::string(control_) + ' ' + number_; }

 private:
  void Write(const char* naam, const std::string& tekst);
  [[nodiscard]] std::string Prefix() const { return control_ == "Toelichting" ? "Toelichting." : ""; }

  CallLog& calls_;
  std::string control_;
  std::string number_;
  std::vector<std::string> record_;
};

/// A host in memory that writes down what the controls do to it. Its data are open to the test: at first
/// the column with identifier 1 in the current loan, two persons, and no loan in the new situation.
///
///     TestHost host;
///     host.Kolom(1).velden.Termijn = 99;
///     host.calls.Fail("Termijn", Op::Get, 2);
///     editor.SetApplication(host.application, 0, 1);
///     EXPECT_THAT(host.calls.Take(), ElementsAre("enter SetApplication", ...));
class TestHost {
 public:
  TestHost();
  TestHost(const TestHost&) = delete;

  CallLog calls;
  std::shared_ptr<TestApplication> application = std::make_shared<TestApplication>(calls);
  TestDossier& dossier = *application->dossier;
  /// The tracers made, in order, and how many check objects.
  std::vector<std::shared_ptr<TestTrace>> traces;
  int controles = 0;

  [[nodiscard]] host::HostFactories Factories();
  /// A column of the current loan.
  [[nodiscard]] TestKolom& Kolom(std::int16_t id);
  /// Adds a loan to the new situation, with columns of these identifiers.
  TestLening& VoegLening(const std::vector<std::int16_t>& ids);
};

}  // namespace brivane::test
