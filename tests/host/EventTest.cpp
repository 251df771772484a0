#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <brivane/host/Event.h>

namespace brivane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(!std::is_copy_constructible_v<Subscription> && !std::is_copy_assignable_v<Subscription>);
static_assert(std::is_nothrow_move_constructible_v<Subscription> && std::is_nothrow_move_assignable_v<Subscription>);
static_assert(!std::is_copy_constructible_v<Event<>> && !std::is_move_constructible_v<Event<>>);

/// Counts itself, to see when a listener lets go of what it holds.
struct Counted {
  explicit Counted(int& alive_) : alive(alive_) { ++alive; }
  Counted(const Counted& other) : alive(other.alive) { ++alive; }
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --alive; }
  int& alive;
};

class EventTest : public testing::Test {
 protected:
  using Lines = std::vector<std::string>;

  [[nodiscard]] Subscription Connect(const std::string& name) {
    return event_->Connect([this, name] { heard_.push_back(name); });
  }
  /// Raises the event and answers who was told.
  [[nodiscard]] Lines Raised() {
    heard_.clear();
    event_->Raise();
    return heard_;
  }

  std::optional<Event<>> event_{std::in_place};
  Lines heard_;
};

TEST_F(EventTest, RaisingWithoutListenersDoesNothing) { EXPECT_THAT(Raised(), IsEmpty()); }

TEST_F(EventTest, TellsItsListenersInTheOrderOfConnecting) {
  const Subscription a = Connect("a");
  const Subscription b = Connect("b");
  const Subscription c = Connect("c");
  EXPECT_THAT(Raised(), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Raised(), ElementsAre("a", "b", "c"));
}

TEST_F(EventTest, TellsAListenerUntilItsSubscriptionEnds) {
  Subscription a = Connect("a");
  {
    const Subscription b = Connect("b");
    const Subscription c = Connect("c");
    EXPECT_THAT(Raised(), ElementsAre("a", "b", "c"));
  }
  EXPECT_THAT(Raised(), ElementsAre("a"));
  const Subscription d = Connect("d");
  a.Reset();
  EXPECT_THAT(Raised(), ElementsAre("d"));
  a.Reset();
  EXPECT_THAT(Raised(), ElementsAre("d"));
}

TEST_F(EventTest, ASubscriptionMoves) {
  Subscription a = Connect("a");
  Subscription moved = std::move(a);
  a.Reset();  // NOLINT(bugprone-use-after-move): what was moved from holds nothing
  EXPECT_THAT(Raised(), ElementsAre("a"));

  Subscription other = Connect("b");
  other = std::move(moved);
  EXPECT_THAT(Raised(), ElementsAre("a")) << "what stood in its place has ended";

  Subscription& itself = other;
  other = std::move(itself);
  EXPECT_THAT(Raised(), ElementsAre("a"));
  other = Subscription();
  EXPECT_THAT(Raised(), IsEmpty());
}

TEST_F(EventTest, TheSubscriptionsOfAnOwnerEndTogether) {
  Subscriptions all;
  all += Connect("a");
  all += Connect("b");
  const Subscription c = Connect("c");
  EXPECT_THAT(Raised(), ElementsAre("a", "b", "c"));
  all.Reset();
  EXPECT_THAT(Raised(), ElementsAre("c"));
  {
    Subscriptions owner;
    owner += Connect("d");
    EXPECT_THAT(Raised(), ElementsAre("c", "d"));
  }
  EXPECT_THAT(Raised(), ElementsAre("c"));
}

TEST_F(EventTest, MayGoBeforeItsSubscriptions) {
  const Subscription a = Connect("a");
  Subscription b = Connect("b");
  event_.reset();
  b.Reset();
  EXPECT_THAT(heard_, IsEmpty());
}

TEST_F(EventTest, AListenerLetsGoOfWhatItHoldsAsItsSubscriptionEnds) {
  int alive = 0;
  Subscription a = event_->Connect([counted = Counted(alive)] {});
  EXPECT_EQ(alive, 1);
  event_->Raise();
  EXPECT_EQ(alive, 1);
  a.Reset();
  EXPECT_EQ(alive, 0);
}

TEST_F(EventTest, AListenerThatEndsItselfIsToldOnceAndLivesUntilItReturns) {
  int alive = 0;
  Subscription self;
  const Subscription before = Connect("before");
  self = event_->Connect([&, counted = Counted(alive)] {
    self.Reset();
    heard_.push_back("alive " + std::to_string(counted.alive));
  });
  const Subscription after = Connect("after");
  EXPECT_THAT(Raised(), ElementsAre("before", "alive 1", "after"));
  EXPECT_EQ(alive, 0);
  EXPECT_THAT(Raised(), ElementsAre("before", "after"));
}

TEST_F(EventTest, AListenerThatEndsBeforeItsTurnIsNotTold) {
  // Each of the four others in turn is ended by the second.
  for (const std::size_t ended : {0, 2, 3, 4}) {
    std::vector<Subscription> all(5);
    for (std::size_t i = 0; i < all.size(); ++i)
      all[i] = event_->Connect([this, &all, i, ended] {
        heard_.push_back(std::to_string(i));
        if (i == 1) all[ended].Reset();
      });
    Lines expected{"0", "1", "2", "3", "4"};
    // The first has had its turn.
    if (ended != 0) expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(ended));
    EXPECT_EQ(Raised(), expected) << ended;
    expected = {"0", "1", "2", "3", "4"};
    expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(ended));
    EXPECT_EQ(Raised(), expected) << ended;
  }
}

