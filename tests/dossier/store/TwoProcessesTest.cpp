#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"

// Two processes and one loan file.
namespace brivane::dossier {
namespace {

const char kInGebruik[] = "Het dossier \"test.dossier\" is al geopend in een ander venster of programma.";

TEST(TweeProcessen, AFileThatAnotherProcessHasOpenIsRefusedAndItsProcessWorksOn) {
  const Map map;
  const QString pad = map.Maak();
  TweedeProces tweede({"open", pad});
  EXPECT_EQ(tweede.Regel(), "open Kinderopvang");
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::InUse);
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::InUse);
  EXPECT_EQ(tweede.Sluit(), 0);
  EXPECT_EQ(ProbleemBijOpenen(pad), std::nullopt);
}

TEST(TweeProcessen, AnotherProcessIsRefusedTheFileThatThisOneHasOpen) {
  const Map map;
  const QString pad = map.Maak();
  const auto bestand = DossierBestand::Open(pad);
  // Being refused in this process must not let go of the lock that keeps the other one out.
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::InUse);
  TweedeProces tweede({"open", pad});
  EXPECT_EQ(tweede.Regel(), kInGebruik);
  EXPECT_EQ(tweede.Sluit(), 0);
  bestand->Dossier()->ZoekKolom(0, 1)->SetOmschrijving("werkt door");
  TweedeProces derde({"open", pad});
  EXPECT_EQ(derde.Regel(), kInGebruik);
  EXPECT_EQ(derde.Sluit(), 0);
}

TEST(TweeProcessen, AFileThatAnotherProgramIsReadingIsRefused) {
  const Map map;
  const QString pad = map.Maak();
  TweedeProces lezer({"lees", pad});
  EXPECT_EQ(lezer.Regel(), "leest 8");
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::InUse);
  EXPECT_EQ(lezer.Sluit(), 0);
  EXPECT_EQ(ProbleemBijOpenen(pad), std::nullopt);
}

TEST(TweeProcessen, TheNextProcessFindsWhatTheFirstOneAccepted) {
  const Map map;
  const QString pad = map.Maak();
  TweedeProces eerste({"bewerk", pad, "6", "6"});
  EXPECT_EQ(eerste.Regel(), "6");
  EXPECT_EQ(eerste.Sluit(), 0);
  TweedeProces tweede({"open", pad});
  EXPECT_EQ(tweede.Regel(), "open Bewerking 6");
  EXPECT_EQ(tweede.Sluit(), 0);
}

}  // namespace
}  // namespace brivane::dossier
