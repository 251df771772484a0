// What an engineer is told of a binding that fails.

#include <gtest/gtest.h>

#include "tests/support/TestHost.h"
#include <brivane/controls/WhatIsMissing.h>
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::controls {
namespace {

class WhatIsMissingTest : public testing::Test {
 protected:
  /// It is told exactly where the editor is not bound.
  std::string Told(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    memory::Embedded<VrijeKolom> editor(vrijekolom::kOntwerp, host_.Factories());
    const BindingResult result = editor.SetApplication(host_.application, Len_Id, Vrij_Id);
    const std::string told = WhatIsMissing(host_.application, Len_Id, Vrij_Id);
    EXPECT_EQ(told.empty(), result == BindingResult::Bound) << told;
    return told;
  }
  test::TestHost host_;
};

TEST_F(WhatIsMissingTest, NothingOfACaseThatIsWhole) { EXPECT_EQ(Told(0, 1), ""); }

TEST_F(WhatIsMissingTest, TheApplicantOfACaseWithoutPersons) {
  host_.dossier.personen.clear();
  EXPECT_EQ(Told(0, 1), "Dossier.Persoon(1) answers nothing: every case has an applicant");
}

TEST_F(WhatIsMissingTest, ThePartnerIsNotMissed) {
  host_.dossier.personen.pop_back();
  EXPECT_EQ(Told(0, 1), "");
}

TEST_F(WhatIsMissingTest, TheLoanOrTheColumn) {
  host_.VoegLening({5});
  EXPECT_EQ(Told(1, 5), "");
  EXPECT_EQ(Told(0, 7), "Lening.VrijeKolommen(7) answers nothing: the loan has no column with that identifier");
  EXPECT_EQ(Told(2, 1), "Dossier.Lening(2) answers nothing: the loans of the new situation count from 1");
}

TEST_F(WhatIsMissingTest, ACodeThatTheEditorDoesNotKnow) {
  host_.Kolom(1).velden.CorrectieFiscaal = 0;
  EXPECT_EQ(Told(0, 1), "VrijeKolomItem.CorrectieFiscaal answers 0: the editor knows 1 to 3");
  host_.Kolom(1).velden.CorrectieFiscaal = 1;
  host_.Kolom(1).velden.HeffingBij = 3;
  EXPECT_EQ(Told(0, 1), "VrijeKolomItem.HeffingBij answers 3: the editor knows 1 to 2");
}

TEST_F(WhatIsMissingTest, TheAmountObject) {
  host_.Kolom(1).bedrag = nullptr;
  EXPECT_EQ(Told(0, 1), "VrijeKolomItem.Bedrag answers nothing: every column has an amount object");
}

TEST_F(WhatIsMissingTest, AMemberThatFails) {
  host_.calls.Fail("VrijeKolommen", test::Op::Get, 1, host::Error(1004, "geen verbinding", "Opslag"));
  EXPECT_EQ(WhatIsMissing(host_.application, 0, 1), "Lening.VrijeKolommen(1) fails: 1004, geen verbinding");
}

TEST_F(WhatIsMissingTest, TheApplicationItself) { EXPECT_EQ(WhatIsMissing(nullptr, 0, 1), "there is no application"); }

}  // namespace
}  // namespace brivane::controls
