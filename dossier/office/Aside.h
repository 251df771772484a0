#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace brivane::dossier {

/// A thread of its own for what waits for a server. Tasks run there one after the other, and what each answers runs on
/// the thread that made this object, in its event loop. Between tasks what is posted to objects of that thread runs
/// there, where the program has an event loop.
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
  /// For use on the thread there: has something done here, beside what a task answers.
  [[nodiscard]] std::function<void(Rest)> Teller() const;
  /// Lets the thread end once its tasks are done, and waits that long at most until it has; answers whether it has.
  /// Nothing is told here any more, and nothing runs there.
  bool End(std::chrono::milliseconds longest);
  /// Waits that long at most, and tells here at once what has come of the tasks; answers whether all are done.
  bool Settle(std::chrono::milliseconds longest);

  /// Waits that long at most until the threads of objects that are gone have ended; answers whether they have. Where
  /// one has not, the process ends without the way out of main: what that thread still uses would go under its feet.
  [[nodiscard]] static bool AllEnd(std::chrono::milliseconds longest);

 private:
  struct Shared;
  std::shared_ptr<Shared> shared_;
  std::thread thread_;
};

}  // namespace brivane::dossier
