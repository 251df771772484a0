#include "bench/Compare.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <vector>

namespace bench {
namespace {

constexpr const char* kMeasured = "/measured";
constexpr const char* kYardstick = "/yardstick";

struct Entry {
  std::string name;
  Question question;
};

std::vector<Entry>& Entries() {
  static std::vector<Entry> entries;
  return entries;
}

struct Turns {
  std::vector<double> measured;
  std::vector<double> yardstick;
};

std::map<std::string, Turns>& InTurn() {
  static std::map<std::string, Turns> turns;
  return turns;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Keeps the fastest repetition of each benchmark: what the machine did besides only ever adds.
class Fastest : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      failed_ = failed_ || run.error_occurred;
      const auto [at, fresh] = nanoseconds_.try_emplace(run.run_name.function_name, std::numeric_limits<double>::max());
      at->second = std::min(at->second, run.real_accumulated_time / static_cast<double>(run.iterations) * 1e9);
    }
  }

  [[nodiscard]] bool Failed() const { return failed_; }
  [[nodiscard]] bool Has(const Entry& entry) const {
    return nanoseconds_.contains(entry.name + kMeasured) && nanoseconds_.contains(entry.name + kYardstick);
  }
  [[nodiscard]] double Measured(const Entry& entry) const { return nanoseconds_.at(entry.name + kMeasured); }
  [[nodiscard]] double Yardstick(const Entry& entry) const { return nanoseconds_.at(entry.name + kYardstick); }

 private:
  std::map<std::string, double> nanoseconds_;
  bool failed_ = false;
};

void Print(const Entry& entry, double measured, double yardstick) {
  const double ratio = measured / yardstick;
  std::printf("%-38s %s %12.1f ns   %s %12.1f ns   ratio %5.2f", entry.name.c_str(), entry.question.measured, measured,
              entry.question.yardstick, yardstick, ratio);
  if (entry.question.aim > 0)
    std::printf("   aim %.1f%s", entry.question.aim, ratio > entry.question.aim ? "   MISSED" : "");
  std::printf("\n");
}

}  // namespace

namespace detail {
void Announce(const std::string& name, const Question& question) { Entries().push_back({name, question}); }
std::string Measured(const std::string& name) { return name + kMeasured; }
std::string Yardstick(const std::string& name) { return name + kYardstick; }
void Turn(const std::string& name, std::chrono::nanoseconds measured, std::chrono::nanoseconds yardstick) {
  Turns& turns = InTurn()[name];
  turns.measured.push_back(static_cast<double>(measured.count()));
  turns.yardstick.push_back(static_cast<double>(yardstick.count()));
}
}  // namespace detail

int Run(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  // Defaults, which the command line overrides.
  char repetitions[] = "--benchmark_repetitions=7";
  char interleaving[] = "--benchmark_enable_random_interleaving=true";
  char minimum[] = "--benchmark_min_time=0.03";
  arguments.insert(arguments.begin() + 1, {repetitions, interleaving, minimum});
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

  Fastest reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  for (const Entry& entry : Entries()) {
    if (const auto turns = InTurn().find(entry.name); turns != InTurn().end())
      Print(entry, Median(turns->second.measured), Median(turns->second.yardstick));
    else if (reporter.Has(entry))
      Print(entry, reporter.Measured(entry), reporter.Yardstick(entry));
  }
  return reporter.Failed() ? 1 : 0;
}

}  // namespace bench
