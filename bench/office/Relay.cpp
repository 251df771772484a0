#include "bench/office/Relay.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <list>
#include <optional>
#include <vector>

namespace brivane::bench {
namespace {

using Clock = std::chrono::steady_clock;

sockaddr_un AddressOf(const std::string& folder) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string path = folder + "/.s.PGSQL.5432";
  std::memcpy(static_cast<char*>(address.sun_path), path.data(), std::min(path.size(), sizeof address.sun_path - 1));
  return address;
}

/// What is under way from one end to the other; no bytes are the end of the connection.
struct Way {
  struct Part {
    Clock::time_point due;
    std::vector<char> bytes;
  };

  int from;
  int to;
  std::deque<Part> parts{};

  [[nodiscard]] bool Ended() const { return !parts.empty() && parts.back().bytes.empty(); }
  void Take(Clock::duration delay) {
    std::array<char, 65536> bytes{};
    const ssize_t count = recv(from, bytes.data(), bytes.size(), 0);
    parts.push_back({Clock::now() + delay, {bytes.data(), bytes.data() + std::max<ssize_t>(count, 0)}});
  }
  /// Hands on what is due; answers whether the connection goes on.
  [[nodiscard]] bool Deliver(Clock::time_point now) {
    for (; !parts.empty() && parts.front().due <= now; parts.pop_front()) {
      const std::vector<char>& bytes = parts.front().bytes;
      if (bytes.empty()) return false;
      for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = send(to, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count <= 0) return false;
        sent += static_cast<std::size_t>(count);
      }
    }
    return true;
  }
};

struct Line {
  Way there;
  Way back;
};

std::optional<Line> Accept(int listener, const std::string& server) {
  const int client = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
  const int beyond = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = AddressOf(server);
  if (client >= 0 && connect(beyond, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
    return Line{.there = {.from = client, .to = beyond}, .back = {.from = beyond, .to = client}};
  close(client);
  close(beyond);
  return std::nullopt;
}

/// How long it is until something is due, a second at most.
timespec UntilDue(const std::list<Line>& lines, Clock::time_point now) {
  Clock::duration soonest = std::chrono::seconds(1);
  for (const Line& line : lines) {
    for (const Way* way : {&line.there, &line.back}) {
      if (!way->parts.empty()) soonest = std::min(soonest, std::max(way->parts.front().due - now, Clock::duration(0)));
    }
  }
  const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(soonest).count();
  return {.tv_sec = nanoseconds / 1'000'000'000, .tv_nsec = nanoseconds % 1'000'000'000};
}

}  // namespace

int RunRelay(const std::string& server, const std::string& folder, std::chrono::microseconds each_way) {
  const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = AddressOf(folder);
  if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || listen(listener, 256) != 0)
    return 1;
  if (write(STDOUT_FILENO, "done\n", 5) != 5) return 1;
  std::list<Line> lines;
  while (true) {
    std::vector<pollfd> look{{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0},
                             {.fd = listener, .events = POLLIN, .revents = 0}};
    for (const Line& line : lines) {
      for (const Way* way : {&line.there, &line.back})
        look.push_back({.fd = way->Ended() ? -1 : way->from, .events = POLLIN, .revents = 0});
    }
    const timespec patience = UntilDue(lines, Clock::now());
    ppoll(look.data(), look.size(), &patience, nullptr);
    if (look[0].revents != 0) return 0;
    std::size_t place = 2;
    for (auto line = lines.begin(); line != lines.end();) {
      if (look[place++].revents != 0) line->there.Take(each_way);
      if (look[place++].revents != 0) line->back.Take(each_way);
      const Clock::time_point now = Clock::now();
      if (line->there.Deliver(now) && line->back.Deliver(now)) {
        ++line;
        continue;
      }
      close(line->there.from);
      close(line->there.to);
      line = lines.erase(line);
    }
    if (look[1].revents != 0) {
      if (auto line = Accept(listener, server)) lines.push_back(std::move(*line));
    }
  }
}

}  // namespace brivane::bench
