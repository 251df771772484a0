#include "dossier/office/Aside.h"

#include <QObject>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace brivane::dossier {
namespace {

/// The threads of all objects, and a word when one has ended.
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
  bool left = false;  ///< the object is gone
  /// Hears that there is a rest. Used under the guard, and gone with the object.
  std::unique_ptr<QObject> here = std::make_unique<QObject>();

  void Work(const std::shared_ptr<Shared>& self) {
    std::unique_lock lock(guard);
    for (;;) {
      changed.wait(lock, [this] { return left || !tasks.empty(); });
      if (tasks.empty()) return;
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
      if (here) {
        rests.push_back(std::move(rest));
        QMetaObject::invokeMethod(
            here.get(), [self] { self->Tell(); }, Qt::QueuedConnection);
      }
      changed.notify_all();
    }
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
  {
    const std::lock_guard lock(Threads().guard);
    ++Threads().threads;
  }
  std::thread([shared = shared_]() mutable {
    shared->Work(shared);
    shared.reset();
    const std::lock_guard lock(Threads().guard);
    --Threads().threads;
    Threads().ended.notify_all();
  }).detach();
}

Aside::~Aside() {
  std::unique_ptr<QObject> here;
  {
    const std::lock_guard lock(shared_->guard);
    here = std::move(shared_->here);
    shared_->rests.clear();
    shared_->left = true;
    shared_->changed.notify_all();
  }
}

void Aside::Run(std::function<Rest()> task) {
  const std::lock_guard lock(shared_->guard);
  shared_->tasks.push_back(std::move(task));
  shared_->changed.notify_all();
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
