// What fuzzing found worth keeping, run again: each input reached something that the ones before did not.

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "fuzz/SessionFromBytes.h"
#include "fuzz/Targets.h"
#include "replay/document/Document.h"
#include "replay/play/Session.h"
#include "tests/fuzz/Inputs.h"

namespace brivane::fuzz {
namespace {

TEST(Corpus, EverySessionRunsAndKeepsTheOrderOfItsTrace) {
  const std::vector<Input> inputs = InputsOf("session");
  ASSERT_GE(inputs.size(), 50U);
  for (const Input& input : inputs) ReplaySession(input);
}

TEST(Corpus, NoBytesBreakTheReaderOfDocuments) {
  const std::vector<Input> inputs = InputsOf("document");
  ASSERT_GE(inputs.size(), 50U);
  for (const Input& input : inputs) ReadAsDocument(input);
}

TEST(Corpus, ReachesEveryProcedureOfTheControls) {
  std::vector<std::string> missing;
  std::string all;
  for (const Input& input : InputsOf("session")) {
    const replay::Document document = replay::ReadDocument(SessionFromBytes(Bytes(input)).dump());
    replay::Session session(document, [&](std::string_view line) { all.append(line) += '\n'; });
    try {
      session.Run();
    } catch (const replay::BadInput&) {
      continue;
    }
  }
  for (const std::string_view procedure : {"SetApplication",
                                           "Fill_Controls",
                                           "Fill_fraAlgemeen",
                                           "Fill_Product",
                                           "Fill_cboMaatschappij",
                                           "Fill_cboProductsoort",
                                           "chkProduct_Click",
                                           "cboMaatschappij_Click",
                                           "cboProductsoort_Click",
                                           "Validation",
                                           "Check_FraFiscaal",
                                           "CboTermijn_Click",
                                           "ChkVoorstel_Click",
                                           "cmdScenario_Click",
                                           "jnInDagloon_Change",
                                           "jnInkUitArbeid_Change",
                                           "jnUwBemiddeling_Change",
                                           "optAanvrager_Click",
                                           "optFiscaal_Click",
                                           "optLast_Click",
                                           "TxtBd_Validation",
                                           "TxtOm_Validation",
                                           "TxtAnJaar_Validation",
                                           "TxtAnMaand_Validation",
                                           "TxtDtAanvang_Validation",
                                           "TxtDtEind_Validation",
                                           "txtMaatschappij_Validation",
                                           "txtProductsoort_Validation",
                                           "txtProductnaam_Validation",
                                           "txtVervaldatum_Validation",
                                           "Fill_Listview",
                                           "Show_Keuze",
                                           "jnAO_Change",
                                           "jnWW_Change",
                                           "jnLangleven_Change",
                                           "jnOverlijden_Change",
                                           "TxtPcOvergang_Validation",
                                           "TxtEinddatum_Validation",
                                           "TxtEindjaar_Validation"})
    if (all.find("\"enter\": \"" + std::string(procedure) + '"') == std::string::npos) missing.emplace_back(procedure);
  EXPECT_EQ(missing, std::vector<std::string>());
  EXPECT_NE(all.find(R"({"opened": "frmScenario")"), std::string::npos);
  EXPECT_NE(all.find(R"({"report": )"), std::string::npos);
}

}  // namespace
}  // namespace brivane::fuzz
