#include <gtest/gtest.h>

#include <map>
#include <set>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Numbers.h>
#include <brivane/frame/Phrase.h>

/// What the toolkits say, in each language.
namespace brivane::frame {
namespace {

std::string In(Language language, int text) { return Texts::In(language).Of(static_cast<TextId>(text)); }

/// What is filled in: "%1", "%2".
std::multiset<std::string> Places(const std::string& text) {
  std::multiset<std::string> places;
  for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1))
    places.insert(text.substr(at, 2));
  return places;
}

TEST(Texts, StandInEachLanguageWithTheSamePlacesAndMnemonics) {
  std::map<std::string, std::string> known;
  std::set<std::string_view> names;
  for (int i = 0; i < kTextCount; ++i) {
    const std::string dutch = In(Language::Dutch, i);
    const std::string english = In(Language::English, i);
    const std::string_view name = NameOf(static_cast<TextId>(i));
    EXPECT_NE(dutch, "") << name;
    EXPECT_NE(english, "") << name;
    EXPECT_EQ(Places(dutch), Places(english)) << name;
    EXPECT_EQ(dutch.find('&') == std::string::npos, english.find('&') == std::string::npos) << name;
    EXPECT_EQ(dutch.ends_with('.'), english.ends_with('.')) << name;
    EXPECT_EQ(dutch.ends_with('?'), english.ends_with('?')) << name;
    // A translator knows a text by its Dutch.
    EXPECT_TRUE(known.emplace(dutch, english).second) << name << ": \"" << dutch << "\" stands there twice";
    EXPECT_TRUE(names.insert(name).second) << name;
    // A name in the sources and in the files of translators.
    EXPECT_EQ(name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"), std::string_view::npos)
        << name;
  }
  EXPECT_EQ(NameOf(TextId::ExpectAmount), "ExpectAmount");
  EXPECT_EQ(Texts::In(Language::Dutch).Of(TextId::Ok), "OK");
  EXPECT_EQ(Texts::In(Language::English).Of(TextId::ExpectAmount), "Enter an amount, for example 1.234,56.");
}

/// Words by number, as a host of another language might have them.
class Numbered final : public Texts {
 public:
  [[nodiscard]] std::string Of(TextId text) const override {
    switch (text) {
      case TextId::NoStart: return "<%2|%1|%3|%%|%";
      case TextId::InLine: return "%1>%2";
      case TextId::Day: return "%9%:%0%";
      default: return std::to_string(static_cast<int>(text));
    }
  }
};

TEST(APhrase, IsFilledInInTheOrderOfTheLanguage) {
  const Numbered texts;
  EXPECT_EQ(Phrase(TextId::NoStart, {"a", "b"}).In(texts), "<b|a|%3|%%|%");
  // What is filled in is left as it is, and a phrase in a phrase speaks the same language.
  EXPECT_EQ(Phrase(TextId::InLine, {"%2", Phrase(TextId::InLine, {"1", TextId::ExpectAmount})}).In(texts), "%2>1>0");
  EXPECT_EQ(Phrase("a word of %1").In(texts), "a word of %1");
  // Nine can be filled in, and no more.
  EXPECT_EQ(Phrase(TextId::Day, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}).In(texts), "9%:%0%");
}

TEST(APhrase, IsEmptyWhereThereIsNothingToTell) {
  EXPECT_TRUE(Phrase().empty());
  EXPECT_TRUE(Phrase("").empty());
  EXPECT_FALSE(Phrase("word").empty());
  EXPECT_FALSE(Phrase(TextId::ExpectAmount).empty());
  EXPECT_EQ(Phrase().In(Language::English), "");
}

TEST(APhrase, TellsWhyATextIsRefused) {
  struct Refused {
    Phrase why;
    const char* dutch;
    const char* english;
  };
  const Refused table[] = {
      {ReadAmount("12.50").Why(), "Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.",
       "Do you mean 12,50 or 1.250? Type a comma before the decimals."},
      {ReadWhole("12.5").Why(), "De punt staat niet tussen duizendtallen. Bedoelt u 125?",
       "The point does not separate thousands. Do you mean 125?"},
      {ReadDate("31-4-2031").Why(), "31 april 2031 bestaat niet.", "31 April 2031 does not exist."},
      {ReadDate("1-13-2031").Why(), "Maand 13 bestaat niet. Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031.",
       "There is no month 13. Enter a date as dd-mm-yyyy, for example 1-4-2031."},
      {ReadDate("1-1-1899").Why(), "Vul een jaar vanaf 1900 in.", "Enter a year from 1900 on."}};
  for (const Refused& row : table) {
    EXPECT_EQ(row.why.In(Language::Dutch), row.dutch);
    EXPECT_EQ(row.why.In(Language::English), row.english);
  }
}

TEST(APhrase, NamesEachDayAndMonth) {
  // 5 January 2026 is a Monday.
  const char* const days[] = {"maandag/Monday", "dinsdag/Tuesday",   "woensdag/Wednesday", "donderdag/Thursday",
                              "vrijdag/Friday", "zaterdag/Saturday", "zondag/Sunday"};
  const auto both = [](const Phrase& phrase) {
    return phrase.In(Language::Dutch) + '/' + phrase.In(Language::English);
  };
  for (int i = 0; i < 7; ++i) {
    const std::string day(days[i]);
    const std::size_t cut = day.find('/');
    const std::string date = std::to_string(5 + i);
    EXPECT_EQ(both(DateInWords(MakeDate({2026, 1, 5 + i}))),
              day.substr(0, cut) + ' ' + date + " januari 2026/" + day.substr(cut + 1) + ' ' + date + " January 2026");
  }
  const char* const months[] = {"January", "February", "March",     "April",   "May",      "June",
                                "July",    "August",   "September", "October", "November", "December"};
  for (int i = 0; i < 12; ++i)
    EXPECT_EQ(LongDate(MakeDate({2031, i + 1, 1})).In(Language::English), "1 " + std::string(months[i]) + " 2031");
  EXPECT_TRUE(LongDate(host::kNoDate).empty());
  EXPECT_TRUE(DateInWords(host::kNoDate).empty());
}

}  // namespace
}  // namespace brivane::frame
