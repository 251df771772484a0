#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

namespace brivane::bench {

/// This program once more, as a process of its own that is told what to do in lines and answers in lines. Its input
/// ends with this object or this process, and it ends with its input.
class Worker {
 public:
  explicit Worker(const std::vector<std::string>& arguments);
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;
  Worker(Worker&& other) noexcept;
  ~Worker();

  void Tell(const std::string& line);
  /// Ends its input.
  void End();
  /// The lines up to and without the one that says "done"; all that are left where none does.
  [[nodiscard]] std::vector<std::string> Answers();

 private:
  pid_t pid_ = -1;
  int to_ = -1;
  int from_ = -1;
  std::string read_;
};

/// Microseconds since 1970, by the clock of the machine, which a server on it has too.
[[nodiscard]] std::int64_t Now();

}  // namespace brivane::bench
