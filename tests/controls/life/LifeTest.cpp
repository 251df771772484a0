#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include <brivane/controls/life/Life.h>

namespace brivane::controls {
namespace {

using testing::ElementsAre;

/// What a control ran on: tells when it goes.
std::shared_ptr<void> Remains(bool& gone) {
  return {new int(0), [&gone](int* what) {
            delete what;
            gone = true;
          }};
}

TEST(Life, WithNothingRunningTheRemainsGoAtOnce) {
  const auto life = std::make_shared<Life>();
  bool gone = false;
  life->Check();
  life->End(Remains(gone));
  EXPECT_TRUE(gone);
  EXPECT_TRUE(life->Ended());
  EXPECT_THROW(life->Check(), Abandoned);
}

TEST(Life, TheRemainsStayUntilTheOutermostCallIsBack) {
  const auto life = std::make_shared<Life>();
  bool gone = false;
  {
    const Life::Call outer(life);
    {
      const Life::Call inner(life);
      life->End(Remains(gone));
    }
    EXPECT_FALSE(gone);
    EXPECT_TRUE(life->Running());
  }
  EXPECT_TRUE(gone);
}

TEST(Life, WhoeverBuriesThemDecidesWhen) {
  const auto life = std::make_shared<Life>();
  std::shared_ptr<void> buried;
  life->bury = [&](std::shared_ptr<void> remains) { buried = std::move(remains); };
  bool gone = false;
  {
    const Life::Call call(life);
    life->End(Remains(gone));
  }
  EXPECT_FALSE(gone);
  buried.reset();
  EXPECT_TRUE(gone);
}

TEST(Life, WhatIsOpenClosesFromTheInsideOut) {
  const auto life = std::make_shared<Life>();
  std::vector<std::string> closed;
  const Life::AtEnd form(*life, [&] { closed.emplace_back("form"); });
  {
    const Life::AtEnd was(*life, [&] { closed.emplace_back("what was open"); });
  }
  const Life::AtEnd question(*life, [&] { closed.emplace_back("question"); });
  life->End(nullptr);
  life->End(nullptr);
  EXPECT_THAT(closed, ElementsAre("question", "form"));
}

TEST(Life, WhatClosesMayGoAsItCloses) {
  const auto life = std::make_shared<Life>();
  std::unique_ptr<Life::AtEnd> open;
  bool closed = false;
  open = std::make_unique<Life::AtEnd>(*life, [&] {
    open.reset();
    closed = true;
  });
  life->End(nullptr);
  EXPECT_TRUE(closed);
}

TEST(Life, ARunThatItEndsInIsQuiet) {
  const auto life = std::make_shared<Life>();
  EXPECT_TRUE(Life::Run(life, [] {}));
  EXPECT_THROW(Life::Run(life, [] { throw std::runtime_error("of the host"); }), std::runtime_error);
  EXPECT_FALSE(Life::Run(life, [&] {
    life->End(nullptr);
    life->Check();
  }));
  bool ran = false;
  EXPECT_FALSE(Life::Run(life, [&] { ran = true; }));
  EXPECT_FALSE(ran);
}

TEST(Life, AFailureAfterTheEndIsNobodys) {
  const auto life = std::make_shared<Life>();
  EXPECT_FALSE(Life::Run(life, [&] {
    life->End(nullptr);
    throw std::runtime_error("of the host");
  }));
}

}  // namespace
}  // namespace brivane::controls
