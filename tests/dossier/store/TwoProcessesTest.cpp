#include "tests/dossier/store/ScriptedEdits.h"
#include "tests/dossier/store/SecondProcess.h"

// Two processes and one loan file.
namespace brivane::dossier {
namespace {

const char kInUse[] = "Het dossier \"test.dossier\" is al geopend in een ander venster of programma.";

TEST(TwoProcessesTest, AFileThatAnotherProcessHasOpenIsRefusedAndItsProcessWorksOn) {
  const Folder folder;
  const QString path = folder.Make();
  SecondProcess second({"open", path});
  EXPECT_EQ(second.Line(), "open Kinderopvang");
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::InUse);
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::InUse);
  EXPECT_EQ(second.Close(), 0);
  EXPECT_EQ(ProblemAtOpening(path), std::nullopt);
}

TEST(TwoProcessesTest, AnotherProcessIsRefusedTheFileThatThisOneHasOpen) {
  const Folder folder;
  const QString path = folder.Make();
  const auto file = DossierFile::Open(path);
  // Being refused in this process must not let go of the lock that keeps the other one out.
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::InUse);
  SecondProcess second({"open", path});
  EXPECT_EQ(second.Line(), kInUse);
  EXPECT_EQ(second.Close(), 0);
  file->Dossier()->FindKolom(0, 1)->SetOmschrijving("werkt door");
  SecondProcess third({"open", path});
  EXPECT_EQ(third.Line(), kInUse);
  EXPECT_EQ(third.Close(), 0);
}

TEST(TwoProcessesTest, AFileThatAnotherProgramIsReadingIsRefused) {
  const Folder folder;
  const QString path = folder.Make();
  SecondProcess reader({"read", path});
  EXPECT_EQ(reader.Line(), "reads 8");
  EXPECT_EQ(ProblemAtOpening(path), OpeningProblem::InUse);
  EXPECT_EQ(reader.Close(), 0);
  EXPECT_EQ(ProblemAtOpening(path), std::nullopt);
}

TEST(TwoProcessesTest, TheNextProcessFindsWhatTheFirstOneAccepted) {
  const Folder folder;
  const QString path = folder.Make();
  SecondProcess first({"edit", path, "6", "6"});
  EXPECT_EQ(first.Line(), "6");
  EXPECT_EQ(first.Close(), 0);
  SecondProcess second({"open", path});
  EXPECT_EQ(second.Line(), "open Bewerking 6");
  EXPECT_EQ(second.Close(), 0);
}

}  // namespace
}  // namespace brivane::dossier
