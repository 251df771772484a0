#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <utility>

/// Measures two pieces of work side by side, in one run and interleaved, and prints their ratio at the end.
///
///     bench::Compare("TxtOm_Validation", {.measured = "handler", .yardstick = "bare calls", .aim = 4},
///                    [&] { box.Validation.Raise(cancel); }, [&] { bare.TxtOm_Validation(); });
///     return bench::Run(argc, argv);
namespace bench {

struct Question {
  const char* measured;   ///< what our side is
  const char* yardstick;  ///< what it is a multiple of
  double aim;             ///< largest ratio aimed at; 0 where there is none
};

namespace detail {
void Announce(const std::string& name, const Question& question);
[[nodiscard]] std::string Measured(const std::string& name);
[[nodiscard]] std::string Yardstick(const std::string& name);
void Turn(const std::string& name, std::chrono::nanoseconds measured, std::chrono::nanoseconds yardstick);
}  // namespace detail

/// Both sides are called over and over: each must leave things as it found them.
template <class Ours, class Theirs>
void Compare(const std::string& name, const Question& question, Ours ours, Theirs theirs) {
  detail::Announce(name, question);
  benchmark::RegisterBenchmark(detail::Measured(name).c_str(), [ours](benchmark::State& state) {
    while (state.KeepRunning()) ours();
  });
  benchmark::RegisterBenchmark(detail::Yardstick(name).c_str(), [theirs](benchmark::State& state) {
    while (state.KeepRunning()) theirs();
  });
}

/// The same where each side leaves something behind, which is cleared away outside of the time measured.
template <class Ours, class ClearOurs, class Theirs, class ClearTheirs>
void CompareAndClear(const std::string& name, const Question& question, Ours ours, ClearOurs clearOurs, Theirs theirs,
                     ClearTheirs clearTheirs) {
  detail::Announce(name, question);
  const auto measure = [](const std::string& side, auto work, auto clear) {
    benchmark::RegisterBenchmark(side.c_str(), [work, clear](benchmark::State& state) {
      while (state.KeepRunning()) {
        work();
        state.PauseTiming();
        clear();
        state.ResumeTiming();
      }
    });
  };
  measure(detail::Measured(name), ours, clearOurs);
  measure(detail::Yardstick(name), theirs, clearTheirs);
}

/// The same turn by turn, by the median of single calls: for work that waits for the disk, which is fast in one
/// moment and slow in the next whatever is asked of it.
template <class Ours, class Theirs>
void CompareInTurn(const std::string& name, const Question& question, Ours ours, Theirs theirs) {
  detail::Announce(name, question);
  benchmark::RegisterBenchmark(detail::Measured(name).c_str(), [name, ours, theirs](benchmark::State& state) {
    while (state.KeepRunning()) {
      const auto start = std::chrono::steady_clock::now();
      ours();
      const auto between = std::chrono::steady_clock::now();
      theirs();
      detail::Turn(name, between - start, std::chrono::steady_clock::now() - between);
    }
  });
}

/// Runs every comparison and prints one line for each: nanoseconds of both sides and the ratio of their fastest
/// repetitions, or of their medians. Answers the exit code: 0 unless a benchmark failed; a missed aim is printed, not a
/// failure.
int Run(int argc, char** argv);

}  // namespace bench
