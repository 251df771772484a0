#pragma once

#include <functional>

/// What lets a procedure of the controls wait for a person while the page goes on.
///
/// A page may never be kept waiting: what it calls must come back. So whatever is set off by a person or by the host is
/// a turn on a stack of its own, and where it waits, for an answer or for a form to be closed, that stack is put aside
/// and the page is given back its own. Turns end in the reverse order of their waiting, as if each ran inside the one
/// before it.
namespace brivane::web {

/// Runs something as a turn; comes back when it has ended or waits. Not from inside a turn. What it runs must not fail.
void RunTurn(std::function<void()> work);

/// Goes on with the turns whose waiting has ended; not from inside a turn.
void GoOn();

/// Whether what is running may wait: it is in a turn, and the page does not stand between.
[[nodiscard]] bool CanWait();

/// While it stands, the page may have called into the controls from inside a call of theirs: nothing may wait.
class CalledBack {
 public:
  CalledBack();
  CalledBack(const CalledBack&) = delete;
  CalledBack& operator=(const CalledBack&) = delete;
  ~CalledBack();
};

struct Turn;

/// One waiting.
///
///     Waiting answered;
///     ... someone keeps it, and calls answered.End() later, or at once
///     answered.Wait();
class Waiting {
 public:
  /// Comes back once this was ended, and everything that began to wait later has come back; at once where it must not
  /// wait.
  void Wait();
  void End() { ended_ = true; }
  [[nodiscard]] bool Ended() const { return ended_; }

 private:
  friend void GoOn();

  Turn* turn_ = nullptr;
  bool ended_ = false;
};

}  // namespace brivane::web
