#include "tests/toolkits/web/NotHere.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <set>
#include <string_view>

namespace brivane::test {

namespace {

struct Rule {
  std::string_view name;     ///< of the case, without its toolkit
  std::string_view browser;  ///< where it does not hold; empty for every one
  std::string_view reason;
};

constexpr char kCalendar[] =
    "the calendar is the browser's own, with its own keys, and its today is that of the machine";

constexpr char kOutside[] =
    "what Firefox drops down lies outside of the page, where its driver presses no key and sees nothing";
constexpr char kNoSuchKey[] = "the driver of Firefox knows no such key";

constexpr std::array kRules{
    Rule{"TypedDates.ThatArePickedGoByTheKeysOfTheCalendar", "", kCalendar},
    Rule{"TypedDates.ThatArePickedBeginAtTodayWhereNoneIsThere", "", kCalendar},
    Rule{"Dates.EscapeClosesTheCalendarAndChangesNothing", "", kCalendar},
    Rule{"Dates.TheCalendarDropsDownByKeyAndAPickIsHandedOver", "firefox", kOutside},
    Rule{"Dates.AClickOnTheButtonDropsTheCalendarDown", "firefox", kOutside},
    Rule{"ListsByHand.TheOpenListPicksByEnterAndByAClick", "firefox", kOutside},
    Rule{"Conformance.AListRaisesClickWhenAPersonPicksAnotherEntry", "firefox", kOutside},
    Rule{"Rows.OpenInTheFirstBoxAndEnterGoesDown", "firefox", kNoSuchKey},
    Rule{"Boxes.TakeThePointAndTheCommaOfTheKeypadAsTheDecimalSign", "firefox", kNoSuchKey},
    Rule{"Boxes.TakeThePointOfTheKeypadAsItIsWhereThereAreNoDecimals", "firefox", kNoSuchKey},
    Rule{"Boxes.ALockedBoxTakesTheFocusButNoTyping", "firefox", kNoSuchKey},
    Rule{"Questions.AKeyThatIsHeldDownDoesNotCount", "firefox", kNoSuchKey},
};

/// "Typing/Boxes.Rule/Web" is known as "Boxes.Rule".
std::string NameOf(const testing::TestInfo& info) {
  const std::string suite = info.test_suite_name();
  const std::string name = info.name();
  return suite.substr(suite.find('/') + 1) + "." + name.substr(0, name.find('/'));
}

}  // namespace

int RunHere(const std::string& filter, const std::string& browser) {
  std::set<std::string> cases;
  const testing::UnitTest& tests = *testing::UnitTest::GetInstance();
  std::string without;
  for (int i = 0; i < tests.total_test_suite_count(); ++i) {
    const testing::TestSuite& suite = *tests.GetTestSuite(i);
    for (int j = 0; j < suite.total_test_count(); ++j) {
      const testing::TestInfo& info = *suite.GetTestInfo(j);
      const std::string name = NameOf(info);
      cases.insert(name);
      for (const Rule& rule : kRules)
        if (rule.name == name && (rule.browser.empty() || rule.browser == browser)) {
          without += ":" + std::string(info.test_suite_name()) + "." + info.name();
          std::printf("[  SKIPPED ] %s: %s\n", name.c_str(), std::string(rule.reason).c_str());
        }
    }
  }
  bool stale = false;
  for (const Rule& rule : kRules)
    if (!cases.contains(std::string(rule.name))) {
      std::printf("No case is called %s.\n", std::string(rule.name).c_str());
      stale = true;
    }
  const std::string left = filter.empty() ? "*" : filter;
  const bool excluding = left.find('-') != std::string::npos;
  testing::GTEST_FLAG(filter) = without.empty() ? left : left + (excluding ? ":" : "-") + without.substr(1);
  const int code = RUN_ALL_TESTS();
  return stale ? 1 : code;
}

}  // namespace brivane::test
