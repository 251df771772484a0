#include <gtest/gtest.h>

#include <brivane/scenario/Opnamecontrole.h>

namespace brivane::scenario {
namespace {

TEST(Opnamecontrole, TheMessageNamesTheMaximum) {
  EXPECT_EQ(OpnameMelding("25.000"), "- De som van alle opnames bedraagt maximaal € 25.000,-.");
}

TEST(Opnamecontrole, MessagesStandOnLinesOfTheirOwn) {
  std::string meldingen;
  VoegMeldingToe(meldingen, "een");
  EXPECT_EQ(meldingen, "een");
  VoegMeldingToe(meldingen, "twee");
  VoegMeldingToe(meldingen, "drie");
  EXPECT_EQ(meldingen, "een\r\ntwee\r\ndrie");
}

}  // namespace
}  // namespace brivane::scenario
