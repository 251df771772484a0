// The application object, its case's persons and assumptions, its code table, and what the controls make themselves.

#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>
#include <brivane/hostkit/Suite.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::hostkit {

namespace {

void CheckUitgangspunten(Bench& bench) {
  const auto uitgangspunten = bench.Object(
      {"Application.Uitgangspunten", "", "the case has assumptions: \"Scenario invullen\" asks them how far it runs"},
      [&] { return bench.Host().application->Uitgangspunten(); });
  bench.Same({"Uitgangspunten.Leeftijd", "the case has " + Show(kLeeftijd), "the age limit in whole years"}, kLeeftijd,
             [&] { return uitgangspunten->Leeftijd(); });
}

void CheckPersoon(Bench& bench) {
  const auto dossier = bench.Dossier();
  for (std::int16_t number = host::codes::kAanvrager; number <= host::codes::kPartner; ++number) {
    if (!bench.Tries(number == host::codes::kAanvrager ? "applicant" : "partner")) continue;
    const CasePersoon& wanted = kPersonen[static_cast<std::size_t>(number - 1)];
    const auto persoon = bench.Object({"Dossier.Persoon", "asked for person " + Show(number),
                                       "person 1 is the applicant, whom every case has, and 2 the partner",
                                       "without an applicant no column can be bound"},
                                      [&] { return dossier->Persoon(number); });
    bench.Same({"Persoon.Naam", "person " + Show(number),
                "three texts in UTF-8, which a caption joins with single blanks; an empty one stays empty"},
               std::array<std::string, 3>{std::string(wanted.naam[0]), std::string(wanted.naam[1]),
                                          std::string(wanted.naam[2])},
               [&] { return persoon->Naam(); });
    bench.Same({"Persoon.Geboortedatum", "person " + Show(number), "a date as a count of days, without time or zone"},
               frame::MakeDate(wanted.geboortedatum), [&] { return persoon->Geboortedatum(); });
  }
  for (const std::int16_t number : {std::int16_t{0}, std::int16_t{3}, kNiemand})
    bench.Nothing({"Dossier.Persoon", "asked for person " + Show(number), "nothing where there is no such person",
                   "answer a null pointer; do not throw"},
                  [&] { return dossier->Persoon(number); });
}

void CheckHoofdvenster(Bench& bench) {
  bench.Done({"Application.Hoofdvenster", "", "the owner of modal forms, or nothing"},
             [&] { static_cast<void>(bench.Host().application->Hoofdvenster()); });
}

/// A list as the editor hands it to the host.
class Companies {
 public:
  [[nodiscard]] host::ListBox& List() { return list_; }
  [[nodiscard]] int Clicks() const { return clicks_; }
  [[nodiscard]] int PlaceOf(const std::string& text) const {
    for (int i = 0; i < list_.ListCount(); ++i)
      if (list_.List(i) == text) return i;
    return host::kNoSelection;
  }
  [[nodiscard]] std::string Selected() const {
    return list_.ListIndex() == host::kNoSelection ? "no entry" : list_.Text();
  }

