#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace brivane::dossier {

/// A thread of its own for what waits for a server. Tasks run there one after the other, and what each answers runs on
/// the thread that made this object, in its event loop.
///
///     Aside aside;
///     aside.Run([] {                        // there
///       const int count = AskServer();
///       return [=] { Show(count); };        // here
///     });
///
/// Nobody ever waits for it: where this object goes while a task is under way, that task and those after it are
/// finished there and nothing is told here. A program that ends asks AllEnd first.
class Aside {
 public:
  /// What is left to be done here.
  using Rest = std::function<void()>;

  Aside();
  Aside(const Aside&) = delete;
  Aside& operator=(const Aside&) = delete;
  ~Aside();

  void Run(std::function<Rest()> task);
  /// Waits that long at most, and tells here at once what has come of the tasks; answers whether all are done.
  bool Settle(std::chrono::milliseconds longest);

  /// Waits that long at most until the threads of objects that are gone have ended; answers whether they have. Where
  /// one has not, the process ends without the way out of main: what that thread still uses would go under its feet.
  [[nodiscard]] static bool AllEnd(std::chrono::milliseconds longest);

 private:
  struct Shared;
  std::shared_ptr<Shared> shared_;
};

}  // namespace brivane::dossier
