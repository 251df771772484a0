#pragma once

#include <chrono>
#include <functional>

namespace brivane::dossier {

/// Shows a person that the program waits for an office, where that takes longer than a second: the thread that waits
/// has to have the answer before it goes on, and handles no event meanwhile. What is called here paints, and does
/// nothing else: whoever waits may be in the middle of an edit.
struct LongWait {
  /// After a second, and again each second; how long so far.
  std::function<void(std::chrono::seconds)> goes_on;
  /// Once, after the last of these.
  std::function<void()> over;

  /// Is shown from now on where the program's own thread waits; others wait unseen.
  static void ShowBy(LongWait shown);
  /// What ShowBy was given, where this is the program's own thread.
  [[nodiscard]] static const LongWait* Here();
};

/// One wait; to be asked under way.
class Waiting {
 public:
  Waiting() = default;
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  ~Waiting();

  [[nodiscard]] std::chrono::milliseconds SoFar() const;
  /// The moment, counted from the beginning, at which Show is due next.
  [[nodiscard]] std::chrono::milliseconds ShownAt() const { return shown_at_; }
  void Show();

 private:
  std::chrono::steady_clock::time_point since_ = std::chrono::steady_clock::now();
  std::chrono::seconds shown_at_{1};
  const LongWait* shown_ = nullptr;
};

}  // namespace brivane::dossier