 private:
  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_ = toolkit_.MakeSurface(vrijekolom::kOntwerp);
  host::ListBox& list_ = static_cast<host::ListBox&>(controls::Surface::Of(*surface_).Find("cboMaatschappij")->Host());
  int clicks_ = 0;
  host::Subscription subscription_ = list_.Click.Connect([this] { ++clicks_; });
};

void Fill(Bench& bench, Companies& companies, const std::string& code) {
  host::Application& application = *bench.Host().application;
  bench.Done(
      {"Application.VulCombo", "code " + Show(code), "it fills the list and selects by code; it does not fail"}, [&] {
        application.VulCombo(application.Codetabellen(), host::codes::kMaatschappijTabel, companies.List(), code, "");
      });
}

void CheckVulCombo(Bench& bench) {
  const Options& asked = bench.Asked();
  const std::string hint =
      "add the entries first, then set the list index once where the code is known, and not at all where it is not";
  for (const Company& company : {asked.company, asked.other}) {
    Companies companies;
    Fill(bench, companies, company.code);
    const std::string written = "code " + Show(company.code);
    bench.Same({"Application.VulCombo", written, "the entry whose code is given is selected", hint}, company.text,
               [&] { return companies.Selected(); });
    bench.Same(
        {"Application.VulCombo", written + ", listening to the list's Click",
         "selecting raises the list's Click, once: the event is delivered while the editor fills the list", hint},
        std::int32_t{1}, [&] { return std::int32_t{companies.Clicks()}; });
    bench.Same({"Application.VulCombo", written, "the entries stand in the order of the table"}, true, [&] {
      const int first = companies.PlaceOf(asked.company.text);
      return first != host::kNoSelection && first < companies.PlaceOf(asked.other.text);
    });
    const std::int32_t once = companies.List().ListCount();
    Fill(bench, companies, "");
    bench.Same({"Application.VulCombo", "filled the same list again", "it clears nothing: the entries are added"},
               2 * once, [&] { return std::int32_t{companies.List().ListCount()}; });
  }
  for (const char* const unknown : {"", "??"}) {
    Companies companies;
    Fill(bench, companies, unknown);
    bench.Same({"Application.VulCombo", "code " + Show(std::string(unknown)),
                "a code that no entry has selects nothing, and raises nothing", hint},
               std::string("no entry"), [&] { return companies.Selected(); });
  }
}

void CheckZoekCode(Bench& bench) {
  host::Application& application = *bench.Host().application;
  const auto code = [&](const std::string& text) {
    return [&application, text] {
      return application.ZoekCode(application.Codetabellen(), host::codes::kMaatschappijTabel, text);
    };
  };
  for (const Company& company : {bench.Asked().company, bench.Asked().other})
    bench.Same({"Application.ZoekCode", "text " + Show(company.text), "the code of the entry that shows that text"},
               company.code, code(company.text));
  bench.Same({"Application.ZoekCode", "text \"Onbekend & Zn\"", "an empty code where no entry shows that text",
              "answer an empty text; do not throw"},
             std::string(), code("Onbekend & Zn"));
}

void CheckVoorstellen(Bench& bench) {
  const auto dossier = bench.Dossier();
  for (std::int16_t proposal = 1; proposal <= host::codes::kVoorstellen; ++proposal) {
    const std::string column = "proposal " + Show(proposal) + ", column 1, ";
    for (const char* const time : {"the first time", "again"})
      bench.Done({"Dossier.VoegToeAanVoorstel", column + time, "a column may be registered again: each tick does"},
                 [&] { dossier->VoegToeAanVoorstel(proposal, 1); });
    for (const char* const time : {"the first time", "again"})
      bench.Done({"Dossier.VerwijderUitVoorstel", column + time,
                  "a column may be taken out of a proposal that it is not in: each complete check does"},
                 [&] { dossier->VerwijderUitVoorstel(proposal, 1, 0); });
  }
}

void CheckFactories(Bench& bench) {
  const host::HostFactories& factories = bench.Host().factories;
  for (const std::string_view control : {"VrijeKolom", "Toelichting"}) {
    const std::string written = "control " + Show(std::string(control));
    const Question asked{"HostFactories.MaakProcedureTrace", written, "a tracer for each control",
                         "without one every procedure of the control fails with error 91"};
    if (!factories.MaakProcedureTrace) {
      bench.Find(asked, "no factory", "a factory");
      return;
    }
    const auto trace = bench.Object(asked, [&] { return factories.MaakProcedureTrace(control); });
    bench.Done({"ProcedureTrace", written, "all that is told is taken: a tracer that fails, fails the procedure"}, [&] {
      trace->EnterProcedure("SetApplication");
      trace->ErrorInProcedure("SetApplication");
      trace->SetApplicationTitle("Dossier – één");
      trace->SetObjectName(std::string(control));
      trace->SetCaption("Kwandero");
      trace->SetObjectDescription("Vrije kolom");
      trace->SetMessage("Er is een fout opgetreden.");
      trace->SetErrorNumber("91");
      trace->SetErrorDescription("Object missing");
      trace->SetErrorSource("BrivaneVrijeKolom");
      trace->EnterProcedure("Validation");
      trace->LeaveProcedure();
    });
    bench.Done({"Application.ReportError", "a tracer of the host's own", "the host shows or logs it; it does not fail"},
               [&] { bench.Host().application->ReportError(*trace); });
  }
  const Question asked{"HostFactories.MaakDossierControle", "control \"VrijeKolom\"",
                       "the host's check of the loan file",
                       "host::GeenDossierControle is the check of a host that has none"};
  if (!factories.MaakDossierControle) {
    bench.Find(asked, "no factory", "a factory");
    return;
  }
  const auto controle = bench.Object(asked, [&] { return factories.MaakDossierControle("VrijeKolom"); });
  bench.Done(
      {"DossierControle.Controleer", "the host's application, 1", "the host looks at its case; it does not fail"},
      [&] { controle->Controleer(bench.Host().application, 1); });
}

}  // namespace

void AddApplicationChecks(std::vector<NamedCheck>& checks) {
  checks.push_back({"Dossier.Persoon", CheckPersoon});
  checks.push_back({"Application.Uitgangspunten", CheckUitgangspunten});
  checks.push_back({"Application.Hoofdvenster", CheckHoofdvenster});
  checks.push_back({"Application.VulCombo", CheckVulCombo});
  checks.push_back({"Application.ZoekCode", CheckZoekCode});
  checks.push_back({"Dossier.VoegToeAanVoorstel", CheckVoorstellen});
  checks.push_back({"HostFactories", CheckFactories});
}

}  // namespace brivane::hostkit