TEST_F(EventTest, AListenerMayEndThemAll) {
  Subscriptions all;
  all += Connect("a");
  all += event_->Connect([&] {
    heard_.emplace_back("b");
    all.Reset();
  });
  all += Connect("c");
  EXPECT_THAT(Raised(), ElementsAre("a", "b"));
  EXPECT_THAT(Raised(), IsEmpty());
}

TEST_F(EventTest, WhoConnectsDuringARaisingIsToldFromTheNextOn) {
  Subscriptions more;
  const Subscription a = event_->Connect([&] {
    heard_.emplace_back("a");
    if (heard_.size() == 1) more += Connect("new");
  });
  EXPECT_THAT(Raised(), ElementsAre("a"));
  more.Reset();
  const Subscription b = Connect("b");
  EXPECT_THAT(Raised(), ElementsAre("a", "b"));
  EXPECT_THAT(heard_, ElementsAre("a", "b"));
  heard_.assign({"once more"});
  event_->Raise();
  EXPECT_THAT(heard_, ElementsAre("once more", "a", "b", "new"));
}

TEST_F(EventTest, WhoConnectsInThePlaceOfTheLastOneIsNotToldEither) {
  Subscription last;
  const Subscription a = event_->Connect([&] {
    heard_.emplace_back("a");
    last = Connect("new");
  });
  const Subscription b = Connect("b");
  last = Connect("last");
  EXPECT_THAT(Raised(), ElementsAre("a", "b"));
}

TEST_F(EventTest, RaisesNest) {
  int depth = 0;
  const Subscription a = event_->Connect([&] {
    heard_.push_back("a" + std::to_string(depth));
    if (++depth < 3) event_->Raise();
    --depth;
  });
  const Subscription b = event_->Connect([&] { heard_.push_back("b" + std::to_string(depth)); });
  EXPECT_THAT(Raised(), ElementsAre("a0", "a1", "a2", "b2", "b1", "b0"));
}

TEST_F(EventTest, AListenerEndedInANestedRaisingIsToldByNone) {
  bool nested = false;
  Subscription last;
  const Subscription a = event_->Connect([&] {
    heard_.emplace_back("a");
    if (std::exchange(nested, true)) return last.Reset();
    event_->Raise();
  });
  const Subscription b = Connect("b");
  last = Connect("last");
  EXPECT_THAT(Raised(), ElementsAre("a", "a", "b", "b"));
}

TEST_F(EventTest, TheEventMayGoDuringARaising) {
  int alive = 0;
  const Subscription a = Connect("a");
  const Subscription b = event_->Connect([&, counted = Counted(alive)] {
    event_.reset();
    heard_.push_back("alive " + std::to_string(counted.alive));
  });
  const Subscription c = Connect("c");
  event_->Raise();
  EXPECT_THAT(heard_, ElementsAre("a", "alive 1"));
}

TEST_F(EventTest, TheEventMayGoDuringANestedRaising) {
  bool nested = false;
  Subscription a = event_->Connect([&] {
    heard_.emplace_back("a");
    if (!std::exchange(nested, true)) return event_->Raise();
    event_.reset();
    a.Reset();
  });
  const Subscription b = Connect("b");
  event_->Raise();
  EXPECT_THAT(heard_, ElementsAre("a", "a"));
}

TEST_F(EventTest, WhatAListenerHeldMayEndTheNextOneAsItGoes) {
  auto held = std::make_shared<Subscription>();
  Subscription a;
  a = event_->Connect([&, held] {
    heard_.emplace_back("a");
    a.Reset();
  });
  *held = Connect("b");
  held.reset();
  EXPECT_THAT(Raised(), ElementsAre("a"));
}

TEST_F(EventTest, AFailureOfAListenerGoesToTheRaiserAndTheRestIsNotTold) {
  const Subscription a = Connect("a");
  Subscription failing = event_->Connect([] { throw std::runtime_error("the listener"); });
  const Subscription c = Connect("c");
  EXPECT_THROW(event_->Raise(), std::runtime_error);
  EXPECT_THAT(heard_, ElementsAre("a"));
  failing.Reset();
  EXPECT_THAT(Raised(), ElementsAre("a", "c"));
}

TEST_F(EventTest, AFailureAfterTheEventWentGoesToTheRaiser) {
  const Subscription a = event_->Connect([&] {
    event_.reset();
    throw std::runtime_error("the listener");
  });
  EXPECT_THROW(event_->Raise(), std::runtime_error);
}

TEST(EventArguments, ReachEveryListener) {
  Event<bool&, const std::string&, int> event;
  std::vector<std::string> heard;
  const Subscription a = event.Connect([&](bool& cancel, const std::string& text, int number) {
    heard.push_back(text + std::to_string(number) + (cancel ? " cancelled" : ""));
    cancel = true;
  });
  const Subscription b = event.Connect([&](bool& cancel, const std::string& text, int number) {
    heard.push_back(text + std::to_string(number) + (cancel ? " cancelled" : ""));
  });
  bool cancel = false;
  event.Raise(cancel, "text ", 7);
  EXPECT_TRUE(cancel);
  EXPECT_THAT(heard, ElementsAre("text 7", "text 7 cancelled"));
}

TEST(EventArguments, HandedByValueAreWholeForEveryListener) {
  Event<std::vector<int>> event;
  std::vector<std::size_t> heard;
  const auto take = [&](std::vector<int> numbers) { heard.push_back(std::vector<int>(std::move(numbers)).size()); };
  const Subscription a = event.Connect(take);
  const Subscription b = event.Connect(take);
  event.Raise({1, 2, 3});
  EXPECT_THAT(heard, ElementsAre(3U, 3U));
}

}  // namespace
}  // namespace brivane::host
