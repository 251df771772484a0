#pragma once

#include <chrono>

#include <brivane/host/Export.h>

namespace brivane::controls {

/// Tells the keys that answer a message box from those that were under way when it came up.
///
/// Who is typing does not see the box at once: what comes before the first pause was meant for something else, and
/// so is a key that is still held down.
class BRIVANE_API KeysUnderWay {
 public:
  /// A pause in the typing of somebody who has seen the box.
  static constexpr std::chrono::milliseconds kPause{500};

  /// Times are on any one clock; `shown` is when the box came up.
  KeysUnderWay(std::chrono::milliseconds pause, std::chrono::milliseconds shown) : pause_(pause), last_(shown) {}

  /// How a key goes down.
  enum class Press {
    First,   ///< somebody pressed it
    Repeat,  ///< it is held down
  };

  /// Whether a key that goes down at this time is meant for the box.
  [[nodiscard]] bool IsMeant(std::chrono::milliseconds at, Press press) {
    const bool paused = over_ || at - last_ >= pause_;
    if (at > last_) last_ = at;
    if (press == Press::Repeat) return false;
    over_ = paused;
    return paused;
  }

 private:
  std::chrono::milliseconds pause_;
  std::chrono::milliseconds last_;
  bool over_ = false;
};

}  // namespace brivane::controls
