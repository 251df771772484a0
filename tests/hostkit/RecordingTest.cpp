// What a host of another kind was asked.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/hostkit/FaultyHost.h"
#include <brivane/hostkit/Recording.h>
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::hostkit::test {
namespace {

using testing::ElementsAre;
using Lines = std::vector<std::string>;

class RecordingTest : public testing::Test {
 protected:
  RecordingTest() {
    application_->maatschappijen = {{"AB", "Alfa Bank"}};
    application_->dossier->huidig->kolommen[0]->omschrijving = "Vereniging";
    static_cast<void>(recording_.Lines());  // making the editor fills the list of effects
  }
  Lines First(std::size_t count) {
    Lines lines = recording_.Lines();
    lines.resize(std::min(count, lines.size()));
    return lines;
  }

  std::shared_ptr<memory_host::Application> application_ = MemoryCase();
  Recording recording_{application_, memory_host::Factories()};
  memory::Embedded<VrijeKolom> editor_{vrijekolom::kOntwerp, recording_.Factories()};
};

TEST_F(RecordingTest, ABindingAsksTheCaseTheLoanAndTheColumnInOrder) {
  editor_.SetApplication(recording_.Application(), 0, 1);
  EXPECT_THAT(First(13),
              ElementsAre("call ProcedureTrace.EnterProcedure(VrijeKolom, SetApplication)",
                          "get Application.Dossier = an object", "get Dossier.HuidigeLening = an object",
                          "get Dossier.Lening(0) = an object", "get Lening.VrijeKolommen(1) = an object",
                          "call ProcedureTrace.EnterProcedure(VrijeKolom, Fill_Controls)",
                          "get VrijeKolomItem.CorrectieLast = 1", "get VrijeKolomItem.CorrectieFiscaal = 1",
                          "call ProcedureTrace.EnterProcedure(VrijeKolom, Check_FraFiscaal)",
                          "call ProcedureTrace.LeaveProcedure(VrijeKolom)",
                          "call ProcedureTrace.EnterProcedure(VrijeKolom, Fill_fraAlgemeen)",
                          "get VrijeKolomItem.Productsoort = 0", "get VrijeKolomItem.DatumAanvang = no date"));
}

TEST_F(RecordingTest, AnEditIsOneWriteAndTheHeaderText) {
  editor_.SetApplication(recording_.Application(), 0, 1);
  static_cast<void>(recording_.Lines());
  editor_.Surface().Find("TxtOm")->Perform(controls::Enter{std::string("Krant")});
  EXPECT_THAT(recording_.Lines(),
              ElementsAre("call ProcedureTrace.EnterProcedure(VrijeKolom, TxtOm_Validation)",
                          "set VrijeKolomItem.Omschrijving = \"Krant\"", "get VrijeKolomItem.Kopregel = \"Krant\"",
                          "call ProcedureTrace.LeaveProcedure(VrijeKolom)"));
  EXPECT_THAT(recording_.Lines(), testing::IsEmpty());
}

TEST_F(RecordingTest, AOneOffAmountEmptiesTheScenario) {
  application_->dossier->huidig->kolommen[0]->bedrag->NieuwePeriode();
  editor_.SetApplication(recording_.Application(), 0, 1);
  static_cast<void>(recording_.Lines());
  editor_.Surface().Find("cboTermijn")->Perform(controls::Choose{4});
  EXPECT_THAT(
      recording_.Lines(),
      ElementsAre("call ProcedureTrace.EnterProcedure(VrijeKolom, CboTermijn_Click)", "set VrijeKolomItem.Termijn = 99",
                  "get VrijeKolomItem.DatumAanvang = no date", "get VrijeKolomItem.Termijn = 99",
                  "set VrijeKolomItem.Looptijd = 0", "get VrijeKolomItem.Bedrag = an object",
                  "get Scenario.Periode(1) = an object", "call Scenario.VerwijderPeriode(1)",
                  "get Scenario.Periode(1) = nothing", "get VrijeKolomItem.Weergave = \"Vereniging\"",
                  "call ProcedureTrace.LeaveProcedure(VrijeKolom)"));
}

TEST_F(RecordingTest, AReportFollowsWhatWasMissing) {
  editor_.SetApplication(recording_.Application(), 0, 7);
  EXPECT_THAT(First(16), ElementsAre("call ProcedureTrace.EnterProcedure(VrijeKolom, SetApplication)",
                                     "get Application.Dossier = an object", "get Dossier.HuidigeLening = an object",
                                     "get Dossier.Lening(0) = an object", "get Lening.VrijeKolommen(7) = nothing",
                                     "call ProcedureTrace.EnterProcedure(VrijeKolom, Fill_Controls)",
                                     "call ProcedureTrace.ErrorInProcedure(VrijeKolom, Fill_Controls)",
                                     "set ProcedureTrace.ApplicationTitle", "set ProcedureTrace.ObjectName",
                                     "set ProcedureTrace.Caption", "set ProcedureTrace.ObjectDescription",
                                     "set ProcedureTrace.Message", "set ProcedureTrace.ErrorNumber",
                                     "set ProcedureTrace.ErrorDescription", "set ProcedureTrace.ErrorSource",
                                     "call Application.ReportError(VrijeKolom, 91, \"Object missing\")"));
}

}  // namespace
}  // namespace brivane::hostkit::test
