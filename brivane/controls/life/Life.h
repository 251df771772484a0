#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <brivane/host/Export.h>

/// A host may delete an embedded control at any moment, also from inside what the control itself has set off.
namespace brivane::controls {

/// Goes through the procedures of a control whose host let go of it while they ran. Nobody reports it: what the
/// handler of a procedure would need, the tracer and the desktop, throws it again.
struct Abandoned final {};

/// How long a control lives, with the toolkit and the surface that it stands on.
///
/// Its host ends it. What stands open then closes, and the host's objects are let go of, before End returns. The
/// procedures that were running stand on the stack all the same: each is abandoned as soon as what it called comes
/// back, and only when the outermost call on the control has come back does what they ran on go.
///
///     Life::Call call(life);           // around whatever runs something of the control
///     Life::AtEnd open(*life, [&] { box.close(); });
///     box.exec();
///     life->Check();                   // abandons the procedure that asked
///
/// A control that lives on, and may be used again, abandons what is going on in the same way: what was running when
/// the host said so is abandoned, and what begins after that runs.
///
/// It belongs to one thread.
class BRIVANE_API Life {
 public:
  Life() = default;
  Life(const Life&) = delete;
  Life& operator=(const Life&) = delete;
  ~Life() = default;

  /// For whoever asks: the life is over, or what he stands in was abandoned.
  [[nodiscard]] bool Ended() const { return ended_ || running_ != turn_; }
  /// Something of the control is on the stack.
  [[nodiscard]] bool Running() const { return calls_ != 0; }
  /// Fails with Abandoned once it has ended, for who asks. For what the control's procedures call, after anything in
  /// which the host could have had its turn; never where an exception would go through code that is not ours.
  void Check() const {
    if (Ended()) throw Abandoned{};
  }

  /// The host lets go, once. `remains` is what the control ran on: it goes when nothing runs on it any more, which may
  /// be before this returns. Who calls this holds the life.
  void End(std::shared_ptr<void> remains);

  /// What stands open closes, and what runs is abandoned. Nothing where nothing does.
  void Abandon();

  /// Puts the remains away after a call, where they may not go at once: callers that are not ours may still stand in
  /// them.
  std::function<void(std::shared_ptr<void> remains)> bury;

  /// Something of the control is running, and what it runs on stays.
  class [[nodiscard]] Call {
   public:
    /// Holds the life; one that has ended may be given, and what is run must ask Ended.
    explicit Call(std::shared_ptr<Life> life)
        : life_(std::move(life)), around_(std::exchange(life_->running_, life_->turn_)) {
      ++life_->calls_;
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call();

   private:
    std::shared_ptr<Life> life_;
    unsigned around_;  ///< the turn of what called
  };

  /// While it stands, the end of the life or of what is running does this too: of several the last one made first. It
  /// must not fail, and is never asked twice.
  class [[nodiscard]] AtEnd {
   public:
    /// `close` runs at most once; the life outlives this.
    AtEnd(Life& life, std::function<void()> close) : life_(life), close_(std::move(close)) {
      life_.open_.push_back(this);
    }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;
    ~AtEnd() { std::erase(life_.open_, this); }

   private:
    friend class Life;

    Life& life_;
    std::function<void()> close_;
  };

  /// Runs something of the control for somebody who is no part of it. False, and quiet, where the life had ended or
  /// ended meanwhile; any other failure goes on to the caller.
  template <class Body> static bool Run(std::shared_ptr<Life> life, Body&& body) {
    const Call call(life);
    if (life->Ended()) return false;
    try {
      body();
    } catch (...) {
      if (!life->Ended()) throw;
    }
    return !life->Ended();
  }

 private:
  void CloseAll();

  std::shared_ptr<void> remains_;
  std::vector<AtEnd*> open_;
  int calls_ = 0;
  unsigned turn_ = 0;     ///< counts the times that what ran was abandoned
  unsigned running_ = 0;  ///< the turn in which the innermost call began
  bool ended_ = false;
};

}  // namespace brivane::controls
