#include "tests/support/TestHost.h"

#include <brivane/host/Error.h>

namespace brivane::test {

std::shared_ptr<host::VrijeKolomItem> TestLening::Zoek(std::int16_t Vrij_Id) const {
  for (const auto& kolom : kolommen)
    if (kolom->Id() == Vrij_Id) return kolom;
  return nullptr;
}

std::shared_ptr<host::VrijeKolomItem> TestLening::VrijeKolommen(std::int16_t Vrij_Id) {
  calls_.Reach("VrijeKolommen", Op::Get);
  calls_.AddRead("get " + Prefix() + "VrijeKolommen(" + Show(Vrij_Id) + ')');
  return Zoek(Vrij_Id);
}

std::shared_ptr<host::VrijeKolomItem> TestLening::VrijeKolom(std::int16_t Vrij_Id) {
  calls_.Reach("VrijeKolom", Op::Get);
  calls_.AddRead("get " + Prefix() + "VrijeKolom(" + Show(Vrij_Id) + ')');
  return Zoek(Vrij_Id);
}

std::shared_ptr<host::VrijeKolomItem> TestLening::VrijeKolomOp(std::int16_t positie) {
  calls_.AddRead("get " + Prefix() + "VrijeKolomOp(" + Show(positie) + ')');
  const auto index = static_cast<std::size_t>(positie);
  return index >= 1 && index <= kolommen.size() ? kolommen[index - 1] : nullptr;
}

void TestLening::VerwijderVrijeKolom(std::int16_t positie) {
  calls_.Reach("VerwijderVrijeKolom", Op::Call);
  kolommen.erase(kolommen.begin() + (positie - 1));
  calls_.Add("call " + Prefix() + "VerwijderVrijeKolom(" + Show(positie) + ')');
}

std::shared_ptr<host::Lening> TestDossier::HuidigeLening() {
  calls_.Reach("HuidigeLening", Op::Get);
  calls_.AddRead("get HuidigeLening");
  return huidig;
}

std::shared_ptr<host::Lening> TestDossier::Lening(std::int16_t Len_Id) {
  calls_.Reach("Lening", Op::Get);
  calls_.AddRead("get Lening(" + Show(Len_Id) + ')');
  if (Len_Id == 0) return huidig;
  const auto index = static_cast<std::size_t>(Len_Id);
  return index <= leningen.size() ? leningen[index - 1] : nullptr;
}

std::shared_ptr<host::Persoon> TestDossier::Persoon(std::int16_t nummer) {
  calls_.Reach("Persoon", Op::Get);
  const auto index = static_cast<std::size_t>(nummer);
  return index >= 1 && index <= personen.size() ? personen[index - 1] : nullptr;
}

void TestDossier::VoegToeAanVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id) {
  calls_.Reach("VoegToeAanVoorstel", Op::Call);
  calls_.Add("call VoegToeAanVoorstel(" + Show(voorstel) + ", " + Show(Vrij_Id) + ')');
}

void TestDossier::VerwijderUitVoorstel(std::int16_t voorstel, std::int16_t Vrij_Id, std::int16_t nul) {
  calls_.Reach("VerwijderUitVoorstel", Op::Call);
  calls_.Add("call VerwijderUitVoorstel(" + Show(voorstel) + ", " + Show(Vrij_Id) + ", " + Show(nul) + ')');
}

std::shared_ptr<host::Dossier> TestApplication::Dossier() {
  calls_.Reach("Dossier", Op::Get);
  return dossier;
}

void TestApplication::VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                               host::ListBox& lijst, const std::string& code, const std::string& leeg,
                               std::optional<std::int32_t> keuze) {
  calls_.Reach("VulCombo", Op::Call);
  calls_.Add("call VulCombo(" + std::string(tabel) + ", " + std::string(lijst.Name()) + ", " + Show(code) + ", " +
             Show(leeg) + (bron ? ")" : ", without a source)") + (keuze ? " with a choice" : ""));
  int gekozen = host::kNoSelection;
  for (const auto& [sleutel, tekst] : maatschappijen) {
    if (sleutel == code) gekozen = lijst.ListCount();
    lijst.Add(tekst);
  }
  if (gekozen != host::kNoSelection) lijst.SetListIndex(gekozen);
}

std::string TestApplication::ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                      const std::string& tekst) {
  calls_.Reach("ZoekCode", Op::Call);
  calls_.Add("call ZoekCode(" + std::string(tabel) + ", " + Show(tekst) + (bron ? ")" : ", without a source)"));
  for (const auto& [code, naam] : maatschappijen)
    if (naam == tekst) return code;
  return {};
}

void TestApplication::ReportError(host::ProcedureTrace& trace) {
  calls_.Reach("ReportError", Op::Call);
  calls_.Add("report " + dynamic_cast<TestTrace&>(trace).Summary());
}

void TestTrace::EnterProcedure(std::string_view procedure) {
  calls_.Reach("EnterProcedure", Op::Call);
  calls_.Add("enter " + Prefix() + std::string(procedure));
}

void TestTrace::LeaveProcedure() { calls_.Add(control_ == "Toelichting" ? "leave Toelichting" : "leave"); }

void TestTrace::ErrorInProcedure(std::string_view procedure) {
  calls_.Add("error " + Prefix() + std::string(procedure));
}

void TestTrace::Write(const char* naam, const std::string& tekst) {
  calls_.Reach(naam, Op::Set);
  record_.push_back(std::string(naam) + '=' + tekst);
}

namespace {

class TestControle final : public host::DossierControle {
 public:
  TestControle(CallLog& calls, const host::Application* verwacht) : calls_(calls), verwacht_(verwacht) {}
  void Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) override {
    calls_.Reach("Controleer", Op::Call);
    calls_.Add("call Controleer(" + std::string(application.get() == verwacht_ ? "application" : "another") + ", " +
               Show(soort) + ')');
  }

 private:
  CallLog& calls_;
  const host::Application* verwacht_;
};

}  // namespace

TestHost::TestHost() {
  dossier.huidig->Voeg(1);
  dossier.personen = {
      std::make_shared<TestPersoon>(std::array<std::string, 3>{"J.", "van", "Dam"}, frame::MakeDate({1975, 12, 31})),
      std::make_shared<TestPersoon>(std::array<std::string, 3>{"A.", "de", "Wit"}, frame::MakeDate({1978, 2, 3}))};
}

host::HostFactories TestHost::Factories() {
  return {[this](std::string_view control) { return traces.emplace_back(std::make_shared<TestTrace>(calls, control)); },
          [this](std::string_view) {
            ++controles;
            return std::make_shared<TestControle>(calls, application.get());
          }};
}

TestKolom& TestHost::Kolom(std::int16_t id) {
  for (const auto& kolom : dossier.huidig->kolommen)
    if (kolom->Id() == id) return *kolom;
  throw host::Error(host::ErrorNumber::ObjectMissing);
}

TestLening& TestHost::VoegLening(const std::vector<std::int16_t>& ids) {
  const auto nummer = static_cast<std::int16_t>(dossier.leningen.size() + 1);
  TestLening& lening = *dossier.leningen.emplace_back(std::make_shared<TestLening>(calls, nummer));
  for (const std::int16_t id : ids) lening.Voeg(id);
  return lening;
}

}  // namespace brivane::test
