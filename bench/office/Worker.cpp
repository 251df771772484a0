#include "bench/office/Worker.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace brivane::bench {

Worker::Worker(const std::vector<std::string>& arguments) {
  std::array<int, 2> in{};
  std::array<int, 2> out{};
  // None of them is inherited by the workers that follow, or an end would stay open there.
  if (pipe2(in.data(), O_CLOEXEC) != 0 || pipe2(out.data(), O_CLOEXEC) != 0) std::abort();
  std::vector<std::string> words{"/proc/self/exe"};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  pid_ = fork();
  if (pid_ == 0) {
    dup2(in[0], STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    execv(pointers.front(), pointers.data());
    _exit(127);
  }
  close(in[0]);
  close(out[1]);
  to_ = in[1];
  from_ = out[0];
}

Worker::Worker(Worker&& other) noexcept
    : pid_(std::exchange(other.pid_, -1)),
      to_(std::exchange(other.to_, -1)),
      from_(std::exchange(other.from_, -1)),
      read_(std::move(other.read_)) {}

Worker::~Worker() {
  if (pid_ < 0) return;
  End();
  close(from_);
  waitpid(pid_, nullptr, 0);
}

void Worker::Tell(const std::string& line) {
  const std::string bytes = line + '\n';
  if (write(to_, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
}

void Worker::End() {
  if (to_ >= 0) close(std::exchange(to_, -1));
}

std::vector<std::string> Worker::Answers() {
  std::vector<std::string> lines;
  std::array<char, 65536> bytes{};
  while (true) {
    for (std::size_t end = read_.find('\n'); end != std::string::npos; end = read_.find('\n')) {
      std::string line = read_.substr(0, end);
      read_.erase(0, end + 1);
      if (line == "done") return lines;
      lines.push_back(std::move(line));
    }
    const ssize_t count = read(from_, bytes.data(), bytes.size());
    if (count <= 0) return lines;
    read_.append(bytes.data(), static_cast<std::size_t>(count));
  }
}

std::int64_t Now() {
  return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::system_clock::now().time_since_epoch())
      .count();
}

}  // namespace brivane::bench
