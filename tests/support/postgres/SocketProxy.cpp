#include "tests/support/postgres/SocketProxy.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <array>
#include <cstring>
#include <stdexcept>

#include "tests/support/Patience.h"

namespace brivane::test {
namespace {

constexpr char kSocket[] = "/.s.PGSQL.5432";
constexpr int kLook = 5;

sockaddr_un AddressOf(const QString& folder) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const QByteArray path = QFile::encodeName(folder) + kSocket;
  std::memcpy(static_cast<char*>(address.sun_path), path.constData(), static_cast<std::size_t>(path.size()));
  return address;
}

bool SendAll(int to, const char* bytes, ssize_t count) {
  while (count > 0) {
    const ssize_t sent = send(to, bytes, static_cast<std::size_t>(count), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes += sent;
    count -= sent;
  }
  return true;
}

bool IsReadable(int socket, int milliseconds) {
  pollfd look{.fd = socket, .events = POLLIN, .revents = 0};
  return poll(&look, 1, milliseconds) > 0;
}

}  // namespace

SocketProxy::SocketProxy(const QString& server, std::chrono::milliseconds delay, const QString& below)
    : server_(server), delay_(delay), folder_(below + QStringLiteral("/brivane-proxy-XXXXXX")) {
  listener_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = AddressOf(folder_.path());
  if (bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || listen(listener_, 64) != 0)
    throw std::runtime_error("the proxy has no socket");
  acceptor_ = std::thread([this] { Accept(); });
}

SocketProxy::~SocketProxy() {
  ends_ = true;
  acceptor_.join();
  for (std::thread& carrier : carriers_) carrier.join();
  Mend();
  close(listener_);
}

void SocketProxy::Cut() {
  cut_ = true;
  std::this_thread::sleep_for(std::chrono::milliseconds(4 * kLook));
}

void SocketProxy::FallSilent() {
  silent_ = true;
  Cut();
}

std::size_t SocketProxy::Unanswered() {
  const std::lock_guard lock(guard_);
  return unanswered_.size();
}

void SocketProxy::Mend() {
  const std::lock_guard lock(guard_);
  silent_ = false;
  hung_ = false;
  cut_ = false;
  for (const int client : unanswered_) close(client);
  unanswered_.clear();
}

void SocketProxy::Accept() {
  while (!ends_) {
    if (!IsReadable(listener_, kLook)) continue;
    const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0) continue;
    const std::lock_guard lock(guard_);
    if (silent_) {
      unanswered_.push_back(client);
      continue;
    }
    if (cut_) {
      close(client);
      continue;
    }
    carriers_.emplace_back([this, client] { Carry(client); });
  }
}

SocketProxy::Fate SocketProxy::Next() {
  if (!Awaits()) return Fate::Answered;
  return others_-- > 0 ? Fate::Answered : fate_.exchange(Fate::Answered);
}

void SocketProxy::Carry(int client) {
  const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = AddressOf(server_);
  bool open = connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  bool asked = false;
  std::array<char, 65536> bytes{};
  while (open && !ends_ && !cut_) {
    if (hung_) {
      std::this_thread::sleep_for(std::chrono::milliseconds(kLook));
      continue;
    }
    std::array<pollfd, 2> look{pollfd{.fd = client, .events = POLLIN, .revents = 0},
                               pollfd{.fd = server, .events = POLLIN, .revents = 0}};
    if (poll(look.data(), look.size(), kLook) <= 0) continue;
    if (look[0].revents != 0) {
      const ssize_t count = recv(client, bytes.data(), bytes.size(), 0);
      const Fate fate = count > 0 ? Next() : Fate::Answered;
      if (fate == Fate::DeadBefore || fate == Fate::DeadAfter) cut_ = true;
      if (count <= 0 || fate == Fate::LostBefore || fate == Fate::DeadBefore) break;
      open = SendAll(server, bytes.data(), count);
      asked = true;
      if (fate == Fate::LostAfter || fate == Fate::DeadAfter) {
        // The answer is there: the server has committed.
        IsReadable(server, kPatience);
        break;
      }
    }
    if (look[1].revents != 0) {
      const ssize_t count = recv(server, bytes.data(), bytes.size(), 0);
      if (count <= 0) break;
      if (asked) {
        ++round_trips_;
        asked = false;
        std::this_thread::sleep_for(delay_);
      }
      open = SendAll(client, bytes.data(), count);
    }
  }
  close(server);
  close(client);
}

}  // namespace brivane::test
