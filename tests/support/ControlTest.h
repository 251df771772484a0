#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "tests/support/TestHost.h"
#include <brivane/frame/Calendar.h>
#include <brivane/frame/Handle.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::test {

using Lines = std::vector<std::string>;

inline host::Date D(int year, int month, int day) { return frame::MakeDate({year, month, day}); }

/// The lines of a kind, such as "set" or "report", in their order.
[[nodiscard]] Lines Only(const Lines& lines, std::string_view kind);

/// A control on the toolkit in memory against the host in memory, on 21 November 2026. Message boxes, the
/// focus and pending events are written into the host's calls.
class ControlTest : public ::testing::Test {
 protected:
  explicit ControlTest(const frame::Design& design);

  TestHost host_;
  memory::Toolkit toolkit_;
  /// What message boxes answer, in turn; after them "Nee" to a question and OK to everything else.
  std::deque<host::MessageAnswer> answers_;
  /// What runs when the logic lets pending events run.
  std::function<void()> pending_;
  std::unique_ptr<host::Surface> surface_;
  frame::Controls on_;

  /// A person acts on a control that can be reached; answers whether a box refused.
  bool Act(host::Control& control, const controls::Action& action);
  /// A person acts on a control; answers what became of it.
  controls::Outcome Try(host::Control& control, const controls::Action& action);
  /// What happened since the last time.
  [[nodiscard]] Lines Log() { return host_.calls.Take(); }
  void Forget() { (void)host_.calls.Take(); }
};

}  // namespace brivane::test
