#include "dossier/office/Aside.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QObject>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace brivane::dossier {
namespace {

/// The threads whose objects are gone, and a word when one has ended.
struct Count {
  std::mutex guard;
  std::condition_variable ended;
  int threads = 0;
};

/// Never destroyed: a thread that was left behind may be the last to use it.
Count& Threads() {
  static Count& count = *new Count;
  return count;
}

}  // namespace

struct Aside::Shared {
  std::mutex guard;
  std::condition_variable changed;
  std::deque<std::function<Rest()>> tasks;
  std::deque<Rest> rests;
  bool busy = false;
  bool left = false;   ///< the object is gone
  bool ended = false;  ///< the thread is
  /// What the thread sleeps in while it has an event loop.
  QAbstractEventDispatcher* sleeps = nullptr;
  /// Hears that there is a rest. Used under the guard, and gone with the object.
  std::unique_ptr<QObject> here = std::make_unique<QObject>();

  void Work(const std::shared_ptr<Shared>& self) {
    std::optional<QEventLoop> loop;
    if (QCoreApplication::instance() != nullptr) loop.emplace();
    std::unique_lock lock(guard);
    if (loop) sleeps = QAbstractEventDispatcher::instance();
    for (;;) {
      while (!left && tasks.empty()) {
        if (!loop) {
          changed.wait(lock);
          continue;
        }
        lock.unlock();
        loop->processEvents(QEventLoop::WaitForMoreEvents);
        lock.lock();
      }
      if (tasks.empty()) break;
      busy = true;
      Rest rest = [&] {
        const auto task = std::move(tasks.front());
        tasks.pop_front();
        lock.unlock();
        Rest answer = task();
        return answer;
      }();
      lock.lock();
      busy = false;
      if (rest) Tell(self, std::move(rest));
      changed.notify_all();
    }
    sleeps = nullptr;
    lock.unlock();
    if (loop) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// Under the guard.
  void Tell(const std::shared_ptr<Shared>& self, Rest rest) {
    if (!here) return;
    rests.push_back(std::move(rest));
    QMetaObject::invokeMethod(
        here.get(), [self] { self->Tell(); }, Qt::QueuedConnection);
  }

  /// Under the guard.
  void Wake() {
    changed.notify_all();
    if (sleeps != nullptr) sleeps->wakeUp();
  }

  /// Nothing is told here any more, and the thread ends after its tasks.
  void Leave() {
    std::unique_ptr<QObject> last;
    const std::lock_guard lock(guard);
    if (left) return;
    {
      const std::lock_guard all(Threads().guard);
      ++Threads().threads;
    }
    last = std::move(here);
    rests.clear();
    left = true;
    Wake();
  }

  void Tell() {
    for (;;) {
      Rest rest;
      {
        const std::lock_guard lock(guard);
        if (rests.empty() || !here) return;
        rest = std::move(rests.front());
        rests.pop_front();
      }
      if (rest) rest();
    }
  }
};

Aside::Aside() : shared_(std::make_shared<Shared>()) {
  thread_ = std::thread([shared = shared_]() mutable {
    shared->Work(shared);
    {
      const std::lock_guard lock(shared->guard);
      shared->ended = true;
      shared->changed.notify_all();
    }
    shared.reset();
    const std::lock_guard lock(Threads().guard);
    --Threads().threads;
    Threads().ended.notify_all();
  });
}

Aside::~Aside() {
  shared_->Leave();
  if (thread_.joinable()) thread_.detach();
}

void Aside::Run(std::function<Rest()> task) {
  const std::lock_guard lock(shared_->guard);
  shared_->tasks.push_back(std::move(task));
  shared_->Wake();
}

std::function<void(Aside::Rest)> Aside::Teller() const {
  return [shared = shared_](Rest rest) {
    const std::lock_guard lock(shared->guard);
    shared->Tell(shared, std::move(rest));
  };
}

bool Aside::End(std::chrono::milliseconds longest) {
  shared_->Leave();
  {
    std::unique_lock lock(shared_->guard);
    if (!shared_->changed.wait_for(lock, longest, [this] { return shared_->ended; })) return false;
  }
  if (thread_.joinable()) thread_.join();
  return true;
}

bool Aside::Settle(std::chrono::milliseconds longest) {
  const auto shared = shared_;
  bool done = false;
  {
    std::unique_lock lock(shared->guard);
    done = shared->changed.wait_for(lock, longest, [&] { return shared->tasks.empty() && !shared->busy; });
  }
  shared->Tell();
  return done;
}

bool Aside::AllEnd(std::chrono::milliseconds longest) {
  std::unique_lock lock(Threads().guard);
  return Threads().ended.wait_for(lock, longest, [] { return Threads().threads == 0; });
}

}  // namespace brivane::dossier
