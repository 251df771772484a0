#include <gtest/gtest.h>

#include <QString>
#include <random>

#include "dossier/office/FoundBy.h"
#include "dossier/office/OfficeError.h"
#include "dossier/office/OfficeText.h"
#include "dossier/office/RowText.h"
#include "dossier/office/RowsJson.h"

namespace brivane::dossier {
namespace {

/// Byte b as a character of private use: U+10FE00 and the byte.
std::string Mark(unsigned char b) {
  return std::string("\xF4\x8F") + static_cast<char>(0xB8 + b / 64) + static_cast<char>(0x80 + b % 64);
}

TEST(OfficeTextTest, WhatAServerRefusesBecomesPrivateCharacters) {
  const std::pair<std::string, std::string> table[] = {
      {"", ""},
      {"Zoë ☕ 😀", "Zoë ☕ 😀"},
      {std::string("a\0b", 3), "a" + Mark(0) + "b"},
      {"\xff\xfe", Mark(0xff) + Mark(0xfe)},
      {"\xc3", Mark(0xc3)},                                                     // cut off
      {"\xc0\x80", Mark(0xc0) + Mark(0x80)},                                    // a longer way to write zero
      {"\xed\xa0\x80", Mark(0xed) + Mark(0xa0) + Mark(0x80)},                   // half of a pair
      {"\xf4\x90\x80\x80", Mark(0xf4) + Mark(0x90) + Mark(0x80) + Mark(0x80)},  // past the last character
      {Mark(0), Mark(0xf4) + Mark(0x8f) + Mark(0xb8) + Mark(0x80)}};
  for (const auto& [bytes, text] : table) {
    EXPECT_EQ(ToOffice(bytes), text);
    EXPECT_EQ(FromOffice(text), bytes);
  }
}

TEST(OfficeTextTest, AnyBytesComeBack) {
  std::mt19937 chance(7);
  for (int n = 0; n < 20000; ++n) {
    std::string bytes;
    for (int length = static_cast<int>(chance() % 12); length > 0; --length) {
      static const unsigned char kLikely[] = {0xF4, 0x8F, 0xB8, 0x80, 0xC3, 0xA9, 0x00, 'x'};
      bytes += static_cast<char>(chance() % 2 == 0 ? kLikely[chance() % 8] : chance() % 256);
    }
    const std::string text = ToOffice(bytes);
    ASSERT_EQ(FromOffice(text), bytes);
    // Valid UTF-8 without zero bytes: no character is replaced.
    ASSERT_EQ(QString::fromUtf8(text.c_str()).toStdString(), text);
  }
}

TEST(OfficeTextTest, ValuesAreWrittenToTheBit) {
  EXPECT_EQ(JsonValue(std::int64_t{-5}), "-5");
  EXPECT_EQ(JsonValue(0.1), "0.1");
  EXPECT_EQ(JsonValue(-0.0), "-0");
  EXPECT_EQ(JsonValue(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(JsonValue(Stored()), "null");
  EXPECT_EQ(JsonValue(std::string("a\"\\\n\x01")), "\"a\\\"\\\\\\u000a\\u0001\"");
  EXPECT_EQ(JsonBytes(std::string("\x00\xff", 2)), "\"\\\\x00ff\"");
}

TEST(OfficeTextTest, ARowIsWrittenAsItsType) {
  static constexpr TableColumn kColumns[] = {
      {"a", Opslag::Integer}, {"b", Opslag::Real}, {"c", Opslag::Text}, {"d", Opslag::Text}};
  const ClientTable table{"t", kColumns, 2};
  // Between two commas stands nothing, between two quotes a text without letters. The last two fields hold their bytes.
  const Row row = {std::int64_t{-5}, -0.0, std::string(), Stored(), std::string("z"), Stored()};
  EXPECT_EQ(RowText(table, row), R"x((-5,-0,"",,"\\x7401000000000000007a",))x");
  EXPECT_EQ(RowText(table, {std::int64_t{1}, 0.1, std::string("a\"\\,()"), Stored()}), R"x((1,0.1,"a\"\\,()",))x");
  ListText list;
  EXPECT_TRUE(list.IsEmpty());
  list.Add(table, row);
  list.Add(table, {Stored(), 1.0 / 3, std::string("a\"\\"), Stored()});
  // Within the list each quote and stroke of a row is marked.
  EXPECT_EQ(list.Text(),
            R"x({"(-5,-0,\"\",,\"\\\\x7401000000000000007a\",)","(,0.3333333333333333,\"a\\\"\\\\\",)"})x");
  ListText keys;
  keys.Add(7);
  keys.Add(-1);
  EXPECT_EQ(keys.Text(), "{7,-1}");
}

TEST(OfficeTextTest, WhatIsTypedIsLookedForByWords) {
  const std::pair<const char*, QStringList> table[] = {{"", {}},
                                                       {"  Zoë  d'Arc ", {"zoe", "d", "arc"}},
                                                       {"12-3-1978", {"12031978"}},
                                                       {"heuvel 1/12/2001", {"01122001", "heuvel"}},
                                                       {"%_\\", {}},
                                                       {"31-2-2000", {"3122000"}},
                                                       {"A.B.", {"a", "b"}}};
  for (const auto& [typed, words] : table) EXPECT_EQ(WordsTyped(typed), words) << typed;
}

TEST(OfficeTextTest, ADayIsFoundAtEveryKey) {
  const std::pair<const char*, QStringList> table[] = {{"1-", {"01"}},
                                                       {"12-", {"12"}},
                                                       {"12-0", {"120"}},
                                                       {"12-03", {"1203"}},
                                                       {"12-3", {"1203"}},
                                                       {"12-3-", {"1203"}},
                                                       {"12-3-1", {"12031"}},
                                                       {"12-3-19", {"120319"}},
                                                       {"12-3-197", {"1203197"}},
                                                       {"12.3.1978", {"12031978"}},
                                                       // January, or one of the last three months.
                                                       {"12-1", {"12"}},
                                                       {"12-1-", {"1201"}},
                                                       {"12-10", {"1210"}},
                                                       {"12/3/7", {"1203"}},
                                                       {"12/3/78", {"12031978"}},
                                                       {"12-3-05", {"12032005"}},
                                                       {"1978-", {"1978"}},
                                                       {"1978-0", {"19780"}},
                                                       {"1978-1", {"1978"}},
                                                       {"1978-3", {"197803"}},
                                                       {"1978-03-1", {"197803"}},
                                                       {"1978-03-4", {"19780304"}},
                                                       {"1978-03-12", {"19780312"}},
                                                       {"heuvel 12-3", {"1203", "heuvel"}},
                                                       // What is no day stays what it is.
                                                       {"12-30", {"12", "30"}},
                                                       {"32-1", {"32", "1"}},
                                                       {"0-3", {"0", "3"}},
                                                       {"1978-13", {"1978", "13"}},
                                                       {"polis 4711-12", {"polis", "4711", "12"}},
                                                       {"a12-3", {"a12", "3"}},
                                                       {"1. van", {"1", "van"}}};
  for (const auto& [typed, words] : table) EXPECT_EQ(WordsTyped(typed), words) << typed;
}

TEST(OfficeTextTest, AStateCodeTellsWhatWentWrong) {
  const std::pair<const char*, OfficeProblem> table[] = {
      {"", OfficeProblem::Unreachable},      {"57P01", OfficeProblem::Unreachable},
      {"08006", OfficeProblem::Unreachable}, {"KT001", OfficeProblem::LeaseLost},
      {"KT002", OfficeProblem::Stale},       {"KT003", OfficeProblem::NoClient},
      {"42501", OfficeProblem::NotAllowed},  {"28P01", OfficeProblem::NotAdmitted},
      {"53100", OfficeProblem::DiskFull},    {"3F000", OfficeProblem::NoOffice},
      {"23505", OfficeProblem::Refused},     {"KT006", OfficeProblem::Refused}};
  for (const auto& [code, problem] : table) EXPECT_EQ(ProblemOf(code), problem) << code;
}

}  // namespace
}  // namespace brivane::dossier
