#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include <brivane/host/Export.h>

namespace brivane::controls {

/// Goes to an entry of a list by typing how it begins.
///
/// Characters that follow each other within kTogether are one beginning: "per j" is "per jaar". The same character
/// again and again goes from each entry that begins with it to the next. Capitals count as small letters.
///
///     TypeAhead typed;
///     shown = typed.Type(entries, shown, "p", now);
class BRIVANE_API TypeAhead {
 public:
  /// How long after a character the next one goes on with it.
  static constexpr std::chrono::milliseconds kTogether{1000};

  /// The entry to go to after one more character, which is UTF-8; `current` where none begins that way. Both from 0,
  /// below 0 for none. `at` is a time on any clock that never goes back.
  [[nodiscard]] int Type(const std::vector<std::string>& entries, int current, std::string_view character,
                         std::chrono::milliseconds at);
  /// Whether a character at this time goes on with a beginning; a blank is then part of it.
  [[nodiscard]] bool GoesOn(std::chrono::milliseconds at) const { return !typed_.empty() && at - last_ <= kTogether; }
  /// The next character begins anew.
  void Forget() { typed_.clear(); }

 private:
  std::string typed_;  ///< in small letters
  std::chrono::milliseconds last_{0};
};

}  // namespace brivane::controls
