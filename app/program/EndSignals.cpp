#include "app/program/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <utility>

namespace brivane::app {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

int wakeUp[2] = {-1, -1};

/// All that may be done in a signal.
void Wake(int) {
  const int before = errno;
  const char byte = 0;
  static_cast<void>(!write(wakeUp[1], &byte, 1));
  errno = before;
}

void Handle(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (const int signal : kSignals) sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end) {
  if (pipe2(wakeUp, O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(wakeUp[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [end = std::move(end)] {
    char bytes[16];
    while (read(wakeUp[0], bytes, sizeof bytes) > 0) {
    }
    end();
  });
  Handle(Wake);
}

EndSignals::~EndSignals() {
  if (!notifier_) return;
  Handle(SIG_DFL);
  notifier_.reset();
  for (int& end : wakeUp) close(std::exchange(end, -1));
}

}  // namespace brivane::app
