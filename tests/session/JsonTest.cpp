#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include <brivane/session/document/Json.h>

namespace brivane::session {
namespace {

std::string Line(const Json& value) {
  std::string out;
  AppendLine(out, value);
  return out;
}

std::string Number(double number) {
  std::string out;
  AppendNumber(out, number);
  return out;
}

TEST(Json, LinesHaveABlankAfterEachColonAndComma) {
  EXPECT_EQ(Line(Json::parse(R"({"a":1,"b":{"c":[1,"x, y",true,null],"d":{}},"e":[]})")),
            R"({"a": 1, "b": {"c": [1, "x, y", true, null], "d": {}}, "e": []})");
}

TEST(Json, TextsStayUtf8AndControlCharactersAreEscaped) {
  EXPECT_EQ(Line("€ \"é\"\r\n\x01/"), "\"€ \\\"é\\\"\\r\\n\\u0001/\"");
}

TEST(Json, BytesThatAreNotUtf8AreReplaced) { EXPECT_EQ(Line("a\xff"), "\"a\uFFFD\""); }

TEST(Json, NumbersAreShort) {
  EXPECT_EQ(Number(0), "0");
  EXPECT_EQ(Number(-0.0), "-0.0");
  EXPECT_EQ(Number(12), "12");
  EXPECT_EQ(Number(-1000000), "-1000000");
  EXPECT_EQ(Number(1200.5), "1200.5");
  EXPECT_EQ(Number(0.1), "0.1");
  EXPECT_EQ(Number(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(Number(static_cast<double>(33.3F)), "33.29999923706055");
  EXPECT_EQ(Number(0.000001), "0.000001");
  EXPECT_EQ(Number(9007199254740991.0), "9007199254740991");
  EXPECT_EQ(Number(1e300), "1e+300");
  EXPECT_EQ(Number(5e-324), "5e-324");
  EXPECT_EQ(Number(std::numeric_limits<double>::infinity()), "null");
}

TEST(Json, NumbersReadBackToTheSameDouble) {
  std::mt19937_64 random(20261121);
  for (int i = 0; i < 20000; ++i) {
    const auto number = std::bit_cast<double>(random());
    if (number != number || number - number != 0) continue;
    const std::string text = Number(number);
    EXPECT_EQ(std::strtod(text.c_str(), nullptr), number) << text;
    EXPECT_EQ(Json::parse(text).get<double>(), number) << text;
  }
}

TEST(Json, ParsingKeepsTheOrderOfKeys) {
  EXPECT_EQ(Line(ParseJson(R"({"b": 1, "a": {"d": 2, "c": [{"z": 0, "y": 0}]}})")),
            R"({"b": 1, "a": {"d": 2, "c": [{"z": 0, "y": 0}]}})");
}

TEST(Json, TheSameKeyMayStandInTwoObjects) { EXPECT_NO_THROW((void)ParseJson(R"([{"a": {"a": 1}}, {"a": 2}])")); }

TEST(Json, AKeyThatStandsTwiceIsToldByItsPlace) {
  try {
    (void)ParseJson(R"({"steps": [{}, {"modal": [[], {"do": 1, "x": [2, 3], "do": 4}]}]})");
    FAIL() << "accepted";
  } catch (const BadInput& problem) {
    EXPECT_EQ(problem.Place(), "steps[1].modal[1].do");
  }
}

TEST(Json, NestingIsCountedInArraysAndObjectsAlike) {
  std::string deep;
  for (std::size_t i = 0; i < kDeepest / 2; ++i) deep += R"([{"a": )";
  std::string close;
  for (std::size_t i = 0; i < kDeepest / 2; ++i) close += "}]";
  EXPECT_NO_THROW((void)ParseJson(deep + "0" + close));
  EXPECT_THROW((void)ParseJson(deep + "[]" + close), BadInput);
}

}  // namespace
}  // namespace brivane::session
