#include <gtest/gtest.h>

#include <vector>

#include <brivane/controls/entry/KeysUnderWay.h>

namespace brivane::controls {
namespace {

using std::chrono::milliseconds;
constexpr auto kFirst = KeysUnderWay::Press::First;
constexpr auto kRepeat = KeysUnderWay::Press::Repeat;

struct Key {
  int at;
  KeysUnderWay::Press press;
  bool meant;
};

/// A box that comes up at 10,000.
void Expect(const std::vector<Key>& keys) {
  KeysUnderWay underWay(milliseconds(500), milliseconds(10'000));
  for (const Key& key : keys) EXPECT_EQ(underWay.IsMeant(milliseconds(key.at), key.press), key.meant) << key.at;
}

TEST(KeysUnderWay, AreThoseBeforeTheFirstPause) {
  Expect({{9'990, kFirst, false}, {10'000, kFirst, false}, {10'499, kFirst, false}, {10'998, kFirst, false}});
  Expect({{10'500, kFirst, true}});
  Expect({{10'300, kFirst, false}, {10'800, kFirst, true}});
}

TEST(KeysUnderWay, AreOverOnceSomebodyPaused) {
  Expect({{11'000, kFirst, true}, {11'010, kFirst, true}, {11'020, kFirst, true}});
}

TEST(KeysUnderWay, AKeyHeldDownIsNeverMeant) {
  Expect({{10'400, kRepeat, false}, {10'700, kFirst, false}, {11'300, kFirst, true}, {11'330, kRepeat, false}});
  Expect({{12'000, kRepeat, false}, {12'010, kFirst, false}});
}

}  // namespace
}  // namespace brivane::controls
