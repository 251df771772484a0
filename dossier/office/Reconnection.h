#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

/// What is to be done when the session of a client broke, as decisions alone: who asks the server stands elsewhere.
namespace brivane::dossier {

/// How long to wait before the next try: half a second, and longer each time, half a minute at most. `tries`: how many
/// have failed.
[[nodiscard]] std::chrono::milliseconds PauseAfter(int tries);

/// A session that edits a client. A server gives out the numbers of its sessions again: by the time that it took the
/// client up, in milliseconds since 1970, it is told from another.
struct Holding {
  int pid = 0;
  std::int64_t since = 0;

  friend bool operator==(const Holding&, const Holding&) = default;
};

/// What was known when the session broke.
struct Before {
  bool edited = false;               ///< the client was taken up to be edited
  std::int64_t step = 0;             ///< the last step that was stored
  Holding session{};                 ///< at the server
  std::optional<std::int64_t> edit;  ///< the step of the edit whose answer was lost
};

/// What a new session finds.
struct Found {
  bool taken = false;          ///< the client was taken up again
  Holding holder{};            ///< else: the session that has it
  std::int64_t step = 0;       ///< the last step that is stored
  bool edit_is_there = false;  ///< the step of the edit is the edit's own
};

enum class Role {
  TryAgain,  ///< the broken session still ends at the server: nothing is certain yet
  Edit,
  Read
};

enum class Outcome { NoneAsked, WasStored, WasNotStored };

struct Verdict {
  Role role = Role::TryAgain;
  Outcome outcome = Outcome::NoneAsked;
  /// What is in memory is not what is stored.
  bool reload = false;

  friend bool operator==(const Verdict&, const Verdict&) = default;
};

[[nodiscard]] Verdict Judge(const Before& before, const Found& found);

}  // namespace brivane::dossier
