#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/Shortest.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>

namespace brivane::test {

inline std::string Show(bool value) { return value ? "true" : "false"; }
inline std::string Show(std::int16_t value) { return std::to_string(value); }
inline std::string Show(std::int32_t value) { return std::to_string(value); }
inline std::string Show(const std::string& value) { return '"' + value + '"'; }
inline std::string Show(double value) { return tests::Shortest(value); }
inline std::string Show(float value) { return Show(static_cast<double>(value)); }
inline std::string Show(host::Date value) {
  if (value.IsNone()) return "0";
  const frame::YearMonthDay day = frame::Split(value);
  return std::to_string(day.year) + '-' + std::to_string(day.month) + '-' + std::to_string(day.day);
}

/// What can be done to a member of the host's model.
enum class Op { Get, Set, Call };

/// Number of the failures that a test plans.
inline constexpr std::int32_t kPlannedFailure = 1004;

/// Everything that happens around a control, one line each, in order; and the failures that a test plans.
class CallLog {
 public:
  /// Reads are told as well.
  bool reads = false;

  void Add(std::string line) { lines_.push_back(std::move(line)); }
  void AddRead(std::string line) {
    if (reads) Add(std::move(line));
  }
  /// The lines since the last Take.
  [[nodiscard]] std::vector<std::string> Take() { return std::exchange(lines_, {}); }

  /// Lets the nth such operation from now on fail, once.
  void Fail(std::string member, Op op, int nth = 1, host::Error error = {kPlannedFailure, "Mislukt", "Testhost"}) {
    planned_.push_back({std::move(member), op, nth, std::move(error)});
  }
  /// To be called by the host's objects before they do anything.
  void Reach(std::string_view member, Op op) {
    for (Planned& failure : planned_)
      if (failure.member == member && failure.op == op && --failure.countdown == 0) throw failure.error;
  }

 private:
  struct Planned {
    std::string member;
    Op op;
    int countdown;
    host::Error error;
  };

  std::vector<std::string> lines_;
  std::vector<Planned> planned_;
};

}  // namespace brivane::test
